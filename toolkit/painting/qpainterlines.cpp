// QPainter: points and lines.
#include <qpainter.h>

#include "painting/painterdata.h"

#include <algorithm>

namespace x11 = zeltk::x11;

// Points are one pixel, however wide the pen is.
void QPainter::drawPoint(int x, int y)
{
    if (!d->strokes())
        return;
    const QPoint at = d->map(QPoint(x, y));
    x11::drawPoints(d->drawable, d->forPen(), {{static_cast<short>(at.x()), static_cast<short>(at.y())}});
}

void QPainter::drawPoints(const QPointArray& points, int index, int count)
{
    if (!d->strokes())
        return;
    const std::vector<x11::Point> mapped = d->mapPoints(points, index, count);
    if (!mapped.empty())
        x11::drawPoints(d->drawable, d->forPen(), mapped);
}

void QPainter::moveTo(int x, int y)
{
    d->state.pos = QPoint(x, y);
}

void QPainter::lineTo(int x, int y)
{
    drawLine(d->state.pos.x(), d->state.pos.y(), x, y);
    d->state.pos = QPoint(x, y);
}

void QPainter::drawLine(int x1, int y1, int x2, int y2)
{
    if (!d->strokes())
        return;
    if (d->transform == zeltk::Transform::None) {
        x11::drawLine(d->drawable, d->forPen(), x1, y1, x2, y2);
        return;
    }
    const QPoint from = d->transformed(QPoint(x1, y1));
    const QPoint to = d->transformed(QPoint(x2, y2));
    x11::drawLine(d->drawable, d->forPen(), from.x(), from.y(), to.x(), to.y());
}

void QPainter::drawLineSegments(const QPointArray& points, int index, int lineCount)
{
    if (!d->strokes())
        return;
    const int mostLines = static_cast<int>(points.size() / 2);
    const std::vector<x11::Point> mapped =
        d->mapPoints(points, index, lineCount < 0 ? -1 : 2 * std::min(lineCount, mostLines));
    if (mapped.size() > 1)
        x11::drawSegments(d->drawable, d->forPen(), mapped);
}

void QPainter::drawPolyline(const QPointArray& points, int index, int count)
{
    if (!d->strokes())
        return;
    const std::vector<x11::Point> mapped = d->mapPoints(points, index, count);
    if (mapped.size() > 1)
        x11::drawPolyline(d->drawable, d->forPen(), mapped);
}

void QPainter::drawCubicBezier(const QPointArray& points, int index)
{
    if (index < 0 || static_cast<int>(points.size()) - 4 < index) {
        qWarning("QPainter::drawCubicBezier: Cubic Bezier needs 4 control points");
        return;
    }
    QPointArray control(4);
    control.putPoints(0, 4, points, index);
    drawPolyline(control.cubicBezier());
}
