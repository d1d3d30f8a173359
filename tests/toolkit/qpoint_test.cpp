// Points.
#include "printers.h"

#include <gtest/gtest.h>
#include <qpoint.h>

TEST(Point, Arithmetic)
{
    const QPoint a(3, -4), b(10, 20);
    const struct {
        const char* what;
        QPoint result, expected;
    } cases[] = {
        {"default", QPoint(), QPoint(0, 0)},
        {"sum", a + b, QPoint(13, 16)},
        {"difference", a - b, QPoint(-7, -24)},
        {"negative", -a, QPoint(-3, 4)},
        {"times", a * 3, QPoint(9, -12)},
        {"times before", 3 * a, QPoint(9, -12)},
        {"times a fraction", a * 1.5, QPoint(4, -6)},
        {"divided", b / 3, QPoint(3, 6)},
        {"divided by a fraction", a / 2.0, QPoint(1, -2)},
    };
    for (const auto& each : cases)
        EXPECT_EQ(each.expected, each.result) << each.what;
    EXPECT_EQ(7, a.manhattanLength());
    EXPECT_TRUE(QPoint().isNull());
    EXPECT_FALSE(a.isNull());
    EXPECT_TRUE(a != b);
}

TEST(Point, ChangesInPlace)
{
    QPoint p(3, -4);
    EXPECT_EQ(QPoint(13, 16), p += QPoint(10, 20));
    EXPECT_EQ(QPoint(12, 15), p -= QPoint(1, 1));
    EXPECT_EQ(QPoint(24, 30), p *= 2);
    EXPECT_EQ(QPoint(6, 7), p /= 4);
    EXPECT_EQ(QPoint(9, 10), p *= 1.5);
    EXPECT_EQ(QPoint(6, 6), p /= 1.5);
    p.rx() = 7;
    ++p.ry();
    EXPECT_EQ(QPoint(7, 7), p);
    p.setX(1);
    p.setY(2);
    EXPECT_EQ(QPoint(1, 2), p);
}

TEST(Point, GoesRoundAtTheEndsOfInt)
{
    const int least = -2147483647 - 1;
    const int most = 2147483647;
    EXPECT_EQ(QPoint(least, most), QPoint(most, least) + QPoint(1, -1));
    EXPECT_EQ(QPoint(most, least), QPoint(least, most) - QPoint(1, -1));
    EXPECT_EQ(QPoint(least, -most), -QPoint(least, most));
    EXPECT_EQ(QPoint(-2, 0), QPoint(most, least) * 2);
    EXPECT_EQ(-1, QPoint(least, most).manhattanLength());
}
