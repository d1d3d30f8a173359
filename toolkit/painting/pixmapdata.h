// What pixmaps share.
#ifndef ZELTK_PIXMAPDATA_H
#define ZELTK_PIXMAPDATA_H

#include <qbitmap.h>

namespace zeltk
{

struct PixmapData {
    int references = 1;
    int width = 0;
    int height = 0;
    int depth = 0;
    bool isBitmap = false;
    bool selfMask = false; // a bitmap that is its own mask
    int serial = 0;
    WId id = 0;
    WId alpha = 0; // 0, or how opaque each pixel is; there is a mask, too, then
    QBitmap* mask = nullptr;
    QPixmap::Optimization optimization = QPixmap::NormalOptim;

    ~PixmapData();
};

// These three have one owner. Null if there can be no pixmap of that size and depth; depth -1 is the
// screen's.
PixmapData* newPixmapData(int width, int height, int depth);
PixmapData* newNullPixmapData(bool isBitmap);
// Of the kind of another one, with undefined pixels.
PixmapData* newPixmapDataLike(const PixmapData* other, int width, int height);
// The same but for the pixels, which are undefined.
PixmapData* newPixmapTwin(const PixmapData* other);
// As far as both reach.
void copyPixels(const PixmapData* from, PixmapData* to);
int nextPixmapSerial();

struct PixmapAccess {
    static PixmapData* data(const QPixmap* pixmap) { return pixmap->d; }
};

// Answers QPixmap::fill(widget) and grabWidget; the kernel sets them.
typedef void (*FillFromWidgetFunction)(QPixmap* pixmap, const QWidget* widget, int x, int y);
extern FillFromWidgetFunction fillFromWidget;

} // namespace zeltk

#endif
