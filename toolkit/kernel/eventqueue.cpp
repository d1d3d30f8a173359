// The events that wait for the event loop.
#include "kernel/eventqueue.h"

#include <algorithm>

namespace zeltk
{

void EventQueue::append(QObject* receiver, QEvent* event)
{
    m_events[m_next] = {receiver, event};
    m_byReceiver.insert(std::make_tuple(receiver, static_cast<int>(event->type()), m_next));
    m_byType.insert(std::make_pair(static_cast<int>(event->type()), m_next));
    ++m_next;
}

QEvent** EventQueue::find(QObject* receiver, int type)
{
    const Place place = first(0, receiver, type);
    return place == m_next ? nullptr : &m_events[place].event;
}

EventQueue::Place EventQueue::firstOf(Place from, QObject* receiver, int type) const
{
    const auto it = m_byReceiver.lower_bound(std::make_tuple(receiver, type, from));
    const bool found = it != m_byReceiver.end() && std::get<0>(*it) == receiver && std::get<1>(*it) == type;
    return found ? std::get<2>(*it) : m_next;
}

EventQueue::Place EventQueue::first(Place from, QObject* receiver, int type) const
{
    if (receiver && type)
        return firstOf(from, receiver, type);
    if (receiver) {
        // There are few types; each is asked for its first.
        Place earliest = m_next;
        auto it = m_byReceiver.lower_bound(std::make_tuple(receiver, 0, Place(0)));
        while (it != m_byReceiver.end() && std::get<0>(*it) == receiver) {
            const int waiting = std::get<1>(*it);
            earliest = std::min(earliest, firstOf(from, receiver, waiting));
            it = m_byReceiver.lower_bound(std::make_tuple(receiver, waiting + 1, Place(0)));
        }
        return earliest;
    }
    if (type) {
        const auto it = m_byType.lower_bound(std::make_pair(type, from));
        return it != m_byType.end() && it->first == type ? it->second : m_next;
    }
    const auto it = m_events.lower_bound(from);
    return it == m_events.end() ? m_next : it->first;
}

void EventQueue::remove(Place place)
{
    const PostedEvent posted = m_events.at(place);
    const int type = posted.event->type();
    m_byReceiver.erase(std::make_tuple(posted.receiver, type, place));
    m_byType.erase(std::make_pair(type, place));
    m_events.erase(place);
}

std::vector<EventQueue::Place> EventQueue::placesOf(QObject* receiver) const
{
    std::vector<Place> places;
    for (auto it = m_byReceiver.lower_bound(std::make_tuple(receiver, 0, Place(0)));
         it != m_byReceiver.end() && std::get<0>(*it) == receiver; ++it)
        places.push_back(std::get<2>(*it));
    return places;
}

} // namespace zeltk
