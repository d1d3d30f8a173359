// Lists of widgets.
#ifndef QWIDGETLIST_H
#define QWIDGETLIST_H

#include <qptrlist.h>
#include <qwidget.h>

class Q_EXPORT QWidgetList : public QPtrList<QWidget>
{
public:
    QWidgetList() {}
    QWidgetList(const QWidgetList& other) : QPtrList<QWidget>(other) {}
    ~QWidgetList() { clear(); }
    QWidgetList& operator=(const QWidgetList& other)
    {
        QPtrList<QWidget>::operator=(other);
        return *this;
    }
};

class Q_EXPORT QWidgetListIt : public QPtrListIterator<QWidget>
{
public:
    QWidgetListIt(const QWidgetList& list) : QPtrListIterator<QWidget>(list) {}
    QWidgetListIt& operator=(const QWidgetListIt& other)
    {
        QPtrListIterator<QWidget>::operator=(other);
        return *this;
    }
};

#endif
