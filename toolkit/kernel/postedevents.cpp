// QApplication: events that wait for the event loop.
#include "kernel/applicationdata.h"
#include "kernel/applicationprivate.h"
#include "kernel/widgetdata.h"

#include <qapplication.h>

#include <algorithm>
#include <list>

namespace
{

struct Posted {
    QObject* receiver;
    QEvent* event; // null while it is delivered
};

std::list<Posted>& queue()
{
    static auto* const posted = new std::list<Posted>;
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
        return new QEvent(QEvent::LayoutHint);
    default:
        return nullptr;
    }
}

// Updates of one widget become one event, as do wishes for a new layout, moves and resizes of a hidden
// widget.
bool joinsEarlier(QObject* receiver, QEvent* event)
{
    for (Posted& posted : queue()) {
        if (posted.receiver != receiver || !posted.event || posted.event->type() != event->type())
            continue;
        QEvent* both = merged(posted.event, event);
        if (!both)
            return false;
        zeltk::EventAccess::setPosted(both, true);
        delete posted.event;
        posted.event = both;
        return true;
    }
    return false;
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

template <typename Condition>
void removeIf(Condition condition)
{
    for (auto it = queue().begin(); it != queue().end();) {
        if (it->event && condition(*it)) {
            delete it->event;
            it = queue().erase(it);
        } else {
            ++it;
        }
    }
}

} // namespace

namespace zeltk
{

void removePostedEvents(QObject* receiver)
{
    removeIf([receiver](const Posted& posted) { return posted.receiver == receiver; });
}

void removePostedChildEvents(QObject* parent, QObject* child)
{
    removeIf([=](const Posted& posted) {
        return posted.receiver == parent && posted.event->type() == QEvent::ChildInserted &&
               static_cast<QChildEvent*>(posted.event)->child() == child;
    });
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
    queue().push_back({receiver, event});
}

void QApplication::sendPostedEvents()
{
    sendPostedEvents(nullptr, 0);
}

// Only what was there at the beginning: events that are posted meanwhile wait for the next time. The queue
// may change in any way while an event is delivered, so the search begins anew after each.
void QApplication::sendPostedEvents(QObject* receiver, int type)
{
    std::vector<QEvent*> waiting;
    for (const Posted& posted : queue())
        if (posted.event && (!receiver || posted.receiver == receiver) &&
            (!type || posted.event->type() == type))
            waiting.push_back(posted.event);
    for (QEvent* event : waiting) {
        const auto place = std::find_if(queue().begin(), queue().end(),
                                        [event](const Posted& p) { return p.event == event; });
        if (place == queue().end())
            continue;
        QObject* target = place->receiver;
        queue().erase(place);
        zeltk::EventAccess::setPosted(event, false);
        deliver(target, event);
        delete event;
    }
}

void QApplication::removePostedEvents(QObject* receiver)
{
    zeltk::removePostedEvents(receiver);
}
