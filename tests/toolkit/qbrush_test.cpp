// Brushes.
#include "messages.h"
#include "printers.h"

#include <gtest/gtest.h>
#include <qbrush.h>
#include <qpixmap.h>

TEST(Brush, PaintsNothingAtFirst)
{
    const QBrush brush;
    EXPECT_EQ(Qt::NoBrush, brush.style());
    EXPECT_EQ(Qt::black, brush.color());
    EXPECT_EQ(nullptr, brush.pixmap());
}

TEST(Brush, IsSolidWithAColour)
{
    const QBrush brush(Qt::red);
    EXPECT_EQ(Qt::SolidPattern, brush.style());
    EXPECT_EQ(Qt::red, brush.color());
    EXPECT_EQ(Qt::Dense4Pattern, QBrush(Qt::red, Qt::Dense4Pattern).style());
    EXPECT_EQ(Qt::black, QBrush(Qt::CrossPattern).color());
}

TEST(Brush, CopiesChangeAlone)
{
    QBrush brush(Qt::red);
    const QBrush copy(brush);
    EXPECT_TRUE(brush == copy);
    brush.setColor(Qt::blue);
    EXPECT_TRUE(brush != copy);
    EXPECT_EQ(Qt::red, copy.color());
    brush = copy;
    brush.setStyle(Qt::CrossPattern);
    EXPECT_TRUE(brush != copy);
}

TEST(Brush, CarriesAPixmap)
{
    QPixmap tile(4, 4);
    tile.fill(Qt::green);
    QBrush brush(Qt::red, tile);
    EXPECT_EQ(Qt::CustomPattern, brush.style());
    ASSERT_NE(nullptr, brush.pixmap());
    EXPECT_EQ(4, brush.pixmap()->width());
    const QBrush copy(brush);
    EXPECT_TRUE(brush == copy);
    QPixmap other(4, 4);
    other.fill(Qt::green);
    brush.setPixmap(other);
    EXPECT_TRUE(brush != copy);
    EXPECT_EQ(4, copy.pixmap()->width());
}

TEST(Brush, ANullPixmapTakesThePatternAway)
{
    QPixmap tile(4, 4);
    QBrush brush(Qt::red, tile);
    brush.setPixmap(QPixmap());
    EXPECT_EQ(Qt::NoBrush, brush.style());
    EXPECT_EQ(nullptr, brush.pixmap());
}

TEST(Brush, WarnsOfAPatternWithoutPixmap)
{
    QBrush brush(Qt::red);
    brush.setStyle(Qt::CustomPattern);
    EXPECT_EQ("QBrush::setStyle: CustomPattern is for internal use\n", takeMessages());
}
