// Arithmetic and setters of geometry that are used less often.
#include "printers.h"

#include <gtest/gtest.h>
#include <qdatetime.h>
#include <qpointarray.h>
#include <qregion.h>
#include <qsizepolicy.h>
#include <qwmatrix.h>

TEST(GeometryForms, SizesAreAddedAndMultiplied)
{
    QSize size(10, 20);
    size += QSize(1, 2);
    EXPECT_EQ(QSize(11, 22), size);
    size -= QSize(1, 2);
    size *= 3;
    EXPECT_EQ(QSize(30, 60), size);
    size /= 2;
    EXPECT_EQ(QSize(15, 30), size);
    size *= 2.0;
    EXPECT_EQ(QSize(30, 60), size);
    size /= 0.5;
    EXPECT_EQ(QSize(60, 120), size);
    EXPECT_EQ(QSize(120, 240), 2 * size);
    EXPECT_EQ(QSize(30, 60), 0.5 * size);
    EXPECT_EQ(QSize(120, 240), size / 0.5);
    size.setWidth(3);
    size.setHeight(4);
    ++size.rwidth();
    --size.rheight();
    EXPECT_EQ(QSize(4, 3), size);
    EXPECT_TRUE(size != QSize(3, 4));
    EXPECT_EQ(QPoint(5, 10), 0.5 * QPoint(10, 20));
}

TEST(GeometryForms, RectanglesAreMovedByTheirEdges)
{
    QRect rect(QPoint(10, 20), QPoint(19, 29));
    rect.rRight() = 15;
    rect.rTop() = 25;
    EXPECT_EQ(QRect(QPoint(10, 25), QPoint(15, 29)), rect);
    rect.setBottomLeft(QPoint(8, 40));
    rect.setTopRight(QPoint(30, 5));
    EXPECT_EQ(QRect(QPoint(8, 5), QPoint(30, 40)), rect);
    EXPECT_TRUE(rect != QRect());
}

TEST(GeometryForms, MatricesMapEverything)
{
    QWMatrix matrix;
    matrix.setMatrix(2, 0, 0, 3, 10, 20);
    EXPECT_TRUE(matrix != QWMatrix());
    int x = 0;
    int y = 0;
    matrix.map(1, 1, &x, &y);
    EXPECT_EQ(QPoint(12, 23), QPoint(x, y));
    EXPECT_EQ(QPoint(12, 23), matrix * QPoint(1, 1));
    const QRegion region = QWMatrix(1, 0, 0, 1, 10, 20) * QRegion(0, 0, 2, 2);
    EXPECT_EQ(QRect(10, 20, 2, 2), region.boundingRect());
    QPointArray points(2);
    points.setPoint(0, 0, 0);
    points.setPoint(1, 1, 1);
    const QPointArray mapped = matrix * points;
    EXPECT_EQ(QPoint(10, 20), mapped.point(0));
    EXPECT_EQ(QPoint(12, 23), mapped.point(1));
    const QPointArray corners = matrix.mapToPolygon(QRect(0, 0, 2, 2));
    ASSERT_EQ(4u, corners.size());
    EXPECT_EQ(QPoint(10, 20), corners.point(0));
    EXPECT_EQ(QPoint(14, 26), corners.point(2));
}

TEST(GeometryForms, PointArraysTakePlainNumbers)
{
    const int coordinates[] = {1, 2, 3, 4};
    QPointArray points(5);
    EXPECT_EQ(5u, points.size());
    points.setPoints(2, coordinates);
    EXPECT_EQ(2u, points.size());
    QPointArray same;
    same = points;
    EXPECT_EQ(QPoint(3, 4), same.point(1));
}

TEST(GeometryForms, SizePoliciesAreSetByDirection)
{
    QSizePolicy policy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    policy.setVerData(QSizePolicy::Expanding);
    policy.setHorStretch(3);
    EXPECT_EQ(QSizePolicy::Expanding, policy.verData());
    EXPECT_EQ(QSizePolicy::Fixed, policy.horData());
    EXPECT_EQ(3u, policy.horStretch());
    EXPECT_TRUE(policy != QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
}

TEST(GeometryForms, TimesAreCompared)
{
    EXPECT_TRUE(QTime(10, 0) > QTime(9, 59));
    EXPECT_FALSE(QTime(9, 59) > QTime(9, 59));
}
