// Pointers that become null when their object dies.
#ifndef QGUARDEDPTR_H
#define QGUARDEDPTR_H

#include <qobject.h>

namespace zeltk
{

// Watches one object.
class Q_EXPORT ObjectGuard
{
public:
    explicit ObjectGuard(QObject* object = 0);
    ObjectGuard(const ObjectGuard& other);
    ~ObjectGuard();
    ObjectGuard& operator=(const ObjectGuard& other);
    QObject* object() const { return watched; }

private:
    friend struct ObjectData;
    friend struct ObjectAccess;
    void watch(QObject* object);
    QObject* watched;
};

} // namespace zeltk

template <class T>
class QGuardedPtr
{
public:
    QGuardedPtr() {}
    QGuardedPtr(T* object) : guard(object) {}
    QGuardedPtr<T>& operator=(T* object)
    {
        guard = zeltk::ObjectGuard(object);
        return *this;
    }
    bool operator==(const QGuardedPtr<T>& other) const { return guard.object() == other.guard.object(); }
    bool operator!=(const QGuardedPtr<T>& other) const { return !(*this == other); }
    bool isNull() const { return !guard.object(); }
    T* operator->() const { return (T*)guard.object(); }
    T& operator*() const { return *(T*)guard.object(); }
    operator T*() const { return (T*)guard.object(); }

private:
    zeltk::ObjectGuard guard;
};

#endif
