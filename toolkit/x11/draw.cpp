// Drawing requests.
#include "x11/draw.h"

#include "x11/xlib.h"

#include <cstddef>

namespace zeltk
{
namespace x11
{

static_assert(sizeof(Point) == sizeof(XPoint) && 2 * sizeof(Point) == sizeof(XSegment),
              "passed on as they are");

void drawLine(XId drawable, const GcSlot* gc, int x1, int y1, int x2, int y2)
{
    XDrawLine(display(), drawable, gc->gc, x1, y1, x2, y2);
}

void drawPoints(XId drawable, const GcSlot* gc, const std::vector<Point>& points)
{
    XDrawPoints(display(), drawable, gc->gc, reinterpret_cast<XPoint*>(const_cast<Point*>(points.data())),
                static_cast<int>(points.size()), CoordModeOrigin);
}

void drawPolyline(XId drawable, const GcSlot* gc, const std::vector<Point>& points)
{
    XDrawLines(display(), drawable, gc->gc, reinterpret_cast<XPoint*>(const_cast<Point*>(points.data())),
               static_cast<int>(points.size()), CoordModeOrigin);
}

void drawSegments(XId drawable, const GcSlot* gc, const std::vector<Point>& ends)
{
    XDrawSegments(display(), drawable, gc->gc, reinterpret_cast<XSegment*>(const_cast<Point*>(ends.data())),
                  static_cast<int>(ends.size() / 2));
}

void drawRectangle(XId drawable, const GcSlot* gc, int x, int y, int width, int height)
{
    XDrawRectangle(display(), drawable, gc->gc, x, y, static_cast<unsigned>(width),
                   static_cast<unsigned>(height));
}

void fillRectangle(XId drawable, const GcSlot* gc, int x, int y, int width, int height)
{
    XFillRectangle(display(), drawable, gc->gc, x, y, static_cast<unsigned>(width),
                   static_cast<unsigned>(height));
}

void fillPolygon(XId drawable, const GcSlot* gc, const std::vector<Point>& points, bool winding)
{
    XSetFillRule(display(), gc->gc, winding ? WindingRule : EvenOddRule);
    XFillPolygon(display(), drawable, gc->gc, reinterpret_cast<XPoint*>(const_cast<Point*>(points.data())),
                 static_cast<int>(points.size()), Complex, CoordModeOrigin);
}

void drawArc(XId drawable, const GcSlot* gc, int x, int y, int width, int height, int start, int length)
{
    XDrawArc(display(), drawable, gc->gc, x, y, static_cast<unsigned>(width), static_cast<unsigned>(height),
             start, length);
}

void fillArc(XId drawable, const GcSlot* gc, int x, int y, int width, int height, int start, int length,
             bool chord)
{
    XSetArcMode(display(), gc->gc, chord ? ArcChord : ArcPieSlice);
    XFillArc(display(), drawable, gc->gc, x, y, static_cast<unsigned>(width), static_cast<unsigned>(height),
             start, length);
}

void copyArea(XId from, XId to, const GcSlot* gc, int sx, int sy, int width, int height, int dx, int dy)
{
    XCopyArea(display(), from, to, gc->gc, sx, sy, static_cast<unsigned>(width),
              static_cast<unsigned>(height), dx, dy);
}

void copyBitmap(XId from, XId to, const GcSlot* gc, int sx, int sy, int width, int height, int dx, int dy)
{
    XCopyPlane(display(), from, to, gc->gc, sx, sy, static_cast<unsigned>(width),
               static_cast<unsigned>(height), dx, dy, 1);
}

} // namespace x11
} // namespace zeltk
