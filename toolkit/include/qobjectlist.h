// Lists of objects.
#ifndef QOBJECTLIST_H
#define QOBJECTLIST_H

#include <qobject.h>
#include <qptrlist.h>

class Q_EXPORT QObjectList : public QPtrList<QObject>
{
public:
    QObjectList() {}
    QObjectList(const QObjectList& other) : QPtrList<QObject>(other) {}
    ~QObjectList() { clear(); }
    QObjectList& operator=(const QObjectList& other)
    {
        QPtrList<QObject>::operator=(other);
        return *this;
    }
};

class Q_EXPORT QObjectListIterator : public QPtrListIterator<QObject>
{
public:
    QObjectListIterator(const QObjectList& list) : QPtrListIterator<QObject>(list) {}
};

typedef QObjectListIterator QObjectListIt;

#endif
