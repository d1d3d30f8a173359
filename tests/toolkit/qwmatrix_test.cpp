// Transformations.
#include "printers.h"

#include <gtest/gtest.h>
#include <qwmatrix.h>

TEST(Matrix, IsTheIdentityAtFirst)
{
    QWMatrix matrix;
    EXPECT_TRUE(matrix.isIdentity());
    EXPECT_EQ(QPoint(3, 4), matrix.map(QPoint(3, 4)));
    matrix.translate(1, 0);
    EXPECT_FALSE(matrix.isIdentity());
    matrix.reset();
    EXPECT_TRUE(matrix == QWMatrix());
}

TEST(Matrix, LaterStepsActOnTheCoordinatesFirst)
{
    QWMatrix matrix;
    matrix.translate(10, 5);
    matrix.rotate(90);
    EXPECT_EQ(QPoint(6, 8), matrix.map(QPoint(3, 4)));
    matrix.scale(2, 3);
    EXPECT_EQ(QPoint(-2, 11), matrix.map(QPoint(3, 4)));
    bool invertible = false;
    EXPECT_EQ(QPoint(3, 4), matrix.invert(&invertible).map(matrix.map(QPoint(3, 4))));
    EXPECT_TRUE(invertible);
    EXPECT_TRUE(matrix.isInvertible());
    double x, y;
    matrix.map(1.5, 2.5, &x, &y);
    EXPECT_NEAR(2.5, x, 1e-9);
    EXPECT_NEAR(8.0, y, 1e-9);
    EXPECT_EQ(QPoint(6, 9), QWMatrix(1, 0.5, 0, 1, 2, 3).map(QPoint(4, 4)));
    EXPECT_EQ(QPoint(5, 12), QWMatrix().shear(1, 2).map(QPoint(2, 3)) + QPoint(0, 5));
}

TEST(Matrix, TurnsClockwise)
{
    const QPoint expected[] = {QPoint(100, 50),  QPoint(35, 106),   QPoint(-50, 100),
                               QPoint(-106, 35), QPoint(-100, -50), QPoint(-35, -106),
                               QPoint(50, -100), QPoint(106, -35),  QPoint(100, 50)};
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(expected[i], QWMatrix().rotate(45 * i).map(QPoint(100, 50))) << 45 * i << " degrees";
    EXPECT_TRUE(QWMatrix().rotate(90) == QWMatrix(0, 1, -1, 0, 0, 0)) << "quarter turns are exact";
    EXPECT_TRUE(QWMatrix().rotate(-90) == QWMatrix(0, -1, 1, 0, 0, 0));
}

TEST(Matrix, Rectangles)
{
    EXPECT_EQ(QRect(-19, 0, 20, 10), QWMatrix().rotate(90).mapRect(QRect(0, 0, 10, 20)));
    EXPECT_EQ(QRect(-6, 0, 13, 14), QWMatrix().rotate(45).mapRect(QRect(0, 0, 10, 10)));
    EXPECT_EQ(QRect(2, 2, 4, 4), QWMatrix().scale(1.5, 1.5).mapRect(QRect(1, 1, 3, 3)));
    EXPECT_EQ(QRect(11, 22, 3, 4), QWMatrix().translate(10, 20).map(QRect(1, 2, 3, 4)));
}

TEST(Matrix, Products)
{
    const QWMatrix move(1, 0, 0, 1, 5, 5), grow(2, 0, 0, 2, 0, 0);
    EXPECT_EQ(QRect(10, 10, 5, 5), (move * grow).mapRect(QRect(0, 0, 3, 3)));
    EXPECT_EQ(QPoint(12, 12), (move * grow).map(QPoint(1, 1)));
    EXPECT_EQ(QPoint(7, 7), (grow * move).map(QPoint(1, 1)));
    QWMatrix both(move);
    both *= grow;
    EXPECT_TRUE(both == move * grow);
}

TEST(Matrix, WithoutInverse)
{
    bool invertible = true;
    const QWMatrix flat(0, 0, 0, 0, 1, 1);
    EXPECT_TRUE(flat.invert(&invertible).isIdentity());
    EXPECT_FALSE(invertible);
    EXPECT_FALSE(flat.isInvertible());
}

TEST(Matrix, PolygonsAndRegions)
{
    QPointArray points;
    points.setPoints(2, 1, 2, 3, 4);
    const QPointArray moved = QWMatrix().translate(10, 20).map(points);
    EXPECT_EQ(QPoint(11, 22), moved.point(0));
    EXPECT_EQ(QPoint(1, 2), points.point(0)) << "the original stays";
    const QRegion region = QRegion(0, 0, 10, 10) | QRegion(20, 0, 10, 10);
    QRegion shifted(region);
    shifted.translate(3, 4);
    EXPECT_TRUE(QWMatrix().translate(3, 4).map(region) == shifted);
    EXPECT_TRUE(QWMatrix().map(region) == region);
    EXPECT_TRUE(QWMatrix().translate(1, 1) * QRect(0, 0, 5, 5) == QRegion(1, 1, 5, 5));
}
