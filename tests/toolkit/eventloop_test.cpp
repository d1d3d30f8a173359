// The event loop, nested loops and timers.
#include "fastclock.h"
#include "inputlog.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qdatetime.h>
#include <qeventloop.h>
#include <qtimer.h>

#include <functional>
#include <optional>
#include <thread>

namespace
{

// Calls a function after some milliseconds.
class Later : public QObject
{
public:
    Later(int milliseconds, std::function<void()> what) : m_what(std::move(what))
    {
        startTimer(milliseconds);
    }

protected:
    void timerEvent(QTimerEvent*) override
    {
        killTimers();
        m_what();
    }

private:
    std::function<void()> m_what;
};

class Ticks : public QObject
{
public:
    std::string order;
    void watch(int id, char letter) { m_letters.push_back({id, letter}); }

protected:
    void timerEvent(QTimerEvent* event) override
    {
        for (const auto& entry : m_letters)
            if (entry.first == event->timerId())
                order += entry.second;
    }

private:
    std::vector<std::pair<int, char>> m_letters;
};

// For timers to be due, with nothing handled meanwhile.
void passTime(int milliseconds)
{
    QTime begin;
    begin.start();
    while (begin.elapsed() < milliseconds) {
    }
}

// Nothing is handled between the end of a program's loop and the begin of the next one, so every test begins
// one.
class EventLoop : public testing::Test
{
protected:
    EventLoop()
    {
        Later leave(0, [] { qApp->exit_loop(); });
        qApp->enter_loop();
    }
};

class Timers : public EventLoop
{
};

} // namespace

TEST_F(EventLoop, ExecReturnsWhatExitSays)
{
    Later leave(10, [] { qApp->exit(7); });
    EXPECT_EQ(7, qApp->exec());
    Later quit(10, [] { qApp->quit(); });
    EXPECT_EQ(0, qApp->exec());
}

TEST_F(EventLoop, QuitBeforeExecHasNoEffect)
{
    bool ran = false;
    qApp->quit();
    Later later(10, [&] {
        ran = true;
        qApp->exit(3);
    });
    EXPECT_EQ(3, qApp->exec());
    EXPECT_TRUE(ran);
}

TEST_F(EventLoop, LoopsAreNestedAndLeftOneByOne)
{
    std::string levels;
    const auto note = [&] { levels += std::to_string(qApp->loopLevel()); };
    std::optional<Later> inside, end;
    Later enter(10, [&] {
        note();
        inside.emplace(10, [&] {
            note();
            qApp->exit_loop();
        });
        qApp->enter_loop();
        note();
        end.emplace(10, [&] {
            note();
            qApp->quit();
        });
    });
    note();
    EXPECT_EQ(0, qApp->exec());
    note();
    EXPECT_EQ("012110", levels);
}

TEST_F(EventLoop, QuitEndsAllLoops)
{
    int inner = -1;
    Later enter(10, [&] { inner = qApp->enter_loop(); });
    Later quit(30, [] { qApp->exit(5); });
    EXPECT_EQ(5, qApp->exec());
    EXPECT_EQ(1, inner);
    EXPECT_EQ(0, qApp->loopLevel());
}

TEST_F(EventLoop, ALoopCanBeEnteredOutsideOfExec)
{
    Later leave(10, [] { qApp->exit_loop(); });
    EXPECT_EQ(0, qApp->enter_loop());
    Later quit(10, [] { qApp->quit(); });
    EXPECT_EQ(0, qApp->enter_loop());
    Later again(10, [] { qApp->exit_loop(); });
    EXPECT_EQ(0, qApp->eventLoop()->enterLoop()) << "the end of one loop is not that of the next";
}

TEST_F(EventLoop, AfterTheEndEventsWaitForTheNextLoop)
{
    Later quit(10, [] { qApp->quit(); });
    qApp->exec();
    bool ran = false;
    Later later(0, [&] {
        ran = true;
        qApp->exit_loop();
    });
    qApp->processEvents();
    EXPECT_FALSE(ran);
    qApp->enter_loop();
    EXPECT_TRUE(ran);
}

TEST_F(EventLoop, TheEndIsAnnounced)
{
    SignalRecorder signals_;
    signals_.watch(qApp, SIGNAL(aboutToQuit()));
    Later quit(10, [] { qApp->quit(); });
    qApp->exec();
    EXPECT_EQ("aboutToQuit", signals_.take());
}

TEST_F(EventLoop, ClosingTheMainWidgetEndsTheProgram)
{
    QWidget main, other;
    qApp->setMainWidget(&main);
    EXPECT_EQ(&main, qApp->mainWidget());
    main.show();
    other.show();
    Later close(20, [&] { main.close(); });
    EXPECT_EQ(0, qApp->exec());
    EXPECT_TRUE(other.isVisible());
    qApp->setMainWidget(nullptr);
}

TEST_F(EventLoop, ADeletedMainWidgetIsForgotten)
{
    QWidget* main = new QWidget;
    qApp->setMainWidget(main);
    delete main;
    EXPECT_EQ(nullptr, qApp->mainWidget());
}

TEST_F(EventLoop, AnotherThreadCanWakeIt)
{
    SignalRecorder signals_;
    signals_.watch(qApp->eventLoop(), SIGNAL(awake()));
    settle();
    signals_.take();
    std::thread waker([] {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        QApplication::eventLoop()->wakeUp();
    });
    qApp->eventLoop()->processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMore);
    waker.join();
    EXPECT_EQ("awake", signals_.take());
}

TEST_F(EventLoop, WhatIsPostedAsItGoesToSleepKeepsItAwake)
{
    struct Leaver : QObject {
        int left = 3;
        void customEvent(QCustomEvent*) override
        {
            if (--left == 0)
                qApp->exit_loop();
        }
    } leaver;
    settle();
    const FastClock clock;
    Later muchLater(3600000, [] { qApp->exit_loop(); });
    SignalRecorder signals_;
    signals_.watch(qApp->eventLoop(), SIGNAL(aboutToBlock()));
    signals_.whenever = [&] { QApplication::postEvent(&leaver, new QCustomEvent(QEvent::User)); };
    qApp->enter_loop();
    EXPECT_EQ(0, clock.passed());
}

TEST_F(EventLoop, UserInputCanWait)
{
    EventLog log;
    InputWidget widget(&log, nullptr, "widget", 100, 100, 50, 50);
    widget.acceptsMouse = true;
    showAndActivate(&widget);
    xinput::moveTo(&widget, 5, 5);
    settle();
    log.take();
    xinput::pressButton();
    QApplication::syncX();
    bool painted = false;
    Later timer(0, [&] { painted = true; });
    qApp->eventLoop()->processEvents(QEventLoop::ExcludeUserInput, 20);
    EXPECT_TRUE(painted);
    EXPECT_EQ("", log.take());
    EXPECT_TRUE(qApp->hasPendingEvents());
    qApp->processEvents();
    EXPECT_EQ("widget press 5,5 button 1 state 0", log.take());
}

TEST_F(Timers, FireInTheOrderOfTheirTime)
{
    Ticks ticks;
    const int late = ticks.startTimer(20);
    const int early = ticks.startTimer(5);
    EXPECT_NE(late, early);
    EXPECT_GT(late, 0);
    ticks.watch(late, 'l');
    ticks.watch(early, 'e');
    passTime(30);
    qApp->processEvents();
    EXPECT_EQ("el", ticks.order);
    EXPECT_TRUE(waitFor([&] { return ticks.order.size() > 3; })) << "again and again";
}

TEST_F(Timers, AKilledOneIsSilent)
{
    Ticks ticks;
    const int id = ticks.startTimer(0);
    ticks.watch(id, 'x');
    ticks.killTimer(id);
    settle();
    EXPECT_EQ("", ticks.order);
    ticks.watch(ticks.startTimer(0), 'y');
    settle();
    EXPECT_NE("", ticks.order);
    ticks.killTimers();
    ticks.order.clear();
    settle();
    EXPECT_EQ("", ticks.order);
}

TEST_F(Timers, MayBeKilledByAnotherThatIsDueToo)
{
    Ticks ticks;
    const Later killer(1, [&] { ticks.killTimers(); });
    ticks.watch(ticks.startTimer(1), 'x');
    passTime(10);
    settle();
    EXPECT_EQ("", ticks.order);
}

TEST_F(Timers, OneWithoutTimeLeavesRoomForTheRest)
{
    Ticks ticks;
    ticks.watch(ticks.startTimer(0), 'z');
    EventLog log;
    InputWidget widget(&log, nullptr, "widget", 100, 100, 50, 50);
    widget.acceptsMouse = true;
    showAndActivate(&widget);
    log.take();
    xinput::click(&widget, 5, 5);
    std::string heard;
    EXPECT_TRUE(waitFor([&] {
        heard += log.take();
        return heard.find("press") != std::string::npos && ticks.order.size() > 10;
    }));
}
