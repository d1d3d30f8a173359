// Rectangles, filled and framed.
#include "sheet.h"

#include <gtest/gtest.h>

TEST(PainterRects, CoverExactlyTheirWidthAndHeight)
{
    Sheet sheet(7, 5);
    sheet.painter.drawRect(1, 1, 5, 3);
    EXPECT_EQ(R"(
.......
.#####.
.#...#.
.#####.
.......
)",
              sheet.drawing());
}

TEST(PainterRects, HoldTheirFillWithinTheOutline)
{
    Sheet sheet(7, 5);
    sheet.painter.setBrush(Qt::yellow);
    sheet.painter.drawRect(QRect(1, 1, 5, 3));
    EXPECT_EQ(R"(
.......
.#####.
.#yyy#.
.#####.
.......
)",
              sheet.drawing());
}

TEST(PainterRects, WithoutPenAreFilledToTheEdge)
{
    Sheet sheet(5, 4);
    sheet.painter.setPen(Qt::NoPen);
    sheet.painter.setBrush(Qt::yellow);
    sheet.painter.drawRect(1, 1, 3, 2);
    EXPECT_EQ(R"(
.....
.yyy.
.yyy.
.....
)",
              sheet.drawing());
}

TEST(PainterRects, WithoutWidthOrHeightAreNothing)
{
    Sheet sheet(6, 6);
    sheet.painter.setBrush(Qt::yellow);
    sheet.painter.drawRect(1, 1, 0, 4);
    sheet.painter.drawRect(1, 1, 4, 0);
    sheet.painter.fillRect(1, 1, 4, 0, Qt::red);
    EXPECT_EQ(36, sheet.pixels().count(0xffffff));
}

TEST(PainterRects, TwoPixelsWideAreAllOutline)
{
    Sheet sheet(4, 4);
    sheet.painter.setBrush(Qt::yellow);
    sheet.painter.drawRect(1, 1, 2, 2);
    EXPECT_EQ(R"(
....
.##.
.##.
....
)",
              sheet.drawing());
}

TEST(PainterRects, OfNegativeSizeLieOnTheOtherSide)
{
    Sheet there(12, 10);
    there.painter.drawRect(10, 8, -8, -6);
    Sheet here(12, 10);
    here.painter.drawRect(1, 1, 10, 8);
    EXPECT_EQ(here.drawing(), there.drawing());
}

TEST(PainterRects, OfWidePensStandOnTheOutlinesMiddle)
{
    Sheet sheet(9, 8);
    sheet.painter.setPen(QPen(Qt::red, 3));
    sheet.painter.drawRect(2, 2, 5, 4);
    EXPECT_EQ(R"(
.........
.rrrrrrr.
.rrrrrrr.
.rrrrrrr.
.rrrrrrr.
.rrrrrrr.
.rrrrrrr.
.........
)",
              sheet.drawing());
}

TEST(PainterFills, NeedNoPenAndLeaveItAlone)
{
    Sheet sheet(5, 4);
    sheet.painter.setPen(QPen(Qt::red, 5));
    sheet.painter.fillRect(1, 1, 3, 2, Qt::blue);
    EXPECT_EQ(Qt::red, sheet.painter.pen().color());
    EXPECT_EQ(R"(
.....
.bbb.
.bbb.
.....
)",
              sheet.drawing());
}

TEST(PainterFills, EraseWithTheBackground)
{
    Sheet sheet(4, 3);
    sheet.painter.fillRect(0, 0, 4, 3, Qt::blue);
    sheet.painter.setBackgroundColor(Qt::yellow);
    sheet.painter.eraseRect(1, 1, 2, 1);
    EXPECT_EQ(R"(
bbbb
byyb
bbbb
)",
              sheet.drawing());
}

struct Pattern {
    Qt::BrushStyle style;
    double least; // the share of pixels that the pattern covers
    double most;
};

void PrintTo(const Pattern& pattern, std::ostream* out)
{
    *out << "brush style " << pattern.style;
}

class PainterPatterns : public testing::TestWithParam<Pattern>
{
};

TEST_P(PainterPatterns, CoverTheirShare)
{
    Sheet sheet(48, 48);
    sheet.painter.fillRect(0, 0, 48, 48, QBrush(Qt::blue, GetParam().style));
    const Pixels pixels = sheet.pixels();
    const double share = pixels.count(0x0000ff) / (48.0 * 48.0);
    EXPECT_GE(share, GetParam().least);
    EXPECT_LE(share, GetParam().most);
    EXPECT_EQ(48 * 48, pixels.count(0x0000ff) + pixels.count(0xffffff));
}

INSTANTIATE_TEST_SUITE_P(
    Styles, PainterPatterns,
    testing::Values(Pattern{Qt::NoBrush, 0, 0}, Pattern{Qt::SolidPattern, 1, 1},
                    Pattern{Qt::Dense1Pattern, 0.8, 0.99}, Pattern{Qt::Dense4Pattern, 0.49, 0.51},
                    Pattern{Qt::Dense7Pattern, 0.01, 0.1}, Pattern{Qt::HorPattern, 0.1, 0.2},
                    Pattern{Qt::VerPattern, 0.1, 0.2}, Pattern{Qt::CrossPattern, 0.2, 0.35},
                    Pattern{Qt::BDiagPattern, 0.1, 0.2}, Pattern{Qt::FDiagPattern, 0.1, 0.2},
                    Pattern{Qt::DiagCrossPattern, 0.2, 0.3}));

TEST(PainterPatterns, MoveWithTheBrushOrigin)
{
    Sheet sheet(16, 8);
    sheet.painter.fillRect(0, 0, 8, 8, QBrush(Qt::blue, Qt::VerPattern));
    sheet.painter.setBrushOrigin(9, 0);
    sheet.painter.fillRect(8, 0, 8, 8, QBrush(Qt::blue, Qt::VerPattern));
    const Pixels pixels = sheet.pixels();
    for (int x = 0; x < 7; ++x)
        EXPECT_EQ(pixels.at(x, 3), pixels.at(x + 9, 3)) << x;
}

TEST(PainterPatterns, ShowTheBackgroundInOpaqueMode)
{
    Sheet sheet(16, 16);
    sheet.painter.setBackgroundColor(Qt::yellow);
    sheet.painter.setBackgroundMode(Qt::OpaqueMode);
    sheet.painter.fillRect(0, 0, 16, 16, QBrush(Qt::blue, Qt::Dense4Pattern));
    const Pixels pixels = sheet.pixels();
    EXPECT_EQ(128, pixels.count(0x0000ff));
    EXPECT_EQ(128, pixels.count(0xffff00));
}

TEST(PainterPatterns, MayBePixmaps)
{
    QPixmap tile(2, 1);
    tile.fill(Qt::red);
    {
        QPainter painter(&tile);
        painter.setPen(Qt::blue);
        painter.drawPoint(1, 0);
    }
    Sheet sheet(5, 2);
    sheet.painter.fillRect(0, 0, 5, 2, QBrush(Qt::black, tile));
    EXPECT_EQ(R"(
rbrbr
rbrbr
)",
              sheet.drawing());
}
