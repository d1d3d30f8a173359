// Moved, scaled and turned coordinates.
#include "messages.h"
#include "sheet.h"

#include <gtest/gtest.h>
#include <qapplication.h>

TEST(PainterTransform, MovesWhatIsDrawn)
{
    Sheet sheet(5, 3);
    sheet.painter.translate(2, 1);
    sheet.painter.drawPoint(0, 0);
    sheet.painter.translate(1, 0);
    sheet.painter.drawPoint(0, 0);
    EXPECT_EQ(QPoint(3, 1), sheet.painter.xForm(QPoint(0, 0)));
    EXPECT_EQ(QPoint(0, 0), sheet.painter.xFormDev(QPoint(3, 1)));
    EXPECT_EQ(R"(
.....
..##.
.....
)",
              sheet.drawing());
}

TEST(PainterTransform, IsUndoneByResetAndRestore)
{
    Sheet sheet(5, 1);
    sheet.painter.save();
    sheet.painter.translate(2, 0);
    sheet.painter.scale(2, 2);
    EXPECT_TRUE(sheet.painter.hasWorldXForm());
    sheet.painter.restore();
    EXPECT_FALSE(sheet.painter.hasWorldXForm());
    sheet.painter.translate(3, 0);
    sheet.painter.resetXForm();
    sheet.painter.drawPoint(0, 0);
    EXPECT_EQ("\n#....\n", sheet.drawing());
}

TEST(PainterTransform, APictureThatBecomesTooLargeIsNotDrawn)
{
    Sheet sheet(5, 1);
    QPixmap picture(2, 2);
    picture.fill(Qt::black);
    sheet.painter.save();
    sheet.painter.scale(50000, 1);
    sheet.painter.drawPixmap(0, 0, picture);
    sheet.painter.restore();
    QApplication::syncX();
    EXPECT_EQ("", takeMessages());
    EXPECT_EQ("\n.....\n", sheet.drawing());
}

TEST(PainterTransform, ScalesPositions)
{
    Sheet sheet(9, 3);
    sheet.painter.scale(2, 1);
    sheet.painter.drawLine(1, 1, 4, 1);
    EXPECT_EQ(R"(
.........
..#######
.........
)",
              sheet.drawing());
}

TEST(PainterTransform, TurnsClockwise)
{
    Sheet sheet(5, 5);
    sheet.painter.translate(4, 0);
    sheet.painter.rotate(90);
    sheet.painter.drawLine(0, 0, 3, 0);
    sheet.painter.setPen(Qt::red);
    sheet.painter.drawLine(0, 2, 3, 2);
    EXPECT_EQ(R"(
..r.#
..r.#
..r.#
..r.#
.....
)",
              sheet.drawing());
}

TEST(PainterTransform, TurnsFilledRectanglesWithoutLosingAPixel)
{
    Sheet sheet(6, 6);
    sheet.painter.translate(4, 1);
    sheet.painter.rotate(90);
    sheet.painter.fillRect(0, 0, 4, 2, Qt::blue);
    EXPECT_EQ(R"(
......
...bb.
...bb.
...bb.
...bb.
......
)",
              sheet.drawing());
}

TEST(PainterTransform, MovesAndScalesPixmaps)
{
    QPixmap blue(2, 1);
    blue.fill(Qt::blue);
    Sheet moved(4, 2), scaled(6, 4);
    moved.painter.translate(1, 1);
    scaled.painter.scale(2, 3);
    for (Sheet* sheet : {&moved, &scaled})
        sheet->painter.drawPixmap(0, 0, blue);
    EXPECT_EQ("\n"
              "....\n"
              ".bb.\n",
              moved.drawing());
    EXPECT_EQ("\n"
              "bbbb..\n"
              "bbbb..\n"
              "bbbb..\n"
              "......\n",
              scaled.drawing());
}

TEST(PainterTransform, TellsItsTranslation)
{
    Sheet sheet(2, 2);
    sheet.painter.translate(3, -4);
    EXPECT_EQ(3.0, sheet.painter.translationX());
    EXPECT_EQ(-4.0, sheet.painter.translationY());
}

TEST(PainterWindow, LiesOverTheViewport)
{
    Sheet sheet(40, 20);
    EXPECT_FALSE(sheet.painter.hasViewXForm());
    EXPECT_EQ(QRect(0, 0, 40, 20), sheet.painter.window());
    EXPECT_EQ(QRect(0, 0, 40, 20), sheet.painter.viewport());
    sheet.painter.setWindow(0, 0, 80, 40);
    EXPECT_TRUE(sheet.painter.hasViewXForm());
    EXPECT_EQ(QPoint(20, 10), sheet.painter.xForm(QPoint(40, 20)));
    sheet.painter.setViewport(20, 10, 20, 10);
    EXPECT_EQ(QPoint(20, 10), sheet.painter.xForm(QPoint(0, 0)));
    EXPECT_EQ(QPoint(30, 15), sheet.painter.xForm(QPoint(40, 20)));
    sheet.painter.resetXForm();
    EXPECT_EQ(QPoint(40, 20), sheet.painter.xForm(QPoint(40, 20)));
}

// The letters themselves turn: the picture is that of upright text, turned, but for the smoothing.
TEST(PainterTurnedText, ReadsUpwards)
{
    Sheet upright(60, 24);
    upright.painter.drawText(4, 18, "Text");
    Sheet turned(24, 60);
    turned.painter.translate(0, 60);
    turned.painter.rotate(270);
    turned.painter.drawText(4, 18, "Text");
    const Pixels expected = upright.pixels().turned(3);
    const Pixels got = turned.pixels();
    ASSERT_EQ(expected.width(), got.width());
    int dark = 0;
    int same = 0;
    for (int y = 0; y < 60; ++y)
        for (int x = 0; x < 24; ++x) {
            const bool isDark = (expected.at(x, y) & 0xff) < 128;
            dark += isDark;
            same += isDark && (got.at(x + 0, y) & 0xff) < 200;
        }
    EXPECT_GT(dark, 30);
    EXPECT_GT(same, dark / 2);
}

TEST(PainterTurnedText, IsSmooth)
{
    Sheet sheet(60, 60);
    sheet.painter.translate(30, 30);
    sheet.painter.rotate(45);
    sheet.painter.drawText(0, 0, "Abc");
    const Pixels pixels = sheet.pixels();
    EXPECT_GT(60 * 60 - pixels.count(0xffffff) - pixels.count(0x000000), 20);
}
