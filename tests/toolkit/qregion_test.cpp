// Regions.
#include "printers.h"

#include <gtest/gtest.h>
#include <qbitmap.h>
#include <qpainter.h>
#include <qpointarray.h>
#include <qregion.h>

namespace
{

const int extent = 24;

// The rectangles as "(x,y wxh)".
std::string rectsOf(const QRegion& region)
{
    std::string text;
    const QMemArray<QRect> rects = region.rects();
    for (uint i = 0; i < rects.size(); ++i)
        text += testing::PrintToString(rects[static_cast<int>(i)]);
    return text;
}

// One character a pixel.
std::string picture(const QRegion& region, int width, int height)
{
    std::string text = "\n";
    for (int y = 0; y < height; ++y, text += "\n")
        for (int x = 0; x < width; ++x)
            text += region.contains(QPoint(x, y)) ? '#' : '.';
    return text;
}

// A few rectangles at places that follow from its number.
QRegion scattered(unsigned seed, bool pixels[extent][extent])
{
    QRegion region;
    for (int i = 0; i < 6; ++i) {
        int numbers[4];
        for (int& number : numbers) {
            seed = seed * 1103515245u + 12345u;
            number = static_cast<int>(seed >> 16) % (extent / 2);
        }
        const QRect rect(numbers[0], numbers[1], numbers[2], numbers[3]);
        region |= rect;
        for (int y = 0; y < extent; ++y)
            for (int x = 0; x < extent; ++x)
                pixels[y][x] = (i > 0 && pixels[y][x]) || rect.contains(x, y);
    }
    return region;
}

} // namespace

TEST(Region, OfOneRectangle)
{
    const QRegion region(0, 0, 20, 20);
    EXPECT_FALSE(region.isEmpty());
    EXPECT_EQ("(0,0 20x20)", rectsOf(region));
    EXPECT_TRUE(region.contains(QPoint(19, 19)));
    EXPECT_FALSE(region.contains(QPoint(20, 20)));
    EXPECT_TRUE(region.contains(QRect(15, 15, 30, 30))) << "one pixel in common is enough";
    EXPECT_FALSE(region.contains(QRect(20, 20, 30, 30)));
    for (const QRegion& nothing : {QRegion(), QRegion(QRect(5, 5, 0, 0)), QRegion(QRect())}) {
        EXPECT_TRUE(nothing.isNull());
        EXPECT_TRUE(nothing.isEmpty());
        EXPECT_EQ(QRect(0, 0, 0, 0), nothing.boundingRect());
        EXPECT_EQ(0u, nothing.rects().size());
    }
}

TEST(Region, TwoRectanglesThatOverlap)
{
    const QRegion a(0, 0, 20, 20), b(10, 10, 20, 20);
    EXPECT_EQ("(0,0 20x10)(0,10 30x10)(10,20 20x10)", rectsOf(a | b));
    EXPECT_EQ("(10,10 10x10)", rectsOf(a & b));
    EXPECT_EQ("(0,0 20x10)(0,10 10x10)", rectsOf(a - b));
    EXPECT_EQ("(0,0 20x10)(0,10 10x10)(20,10 10x10)(10,20 20x10)", rectsOf(a ^ b));
    EXPECT_EQ(QRect(0, 0, 30, 30), (a | b).boundingRect());
    EXPECT_FALSE((a - b).contains(QPoint(15, 15)));
}

TEST(Region, WhatTouchesGrowsTogether)
{
    EXPECT_EQ("(0,0 20x10)", rectsOf(QRegion(0, 0, 10, 10) | QRegion(10, 0, 10, 10)));
    EXPECT_EQ("(0,0 10x20)", rectsOf(QRegion(0, 10, 10, 10) | QRegion(0, 0, 10, 10)));
    EXPECT_EQ("(0,0 10x10)(11,0 9x10)", rectsOf(QRegion(0, 0, 10, 10) | QRegion(11, 0, 9, 10)));
    EXPECT_TRUE(((QRegion(0, 0, 9, 9) - QRegion(3, 0, 3, 9)) | QRegion(3, 0, 3, 9)) == QRegion(0, 0, 9, 9));
}

TEST(Region, SetOperationsDecideForEachPixel)
{
    bool a[extent][extent], b[extent][extent];
    for (unsigned seed = 1; seed <= 40; ++seed) {
        const QRegion ra = scattered(seed, a), rb = scattered(seed + 1000, b);
        const QRegion all = ra | rb, both = ra & rb, onlyA = ra - rb, one = ra ^ rb;
        int wrong = 0;
        for (int y = 0; y < extent; ++y)
            for (int x = 0; x < extent; ++x) {
                const QPoint p(x, y);
                wrong += all.contains(p) != (a[y][x] || b[y][x]);
                wrong += both.contains(p) != (a[y][x] && b[y][x]);
                wrong += onlyA.contains(p) != (a[y][x] && !b[y][x]);
                wrong += one.contains(p) != (a[y][x] != b[y][x]);
            }
        EXPECT_EQ(0, wrong) << "seed " << seed;
        EXPECT_TRUE(one == (all - both)) << "equal pixels make equal regions";
        const QMemArray<QRect> rects = all.rects();
        QRegion again;
        again.setRects(rects.data(), static_cast<int>(rects.size()));
        EXPECT_TRUE(again == all);
        int area = 0, pixels = 0;
        for (uint i = 0; i < rects.size(); ++i)
            area += rects.at(i).width() * rects.at(i).height();
        for (int y = 0; y < extent; ++y)
            for (int x = 0; x < extent; ++x)
                pixels += a[y][x] || b[y][x];
        EXPECT_EQ(pixels, area) << "the rectangles do not overlap";
    }
}

TEST(Region, CopiesChangeOnTheirOwn)
{
    QRegion one(0, 0, 20, 20);
    const QRegion other = one;
    one.translate(5, 6);
    EXPECT_TRUE(one == QRegion(5, 6, 20, 20));
    EXPECT_TRUE(other == QRegion(0, 0, 20, 20));
    EXPECT_TRUE(one != other);
    one |= other;
    one &= other;
    EXPECT_TRUE(one == other);
    one -= other;
    EXPECT_TRUE(one.isEmpty());
    one += other;
    one ^= QRegion(0, 0, 5, 20);
    EXPECT_EQ("(5,0 15x20)", rectsOf(one));
}

TEST(Region, OfAPolygon)
{
    QPointArray triangle;
    triangle.setPoints(3, 0, 0, 8, 0, 0, 8);
    EXPECT_EQ("\n"
              "########.\n"
              "#######..\n"
              "######...\n"
              "#####....\n"
              "####.....\n"
              "###......\n"
              "##.......\n"
              "#........\n"
              ".........\n",
              picture(QRegion(triangle), 9, 9));
}

TEST(Region, WindingFillsWhatIsCrossedTwice)
{
    QPointArray star;
    star.setPoints(5, 50, 0, 79, 90, 2, 35, 98, 35, 21, 90);
    const QPoint middle(50, 50), tip(50, 10);
    EXPECT_FALSE(QRegion(star).contains(middle));
    EXPECT_TRUE(QRegion(star, true).contains(middle));
    EXPECT_TRUE(QRegion(star).contains(tip));
    EXPECT_TRUE(QRegion(star, true).contains(tip));
}

TEST(Region, OfAPolygonMayBeVeryWide)
{
    QPointArray corners;
    corners.setPoints(3, -2000000000, 0, 2000000000, 0, 2000000000, 2);
    const QRegion triangle(corners);
    EXPECT_TRUE(triangle.contains(QPoint(-1999999999, 0)));
    EXPECT_TRUE(triangle.contains(QPoint(1, 1)));
    EXPECT_FALSE(triangle.contains(QPoint(-1, 1)));
}

TEST(Region, OfAnEllipse)
{
    const QRegion circle(QRect(0, 0, 10, 10), QRegion::Ellipse);
    EXPECT_EQ(QRect(0, 0, 9, 9), circle.boundingRect());
    EXPECT_FALSE(circle.contains(QPoint(0, 0)));
    EXPECT_FALSE(circle.contains(QPoint(8, 8)));
    EXPECT_TRUE(circle.contains(QPoint(5, 5)));
    EXPECT_TRUE(circle.contains(QPoint(0, 4)));
}

TEST(Region, OfABitmap)
{
    QBitmap bitmap(12, 6, true);
    QPainter painter(&bitmap);
    painter.fillRect(2, 1, 3, 4, Qt::color1);
    painter.fillRect(7, 2, 5, 1, Qt::color1);
    painter.end();
    EXPECT_EQ("(2,1 3x1)(2,2 3x1)(7,2 5x1)(2,3 3x2)", rectsOf(QRegion(bitmap)));
    EXPECT_TRUE(QRegion(QBitmap()).isEmpty());
}
