// Raster operations, and copies with them.
#ifndef ZELTK_RASTEROPS_H
#define ZELTK_RASTEROPS_H

#include "x11/gc.h"

#include <qnamespace.h>

class QPaintDevice;

namespace zeltk
{

// Programs may pass on any number as one.
bool isRasterOp(Qt::RasterOp op);
x11::Function functionOf(Qt::RasterOp op);

// bitBlt with a given context; bitmaps show in its foreground and background.
void blit(const x11::GcKey& base, Qt::HANDLE to, bool toBitmap, int dx, int dy, const QPaintDevice* src,
          int sx, int sy, int w, int h, bool ignoreMask);

} // namespace zeltk

#endif
