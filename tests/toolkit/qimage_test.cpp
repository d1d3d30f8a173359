// Images: pixels, sharing, parts, mirroring.
#include "messages.h"

#include <gtest/gtest.h>
#include <qimage.h>

namespace
{

QImage counted(int width, int height)
{
    QImage image(width, height, 32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(x, y, 7));
    return image;
}

} // namespace

TEST(Image, KnowsItsMeasures)
{
    const QImage image(5, 3, 32);
    EXPECT_FALSE(image.isNull());
    EXPECT_EQ(QRect(0, 0, 5, 3), image.rect());
    EXPECT_EQ(32, image.depth());
    EXPECT_EQ(20, image.bytesPerLine());
    EXPECT_EQ(60, image.numBytes());
    EXPECT_EQ(image.bits() + 20, image.scanLine(1));
}

TEST(Image, IsNullWithoutSize)
{
    EXPECT_TRUE(QImage().isNull());
    EXPECT_TRUE(QImage(0, 3, 32).isNull());
    EXPECT_TRUE(QImage(-2, 5, 32).isNull());
    EXPECT_TRUE(QImage(4, 4, 17).isNull());
    EXPECT_EQ(0, QImage().depth());
    EXPECT_FALSE(QImage().bits());
}

TEST(Image, HoldsPixels)
{
    QImage image(2, 2, 32);
    image.fill(0xff102030);
    image.setPixel(1, 0, qRgb(1, 2, 3));
    EXPECT_EQ(0xff102030u, image.pixel(0, 0));
    EXPECT_EQ(0xff010203u, image.pixel(1, 0));
    reinterpret_cast<QRgb*>(image.scanLine(1))[0] = 0xff00ff00;
    EXPECT_EQ(0xff00ff00u, image.pixel(0, 1));
}

TEST(Image, WarnsOfPixelsOutside)
{
    QImage image(2, 2, 32);
    EXPECT_TRUE(image.valid(1, 1));
    EXPECT_FALSE(image.valid(2, 0));
    EXPECT_FALSE(image.valid(0, -1));
    image.pixel(2, 0);
    EXPECT_EQ("QImage::pixel: x=2 out of range\n", takeMessages());
    image.setPixel(0, 5, 0);
    EXPECT_EQ("QImage::setPixel: y=5 out of range\n", takeMessages());
}

TEST(Image, SharesItsPixelsUntilDetached)
{
    QImage first(2, 1, 32);
    first.fill(1);
    QImage second = first;
    second.setPixel(0, 0, 99);
    EXPECT_EQ(first.bits(), second.bits());
    EXPECT_EQ(99u, first.pixel(0, 0) & RGB_MASK);
    second.detach();
    EXPECT_NE(first.bits(), second.bits());
    EXPECT_EQ(first, second);
    second.fill(5);
    EXPECT_NE(first, second);
    EXPECT_NE(first.bits(), first.copy().bits());
}

TEST(Image, CopiesPartsWithNothingBeyondTheEdge)
{
    const QImage part = counted(4, 3).copy(3, 1, 2, 2);
    EXPECT_EQ(qRgb(3, 1, 7), part.pixel(0, 0));
    EXPECT_EQ(qRgb(3, 2, 7), part.pixel(0, 1));
    EXPECT_EQ(0u, part.pixel(1, 0));
    EXPECT_TRUE(counted(4, 3).copy(0, 0, 0, 0).isNull());
}

TEST(Image, IsMirrored)
{
    const QImage image = counted(3, 2);
    EXPECT_EQ(qRgb(0, 1, 7), image.mirror().pixel(0, 0));
    EXPECT_EQ(qRgb(2, 0, 7), image.mirror(true, false).pixel(0, 0));
    EXPECT_EQ(qRgb(2, 1, 7), image.mirror(true, true).pixel(0, 0));
    EXPECT_EQ(image, image.mirror(false, false));
}
