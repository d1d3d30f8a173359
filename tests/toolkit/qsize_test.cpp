// Sizes.
#include "printers.h"

#include <gtest/gtest.h>
#include <qsize.h>

TEST(Size, MayBeNullEmptyOrInvalid)
{
    const struct {
        QSize size;
        bool null, empty, valid;
    } cases[] = {
        {QSize(), false, true, false},      {QSize(0, 0), true, true, true},
        {QSize(-1, 5), false, true, false}, {QSize(0, 5), false, true, true},
        {QSize(4, 5), false, false, true},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(each.null, each.size.isNull());
        EXPECT_EQ(each.empty, each.size.isEmpty());
        EXPECT_EQ(each.valid, each.size.isValid());
    }
    EXPECT_EQ(QSize(-1, -1), QSize());
}

TEST(Size, Arithmetic)
{
    const QSize a(10, 20), b(30, 5);
    EXPECT_EQ(QSize(40, 25), a + b);
    EXPECT_EQ(QSize(-20, 15), a - b);
    EXPECT_EQ(QSize(20, 40), a * 2);
    EXPECT_EQ(QSize(5, 11), a * 0.55);
    EXPECT_EQ(QSize(3, 6), a / 3);
    EXPECT_EQ(QSize(30, 20), a.expandedTo(b));
    EXPECT_EQ(QSize(10, 5), a.boundedTo(b));
    QSize turned(a);
    turned.transpose();
    EXPECT_EQ(QSize(20, 10), turned);
}

TEST(Size, ScalingKeepsTheProportions)
{
    const struct {
        QSize size, into;
        QSize::ScaleMode mode;
        QSize expected;
    } cases[] = {
        {QSize(100, 50), QSize(30, 30), QSize::ScaleMin, QSize(30, 15)},
        {QSize(100, 50), QSize(30, 30), QSize::ScaleMax, QSize(60, 30)},
        {QSize(100, 50), QSize(7, 9), QSize::ScaleFree, QSize(7, 9)},
        {QSize(50, 100), QSize(30, 30), QSize::ScaleMin, QSize(15, 30)},
        {QSize(50, 100), QSize(30, 30), QSize::ScaleMax, QSize(30, 60)},
        {QSize(30000, 20000), QSize(300000, 400000), QSize::ScaleMin, QSize(300000, 200000)},
        {QSize(0, 20), QSize(5, 6), QSize::ScaleMin, QSize(5, 6)},
    };
    for (const auto& each : cases) {
        QSize size(each.size);
        size.scale(each.into, each.mode);
        EXPECT_EQ(each.expected, size) << each.size.width() << 'x' << each.size.height() << ' ' << each.mode;
    }
}

TEST(Size, GoesRoundAtTheEndsOfInt)
{
    const int least = -2147483647 - 1;
    const int most = 2147483647;
    EXPECT_EQ(QSize(least, most), QSize(most, least) + QSize(1, -1));
    EXPECT_EQ(QSize(most, least), QSize(least, most) - QSize(1, -1));
    EXPECT_EQ(QSize(-2, 0), QSize(most, least) * 2);
}
