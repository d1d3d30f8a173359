// QImage: parts, mirror images, exchanged colours.
#include <qimage.h>

#include "painting/imagedata.h"

#include <algorithm>

QImage QImage::copy(int x, int y, int w, int h, int) const
{
    QImage result;
    if (isNull() || !result.create(w, h, 32))
        return result;
    result.fill(0);
    bitBlt(&result, 0, 0, this, x, y, w, h);
    result.d->alpha = d->alpha;
    result.d->offset = d->offset;
    result.d->dotsPerMeterX = d->dotsPerMeterX;
    result.d->dotsPerMeterY = d->dotsPerMeterY;
    return result;
}

void bitBlt(QImage* dst, int dx, int dy, const QImage* src, int sx, int sy, int sw, int sh, int)
{
    if (dst->isNull() || src->isNull())
        return;
    const QRect wanted(sx, sy, sw < 0 ? src->width() : sw, sh < 0 ? src->height() : sh);
    const QPoint shift = QPoint(dx, dy) - QPoint(sx, sy);
    QRect target = wanted & src->rect();
    target.moveBy(shift.x(), shift.y());
    target &= dst->rect();
    if (!target.isValid())
        return;
    const QImage source = src->bits() == dst->bits() ? src->copy() : *src;
    for (int y = target.top(); y <= target.bottom(); ++y) {
        const QRgb* from = reinterpret_cast<const QRgb*>(source.scanLine(y - shift.y()));
        QRgb* to = reinterpret_cast<QRgb*>(dst->scanLine(y));
        std::copy(from + target.left() - shift.x(), from + target.right() + 1 - shift.x(),
                  to + target.left());
    }
}

QImage QImage::mirror(bool horizontally, bool vertically) const
{
    QImage result(copy());
    std::vector<QRgb>& pixels = result.d->pixels;
    if (horizontally != vertically)
        for (auto row = pixels.begin(); row != pixels.end(); row += d->width)
            std::reverse(row, row + d->width);
    if (vertically)
        std::reverse(pixels.begin(), pixels.end());
    return result;
}

// What is called invertAlpha has the opposite meaning for pixels of 32 bits, and programs live with that.
void QImage::invertPixels(bool invertAlpha)
{
    for (QRgb& pixel : d->pixels)
        pixel ^= invertAlpha ? RGB_MASK : 0xffffffff;
}

QImage QImage::swapRGB() const
{
    QImage result(copy());
    for (QRgb& pixel : result.d->pixels)
        pixel = qRgba(qBlue(pixel), qGreen(pixel), qRed(pixel), qAlpha(pixel));
    return result;
}

bool QImage::allGray() const
{
    return std::all_of(d->pixels.begin(), d->pixels.end(), [](QRgb pixel) {
        return qRed(pixel) == qGreen(pixel) && qGreen(pixel) == qBlue(pixel);
    });
}

QImage QImage::convertDepth(int depth) const
{
    if (isNull()) {
        qWarning("QImage::convertDepth: Image is a null image");
        return *this;
    }
    if (depth == 32)
        return *this;
    qWarning("QImage::convertDepth: Depth %d not supported", depth);
    return QImage();
}
