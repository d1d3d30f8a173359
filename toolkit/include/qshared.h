// Counting of references.
#ifndef QSHARED_H
#define QSHARED_H

#include <qglobal.h>

//! Something that several owners share; the last one deletes it. It starts with one owner.
struct Q_EXPORT QShared {
    QShared() : count(1) {}
    void ref() { ++count; }
    //! False when nobody is left.
    bool deref() { return --count != 0; }

    uint count;
};

#endif
