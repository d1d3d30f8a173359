// Rectangles.
#include "printers.h"

#include <gtest/gtest.h>
#include <qrect.h>

#include <climits>

namespace
{

// left, top, right, bottom
QRect edges(int left, int top, int right, int bottom)
{
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

} // namespace

TEST(Rect, TheLastPixelBelongsToIt)
{
    const QRect rect(10, 20, 30, 40);
    EXPECT_EQ(39, rect.right());
    EXPECT_EQ(59, rect.bottom());
    EXPECT_EQ(QPoint(39, 20), rect.topRight());
    EXPECT_EQ(QPoint(10, 59), rect.bottomLeft());
    EXPECT_EQ(QPoint(39, 59), rect.bottomRight());
    EXPECT_EQ(QSize(30, 40), rect.size());
    EXPECT_EQ(QRect(1, 2, 5, 8), edges(1, 2, 5, 9));
    EXPECT_EQ(QRect(1, 2, 5, 9), QRect(QPoint(1, 2), QSize(5, 9)));
    int x, y, width, height;
    rect.rect(&x, &y, &width, &height);
    EXPECT_EQ(rect, QRect(x, y, width, height));
    rect.coords(&x, &y, &width, &height);
    EXPECT_EQ(rect, edges(x, y, width, height));
}

TEST(Rect, MayBeNullOrEmpty)
{
    const struct {
        QRect rect;
        bool null, empty;
    } cases[] = {
        {QRect(), true, true},
        {QRect(5, 5, 0, 0), true, true},
        {QRect(5, 5, 0, 1), false, true},
        {QRect(5, 5, -3, -4), false, true},
        {QRect(5, 5, 1, 1), false, false},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(each.null, each.rect.isNull());
        EXPECT_EQ(each.empty, each.rect.isEmpty());
        EXPECT_EQ(!each.empty, each.rect.isValid());
    }
}

TEST(Rect, NormalizingSwapsTheEdges)
{
    EXPECT_EQ(edges(1, 0, 5, 5), QRect(5, 5, -3, -4).normalize());
    EXPECT_EQ(edges(2, 3, 9, 9), edges(9, 9, 2, 3).normalize());
    EXPECT_EQ(QRect(1, 2, 3, 4), QRect(1, 2, 3, 4).normalize());
}

TEST(Rect, TheCentreIsRoundedTowardsZero)
{
    EXPECT_EQ(QPoint(1, 1), QRect(0, 0, 4, 4).center());
    EXPECT_EQ(QPoint(2, 2), QRect(0, 0, 5, 5).center());
    EXPECT_EQ(QPoint(-5, -5), QRect(-7, -7, 4, 5).center());
    EXPECT_EQ(QPoint(4, 4), QRect(5, 5, 0, 0).center());
    EXPECT_EQ(QPoint(INT_MAX - 1, 0), edges(INT_MAX - 2, 0, INT_MAX, 0).center());
}

TEST(Rect, Moving)
{
    QRect rect(10, 20, 30, 40);
    const QSize size = rect.size();
    const auto at = [&] {
        EXPECT_EQ(size, rect.size());
        return rect.topLeft();
    };
    rect.moveBy(1, 2);
    EXPECT_EQ(QPoint(11, 22), at());
    rect.moveCenter(QPoint(50, 50));
    EXPECT_EQ(QPoint(36, 31), at());
    rect.moveTopLeft(QPoint(0, 0));
    EXPECT_EQ(QPoint(0, 0), at());
    rect.moveBottomRight(QPoint(99, 99));
    EXPECT_EQ(QPoint(70, 60), at());
    rect.moveTopRight(QPoint(99, 5));
    EXPECT_EQ(QPoint(70, 5), at());
    rect.moveBottomLeft(QPoint(3, 80));
    EXPECT_EQ(QPoint(3, 41), at());
    rect.moveLeft(1);
    rect.moveTop(2);
    EXPECT_EQ(QPoint(1, 2), at());
    rect.moveRight(60);
    rect.moveBottom(70);
    EXPECT_EQ(QPoint(31, 31), at());
}

TEST(Rect, SettingAnEdgeLeavesTheOthers)
{
    QRect rect(10, 20, 30, 40);
    rect.setLeft(15);
    rect.setTop(25);
    EXPECT_EQ(edges(15, 25, 39, 59), rect);
    rect.setRight(50);
    rect.setBottom(60);
    EXPECT_EQ(edges(15, 25, 50, 60), rect);
    rect.setX(0);
    rect.setY(1);
    EXPECT_EQ(edges(0, 1, 50, 60), rect);
    rect.setWidth(7);
    rect.setHeight(8);
    EXPECT_EQ(QRect(0, 1, 7, 8), rect);
    rect.setSize(QSize(3, 4));
    EXPECT_EQ(QRect(0, 1, 3, 4), rect);
    rect.addCoords(-1, -1, 1, 2);
    EXPECT_EQ(edges(-1, 0, 3, 6), rect);
    rect.setTopLeft(QPoint(-3, -4));
    rect.setBottomRight(QPoint(5, 6));
    EXPECT_EQ(edges(-3, -4, 5, 6), rect);
    rect.rLeft() -= 5;
    rect.rBottom() += 5;
    EXPECT_EQ(edges(-8, -4, 5, 11), rect);
    rect.setRect(1, 2, 3, 4);
    EXPECT_EQ(QRect(1, 2, 3, 4), rect);
    rect.setCoords(1, 2, 3, 4);
    EXPECT_EQ(edges(1, 2, 3, 4), rect);
}

TEST(Rect, Containing)
{
    const QRect rect(10, 20, 30, 40);
    EXPECT_TRUE(rect.contains(QPoint(10, 20)));
    EXPECT_TRUE(rect.contains(39, 59));
    EXPECT_FALSE(rect.contains(QPoint(40, 60)));
    EXPECT_FALSE(rect.contains(QPoint(10, 20), true)) << "the edge is not properly inside";
    EXPECT_TRUE(rect.contains(QPoint(11, 21), true));
    EXPECT_FALSE(rect.contains(39, 59, true));
    EXPECT_TRUE(rect.contains(rect));
    EXPECT_FALSE(rect.contains(rect, true));
    EXPECT_FALSE(rect.contains(QRect(10, 20, 31, 40)));
    EXPECT_TRUE(rect.contains(QRect(11, 21, 28, 38), true));
    EXPECT_FALSE(QRect(5, 5, -3, -3).contains(4, 4));
}

TEST(Rect, UnionsAndIntersections)
{
    const QRect rect(10, 20, 30, 40);
    EXPECT_EQ(QRect(20, 30, 20, 10), rect & QRect(20, 30, 100, 10));
    EXPECT_EQ(QRect(10, 20, 5, 5), rect.intersect(QRect(0, 0, 15, 25)));
    EXPECT_TRUE((rect & QRect(200, 200, 5, 5)).isEmpty());
    EXPECT_EQ(QRect(10, 0, 95, 60), rect | QRect(100, 0, 5, 5));
    EXPECT_EQ(rect, rect | QRect()) << "null rectangles add nothing";
    EXPECT_EQ(rect, QRect() | rect);
    EXPECT_EQ(QRect(5, 5, 35, 55), rect.unite(QRect(5, 5, 1, 1)));
    EXPECT_TRUE(rect.intersects(QRect(39, 59, 5, 5)));
    EXPECT_FALSE(rect.intersects(QRect(40, 60, 5, 5)));
    EXPECT_FALSE(rect.intersects(QRect()));
    QRect changed(rect);
    EXPECT_EQ(QRect(10, 20, 10, 10), changed &= QRect(0, 0, 20, 30));
    EXPECT_EQ(QRect(0, 0, 20, 30), changed |= QRect(0, 0, 1, 1));
}

TEST(Rect, GoesRoundAtTheEndsOfInt)
{
    const int least = -2147483647 - 1;
    const int most = 2147483647;
    EXPECT_EQ(least + 9, QRect(most, 0, 11, 1).right());
    EXPECT_EQ(11, QRect(most, 0, 11, 1).width());
    EXPECT_EQ(0, QRect(QPoint(least, 0), QPoint(most, 0)).width());
    EXPECT_TRUE(QRect(least, least, 0, 0).isNull());
    QRect moved(0, 0, 10, 10);
    moved.moveTopLeft(QPoint(least, most));
    EXPECT_EQ(QRect(least, most, 10, 10), moved);
    moved.moveBy(-1, 1);
    EXPECT_EQ(QPoint(most, least), moved.topLeft());
    EXPECT_EQ(QSize(10, 10), moved.size());
}
