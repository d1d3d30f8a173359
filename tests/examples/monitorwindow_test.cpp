// The monitor's window: what it shows of a machine, and that it can be left running.
#include "examplemachine.h"
#include "faketime.h"
#include "hands.h"
#include "memoryuse.h"
#include "monitorwindow.h"
#include "panel.h"
#include "pixels.h"
#include "printers.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qcheckbox.h>
#include <qlabel.h>
#include <qobjectlist.h>

#include <cstdlib>

namespace
{

const unsigned processorColour = 0x50dc50, networkColour = 0xf0be3c;

class Monitor : public testing::Test
{
protected:
    Monitor() : clock(1000000), window(machine.folder()) { showAndWait(&window); }

    // Some seconds in which always the same happens, with a sample at the end of each.
    void pass(int seconds, double processor, long long bytes = 0)
    {
        for (int i = 0; i < seconds; ++i) {
            machine.pass(1000, processor, 0.5, bytes, 0);
            clock.advance(1);
            window.sampleAt(now += 1000);
        }
    }
    QWidget* panel(const char* caption) { return childNamed(&window, caption); }
    QWidget* graph(const char* caption) { return childNamed(panel(caption), "graph"); }
    std::string value(const char* caption)
    {
        return static_cast<QLabel*>(childNamed(panel(caption), "value"))->text().latin1();
    }
    // The highest pixel of that colour in the newest column of the graph, as a share of its height from
    // below.
    double newest(QWidget* graph, unsigned colour)
    {
        const Pixels picture = Pixels::of(graph);
        for (int y = 1; y < picture.height(); ++y)
            if (picture.at(picture.width() - 2, y) == colour)
                return 1 - (y - 1.0) / (picture.height() - 2);
        return -1;
    }
    int columns(QWidget* graph, unsigned colour)
    {
        const Pixels picture = Pixels::of(graph);
        int result = 0;
        for (int x = 0; x < picture.width(); ++x)
            result += picture.part(x, 0, 1, picture.height()).count(colour) > 0;
        return result;
    }

    ExampleMachine machine;
    FakeTime clock;
    MonitorWindow window;
    // Far ahead of the clock that the window reads itself.
    long long now = 1LL << 50;
};

TEST_F(Monitor, ShowsHowBusyTheProcessorIs)
{
    pass(20, 0.5);
    EXPECT_NEAR(newest(graph("Processor (%)"), processorColour), 0.5, 0.02);
    EXPECT_EQ(columns(graph("Processor (%)"), processorColour), 20);
    EXPECT_EQ(value("Processor (%)"), "50 %");
    EXPECT_EQ(value("Memory (%)"), "50 %");
    pass(1, 0.25);
    EXPECT_NEAR(newest(graph("Processor (%)"), processorColour), 0.5, 0.02) << "the stroke down";
    pass(1, 0.25);
    EXPECT_NEAR(newest(graph("Processor (%)"), processorColour), 0.25, 0.02);
}

TEST_F(Monitor, SwitchesBetweenCurvesAndBars)
{
    pass(5, 0.5);
    QWidget* const box = childNamed(&window, "bars");
    xinput::click(box, 8, box->height() / 2);
    ASSERT_TRUE(waitFor([&] { return static_cast<QCheckBox*>(box)->isOn(); }));
    pass(3, 0.5);
    QWidget* const processor = graph("Processor (%)");
    Pixels picture = Pixels::of(processor);
    EXPECT_EQ(picture.at(picture.width() - 2, picture.height() - 2), processorColour) << "down to the bottom";
    EXPECT_NEAR(newest(processor, processorColour), 0.5, 0.02);
    window.setBars(false);
    pass(3, 0.5);
    picture = Pixels::of(processor);
    EXPECT_NE(picture.at(picture.width() - 2, picture.height() - 2), processorColour);
}

TEST_F(Monitor, FindsTheRangeOfTheNetworkItself)
{
    pass(10, 0, 50 << 10);
    EXPECT_EQ(value("Network (KiB/s)"), "50 KiB/s");
    EXPECT_NEAR(newest(graph("Network (KiB/s)"), networkColour), 1, 0.02);
    pass(2, 0, 500 << 10);
    EXPECT_NEAR(newest(graph("Network (KiB/s)"), networkColour), 1, 0.02);
    pass(2, 0, 250 << 10);
    EXPECT_NEAR(newest(graph("Network (KiB/s)"), networkColour), 0.5, 0.02);
}

TEST_F(Monitor, GivesTheNetworkOneSampleASecond)
{
    pass(3, 0, 100 << 10);
    const int before = columns(graph("Network (KiB/s)"), networkColour);
    for (int i = 0; i < 10; ++i) {
        machine.pass(100, 0, 0.5, 10 << 10, 0);
        window.sampleAt(now += 100);
    }
    EXPECT_EQ(columns(graph("Network (KiB/s)"), networkColour), before);
    pass(1, 0, 0);
    EXPECT_EQ(columns(graph("Network (KiB/s)"), networkColour), before + 1);
    EXPECT_NEAR(newest(graph("Network (KiB/s)"), networkColour), 1, 0.02) << "nothing was lost";
}

TEST_F(Monitor, GoesOnWhenTheClockIsSetBack)
{
    pass(5, 0, 100 << 10);
    clock.set(5000);
    pass(5, 0, 100 << 10);
    EXPECT_NEAR(newest(graph("Network (KiB/s)"), networkColour), 1, 0.02);
    pass(5, 0, 50 << 10);
    EXPECT_NEAR(newest(graph("Network (KiB/s)"), networkColour), 0.5, 0.02);
}

TEST_F(Monitor, GoesOnAfterMoreBytesThanAGraphCanCount)
{
    const long long fast = 100LL << 30; // a second
    pass(25, 0, fast);
    EXPECT_EQ(value("Network (KiB/s)"), "100 GiB/s");
    EXPECT_NEAR(newest(graph("Network (KiB/s)"), networkColour), 1, 0.02);
    pass(2, 0, fast / 2);
    EXPECT_NEAR(newest(graph("Network (KiB/s)"), networkColour), 0.5, 0.02);
}

TEST_F(Monitor, SaysWhatItCannotTell)
{
    pass(5, 0.5);
    machine.remove("stat");
    machine.write("meminfo", "nonsense");
    pass(5, 0.5, 50 << 10);
    EXPECT_EQ(value("Processor (%)"), "50 %") << "the machine writes its files again";
    machine.remove("stat");
    window.sampleAt(now += 1000);
    EXPECT_EQ(value("Processor (%)"), "n/a");
    EXPECT_EQ(value("Memory (%)"), "50 %") << "the others go on";
    machine.write("meminfo", "nonsense");
    window.sampleAt(now += 1000);
    EXPECT_EQ(value("Memory (%)"), "n/a");
    pass(2, 0.75);
    EXPECT_EQ(value("Processor (%)"), "75 %");
}

TEST_F(Monitor, SharesTheWindowBetweenTheGraphs)
{
    const QSize before = graph("Processor (%)")->size();
    window.resize(window.width() + 200, window.height() + 100);
    settle();
    EXPECT_EQ(graph("Processor (%)")->size(), before + QSize(100, 50));
    EXPECT_EQ(graph("Memory (%)")->size(), graph("Processor (%)")->size());
    EXPECT_NEAR(graph("Network (KiB/s)")->height(), graph("Processor (%)")->height(), 1);
    pass(5, 0.5);
    EXPECT_EQ(columns(graph("Processor (%)"), processorColour), 5);
    window.resize(1, 1);
    settle();
    EXPECT_GE(graph("Processor (%)")->width(), 120);
    EXPECT_GE(graph("Processor (%)")->height(), 50);
    const QWidget* const last = panel("Disks (% busy)");
    EXPECT_TRUE(window.rect().contains(last->geometry()));
}

TEST_F(Monitor, KeepsItsColumnsStraightWhenTheCaptionsNeedTheRoom)
{
    QFont large("DejaVu Sans");
    large.setPixelSize(40);
    for (const char* caption : {"Processor (%)", "Memory (%)", "Network (KiB/s)", "Disks (% busy)"})
        static_cast<Panel*>(panel(caption))->setCaptionFont(large);
    window.resize(1, 1);
    settle();
    EXPECT_EQ(graph("Network (KiB/s)")->width(), graph("Processor (%)")->width());
    EXPECT_EQ(panel("Disks (% busy)")->x(), panel("Memory (%)")->x());
    EXPECT_EQ(graph("Disks (% busy)")->width(), graph("Memory (%)")->width());
}

TEST_F(Monitor, KeepsTheGraphsWhileTheValuesChange)
{
    pass(5, 0.07, 1);
    const QSize before = graph("Network (KiB/s)")->size();
    pass(5, 1, 123456789);
    settle();
    EXPECT_EQ(graph("Network (KiB/s)")->size(), before);
    EXPECT_EQ(columns(graph("Processor (%)"), processorColour), 10) << "nothing began anew";
}

TEST_F(Monitor, HasRoomForEveryValue)
{
    window.resize(1, 1);
    settle();
    for (const char* caption : {"Processor (%)", "Memory (%)", "Network (KiB/s)", "Disks (% busy)"}) {
        const QWidget* const label = childNamed(panel(caption), "value");
        EXPECT_GE(label->width(), label->fontMetrics().width("999 MiB/s")) << caption;
        EXPECT_TRUE(panel(caption)->rect().contains(label->geometry())) << caption;
    }
}

TEST_F(Monitor, TellsTheValueUnderThePointer)
{
    pass(5, 0.5);
    QWidget* const processor = graph("Processor (%)");
    const Pixels before = Pixels::of(processor);
    xinput::moveTo(processor, processor->width() / 2, processor->height() / 2);
    xinput::pressButton();
    EXPECT_TRUE(waitFor([&] { return Pixels::of(processor) != before; }));
    pass(1, 0.5);
    xinput::releaseButton();
    settle();
    pass(1, 0.5);
    EXPECT_EQ(columns(processor, processorColour), 7);
}

TEST_F(Monitor, TakesNoMoreMemoryAfterHours)
{
    const auto sampleOften = [this](int times) {
        machine.pass(1000, 0.3, 0.5, 100000, 0.1);
        for (int i = 0; i < times; ++i) {
            clock.advance(1);
            window.sampleAt(now += 1000);
        }
    };
    window.resize(700, 300);
    sampleOften(400); // every column has its sample
    settle();
    const size_t heap = heapInUse();
    const char* const server = std::getenv("XVFB_PROCESS");
    const size_t serverMemory = residentMemory(server);
    for (int round = 0; round < 8; ++round) {
        window.setBars(round % 2);
        window.resize(700 + round, 300);
        settle();
        sampleOften(500);
    }
    window.resize(700, 300);
    sampleOften(200);
    settle();
    EXPECT_LT(heapInUse(), heap + 50000) << "of 16800 pictures";
    if (server) {
        EXPECT_GT(serverMemory, 0u);
        EXPECT_LT(residentMemory(server), serverMemory + 1000);
    }
}

} // namespace
