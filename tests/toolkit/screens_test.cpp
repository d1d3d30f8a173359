// What holds on every screen: few colours, no Render extension, other resolutions. CTest runs this on
// several.
#include "waiting.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qbitmap.h>
#include <qimage.h>
#include <qlabel.h>
#include <qpainter.h>
#include <qpaintdevice.h>

#include <algorithm>
#include <cstdlib>

namespace
{

int difference(QRgb a, QRgb b)
{
    return std::max(std::abs(qRed(a) - qRed(b)),
                    std::max(std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))));
}

// What colours lose on a screen with 5 bits for each part.
const int little = 8;
// Half of what lies between the six steps that pictures have on a screen with few colours.
const int pictureStep = 26;

QImage onScreen(QWidget* widget)
{
    return QPixmap::grabWindow(widget->winId()).convertToImage();
}

int countNear(const QImage& image, const QColor& color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += difference(image.pixel(x, y), color.rgb()) <= little;
    return count;
}

} // namespace

TEST(EveryScreen, ShowsColours)
{
    const QColor colors[] = {
        Qt::black,       Qt::white,          Qt::red, QColor(192, 192, 192), QColor(8, 150, 90),
        QColor(1, 2, 3), QColor(250, 120, 5)};
    for (const QColor& color : colors) {
        QPixmap pixmap(4, 4);
        pixmap.fill(color);
        EXPECT_LE(difference(color.rgb(), pixmap.convertToImage().pixel(2, 2)), little)
            << color.name().latin1();
    }
}

TEST(EveryScreen, ShowsPictures)
{
    QImage image(64, 64, 32);
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x)
            image.setPixel(x, y, qRgb(x * 4, y * 4, (x + y) * 2));
    const QImage shown = QPixmap(image).convertToImage();
    int worst = 0;
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x)
            worst = std::max(worst, difference(image.pixel(x, y), shown.pixel(x, y)));
    EXPECT_LE(worst, pictureStep);
    QPixmap after(1, 1);
    after.fill(QColor(77, 88, 99));
    EXPECT_LE(difference(qRgb(77, 88, 99), after.convertToImage().pixel(0, 0)), little)
        << "pictures leave colours for others";
}

// Neither invisible nor a block in its ground.
TEST(EveryScreen, ShowsTexts)
{
    QLabel label("Some text", nullptr, "label");
    label.setPaletteForegroundColor(QColor(0, 0, 220));
    label.setPaletteBackgroundColor(QColor(200, 210, 190));
    label.setAlignment(Qt::AlignCenter);
    label.resize(label.sizeHint() + QSize(20, 10));
    showAndWait(&label);
    const QImage image = onScreen(&label);
    const int text = countNear(image, QColor(0, 0, 220));
    const int ground = countNear(image, QColor(200, 210, 190));
    const int all = image.width() * image.height();
    EXPECT_GT(text, all / 200);
    EXPECT_LT(text, all / 4);
    EXPECT_GT(ground, all / 2);
}

TEST(EveryScreen, ShowsTurnedTextsWithinTheClip)
{
    QPixmap pixmap(60, 120);
    pixmap.fill(Qt::white);
    {
        QPainter painter(&pixmap);
        painter.setClipRect(0, 0, 60, 60);
        painter.rotate(90);
        painter.drawText(5, -20, "Downwards");
    }
    const QImage image = pixmap.convertToImage();
    EXPECT_GT(countNear(image.copy(0, 0, 60, 60), Qt::black), 10);
    EXPECT_EQ(60 * 60, countNear(image.copy(0, 60, 60, 60), Qt::white));
}

TEST(EveryScreen, ShowsTextsOnBitmaps)
{
    QBitmap bitmap(80, 20);
    bitmap.fill(Qt::color0);
    QPainter(&bitmap).drawText(5, 15, "Text");
    EXPECT_GT(countNear(bitmap.convertToImage(), Qt::black), 20);
}

TEST(EveryScreen, InvertedTextComesAndGoes)
{
    QPixmap pixmap(80, 24);
    pixmap.fill(Qt::white);
    for (int times = 1; times <= 2; ++times) {
        QPainter painter(&pixmap);
        painter.setRasterOp(Qt::NotROP);
        painter.drawText(5, 18, "Text");
        painter.end();
        const int dark = 80 * 24 - countNear(pixmap.convertToImage(), Qt::white);
        if (times == 1) {
            EXPECT_GT(dark, 20);
            EXPECT_LT(dark, 80 * 24 / 3);
        } else {
            EXPECT_EQ(0, dark);
        }
    }
}

TEST(EveryScreen, ShowsWhatIsHalfTransparent)
{
    QImage image(2, 1, 32);
    image.setAlphaBuffer(true);
    image.setPixel(0, 0, qRgba(255, 0, 0, 200));
    image.setPixel(1, 0, qRgba(255, 0, 0, 20));
    QPixmap ground(2, 1);
    ground.fill(Qt::white);
    QPainter(&ground).drawPixmap(0, 0, QPixmap(image));
    const QImage drawn = ground.convertToImage();
    EXPECT_LT(qGreen(drawn.pixel(0, 0)), 128);
    EXPECT_GT(qGreen(drawn.pixel(1, 0)), 128);
}

// Points are as large as the screen says, pixels are not.
TEST(EveryScreen, HasLettersOfItsResolution)
{
    QFont points("DejaVu Sans", 10);
    QFont pixels("DejaVu Sans");
    pixels.setPixelSize(qRound(10 * QPaintDevice::x11AppDpiY() / 72.0));
    EXPECT_EQ(QFontMetrics(pixels).height(), QFontMetrics(points).height());
    EXPECT_EQ(QFontMetrics(pixels).width("Some text"), QFontMetrics(points).width("Some text"));
}
