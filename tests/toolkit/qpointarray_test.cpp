// Arrays of points.
#include "messages.h"
#include "printers.h"

#include <gtest/gtest.h>
#include <qpointarray.h>

#include <cmath>
#include <limits>

namespace
{

std::string shown(const QPointArray& points)
{
    std::string text;
    for (uint i = 0; i < points.size(); ++i)
        text +=
            (i ? " " : "") + std::to_string(points.point(i).x()) + ',' + std::to_string(points.point(i).y());
    return text;
}

} // namespace

TEST(PointArray, Filling)
{
    QPointArray points;
    EXPECT_TRUE(points.isNull());
    points.resize(2);
    points.setPoint(0, 1, 2);
    points.setPoint(1, QPoint(3, 4));
    EXPECT_EQ("1,2 3,4", shown(points));
    EXPECT_TRUE(points.putPoints(1, 3, 10, 11, 12, 13, -5, 15));
    EXPECT_EQ("1,2 10,11 12,13 -5,15", shown(points)) << "grows as needed";
    EXPECT_EQ(QRect(-5, 2, 18, 14), points.boundingRect());
    EXPECT_TRUE(points.setPoints(2, 7, 8, 9, 10));
    EXPECT_EQ("7,8 9,10", shown(points)) << "shrinks as well";
    const QCOORD raw[] = {1, 2, 3, 4};
    EXPECT_EQ("1,2 3,4", shown(QPointArray(2, raw)));
    EXPECT_TRUE(points.putPoints(1, 2, raw));
    EXPECT_EQ("7,8 1,2 3,4", shown(points));
    QPointArray other;
    EXPECT_TRUE(other.putPoints(0, 2, points, 1));
    EXPECT_EQ("1,2 3,4", shown(other));
    int x, y;
    points.point(2, &x, &y);
    EXPECT_EQ(QPoint(3, 4), QPoint(x, y));
}

TEST(PointArray, CopiesChangeTogether)
{
    QPointArray points;
    points.setPoints(2, 7, 8, 9, 10);
    QPointArray same = points, own = points.copy();
    same.translate(1, -1);
    EXPECT_EQ("8,7 10,9", shown(points));
    EXPECT_EQ("7,8 9,10", shown(own));
    EXPECT_TRUE(points == same);
    EXPECT_TRUE(points != own);
}

TEST(PointArray, OfARectangle)
{
    EXPECT_EQ("1,2 3,2 3,5 1,5", shown(QPointArray(QRect(1, 2, 3, 4))));
    EXPECT_EQ("1,2 3,2 3,5 1,5 1,2", shown(QPointArray(QRect(1, 2, 3, 4), true)));
    EXPECT_EQ(QRect(0, 0, 0, 0), QPointArray().boundingRect());
}

TEST(PointArray, EllipsesLieInTheirRectangle)
{
    QPointArray points;
    points.makeEllipse(10, 20, 41, 21);
    EXPECT_EQ(QRect(10, 20, 41, 21), points.boundingRect());
    for (uint i = 0; i < points.size(); ++i) {
        const double x = (points.point(i).x() - 30) / 20.0, y = (points.point(i).y() - 30) / 10.0;
        EXPECT_NEAR(1.0, std::sqrt(x * x + y * y), 0.1);
    }
}

TEST(PointArray, ArcsRunAgainstTheClockFromThreeOClock)
{
    QPointArray points;
    points.makeArc(0, 0, 101, 101, 0, 90 * 16);
    EXPECT_EQ(QPoint(100, 50), points.point(0));
    EXPECT_EQ(QPoint(50, 0), points.point(points.size() - 1));
}

TEST(PointArray, CurvesBeginAndEndAtTheOuterControlPoints)
{
    QPointArray control;
    control.setPoints(4, 0, 0, 0, 100, 100, 100, 100, 0);
    const QPointArray curve = control.cubicBezier();
    EXPECT_EQ(QPoint(0, 0), curve.point(0));
    EXPECT_EQ(QPoint(100, 0), curve.point(curve.size() - 1));
    EXPECT_EQ(75, curve.boundingRect().bottom()) << "three quarters of the way to the inner ones";
    control.resize(3);
    EXPECT_TRUE(control.cubicBezier().isEmpty());
    EXPECT_NE("", takeMessages());
}

TEST(PointArray, CurvesLargerThanAnyDeviceHaveAnEnd)
{
    constexpr int least = std::numeric_limits<int>::min();
    constexpr int most = std::numeric_limits<int>::max();
    QPointArray arc;
    arc.makeArc(0, 0, most, most, 0, 16 * 360);
    EXPECT_LE(arc.size(), 65537u);
    EXPECT_EQ(QPoint(most - 1, most / 2), arc.point(0));
    arc.makeArc(5, 5, least, least, 0, most);
    EXPECT_EQ(3u, arc.size());
    QPointArray control;
    control.setPoints(4, least, least, most, most, least, most, most, 0);
    const QPointArray curve = control.cubicBezier();
    EXPECT_LE(curve.size(), 65537u);
    EXPECT_EQ(QPoint(least, least), curve.point(0));
    EXPECT_EQ(QPoint(most, 0), curve.point(curve.size() - 1));
}
