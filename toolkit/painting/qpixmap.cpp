// QPixmap.
#include <qbitmap.h>
#include <qimage.h>
#include <qpixmap.h>
#include <qwmatrix.h>

#include "painting/imagetransform.h"
#include "painting/pixmapdata.h"
#include "x11/blend.h"
#include "x11/colors.h"
#include "x11/connection.h"
#include "x11/draw.h"
#include "x11/pixmap.h"

#include <algorithm>

using zeltk::PixmapData;
namespace x11 = zeltk::x11;

namespace zeltk
{
FillFromWidgetFunction fillFromWidget = nullptr;
}

namespace
{

int nextSerial()
{
    static int last = 0;
    return ++last;
}

// All pixmaps are kept by the server whatever their optimization; it is only remembered.
QPixmap::Optimization defaultOptim = QPixmap::NormalOptim;

PixmapData* newData(int w, int h, int depth)
{
    PixmapData* data = new PixmapData{1, 0, 0, 0, false, false, nextSerial(), 0, 0, nullptr, defaultOptim};
    if (!x11::connected()) {
        qFatal("QPixmap: a QApplication is needed before any pixmap");
        return data;
    }
    if (depth != -1 && depth != 1 && depth != x11::depth())
        return data;
    if (w < 0 || h < 0)
        qWarning("QPixmap: Invalid pixmap parameters");
    if (w <= 0 || h <= 0 || w > 32767 || h > 32767)
        return data;
    data->width = w;
    data->height = h;
    data->depth = depth == 1 ? 1 : x11::depth();
    data->id = x11::createPixmap(w, h, data->depth);
    return data;
}

PixmapData* newLike(const PixmapData* other, int w, int h)
{
    PixmapData* data = newData(w, h, other->isBitmap || other->depth == 1 ? 1 : -1);
    data->isBitmap = other->isBitmap;
    return data;
}

PixmapData* nullData(bool isBitmap = false)
{
    return new PixmapData{1, 0, 0, 0, isBitmap, false, nextSerial(), 0, 0, nullptr, defaultOptim};
}

void release(PixmapData* data)
{
    if (--data->references > 0)
        return;
    delete data->mask;
    x11::freePixmap(data->alpha);
    x11::recyclePixmap(data->id, data->width, data->height, data->depth);
    delete data;
}

void copyPixels(const PixmapData* from, PixmapData* to)
{
    if (!from->id || !to->id)
        return;
    x11::GcKey plain;
    plain.bitmap = from->depth == 1;
    x11::copyArea(from->id, to->id, x11::gcFor(plain), 0, 0, std::min(from->width, to->width),
                  std::min(from->height, to->height), 0, 0);
}

uchar mirrored(uchar bits)
{
    uchar result = 0;
    for (int i = 0; i < 8; ++i)
        if (bits & 1 << i)
            result = static_cast<uchar>(result | 0x80 >> i);
    return result;
}

} // namespace

QPixmap::QPixmap() : QPaintDevice(PixmapDevice), d(nullData()) {}

QPixmap::QPixmap(int w, int h, int depth, Optimization optimization) : QPixmap()
{
    setData(newData(w, h, depth));
    setOptimization(optimization);
}

QPixmap::QPixmap(const QSize& size, int depth, Optimization optimization)
    : QPixmap(size.width(), size.height(), depth, optimization)
{
}

QPixmap::QPixmap(const QImage& image) : QPixmap()
{
    convertFromImage(image);
}

QPixmap::QPixmap(const QString& fileName, const char* format, ColorMode mode) : QPixmap()
{
    load(fileName, format, mode);
}

QPixmap::QPixmap(int w, int h, const uchar* data, bool isXbitmap) : QPixmap()
{
    PixmapData* own = newData(w, h, 1);
    if (own->id) {
        std::vector<uchar> bits(data, data + (w + 7) / 8 * h);
        if (!isXbitmap)
            std::transform(bits.begin(), bits.end(), bits.begin(), mirrored);
        x11::freePixmap(own->id);
        own->id = x11::createBitmap(bits.data(), w, h);
    }
    setData(own);
}

QPixmap::QPixmap(const QPixmap& other) : QPaintDevice(PixmapDevice), Qt(other), d(other.d)
{
    ++d->references;
    hd = d->id;
}

QPixmap::~QPixmap()
{
    release(d);
}

QPixmap& QPixmap::operator=(const QPixmap& other)
{
    if (paintingActive()) {
        qWarning("QPixmap::operator=: Cannot assign to pixmap during painting");
        return *this;
    }
    ++other.d->references;
    setData(other.d);
    return *this;
}

QPixmap& QPixmap::operator=(const QImage& image)
{
    convertFromImage(image);
    return *this;
}

void QPixmap::setData(PixmapData* data)
{
    release(d);
    d = data;
    hd = d->id;
}

void QPixmap::detach()
{
    if (d->references == 1)
        return;
    PixmapData* own = newLike(d, d->width, d->height);
    copyPixels(d, own);
    own->selfMask = d->selfMask;
    own->mask = d->mask ? new QBitmap(*d->mask) : nullptr;
    if (d->alpha)
        own->alpha = x11::createAlpha(x11::readAlpha(d->alpha, d->width, d->height), d->width, d->height);
    setData(own);
}

bool QPixmap::isNull() const
{
    return d->id == 0;
}

int QPixmap::width() const
{
    return d->width;
}

int QPixmap::height() const
{
    return d->height;
}

int QPixmap::depth() const
{
    return d->depth;
}

int QPixmap::defaultDepth()
{
    return x11::depth();
}

bool QPixmap::isQBitmap() const
{
    return d->isBitmap;
}

int QPixmap::serialNumber() const
{
    return d->serial;
}

// The old pixels need no copy when others share them: all of the new ones are painted.
void QPixmap::fill(const QColor& color)
{
    if (isNull())
        return;
    if (d->references > 1)
        setData(newLike(d, d->width, d->height));
    d->serial = nextSerial();
    x11::GcKey key;
    key.bitmap = d->depth == 1;
    key.foreground = key.bitmap ? color != Qt::color0 && color != Qt::white : color.pixel();
    x11::fillRectangle(d->id, x11::gcFor(key), 0, 0, d->width, d->height);
}

void QPixmap::fill(const QWidget* widget, int xofs, int yofs)
{
    if (!isNull() && zeltk::fillFromWidget)
        zeltk::fillFromWidget(this, widget, xofs, yofs);
}

void QPixmap::resize(int w, int h)
{
    if (w < 1 || h < 1) {
        setData(nullData(d->isBitmap));
        return;
    }
    if (w == d->width && h == d->height)
        return;
    PixmapData* fresh = newLike(d, w, h);
    copyPixels(d, fresh);
    setData(fresh);
}

const QBitmap* QPixmap::mask() const
{
    return d->mask;
}

bool QPixmap::selfMask() const
{
    return d->selfMask;
}

void QPixmap::setMask(const QBitmap& mask)
{
    if (static_cast<const QPixmap*>(&mask) == this) {
        d->selfMask = true;
        return;
    }
    if (!mask.isNull() && mask.size() != size()) {
        qWarning("QPixmap::setMask: The pixmap and the mask must have the same size");
        return;
    }
    detach();
    QBitmap* copy = mask.isNull() ? nullptr : new QBitmap(mask);
    delete d->mask;
    d->mask = copy;
    x11::freePixmap(d->alpha);
    d->alpha = 0;
    d->selfMask = false;
}

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

// Where the server cannot blend, pixels less than half opaque are transparent and the others opaque.
bool QPixmap::convertFromImage(const QImage& image, ColorMode)
{
    if (image.isNull()) {
        setData(nullData(d->isBitmap));
        return true;
    }
    const bool toBitmap = isQBitmap();
    PixmapData* fresh =
        toBitmap ? newLike(d, image.width(), image.height()) : newData(image.width(), image.height(), -1);
    if (!fresh->id) {
        release(fresh);
        return false;
    }
    std::vector<std::uint32_t> pixels;
    std::vector<std::uint32_t> opaque;
    std::vector<uchar> alpha;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            pixels.push_back(toBitmap ? qGray(pixel) < 128 : pixel);
            opaque.push_back(qAlpha(pixel) >= 128);
            alpha.push_back(static_cast<uchar>(qAlpha(pixel)));
        }
    x11::writePixels(fresh->id, toBitmap, pixels.data(), image.width(), image.height());
    setData(fresh);
    if (image.hasAlphaBuffer() &&
        std::count(alpha.begin(), alpha.end(), 0xff) < static_cast<long>(alpha.size())) {
        QBitmap visible(image.width(), image.height());
        x11::writePixels(visible.handle(), true, opaque.data(), image.width(), image.height());
        setMask(visible);
    }
    const auto between = [](uchar value) { return value != 0 && value != 0xff; };
    if (d->mask && !toBitmap && x11::canBlend() && std::any_of(alpha.begin(), alpha.end(), between))
        d->alpha = x11::createAlpha(alpha, d->width, d->height);
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

QPixmap::Optimization QPixmap::optimization() const
{
    return d->optimization;
}

void QPixmap::setOptimization(Optimization optimization)
{
    d->optimization = optimization == DefaultOptim ? defaultOptimization() : optimization;
}

QPixmap::Optimization QPixmap::defaultOptimization()
{
    return defaultOptim;
}

void QPixmap::setDefaultOptimization(Optimization optimization)
{
    defaultOptim = optimization == DefaultOptim ? NormalOptim : optimization;
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
    QPixmap pixmap(w < 0 ? width - x : w, h < 0 ? height - y : h);
    if (!pixmap.isNull()) {
        x11::GcKey key;
        key.overChildren = true;
        x11::copyArea(window, pixmap.handle(), x11::gcFor(key), x, y, pixmap.width(), pixmap.height(), 0, 0);
    }
    return pixmap;
}
