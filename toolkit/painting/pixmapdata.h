// What pixmaps share.
#ifndef ZELTK_PIXMAPDATA_H
#define ZELTK_PIXMAPDATA_H

#include <qbitmap.h>

namespace zeltk
{

struct PixmapData {
    int references;
    int width;
    int height;
    int depth;
    bool isBitmap;
    bool selfMask; // a bitmap that is its own mask
    int serial;
    WId id;
    WId alpha; // 0, or how opaque each pixel is; there is a mask, too, then
    QBitmap* mask;
    QPixmap::Optimization optimization;
};

struct PixmapAccess {
    static PixmapData* data(const QPixmap* pixmap) { return pixmap->d; }
};

// Answers QPixmap::fill(widget) and grabWidget; the kernel sets them.
typedef void (*FillFromWidgetFunction)(QPixmap* pixmap, const QWidget* widget, int x, int y);
extern FillFromWidgetFunction fillFromWidget;

} // namespace zeltk

#endif
