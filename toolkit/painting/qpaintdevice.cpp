// QPaintDevice and bitBlt.
#include <qpaintdevice.h>

#include "painting/paintdeviceprivate.h"
#include "painting/pixmapdata.h"
#include "painting/rasterops.h"
#include "x11/blend.h"
#include "x11/colors.h"
#include "x11/connection.h"
#include "x11/draw.h"
#include "x11/pixmap.h"

#include <qbitmap.h>
#include <qregion.h>

namespace x11 = zeltk::x11;

QPaintDevice::QPaintDevice(uint kind) : hd(0), deviceKind(kind), painters(0) {}

QPaintDevice::~QPaintDevice()
{
    if (paintingActive())
        qWarning("QPaintDevice: Cannot destroy paint device that is being painted");
}

Qt::HANDLE QPaintDevice::handle() const
{
    return hd;
}

int QPaintDevice::x11AppDpiX()
{
    return x11::dpiX();
}

int QPaintDevice::x11AppDpiY()
{
    return x11::dpiY();
}

int QPaintDevice::x11AppDepth()
{
    return x11::depth();
}

namespace
{

const QPixmap* asPixmap(const QPaintDevice* device)
{
    return zeltk::PaintDeviceAccess::isWidget(device) ? nullptr : static_cast<const QPixmap*>(device);
}

// Copies what the mask lets through.
void blitMasked(x11::GcKey key, Qt::HANDLE to, int dx, int dy, const QPixmap* from, int sx, int sy, int w,
                int h)
{
    key.fill = x11::FillWithColor;
    const QRegion visible(*from->mask());
    const QMemArray<QRect> rects = (visible & QRegion(sx, sy, w, h)).rects();
    for (uint i = 0; i < rects.size(); ++i) {
        const QRect& r = rects.at(i);
        x11::copyArea(from->handle(), to, x11::gcFor(key), r.x(), r.y(), r.width(), r.height(),
                      dx + r.x() - sx, dy + r.y() - sy);
    }
}

} // namespace

namespace zeltk
{

// Also used by painters, whose context brings the clip along.
void blit(const x11::GcKey& base, Qt::HANDLE to, bool toBitmap, int dx, int dy, const QPaintDevice* src,
          int sx, int sy, int w, int h, bool ignoreMask)
{
    const QPixmap* pixmap = asPixmap(src);
    x11::GcKey key = base;
    key.fill = x11::FillWithColor;
    if (pixmap && pixmap->depth() == 1 && !toBitmap) {
        if (pixmap->selfMask() && !ignoreMask) {
            key.fill = x11::FillWithStipple;
            key.pattern = pixmap->handle();
            key.originX = dx - sx;
            key.originY = dy - sy;
            x11::fillRectangle(to, x11::gcFor(key), dx, dy, w, h);
        } else {
            x11::copyBitmap(pixmap->handle(), to, x11::gcFor(key), sx, sy, w, h, dx, dy);
        }
        return;
    }
    const Qt::HANDLE alpha = pixmap ? zeltk::PixmapAccess::data(pixmap)->alpha : 0;
    if (alpha && !ignoreMask && !toBitmap && key.function == x11::FunctionCopy) {
        x11::blendArea(pixmap->handle(), alpha, to, key.clip.get(), sx, sy, w, h, dx, dy);
        return;
    }
    if (pixmap && pixmap->mask() && !ignoreMask) {
        blitMasked(key, to, dx, dy, pixmap, sx, sy, w, h);
        return;
    }
    key.overChildren = key.overChildren || !pixmap;
    x11::copyArea(src->handle(), to, x11::gcFor(key), sx, sy, w, h, dx, dy);
}

} // namespace zeltk

void bitBlt(QPaintDevice* dst, int dx, int dy, const QPaintDevice* src, int sx, int sy, int sw, int sh,
            Qt::RasterOp rop, bool ignoreMask)
{
    if (!src || !dst || !src->handle() || !dst->handle())
        return;
    if (!zeltk::isRasterOp(rop)) {
        qWarning("bitBlt: Invalid ROP code");
        return;
    }
    const QPixmap* pixmap = asPixmap(src);
    if (sw < 0 || sh < 0) {
        int width = 0;
        int height = 0;
        if (pixmap) {
            width = pixmap->width();
            height = pixmap->height();
        } else if (!x11::drawableSize(src->handle(), &width, &height)) {
            return;
        }
        sw = sw < 0 ? zeltk::difference(width, sx) : sw;
        sh = sh < 0 ? zeltk::difference(height, sy) : sh;
    }
    if (sw <= 0 || sh <= 0)
        return;
    QPixmap* target = const_cast<QPixmap*>(asPixmap(dst));
    if (target)
        target->detach();
    x11::GcKey key;
    key.function = zeltk::functionOf(rop);
    key.foreground = x11::pixelOf(0x000000);
    key.background = x11::pixelOf(0xffffff);
    key.bitmap = target && target->depth() == 1;
    zeltk::blit(key, dst->handle(), key.bitmap, dx, dy, src, sx, sy, sw, sh, ignoreMask);
}
