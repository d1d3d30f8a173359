// QPainter: pixmaps and images.
#include <qbitmap.h>
#include <qimage.h>
#include <qpainter.h>

#include "painting/imagetransform.h"
#include "painting/painterdata.h"
#include "painting/rasterops.h"

namespace x11 = zeltk::x11;

namespace
{

// Tiles go on to the left of their first one, too.
int offsetInTile(int offset, int extent)
{
    const int rest = offset % extent;
    return rest < 0 ? rest + extent : rest;
}

} // namespace

void QPainter::drawPixmap(int x, int y, const QPixmap& pixmap, int sx, int sy, int sw, int sh)
{
    if (!isActive() || pixmap.isNull())
        return;
    const QPoint start(sx, sy);
    const QRect rest(start, pixmap.rect().bottomRight());
    const QRect part =
        QRect(start, QSize(sw < 0 ? rest.width() : sw, sh < 0 ? rest.height() : sh)) & pixmap.rect();
    if (part.isEmpty())
        return;
    const QPoint at = d->map(QPoint(x, y) + part.topLeft() - start);
    if (d->transform == zeltk::Transform::None || d->transform == zeltk::Transform::Translation) {
        zeltk::blit(d->baseKey(), d->drawable, d->bitmap, at.x(), at.y(), &pixmap, part.x(), part.y(),
                    part.width(), part.height(), false);
        return;
    }
    QPoint origin;
    const QImage image = zeltk::transformed(pixmap.convertToImage().copy(part), d->matrix, &origin);
    if (image.isNull())
        return;
    const QPixmap turned(image);
    if (turned.isNull()) // larger than the server's pixmaps can be
        return;
    zeltk::blit(d->baseKey(), d->drawable, d->bitmap, at.x() + origin.x(), at.y() + origin.y(), &turned, 0, 0,
                turned.width(), turned.height(), false);
}

void QPainter::drawPixmap(const QRect& r, const QPixmap& pixmap)
{
    if (!isActive() || pixmap.isNull() || r.isEmpty())
        return;
    QWMatrix scaling;
    scaling.scale(static_cast<double>(r.width()) / pixmap.width(),
                  static_cast<double>(r.height()) / pixmap.height());
    drawPixmap(r.x(), r.y(), r.size() == pixmap.size() ? pixmap : pixmap.xForm(scaling));
}

void QPainter::drawImage(const QRect& r, const QImage& image)
{
    if (isActive() && !image.isNull())
        drawPixmap(r, QPixmap(image));
}

void QPainter::drawImage(int x, int y, const QImage& image, int sx, int sy, int sw, int sh, int)
{
    if (isActive() && !image.isNull())
        drawPixmap(x, y, QPixmap(image), sx, sy, sw, sh);
}

void QPainter::drawImage(const QPoint& p, const QImage& image, int conversionFlags)
{
    drawImage(p.x(), p.y(), image, 0, 0, -1, -1, conversionFlags);
}

void QPainter::drawTiledPixmap(int x, int y, int w, int h, const QPixmap& pixmap, int sx, int sy)
{
    if (!isActive() || pixmap.isNull() || w <= 0 || h <= 0)
        return;
    const bool plain = pixmap.depth() > 1 && !pixmap.mask() && d->mapsRectsToRects() &&
                       d->transform != zeltk::Transform::Scaling;
    if (plain) {
        const QRect r = d->mapRect(QRect(x, y, w, h));
        x11::GcKey key = d->baseKey();
        key.fill = x11::FillWithTile;
        key.pattern = pixmap.handle();
        key.originX = r.x() - sx;
        key.originY = r.y() - sy;
        d->fillDeviceRect(r, x11::gcFor(key));
        return;
    }
    const QRect area(x, y, w, h);
    for (int py = y - offsetInTile(sy, pixmap.height()); py <= area.bottom(); py += pixmap.height())
        for (int px = x - offsetInTile(sx, pixmap.width()); px <= area.right(); px += pixmap.width()) {
            const QRect tile = QRect(QPoint(px, py), pixmap.size()) & area;
            drawPixmap(tile.topLeft(), pixmap, QRect(tile.topLeft() - QPoint(px, py), tile.size()));
        }
}
