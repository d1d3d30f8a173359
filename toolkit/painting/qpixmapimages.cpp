// QPixmap: its pixels from images, files and windows, and back.
#include <qbitmap.h>
#include <qimage.h>
#include <qwmatrix.h>

#include "painting/imagetransform.h"
#include "painting/pixmapdata.h"
#include "x11/blend.h"
#include "x11/draw.h"
#include "x11/pixmap.h"

#include <algorithm>

using zeltk::PixmapData;
namespace x11 = zeltk::x11;

namespace
{

// A bitmap's pixels are its dark ones.
std::vector<std::uint32_t> pixelsOf(const QImage& image, bool forBitmap)
{
    std::vector<std::uint32_t> pixels;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            pixels.push_back(forBitmap ? qGray(pixel) < 128 : pixel);
        }
    return pixels;
}

std::vector<uchar> alphaOf(const QImage& image)
{
    std::vector<uchar> alpha;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            alpha.push_back(static_cast<uchar>(qAlpha(image.pixel(x, y))));
    return alpha;
}

// Pixels less than half opaque are transparent.
QBitmap maskOf(const std::vector<uchar>& alpha, int width, int height)
{
    std::vector<std::uint32_t> opaque(alpha.size());
    std::transform(alpha.begin(), alpha.end(), opaque.begin(), [](uchar value) { return value >= 128; });
    QBitmap mask(width, height);
    x11::writePixels(mask.handle(), true, opaque.data(), width, height);
    return mask;
}

// Where the server cannot blend, the mask is all there is.
void takeAlpha(QPixmap* pixmap, const QImage& image)
{
    const std::vector<uchar> alpha = alphaOf(image);
    const auto isOpaque = [](uchar value) { return value == 0xff; };
    if (std::all_of(alpha.begin(), alpha.end(), isOpaque))
        return;
    pixmap->setMask(maskOf(alpha, image.width(), image.height()));
    const auto isBetween = [](uchar value) { return value != 0 && value != 0xff; };
    if (!pixmap->isQBitmap() && x11::canBlend() && std::any_of(alpha.begin(), alpha.end(), isBetween))
        zeltk::PixmapAccess::data(pixmap)->alpha = x11::createAlpha(alpha, image.width(), image.height());
}

} // namespace

QImage QPixmap::convertToImage() const
{
    if (isNull())
        return QImage();
    QImage image(d->width, d->height, 32);
    const std::vector<std::uint32_t> pixels =
        x11::readPixels(d->id, d->depth == 1, 0, 0, d->width, d->height);
    if (pixels.empty())
        return QImage();
    const std::vector<std::uint32_t> opaque =
        d->mask ? x11::readPixels(d->mask->handle(), true, 0, 0, d->width, d->height)
                : std::vector<std::uint32_t>();
    const std::vector<uchar> alpha =
        d->alpha ? x11::readAlpha(d->alpha, d->width, d->height) : std::vector<uchar>();
    image.setAlphaBuffer(!opaque.empty());
    for (size_t i = 0; i < pixels.size(); ++i) {
        const uint color = d->depth == 1 ? (pixels[i] ? 0xff000000 : 0xffffffff) : pixels[i];
        const uint visible = !alpha.empty() ? alpha[i] : opaque.empty() || opaque[i] ? 0xff : 0;
        image.setPixel(static_cast<int>(i) % d->width, static_cast<int>(i) / d->width,
                       visible << 24 | (color & RGB_MASK));
    }
    return image;
}

bool QPixmap::convertFromImage(const QImage& image, ColorMode)
{
    if (image.isNull()) {
        setData(zeltk::newNullPixmapData(d->isBitmap));
        return true;
    }
    const bool toBitmap = isQBitmap();
    PixmapData* fresh = zeltk::newPixmapData(image.width(), image.height(), toBitmap ? 1 : -1);
    if (!fresh->id) {
        delete fresh;
        return false;
    }
    fresh->isBitmap = toBitmap;
    fresh->optimization = d->optimization;
    x11::writePixels(fresh->id, toBitmap, pixelsOf(image, toBitmap).data(), image.width(), image.height());
    setData(fresh);
    if (image.hasAlphaBuffer())
        takeAlpha(this, image);
    return true;
}

QPixmap QPixmap::xForm(const QWMatrix& matrix) const
{
    if (isNull())
        return QPixmap();
    QPoint origin;
    const QImage image = zeltk::transformed(convertToImage(), matrix, &origin);
    QPixmap result;
    if (!image.isNull())
        result.convertFromImage(image);
    return result;
}

QWMatrix QPixmap::trueMatrix(const QWMatrix& matrix, int w, int h)
{
    double left;
    double top;
    int width;
    int height;
    zeltk::placeOf(matrix, w, h, &left, &top, &width, &height);
    return QWMatrix(matrix.m11(), matrix.m12(), matrix.m21(), matrix.m22(), -left, -top);
}

bool QPixmap::load(const QString& fileName, const char* format, ColorMode mode)
{
    QImage image;
    return image.load(fileName, format) && convertFromImage(image, mode);
}

bool QPixmap::save(const QString& fileName, const char* format, int quality) const
{
    return !isNull() && convertToImage().save(fileName, format, quality);
}

QPixmap QPixmap::grabWindow(WId window, int x, int y, int w, int h)
{
    int width = 0;
    int height = 0;
    if (!x11::drawableSize(window, &width, &height))
        return QPixmap();
    QPixmap pixmap(w < 0 ? zeltk::difference(width, x) : w, h < 0 ? zeltk::difference(height, y) : h);
    if (!pixmap.isNull()) {
        x11::GcKey key;
        key.overChildren = true;
        x11::copyArea(window, pixmap.handle(), x11::gcFor(key), x, y, pixmap.width(), pixmap.height(), 0, 0);
    }
    return pixmap;
}
