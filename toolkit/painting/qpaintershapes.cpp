// QPainter: rectangles, polygons and round shapes.
#include <qpainter.h>

#include "painting/painterdata.h"

#include <algorithm>
#include <cmath>

using zeltk::mirroredRect;
namespace x11 = zeltk::x11;

namespace
{

constexpr int rightAngle = 90 * 16;

}

void QPainter::drawRect(int x, int y, int w, int h)
{
    if (!isActive() || w == 0 || h == 0)
        return;
    const QRect rect = mirroredRect(x, y, w, h);
    if (!d->mapsRectsToRects()) {
        drawPolygon(QPointArray(rect));
        return;
    }
    const QRect r = d->mapRect(rect);
    if (!d->hasPen()) {
        if (d->hasBrush())
            d->fillDeviceRect(r, d->forBrush());
        return;
    }
    if (d->hasBrush())
        d->fillDeviceRect(QRect(r.x(), r.y(), r.width() - 1, r.height() - 1), d->forBrush());
    x11::drawRectangle(d->drawable, d->forPen(), r.x(), r.y(), r.width() - 1, r.height() - 1);
}

void QPainter::fillRect(int x, int y, int w, int h, const QBrush& brush)
{
    if (!isActive() || w == 0 || h == 0 || brush.style() == NoBrush)
        return;
    const QRect rect = mirroredRect(x, y, w, h);
    const x11::GcSlot* gc = x11::gcFor(d->brushKey(brush));
    d->fillMappedRect(rect, gc);
}

void QPainter::eraseRect(int x, int y, int w, int h)
{
    fillRect(x, y, w, h, d->state.background);
}

// A line of dots that shows on the background.
void QPainter::drawWinFocusRect(int x, int y, int w, int h)
{
    drawWinFocusRect(x, y, w, h, d->state.background);
}

void QPainter::drawWinFocusRect(int x, int y, int w, int h, const QColor& backgroundColor)
{
    if (!isActive() || w < 1 || h < 1)
        return;
    const QRect r = d->mapRect(QRect(x, y, w, h));
    x11::GcKey key = d->baseKey();
    key.foreground = d->pixelOf(qGray(backgroundColor.rgb()) <= 110 ? white : black);
    key.lineStyle = x11::LineOnOff;
    key.dashes = {1, 1};
    const auto left = static_cast<short>(r.left());
    const auto top = static_cast<short>(r.top());
    const auto right = static_cast<short>(r.right());
    const auto bottom = static_cast<short>(r.bottom());
    const auto first = static_cast<short>(top + 1);
    const auto last = static_cast<short>(bottom - 1);
    // The dots begin anew on each side.
    std::vector<x11::Point> sides = {{left, top}, {right, top}, {left, bottom}, {right, bottom}};
    if (first <= last)
        sides.insert(sides.end(), {{left, first}, {left, last}, {right, first}, {right, last}});
    x11::drawSegments(d->drawable, x11::gcFor(key), sides);
}

void QPainter::drawPolygon(const QPointArray& points, bool winding, int index, int count)
{
    if (!isActive())
        return;
    std::vector<x11::Point> mapped = d->mapPoints(points, index, count);
    if (mapped.size() < 2)
        return;
    if (d->hasBrush())
        d->fillPoints(mapped, winding, d->forBrush());
    if (d->hasPen()) {
        mapped.push_back(mapped.front());
        x11::drawPolyline(d->drawable, d->forPen(), mapped);
    }
}

void QPainter::drawEllipse(int x, int y, int w, int h)
{
    if (!isActive() || w == 0 || h == 0)
        return;
    const QRect rect = mirroredRect(x, y, w, h);
    if (!d->mapsRectsToRects()) {
        QPointArray outline;
        outline.makeEllipse(rect.x(), rect.y(), rect.width(), rect.height());
        drawPolygon(outline);
        return;
    }
    const QRect r = d->mapRect(rect);
    const int less = d->hasPen() ? 1 : 0;
    if (d->hasBrush())
        x11::fillArc(d->drawable, d->forBrush(), r.x(), r.y(), r.width() - less, r.height() - less, 0,
                     360 * 64, false);
    if (d->hasPen())
        x11::drawArc(d->drawable, d->forPen(), r.x(), r.y(), r.width() - 1, r.height() - 1, 0, 360 * 64);
}

void QPainter::drawArc(int x, int y, int w, int h, int startAngle, int angleLength)
{
    if (!d->strokes() || w == 0 || h == 0)
        return;
    const QRect rect = mirroredRect(x, y, w, h);
    if (!d->mapsRectsToRects()) {
        QPointArray outline;
        outline.makeArc(rect.x(), rect.y(), rect.width(), rect.height(), startAngle, angleLength);
        drawPolyline(outline);
        return;
    }
    const QRect r = d->mapRect(rect);
    x11::drawArc(d->drawable, d->forPen(), r.x(), r.y(), r.width() - 1, r.height() - 1, startAngle * 4,
                 angleLength * 4);
}

// The arc and what closes it: lines to the centre or one between the ends.
void QPainter::drawPie(int x, int y, int w, int h, int startAngle, int angleLength)
{
    if (!isActive() || w == 0 || h == 0)
        return;
    const QRect rect = mirroredRect(x, y, w, h);
    QPointArray outline;
    outline.makeArc(rect.x(), rect.y(), rect.width(), rect.height(), startAngle, angleLength);
    const QPoint centre(rect.x() + rect.width() / 2, rect.y() + rect.height() / 2);
    if (!d->mapsRectsToRects()) {
        outline.resize(outline.size() + 1);
        outline.setPoint(outline.size() - 1, centre);
        drawPolygon(outline);
        return;
    }
    d->fillArc(rect, startAngle, angleLength, false);
    drawArc(rect, startAngle, angleLength);
    drawLine(centre, outline.point(0));
    drawLine(centre, outline.point(outline.size() - 1));
}

void QPainter::drawChord(int x, int y, int w, int h, int startAngle, int angleLength)
{
    if (!isActive() || w == 0 || h == 0)
        return;
    const QRect rect = mirroredRect(x, y, w, h);
    QPointArray outline;
    outline.makeArc(rect.x(), rect.y(), rect.width(), rect.height(), startAngle, angleLength);
    if (!d->mapsRectsToRects()) {
        drawPolygon(outline);
        return;
    }
    d->fillArc(rect, startAngle, angleLength, true);
    drawArc(rect, startAngle, angleLength);
    drawLine(outline.point(0), outline.point(outline.size() - 1));
}

namespace
{

// How wide or high the ellipse of a corner is; even, so that it has a middle.
int cornerExtent(int extent, int roundness)
{
    return static_cast<int>(Q_LLONG(extent - 1) * std::min(roundness, 99) / 200) * 2;
}

// The corners counter-clockwise, as the quarters of an ellipse are: places of the ellipses' rectangles.
QPointArray roundOutline(const QPoint (&corners)[4], const QSize& ellipse)
{
    QPointArray outline;
    for (int quarter = 0; quarter < 4; ++quarter) {
        QPointArray arc;
        arc.makeArc(corners[quarter].x(), corners[quarter].y(), ellipse.width(), ellipse.height(),
                    quarter * rightAngle, rightAngle);
        outline.putPoints(static_cast<int>(outline.size()), static_cast<int>(arc.size()), arc);
    }
    return outline;
}

} // namespace

// xRound and yRound tell how round the corners are, from 0 to 99.
void QPainter::drawRoundRect(int x, int y, int w, int h, int xRound, int yRound)
{
    if (!isActive() || w == 0 || h == 0)
        return;
    if (xRound <= 0 || yRound <= 0) {
        drawRect(x, y, w, h);
        return;
    }
    const QRect r = mirroredRect(x, y, w, h);
    const int rx = cornerExtent(r.width(), xRound);
    const int ry = cornerExtent(r.height(), yRound);
    const QSize ellipse(rx + 1, ry + 1);
    const int right = r.right() - rx;
    const int bottom = r.bottom() - ry;
    const QPoint corners[4] = {QPoint(right, r.top()), r.topLeft(), QPoint(r.left(), bottom),
                               QPoint(right, bottom)};
    if (!d->mapsRectsToRects()) {
        drawPolygon(roundOutline(corners, ellipse));
        return;
    }
    if (d->hasBrush()) {
        for (int quarter = 0; quarter < 4; ++quarter)
            d->fillArc(QRect(corners[quarter], ellipse), quarter * rightAngle, rightAngle, false);
        fillRect(r.left() + rx / 2, r.top(), r.width() - rx, ry / 2, d->state.brush);
        fillRect(r.left() + rx / 2, r.bottom() + 1 - ry / 2, r.width() - rx, ry / 2, d->state.brush);
        fillRect(r.left(), r.top() + ry / 2, r.width(), r.height() - ry, d->state.brush);
    }
    if (!d->hasPen())
        return;
    for (int quarter = 0; quarter < 4; ++quarter)
        drawArc(QRect(corners[quarter], ellipse), quarter * rightAngle, rightAngle);
    drawLine(r.left() + rx / 2, r.top(), r.right() - rx / 2, r.top());
    drawLine(r.left() + rx / 2, r.bottom(), r.right() - rx / 2, r.bottom());
    drawLine(r.left(), r.top() + ry / 2, r.left(), r.bottom() - ry / 2);
    drawLine(r.right(), r.top() + ry / 2, r.right(), r.bottom() - ry / 2);
}
