// Names that windows and their users share.
#ifndef QWINDOWDEFS_H
#define QWINDOWDEFS_H

#include <qnamespace.h>

class QApplication;
class QBitmap;
class QBrush;
class QColor;
class QColorGroup;
class QCursor;
class QEvent;
class QFont;
class QIconSet;
class QImage;
class QPaintDevice;
class QPainter;
class QPalette;
class QPixmap;
class QPoint;
class QPointArray;
class QRect;
class QRegion;
class QSize;
class QString;
class QWidget;
class QWMatrix;

//! A window of the X server.
typedef unsigned long WId;

typedef Qt::WState WState;
typedef Qt::WFlags WFlags;

//! The largest size of a widget, in pixels: no limit.
#define QWIDGETSIZE_MAX 32767

//! A coordinate in pixels.
typedef Q_INT32 QCOORD;

namespace zeltk
{

// Coordinates are any int; what is computed from them goes round at the ends.
inline int sum(int a, int b)
{
    return (int)((uint)a + (uint)b);
}
inline int difference(int a, int b)
{
    return (int)((uint)a - (uint)b);
}
inline int product(int a, int b)
{
    return (int)((uint)a * (uint)b);
}

} // namespace zeltk
enum { QCOORD_MIN = -2147483647 - 1, QCOORD_MAX = 2147483647 };

typedef unsigned int QRgb;

#endif
