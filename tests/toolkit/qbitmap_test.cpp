// Bitmaps: where their bits come from.
#include "pixels.h"

#include <gtest/gtest.h>
#include <qbitmap.h>
#include <qimage.h>
#include <qwmatrix.h>

namespace
{

std::string bits(const QPixmap& bitmap)
{
    return Pixels::of(bitmap).picture({{'.', 0}, {'#', 1}});
}

} // namespace

TEST(Bitmap, IsNullWithoutSize)
{
    EXPECT_TRUE(QBitmap().isNull());
    EXPECT_TRUE(QBitmap().isQBitmap());
}

TEST(Bitmap, StartsClearedOnRequest)
{
    EXPECT_EQ("...\n...\n", bits(QBitmap(3, 2, true)));
    EXPECT_EQ(1, QBitmap(QSize(3, 2), true).depth());
}

TEST(Bitmap, ReadsTheHighestBitFirst)
{
    const uchar data[] = {0xc0, 0x00, 0x01, 0x80};
    EXPECT_EQ("##.......\n.......##\n", bits(QBitmap(9, 2, data)));
}

TEST(Bitmap, ReadsTheLowestBitFirstInXbmData)
{
    const uchar data[] = {0x03, 0x00, 0x80, 0x01};
    EXPECT_EQ("##.......\n.......##\n", bits(QBitmap(QSize(9, 2), data, true)));
}

TEST(Bitmap, FillsWithZeroAndOne)
{
    QBitmap bitmap(2, 1);
    bitmap.fill(Qt::color1);
    EXPECT_EQ("##\n", bits(bitmap));
    bitmap.fill(Qt::color0);
    EXPECT_EQ("..\n", bits(bitmap));
}

TEST(Bitmap, MakesDarkColoursInk)
{
    QImage image(2, 1, 32);
    image.setPixel(0, 0, qRgb(20, 20, 20));
    image.setPixel(1, 0, qRgb(220, 220, 220));
    QBitmap bitmap;
    bitmap = image;
    EXPECT_EQ("#.\n", bits(bitmap));
    bitmap = QPixmap(image);
    EXPECT_EQ("#.\n", bits(bitmap));
    EXPECT_TRUE(bitmap.isQBitmap());
}

TEST(Bitmap, StaysABitmapWhenCopiedAndTurned)
{
    const uchar data[] = {0x80, 0x00};
    const QBitmap bitmap(2, 2, data);
    QPixmap copy = bitmap;
    EXPECT_TRUE(copy.isQBitmap());
    QWMatrix turning;
    turning.rotate(90);
    const QBitmap turned = bitmap.xForm(turning);
    EXPECT_EQ(".#\n..\n", bits(turned));
    EXPECT_TRUE(turned.isQBitmap());
}
