// Pixmaps that come and go: what they leave behind in the X server, and that nobody sees the picture of
// another.
#include "waiting.h"
#include "xtraffic.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qbitmap.h>
#include <qimage.h>
#include <qpainter.h>
#include <qwidget.h>

namespace
{

XTraffic sentSoFar()
{
    QApplication::flushX();
    return sentToX();
}

QPixmap colored(int width, int height, const QColor& color)
{
    QPixmap pixmap(width, height);
    pixmap.fill(color);
    return pixmap;
}

QRgb pixelOf(const QPixmap& pixmap, int x, int y)
{
    return pixmap.convertToImage().pixel(x, y) & RGB_MASK;
}

TEST(PixmapReuse, TheSameSizeOverAndOverMakesNoNewOnes)
{
    colored(64, 48, Qt::red);
    const XTraffic before = sentSoFar();
    for (int i = 0; i < 100; ++i)
        QPixmap(64, 48);
    const XTraffic made = sentSoFar() - before;
    EXPECT_EQ(made.requests, 0u);
    EXPECT_EQ(made.pixmaps, 0);
}

TEST(PixmapReuse, OnlyAFewAreKept)
{
    const XTraffic before = sentSoFar();
    for (int i = 1; i <= 50; ++i)
        colored(i, 10, Qt::red);
    EXPECT_LE((sentSoFar() - before).pixmaps, 4);
    std::vector<QPixmap> many(50);
    for (QPixmap& pixmap : many)
        pixmap = QPixmap(20, 20);
    EXPECT_GE((sentSoFar() - before).pixmaps, 46);
    many.clear();
    EXPECT_LE((sentSoFar() - before).pixmaps, 4);
}

TEST(PixmapReuse, LargeOnesAreGivenBack)
{
    colored(64, 48, Qt::red);
    for (int i = 0; i < 3; ++i) {
        const XTraffic before = sentSoFar();
        const QPixmap large(2500, 2000);
        EXPECT_EQ((sentSoFar() - before).pixmaps, 1);
    }
    const XTraffic before = sentSoFar();
    QPixmap(64, 48); // the small one is still there
    EXPECT_EQ((sentSoFar() - before).requests, 0u);
}

TEST(PixmapReuse, LivingOnesKeepTheirPictures)
{
    const QPixmap red = colored(30, 30, Qt::red);
    const QPixmap copy = red;
    {
        QPixmap changed = copy;
        changed.fill(Qt::blue);
    }
    const QPixmap green = colored(30, 30, Qt::green);
    EXPECT_EQ(pixelOf(red, 5, 5), 0xff0000u);
    EXPECT_EQ(pixelOf(copy, 5, 5), 0xff0000u);
    EXPECT_EQ(pixelOf(green, 5, 5), 0x00ff00u);
}

TEST(PixmapReuse, DepthsStayApart)
{
    {
        QBitmap dropped(33, 33, true);
    }
    const QPixmap picture = colored(33, 33, Qt::blue);
    EXPECT_EQ(picture.depth(), QPixmap::defaultDepth());
    EXPECT_EQ(pixelOf(picture, 32, 32), 0x0000ffu);
}

TEST(PixmapReuse, ABrushPaintsWithItsOwnPattern)
{
    QPixmap canvas(60, 60);
    const QColor colors[] = {Qt::red, Qt::green, Qt::blue};
    for (const QColor& color : colors) {
        QPainter painter(&canvas);
        painter.fillRect(0, 0, 60, 60, QBrush(Qt::black, colored(16, 16, color)));
        painter.end();
        EXPECT_EQ(pixelOf(canvas, 40, 40), color.rgb() & RGB_MASK);
    }
}

TEST(PixmapReuse, TheGroundOfAWindowStays)
{
    QWidget window;
    window.setGeometry(50, 50, 80, 80);
    window.setPaletteBackgroundPixmap(colored(16, 16, Qt::red));
    showAndWait(&window);
    const QPixmap other = colored(16, 16, Qt::blue);
    window.erase();
    EXPECT_EQ(pixelOf(QPixmap::grabWindow(window.winId()), 40, 40), 0xff0000u);
    window.setPaletteBackgroundPixmap(colored(16, 16, Qt::green));
    const QPixmap another = colored(16, 16, Qt::blue);
    window.erase();
    EXPECT_EQ(pixelOf(QPixmap::grabWindow(window.winId()), 40, 40), 0x00ff00u);
}

} // namespace
