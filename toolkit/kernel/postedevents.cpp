// QApplication: events that wait for the event loop.
#include "kernel/applicationdata.h"
#include "kernel/applicationprivate.h"
#include "kernel/eventqueue.h"
#include "kernel/widgetdata.h"

#include <qapplication.h>

#include <algorithm>

using zeltk::EventQueue;

namespace
{

EventQueue& queue()
{
    static auto* const posted = new EventQueue;
    return *posted;
}

// One event that says what both say; null if each must be sent.
QEvent* merged(QEvent* before, QEvent* now)
{
    switch (now->type()) {
    case QEvent::Paint: {
        const QPaintEvent* first = static_cast<QPaintEvent*>(before);
        const QPaintEvent* second = static_cast<QPaintEvent*>(now);
        return new QPaintEvent(first->region() | second->region(), first->erased() || second->erased());
    }
    case QEvent::Move:
        return new QMoveEvent(static_cast<QMoveEvent*>(now)->pos(),
                              static_cast<QMoveEvent*>(before)->oldPos());
    case QEvent::Resize:
        return new QResizeEvent(static_cast<QResizeEvent*>(now)->size(),
                                static_cast<QResizeEvent*>(before)->oldSize());
    case QEvent::LayoutHint:
    case QEvent::LanguageChange:
        return new QEvent(now->type());
    default:
        return nullptr;
    }
}

// Updates of one widget become one event, as do wishes for a new layout, moves and resizes of a hidden
// widget.
bool joinsEarlier(QObject* receiver, QEvent* event)
{
    QEvent** const earlier = queue().find(receiver, event->type());
    QEvent* const both = earlier ? merged(*earlier, event) : nullptr;
    if (!both)
        return false;
    zeltk::EventAccess::setPosted(both, true);
    delete *earlier;
    *earlier = both;
    return true;
}

void deliver(QObject* receiver, QEvent* event)
{
    if (event->type() == QEvent::Paint && receiver->isWidgetType()) {
        const QPaintEvent* paint = static_cast<QPaintEvent*>(event);
        zeltk::repaintPosted(static_cast<QWidget*>(receiver), paint->region(), paint->erased());
        return;
    }
    QApplication::sendEvent(receiver, event);
}

void discard(EventQueue::Place place)
{
    QEvent* const event = queue().at(place).event;
    queue().remove(place);
    delete event;
}

bool isPaint(EventQueue::Place place)
{
    return queue().at(place).event->type() == QEvent::Paint;
}

// Events count only from before the limit of their kind.
EventQueue::Place firstWanted(QObject* receiver, int type, EventQueue::Place limit,
                              EventQueue::Place paintLimit)
{
    EventQueue::Place place = queue().first(0, receiver, type);
    while (place != queue().end() && place >= (isPaint(place) ? paintLimit : limit))
        place = queue().first(place + 1, receiver, type);
    return place;
}

// Whether another event than a paint event waits behind that place.
bool moreWait(EventQueue::Place place, QObject* receiver)
{
    do
        place = queue().first(place + 1, receiver, 0);
    while (place != queue().end() && isPaint(place));
    return place != queue().end();
}

} // namespace

namespace zeltk
{

void removePostedEvents(QObject* receiver)
{
    for (EventQueue::Place place : queue().placesOf(receiver))
        discard(place);
}

void removePostedChildEvents(QObject* parent, QObject* child)
{
    for (EventQueue::Place place : queue().placesOf(parent)) {
        const QEvent* const event = queue().at(place).event;
        if (event->type() == QEvent::ChildInserted &&
            static_cast<const QChildEvent*>(event)->child() == child)
            discard(place);
    }
}

bool hasPostedEvents()
{
    return !queue().empty();
}

} // namespace zeltk

void QApplication::postEvent(QObject* receiver, QEvent* event)
{
    if (!receiver) {
        qWarning("QApplication::postEvent: Unexpected null receiver");
        delete event;
        return;
    }
    if (joinsEarlier(receiver, event)) {
        delete event;
        return;
    }
    zeltk::EventAccess::setPosted(event, true);
    queue().append(receiver, event);
}

void QApplication::sendPostedEvents()
{
    sendPostedEvents(nullptr, 0);
}

// Also what is posted meanwhile, but for what the last event brings, which waits for the next time, and for
// paint events: widgets that update themselves whenever they paint must not keep the loop from all else. The
// queue may change in any way while an event is delivered, so the search begins anew after each. Children and
// their layouts come first, so that all others meet a settled tree.
void QApplication::sendPostedEvents(QObject* receiver, int type)
{
    if (type == 0) {
        sendPostedEvents(receiver, QEvent::ChildInserted);
        sendPostedEvents(receiver, QEvent::LayoutHint);
    }
    const EventQueue::Place paintLimit = queue().end();
    EventQueue::Place limit = ~EventQueue::Place(0);
    for (;;) {
        const EventQueue::Place place = firstWanted(receiver, type, limit, paintLimit);
        if (place == queue().end())
            return;
        if (!isPaint(place) && !moreWait(place, receiver))
            limit = std::min(limit, queue().end());
        const zeltk::PostedEvent posted = queue().at(place);
        queue().remove(place);
        zeltk::EventAccess::setPosted(posted.event, false);
        deliver(posted.receiver, posted.event);
        delete posted.event;
    }
}

void QApplication::removePostedEvents(QObject* receiver)
{
    zeltk::removePostedEvents(receiver);
}
