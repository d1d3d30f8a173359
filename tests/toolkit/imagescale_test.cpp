// Images in other sizes.
#include "messages.h"
#include "printers.h"

#include <gtest/gtest.h>
#include <qimage.h>

#include <string>
#include <vector>

namespace
{

QImage pattern(int width, int height, bool alpha = false)
{
    QImage image(width, height, 32);
    image.setAlphaBuffer(alpha);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(
                x, y,
                qRgba(x * 37 % 256, y * 53 % 256, (x + y) * 29 % 256, alpha ? (x * 91 + y * 17) % 256 : 255));
    return image;
}

std::vector<int> row(const QImage& image, int y)
{
    std::vector<int> reds;
    for (int x = 0; x < image.width(); ++x)
        reds.push_back(qRed(image.pixel(x, y)));
    return reds;
}

std::vector<int> column(const QImage& image, int x)
{
    std::vector<int> greens;
    for (int y = 0; y < image.height(); ++y)
        greens.push_back(qGreen(image.pixel(x, y)));
    return greens;
}

} // namespace

TEST(ScaledImage, TakesTheNearestPixels)
{
    const QImage large = pattern(4, 3).scale(8, 6);
    EXPECT_EQ((std::vector<int>{0, 0, 37, 37, 74, 74, 111, 111}), row(large, 0));
    EXPECT_EQ((std::vector<int>{0, 0, 53, 53, 106, 106}), column(large, 0));
    const QImage other = pattern(4, 3).scale(QSize(3, 5));
    EXPECT_EQ((std::vector<int>{0, 37, 74}), row(other, 0));
    EXPECT_EQ((std::vector<int>{0, 0, 53, 53, 106}), column(other, 0));
    EXPECT_EQ(pattern(4, 3), pattern(4, 3).scale(4, 3));
}

TEST(ScaledImage, KeepsItsProportionsIfAsked)
{
    const QImage image = pattern(4, 3);
    EXPECT_EQ(QSize(20, 15), image.scale(20, 20, QImage::ScaleMin).size());
    EXPECT_EQ(QSize(26, 20), image.scale(20, 20, QImage::ScaleMax).size());
    EXPECT_EQ(QSize(60, 32), pattern(31, 17).smoothScale(60, 60, QImage::ScaleMin).size());
    EXPECT_EQ(QSize(10, 8), image.scaleWidth(10).size());
    EXPECT_EQ(QSize(13, 10), image.scaleHeight(10).size());
    EXPECT_EQ(image, image.scaleWidth(4));
    EXPECT_EQ(image, image.scaleHeight(3));
}

// The rows of a new width follow from the factor, not from the rounded height.
TEST(ScaledImage, ToAWidthHasTheSameFactorBothWays)
{
    EXPECT_EQ((std::vector<int>{0, 0, 0, 53, 53, 106, 106, 106}), column(pattern(4, 3).scaleWidth(10), 0));
    EXPECT_EQ((std::vector<int>{0, 0, 0, 0, 37, 37, 37, 74, 74, 74, 111, 111, 111}),
              row(pattern(4, 3).scaleHeight(10), 0));
}

TEST(ScaledImage, SmoothlyIsTheAverageOfWhatAPixelCovers)
{
    const QImage small = pattern(4, 3).smoothScale(2, 2);
    EXPECT_EQ(0xff131219u, small.pixel(0, 0));
    EXPECT_EQ(0xff5d1253u, small.pixel(1, 0));
    EXPECT_EQ(0xff13583fu, small.pixel(0, 1));
    EXPECT_EQ(0xff5d5879u, small.pixel(1, 1));
    const QImage other = pattern(4, 3).smoothScale(QSize(3, 5));
    EXPECT_EQ((std::vector<int>{9, 56, 102}), row(other, 0));
    EXPECT_EQ((std::vector<int>{0, 18, 53, 88, 106}), column(other, 0));
    EXPECT_EQ(pattern(4, 3).scale(8, 6), pattern(4, 3).smoothScale(8, 6));
}

TEST(ScaledImage, SmoothlyCountsWholePartsOfPixels)
{
    const QImage small = pattern(40, 30).smoothScale(13, 7);
    EXPECT_EQ(0xff518f90u, small.pixel(2, 4)); // where 144.6 and 85.6 are exact
    EXPECT_EQ(0xff276d55u, small.pixel(0, 6));
    EXPECT_EQ(0xff43815fu, small.pixel(7, 3));
    const QImage large = pattern(31, 17).smoothScale(60, 32);
    EXPECT_EQ(0xffc75dbeu, large.pixel(11, 22)); // 190.6
}

TEST(ScaledImage, SmoothlyCountsPixelsByTheirAlpha)
{
    const QImage image = pattern(9, 9, true).smoothScale(5, 5);
    EXPECT_EQ(0x30261f2eu, image.pixel(0, 0));
    EXPECT_EQ(0xb81c199bu, image.pixel(4, 0));
    EXPECT_EQ(0x849397b2u, image.pixel(2, 2));
    EXPECT_EQ(0x621784adu, image.pixel(4, 4));
}

TEST(ScaledImage, OfATallColumnIsStillItsAverage)
{
    QImage column(1, 20000, 32);
    column.fill(0xff000000u);
    for (int y = 0; y < 10000; ++y)
        column.setPixel(0, y, 0xffffffffu);
    EXPECT_NEAR(127, qRed(column.smoothScale(1, 1).pixel(0, 0)), 2);
}

TEST(ScaledImage, KeepsItsAlphaBuffer)
{
    QImage image(2, 1, 32);
    image.setAlphaBuffer(true);
    image.setPixel(0, 0, qRgba(10, 20, 30, 0));
    image.setPixel(1, 0, qRgba(10, 20, 30, 200));
    EXPECT_EQ(qRgba(11, 21, 31, 100), image.smoothScale(1, 1).pixel(0, 0)); // rounded up at each step
    EXPECT_TRUE(image.smoothScale(1, 1).hasAlphaBuffer());
    EXPECT_TRUE(image.scale(1, 1).hasAlphaBuffer());
}

TEST(ScaledImage, IsNullWithoutSize)
{
    EXPECT_TRUE(pattern(4, 3).scale(0, 0).isNull());
    EXPECT_TRUE(pattern(4, 3).smoothScale(5, 0).isNull());
    EXPECT_EQ("", takeMessages());
    EXPECT_TRUE(QImage().scale(3, 3).isNull());
    EXPECT_TRUE(QImage().smoothScale(3, 3).isNull());
    EXPECT_EQ("QImage::scale: Image is a null image\nQImage::smoothScale: Image is a null image\n",
              takeMessages());
}

TEST(ScaledImage, OfMillionsOfRowsKeepsTheirColour)
{
    QImage image(1, 17000000, 32);
    image.fill(0xff204060);
    const QImage small = image.smoothScale(1, 3);
    for (int y = 0; y < 3; ++y)
        EXPECT_EQ(0xff204060, small.pixel(0, y));
}
