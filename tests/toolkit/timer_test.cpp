// Timers of objects and QTimer.
#include "signalrecorder.h"
#include "waiting.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qdatetime.h>
#include <qevent.h>
#include <qtimer.h>

#include <map>

namespace
{

class Ticking : public QObject
{
public:
    std::map<int, int> ticks; // by the timer's identifier
    int stopAfter = 0;

protected:
    void timerEvent(QTimerEvent* event) override
    {
        if (++ticks[event->timerId()] == stopAfter)
            killTimer(event->timerId());
    }
};

} // namespace

TEST(Timer, TicksUntilItIsKilled)
{
    Ticking object;
    const int id = object.startTimer(5);
    EXPECT_GT(id, 0);
    object.stopAfter = 3;
    EXPECT_TRUE(waitFor([&] { return object.ticks[id] == 3; }));
    SignalRecorder recorder;
    QTimer later;
    recorder.watch(&later, SIGNAL(timeout()));
    later.start(40, true);
    EXPECT_TRUE(waitFor([&] { return recorder.count() > 0; }));
    EXPECT_EQ(object.ticks[id], 3);
}

TEST(Timer, EveryTimerHasItsOwnIdentifier)
{
    Ticking object;
    const int one = object.startTimer(2), two = object.startTimer(2);
    EXPECT_NE(one, two);
    object.killTimer(one);
    object.killTimer(123456);
    EXPECT_TRUE(waitFor([&] { return object.ticks[two] > 2; }));
    EXPECT_EQ(object.ticks[one], 0);
    object.killTimers();
    const int ticks = object.ticks[two];
    settle();
    EXPECT_EQ(object.ticks[two], ticks);
}

TEST(Timer, DiesWithItsObject)
{
    int other = 0;
    Ticking survivor;
    {
        Ticking object;
        object.startTimer(2);
        other = survivor.startTimer(2);
    }
    EXPECT_TRUE(waitFor([&] { return survivor.ticks[other] > 2; }));
}

TEST(Timer, ComesEarlyBeforeLate)
{
    QTimer late, early;
    SignalRecorder recorder;
    recorder.watch(&late, SIGNAL(timeout()), "late");
    recorder.watch(&early, SIGNAL(timeout()), "early");
    late.start(30, true);
    early.start(10, true);
    EXPECT_TRUE(waitFor([&] { return recorder.count() == 2; }));
    EXPECT_EQ(recorder.take(), "early late");
}

TEST(Timer, WaitsAtLeastItsInterval)
{
    QTimer timer;
    SignalRecorder recorder;
    recorder.watch(&timer, SIGNAL(timeout()));
    QTime clock;
    clock.start();
    timer.start(50, true);
    EXPECT_TRUE(waitFor([&] { return recorder.count() == 1; }));
    EXPECT_GE(clock.elapsed(), 49);
}

TEST(Timer, ASingleShotStopsBeforeItIsHeard)
{
    QTimer timer;
    SignalRecorder recorder;
    recorder.watch(&timer, SIGNAL(timeout()));
    bool active = true;
    recorder.whenever = [&] { active = timer.isActive(); };
    EXPECT_FALSE(timer.isActive());
    EXPECT_GT(timer.start(0, true), 0);
    EXPECT_TRUE(timer.isActive());
    EXPECT_TRUE(waitFor([&] { return recorder.count() == 1; }));
    EXPECT_FALSE(active);
    settle();
    EXPECT_EQ(recorder.count(), 1);
}

TEST(Timer, MayBeStoppedWithinItsSignal)
{
    QTimer timer;
    SignalRecorder recorder;
    recorder.watch(&timer, SIGNAL(timeout()));
    recorder.whenever = [&] {
        if (recorder.count() == 3)
            timer.stop();
    };
    timer.start(2);
    EXPECT_TRUE(waitFor([&] { return !timer.isActive(); }));
    settle();
    EXPECT_EQ(recorder.count(), 3);
    timer.stop();
}

TEST(Timer, ANewIntervalStartsItAgain)
{
    QTimer timer;
    SignalRecorder recorder;
    recorder.watch(&timer, SIGNAL(timeout()));
    timer.start(100000);
    const int before = timer.timerId();
    timer.changeInterval(2);
    EXPECT_NE(timer.timerId(), before);
    EXPECT_TRUE(waitFor([&] { return recorder.count() > 1; }));
}

TEST(Timer, OneCallLaterIsMadeOnce)
{
    QTimer target;
    SignalRecorder recorder;
    recorder.watch(&target, SIGNAL(timeout()));
    QTimer::singleShot(0, &target, SIGNAL(timeout()));
    EXPECT_EQ(recorder.count(), 0);
    EXPECT_TRUE(waitFor([&] { return recorder.count() == 1; }));
    settle();
    EXPECT_EQ(recorder.count(), 1);
}

TEST(Timer, ACallLaterToTheDeadIsNotMade)
{
    SignalRecorder recorder;
    QTimer other;
    recorder.watch(&other, SIGNAL(timeout()));
    {
        QTimer target;
        recorder.watch(&target, SIGNAL(timeout()), "dead");
        QTimer::singleShot(0, &target, SIGNAL(timeout()));
    }
    other.start(10, true);
    EXPECT_TRUE(waitFor([&] { return recorder.count() > 0; }));
    EXPECT_EQ(recorder.take(), "timeout");
}
