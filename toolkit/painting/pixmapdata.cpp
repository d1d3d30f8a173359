// What pixmaps share.
#include "painting/pixmapdata.h"

#include "x11/blend.h"
#include "x11/connection.h"
#include "x11/draw.h"
#include "x11/pixmap.h"

#include <algorithm>

namespace zeltk
{

int nextPixmapSerial()
{
    static int last = 0;
    return ++last;
}

PixmapData* newNullPixmapData(bool isBitmap)
{
    PixmapData* data = new PixmapData;
    data->isBitmap = isBitmap;
    data->serial = nextPixmapSerial();
    data->optimization = QPixmap::defaultOptimization();
    return data;
}

PixmapData* newPixmapData(int width, int height, int depth)
{
    PixmapData* data = newNullPixmapData(false);
    if (!x11::connected()) {
        qFatal("QPixmap: a QApplication is needed before any pixmap");
        return data;
    }
    if (depth != -1 && depth != 1 && depth != x11::depth())
        return data;
    if (width < 0 || height < 0)
        qWarning("QPixmap: Invalid pixmap parameters");
    if (width <= 0 || height <= 0 || width > 32767 || height > 32767)
        return data;
    data->width = width;
    data->height = height;
    data->depth = depth == 1 ? 1 : x11::depth();
    data->id = x11::createPixmap(width, height, data->depth);
    return data;
}

PixmapData* newPixmapDataLike(const PixmapData* other, int width, int height)
{
    PixmapData* data = newPixmapData(width, height, other->isBitmap || other->depth == 1 ? 1 : -1);
    data->isBitmap = other->isBitmap;
    data->optimization = other->optimization;
    return data;
}

PixmapData* newPixmapTwin(const PixmapData* other)
{
    PixmapData* data = newPixmapDataLike(other, other->width, other->height);
    data->selfMask = other->selfMask;
    data->mask = other->mask ? new QBitmap(*other->mask) : nullptr;
    if (other->alpha)
        data->alpha = x11::createAlpha(x11::readAlpha(other->alpha, other->width, other->height),
                                       other->width, other->height);
    return data;
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

PixmapData::~PixmapData()
{
    delete mask;
    x11::freePixmap(alpha);
    x11::recyclePixmap(id, width, height, depth);
}

} // namespace zeltk
