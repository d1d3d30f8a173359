// Pixmaps: sizes, sharing, masks, turning, grabbing.
#include "pixels.h"
#include "messages.h"
#include "waiting.h"

#include <gtest/gtest.h>
#include <qbitmap.h>
#include <qimage.h>
#include <qpainter.h>
#include <qwidget.h>
#include <qwmatrix.h>

// Red at half strength over white, and nothing where it is transparent.
TEST(PixmapMasks, BlendWhatIsHalfTransparent)
{
    QImage image(3, 1, 32);
    image.setAlphaBuffer(true);
    image.setPixel(0, 0, qRgba(255, 0, 0, 128));
    image.setPixel(1, 0, qRgba(255, 0, 0, 0));
    image.setPixel(2, 0, qRgba(0, 0, 255, 255));
    QPixmap pixmap(image);
    ASSERT_TRUE(pixmap.mask());
    QPixmap ground(5, 3);
    ground.fill(Qt::white);
    QPainter(&ground).drawPixmap(1, 1, pixmap);
    QImage drawn = ground.convertToImage();
    EXPECT_EQ(qRgb(255, 127, 127), drawn.pixel(1, 1));
    EXPECT_EQ(qRgb(255, 255, 255), drawn.pixel(2, 1));
    EXPECT_EQ(qRgb(0, 0, 255), drawn.pixel(3, 1));
    EXPECT_EQ(qRgb(255, 255, 255), drawn.pixel(1, 0));
    EXPECT_EQ(image, pixmap.convertToImage()) << "the picture itself stays as it was";

    ground.fill(Qt::white);
    {
        QPainter painter(&ground);
        painter.setClipRect(2, 0, 2, 3);
        painter.drawPixmap(1, 1, pixmap);
    }
    EXPECT_EQ(qRgb(255, 255, 255), ground.convertToImage().pixel(1, 1)) << "outside of the clip";
    EXPECT_EQ(qRgb(0, 0, 255), ground.convertToImage().pixel(3, 1));

    QPixmap copy(pixmap);
    copy.detach();
    EXPECT_EQ(image, copy.convertToImage());
    bitBlt(&ground, 0, 0, &pixmap, 0, 0, -1, -1, Qt::CopyROP, true);
    EXPECT_EQ(qRgb(255, 0, 0), ground.convertToImage().pixel(0, 0)) << "without its mask";
    pixmap.setMask(QBitmap());
    EXPECT_FALSE(pixmap.convertToImage().hasAlphaBuffer());
}

TEST(PixmapConversion, OfANullImageIsNull)
{
    QPixmap pixmap(3, 3);
    EXPECT_TRUE(pixmap.convertFromImage(QImage()));
    EXPECT_TRUE(pixmap.isNull());
    EXPECT_EQ("", takeMessages());
}

TEST(PixmapSizes, AreKept)
{
    const QPixmap pixmap(30, 20);
    EXPECT_FALSE(pixmap.isNull());
    EXPECT_EQ(QRect(0, 0, 30, 20), pixmap.rect());
    EXPECT_EQ(QPixmap::defaultDepth(), pixmap.depth());
    EXPECT_FALSE(pixmap.isQBitmap());
    EXPECT_NE(0u, pixmap.handle());
}

TEST(PixmapSizes, OfZeroMakeNullPixmaps)
{
    EXPECT_TRUE(QPixmap().isNull());
    EXPECT_TRUE(QPixmap(0, 5).isNull());
    EXPECT_EQ(QSize(0, 0), QPixmap(0, 5).size());
    EXPECT_EQ(0, QPixmap().depth());
    takeMessages();
}

TEST(PixmapSizes, ChangeWithResize)
{
    QPixmap pixmap(4, 2);
    pixmap.fill(Qt::red);
    pixmap.resize(2, 4);
    EXPECT_EQ(QSize(2, 4), pixmap.size());
    EXPECT_EQ(0xff0000u, Pixels::of(pixmap).at(1, 1));
    pixmap.resize(0, 0);
    EXPECT_TRUE(pixmap.isNull());
}

TEST(PixmapDepths, OfOneNeedNotBeBitmaps)
{
    EXPECT_EQ(1, QPixmap(8, 8, 1).depth());
    EXPECT_FALSE(QPixmap(8, 8, 1).isQBitmap());
    EXPECT_TRUE(QBitmap(8, 8).isQBitmap());
    QPixmap copy(QPixmap(8, 8, 1));
    copy.fill(Qt::color1);
    EXPECT_EQ(1, copy.depth());
}

TEST(PixmapSharing, EndsWhenACopyIsFilledOrPaintedOn)
{
    QPixmap first(3, 1);
    first.fill(Qt::red);
    QPixmap second = first;
    EXPECT_EQ(first.serialNumber(), second.serialNumber());
    EXPECT_EQ(first.handle(), second.handle());
    second.fill(Qt::blue);
    EXPECT_EQ(3, Pixels::of(first).count(0xff0000));
    EXPECT_NE(first.serialNumber(), second.serialNumber());
    QPixmap third = first;
    {
        QPainter painter(&third);
        painter.drawPoint(1, 0);
    }
    EXPECT_EQ(3, Pixels::of(first).count(0xff0000));
    EXPECT_EQ("r#r\n", Pixels::of(third).picture({{'r', 0xff0000}, {'#', 0}}));
}

TEST(PixmapSharing, WaitsForPainters)
{
    QPixmap pixmap(2, 2);
    QPainter painter(&pixmap);
    pixmap = QPixmap(5, 5);
    EXPECT_NE("", takeMessages());
    EXPECT_EQ(2, pixmap.width());
}

TEST(PixmapMasks, LetTheGroundShowThrough)
{
    QBitmap mask(3, 1, true);
    {
        QPainter painter(&mask);
        painter.drawPoint(1, 0);
    }
    QPixmap pixmap(3, 1);
    pixmap.fill(Qt::blue);
    EXPECT_FALSE(pixmap.hasAlpha());
    pixmap.setMask(mask);
    ASSERT_TRUE(pixmap.mask());
    EXPECT_TRUE(pixmap.hasAlpha());
    QPixmap ground(3, 1);
    ground.fill(Qt::white);
    {
        QPainter painter(&ground);
        painter.drawPixmap(0, 0, pixmap);
    }
    EXPECT_EQ(".b.\n", Pixels::of(ground).picture({{'.', 0xffffff}, {'b', 0x0000ff}}));
    pixmap.setMask(QBitmap());
    EXPECT_FALSE(pixmap.mask());
}

TEST(PixmapMasks, StayWhenThePixmapIsFilledWhetherSharedOrNot)
{
    QBitmap mask(4, 4, true);
    QPixmap alone(4, 4);
    alone.setMask(mask);
    QPixmap shared(alone);
    for (QPixmap* pixmap : {&alone, &shared}) {
        pixmap->fill(Qt::red);
        ASSERT_TRUE(pixmap->mask());
        EXPECT_EQ(0u, pixmap->convertToImage().pixel(1, 1) >> 24);
    }
    bitBlt(&alone, 0, 0, &shared, 0, 0, -1, -1, Qt::CopyROP, true);
    EXPECT_EQ(qRgb(255, 0, 0) & RGB_MASK, alone.convertToImage().pixel(1, 1) & RGB_MASK);
}

TEST(PixmapMasks, MustFit)
{
    QPixmap pixmap(3, 1);
    pixmap.setMask(QBitmap(2, 2));
    EXPECT_NE("", takeMessages());
    EXPECT_FALSE(pixmap.mask());
}

TEST(PixmapMasks, ComeFromTransparentImages)
{
    QImage image(2, 1, 32);
    image.setAlphaBuffer(true);
    image.setPixel(0, 0, qRgba(255, 0, 0, 255));
    image.setPixel(1, 0, qRgba(255, 0, 0, 10));
    const QPixmap pixmap(image);
    ASSERT_TRUE(pixmap.mask());
    EXPECT_EQ("#.\n", Pixels::of(*pixmap.mask()).picture({{'.', 0}, {'#', 1}}));
    EXPECT_TRUE(pixmap.convertToImage().hasAlphaBuffer());
    EXPECT_EQ(10, qAlpha(pixmap.convertToImage().pixel(1, 0)));
}

TEST(PixmapTransform, ScalesAndTurns)
{
    QPixmap pixmap(3, 2);
    pixmap.fill(Qt::red);
    {
        QPainter painter(&pixmap);
        painter.drawPoint(0, 0);
    }
    QWMatrix scaling;
    scaling.scale(2, 1);
    EXPECT_EQ("##rrrr\nrrrrrr\n", Pixels::of(pixmap.xForm(scaling)).picture({{'r', 0xff0000}, {'#', 0}}));
    QWMatrix turning;
    turning.rotate(90);
    EXPECT_EQ("r#\nrr\nrr\n", Pixels::of(pixmap.xForm(turning)).picture({{'r', 0xff0000}, {'#', 0}}));
    const QWMatrix whole = QPixmap::trueMatrix(turning, 3, 2);
    EXPECT_NEAR(2.0, whole.dx(), 1e-9);
    EXPECT_NEAR(0.0, whole.dy(), 1e-9);
}

TEST(PixmapConversion, KeepsThePixels)
{
    QImage image(5, 4, 32);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 5; ++x)
            image.setPixel(x, y, qRgb(x * 40, y * 60, 99));
    QPixmap pixmap;
    EXPECT_TRUE(pixmap.convertFromImage(image));
    EXPECT_EQ(image, pixmap.convertToImage());
    EXPECT_TRUE(QPixmap().convertToImage().isNull());
}

TEST(PixmapGrabbing, TakesWhatIsOnTheScreen)
{
    QWidget widget;
    widget.setGeometry(100, 100, 40, 30);
    widget.setPaletteBackgroundColor(Qt::yellow);
    showAndWait(&widget);
    {
        QPainter painter(&widget);
        painter.fillRect(0, 0, 10, 10, Qt::red);
    }
    settle();
    const QPixmap whole = QPixmap::grabWindow(widget.winId());
    EXPECT_EQ(QSize(40, 30), whole.size());
    EXPECT_EQ(Pixels::of(&widget), Pixels::of(whole));
    EXPECT_EQ(QSize(10, 5), QPixmap::grabWindow(widget.winId(), 5, 5, 10, 5).size());
    EXPECT_EQ(QSize(35, 25), QPixmap::grabWindow(widget.winId(), 5, 5).size());
}

TEST(PixmapOptimization, IsRemembered)
{
    const QPixmap::Optimization before = QPixmap::defaultOptimization();
    QPixmap::setDefaultOptimization(QPixmap::BestOptim);
    EXPECT_EQ(QPixmap::BestOptim, QPixmap(2, 2).optimization());
    QPixmap::setDefaultOptimization(before);
    QPixmap pixmap(2, 2);
    pixmap.setOptimization(QPixmap::MemoryOptim);
    EXPECT_EQ(QPixmap::MemoryOptim, pixmap.optimization());
}

TEST(PixmapOptimization, StaysWithThePixmap)
{
    const QPixmap best(5, 5, -1, QPixmap::BestOptim);
    QPixmap detached(best), filled(best), resized(best), converted(best);
    detached.detach();
    filled.fill(Qt::red);
    resized.resize(7, 7);
    converted.convertFromImage(QImage(3, 3, 32));
    for (const QPixmap* pixmap : {&detached, &filled, &resized, &converted})
        EXPECT_EQ(QPixmap::BestOptim, pixmap->optimization());
}

TEST(PixmapFilling, WithNoWidgetLeavesItAsItIs)
{
    QPixmap pixmap(2, 2);
    pixmap.fill(Qt::red);
    pixmap.fill(static_cast<QWidget*>(nullptr), 0, 0);
    EXPECT_EQ(qRgb(255, 0, 0), pixmap.convertToImage().pixel(1, 1));
}
