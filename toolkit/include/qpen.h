// How lines are drawn.
#ifndef QPEN_H
#define QPEN_H

#include <qcolor.h>

//! A width of 0 is one pixel, drawn in the fastest way.
class Q_EXPORT QPen : public Qt
{
public:
    QPen();
    QPen(PenStyle style);
    QPen(const QColor& color, uint width = 0, PenStyle style = SolidLine);
    QPen(const QColor& color, uint width, PenStyle style, PenCapStyle cap, PenJoinStyle join);

    PenStyle style() const { return s; }
    void setStyle(PenStyle style) { s = style; }
    uint width() const { return w; }
    void setWidth(uint width) { w = width; }
    const QColor& color() const { return c; }
    void setColor(const QColor& color) { c = color; }
    PenCapStyle capStyle() const { return cap; }
    void setCapStyle(PenCapStyle style) { cap = style; }
    PenJoinStyle joinStyle() const { return join; }
    void setJoinStyle(PenJoinStyle style) { join = style; }

    bool operator==(const QPen& other) const
    {
        return s == other.s && w == other.w && c == other.c && cap == other.cap && join == other.join;
    }
    bool operator!=(const QPen& other) const { return !(*this == other); }

private:
    PenStyle s;
    uint w;
    QColor c;
    PenCapStyle cap;
    PenJoinStyle join;
};

#endif
