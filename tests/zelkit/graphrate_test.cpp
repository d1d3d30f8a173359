// ZelGraph: rates of change, against a clock that the test sets.
#include "faketime.h"
#include "graphpair.h"

#include <gtest/gtest.h>

#include <climits>

namespace
{

// A graph of rates from -5 to 5: a rate of 1 is ten rows.
class GraphRate : public testing::Test
{
protected:
    GraphRate() : clock(1000) { pair.setGraphParameters(-5, 5, -1, -1, true, true); }

    // The rate that the sample's bar shows, in tenths.
    int shown(int sample)
    {
        pair.setValue(sample);
        EXPECT_EQ(pair.difference(), "");
        return pair.contents().part(199, 0, 1, 100).count(0x0000dc) - 50;
    }

    FakeTime clock;
    GraphPair pair;
};

} // namespace

TEST_F(GraphRate, IsTheChangePerSecond)
{
    EXPECT_EQ(shown(10), 0) << "the first one has nothing before it";
    clock.advance(2);
    EXPECT_EQ(shown(16), 30);
    clock.advance(1);
    EXPECT_EQ(shown(12), -40);
    clock.advance(10);
    EXPECT_EQ(shown(13), 1);
    clock.advance(3);
    EXPECT_EQ(shown(3), -34) << "a third, cut to rows";
}

TEST_F(GraphRate, WithinASecondTheChangeIsHalved)
{
    EXPECT_EQ(shown(10), 0);
    EXPECT_EQ(shown(16), 30);
    EXPECT_EQ(shown(10), -30);
    EXPECT_EQ(shown(10), 0);
    EXPECT_EQ(shown(11), 5);
}

TEST_F(GraphRate, AClockThatIsSetBackTurnsTheSign)
{
    EXPECT_EQ(shown(10), 0);
    clock.advance(-2);
    EXPECT_EQ(shown(16), -30);
    clock.advance(-1);
    EXPECT_EQ(shown(12), 40);
}

TEST_F(GraphRate, SecondsAreNumbersOf32Bits)
{
    clock.set(INT_MAX);
    EXPECT_EQ(shown(10), 0);
    clock.set(INT_MIN); // where such a clock goes on: one second later
    EXPECT_EQ(shown(13), 30);
    clock.set(INT_MAX);
    EXPECT_EQ(shown(11), 20);
    clock.set(0); // INT_MAX seconds back
    EXPECT_EQ(shown(INT_MAX), -10);
    clock.set(INT_MIN);
    EXPECT_EQ(shown(-1), 10) << "2147483648 seconds count as so many back";
}

TEST_F(GraphRate, TheLargestChangesDoNotOverflow)
{
    EXPECT_EQ(shown(INT_MIN), 0);
    clock.set(INT_MIN + 999); // INT_MAX seconds later
    EXPECT_EQ(shown(INT_MAX), 20);
    EXPECT_EQ(shown(INT_MIN), -50) << "clamped";
    EXPECT_EQ(shown(INT_MAX), 50);
}

TEST_F(GraphRate, EveryCallCountsInEveryMode)
{
    pair.setGraphParameters(-5, 5, -1, -1, true, false);
    EXPECT_EQ(shown(4), 40);
    clock.advance(5);
    EXPECT_EQ(shown(2), 20);
    pair.setGraphParameters(-5, 5, -1, -1, true, true);
    clock.advance(2);
    EXPECT_EQ(shown(4), 10) << "from 2, two seconds ago";
}

TEST_F(GraphRate, ASampleBeforeTheFirstResizeIsTheFirst)
{
    ZelGraph graph(&pair.window, "early", true);
    graph.setGraphParameters(-5, 5, -1, -1, true, true, false, Qt::black, QColor(0, 0, 220), Qt::green);
    graph.setValue(10);
    clock.advance(2);
    graph.setGeometry(300, 10, 202, 102);
    graph.show();
    graph.setValue(14);
    EXPECT_EQ(Pixels::now(&graph).part(200, 1, 1, 100).count(0x0000dc), 70) << "a rate of 2";
    EXPECT_EQ(Pixels::now(&graph).part(199, 1, 1, 100).count(0x0000dc), 0) << "the first one was not kept";
}

TEST_F(GraphRate, TheTimeOfBirthDoesNotCount)
{
    clock.advance(100);
    EXPECT_EQ(shown(50), 0);
    clock.advance(1);
    EXPECT_EQ(shown(51), 10);
}

TEST_F(GraphRate, AnAutomaticRangeBeginsAroundZero)
{
    pair.setGraphParameters(0, 0, -1, -1, false, true, true);
    pair.setValue(1000);
    pair.press(0);
    EXPECT_EQ(pair.model.readout(), "1.00");
    EXPECT_EQ(pair.difference(), "");
    clock.advance(3);
    pair.setValue(1010); // 3 1/3 a second
    EXPECT_EQ(pair.difference(), "");
    pair.drag(0);
    EXPECT_EQ(pair.model.readout(), "3.33");
    EXPECT_EQ(pair.difference(), "");
}
