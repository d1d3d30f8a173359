// ZelGraph: the range that it shows, set or automatic, and what lies outside of it.
#include "graphpair.h"

#include <gtest/gtest.h>

#include <climits>

namespace
{

// The limits as a read-out tells them, "minimum to maximum". With the one-pixel frame the height of the
// inside stands for the minimum and 0 for the maximum.
std::string rangeOf(GraphPair& pair)
{
    pair.press(pair.graph.contentsRect().bottom());
    const std::string minimum = pair.model.readout();
    EXPECT_EQ(pair.difference(), "") << minimum;
    pair.release();
    pair.press(0);
    const std::string maximum = pair.model.readout();
    EXPECT_EQ(pair.difference(), "") << maximum;
    pair.release();
    return minimum + " to " + maximum;
}

} // namespace

TEST(GraphRange, BeginsAtZeroToFive)
{
    GraphPair pair;
    EXPECT_EQ(rangeOf(pair), "0.00 to 5.00");
}

TEST(GraphRange, PairsThatMakeNoRangeAreRepaired)
{
    const struct {
        int minimum, maximum;
        const char* range;
    } pairs[] = {
        {3, 9, "3.00 to 9.00"},
        {5, 5, "4.00 to 5.00"},
        {6, 5, "6.00 to 6.00"},
        {10, 5, "10.00 to 6.00"},
        {-3, -3, "-4.00 to -3.00"},
        {INT_MAX, INT_MAX, "2147483646.00 to 2147483647.00"},
        {INT_MIN, INT_MIN, "-2147483649.00 to -2147483648.00"},
        {INT_MIN, INT_MAX, "-2147483648.00 to 2147483647.00"},
        {INT_MAX, INT_MIN, "2147483647.00 to -2147483647.00"},
    };
    GraphPair pair;
    for (const auto& p : pairs) {
        pair.setGraphParameters(p.minimum, p.maximum, 10, 10);
        EXPECT_EQ(rangeOf(pair), p.range);
        for (const int sample : {5, 6, INT_MAX, INT_MIN, 0, -3})
            pair.setValue(sample);
        EXPECT_EQ(pair.difference(), "") << p.range;
    }
}

TEST(GraphRange, ChangingOneLimitRepairsToo)
{
    const struct {
        int first, last; // of the range before
        bool minimum;    // which one is changed
        int y;
        const char* range;
    } changes[] = {
        {0, 5, true, 5, "4.00 to 5.00"},   {0, 5, true, 6, "6.00 to 6.00"},
        {0, 5, true, 10, "10.00 to 6.00"}, {4, 9, false, 2, "4.00 to 3.00"},
        {4, 9, false, 4, "3.00 to 4.00"},  {4, 9, false, 3, "4.00 to 4.00"},
        {0, 5, true, -7, "-7.00 to 5.00"}, {0, 5, false, 7, "0.00 to 7.00"},
        {4, 9, true, 8, "8.00 to 9.00"},   {0, 5, false, INT_MIN, "0.00 to -2147483647.00"},
    };
    GraphPair pair;
    for (const auto& c : changes) {
        pair.setGraphParameters(c.first, c.last, -1, -1);
        pair.setValue(4);
        if (c.minimum)
            pair.setMinY(c.y);
        else
            pair.setMaxY(c.y);
        EXPECT_EQ(rangeOf(pair), c.range);
        EXPECT_EQ(pair.difference(), "") << c.range;
    }
}

TEST(GraphRange, OnlyRealChangesAreRepainted)
{
    GraphPair pair;
    EventCount paints(&pair.graph, QEvent::Paint);
    pair.setMinY(0);
    pair.setMaxY(5);
    EXPECT_EQ(paints.take(), 0);
    pair.setMaxY(6);
    EXPECT_EQ(paints.take(), 1);
    pair.setMinY(3);
    EXPECT_EQ(paints.take(), 1);
    pair.setMinY(3);
    EXPECT_EQ(paints.take(), 0);
    pair.setGraphParameters(0, 5, 10, 10, false, false, true);
    EXPECT_EQ(paints.take(), 1);
    pair.setMinY(-100);
    pair.setMaxY(100);
    EXPECT_EQ(paints.take(), 0);
    settle();
    EXPECT_EQ(paints.take(), 0) << "nothing is put off";
    EXPECT_EQ(rangeOf(pair), "0.00 to 2.00");
}

TEST(GraphRange, SamplesAreClampedWhenTheyCome)
{
    GraphPair pair;
    for (const int sample : {6, -1, INT_MAX, INT_MIN, 3})
        pair.setValue(sample);
    EXPECT_EQ(pair.difference(), "");
    // A wider range shows that the limits of that time were stored.
    pair.setMaxY(10);
    pair.setMinY(-5);
    EXPECT_EQ(pair.difference(), "");
    EXPECT_EQ(pair.contents().at(195, 34), 0x0000dcU) << "5 of -5 to 10";
}

TEST(GraphRange, SamplesOutsideOfAChangedRangeAreAtTheTop)
{
    GraphPair pair;
    pair.setGraphParameters(0, 10, -1, -1, true);
    for (const int sample : {1, 5, 9})
        pair.setValue(sample);
    pair.setMinY(4);
    pair.setMaxY(8);
    EXPECT_EQ(pair.difference(), "");
    const Pixels contents = pair.contents();
    EXPECT_EQ(contents.part(197, 0, 1, 100).count(0x0000dc), 100) << "below the minimum";
    EXPECT_EQ(contents.part(198, 0, 1, 100).count(0x0000dc), 25);
    EXPECT_EQ(contents.part(199, 0, 1, 100).count(0x0000dc), 100) << "above the maximum";
}

TEST(GraphRange, InAnEmptyRangeAllIsAtTheTop)
{
    GraphPair pair;
    pair.setGraphParameters(6, 5, -1, -1);
    for (const int sample : {5, 6, 7})
        pair.setValue(sample);
    EXPECT_EQ(pair.contents().part(197, 0, 3, 1).count(0x0000dc), 3);
    EXPECT_EQ(pair.contents().count(0x0000dc), 3);
    EXPECT_EQ(pair.difference(), "");
}

TEST(GraphRange, AnInvertedRangeClampsToTheMaximumFirst)
{
    GraphPair pair;
    pair.setGraphParameters(10, 5, -1, -1); // 10 at the bottom, 6 at the top
    for (const int sample : {8, 12, 3, 6})
        pair.setValue(sample);
    // All above 6 count as 6, all below 10 as 10.
    EXPECT_EQ(pair.contents().part(196, 0, 1, 100).count(0x0000dc), 100);
    EXPECT_EQ(pair.difference(), "");
}

TEST(GraphRange, AnAutomaticRangeBeginsAroundTheFirstSampleAndGrows)
{
    GraphPair pair;
    pair.setGraphParameters(100, 200, -1, -1, false, false, true);
    EXPECT_EQ(rangeOf(pair), "0.00 to 2.00");
    pair.setValue(7);
    EXPECT_EQ(rangeOf(pair), "6.00 to 8.00");
    pair.setValue(7);
    EXPECT_EQ(rangeOf(pair), "6.00 to 8.00");
    pair.setValue(10);
    EXPECT_EQ(rangeOf(pair), "6.00 to 10.00");
    pair.setValue(-3);
    EXPECT_EQ(rangeOf(pair), "-3.00 to 10.00");
    pair.setValue(0);
    EXPECT_EQ(rangeOf(pair), "-3.00 to 10.00") << "it never shrinks";
    EXPECT_EQ(pair.difference(), "");
}

TEST(GraphRange, AGraphThatHadSamplesGrowsFromZeroToTwo)
{
    GraphPair pair;
    pair.setValue(3);
    pair.setGraphParameters(0, 0, 10, 10, false, false, true);
    pair.setValue(1);
    EXPECT_EQ(rangeOf(pair), "0.00 to 2.00");
    pair.setValue(9);
    EXPECT_EQ(rangeOf(pair), "0.00 to 9.00");
    EXPECT_EQ(pair.difference(), "");
}

TEST(GraphRange, AnAutomaticRangeReachesTheLimitsOfNumbers)
{
    GraphPair pair;
    pair.setGraphParameters(0, 0, 10, 10, true, false, true);
    pair.setValue(INT_MAX);
    EXPECT_EQ(rangeOf(pair), "2147483646.00 to 2147483648.00");
    pair.setValue(INT_MIN);
    EXPECT_EQ(rangeOf(pair), "-2147483648.00 to 2147483648.00");
    pair.setValue(0);
    EXPECT_EQ(pair.difference(), "");
}

TEST(GraphRange, AFixedRangeAfterAnAutomaticOneCountsAgain)
{
    GraphPair pair;
    pair.setGraphParameters(0, 0, 10, 10, false, false, true);
    pair.setGraphParameters(20, 30, 10, 10);
    EXPECT_EQ(rangeOf(pair), "20.00 to 30.00");
    pair.setMaxY(40);
    EXPECT_EQ(rangeOf(pair), "20.00 to 40.00");
}
