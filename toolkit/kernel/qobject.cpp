// QObject: life, names and events.
#include <qobject.h>

#include "kernel/applicationprivate.h"
#include "kernel/objectdata.h"
#include "kernel/objecttree.h"
#include "kernel/timers.h"

#include <qapplication.h>
#include <qevent.h>
#include <qmetaobject.h>
#include <qobjectlist.h>

#include <algorithm>

using zeltk::ObjectData;

QObject::QObject(QObject* parent, const char* name) : d(new ObjectData)
{
    if (name) {
        d->name = name;
        d->named = true;
    }
    zeltk::addToTrees(this);
    if (parent)
        parent->insertChild(this);
}

QObject::~QObject()
{
    d->dying = true;
    d->blocked = false;
    destroyed(this);
    destroyed();
    for (zeltk::ObjectGuard* guard : std::vector<zeltk::ObjectGuard*>(d->guards))
        *guard = zeltk::ObjectGuard();
    for (QObject* object : std::vector<QObject*>(d->watched))
        object->removeEventFilter(this);
    for (QObject* filter : std::vector<QObject*>(d->filters))
        removeEventFilter(filter);
    d->named = false;
    zeltk::cutConnections(this);
    zeltk::killTimers(this);
    zeltk::removePostedEvents(this);
    if (d->parent)
        d->parent->removeChild(this);
    zeltk::removeFromTrees(this);
    zeltk::deleteChildren(this);
    for (zeltk::Invocation* running = d->invocation; running; running = running->outer)
        running->receiverDied = true;
    delete d;
}

const char* QObject::name() const
{
    return name("unnamed");
}

const char* QObject::name(const char* defaultName) const
{
    return d->named ? d->name.c_str() : defaultName;
}

void QObject::setName(const char* name)
{
    d->named = name != nullptr;
    d->name = name ? name : "";
}

bool QObject::isWidgetType() const
{
    return d->isWidget;
}

bool QObject::signalsBlocked() const
{
    return d->blocked;
}

void QObject::blockSignals(bool block)
{
    d->blocked = block;
}

bool QObject::isA(const char* className) const
{
    return qstrcmp(className, this->className()) == 0;
}

bool QObject::inherits(const char* className) const
{
    return metaObject()->inherits(className);
}

int QObject::startTimer(int interval)
{
    return zeltk::startTimer(this, interval);
}

void QObject::killTimer(int id)
{
    zeltk::killTimer(id);
}

void QObject::killTimers()
{
    zeltk::killTimers(this);
}

void QObject::deleteLater()
{
    QApplication::postEvent(this, new QEvent(QEvent::DeferredDelete));
}

bool QObject::event(QEvent* event)
{
    return activate_filters(event) || zeltk::handlePlainEvent(this, event);
}

namespace zeltk
{

bool handlePlainEvent(QObject* object, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Timer:
        ObjectAccess::timerEvent(object, static_cast<QTimerEvent*>(event));
        return true;
    case QEvent::ChildInserted:
    case QEvent::ChildRemoved:
        ObjectAccess::childEvent(object, static_cast<QChildEvent*>(event));
        return true;
    case QEvent::DeferredDelete:
        delete object;
        return true;
    default:
        if (event->type() < QEvent::User)
            return false;
        ObjectAccess::customEvent(object, static_cast<QCustomEvent*>(event));
        return true;
    }
}

} // namespace zeltk

void QObject::timerEvent(QTimerEvent*) {}

void QObject::childEvent(QChildEvent*) {}

void QObject::customEvent(QCustomEvent*) {}

bool QObject::eventFilter(QObject*, QEvent*)
{
    return false;
}

void QObject::installEventFilter(const QObject* filter)
{
    if (!filter)
        return;
    removeEventFilter(filter);
    QObject* watcher = const_cast<QObject*>(filter);
    d->filters.push_back(watcher);
    watcher->d->watched.push_back(this);
}

void QObject::removeEventFilter(const QObject* filter)
{
    const auto place = std::find(d->filters.begin(), d->filters.end(), filter);
    if (place == d->filters.end())
        return;
    std::vector<QObject*>& watched = (*place)->d->watched;
    watched.erase(std::find(watched.begin(), watched.end(), this));
    d->filters.erase(place);
}

void QObject::cleanupEventFilter(QObject* filter)
{
    removeEventFilter(filter);
}

bool QObject::activate_filters(QEvent* event)
{
    return zeltk::askFilters(this, this, event);
}

// Filters may come and go, and the receiver may die, while they are asked.
bool zeltk::askFilters(QObject* watched, QObject* receiver, QEvent* event)
{
    const std::vector<QObject*>& filters = dataOf(watched)->filters;
    const std::vector<QObject*> asked(filters.rbegin(), filters.rend());
    const ObjectGuard alive(asked.empty() ? nullptr : receiver);
    for (QObject* filter : asked) {
        if (std::find(filters.begin(), filters.end(), filter) == filters.end())
            continue;
        if (filter->eventFilter(receiver, event) || !alive.object())
            return true;
    }
    return false;
}
