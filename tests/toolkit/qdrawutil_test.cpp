// Bevels and frames.
#include "sheet.h"

#include <gtest/gtest.h>
#include <qdrawutil.h>
#include <qpalette.h>

namespace
{

// Light white would not show on a white sheet, so the colours are told apart by name.
class Bevels : public testing::Test
{
protected:
    Bevels() : sheet(12, 8), fill(QColor(0, 255, 0))
    {
        group.setColor(QColorGroup::Light, QColor(250, 250, 250));
        group.setColor(QColorGroup::Midlight, QColor(220, 220, 220));
        group.setColor(QColorGroup::Button, QColor(190, 190, 190));
        group.setColor(QColorGroup::Mid, QColor(140, 140, 140));
        group.setColor(QColorGroup::Dark, QColor(90, 90, 90));
        group.setColor(QColorGroup::Shadow, QColor(10, 10, 10));
    }

    // L light, l midlight, B button, M mid, D dark, S shadow, g the fill.
    std::string drawing()
    {
        return '\n' + sheet.pixels().picture({{'.', 0xffffff},
                                              {'L', 0xfafafa},
                                              {'l', 0xdcdcdc},
                                              {'B', 0xbebebe},
                                              {'M', 0x8c8c8c},
                                              {'D', 0x5a5a5a},
                                              {'S', 0x0a0a0a},
                                              {'r', 0xff0000},
                                              {'g', 0x00ff00}});
    }

    QColorGroup group;
    Sheet sheet;
    QBrush fill;
};

} // namespace

TEST_F(Bevels, OfRaisedPanelsGiveTheCornersToTheShade)
{
    qDrawShadePanel(&sheet.painter, 1, 1, 10, 6, group, false, 2, &fill);
    EXPECT_EQ(R"(
............
.LLLLLLLLLD.
.LLLLLLLLDD.
.LLggggggDD.
.LLggggggDD.
.LDDDDDDDDD.
.DDDDDDDDDD.
............
)",
              drawing());
}

TEST_F(Bevels, OfSunkenPanelsAreTheOtherWayRound)
{
    qDrawShadePanel(&sheet.painter, QRect(1, 1, 10, 6), group, true, 1);
    EXPECT_EQ(R"(
............
.DDDDDDDDDL.
.D........L.
.D........L.
.D........L.
.D........L.
.LLLLLLLLLL.
............
)",
              drawing());
}

TEST_F(Bevels, OfPanelsTooSmallForTheirLinesRunOverTheEdge)
{
    qDrawShadePanel(&sheet.painter, 1, 2, 4, 4, group, false, 3);
    qDrawShadePanel(&sheet.painter, 7, 3, 3, 3, group, false, 3);
    EXPECT_EQ(R"(
............
............
.LDDD..DDD..
.LDDD..DDD..
.LDDD..DDD..
.DDDD.LDDD..
.......L....
............
)",
              drawing());
}

TEST_F(Bevels, OfTheSmallestWindowsPanelsAreDark)
{
    qDrawWinPanel(&sheet.painter, 1, 1, 2, 2, group, false);
    qDrawWinPanel(&sheet.painter, 4, 1, 1, 1, group, false);
    qDrawWinPanel(&sheet.painter, 6, 1, 3, 3, group, false);
    EXPECT_EQ(R"(
............
..S...LLS...
.SS...L.S...
......SSS...
............
............
............
............
)",
              drawing());
}

TEST_F(Bevels, AvoidTheColourOfTheFill)
{
    const QBrush light(group.light());
    qDrawShadePanel(&sheet.painter, 1, 1, 10, 6, group, false, 1, &light);
    EXPECT_EQ(0xdcdcdcu, sheet.pixels().at(1, 1));
}

TEST_F(Bevels, OfGroovesAreTwoPixelsWide)
{
    qDrawShadeRect(&sheet.painter, 1, 1, 10, 6, group, true, 1, 0);
    EXPECT_EQ(R"(
............
.DDDDDDDDDL.
.DLLLLLLLDL.
.DL......DL.
.DL......DL.
.DDDDDDDDDL.
.LLLLLLLLLL.
............
)",
              drawing());
}

TEST_F(Bevels, MayHaveAMiddle)
{
    qDrawShadeRect(&sheet.painter, QRect(0, 0, 12, 8), group, false, 1, 1);
    EXPECT_EQ(R"(
LLLLLLLLLLLL
LMMMMMMMMMMD
LMDDDDDDDDMD
LMD......LMD
LMD......LMD
LMDLLLLLLLMD
LMMMMMMMMMMD
LDDDDDDDDDDD
)",
              drawing());
}

TEST_F(Bevels, OfFilledGroovesLoseTheirInnerHalf)
{
    qDrawShadeRect(&sheet.painter, QRect(1, 1, 10, 6), group, true, 1, 0, &fill);
    EXPECT_EQ(R"(
............
.DDDDDDDDDL.
.DggggggggL.
.DggggggggL.
.DggggggggL.
.DggggggggL.
.LLLLLLLLLL.
............
)",
              drawing());
}

TEST_F(Bevels, OfLinesRunHorizontallyAndVertically)
{
    qDrawShadeLine(&sheet.painter, 1, 2, 9, 2, group);
    EXPECT_EQ("DDDDDDDD\nLLLLLLLL\n",
              sheet.pixels().part(1, 1, 8, 2).picture({{'L', 0xfafafa}, {'D', 0x5a5a5a}}));
}

TEST_F(Bevels, OfWindowsPanelsUseFourColours)
{
    qDrawWinPanel(&sheet.painter, 1, 1, 10, 6, group, true, &fill);
    EXPECT_EQ(R"(
............
.DDDDDDDDDL.
.DSSSSSSSlL.
.DSgggggglL.
.DSgggggglL.
.DllllllllL.
.LLLLLLLLLL.
............
)",
              drawing());
}

TEST_F(Bevels, OfWindowsButtonsShine)
{
    qDrawWinButton(&sheet.painter, QRect(1, 1, 10, 6), group, false, &fill);
    EXPECT_EQ(R"(
............
.LLLLLLLLLS.
.LBBBBBBBDS.
.LBggggggDS.
.LBggggggDS.
.LDDDDDDDDS.
.SSSSSSSSSS.
............
)",
              drawing());
}

TEST_F(Bevels, MayBePlain)
{
    qDrawPlainRect(&sheet.painter, 1, 1, 10, 6, Qt::red, 2, &fill);
    EXPECT_EQ(R"(
............
.rrrrrrrrrr.
.rrrrrrrrrr.
.rrggggggrr.
.rrggggggrr.
.rrrrrrrrrr.
.rrrrrrrrrr.
............
)",
              drawing());
}

TEST_F(Bevels, LeavePenAndBrushAsTheyWere)
{
    sheet.painter.setPen(QPen(Qt::red, 3));
    sheet.painter.setBrush(Qt::yellow);
    qDrawShadePanel(&sheet.painter, 1, 1, 10, 6, group, false, 1, &fill);
    qDrawShadeRect(&sheet.painter, 1, 1, 10, 6, group);
    qDrawShadeLine(&sheet.painter, 1, 2, 9, 2, group);
    qDrawWinPanel(&sheet.painter, 1, 1, 10, 6, group);
    qDrawPlainRect(&sheet.painter, 1, 1, 10, 6, Qt::blue);
    EXPECT_EQ(QPen(Qt::red, 3), sheet.painter.pen());
    EXPECT_EQ(Qt::yellow, sheet.painter.brush().color());
}
