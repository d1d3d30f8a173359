// What every object carries.
#ifndef ZELTK_OBJECTDATA_H
#define ZELTK_OBJECTDATA_H

#include <qguardedptr.h>
#include <qobject.h>

#include <memory>
#include <string>
#include <vector>

namespace zeltk
{

struct Connection {
    QObject* receiver; // null when the connection was cut while its signal was running
    int member;        // number of the slot or signal
    bool toSignal;
};

} // namespace zeltk

// The connections of one signal. A running emission holds on to it, so that it outlives its sender.
class QConnectionList : public std::enable_shared_from_this<QConnectionList>
{
public:
    QObject* sender;
    std::vector<zeltk::Connection> connections;
    int running; // emissions in progress; entries are only marked then
};

namespace zeltk
{

// A slot that is running. They form a chain, the innermost first.
struct Invocation {
    QConnectionList* list;
    bool receiverDied;
    Invocation* outer;
};

struct ObjectData {
    std::string name;
    bool named = false;
    QObject* parent = nullptr;
    QObjectList* children = nullptr;
    std::vector<std::shared_ptr<QConnectionList>> signalLists; // by the signal's number
    std::vector<QObject*> senders;                             // one entry for each connection to this object
    std::vector<QObject*> filters;                             // the last one installed stands last
    std::vector<QObject*> watched;                             // objects that this one filters
    std::vector<ObjectGuard*> guards;
    Invocation* invocation = nullptr;
    bool isWidget = false;
    bool blocked = false;
    bool dying = false;
};

struct ObjectAccess {
    static ObjectData* data(const QObject* object) { return object->d; }
    static void notifyConnect(QObject* object, const char* signal) { object->connectNotify(signal); }
    static void notifyDisconnect(QObject* object, const char* signal) { object->disconnectNotify(signal); }
    static void timerEvent(QObject* object, QTimerEvent* event) { object->timerEvent(event); }
    static void childEvent(QObject* object, QChildEvent* event) { object->childEvent(event); }
    static void customEvent(QObject* object, QCustomEvent* event) { object->customEvent(event); }
    static bool filter(QObject* object, QEvent* event) { return object->activate_filters(event); }
    static void addGuard(ObjectGuard* guard);
    static void removeGuard(ObjectGuard* guard);
};

inline ObjectData* dataOf(const QObject* object)
{
    return ObjectAccess::data(object);
}

// Whether a filter on the watched object, which is the receiver or the application, keeps the event from the
// receiver; also if the receiver dies of it.
bool askFilters(QObject* watched, QObject* receiver, QEvent* event);
// Calls the handlers that every object has; false if there is none for the event. May delete the object.
bool handlePlainEvent(QObject* object, QEvent* event);
// Breaks everything that leads to or from an object that dies.
void cutConnections(QObject* object);
void deleteChildren(QObject* object);
// The signature without needless blanks.
std::string normalizedSignature(const char* signature);

} // namespace zeltk

#endif
