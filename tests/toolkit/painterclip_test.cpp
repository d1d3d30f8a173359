// What clipping lets through.
#include "sheet.h"

#include <gtest/gtest.h>

TEST(PainterClip, LetsOnlyItsInsideThrough)
{
    Sheet sheet(5, 4);
    sheet.painter.setClipRect(1, 1, 3, 2);
    EXPECT_TRUE(sheet.painter.hasClipping());
    sheet.painter.fillRect(0, 0, 5, 4, Qt::blue);
    EXPECT_EQ(R"(
.....
.bbb.
.bbb.
.....
)",
              sheet.drawing());
}

TEST(PainterClip, MayHaveSeveralParts)
{
    Sheet sheet(7, 2);
    sheet.painter.setClipRegion(QRegion(0, 0, 2, 2) | QRegion(5, 0, 2, 1));
    sheet.painter.fillRect(0, 0, 7, 2, Qt::blue);
    EXPECT_EQ(R"(
bb...bb
bb.....
)",
              sheet.drawing());
}

TEST(PainterClip, ThatIsEmptyLetsNothingThrough)
{
    Sheet sheet(4, 2);
    sheet.painter.setClipRegion(QRegion());
    sheet.painter.fillRect(0, 0, 4, 2, Qt::blue);
    EXPECT_EQ(8, sheet.pixels().count(0xffffff));
}

TEST(PainterClip, CanBeSwitchedOffAndOn)
{
    Sheet sheet(4, 3);
    sheet.painter.setClipRect(QRect(0, 0, 2, 3));
    sheet.painter.setClipping(false);
    sheet.painter.fillRect(0, 0, 4, 1, Qt::red);
    sheet.painter.setClipping(true);
    sheet.painter.fillRect(0, 1, 4, 1, Qt::red);
    EXPECT_EQ(R"(
rrrr
rr..
....
)",
              sheet.drawing());
}

TEST(PainterClip, StaysWhereItIsWhenTheCoordinatesMove)
{
    Sheet sheet(6, 1);
    sheet.painter.translate(2, 0);
    sheet.painter.setClipRect(QRect(0, 0, 3, 1));
    sheet.painter.fillRect(-6, 0, 12, 1, Qt::red);
    EXPECT_EQ("\nrrr...\n", sheet.drawing());
}

TEST(PainterClip, MayBeGivenInThePaintersCoordinates)
{
    Sheet sheet(6, 1);
    sheet.painter.translate(2, 0);
    sheet.painter.setClipRect(QRect(0, 0, 3, 1), QPainter::CoordPainter);
    sheet.painter.fillRect(-6, 0, 12, 1, Qt::red);
    EXPECT_EQ(QRect(2, 0, 3, 1), sheet.painter.clipRegion().boundingRect());
    EXPECT_EQ(QRect(0, 0, 3, 1), sheet.painter.clipRegion(QPainter::CoordPainter).boundingRect());
    EXPECT_EQ("\n..rrr.\n", sheet.drawing());
}

TEST(PainterClip, IsSavedAndRestored)
{
    Sheet sheet(4, 1);
    sheet.painter.setClipRect(QRect(0, 0, 3, 1));
    sheet.painter.save();
    sheet.painter.setClipRect(QRect(0, 0, 1, 1));
    sheet.painter.restore();
    sheet.painter.fillRect(0, 0, 4, 1, Qt::red);
    EXPECT_EQ("\nrrr.\n", sheet.drawing());
}

TEST(PainterClip, CutsTextAndPixmaps)
{
    QPixmap blue(4, 1);
    blue.fill(Qt::blue);
    Sheet sheet(4, 1);
    sheet.painter.setClipRect(QRect(1, 0, 2, 1));
    sheet.painter.drawPixmap(0, 0, blue);
    EXPECT_EQ("\n.bb.\n", sheet.drawing());
    Sheet text(60, 20);
    text.painter.setClipRect(QRect(0, 0, 60, 8));
    text.painter.drawText(2, 15, "HHHH");
    const Pixels pixels = text.pixels();
    EXPECT_LT(pixels.part(0, 0, 60, 8).count(0xffffff), 60 * 8);
    EXPECT_EQ(60 * 12, pixels.part(0, 8, 60, 12).count(0xffffff));
}
