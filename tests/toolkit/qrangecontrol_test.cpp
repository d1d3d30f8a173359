// QRangeControl: a value within its limits.
#include "messages.h"

#include <gtest/gtest.h>
#include <qrangecontrol.h>

#include <climits>

namespace
{

class Range : public QRangeControl
{
public:
    Range(int min, int max, int line, int page, int value) : QRangeControl(min, max, line, page, value) {}
    using QRangeControl::prevValue;
    int position(int value, int space) const { return positionFromValue(value, space); }
    int valueAt(int pos, int space) const { return valueFromPosition(pos, space); }

    int values = 0, ranges = 0, steps = 0;

protected:
    void valueChange() override { ++values; }
    void rangeChange() override { ++ranges; }
    void stepChange() override { ++steps; }
};

} // namespace

TEST(RangeControl, KeepsTheValueWithinTheRange)
{
    Range range(5, 50, 2, 9, 77);
    EXPECT_EQ(range.value(), 50);
    range.setValue(-100);
    EXPECT_EQ(range.value(), 5);
    range.setRange(20, 30);
    EXPECT_EQ(range.value(), 20);
    EXPECT_EQ(range.bound(99), 30);
}

TEST(RangeControl, StepsByLinesAndPages)
{
    Range range(0, 100, 5, 20, 50);
    range.addLine();
    EXPECT_EQ(range.value(), 55);
    range.subtractPage();
    EXPECT_EQ(range.value(), 35);
    range.addPage();
    range.subtractLine();
    EXPECT_EQ(range.value(), 50);
    for (int i = 0; i < 9; ++i)
        range.addPage();
    EXPECT_EQ(range.value(), 100);
}

TEST(RangeControl, DoesNotRunOverAtTheEndsOfInt)
{
    Range range(-2147483647 - 1, 2147483647, 1, 10, 2147483640);
    range.addPage();
    EXPECT_EQ(range.value(), 2147483647);
    EXPECT_EQ(range.position(2147483647, 100), 100);
    EXPECT_EQ(range.valueAt(100, 100), 2147483647);
    EXPECT_EQ(range.position(2147483647, 2147483647), 2147483647);
    EXPECT_EQ(range.valueAt(2147483646, 2147483647), 2147483645);
}

TEST(RangeControl, StartsWithAPreviousValueBelowItsRange)
{
    EXPECT_EQ(Range(3, 9, 1, 1, 5).prevValue(), 2);
    EXPECT_EQ(Range(INT_MIN, INT_MAX, 1, 1, 0).prevValue(), INT_MAX);
}

TEST(RangeControl, TakesStepsOfAnySize)
{
    Range range(INT_MIN, INT_MAX, INT_MIN, INT_MIN, -5);
    EXPECT_EQ(range.lineStep(), INT_MAX);
    EXPECT_EQ(range.pageStep(), INT_MAX);
    range.addPage();
    EXPECT_EQ(range.value(), INT_MAX - 5);
    range.setSteps(-3, INT_MIN);
    EXPECT_EQ(range.lineStep(), 3);
    EXPECT_EQ(range.pageStep(), INT_MAX);
}

TEST(RangeControl, TellsOnlyOfChanges)
{
    Range range(0, 10, 1, 3, 5);
    range.setValue(5);
    range.setRange(0, 10);
    range.setSteps(1, 3);
    EXPECT_EQ(range.values + range.ranges + range.steps, 0);
    range.setRange(7, 10);
    EXPECT_EQ(range.ranges, 1);
    EXPECT_EQ(range.values, 1);
    range.setSteps(-2, 0);
    EXPECT_EQ(range.steps, 1);
    EXPECT_EQ(range.lineStep(), 2);
    EXPECT_EQ(range.pageStep(), 0);
}

TEST(RangeControl, TheLimitsPushEachOther)
{
    Range range(0, 100, 1, 10, 50);
    range.setMaxValue(-5);
    EXPECT_EQ(range.minValue(), -5);
    EXPECT_EQ(range.value(), -5);
    range.setMinValue(8);
    EXPECT_EQ(range.maxValue(), 8);
}

TEST(RangeControl, PlacesAreRoundedToTheNearest)
{
    const Range range(0, 100, 1, 10, 0);
    EXPECT_EQ(range.position(30, 144), 43);
    EXPECT_EQ(range.position(40, 144), 58);
    EXPECT_EQ(range.valueAt(132, 144), 92);
    EXPECT_EQ(range.valueAt(-3, 144), 0);
    EXPECT_EQ(range.valueAt(500, 144), 100);
}
