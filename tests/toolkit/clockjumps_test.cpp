// Somebody sets the clock, or the machine has slept: timers neither stall nor make up for what they missed.
#include "fastclock.h"
#include "inputlog.h"
#include "sentevents.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qdatetime.h>
#include <qlineedit.h>
#include <qtimer.h>

#include <climits>

namespace
{

const int day = 86400;

// Where the clock on the wall may be set to: hours away, before the beginning, and to the last second that 32
// bits can hold.
const time_t settings[] = {1000000 - 3 * 3600, 1000000 + 5 * 3600, 0, -1, -day, INT_MAX, INT_MIN,
                           INT_MAX - 1};

class Ticking : public QObject
{
public:
    explicit Ticking(int interval) { startTimer(interval); }
    int take()
    {
        const int count = m_ticks;
        m_ticks = 0;
        return count;
    }

protected:
    void timerEvent(QTimerEvent*) override { ++m_ticks; }

private:
    int m_ticks = 0;
};

} // namespace

TEST(ClockJumps, TimersGoOnWhateverTheClockOnTheWallSays)
{
    FastClock clock;
    Ticking ticking(100);
    for (const time_t setting : settings) {
        clock.setWall(setting);
        qApp->processEvents();
        EXPECT_EQ(0, ticking.take()) << setting;
        for (int i = 0; i < 10; ++i) {
            clock.pass(100);
            qApp->processEvents();
            qApp->processEvents();
        }
        EXPECT_EQ(10, ticking.take()) << setting;
    }
}

TEST(ClockJumps, TimersThatMissedHoursTickOnceForThem)
{
    FastClock clock;
    Ticking fast(1), slow(3600000);
    qApp->processEvents();
    fast.take();
    for (const long long missed : {5LL * 3600000, 1LL << 31, 1LL << 32, (1LL << 32) + 1, 1LL << 40}) {
        clock.pass(missed);
        qApp->processEvents();
        qApp->processEvents();
        EXPECT_EQ(1, fast.take()) << missed;
        EXPECT_EQ(1, slow.take()) << missed;
        clock.pass(1);
        qApp->processEvents();
        EXPECT_EQ(1, fast.take()) << missed;
    }
}

TEST(ClockJumps, TheLoopWaitsForATimerAsLongAsItMust)
{
    FastClock clock;
    QTimer timer;
    timer.start(INT_MAX, true);
    Ticking ticking(INT_MAX);
    const long long before = clock.passed();
    while (ticking.take() == 0)
        qApp->processOneEvent();
    EXPECT_NEAR(static_cast<double>(clock.passed() - before), INT_MAX, 1000);
}

TEST(ClockJumps, AStopWatchNeverRunsBackwards)
{
    FastClock clock;
    for (const time_t setting : settings) {
        QTime watch;
        watch.start();
        clock.setWall(setting);
        EXPECT_TRUE(watch.elapsed() >= 0 && watch.elapsed() < day * 1000) << setting;
        EXPECT_TRUE(QTime::currentTime().isValid()) << setting;
    }
}

TEST(ClockJumps, HandlingEventsForAWhileEnds)
{
    FastClock clock;
    class Setter : public QObject
    {
    public:
        explicit Setter(FastClock* clock) : m_clock(clock) { startTimer(0); }

    protected:
        void timerEvent(QTimerEvent*) override
        {
            m_clock->setWall(1000000 - 3600 * (++m_times % 48));
            QApplication::syncX();
        }

    private:
        FastClock* m_clock;
        int m_times = 0;
    } setter(&clock);
    for (int i = 0; i < 100; ++i)
        qApp->processEvents(10);
}

TEST(ClockJumps, TheCursorOfAFieldBlinksAsBefore)
{
    QLineEdit edit(nullptr, "edit");
    edit.setGeometry(100, 100, 200, 30);
    showAndActivate(&edit);
    edit.setFocus();
    settle();
    FastClock clock;
    edit.setText("text");
    for (const time_t setting : settings) {
        clock.setWall(setting);
        qApp->processEvents();
        EventCount paints(&edit, QEvent::Paint);
        for (int i = 0; i < 10; ++i) {
            clock.pass(QApplication::cursorFlashTime() / 2);
            qApp->processEvents();
            qApp->processEvents();
        }
        const int count = paints.take();
        EXPECT_TRUE(count >= 8 && count <= 12) << setting << ": " << count;
    }
}

TEST(ClockJumps, TwoClicksAreADoubleClick)
{
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(60000);
    EventLog log;
    InputWidget widget(&log, nullptr, "w", 100, 100, 100, 50);
    showAndWait(&widget);
    FastClock clock;
    EventCount doubles(&widget, QEvent::MouseButtonDblClick);
    for (const time_t setting : settings) {
        xinput::click(&widget, 10, 10);
        settle();
        clock.setWall(setting);
        xinput::click(&widget, 10, 10);
        settle();
        EXPECT_EQ(1, doubles.take()) << setting;
        xinput::click(&widget, 60, 30); // far away, so that the next one is a first one
        xinput::click(&widget, 10, 10, 2);
        settle();
        doubles.take();
    }
    QApplication::setDoubleClickInterval(interval);
}
