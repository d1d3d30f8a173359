// The base of everything that has signals and slots, a name, a parent, timers or events.
#ifndef QOBJECT_H
#define QOBJECT_H

#include <qnamespace.h>
#include <qobjectdefs.h>
#include <qstring.h>

class QChildEvent;
class QConnectionList;
class QCustomEvent;
class QEvent;
class QObjectList;
class QTimerEvent;

namespace zeltk
{
struct ObjectData;
struct ObjectAccess;
} // namespace zeltk

//! An object deletes its children. It may be deleted at any time, also while one of its signals is emitted.
class Q_EXPORT QObject : public Qt
{
public:
    //! A null name shows as "unnamed".
    QObject(QObject* parent = 0, const char* name = 0);
    //! Emits destroyed(), breaks all connections, deletes the children.
    virtual ~QObject();

    static QString tr(const char* text, const char* comment = 0);
    static QString trUtf8(const char* text, const char* comment = 0);

    virtual bool event(QEvent* event);
    //! Sees the events of the objects it is installed on; true keeps the event from them.
    virtual bool eventFilter(QObject* watched, QEvent* event);

    virtual QMetaObject* metaObject() const;
    virtual const char* className() const;
    virtual void* qt_cast(const char* className);
    virtual bool qt_invoke(int id, QUObject* arguments);
    virtual bool qt_emit(int id, QUObject* arguments);
    static QMetaObject* staticMetaObject();

    bool isA(const char* className) const;
    bool inherits(const char* className) const;

    const char* name() const;
    const char* name(const char* defaultName) const;
    virtual void setName(const char* name);
    bool isWidgetType() const;
    bool highPriority() const { return false; }

    bool signalsBlocked() const;
    void blockSignals(bool block);

    //! Sends a QTimerEvent each `interval` milliseconds. Returns the timer's identifier, 0 if there is none.
    int startTimer(int interval);
    void killTimer(int id);
    void killTimers();

    QObject* child(const char* objName, const char* inheritsClass = 0, bool recursiveSearch = true);
    //! Null without children.
    const QObjectList* children() const;
    //! All objects without parent.
    static const QObjectList* objectTrees();
    //! A new list, which the caller deletes.
    QObjectList* queryList(const char* inheritsClass = 0, const char* objName = 0, bool regexpMatch = true,
                           bool recursiveSearch = true) const;

    virtual void insertChild(QObject* child);
    virtual void removeChild(QObject* child);

    //! The last one installed is asked first.
    void installEventFilter(const QObject* filter);
    void removeEventFilter(const QObject* filter);

    //! `member` is a slot or a signal; it may take fewer arguments than the signal has. False, with a
    //! warning, if they do not exist or do not fit.
    static bool connect(const QObject* sender, const char* signal, const QObject* receiver,
                        const char* member);
    bool connect(const QObject* sender, const char* signal, const char* member) const
    {
        return connect(sender, signal, this, member);
    }
    //! Null stands for any signal, receiver or member. False if there was nothing to disconnect.
    static bool disconnect(const QObject* sender, const char* signal, const QObject* receiver,
                           const char* member);
    bool disconnect(const char* signal = 0, const QObject* receiver = 0, const char* member = 0)
    {
        return disconnect(this, signal, receiver, member);
    }
    bool disconnect(const QObject* receiver, const char* member = 0)
    {
        return disconnect(this, 0, receiver, member);
    }

    QObject* parent() const;

protected: // signals
    void destroyed();
    void destroyed(QObject* object);

public: // slots
    //! Deletes the object when control returns to the event loop.
    void deleteLater();

protected:
    QConnectionList* receivers(const char* signal) const;
    QConnectionList* receivers(int signal) const;
    void activate_signal(int signal);
    void activate_signal(QConnectionList* list, QUObject* arguments);

    //! The object whose signal called the running slot of this object; null outside.
    const QObject* sender();

    virtual void timerEvent(QTimerEvent* event);
    virtual void childEvent(QChildEvent* event);
    virtual void customEvent(QCustomEvent* event);

    virtual void connectNotify(const char* signal);
    virtual void disconnectNotify(const char* signal);

private:
    void cleanupEventFilter(QObject* filter);
    bool activate_filters(QEvent* event);

    friend struct zeltk::ObjectAccess;
    zeltk::ObjectData* d;

    QObject(const QObject&);
    QObject& operator=(const QObject&);
};

#endif
