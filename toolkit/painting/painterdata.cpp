// The painter's state on its way to the X server.
#include "painting/painterdata.h"

#include "painting/brushpatterns.h"
#include "painting/rasterops.h"
#include "x11/colors.h"
#include "x11/pixmap.h"

#include <algorithm>
#include <cmath>

namespace zeltk
{

namespace
{

x11::CapStyle capOf(Qt::PenCapStyle cap)
{
    return cap == Qt::SquareCap ? x11::CapSquare : cap == Qt::RoundCap ? x11::CapRounded : x11::CapFlat;
}

x11::JoinStyle joinOf(Qt::PenJoinStyle join)
{
    return join == Qt::BevelJoin   ? x11::JoinBeveled
           : join == Qt::RoundJoin ? x11::JoinRounded
                                   : x11::JoinMitered;
}

struct Dashes {
    Qt::PenStyle style;
    std::vector<char> wide; // in widths of the pen
    std::vector<char> thin; // in pixels, for pens of one pixel: longer, so that they can be told apart
};

const Dashes dashesOfStyles[] = {
    {Qt::DashLine, {3, 1}, {18, 6}},
    {Qt::DotLine, {1, 1}, {3, 3}},
    {Qt::DashDotLine, {3, 1, 1, 1}, {9, 6, 3, 6}},
    {Qt::DashDotDotLine, {3, 1, 1, 1, 1, 1}, {9, 3, 3, 3, 3, 3}},
};

// Dashes and gaps in turn; none for other styles.
std::vector<char> dashesOf(const QPen& pen)
{
    constexpr uint longest = 255; // in X
    for (const Dashes& entry : dashesOfStyles) {
        if (entry.style != pen.style())
            continue;
        if (pen.width() <= 1)
            return entry.thin;
        std::vector<char> dashes = entry.wide;
        for (char& dash : dashes)
            dash = static_cast<char>(
                std::min(static_cast<uint>(dash) * std::min(pen.width(), longest), longest));
        return dashes;
    }
    return {};
}

bool isWhole(double value)
{
    return value == std::floor(value) && std::fabs(value) < 32768;
}

// Lays the window over the viewport.
QWMatrix viewMatrix(const QRect& window, const QRect& viewport)
{
    const double sx = window.width() ? static_cast<double>(viewport.width()) / window.width() : 1.0;
    const double sy = window.height() ? static_cast<double>(viewport.height()) / window.height() : 1.0;
    return QWMatrix(sx, 0.0, 0.0, sy, viewport.x() - window.x() * sx, viewport.y() - window.y() * sy);
}

x11::Clip clipOf(const QRegion& region)
{
    auto rects = std::make_shared<std::vector<x11::Box>>();
    const QMemArray<QRect> parts = region.rects();
    for (uint i = 0; i < parts.size(); ++i)
        rects->push_back({parts.at(i).x(), parts.at(i).y(), parts.at(i).width(), parts.at(i).height()});
    return rects;
}

} // namespace

QRect mirroredRect(int x, int y, int w, int h)
{
    if (w < 0) {
        w = difference(2, w);
        x = difference(x, w - 1);
    }
    if (h < 0) {
        h = difference(2, h);
        y = difference(y, h - 1);
    }
    return QRect(x, y, w, h);
}

void cutToArray(const QPointArray& points, int* index, int* count)
{
    const int size = static_cast<int>(points.size());
    *index = std::min(std::max(*index, 0), size);
    const int rest = size - *index;
    *count = *count < 0 ? rest : std::min(*count, rest);
}

QRect PainterData::deviceRect() const
{
    int width = 0;
    int height = 0;
    x11::drawableSize(drawable, &width, &height);
    return QRect(0, 0, width, height);
}

void PainterData::needView()
{
    if (state.viewKnown || !device)
        return;
    state.viewKnown = true;
    state.window = state.viewport = deviceRect();
}

void PainterData::changed()
{
    penGc.slot = nullptr;
    brushGc.slot = nullptr;
}

void PainterData::transformChanged()
{
    matrix = state.worldOn ? state.world : QWMatrix();
    if (state.viewOn)
        matrix = matrix * viewMatrix(state.window, state.viewport);
    const QWMatrix& m = matrix;
    if (m.isIdentity()) {
        transform = Transform::None;
    } else if (m.m12() != 0.0 || m.m21() != 0.0) {
        transform = Transform::Other;
    } else if (m.m11() == 1.0 && m.m22() == 1.0 && isWhole(m.dx()) && isWhole(m.dy())) {
        transform = Transform::Translation;
        dx = static_cast<int>(m.dx());
        dy = static_cast<int>(m.dy());
    } else {
        transform = Transform::Scaling;
    }
}

void PainterData::clipChanged()
{
    if (hasEventClip)
        clip = clipOf(state.clipOn ? eventClip & state.clip : eventClip);
    else
        clip = state.clipOn ? clipOf(state.clip) : nullptr;
    changed();
}

// Bitmaps know color0 and color1; of other colours the dark ones are ink.
unsigned long PainterData::pixelOf(const QColor& color) const
{
    if (!bitmap)
        return x11::pixelOf(color.rgb() & RGB_MASK);
    if (color == Qt::color0 || color == Qt::color1)
        return color == Qt::color1;
    return qGray(color.rgb()) < 128;
}

x11::GcKey PainterData::baseKey() const
{
    x11::GcKey key;
    key.foreground = pixelOf(state.pen.color());
    key.background = pixelOf(state.background);
    key.function = functionOf(state.rop);
    key.overChildren = overChildren;
    key.bitmap = bitmap;
    key.clip = clip;
    return key;
}

x11::GcKey PainterData::brushKey(const QBrush& brush) const
{
    x11::GcKey key = baseKey();
    key.foreground = pixelOf(brush.color());
    if (brush.style() == Qt::SolidPattern)
        return key;
    key.originX = state.brushOrigin.x();
    key.originY = state.brushOrigin.y();
    const QPixmap* pixmap = brush.style() == Qt::CustomPattern ? brush.pixmap() : nullptr;
    if (pixmap && (pixmap->depth() > 1 || bitmap)) {
        key.fill = x11::FillWithTile;
        key.pattern = pixmap->handle();
        return key;
    }
    key.pattern = pixmap ? pixmap->handle() : patternBitmap(brush.style());
    if (key.pattern) // else a style that has none: a custom pattern that was never given, or no style at all
        key.fill = state.backgroundMode == Qt::OpaqueMode ? x11::FillWithOpaqueStipple : x11::FillWithStipple;
    return key;
}

const x11::GcSlot* PainterData::takePenGc()
{
    x11::GcKey key = baseKey();
    key.lineWidth = static_cast<int>(state.pen.width());
    key.cap = capOf(state.pen.capStyle());
    key.join = joinOf(state.pen.joinStyle());
    key.dashes = dashesOf(state.pen);
    if (!key.dashes.empty()) {
        key.lineWidth = std::max(key.lineWidth, 1);
        key.lineStyle = state.backgroundMode == Qt::OpaqueMode ? x11::LineDoubleDash : x11::LineOnOff;
    }
    penGc.slot = x11::gcFor(key);
    penGc.version = penGc.slot->version;
    return penGc.slot;
}

const x11::GcSlot* PainterData::takeBrushGc()
{
    brushGc.slot = x11::gcFor(brushKey(state.brush));
    brushGc.version = brushGc.slot->version;
    return brushGc.slot;
}

QPoint PainterData::transformed(const QPoint& point) const
{
    return transform == Transform::Translation ? point + QPoint(dx, dy) : matrix.map(point);
}

QRect PainterData::mapRect(const QRect& rect) const
{
    switch (transform) {
    case Transform::None:
        return rect;
    case Transform::Translation:
        return QRect(rect.x() + dx, rect.y() + dy, rect.width(), rect.height());
    default:
        return matrix.mapRect(rect);
    }
}

std::vector<x11::Point> PainterData::mapPoints(const QPointArray& points, int index, int count) const
{
    cutToArray(points, &index, &count);
    std::vector<x11::Point> result(static_cast<size_t>(count));
    const QPoint* const from = points.data() + index;
    std::transform(from, from + result.size(), result.begin(), [this](const QPoint& point) {
        const QPoint mapped = map(point);
        return x11::Point{static_cast<short>(mapped.x()), static_cast<short>(mapped.y())};
    });
    return result;
}

void PainterData::fillDeviceRect(const QRect& rect, const x11::GcSlot* gc) const
{
    if (!rect.isEmpty())
        x11::fillRectangle(drawable, gc, rect.x(), rect.y(), rect.width(), rect.height());
}

void PainterData::fillMappedRect(const QRect& rect, const x11::GcSlot* gc) const
{
    if (mapsRectsToRects())
        fillDeviceRect(mapRect(rect), gc);
    else
        fillTurnedRect(rect, gc);
}

void PainterData::fillTurnedRect(const QRect& rect, const x11::GcSlot* gc) const
{
    std::vector<x11::Point> corners = mapPoints(QPointArray(rect), 0, -1);
    x11::fillPolygon(drawable, gc, corners, false);
    corners.push_back(corners.front());
    x11::drawPolyline(drawable, gc, corners);
}

void PainterData::fillArc(const QRect& rect, int startAngle, int angleLength, bool chord)
{
    if (!hasBrush())
        return;
    const QRect r = mapRect(rect);
    const int less = hasPen() ? 1 : 0;
    x11::fillArc(drawable, forBrush(), r.x(), r.y(), r.width() - less, r.height() - less, startAngle * 4,
                 angleLength * 4, chord);
}

void PainterData::fillPoints(const std::vector<x11::Point>& points, bool winding, const x11::GcSlot* gc) const
{
    if (points.size() > 2)
        x11::fillPolygon(drawable, gc, points, winding);
}

} // namespace zeltk
