// QApplication: events that wait for the event loop.
#include "kernel/applicationdata.h"
#include "kernel/applicationprivate.h"
#include "kernel/widgetdata.h"

#include <qapplication.h>

#include <algorithm>
#include <list>
#include <vector>

namespace
{

struct Posted {
    QObject* receiver;
    QEvent* event;
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
    for (Posted& posted : queue()) {
        if (posted.receiver != receiver || posted.event->type() != event->type())
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

std::vector<const QEvent*> queuedPaints()
{
    std::vector<const QEvent*> paints;
    for (const Posted& posted : queue())
        if (posted.event->type() == QEvent::Paint)
            paints.push_back(posted.event);
    return paints;
}

template <typename Condition>
void removeIf(Condition condition)
{
    for (auto it = queue().begin(); it != queue().end();) {
        if (condition(*it)) {
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
    const std::vector<const QEvent*> paints = queuedPaints();
    const auto isWanted = [&](const Posted& p) {
        return (!receiver || p.receiver == receiver) && (!type || p.event->type() == type) &&
               (p.event->type() != QEvent::Paint ||
                std::find(paints.begin(), paints.end(), p.event) != paints.end());
    };
    const auto isReceivers = [receiver](const Posted& p) { return !receiver || p.receiver == receiver; };
    for (bool last = false; !last;) {
        const auto place = std::find_if(queue().begin(), queue().end(), isWanted);
        if (place == queue().end())
            return;
        last = std::none_of(std::next(place), queue().end(), isReceivers);
        const Posted posted = *place;
        queue().erase(place);
        zeltk::EventAccess::setPosted(posted.event, false);
        deliver(posted.receiver, posted.event);
        delete posted.event;
    }
}

void QApplication::removePostedEvents(QObject* receiver)
{
    zeltk::removePostedEvents(receiver);
}
