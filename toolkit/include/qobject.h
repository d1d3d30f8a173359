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

    //! The text as the installed translators have it; the comment tells equal texts of the class apart.
    static QString tr(const char* text, const char* comment = 0);
    static QString trUtf8(const char* text, const char* comment = 0);

    //! Calls the handler for the event. True if there is one, or if a filter has taken the event.
    virtual bool event(QEvent* event);
    //! Sees the events of the objects it is installed on; true keeps the event from them.
    virtual bool eventFilter(QObject* watched, QEvent* event);

    //! These are written by the meta-object compiler for each class with Q_OBJECT. qt_cast() gives the object
    //! as that class, null if it is none.
    virtual QMetaObject* metaObject() const;
    virtual const char* className() const;
    virtual void* qt_cast(const char* className);
    virtual bool qt_invoke(int id, QUObject* arguments);
    virtual bool qt_emit(int id, QUObject* arguments);
    static QMetaObject* staticMetaObject();

    //! Whether it is of exactly that class, or of one derived from it.
    bool isA(const char* className) const;
    bool inherits(const char* className) const;

    const char* name() const;
    const char* name(const char* defaultName) const;
    virtual void setName(const char* name);
    bool isWidgetType() const;
    bool highPriority() const { return false; }

    bool signalsBlocked() const;
    //! While signals are blocked nobody hears of them, destroyed() excepted.
    void blockSignals(bool block);

    //! Sends a QTimerEvent each `interval` milliseconds. Returns the timer's identifier, 0 if there is none.
    int startTimer(int interval);
    void killTimer(int id);
    void killTimers();

    //! The first child of that name and class, also inside of others if it is recursive; null if there is
    //! none.
    QObject* child(const char* objName, const char* inheritsClass = 0, bool recursiveSearch = true);
    //! Null without children.
    const QObjectList* children() const;
    //! All objects without parent.
    static const QObjectList* objectTrees();
    //! All such children, in a new list that the caller deletes. Null stands for any class or name; the name
    //! may be a regular expression.
    QObjectList* queryList(const char* inheritsClass = 0, const char* objName = 0, bool regexpMatch = true,
                           bool recursiveSearch = true) const;

    //! Takes the child from its parent before. childEvent() tells of it later; of a removal at once. Widgets
    //! move with QWidget::reparent().
    virtual void insertChild(QObject* child);
    virtual void removeChild(QObject* child);

    //! The last one installed is asked first. Neither owns the other.
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
    //! At the begin of the destructor: the object is no more than a QObject then.
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

    //! Handlers; they do nothing.
    virtual void timerEvent(QTimerEvent* event);
    virtual void childEvent(QChildEvent* event);
    virtual void customEvent(QCustomEvent* event);

    //! Called when one of this object's signals was connected, or disconnected (null: it may have been any).
    //! The signal is as SIGNAL() gives it, without needless blanks.
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
