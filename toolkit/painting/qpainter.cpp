// QPainter: opening and state.
#include <qpainter.h>

#include "painting/paintdeviceprivate.h"
#include "painting/painterdata.h"
#include "painting/rasterops.h"
#include "painting/widgetpaintstate.h"
#include "x11/connection.h"

#include <map>
#include <utility>

using zeltk::PainterData;
using zeltk::PainterState;

namespace zeltk
{
WidgetPaintStateFunction widgetPaintState = nullptr;
}

QPainter::QPainter() : d(new PainterData) {}

QPainter::QPainter(const QPaintDevice* device, bool unclipped) : d(new PainterData)
{
    begin(device, unclipped);
}

QPainter::QPainter(const QPaintDevice* device, const QWidget* copyAttributes, bool unclipped)
    : d(new PainterData)
{
    begin(device, copyAttributes, unclipped);
}

QPainter::~QPainter()
{
    if (isActive())
        end();
    delete d;
}

namespace
{

void takeAttributes(const zeltk::WidgetPaintState& from, PainterState* state)
{
    state->font = from.font;
    state->pen = QPen(from.foreground);
    state->background = from.background;
}

void beginOnWidget(const QPaintDevice* device, PainterData* d)
{
    if (!zeltk::widgetPaintState)
        return;
    zeltk::WidgetPaintState widget;
    zeltk::widgetPaintState(device, nullptr, &widget);
    takeAttributes(widget, &d->state);
    d->state.brushOrigin = widget.brushOrigin;
    d->overChildren = d->overChildren || widget.unclipped;
    d->hasEventClip = widget.painting && !widget.wholeWidget;
    d->eventClip = widget.eventClip;
}

bool beginOnPixmap(QPixmap* pixmap, PainterData* d)
{
    if (pixmap->isNull()) {
        qWarning("QPainter::begin: Cannot paint null pixmap");
        return false;
    }
    pixmap->detach();
    d->bitmap = pixmap->depth() == 1;
    if (d->bitmap) {
        d->state.pen = QPen(Qt::color1);
        d->state.background = Qt::color0;
    }
    return true;
}

} // namespace

bool QPainter::begin(const QPaintDevice* device, bool unclipped)
{
    if (isActive()) {
        qWarning("QPainter::begin: Painter is already active.\n\tYou must end() the painter before a second "
                 "begin()");
        return false;
    }
    if (!device) {
        qWarning("QPainter::begin: Paint device cannot be null");
        return false;
    }
    QPaintDevice* target = const_cast<QPaintDevice*>(device);
    if (QPaintDevice* replacement = redirect(target))
        target = replacement;
    PainterData fresh;
    fresh.overChildren = unclipped;
    if (zeltk::PaintDeviceAccess::isWidget(target))
        beginOnWidget(target, &fresh);
    else if (!beginOnPixmap(static_cast<QPixmap*>(target), &fresh))
        return false;
    *d = std::move(fresh);
    d->device = target;
    d->drawable = target->handle();
    ++target->painters;
    d->clipChanged();
    return true;
}

bool QPainter::begin(const QPaintDevice* device, const QWidget* copyAttributes, bool unclipped)
{
    if (!copyAttributes) {
        qWarning("QPainter::begin: The widget to copy attributes from cannot be null");
        return false;
    }
    if (!begin(device, unclipped))
        return false;
    zeltk::WidgetPaintState widget;
    zeltk::widgetPaintState(nullptr, copyAttributes, &widget);
    takeAttributes(widget, &d->state);
    d->changed();
    return true;
}

bool QPainter::end()
{
    if (!isActive()) {
        qWarning("QPainter::end: Missing begin() or begin() failed");
        return false;
    }
    --d->device->painters;
    d->device = nullptr;
    d->saved.clear();
    return true;
}

QPaintDevice* QPainter::device() const
{
    return d->device;
}

bool QPainter::isActive() const
{
    return d->device != nullptr;
}

void QPainter::flush()
{
    zeltk::x11::flush();
}

void QPainter::save()
{
    d->saved.push_back(d->state);
}

void QPainter::restore()
{
    if (d->saved.empty()) {
        qWarning("QPainter::restore: Empty stack error");
        return;
    }
    d->state = d->saved.back();
    d->saved.pop_back();
    d->transformChanged();
    d->clipChanged();
}

namespace
{

void warnIfInactive(const QPainter* painter, const char* function)
{
    if (!painter->isActive())
        qWarning("QPainter::%s: Will be reset by begin()", function);
}

} // namespace

QFontMetrics QPainter::fontMetrics() const
{
    return QFontMetrics(d->state.font);
}

QFontInfo QPainter::fontInfo() const
{
    return QFontInfo(d->state.font);
}

const QFont& QPainter::font() const
{
    return d->state.font;
}

void QPainter::setFont(const QFont& font)
{
    warnIfInactive(this, "setFont");
    d->state.font = font;
}

const QPen& QPainter::pen() const
{
    return d->state.pen;
}

// Both contexts take the pen's colour as their foreground, unless the brush has its own.
void QPainter::setPen(const QPen& pen)
{
    warnIfInactive(this, "setPen");
    if (d->state.pen == pen)
        return;
    d->state.pen = pen;
    d->penGc.slot = nullptr;
}

void QPainter::setPen(PenStyle style)
{
    setPen(QPen(style));
}

void QPainter::setPen(const QColor& color)
{
    setPen(QPen(color));
}

const QBrush& QPainter::brush() const
{
    return d->state.brush;
}

void QPainter::setBrush(const QBrush& brush)
{
    warnIfInactive(this, "setBrush");
    d->state.brush = brush;
    d->brushGc.slot = nullptr;
}

void QPainter::setBrush(BrushStyle style)
{
    setBrush(QBrush(style));
}

void QPainter::setBrush(const QColor& color)
{
    setBrush(QBrush(color));
}

QPoint QPainter::pos() const
{
    return d->state.pos;
}

const QColor& QPainter::backgroundColor() const
{
    return d->state.background;
}

void QPainter::setBackgroundColor(const QColor& color)
{
    warnIfInactive(this, "setBackgroundColor");
    d->state.background = color;
    d->changed();
}

Qt::BGMode QPainter::backgroundMode() const
{
    return d->state.backgroundMode;
}

void QPainter::setBackgroundMode(BGMode mode)
{
    warnIfInactive(this, "setBackgroundMode");
    d->state.backgroundMode = mode;
    d->changed();
}

Qt::RasterOp QPainter::rasterOp() const
{
    return d->state.rop;
}

void QPainter::setRasterOp(RasterOp op)
{
    warnIfInactive(this, "setRasterOp");
    if (!zeltk::isRasterOp(op)) {
        qWarning("QPainter::setRasterOp: Invalid ROP code");
        return;
    }
    d->state.rop = op;
    d->changed();
}

const QPoint& QPainter::brushOrigin() const
{
    return d->state.brushOrigin;
}

void QPainter::setBrushOrigin(int x, int y)
{
    warnIfInactive(this, "setBrushOrigin");
    d->state.brushOrigin = QPoint(x, y);
    d->changed();
}

void QPainter::setClipping(bool enable)
{
    d->state.clipOn = enable;
    d->clipChanged();
}

bool QPainter::hasClipping() const
{
    return d->state.clipOn;
}

QRegion QPainter::clipRegion(CoordinateMode mode) const
{
    if (mode == CoordDevice || d->transform == zeltk::Transform::None)
        return d->state.clip;
    return d->matrix.invert().map(d->state.clip);
}

void QPainter::setClipRect(const QRect& rect, CoordinateMode mode)
{
    setClipRegion(QRegion(rect), mode);
}

void QPainter::setClipRegion(const QRegion& region, CoordinateMode mode)
{
    if (!isActive())
        qWarning("QPainter::setClipRegion: Will be reset by begin()");
    const bool mapped = mode == CoordPainter && d->transform != zeltk::Transform::None;
    d->state.clip = mapped ? d->matrix.map(region) : region;
    setClipping(true);
}

namespace
{

std::map<QPaintDevice*, QPaintDevice*>& redirections()
{
    static std::map<QPaintDevice*, QPaintDevice*> targets;
    return targets;
}

} // namespace

void QPainter::redirect(QPaintDevice* device, QPaintDevice* replacement)
{
    if (replacement)
        redirections()[device] = replacement;
    else
        redirections().erase(device);
}

QPaintDevice* QPainter::redirect(QPaintDevice* device)
{
    const auto found = redirections().find(device);
    return found == redirections().end() ? nullptr : found->second;
}
