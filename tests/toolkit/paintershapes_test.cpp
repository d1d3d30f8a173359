// Polygons and round shapes.
#include "sheet.h"

#include <gtest/gtest.h>
#include <qpointarray.h>

namespace
{

QPointArray triangle()
{
    QPointArray points;
    points.setPoints(3, 1, 1, 7, 1, 1, 7);
    return points;
}

} // namespace

TEST(PainterPolygons, AreOutlinedAndFilled)
{
    Sheet sheet(9, 9);
    sheet.painter.setBrush(Qt::yellow);
    sheet.painter.drawPolygon(triangle());
    EXPECT_EQ(R"(
.........
.#######.
.#yyyy#..
.#yyy#...
.#yy#....
.#y#.....
.##......
.#.......
.........
)",
              sheet.drawing());
}

TEST(PainterPolygons, WithoutBrushAreOutlinesOnly)
{
    Sheet sheet(9, 9);
    sheet.painter.drawPolygon(triangle());
    const Pixels pixels = sheet.pixels();
    EXPECT_EQ(0u, pixels.at(1, 4));
    EXPECT_EQ(0xffffffu, pixels.at(2, 3));
}

TEST(PainterPolygons, ThatCrossThemselvesAreFilledByTheirRule)
{
    QPointArray star;
    star.setPoints(5, 20, 1, 32, 37, 1, 14, 39, 14, 8, 37);
    for (int winding = 0; winding < 2; ++winding) {
        Sheet sheet(40, 40);
        sheet.painter.setPen(Qt::NoPen);
        sheet.painter.setBrush(Qt::yellow);
        sheet.painter.drawPolygon(star, winding);
        const Pixels pixels = sheet.pixels();
        EXPECT_EQ(winding ? 0xffff00u : 0xffffffu, pixels.at(20, 20));
        EXPECT_EQ(0xffff00u, pixels.at(20, 8));
    }
}

TEST(PainterPolygons, ConvexOnesLookLikeOthers)
{
    Sheet one(9, 9);
    Sheet other(9, 9);
    one.painter.setBrush(Qt::yellow);
    other.painter.setBrush(Qt::yellow);
    one.painter.drawPolygon(triangle());
    other.painter.drawConvexPolygon(triangle());
    EXPECT_EQ(one.drawing(), other.drawing());
}

TEST(PainterEllipses, TouchTheirRectangle)
{
    Sheet sheet(32, 22);
    sheet.painter.setBrush(Qt::yellow);
    sheet.painter.drawEllipse(1, 1, 30, 20);
    const Pixels pixels = sheet.pixels();
    EXPECT_EQ(0u, pixels.at(1, 10));
    EXPECT_EQ(0u, pixels.at(30, 10));
    EXPECT_EQ(0u, pixels.at(15, 1));
    EXPECT_EQ(0u, pixels.at(15, 20));
    EXPECT_EQ(0xffff00u, pixels.at(15, 10));
    EXPECT_EQ(0xffffffu, pixels.at(1, 1));
    EXPECT_EQ(0xffffffu, pixels.at(0, 10));
    EXPECT_EQ(0xffffffu, pixels.at(31, 10));
}

TEST(PainterArcs, GoCounterClockwiseFromTheRight)
{
    Sheet sheet(30, 30);
    sheet.painter.drawArc(0, 0, 30, 30, 0, 90 * 16);
    const Pixels pixels = sheet.pixels();
    EXPECT_EQ(0u, pixels.at(29, 14));
    EXPECT_EQ(0u, pixels.at(15, 0));
    EXPECT_EQ(0xffffffu, pixels.at(0, 14));
    EXPECT_EQ(0xffffffu, pixels.at(14, 29));
}

TEST(PainterPies, AreFilledToTheCentre)
{
    Sheet sheet(40, 40);
    sheet.painter.setBrush(Qt::yellow);
    sheet.painter.drawPie(0, 0, 40, 40, 45 * 16, 90 * 16);
    const Pixels pixels = sheet.pixels();
    EXPECT_EQ(0xffff00u, pixels.at(20, 8));
    EXPECT_EQ(0u, pixels.at(20, 20));
    EXPECT_EQ(0xffffffu, pixels.at(20, 30));
    EXPECT_EQ(0xffffffu, pixels.at(4, 20));
}

TEST(PainterChords, AreFilledToTheLineBetweenTheirEnds)
{
    Sheet sheet(40, 40);
    sheet.painter.setBrush(Qt::yellow);
    sheet.painter.drawChord(0, 0, 40, 40, 0, 90 * 16);
    const Pixels pixels = sheet.pixels();
    EXPECT_EQ(0xffff00u, pixels.at(32, 8));
    EXPECT_EQ(0xffffffu, pixels.at(22, 18));
}

TEST(PainterRoundRects, LeaveTheCornersOut)
{
    Sheet sheet(40, 30);
    sheet.painter.setBrush(Qt::yellow);
    sheet.painter.drawRoundRect(0, 0, 40, 30, 30, 30);
    const Pixels pixels = sheet.pixels();
    const int corners[4][2] = {{0, 0}, {39, 0}, {0, 29}, {39, 29}};
    for (const auto& corner : corners)
        EXPECT_EQ(0xffffffu, pixels.at(corner[0], corner[1]));
    for (int x = 6; x < 34; ++x) {
        EXPECT_EQ(0u, pixels.at(x, 0)) << x;
        EXPECT_EQ(0u, pixels.at(x, 29)) << x;
        EXPECT_EQ(0xffff00u, pixels.at(x, 1)) << x;
    }
    EXPECT_EQ(0xffff00u, pixels.at(20, 15));
}

TEST(PainterRoundRects, WithoutRoundnessAreRectangles)
{
    Sheet round(10, 8);
    Sheet plain(10, 8);
    round.painter.drawRoundRect(1, 1, 8, 6, 0, 0);
    plain.painter.drawRect(1, 1, 8, 6);
    EXPECT_EQ(plain.drawing(), round.drawing());
}

TEST(PainterFocusRects, AreDotted)
{
    Sheet sheet(8, 6);
    sheet.painter.drawWinFocusRect(1, 1, 6, 4);
    EXPECT_EQ(R"(
........
.#.#.#..
.#....#.
........
.#.#.#..
........
)",
              sheet.drawing());
}

TEST(PainterFocusRects, AreLightOnDark)
{
    Sheet sheet(8, 6);
    sheet.painter.fillRect(0, 0, 8, 6, Qt::blue);
    sheet.painter.drawWinFocusRect(QRect(1, 1, 6, 4), Qt::blue);
    EXPECT_EQ(0xffffffu, sheet.pixels().at(1, 1));
}
