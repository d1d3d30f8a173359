// The arithmetic of the graph.
#include "../../src/graphscale.h"

#include <gtest/gtest.h>

#include <limits>

TEST(GraphScale, TheRangeRepair)
{
    const struct {
        double minimum, maximum, repairedMinimum, repairedMaximum;
    } cases[] = {
        {0, 5, 0, 5}, {5, 5, 4, 5}, {10, 5, 10, 6}, {6, 5, 6, 6}, {4, 2, 4, 3}, {-3, -3, -4, -3},
    };
    for (const auto& c : cases) {
        double minimum = c.minimum;
        double maximum = c.maximum;
        repairRange(minimum, maximum);
        EXPECT_EQ(minimum, c.repairedMinimum);
        EXPECT_EQ(maximum, c.repairedMaximum);
    }
}

TEST(GraphScale, ValuesLandOnRows)
{
    EXPECT_EQ(rowOfValue(5, 0, 5, 100, 100), 0);
    EXPECT_EQ(rowOfValue(2.5, 0, 5, 100, 100), 50);
    EXPECT_EQ(rowOfValue(0, 0, 5, 100, 100), 100);
    EXPECT_EQ(rowOfValue(0.04, 0, 5, 100, 100), 100);
    EXPECT_EQ(rowOfValue(4.99, 0, 5, 100, 100), 1);
    EXPECT_EQ(rowOfValue(5, 10, 0, 100, 100), 50);
}

TEST(GraphScale, WhatCannotBePlacedIsAtTheTop)
{
    EXPECT_EQ(rowOfValue(6, 0, 5, 100, 100), 0);
    EXPECT_EQ(rowOfValue(-1, 0, 5, 100, 100), 0);
    EXPECT_EQ(rowOfValue(6, 6, 6, 100, 100), 0);
    EXPECT_EQ(rowOfValue(7, 6, 6, 100, 100), 0);
    EXPECT_EQ(rowOfValue(std::numeric_limits<int>::max(), 0, 1, 32000, 32000), 0);
    EXPECT_EQ(rowOfValue(std::numeric_limits<int>::min(), 0, 1, 32000, 32000), 0);
}

TEST(GraphScale, RowsStandForValues)
{
    EXPECT_EQ(valueAtRow(0, 0, 5, 100), 5.0);
    EXPECT_EQ(valueAtRow(50, 0, 5, 100), 2.5);
    EXPECT_EQ(valueAtRow(100, 0, 5, 100), 0.0);
    EXPECT_DOUBLE_EQ(valueAtRow(101, 0, 5, 100), -0.05);
}
