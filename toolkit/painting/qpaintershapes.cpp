// QPainter: rectangles, polygons and round shapes.
#include <qpainter.h>

#include "painting/painterdata.h"

#include <algorithm>
#include <cmath>

using zeltk::mirroredRect;
namespace x11 = zeltk::x11;

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
    x11::drawRectangle(d->drawable, x11::gcFor(key), r.x(), r.y(), r.width() - 1, r.height() - 1);
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
    if (!isActive() || !d->hasPen() || w == 0 || h == 0)
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

void QPainter::drawPie(int x, int y, int w, int h, int startAngle, int angleLength)
{
    const QRect rect = mirroredRect(x, y, w, h);
    QPointArray outline;
    outline.makeArc(rect.x(), rect.y(), rect.width(), rect.height(), startAngle, angleLength);
    outline.resize(outline.size() + 1);
    outline.setPoint(outline.size() - 1, rect.x() + rect.width() / 2, rect.y() + rect.height() / 2);
    drawPolygon(outline);
}

void QPainter::drawChord(int x, int y, int w, int h, int startAngle, int angleLength)
{
    const QRect rect = mirroredRect(x, y, w, h);
    QPointArray outline;
    outline.makeArc(rect.x(), rect.y(), rect.width(), rect.height(), startAngle, angleLength);
    drawPolygon(outline);
}

// xRound and yRound tell how round the corners are, from 0 to 99.
void QPainter::drawRoundRect(int x, int y, int w, int h, int xRound, int yRound)
{
    if (xRound <= 0 || yRound <= 0) {
        drawRect(x, y, w, h);
        return;
    }
    const QRect r = mirroredRect(x, y, w, h);
    const int rx = r.width() * std::min(xRound, 99) / 100;
    const int ry = r.height() * std::min(yRound, 99) / 100;
    const int right = r.right() - rx + 1;
    const int bottom = r.bottom() - ry + 1;
    const QPoint corners[4] = {QPoint(right, r.top()), r.topLeft(), QPoint(r.left(), bottom),
                               QPoint(right, bottom)};
    QPointArray outline;
    for (int quarter = 0; quarter < 4; ++quarter) {
        QPointArray arc;
        arc.makeArc(corners[quarter].x(), corners[quarter].y(), rx, ry, quarter * 90 * 16, 90 * 16);
        outline.putPoints(static_cast<int>(outline.size()), static_cast<int>(arc.size()), arc);
    }
    drawPolygon(outline);
}
