// The events that wait for the event loop, in their order, found quickly by receiver and by type.
#ifndef ZELTK_EVENTQUEUE_H
#define ZELTK_EVENTQUEUE_H

#include <qevent.h>

#include <map>
#include <set>
#include <tuple>
#include <utility>
#include <vector>

namespace zeltk
{

struct PostedEvent {
    QObject* receiver;
    QEvent* event;
};

class EventQueue
{
public:
    typedef unsigned long long Place; // grows with each event

    bool empty() const { return m_events.empty(); }
    // Behind all that come now.
    Place end() const { return m_next; }

    void append(QObject* receiver, QEvent* event);
    // The event of that type that waits for the receiver; null if there is none.
    QEvent** find(QObject* receiver, int type);
    // The first place from there on with an event for the receiver and of the type, end() if there is none;
    // null and 0 stand for any.
    Place first(Place from, QObject* receiver, int type) const;
    PostedEvent at(Place place) const { return m_events.at(place); }
    // Without deleting the event.
    void remove(Place place);
    std::vector<Place> placesOf(QObject* receiver) const;

private:
    Place firstOf(Place from, QObject* receiver, int type) const;

    std::map<Place, PostedEvent> m_events;
    std::set<std::tuple<QObject*, int, Place>> m_byReceiver;
    std::set<std::pair<int, Place>> m_byType;
    Place m_next = 1;
};

} // namespace zeltk

#endif
