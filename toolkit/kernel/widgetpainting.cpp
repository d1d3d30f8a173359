// QWidget: painting.
#include <qwidget.h>

#include "kernel/applicationprivate.h"
#include "kernel/widgetdata.h"
#include "painting/pixmapdata.h"
#include "painting/widgetpaintstate.h"
#include "x11/events.h"
#include "x11/window.h"

#include <qapplication.h>
#include <qevent.h>
#include <qguardedptr.h>
#include <qpainter.h>

using zeltk::WidgetAccess;
using zeltk::WidgetData;
namespace x11 = zeltk::x11;

namespace
{

bool paintsItself(const QWidget* widget)
{
    return widget->isVisible() && widget->isUpdatesEnabled() && !widget->isDesktop();
}

// Negative widths and heights reach to the edge.
QRect toTheEdges(const QWidget* widget, int x, int y, int width, int height)
{
    return QRect(x, y, width < 0 ? widget->width() - x : width, height < 0 ? widget->height() - y : height);
}

// The server paints pixmaps from the window's own corner only.
bool erasesByPainter(const WidgetData* data)
{
    return data->backgroundPixmap && !data->backgroundPixmap->isNull() &&
           data->origin != QWidget::WidgetOrigin;
}

void eraseRegion(QWidget* widget, const QRegion& region)
{
    const WidgetData* data = zeltk::dataOf(widget);
    if (data->mode == Qt::NoBackground)
        return;
    const QMemArray<QRect> rects = region.rects();
    if (erasesByPainter(data)) {
        QPainter p(widget);
        p.setClipRegion(region);
        p.drawTiledPixmap(region.boundingRect(), *data->backgroundPixmap,
                          region.boundingRect().topLeft() + widget->backgroundOffset());
        return;
    }
    for (uint i = 0; i < rects.size(); ++i)
        x11::clearArea(widget->winId(), rects.at(i).x(), rects.at(i).y(), rects.at(i).width(),
                       rects.at(i).height());
}

void paintState(const QPaintDevice* device, const QWidget* widget, zeltk::WidgetPaintState* state)
{
    if (!widget)
        widget = static_cast<const QWidget*>(device);
    const WidgetData* data = zeltk::dataOf(widget);
    state->font = widget->font();
    state->foreground = widget->foregroundColor();
    state->background = widget->paletteBackgroundColor();
    state->brushOrigin = -widget->backgroundOffset();
    state->unclipped = widget->testWFlags(Qt::WPaintUnclipped);
    state->painting = data->painting;
    state->eventClip = data->paintRegion;
    state->wholeWidget = data->painting && data->paintRegion == QRegion(widget->rect());
}

void fillFrom(QPixmap* pixmap, const QWidget* widget, int x, int y)
{
    const WidgetData* data = zeltk::dataOf(widget);
    if (!data->backgroundPixmap || data->backgroundPixmap->isNull()) {
        pixmap->fill(data->background);
        return;
    }
    QPainter p(pixmap);
    p.drawTiledPixmap(pixmap->rect(), *data->backgroundPixmap, QPoint(x, y) + widget->backgroundOffset());
}

} // namespace

namespace zeltk
{

void connectPainting()
{
    widgetPaintState = paintState;
    fillFromWidget = fillFrom;
}

// The event is visible to painters while it is delivered, so that they clip to it.
void deliverPaint(QWidget* widget, const QRegion& region, bool erased)
{
    WidgetData* data = dataOf(widget);
    const QGuardedPtr<QWidget> alive(widget);
    const bool outer = data->painting;
    const QRegion outerRegion = data->paintRegion;
    data->painting = true;
    data->paintRegion = region;
    WidgetAccess::setState(widget, Qt::WState_InPaintEvent);
    // The smallest rectangle a paint event speaks of is one pixel.
    QPaintEvent event(region, region.isEmpty() ? QRect(0, 0, 1, 1) : region.boundingRect(), erased);
    QApplication::sendEvent(widget, &event);
    if (alive.isNull())
        return;
    if (widget->paintingActive())
        qWarning("QWidget: a painter is still open at the end of the paint event of %s", widget->name());
    data->painting = outer;
    data->paintRegion = outerRegion;
    if (!outer)
        WidgetAccess::clearState(widget, Qt::WState_InPaintEvent);
}

void windowExposed(QWidget* widget, const QRect& rect, int more)
{
    WidgetData* data = dataOf(widget);
    if (x11::lastSerial() <= data->repaintedSerial)
        return;
    data->exposed |= rect;
    if (more > 0)
        return;
    const QRegion region = data->exposed & QRegion(widget->rect());
    data->exposed = QRegion();
    if (region.isEmpty() || !paintsItself(widget))
        return;
    // What was painted meanwhile is not cleared again: smooth text grows bolder there, as in Qt.
    if (erasesByPainter(data))
        eraseRegion(widget, region);
    deliverPaint(widget, region, true);
}

// A queued update of nothing that can be seen still comes as an event.
void repaintPosted(QWidget* widget, const QRegion& region, bool erase)
{
    if (!paintsItself(widget))
        return;
    const QRegion inside = region & QRegion(widget->rect());
    if (erase)
        eraseRegion(widget, inside);
    deliverPaint(widget, inside, erase);
}

} // namespace zeltk

void QWidget::setUpdatesEnabled(bool enable)
{
    if (enable)
        w->state &= ~WState_BlockUpdates;
    else
        w->state |= WState_BlockUpdates;
}

void QWidget::update()
{
    update(rect());
}

void QWidget::update(int x, int y, int width, int height)
{
    update(toTheEdges(this, x, y, width, height));
}

void QWidget::update(const QRect& rect)
{
    if (paintsItself(this) && !rect.isEmpty())
        QApplication::postEvent(this, new QPaintEvent(QRegion(rect), !testWFlags(WRepaintNoErase)));
}

void QWidget::repaint()
{
    repaint(QRegion(rect()), true);
}

void QWidget::repaint(bool erase)
{
    repaint(QRegion(rect()), erase);
}

void QWidget::repaint(int x, int y, int width, int height, bool erase)
{
    repaint(toTheEdges(this, x, y, width, height), erase);
}

void QWidget::repaint(const QRect& rect, bool erase)
{
    repaint(QRegion(rect), erase);
}

void QWidget::repaint(const QRegion& region, bool erase)
{
    const QRegion inside = region & QRegion(rect());
    if (!paintsItself(this) || inside.isEmpty())
        return;
    if (erase)
        eraseRegion(this, inside);
    zeltk::deliverPaint(this, inside, erase);
}

void QWidget::erase()
{
    erase(rect());
}

void QWidget::erase(const QRegion& region)
{
    const QRegion inside = region & QRegion(rect());
    if (isVisible() && !inside.isEmpty())
        eraseRegion(this, inside);
}

void QWidget::scroll(int dx, int dy)
{
    if (!isVisible() || (dx == 0 && dy == 0))
        return;
    const QGuardedPtr<QWidget> alive(this);
    for (const QGuardedPtr<QWidget>& child : zeltk::guardedChildren(this))
        if (child && !child->isTopLevel())
            child->move(child->pos() + QPoint(dx, dy));
    if (alive)
        scroll(dx, dy, rect());
}

// The pixels move; what they leave is painted.
void QWidget::scroll(int dx, int dy, const QRect& area)
{
    if (!isVisible() || (dx == 0 && dy == 0))
        return;
    QRect to = area;
    to.moveBy(dx, dy);
    to &= area;
    if (!to.isEmpty())
        x11::scrollWindow(winId(), to.x() - dx, to.y() - dy, to.width(), to.height(), to.x(), to.y());
    repaint(QRegion(area) - QRegion(to), !testWFlags(WRepaintNoErase));
}

void QWidget::drawText(int x, int y, const QString& text)
{
    if (!testWState(WState_Visible))
        return;
    QPainter p(this);
    p.drawText(x, y, text);
}

void QWidget::paintEvent(QPaintEvent*) {}
