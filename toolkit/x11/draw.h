// Drawing requests. Coordinates are those of the drawable.
#ifndef ZELTK_X11_DRAW_H
#define ZELTK_X11_DRAW_H

#include "x11/gc.h"

namespace zeltk
{
namespace x11
{

struct Point {
    short x;
    short y;
};

void drawLine(XId drawable, const GcSlot* gc, int x1, int y1, int x2, int y2);
void drawPoints(XId drawable, const GcSlot* gc, const std::vector<Point>& points);
void drawPolyline(XId drawable, const GcSlot* gc, const std::vector<Point>& points);
// Each two points are the ends of a line; a last one without a partner is left out.
void drawSegments(XId drawable, const GcSlot* gc, const std::vector<Point>& ends);
// The outline; it reaches one pixel further than width and height.
void drawRectangle(XId drawable, const GcSlot* gc, int x, int y, int width, int height);
void fillRectangle(XId drawable, const GcSlot* gc, int x, int y, int width, int height);
void fillPolygon(XId drawable, const GcSlot* gc, const std::vector<Point>& points, bool winding);
// Angles in 64ths of a degree. A chord's fill is bounded by a line between the ends, a pie's by lines to the
// centre.
void drawArc(XId drawable, const GcSlot* gc, int x, int y, int width, int height, int start, int length);
void fillArc(XId drawable, const GcSlot* gc, int x, int y, int width, int height, int start, int length,
             bool chord);
void copyArea(XId from, XId to, const GcSlot* gc, int sx, int sy, int width, int height, int dx, int dy);
// Copies a bitmap: its pixels in the context's foreground and background.
void copyBitmap(XId from, XId to, const GcSlot* gc, int sx, int sy, int width, int height, int dx, int dy);

} // namespace x11
} // namespace zeltk

#endif
