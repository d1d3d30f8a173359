// The monitor runs for hours, with every sample and every picture, while the clock does not wait for it.
// MONITOR_HOURS in the environment says how many (1).
#include "examplemachine.h"
#include "fastclock.h"
#include "hands.h"
#include "memoryuse.h"
#include "monitorwindow.h"
#include "pixels.h"
#include "serverresources.h"
#include "waiting.h"
#include "xtraffic.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qeventloop.h>

#include <climits>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace
{

// What the machine does in each second.
class Life : public QObject
{
public:
    explicit Life(ExampleMachine* machine) : seconds(0), m_machine(machine) { startTimer(1000); }
    int seconds;

protected:
    void timerEvent(QTimerEvent*) override
    {
        const double busy = (seconds * 37 % 101) / 101.0;
        m_machine->pass(1000, busy, 1 - busy, 1000 * (seconds * 59 % 997), busy / 2);
        ++seconds;
    }

private:
    ExampleMachine* m_machine;
};

struct Taken {
    size_t heap, memory, serverMemory;
    std::map<std::string, unsigned> resources;
};

Taken takenNow(const QWidget& window)
{
    settle();
    return {heapInUse(), residentMemory("self"), residentMemory(std::getenv("XVFB_PROCESS")),
            serverResources(window.winId())};
}

void print(const char* when, const Taken& taken)
{
    std::printf("%s: heap %zu bytes, memory %zu KiB, server's %zu KiB,", when, taken.heap, taken.memory,
                taken.serverMemory);
    for (const auto& each : taken.resources)
        std::printf(" %s %u", each.first.c_str(), each.second);
    std::printf("\n");
}

} // namespace

TEST(MonitorDay, TakesNoMoreAtItsEndThanAtItsBeginning)
{
    const char* const wanted = std::getenv("MONITOR_HOURS");
    const int hours = wanted ? std::atoi(wanted) : 1;
    ExampleMachine machine;
    FastClock clock;
    Life life(&machine);
    MonitorWindow window(machine.folder());
    showAndWait(&window);
    window.run(1000);
    const auto runUntil = [&](int seconds) {
        while (life.seconds < seconds)
            qApp->eventLoop()->processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMore);
    };
    runUntil(1800); // every column has its sample
    const Taken first = takenNow(window);
    const XTraffic before = sentToX();
    print("After half an hour", first);
    Taken now = first;
    for (int hour = 1; hour <= hours; ++hour) {
        runUntil(hour * 3600);
        now = takenNow(window);
        if (hour % 6 == 0 || hour == hours)
            print((std::to_string(hour) + " hours").c_str(), now);
        ASSERT_LT(now.heap, first.heap + 50000) << hour;
        ASSERT_LT(now.serverMemory, first.serverMemory + 2000) << hour;
        ASSERT_EQ(now.resources, first.resources) << hour;
    }
#if !defined(__SANITIZE_ADDRESS__)
    EXPECT_LT(now.memory, first.memory + 2000);
#endif
    const int seconds = hours * 3600 - 1800;
    const int graphs = 4;
    EXPECT_NEAR(clock.passed() / 1000, hours * 3600, 60) << "a timer comes once each second";
    EXPECT_GT(sentToX().requests - before.requests, graphs * seconds) << "all is really drawn";
    QWidget* const processor = childNamed(childNamed(&window, "Processor (%)"), "graph");
    EXPECT_GT(Pixels::of(processor).count(0x50dc50), processor->width());
}

TEST(MonitorDay, GoesOnWhateverTheClockOnTheWallSays)
{
    ExampleMachine machine;
    FastClock clock;
    Life life(&machine);
    MonitorWindow window(machine.folder());
    showAndWait(&window);
    window.run(1000);
    const time_t settings[] = {990000, 2000000, 0, -86400, 2147483600, INT_MIN, 1000000};
    for (const time_t setting : settings) {
        clock.setWall(static_cast<time_t>(setting));
        const int before = life.seconds;
        const XTraffic sent = sentToX();
        const long long start = clock.passed();
        while (life.seconds < before + 100)
            qApp->eventLoop()->processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMore);
        EXPECT_NEAR(static_cast<double>(clock.passed() - start), 100000, 2000) << setting;
        QApplication::flushX();
        const unsigned long requests = (sentToX() - sent).requests;
        EXPECT_TRUE(requests > 4 * 100 && requests < 100 * 100) << setting << ": " << requests;
        QWidget* const panel = childNamed(&window, "Network (KiB/s)");
        EXPECT_GT(Pixels::of(childNamed(panel, "graph")).count(0xf0be3c), 100) << setting;
    }
}
