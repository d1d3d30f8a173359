// Polygons and round shapes.
#include "sheet.h"

#include <gtest/gtest.h>
#include <qpointarray.h>

#include <vector>

namespace
{

QPointArray triangle()
{
    QPointArray points;
    points.setPoints(3, 1, 1, 7, 1, 1, 7);
    return points;
}

constexpr unsigned white = 0xffffff, black = 0, yellow = 0xffff00;

// What is drawn with a black pen and a yellow brush.
class Shape
{
public:
    Shape(int width, int height) : m_sheet(width, height) { m_sheet.painter.setBrush(Qt::yellow); }
    QPainter* operator->() { return &m_sheet.painter; }
    void has(unsigned color, const std::vector<QPoint>& places)
    {
        const Pixels pixels = m_sheet.pixels();
        for (const QPoint& place : places)
            EXPECT_EQ(color, pixels.at(place.x(), place.y())) << place.x() << "," << place.y();
    }

private:
    Sheet m_sheet;
};

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
    Shape ellipse(32, 22);
    ellipse->drawEllipse(1, 1, 30, 20);
    ellipse.has(black, {{1, 10}, {30, 10}, {15, 1}, {15, 20}});
    ellipse.has(yellow, {{15, 10}});
    ellipse.has(white, {{1, 1}, {0, 10}, {31, 10}});
}

TEST(PainterArcs, GoCounterClockwiseFromTheRight)
{
    Shape arc(30, 30);
    arc->drawArc(0, 0, 30, 30, 0, 90 * 16);
    arc.has(black, {{29, 14}, {15, 0}});
    arc.has(white, {{0, 14}, {14, 29}, {15, 15}});
}

TEST(PainterPies, AreFilledToTheCentre)
{
    Shape pie(40, 40);
    pie->drawPie(0, 0, 40, 40, 45 * 16, 90 * 16);
    pie.has(yellow, {{20, 8}});
    pie.has(black, {{20, 20}});
    pie.has(white, {{20, 30}, {4, 20}});
}

TEST(PainterChords, AreFilledToTheLineBetweenTheirEnds)
{
    Shape chord(40, 40);
    chord->drawChord(0, 0, 40, 40, 0, 90 * 16);
    chord.has(yellow, {{32, 8}});
    chord.has(white, {{22, 18}});
}

TEST(PainterRoundRects, LeaveTheCornersOut)
{
    Shape rect(40, 30);
    rect->drawRoundRect(0, 0, 40, 30, 30, 30);
    rect.has(white, {{0, 0}, {39, 0}, {0, 29}, {39, 29}});
    for (int x = 6; x < 34; ++x) {
        rect.has(black, {{x, 0}, {x, 29}});
        rect.has(yellow, {{x, 1}});
    }
    rect.has(yellow, {{20, 15}});
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
