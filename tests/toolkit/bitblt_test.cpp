// Copying pixels between devices.
#include "messages.h"
#include "sheet.h"
#include "waiting.h"

#include <gtest/gtest.h>
#include <qbitmap.h>
#include <qwidget.h>

namespace
{

QPixmap redWithBlueCorner()
{
    QPixmap pixmap(3, 2);
    pixmap.fill(Qt::red);
    QPainter painter(&pixmap);
    painter.setPen(Qt::blue);
    painter.drawPoint(0, 0);
    return pixmap;
}

std::string drawing(const QPixmap& pixmap)
{
    return '\n' + Pixels::of(pixmap).picture({{'.', 0xffffff}, {'r', 0xff0000}, {'b', 0x0000ff}, {'#', 0}});
}

} // namespace

class BitBlt : public testing::Test
{
protected:
    BitBlt() : to(5, 4), from(redWithBlueCorner()) { to.fill(Qt::white); }

    QPixmap to;
    QPixmap from;
};

TEST_F(BitBlt, CopiesAllWithoutASize)
{
    bitBlt(&to, 1, 1, &from);
    EXPECT_EQ(R"(
.....
.brr.
.rrr.
.....
)",
              drawing(to));
}

TEST_F(BitBlt, CopiesParts)
{
    bitBlt(&to, 0, 0, &from, 0, 0, 2, 1);
    bitBlt(&to, QPoint(0, 2), &from, QRect(1, 0, 2, 2));
    bitBlt(&to, 4, 0, &from, 2, 1, -1, -1);
    EXPECT_EQ(R"(
br..r
.....
rr...
rr...
)",
              drawing(to));
}

TEST_F(BitBlt, CutsOffWhatLiesOutside)
{
    bitBlt(&to, -1, 0, &from);
    bitBlt(&to, 4, 3, &from);
    bitBlt(&to, 0, 0, &from, 0, 0, 0, 0);
    EXPECT_EQ(R"(
rr...
rr...
.....
....b
)",
              drawing(to));
}

TEST_F(BitBlt, CombinesByRasterOperations)
{
    bitBlt(&to, 0, 0, &from, 0, 0, -1, -1, Qt::NotROP);
    EXPECT_EQ(R"(
###..
###..
.....
.....
)",
              drawing(to));
}

TEST_F(BitBlt, MovesWithinOnePixmap)
{
    bitBlt(&to, 0, 0, &from);
    bitBlt(&to, 1, 1, &to, 0, 0, 3, 2);
    EXPECT_EQ(R"(
brr..
rbrr.
.rrr.
.....
)",
              drawing(to));
}

TEST_F(BitBlt, RespectsMasksUnlessToldNotTo)
{
    QBitmap mask(3, 2, true);
    {
        QPainter painter(&mask);
        painter.drawPoint(0, 0);
        painter.drawPoint(2, 1);
    }
    from.setMask(mask);
    bitBlt(&to, 0, 0, &from);
    bitBlt(&to, 0, 2, &from, 0, 0, -1, -1, Qt::CopyROP, true);
    EXPECT_EQ(R"(
b....
..r..
brr..
rrr..
)",
              drawing(to));
}

TEST_F(BitBlt, RefusesOperationsThatDoNotExist)
{
    const Pixels before = Pixels::of(to);
    bitBlt(&to, 0, 0, &from, 0, 0, -1, -1, static_cast<Qt::RasterOp>(99));
    EXPECT_EQ("bitBlt: Invalid ROP code\n", takeMessages());
    EXPECT_EQ(before, Pixels::of(to));
}

TEST_F(BitBlt, DoesNothingWithNullPixmaps)
{
    QPixmap null;
    bitBlt(&to, 0, 0, &null);
    bitBlt(&null, 0, 0, &from);
    bitBlt(&to, 0, 0, 0);
    EXPECT_EQ(20, Pixels::of(to).count(0xffffff));
}

TEST_F(BitBlt, LeavesSharedCopiesAlone)
{
    const QPixmap copy = to;
    bitBlt(&to, 0, 0, &from);
    EXPECT_EQ(20, Pixels::of(copy).count(0xffffff));
}

TEST_F(BitBlt, GoesToWidgetsAndBack)
{
    QWidget widget;
    widget.setGeometry(100, 100, 40, 30);
    widget.setPaletteBackgroundColor(Qt::white);
    showAndWait(&widget);
    bitBlt(&widget, 2, 2, &from);
    EXPECT_EQ(5, Pixels::of(&widget).count(0xff0000));
    QPixmap back(5, 4);
    bitBlt(&back, 0, 0, &widget, 1, 1, 5, 4);
    EXPECT_EQ(R"(
.....
.brr.
.rrr.
.....
)",
              drawing(back));
}
