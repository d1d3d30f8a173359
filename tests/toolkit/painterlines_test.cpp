// Lines, points and the pens that draw them.
#include "messages.h"
#include "sheet.h"

#include <gtest/gtest.h>
#include <qpointarray.h>

TEST(PainterLines, IncludeBothEnds)
{
    Sheet sheet(8, 4);
    sheet.painter.drawLine(1, 0, 6, 0);
    sheet.painter.drawLine(6, 2, 1, 2);
    sheet.painter.drawLine(0, 1, 0, 3);
    sheet.painter.drawLine(QPoint(7, 3), QPoint(7, 3));
    EXPECT_EQ(R"(
.######.
#.......
#######.
#......#
)",
              sheet.drawing());
}

TEST(PainterLines, GoDownDiagonals)
{
    Sheet sheet(4, 4);
    sheet.painter.drawLine(0, 0, 3, 3);
    EXPECT_EQ(R"(
#...
.#..
..#.
...#
)",
              sheet.drawing());
}

TEST(PainterLines, OutsideOfThePixmapAreCutOff)
{
    Sheet sheet(3, 3);
    sheet.painter.drawLine(-100, 1, 100, 1);
    EXPECT_EQ(R"(
...
###
...
)",
              sheet.drawing());
}

TEST(PainterLines, OfWidePensEndFlat)
{
    Sheet sheet(8, 5);
    sheet.painter.setPen(QPen(Qt::black, 3));
    sheet.painter.drawLine(2, 2, 6, 2);
    EXPECT_EQ(R"(
........
..####..
..####..
..####..
........
)",
              sheet.drawing());
}

TEST(PainterLines, WithSquareCapsReachFurther)
{
    Sheet sheet(10, 6);
    sheet.painter.setPen(QPen(Qt::black, 4, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    sheet.painter.drawLine(4, 3, 6, 3);
    EXPECT_EQ(R"(
..........
..######..
..######..
..######..
..######..
..........
)",
              sheet.drawing());
}

struct Dashes {
    Qt::PenStyle style;
    uint width;
    const char* row;
};

void PrintTo(const Dashes& dashes, std::ostream* out)
{
    *out << "pen style " << dashes.style << " width " << dashes.width;
}

class PainterDashes : public testing::TestWithParam<Dashes>
{
};

TEST_P(PainterDashes, FollowTheirPattern)
{
    Sheet sheet(48, 4);
    sheet.painter.setPen(QPen(Qt::black, GetParam().width, GetParam().style));
    sheet.painter.drawLine(0, 2, 48, 2);
    EXPECT_EQ(std::string(GetParam().row) + '\n',
              sheet.pixels().part(0, 2, 48, 1).picture({{'.', 0xffffff}, {'#', 0x000000}}));
}

INSTANTIATE_TEST_SUITE_P(
    Styles, PainterDashes,
    testing::Values(Dashes{Qt::NoPen, 0, "................................................"},
                    Dashes{Qt::SolidLine, 0, "################################################"},
                    Dashes{Qt::DashLine, 0, "##################......##################......"},
                    Dashes{Qt::DashLine, 1, "##################......##################......"},
                    Dashes{Qt::DashLine, 2, "######..######..######..######..######..######.."},
                    Dashes{Qt::DotLine, 0, "###...###...###...###...###...###...###...###..."},
                    Dashes{Qt::DotLine, 4, "####....####....####....####....####....####...."},
                    Dashes{Qt::DashDotLine, 0, "#########......###......#########......###......"},
                    Dashes{Qt::DashDotLine, 2, "######..##..######..##..######..##..######..##.."},
                    Dashes{Qt::DashDotDotLine, 0, "#########...###...###...#########...###...###..."},
                    Dashes{Qt::DashDotDotLine, 2, "######..##..##..######..##..##..######..##..##.."}));

TEST(PainterPoints, AreOnePixelWhateverThePen)
{
    Sheet sheet(5, 3);
    sheet.painter.drawPoint(0, 0);
    sheet.painter.setPen(QPen(Qt::red, 5));
    sheet.painter.drawPoint(QPoint(2, 1));
    QPointArray points;
    points.setPoints(3, 0, 2, 2, 2, 4, 2);
    sheet.painter.setPen(Qt::blue);
    sheet.painter.drawPoints(points, 1);
    EXPECT_EQ(R"(
#....
..r..
..b.b
)",
              sheet.drawing());
}

TEST(PainterPaths, ContinueWhereTheyStopped)
{
    Sheet sheet(5, 4);
    sheet.painter.moveTo(0, 0);
    sheet.painter.lineTo(4, 0);
    sheet.painter.lineTo(4, 3);
    EXPECT_EQ(QPoint(4, 3), sheet.painter.pos());
    EXPECT_EQ(R"(
#####
....#
....#
....#
)",
              sheet.drawing());
}

TEST(PainterPaths, TakePartsOfArrays)
{
    Sheet sheet(6, 4);
    QPointArray points;
    points.setPoints(4, 0, 0, 5, 0, 5, 3, 0, 3);
    sheet.painter.drawPolyline(points, 1, 2);
    EXPECT_EQ(R"(
.....#
.....#
.....#
.....#
)",
              sheet.drawing());
}

TEST(PainterPaths, LineSegmentsUsePairsAndLeaveAnOddPointOut)
{
    Sheet sheet(6, 3);
    QPointArray points;
    points.setPoints(5, 0, 0, 2, 0, 0, 2, 5, 2, 5, 0);
    sheet.painter.drawLineSegments(points);
    EXPECT_EQ(R"(
###...
......
######
)",
              sheet.drawing());
}

TEST(PainterPaths, CubicCurvesNeedFourPoints)
{
    Sheet sheet(20, 20);
    QPointArray points;
    points.setPoints(3, 0, 0, 10, 0, 19, 19);
    sheet.painter.drawCubicBezier(points);
    EXPECT_NE("", takeMessages());
    EXPECT_EQ(400, sheet.pixels().count(0xffffff));

    Sheet other(20, 20);
    points.setPoints(4, 0, 0, 10, 0, 10, 19, 19, 19);
    other.painter.drawCubicBezier(points);
    const Pixels pixels = other.pixels();
    EXPECT_EQ(0u, pixels.at(0, 0));
    EXPECT_EQ(0u, pixels.at(19, 19));
    EXPECT_EQ(0xffffffu, pixels.at(0, 19));
}
