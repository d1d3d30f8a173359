// Bevels and frames.
#include <qdrawutil.h>
#include <qpainter.h>
#include <qpalette.h>
#include <qpointarray.h>

#include <algorithm>

namespace
{

// Gives pen and brush back at the end.
class KeepsTools
{
public:
    explicit KeepsTools(QPainter* p) : painter(p), pen(p->pen()), brush(p->brush()) {}
    ~KeepsTools()
    {
        painter->setPen(pen);
        painter->setBrush(brush);
    }

private:
    QPainter* painter;
    QPen pen;
    QBrush brush;
};

// No device has room for more lines.
int drawable(int lines)
{
    return std::min(lines, 32767);
}

// A bevel of so many lines on each side. All of the upper left is drawn before all of the lower right, which
// so owns the corners on the diagonal, and whatever both reach in a panel smaller than its own lines.
void drawBevel(QPainter* p, const QRect& r, int lines, const QColor& upperLeft, const QColor& lowerRight)
{
    p->setPen(upperLeft);
    for (int i = 0; i < drawable(lines); ++i) {
        p->drawLine(r.left(), r.top() + i, r.right() - 1 - i, r.top() + i);
        p->drawLine(r.left() + i, r.top() + lines - i, r.left() + i, r.bottom() - 1);
    }
    p->setPen(lowerRight);
    for (int i = 0; i < drawable(lines); ++i) {
        p->drawLine(r.left() + i, r.bottom() - i, r.right(), r.bottom() - i);
        p->drawLine(r.right() - i, r.top() + i, r.right() - i, r.bottom() - lines);
    }
}

QRect inside(const QRect& r, int by)
{
    return QRect(r.x() + by, r.y() + by, r.width() - 2 * by, r.height() - 2 * by);
}

// A rectangle that is too small to have an inside is turned over by the painter.
void fillInside(QPainter* p, const QRect& r, const QBrush* fill)
{
    if (fill)
        p->fillRect(r, *fill);
}

// The left and upper sides of a ring, with all three of their corners.
void drawUpperLeft(QPainter* p, const QRect& r)
{
    p->drawLine(r.left(), r.top(), r.right(), r.top());
    p->drawLine(r.left(), r.top(), r.left(), r.bottom());
}

// The right and lower sides; their far corners start `less` pixels later.
void drawLowerRight(QPainter* p, const QRect& r, int less)
{
    p->drawLine(r.left() + less, r.bottom(), r.right(), r.bottom());
    p->drawLine(r.right(), r.top() + less, r.right(), r.bottom());
}

// Two outlines, one pixel apart; the second one lies on the first.
void drawThinGroove(QPainter* p, const QRect& r, const QColor& upperLeft, const QColor& lowerRight)
{
    const QBrush brush = p->brush();
    p->setBrush(Qt::NoBrush);
    p->setPen(upperLeft);
    p->drawRect(r.x(), r.y(), r.width() - 1, r.height() - 1);
    p->setBrush(brush);
    p->setPen(lowerRight);
    p->drawLine(r.left() + 1, r.top() + 1, r.right() - 2, r.top() + 1);
    p->drawLine(r.left() + 1, r.top() + 1, r.left() + 1, r.bottom() - 2);
    p->drawLine(r.left(), r.bottom(), r.right(), r.bottom());
    p->drawLine(r.right(), r.top(), r.right(), r.bottom());
}

// The upper left in one stroke, which leaves no trace in a ring without a length.
void drawRing(QPainter* p, const QRect& r, const QColor& upperLeft, const QColor& lowerRight)
{
    QPointArray corner(3);
    corner.setPoint(0, r.left(), r.bottom() - 1);
    corner.setPoint(1, r.left(), r.top());
    corner.setPoint(2, r.right() - 1, r.top());
    p->setPen(upperLeft);
    p->drawPolyline(corner);
    p->setPen(lowerRight);
    p->drawLine(r.left(), r.bottom(), r.right(), r.bottom());
    p->drawLine(r.right(), r.top(), r.right(), r.bottom());
}

// Windows bevels: two rings, each with its own two colours.
void drawWinShades(QPainter* p, const QRect& r, const QColor& outerLight, const QColor& outerDark,
                   const QColor& innerLight, const QColor& innerDark, const QBrush* fill)
{
    if (r.width() < 2 || r.height() < 2)
        return;
    drawRing(p, r, outerLight, outerDark);
    if (r.width() > 4 && r.height() > 4) {
        drawRing(p, inside(r, 1), innerLight, innerDark);
        fillInside(p, inside(r, 2), fill);
    }
}

} // namespace

// The two directions differ in who owns the corners at the ends.
void qDrawShadeLine(QPainter* p, int x1, int y1, int x2, int y2, const QColorGroup& g, bool sunken,
                    int lineWidth, int midLineWidth)
{
    if (!p || lineWidth < 0 || midLineWidth < 0)
        return;
    const KeepsTools keep(p);
    const int total = lineWidth * 2 + midLineWidth;
    const QColor first = sunken ? g.dark() : g.light();
    const QColor last = sunken ? g.light() : g.dark();
    if (y1 == y2) {
        const QRect box(std::min(x1, x2), y1 - total / 2, QABS(x2 - x1), total);
        p->fillRect(inside(box, lineWidth), g.mid());
        for (int i = 0; i < drawable(lineWidth); ++i) {
            const QRect r = inside(box, i);
            p->setPen(first);
            p->drawLine(r.left(), r.top(), r.right(), r.top());
            p->drawLine(r.left(), r.top(), r.left(), r.bottom() - 1);
            p->setPen(last);
            p->drawLine(r.left(), r.bottom(), r.right(), r.bottom());
            p->drawLine(r.right(), r.top() + 1, r.right(), r.bottom());
        }
    } else if (x1 == x2) {
        const QRect box(x1 - total / 2, std::min(y1, y2), total, QABS(y2 - y1));
        p->fillRect(box, first);
        p->fillRect(box.x() + lineWidth, box.y() + lineWidth, total - lineWidth, box.height() - lineWidth,
                    last);
        p->fillRect(inside(box, lineWidth), g.mid());
    }
}

void qDrawShadeLine(QPainter* p, const QPoint& p1, const QPoint& p2, const QColorGroup& g, bool sunken,
                    int lineWidth, int midLineWidth)
{
    qDrawShadeLine(p, p1.x(), p1.y(), p2.x(), p2.y(), g, sunken, lineWidth, midLineWidth);
}

// From the outside: a bevel, the middle, and the bevel turned inside out. A fill covers the inner bevel.
// Without one, the thinnest of these takes the painter's own brush.
void qDrawShadeRect(QPainter* p, int x, int y, int w, int h, const QColorGroup& g, bool sunken, int lineWidth,
                    int midLineWidth, const QBrush* fill)
{
    if (!p || w == 0 || h == 0 || lineWidth < 0 || midLineWidth < 0)
        return;
    const KeepsTools keep(p);
    const QRect all(x, y, w, h);
    const QColor upperLeft = sunken ? g.dark() : g.light();
    const QColor lowerRight = sunken ? g.light() : g.dark();
    if (lineWidth == 1 && midLineWidth == 0) {
        drawThinGroove(p, all, upperLeft, lowerRight);
        const QBrush own = p->brush();
        fillInside(p, inside(all, fill ? 1 : 2), fill ? fill : &own);
        return;
    }
    const int middle = lineWidth + midLineWidth;
    p->setBrush(Qt::NoBrush);
    p->setPen(upperLeft);
    for (int i = 0; i < drawable(lineWidth); ++i) {
        drawUpperLeft(p, inside(all, i));
        drawLowerRight(p, inside(all, middle + i), 0);
    }
    p->setPen(g.mid());
    for (int i = 0; i < drawable(midLineWidth); ++i)
        p->drawRect(inside(all, lineWidth + i));
    p->setPen(lowerRight);
    for (int i = 0; i < drawable(lineWidth); ++i) {
        drawLowerRight(p, inside(all, i), 1);
        drawUpperLeft(p, inside(all, middle + i));
    }
    fillInside(p, inside(all, middle), fill);
}

void qDrawShadeRect(QPainter* p, const QRect& r, const QColorGroup& g, bool sunken, int lineWidth,
                    int midLineWidth, const QBrush* fill)
{
    qDrawShadeRect(p, r.x(), r.y(), r.width(), r.height(), g, sunken, lineWidth, midLineWidth, fill);
}

void qDrawShadePanel(QPainter* p, int x, int y, int w, int h, const QColorGroup& g, bool sunken,
                     int lineWidth, const QBrush* fill)
{
    if (!p || w < 1 || h < 1 || lineWidth < 0)
        return;
    const KeepsTools keep(p);
    QColor light = g.light();
    QColor shade = g.dark();
    if (fill && fill->color() == shade)
        shade = g.shadow();
    if (fill && fill->color() == light)
        light = g.midlight();
    const QRect all(x, y, w, h);
    drawBevel(p, all, lineWidth, sunken ? shade : light, sunken ? light : shade);
    fillInside(p, inside(all, lineWidth), fill);
}

void qDrawShadePanel(QPainter* p, const QRect& r, const QColorGroup& g, bool sunken, int lineWidth,
                     const QBrush* fill)
{
    qDrawShadePanel(p, r.x(), r.y(), r.width(), r.height(), g, sunken, lineWidth, fill);
}

void qDrawWinButton(QPainter* p, int x, int y, int w, int h, const QColorGroup& g, bool sunken,
                    const QBrush* fill)
{
    if (!p)
        return;
    const KeepsTools keep(p);
    if (sunken)
        drawWinShades(p, QRect(x, y, w, h), g.shadow(), g.light(), g.dark(), g.button(), fill);
    else
        drawWinShades(p, QRect(x, y, w, h), g.light(), g.shadow(), g.button(), g.dark(), fill);
}

void qDrawWinButton(QPainter* p, const QRect& r, const QColorGroup& g, bool sunken, const QBrush* fill)
{
    qDrawWinButton(p, r.x(), r.y(), r.width(), r.height(), g, sunken, fill);
}

void qDrawWinPanel(QPainter* p, int x, int y, int w, int h, const QColorGroup& g, bool sunken,
                   const QBrush* fill)
{
    if (!p)
        return;
    const KeepsTools keep(p);
    if (sunken)
        drawWinShades(p, QRect(x, y, w, h), g.dark(), g.light(), g.shadow(), g.midlight(), fill);
    else
        drawWinShades(p, QRect(x, y, w, h), g.light(), g.shadow(), g.midlight(), g.dark(), fill);
}

void qDrawWinPanel(QPainter* p, const QRect& r, const QColorGroup& g, bool sunken, const QBrush* fill)
{
    qDrawWinPanel(p, r.x(), r.y(), r.width(), r.height(), g, sunken, fill);
}

void qDrawPlainRect(QPainter* p, int x, int y, int w, int h, const QColor& color, int lineWidth,
                    const QBrush* fill)
{
    if (!p || w < 1 || h < 1 || lineWidth < 0)
        return;
    const KeepsTools keep(p);
    p->setPen(color);
    p->setBrush(Qt::NoBrush);
    for (int i = 0; i < drawable(lineWidth); ++i)
        p->drawRect(inside(QRect(x, y, w, h), i));
    fillInside(p, inside(QRect(x, y, w, h), lineWidth), fill);
}

void qDrawPlainRect(QPainter* p, const QRect& r, const QColor& color, int lineWidth, const QBrush* fill)
{
    qDrawPlainRect(p, r.x(), r.y(), r.width(), r.height(), color, lineWidth, fill);
}
