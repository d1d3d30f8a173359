// QPen.
#include <qpen.h>

QPen::QPen() : s(SolidLine), w(0), c(0, 0, 0), cap(FlatCap), join(MiterJoin) {}

QPen::QPen(PenStyle style) : s(style), w(0), c(0, 0, 0), cap(FlatCap), join(MiterJoin) {}

QPen::QPen(const QColor& color, uint width, PenStyle style)
    : s(style), w(width), c(color), cap(FlatCap), join(MiterJoin)
{
}

QPen::QPen(const QColor& color, uint width, PenStyle style, PenCapStyle capStyle, PenJoinStyle joinStyle)
    : s(style), w(width), c(color), cap(capStyle), join(joinStyle)
{
}
