// How raster operations combine what is drawn with what was there.
#include "messages.h"
#include "sheet.h"

#include <gtest/gtest.h>

struct Operation {
    Qt::RasterOp rop;
    unsigned result; // of drawing 0x00ff0f on 0x0f0ff0
};

class PainterRop : public testing::TestWithParam<Operation>
{
};

TEST_P(PainterRop, CombinesBits)
{
    Sheet sheet(2, 1);
    sheet.painter.fillRect(0, 0, 2, 1, QColor(0x0f, 0x0f, 0xf0));
    sheet.painter.setRasterOp(GetParam().rop);
    EXPECT_EQ(GetParam().rop, sheet.painter.rasterOp());
    sheet.painter.fillRect(0, 0, 1, 1, QColor(0x00, 0xff, 0x0f));
    const Pixels pixels = sheet.pixels();
    EXPECT_EQ(GetParam().result, pixels.at(0, 0));
    EXPECT_EQ(0x0f0ff0u, pixels.at(1, 0));
}

INSTANTIATE_TEST_SUITE_P(Operations, PainterRop,
                         testing::Values(Operation{Qt::CopyROP, 0x00ff0f}, Operation{Qt::OrROP, 0x0fffff},
                                         Operation{Qt::XorROP, 0x0ff0ff}, Operation{Qt::NotAndROP, 0x0f00f0},
                                         Operation{Qt::NotCopyROP, 0xff00f0},
                                         Operation{Qt::NotOrROP, 0xff0ff0},
                                         Operation{Qt::NotXorROP, 0xf00f00}, Operation{Qt::AndROP, 0x000f00},
                                         Operation{Qt::NotROP, 0xf0f00f}, Operation{Qt::ClearROP, 0x000000},
                                         Operation{Qt::SetROP, 0xffffff}, Operation{Qt::NopROP, 0x0f0ff0},
                                         Operation{Qt::AndNotROP, 0x00f00f},
                                         Operation{Qt::OrNotROP, 0xf0ff0f}, Operation{Qt::NandROP, 0xfff0ff},
                                         Operation{Qt::NorROP, 0xf00000}));

class PainterTwice : public testing::TestWithParam<Qt::RasterOp>
{
};

// The picture is the same again after drawing twice.
TEST_P(PainterTwice, RestoresThePicture)
{
    Sheet sheet(60, 40);
    sheet.painter.fillRect(0, 20, 60, 20, QColor(30, 90, 200));
    const Pixels before = Pixels::of(sheet.pixmap);
    Pixels once = before;
    for (int i = 0; i < 2; ++i) {
        sheet.painter.setRasterOp(GetParam());
        sheet.painter.setPen(QColor(10, 20, 30));
        sheet.painter.drawLine(5, 5, 50, 35);
        sheet.painter.drawRect(10, 10, 30, 20);
        sheet.painter.setPen(QPen(Qt::green, 3));
        sheet.painter.drawLine(3, 3, 3, 30);
        sheet.painter.fillRect(30, 20, 10, 10, Qt::red);
        sheet.painter.drawText(20, 30, "Text");
        if (i == 0)
            once = Pixels::of(sheet.pixmap);
    }
    EXPECT_NE(before, once);
    EXPECT_EQ("", sheet.pixels().differenceFrom(before));
}

INSTANTIATE_TEST_SUITE_P(Operations, PainterTwice, testing::Values(Qt::XorROP, Qt::NotROP));

TEST(PainterRopText, IsNotSmoothed)
{
    Sheet sheet(80, 24);
    sheet.painter.setRasterOp(Qt::NotROP);
    sheet.painter.drawText(2, 18, "Smooth?");
    const Pixels pixels = sheet.pixels();
    EXPECT_GT(pixels.count(0x000000), 20);
    EXPECT_EQ(80 * 24, pixels.count(0x000000) + pixels.count(0xffffff));
}

TEST(PainterRopCodes, ThatDoNotExistAreRefused)
{
    Sheet sheet(2, 2);
    sheet.painter.setRasterOp(static_cast<Qt::RasterOp>(99));
    EXPECT_EQ("QPainter::setRasterOp: Invalid ROP code\n", takeMessages());
    EXPECT_EQ(Qt::CopyROP, sheet.painter.rasterOp());
}
