// QWidget: painting, at once and later.
#include "kernel/widgetdata.h"
#include "painting/widgetpaintstate.h"
#include "x11/window.h"

#include <qapplication.h>
#include <qevent.h>
#include <qguardedptr.h>
#include <qpainter.h>

using zeltk::WidgetData;

namespace
{

// Fills in what a painter on a widget starts with.
void paintStateOf(const QPaintDevice* device, const QWidget* widget, zeltk::WidgetPaintState* state)
{
    if (!widget)
        widget = static_cast<const QWidget*>(device);
    const WidgetData* data = zeltk::dataOf(widget);
    const QPoint offset = widget->backgroundOffset();
    state->font = data->font;
    state->foreground = widget->paletteForegroundColor();
    state->background = widget->paletteBackgroundColor();
    state->brushOrigin = QPoint(-offset.x(), -offset.y());
    state->unclipped = widget->testWFlags(Qt::WPaintUnclipped) != 0;
    state->painting = data->painted != nullptr;
    state->eventClip = data->painted ? *data->painted : QRegion();
    state->wholeWidget = data->painted && *data->painted == QRegion(widget->rect());
}

const bool stateFunctionSet = [] {
    zeltk::widgetPaintState = paintStateOf;
    return true;
}();

// Whether the server leaves the tiles to us.
bool tilesItself(const WidgetData* data)
{
    return data->erasePixmap && !data->erasePixmap->isNull() && data->origin != QWidget::WidgetOrigin;
}

void sendPaintEvent(QWidget* widget, const QRegion& region, bool erased)
{
    WidgetData* data = zeltk::dataOf(widget);
    const QRegion* const outer = data->painted;
    const bool nested = widget->testWState(Qt::WState_InPaintEvent) != 0;
    const QGuardedPtr<QWidget> alive(widget);
    data->painted = &region;
    zeltk::WidgetAccess::setState(widget, Qt::WState_InPaintEvent);
    // The smallest rectangle a paint event speaks of is one pixel.
    const QRect box = region.isEmpty() ? QRect(0, 0, 1, 1) : region.boundingRect();
    QPaintEvent event(region, box, erased);
    QApplication::sendEvent(widget, &event);
    if (!alive)
        return;
    data->painted = outer;
    if (!nested)
        zeltk::WidgetAccess::clearState(widget, Qt::WState_InPaintEvent);
}

} // namespace

namespace zeltk
{

bool mayPaint(const QWidget* widget)
{
    return widget->isVisible() && widget->isUpdatesEnabled();
}

void windowExposed(QWidget* widget, const QRect& rect, int more)
{
    WidgetData* data = dataOf(widget);
    data->exposed |= QRegion(rect);
    if (more > 0)
        return;
    const QRegion region = data->exposed & QRegion(widget->rect());
    const bool erased = !data->keepsOnResize;
    data->exposed = QRegion();
    data->keepsOnResize = false;
    WidgetAccess::setState(widget, Qt::WState_Exposed);
    if (region.isEmpty() || !mayPaint(widget))
        return;
    if (erased && tilesItself(data))
        widget->erase(region);
    sendPaintEvent(widget, region, erased);
}

} // namespace zeltk

bool QWidget::isUpdatesEnabled() const
{
    return !testWState(WState_BlockUpdates);
}

void QWidget::setUpdatesEnabled(bool enable)
{
    if (enable)
        clearWState(WState_BlockUpdates);
    else
        setWState(WState_BlockUpdates);
}

void QWidget::update()
{
    update(rect());
}

void QWidget::update(int x, int y, int w, int h)
{
    if (w < 0)
        w = width() - x;
    if (h < 0)
        h = height() - y;
    update(QRect(x, y, w, h));
}

void QWidget::update(const QRect& rect)
{
    if (!zeltk::mayPaint(this) || rect.isEmpty())
        return;
    const QRegion region(rect & this->rect());
    QApplication::postEvent(this, new QPaintEvent(region, !testWFlags(WRepaintNoErase)));
}

void QWidget::repaint()
{
    repaint(true);
}

void QWidget::repaint(bool erase)
{
    repaint(rect(), erase);
}

void QWidget::repaint(int x, int y, int w, int h, bool erase)
{
    if (w < 0)
        w = width() - x;
    if (h < 0)
        h = height() - y;
    repaint(QRect(x, y, w, h), erase);
}

void QWidget::repaint(const QRect& rect, bool erase)
{
    const QRect inside = rect & this->rect();
    if (inside.isValid())
        repaint(QRegion(inside), erase);
}

void QWidget::repaint(const QRegion& region, bool erase)
{
    if (!zeltk::mayPaint(this))
        return;
    const QRegion inside = region & QRegion(rect());
    if (erase)
        this->erase(inside);
    sendPaintEvent(this, inside, erase);
}

void QWidget::erase()
{
    erase(rect());
}

void QWidget::erase(int x, int y, int w, int h)
{
    if (w < 0)
        w = width() - x;
    if (h < 0)
        h = height() - y;
    erase(QRect(x, y, w, h));
}

void QWidget::erase(const QRect& rect)
{
    const QRect inside = rect & this->rect();
    if (inside.isValid())
        erase(QRegion(inside));
}

void QWidget::erase(const QRegion& region)
{
    if (wd->mode == NoBackground || !isVisible())
        return;
    if (tilesItself(wd)) {
        QPainter painter(this);
        painter.setClipRegion(region);
        painter.drawTiledPixmap(rect(), *wd->erasePixmap, backgroundOffset());
        return;
    }
    const QMemArray<QRect> boxes = region.rects();
    for (uint i = 0; i < boxes.size(); ++i) {
        const QRect box = boxes[i];
        zeltk::x11::clearWindowArea(wd->window, {box.x(), box.y(), box.width(), box.height()});
    }
}

void QWidget::drawText(int x, int y, const QString& text)
{
    QPainter painter(this);
    painter.drawText(x, y, text);
}

void QWidget::drawText(const QPoint& pos, const QString& text)
{
    drawText(pos.x(), pos.y(), text);
}
