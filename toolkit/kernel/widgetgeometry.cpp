// QWidget: places and sizes.
#include <qwidget.h>

#include "kernel/widgetdata.h"
#include "x11/events.h"
#include "x11/window.h"

#include <qapplication.h>
#include <qevent.h>

using zeltk::WidgetData;
namespace x11 = zeltk::x11;

namespace
{

// Where the widget begins in its frame; children and unmanaged windows have none.
QPoint cornerInFrame(const WidgetData* data)
{
    return data->rect.topLeft() - data->frame.topLeft();
}

// The frame goes with it.
void placeClient(WidgetData* data, const QRect& client)
{
    const QSize around = data->frame.size() - data->rect.size();
    data->frame = QRect(client.topLeft() - cornerInFrame(data), client.size() + around);
    data->rect = client;
}

// Tells a visible widget at once; a hidden one hears of it before it is shown, at the latest.
void tellGeometry(QWidget* widget, const QPoint& oldPos, const QSize& oldSize)
{
    const bool moved = widget->pos() != oldPos;
    const bool resized = widget->size() != oldSize;
    if (!widget->isVisible()) {
        if (moved)
            QApplication::postEvent(widget, new QMoveEvent(widget->pos(), oldPos));
        if (resized)
            QApplication::postEvent(widget, new QResizeEvent(widget->size(), oldSize));
        return;
    }
    const QGuardedPtr<QWidget> alive(widget);
    if (moved) {
        QMoveEvent event(widget->pos(), oldPos);
        QApplication::sendEvent(widget, &event);
    }
    if (resized && alive) {
        QResizeEvent event(widget->size(), oldSize);
        QApplication::sendEvent(widget, &event);
    }
}

void tellServer(QWidget* widget, const QRect& r, bool moved, bool resized)
{
    zeltk::dataOf(widget)->configureSerial = x11::nextSerial();
    if (moved && resized)
        x11::moveResizeWindow(widget->winId(), r.x(), r.y(), r.width(), r.height());
    else if (moved)
        x11::moveWindow(widget->winId(), r.x(), r.y());
    else if (resized)
        x11::resizeWindow(widget->winId(), r.width(), r.height());
}

// The server exposes what a new size uncovers. Unless the contents are static all of the widget must be
// painted: it is done as an update, and the server's wishes are void. A window that must not be erased is
// without background meanwhile.
void resizeWindow(QWidget* widget, const QRect& r, bool moved, bool resized)
{
    WidgetData* data = zeltk::dataOf(widget);
    if (!resized || !widget->isVisible()) {
        tellServer(widget, r, moved, resized);
        return;
    }
    const bool erases = !widget->testWFlags(Qt::WResizeNoErase);
    if (!erases)
        x11::setNoBackground(widget->winId());
    tellServer(widget, r, moved, resized);
    if (!erases) {
        data->plainBackground = false;
        zeltk::applyBackground(widget);
    }
    if (widget->testWFlags(Qt::WStaticContents))
        return;
    data->repaintedSerial = data->configureSerial;
    data->exposed = QRegion();
    if (widget->isUpdatesEnabled())
        QApplication::postEvent(widget, new QPaintEvent(widget->visibleRect(), erases));
}

// `pos` is the place of the frame, where there is one.
void changeGeometry(QWidget* widget, const QPoint& pos, QSize size)
{
    if (widget->isDesktop())
        return;
    WidgetData* data = zeltk::dataOf(widget);
    size = size.boundedTo(data->maximum).expandedTo(data->minimum).expandedTo(QSize(1, 1));
    const QPoint oldPos = widget->pos();
    const QSize oldSize = widget->size();
    if (pos == oldPos && size == oldSize)
        return;
    placeClient(data, QRect(pos + cornerInFrame(data), size));
    resizeWindow(widget, QRect(pos, size), pos != oldPos, size != oldSize);
    tellGeometry(widget, oldPos, oldSize);
}

} // namespace

namespace zeltk
{

// News that the server sent before it heard of our own latest change is dropped.
void windowConfigured(QWidget* window, const QRect& rect)
{
    WidgetData* data = dataOf(window);
    if (rect == data->rect || x11::lastSerial() < data->configureSerial)
        return;
    const QPoint oldPos = window->pos();
    const QSize oldSize = window->size();
    placeClient(data, rect);
    tellGeometry(window, oldPos, oldSize);
}

} // namespace zeltk

const QRect& QWidget::geometry() const
{
    return w->rect;
}

QRect QWidget::frameGeometry() const
{
    return isTopLevel() ? w->frame : w->rect;
}

int QWidget::x() const
{
    return pos().x();
}

int QWidget::y() const
{
    return pos().y();
}

QPoint QWidget::pos() const
{
    return frameGeometry().topLeft();
}

QSize QWidget::frameSize() const
{
    return frameGeometry().size();
}

void QWidget::move(int x, int y)
{
    w->placed = true;
    changeGeometry(this, QPoint(x, y), size());
}

void QWidget::move(const QPoint& p)
{
    move(p.x(), p.y());
}

void QWidget::resize(int width, int height)
{
    setWState(WState_Resized);
    changeGeometry(this, pos(), QSize(width, height));
}

void QWidget::resize(const QSize& size)
{
    resize(size.width(), size.height());
}

// The rectangle is the client area's; move() takes the frame's corner.
void QWidget::setGeometry(int x, int y, int width, int height)
{
    w->placed = true;
    setWState(WState_Resized);
    changeGeometry(this, QPoint(x, y) - cornerInFrame(w), QSize(width, height));
}

void QWidget::setGeometry(const QRect& rect)
{
    setGeometry(rect.x(), rect.y(), rect.width(), rect.height());
}
