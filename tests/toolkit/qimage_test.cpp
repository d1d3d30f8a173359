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

TEST(Image, WarnsThatComparedImagesAreNull)
{
    EXPECT_EQ(QImage(), QImage());
    EXPECT_EQ("QImage::convertDepth: Image is a null image\nQImage::convertDepth: Image is a null image\n",
              takeMessages());
    EXPECT_NE(QImage(), counted(2, 2));
    EXPECT_EQ("", takeMessages());
}

TEST(Image, HasNoTableOfColours)
{
    const QImage image = counted(3, 2);
    EXPECT_EQ(0, image.numColors());
    EXPECT_FALSE(image.colorTable());
    EXPECT_EQ(QImage::IgnoreEndian, image.bitOrder());
    EXPECT_EQ(0, image.pixelIndex(0, 0));
    EXPECT_EQ("QImage::pixelIndex: Not applicable for 32-bpp images (no palette)\n", takeMessages());
}

TEST(Image, GivesTheAddressesOfItsRows)
{
    const QImage image = counted(3, 2);
    EXPECT_EQ(image.scanLine(0), image.jumpTable()[0]);
    EXPECT_EQ(image.scanLine(1), image.jumpTable()[1]);
    EXPECT_FALSE(image.scanLine(2));
    EXPECT_FALSE(QImage().jumpTable());
    const int one = 1;
    EXPECT_EQ(*reinterpret_cast<const char*>(&one) ? QImage::LittleEndian : QImage::BigEndian,
              QImage::systemByteOrder());
    EXPECT_EQ(QImage::systemByteOrder(), QImage::systemBitOrder());
}

TEST(Image, IsMadeAnew)
{
    QImage image = counted(3, 2);
    EXPECT_TRUE(image.create(QSize(7, 4), 32));
    EXPECT_EQ(QSize(7, 4), image.size());
    EXPECT_FALSE(image.create(7, 4, 3));
    EXPECT_TRUE(image.isNull());
    EXPECT_EQ(QSize(6, 2), QImage(QSize(6, 2), 32).size());
    image = counted(3, 2);
    image.reset();
    EXPECT_TRUE(image.isNull());
}

// With the argument false it is the alpha values that change too.
TEST(Image, InvertsItsColours)
{
    QImage image(1, 1, 32);
    image.fill(0xff010203);
    image.invertPixels();
    EXPECT_EQ(0xfffefdfcu, image.pixel(0, 0));
    image.invertPixels(false);
    EXPECT_EQ(0x00010203u, image.pixel(0, 0));
    EXPECT_EQ(0x00030201u, image.swapRGB().pixel(0, 0));
}

TEST(Image, TellsWhetherItIsGray)
{
    QImage image(2, 1, 32);
    image.fill(0xff808080);
    EXPECT_TRUE(image.allGray());
    image.setPixel(1, 0, 0xff808180);
    EXPECT_FALSE(image.allGray());
    EXPECT_FALSE(image.isGrayscale());
}

TEST(Image, RemembersItsPlaceAndResolution)
{
    QImage image = counted(2, 2);
    EXPECT_EQ(0, image.dotsPerMeterX());
    image.setOffset(QPoint(4, 5));
    image.setDotsPerMeterX(3000);
    image.setDotsPerMeterY(4000);
    const QImage copy = image.copy();
    EXPECT_EQ(QPoint(4, 5), copy.offset());
    EXPECT_EQ(3000, copy.dotsPerMeterX());
    EXPECT_EQ(4000, copy.dotsPerMeterY());
}

TEST(Image, HasOneDepth)
{
    const QImage image = counted(2, 2);
    EXPECT_EQ(image, image.convertDepth(32));
    EXPECT_TRUE(image.convertDepth(7).isNull());
    EXPECT_EQ("QImage::convertDepth: Depth 7 not supported\n", takeMessages());
}

TEST(Image, TakesPartsOfOthers)
{
    QImage image(5, 5, 32);
    image.fill(0);
    const QImage source = counted(6, 4);
    bitBlt(&image, 1, 1, &source, 2, 1, 3, 2);
    EXPECT_EQ(0u, image.pixel(0, 1));
    EXPECT_EQ(qRgb(2, 1, 7), image.pixel(1, 1));
    EXPECT_EQ(qRgb(4, 2, 7), image.pixel(3, 2));
    EXPECT_EQ(0u, image.pixel(4, 2));
    bitBlt(&image, -1, 3, &source);
    EXPECT_EQ(qRgb(1, 0, 7), image.pixel(0, 3));
    EXPECT_EQ(qRgb(5, 1, 7), image.pixel(4, 4));
    bitBlt(&image, 0, 1, &image, 0, 0, 5, 4);
    EXPECT_EQ(qRgb(2, 1, 7), image.pixel(1, 2)) << "its own rows do not get in their way";
    EXPECT_EQ(qRgb(1, 0, 7), image.pixel(0, 4));
}
