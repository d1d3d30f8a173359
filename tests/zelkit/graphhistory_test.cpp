// ZelGraph: the samples that it keeps, one for each column.
#include "graphpair.h"
#include "messages.h"

#include <gtest/gtest.h>

namespace
{

// Samples that differ from column to column.
int wave(int i)
{
    return i * 7 % 6;
}

void feed(GraphPair& pair, int samples)
{
    for (int i = 0; i < samples; ++i)
        pair.setValue(wave(i));
}

} // namespace

TEST(GraphHistory, FillsAndThenScrolls)
{
    GraphPair pair(52, 32);
    for (int i = 0; i < 120; ++i) {
        pair.setValue(wave(i));
        ASSERT_EQ(pair.difference(), "") << "after " << i + 1;
    }
}

TEST(GraphHistory, TheNewestIsInTheLastColumn)
{
    GraphPair pair(52, 32);
    pair.setGraphParameters(0, 5, -1, -1, true);
    for (int i = 0; i < 120; ++i) {
        pair.setValue(i % 2 ? 5 : 0);
        ASSERT_EQ(pair.contents().part(49, 0, 1, 30).count(0x0000dc), i % 2 ? 30 : 0) << "after " << i + 1;
    }
    // All columns but the first are full.
    EXPECT_EQ(pair.contents().count(0x0000dc), 25 * 30);
}

TEST(GraphHistory, EverySampleIsOnePaintAtOnce)
{
    GraphPair pair;
    EventCount paints(&pair.graph, QEvent::Paint);
    for (int i = 0; i < 5; ++i) {
        pair.setValue(1);
        EXPECT_EQ(paints.take(), 1);
    }
    settle();
    EXPECT_EQ(paints.take(), 0);
}

TEST(GraphHistory, ClearingKeepsThePlacesOfTheSamples)
{
    GraphPair pair;
    pair.setGraphParameters(-1, 5, -1, -1, true);
    feed(pair, 30);
    pair.setMinY(-4);
    EventCount paints(&pair.graph, QEvent::Paint);
    pair.clearAll();
    EXPECT_EQ(paints.take(), 1);
    EXPECT_EQ(pair.contents().count(0x0000dc), 0) << "all at the minimum";
    pair.setMinY(-10);
    EXPECT_EQ(pair.contents().part(169, 0, 31, 100).count(0x0000dc), 30 * 40) << "still thirty of them";
    pair.setValue(5);
    EXPECT_EQ(pair.difference(), "");
    EXPECT_EQ(pair.contents().part(169, 99, 31, 1).count(0x0000dc), 31);
    pair.clearAll();
    feed(pair, 180);
    EXPECT_EQ(pair.difference(), "");
    pair.clearAll();
    feed(pair, 3);
    EXPECT_EQ(pair.difference(), "");
}

TEST(GraphHistory, NewParametersKeepThePlacesOfTheSamples)
{
    GraphPair pair;
    feed(pair, 30);
    EventCount paints(&pair.graph, QEvent::Paint);
    pair.setGraphParameters(2, 8, 5, 20, true);
    EXPECT_EQ(paints.take(), 1);
    EXPECT_EQ(pair.contents().count(0x0000dc), 0);
    pair.setMinY(-4);
    EXPECT_EQ(pair.contents().part(170, 0, 30, 100).count(0x0000dc), 30 * 50) << "thirty of the value 2";
    feed(pair, 180);
    pair.setGraphParameters(-3, 3, 5, 20);
    feed(pair, 4);
    EXPECT_EQ(pair.difference(), "");
}

TEST(GraphHistory, ModesChangeBothWays)
{
    GraphPair pair;
    for (const bool bars : {true, false, true}) {
        pair.setGraphParameters(0, 5, -1, -1, bars);
        feed(pair, 7);
        EXPECT_EQ(pair.difference(), "");
    }
}

TEST(GraphHistory, EveryResizeBeginsAnew)
{
    GraphPair pair;
    const struct {
        int width, height;
    } sizes[] = {{202, 103}, {150, 103}, {300, 60}, {301, 60}};
    for (const auto& size : sizes) {
        feed(pair, 400);
        pair.resize(size.width, size.height);
        EXPECT_EQ(pair.contents().count(0x0000dc), 0);
        EXPECT_EQ(pair.difference(), "") << size.width << "x" << size.height;
        feed(pair, 3);
        EXPECT_EQ(pair.difference(), "") << size.width << "x" << size.height;
    }
}

TEST(GraphHistory, AResizeToTheSameSizeIsNone)
{
    GraphPair pair;
    feed(pair, 3);
    pair.graph.resize(202, 102);
    settle();
    EXPECT_EQ(pair.difference(), "");
    pair.graph.hide();
    pair.graph.show();
    settle();
    EXPECT_EQ(pair.difference(), "") << "hidden and shown again";
}

TEST(GraphHistory, SamplesWhileHiddenAreKept)
{
    GraphPair pair;
    feed(pair, 3);
    pair.graph.hide();
    EventCount paints(&pair.graph, QEvent::Paint);
    feed(pair, 300);
    EXPECT_EQ(paints.take(), 0);
    pair.graph.show();
    settle();
    EXPECT_EQ(pair.difference(), "");
}

TEST(GraphHistory, SamplesBeforeTheFirstShowAreNotKept)
{
    GraphPair pair;
    ZelGraph graph(&pair.window, "early");
    graph.setGeometry(300, 10, 202, 102);
    for (int i = 0; i < 10; ++i)
        graph.setValue(4);
    graph.clearAll();
    graph.setMaxY(6);
    graph.setMaxY(5);
    graph.show();
    settle();
    EXPECT_EQ(Pixels::now(&graph).differenceFrom(Pixels::now(&pair.graph)), "");
    graph.setValue(3);
    pair.setValue(3);
    EXPECT_EQ(Pixels::now(&graph).differenceFrom(Pixels::now(&pair.graph)), "");
}

TEST(GraphHistory, ASampleBeforeTheFirstShowCentresTheAutomaticRange)
{
    GraphPair pair;
    ZelGraph graph(&pair.window, "early");
    graph.setGraphParameters(0, 0, -1, -1, true, false, true, Qt::black, QColor(0, 0, 220), Qt::green);
    graph.setValue(7); // 6 to 8
    graph.setGeometry(300, 10, 202, 102);
    graph.show();
    settle();
    graph.setValue(7);
    EXPECT_EQ(Pixels::now(&graph).part(200, 1, 1, 100).count(0x0000dc), 50);
}

TEST(GraphHistory, WithoutRoomNothingIsKeptAndNothingFails)
{
    GraphPair pair;
    feed(pair, 10);
    pair.graph.setLineWidth(60);
    pair.resize(100, 100);
    feed(pair, 10);
    pair.clearAll();
    pair.setGraphParameters(0, 4, 3, 3);
    pair.press(5);
    pair.drag(20);
    pair.release();
    pair.graph.setLineWidth(1);
    pair.setFrame(QFrame::Panel | QFrame::Sunken, 1);
    EXPECT_EQ(pair.difference(), "") << "no history until the next resize";
    feed(pair, 10);
    EXPECT_EQ(pair.difference(), "");
    pair.resize(101, 100);
    feed(pair, 10);
    EXPECT_EQ(pair.difference(), "");
}

TEST(GraphHistory, WithoutRoomInOneDirectionNothingIsSaid)
{
    GraphPair pair;
    pair.graph.setLineWidth(20);
    const struct {
        int width, height;
    } sizes[] = {{40, 90}, {41, 40}, {90, 40}, {40, 40}, {39, 90}, {90, 39}, {30, 30}};
    for (const auto& size : sizes) {
        pair.graph.resize(size.width, size.height);
        settle();
        for (int i = 0; i < 4; ++i)
            pair.graph.setValue(i);
        pair.graph.repaint(true);
        EXPECT_EQ(takeMessages(), "") << size.width << "x" << size.height;
    }
}

TEST(GraphHistory, AGraphMayNeverBeShown)
{
    ZelGraph graph(0, "graph", true);
    graph.setValue(3);
    graph.clearAll();
    graph.setMinY(1);
    graph.setGraphParameters(1, 2, 3, 4, true, true, true, Qt::red, Qt::green, Qt::blue);
    press(&graph);
    drag(&graph, 7, 7);
    release(&graph);
    EXPECT_FALSE(graph.isVisible());
}
