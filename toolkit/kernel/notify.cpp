// QApplication: delivery of events, first to the filters, then from the receiver outwards.
#include <qapplication.h>

#include "kernel/applicationdata.h"
#include "kernel/objectdata.h"

#include <qevent.h>
#include <qwidget.h>

namespace
{

// The application's own filters see the events of all objects.
bool deliver(QObject* receiver, QEvent* event)
{
    if (receiver != qApp && zeltk::askFilters(qApp, receiver, event))
        return true;
    return receiver->event(event);
}

// Who ignores a key leaves it to the parent. Shortcuts count as ignored until somebody wants them.
bool deliverKey(QWidget* widget, QKeyEvent* key)
{
    const bool isKey = key->type() == QEvent::KeyPress || key->type() == QEvent::KeyRelease;
    for (;;) {
        if (isKey)
            key->accept();
        else
            key->ignore();
        const QGuardedPtr<QWidget> alive(widget);
        const bool handled = deliver(widget, key);
        if ((handled && key->isAccepted()) || alive.isNull() || widget->isTopLevel())
            return handled;
        zeltk::EventAccess::setSpontaneous(key, false);
        widget = widget->parentWidget();
    }
}

bool wantsMove(const QWidget* widget, const QMouseEvent* mouse)
{
    return (mouse->state() & Qt::MouseButtonMask) || widget->hasMouseTracking() ||
           QApplication::hasGlobalMouseTracking();
}

// The same event as the parent sees it. Only the first receiver's comes from the user's hand.
QMouseEvent moved(const QMouseEvent& event, const QPoint& pos)
{
    return QMouseEvent(event.type(), pos, event.globalPos(), event.button(), event.state());
}

QWheelEvent moved(const QWheelEvent& event, const QPoint& pos)
{
    return QWheelEvent(pos, event.globalPos(), event.delta(), event.state(), event.orientation());
}

QContextMenuEvent moved(const QContextMenuEvent& event, const QPoint& pos)
{
    return QContextMenuEvent(event.reason(), pos, event.globalPos(), event.state());
}

bool wants(const QWidget* widget, const QMouseEvent* event)
{
    return event->type() != QEvent::MouseMove || wantsMove(widget, event);
}

bool wants(const QWidget*, const QEvent*)
{
    return true;
}

// Who ignores the pointer's event leaves it to the parent. What the last one decides counts for all.
template <typename Event>
bool deliverPointer(QWidget* widget, Event* event)
{
    QPoint pos = event->pos();
    bool handled = false;
    bool accepted = false;
    for (bool first = true;; first = false) {
        Event copy = moved(*event, pos);
        Event* here = first ? event : &copy;
        here->accept();
        if (wants(widget, here)) {
            const QGuardedPtr<QWidget> alive(widget);
            handled = deliver(widget, here);
            accepted = here->isAccepted();
            if ((handled && accepted) || alive.isNull() || !widget->isEnabled())
                break; // disabled widgets swallow it
        }
        if (widget->isTopLevel() || widget->testWFlags(Qt::WNoMousePropagation))
            break;
        pos = widget->mapToParent(pos);
        widget = widget->parentWidget();
    }
    if (accepted)
        event->accept();
    else
        event->ignore();
    return handled;
}

} // namespace

bool QApplication::notify(QObject* receiver, QEvent* event)
{
    if (!receiver) {
        qWarning("QApplication::notify: Unexpected null receiver");
        return false;
    }
    if (!receiver->isWidgetType())
        return deliver(receiver, event);
    QWidget* widget = static_cast<QWidget*>(receiver);
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Accel:
    case QEvent::AccelOverride:
        return deliverKey(widget, static_cast<QKeyEvent*>(event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        return deliverPointer(widget, static_cast<QMouseEvent*>(event));
    case QEvent::Wheel:
        return deliverPointer(widget, static_cast<QWheelEvent*>(event));
    case QEvent::ContextMenu:
        return deliverPointer(widget, static_cast<QContextMenuEvent*>(event));
    default:
        return deliver(receiver, event);
    }
}

namespace zeltk
{

bool sendSpontaneous(QObject* receiver, QEvent* event)
{
    EventAccess::setSpontaneous(event, true);
    return qApp->notify(receiver, event);
}

} // namespace zeltk

bool QApplication::sendEvent(QObject* receiver, QEvent* event)
{
    zeltk::EventAccess::setSpontaneous(event, false);
    return qApp && qApp->notify(receiver, event);
}
