// QPixmap.
#include <qbitmap.h>
#include <qpixmap.h>

#include "painting/pixmapdata.h"
#include "tools/shared.h"
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

// All pixmaps are kept by the server whatever their optimization; it is only remembered.
QPixmap::Optimization defaultOptim = QPixmap::NormalOptim;

uchar mirrored(uchar bits)
{
    uchar result = 0;
    for (int i = 0; i < 8; ++i)
        if (bits & 1 << i)
            result = static_cast<uchar>(result | 0x80 >> i);
    return result;
}

} // namespace

QPixmap::QPixmap() : QPaintDevice(PixmapDevice), d(zeltk::newNullPixmapData(false)) {}

QPixmap::QPixmap(int w, int h, int depth, Optimization optimization) : QPixmap()
{
    setData(zeltk::newPixmapData(w, h, depth));
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
    PixmapData* own = zeltk::newPixmapData(w, h, 1);
    if (own->id) {
        std::vector<uchar> bits(data, data + (w + 7) / 8 * h);
        if (!isXbitmap)
            std::transform(bits.begin(), bits.end(), bits.begin(), mirrored);
        x11::freePixmap(own->id);
        own->id = x11::createBitmap(bits.data(), w, h);
    }
    setData(own);
}

QPixmap::QPixmap(const QPixmap& other) : QPaintDevice(PixmapDevice), Qt(other), d(zeltk::shared(other.d))
{
    hd = d->id;
}

QPixmap::~QPixmap()
{
    zeltk::release(d);
}

QPixmap& QPixmap::operator=(const QPixmap& other)
{
    if (paintingActive()) {
        qWarning("QPixmap::operator=: Cannot assign to pixmap during painting");
        return *this;
    }
    setData(zeltk::shared(other.d));
    return *this;
}

QPixmap& QPixmap::operator=(const QImage& image)
{
    convertFromImage(image);
    return *this;
}

void QPixmap::setData(PixmapData* data)
{
    zeltk::release(d);
    d = data;
    hd = d->id;
}

void QPixmap::detach()
{
    if (d->references == 1)
        return;
    PixmapData* own = zeltk::newPixmapTwin(d);
    zeltk::copyPixels(d, own);
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
        setData(zeltk::newPixmapTwin(d));
    d->serial = zeltk::nextPixmapSerial();
    x11::GcKey key;
    key.bitmap = d->depth == 1;
    key.foreground = key.bitmap ? color != Qt::color0 && color != Qt::white : color.pixel();
    x11::fillRectangle(d->id, x11::gcFor(key), 0, 0, d->width, d->height);
}

void QPixmap::fill(const QWidget* widget, int xofs, int yofs)
{
    if (!isNull() && widget && zeltk::fillFromWidget)
        zeltk::fillFromWidget(this, widget, xofs, yofs);
}

void QPixmap::resize(int w, int h)
{
    if (w < 1 || h < 1) {
        setData(zeltk::newNullPixmapData(d->isBitmap));
        return;
    }
    if (w == d->width && h == d->height)
        return;
    PixmapData* fresh = zeltk::newPixmapDataLike(d, w, h);
    zeltk::copyPixels(d, fresh);
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
