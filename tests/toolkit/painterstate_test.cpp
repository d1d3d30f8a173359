// Opening and closing painters, and what they begin with.
#include "messages.h"
#include "sheet.h"
#include "waiting.h"

#include <gtest/gtest.h>
#include <qbitmap.h>
#include <qwidget.h>

TEST(PainterState, BeginsWithABlackPenAndNoBrush)
{
    QPixmap pixmap(4, 4);
    QPainter painter;
    EXPECT_FALSE(painter.isActive());
    ASSERT_TRUE(painter.begin(&pixmap));
    EXPECT_TRUE(painter.isActive());
    EXPECT_TRUE(pixmap.paintingActive());
    EXPECT_EQ(&pixmap, painter.device());
    EXPECT_EQ(QPen(Qt::black, 0), painter.pen());
    EXPECT_EQ(Qt::NoBrush, painter.brush().style());
    EXPECT_EQ(Qt::white, painter.backgroundColor());
    EXPECT_EQ(Qt::TransparentMode, painter.backgroundMode());
    EXPECT_TRUE(painter.end());
    EXPECT_FALSE(pixmap.paintingActive());
}

TEST(PainterState, TakesColoursAndFontFromAWidget)
{
    QWidget widget;
    widget.setPaletteForegroundColor(Qt::red);
    widget.setPaletteBackgroundColor(Qt::yellow);
    widget.setFont(QFont("DejaVu Serif", 14));
    QPixmap pixmap(4, 4);
    QPainter painter(&pixmap, &widget);
    EXPECT_EQ(Qt::red, painter.pen().color());
    EXPECT_EQ(Qt::yellow, painter.backgroundColor());
    EXPECT_EQ(14, painter.font().pointSize());
}

TEST(PainterState, CannotBeginTwice)
{
    QPixmap pixmap(4, 4);
    QPainter painter(&pixmap);
    EXPECT_FALSE(painter.begin(&pixmap));
    EXPECT_NE("", takeMessages());
    EXPECT_TRUE(painter.end());
    EXPECT_FALSE(painter.end());
    EXPECT_NE("", takeMessages());
}

TEST(PainterState, CannotBeginOnNullPixmaps)
{
    QPixmap null;
    QPainter painter;
    EXPECT_FALSE(painter.begin(&null));
    EXPECT_NE("", takeMessages());
    painter.setPen(Qt::red);
    painter.drawLine(0, 0, 5, 5);
    painter.drawText(0, 0, "nothing");
    painter.fillRect(0, 0, 5, 5, Qt::red);
    EXPECT_FALSE(painter.isActive());
    takeMessages();
}

TEST(PainterState, IsSavedAndRestored)
{
    Sheet sheet(2, 2);
    sheet.painter.save();
    sheet.painter.setPen(Qt::red);
    sheet.painter.setBrush(Qt::blue);
    sheet.painter.setRasterOp(Qt::XorROP);
    sheet.painter.save();
    sheet.painter.setPen(Qt::yellow);
    sheet.painter.restore();
    EXPECT_EQ(Qt::red, sheet.painter.pen().color());
    sheet.painter.restore();
    EXPECT_EQ(Qt::black, sheet.painter.pen().color());
    EXPECT_EQ(Qt::NoBrush, sheet.painter.brush().style());
    EXPECT_EQ(Qt::CopyROP, sheet.painter.rasterOp());
    sheet.painter.restore();
    EXPECT_NE("", takeMessages());
}

TEST(PainterState, DrawsOnBitmapsInZeroAndOne)
{
    QBitmap bitmap(3, 1, true);
    QPainter painter(&bitmap);
    EXPECT_EQ(Qt::color1, painter.pen().color());
    painter.drawPoint(1, 0);
    painter.end();
    EXPECT_EQ(".#.\n", Pixels::of(bitmap).picture({{'.', 0}, {'#', 1}}));
}

TEST(PainterState, ReachesTheScreenAtOnce)
{
    QWidget widget;
    widget.setGeometry(100, 100, 40, 30);
    showAndWait(&widget);
    QPainter painter(&widget);
    painter.fillRect(5, 5, 10, 10, Qt::red);
    painter.end();
    EXPECT_EQ(100, Pixels::of(&widget).count(0xff0000));
}

TEST(PainterState, SparesChildrenUnlessUnclipped)
{
    QWidget widget;
    widget.setGeometry(100, 100, 40, 30);
    QWidget child(&widget);
    child.setGeometry(0, 0, 20, 30);
    child.setPaletteBackgroundColor(Qt::yellow);
    showAndWait(&widget);
    {
        QPainter painter(&widget);
        painter.fillRect(0, 0, 40, 30, Qt::red);
    }
    EXPECT_EQ(20 * 30, Pixels::of(&widget).count(0xffff00));
    {
        QPainter painter(&widget, true);
        painter.fillRect(0, 0, 40, 30, Qt::red);
    }
    EXPECT_EQ(0, Pixels::of(&widget).count(0xffff00));
}

TEST(PainterState, MayBeRedirected)
{
    QPixmap wanted(2, 2);
    QPixmap instead(2, 2);
    wanted.fill(Qt::white);
    instead.fill(Qt::white);
    QPainter::redirect(&wanted, &instead);
    EXPECT_EQ(&instead, QPainter::redirect(&wanted));
    {
        QPainter painter(&wanted);
        painter.fillRect(0, 0, 2, 2, Qt::red);
    }
    QPainter::redirect(&wanted, 0);
    EXPECT_EQ(4, Pixels::of(wanted).count(0xffffff));
    EXPECT_EQ(4, Pixels::of(instead).count(0xff0000));
}
