// Drawing with numbers that make no sense, or that no device has room for.
#include "messages.h"
#include "sheet.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qbitmap.h>

#include <limits>

namespace
{

constexpr int least = std::numeric_limits<int>::min();
constexpr int most = std::numeric_limits<int>::max();

QPointArray triangle()
{
    QPointArray points;
    points.setPoints(3, 0, 0, 5, 0, 5, 5);
    return points;
}

} // namespace

TEST(PainterLimits, APatternThatWasNeverGivenIsSolid)
{
    Sheet sheet(4, 3);
    sheet.painter.setPen(Qt::NoPen);
    sheet.painter.setBrush(QBrush(Qt::red));
    QBrush brush(Qt::red);
    brush.setStyle(Qt::CustomPattern);
    EXPECT_NE("", takeMessages());
    sheet.painter.setBrush(brush);
    sheet.painter.drawRect(0, 0, 2, 2);
    sheet.painter.fillRect(3, 0, 1, 3, brush);
    EXPECT_EQ(R"(
rr.r
rr.r
...r
)",
              sheet.drawing());
    EXPECT_EQ("", takeMessages());
}

TEST(PainterLimits, PartsOfArraysEndWithTheArray)
{
    Sheet sheet(8, 8);
    const QPointArray points = triangle();
    EXPECT_EQ(0u, sheet.painter.xForm(points, 10, -1).size());
    EXPECT_EQ(0u, sheet.painter.xFormDev(points, 3, 5).size());
    EXPECT_EQ(2u, sheet.painter.xForm(points, -3, 2).size());
    EXPECT_EQ(2u, sheet.painter.xForm(points, 1, most).size());
    sheet.painter.drawPoints(points, 2, most);
    sheet.painter.drawLineSegments(points, 1, most);
    sheet.painter.drawPolyline(points, most, most);
    sheet.painter.drawPolygon(points, false, least, 1);
    EXPECT_EQ(6, sheet.pixels().count(0x000000)) << "a line of six pixels, on which the point is";
}

TEST(PainterLimits, CurvesNeedFourPointsFromTheirIndexOn)
{
    Sheet sheet(8, 8);
    QPointArray points(4);
    for (const int index : {-1, 1, least, most}) {
        sheet.painter.drawCubicBezier(points, index);
        EXPECT_EQ("QPainter::drawCubicBezier: Cubic Bezier needs 4 control points\n", takeMessages())
            << index;
    }
}

TEST(PainterLimits, ShapesMayBeLargerThanAnyDevice)
{
    Sheet sheet(8, 8);
    QPainter& painter = sheet.painter;
    painter.setBrush(Qt::red);
    const int extents[] = {least + 1, -100000, 100000, most};
    for (const int extent : extents) {
        painter.drawRect(0, 0, extent, extent);
        painter.drawEllipse(0, 0, extent, extent);
        painter.drawArc(0, 0, extent, extent, 0, most);
        painter.drawPie(0, 0, extent, extent, 0, 5760);
        painter.drawChord(0, 0, extent, extent, 0, 5760);
        painter.drawRoundRect(0, 0, extent, extent);
        painter.drawWinFocusRect(0, 0, extent, extent);
    }
    painter.rotate(30);
    painter.drawEllipse(0, 0, 2000, 2000);
    painter.drawPie(0, 0, 2000, 2000, 0, 5760);
    QApplication::syncX();
    EXPECT_EQ("", takeMessages());
}

TEST(PainterLimits, PensMayBeWiderThanAnyDevice)
{
    for (const uint width : {0x40000000u, 0x80000000u, 0xffffffffu}) {
        Sheet sheet(300, 8);
        sheet.painter.setPen(QPen(Qt::black, width, Qt::DashLine));
        sheet.painter.drawLine(0, 0, 300, 0);
        QApplication::syncX();
        EXPECT_EQ("", takeMessages()) << width;
    }
}

TEST(PainterLimits, DashesGrowAsLongAsTheServerHasThem)
{
    Sheet sheet(300, 1);
    sheet.painter.setPen(QPen(Qt::black, 50, Qt::DashLine));
    sheet.painter.drawLine(0, 0, 300, 0);
    const Pixels pixels = sheet.pixels();
    EXPECT_EQ(0x000000u, pixels.at(149, 0));
    EXPECT_EQ(0xffffffu, pixels.at(150, 0));
    EXPECT_EQ(0xffffffu, pixels.at(199, 0));
    EXPECT_EQ(0x000000u, pixels.at(200, 0));
}

TEST(PainterLimits, InvertedTextMayBeLongerThanAnyDevice)
{
    QString text;
    text.fill('x', 30000);
    Sheet all(60, 20), beginning(60, 20);
    for (Sheet* sheet : {&all, &beginning}) {
        sheet->painter.setRasterOp(Qt::NotROP);
        sheet->painter.drawText(2, 15, text, sheet == &all ? -1 : 50);
    }
    EXPECT_EQ(beginning.pixels(), all.pixels());
    EXPECT_EQ("", takeMessages());
    Sheet outside(60, 20);
    outside.painter.setRasterOp(Qt::NotROP);
    outside.painter.drawText(2, 2000, text);
    EXPECT_EQ(60 * 20, outside.pixels().count(0xffffff));
}

TEST(PainterLimits, PartsOfPixmapsEndWithThePixmap)
{
    QPixmap red(2, 2);
    red.fill(Qt::red);
    Sheet sheet(6, 2);
    sheet.painter.drawPixmap(0, 0, red, most, most);
    sheet.painter.drawPixmap(0, 0, red, 1, 1, most, most);
    sheet.painter.drawPixmap(4, 0, red, 0, 0, most, 1);
    bitBlt(&sheet.pixmap, 2, 1, &red, most, most);
    EXPECT_EQ(R"(
r...rr
......
)",
              sheet.drawing());
}

TEST(PainterTiles, GoOnBeforeTheirFirstOne)
{
    QBitmap corner(3, 2, true);
    QPainter(&corner).drawPoint(2, 1);
    Sheet sheet(6, 3);
    sheet.painter.drawTiledPixmap(0, 0, 6, 3, corner, -1, -1);
    EXPECT_EQ(R"(
#..#..
......
#..#..
)",
              sheet.drawing());
}
