// What the collections of pointers have in common.
#ifndef QPTRCOLLECTION_H
#define QPTRCOLLECTION_H

#include <qglobal.h>

class Q_EXPORT QPtrCollection
{
public:
    typedef void* Item;

    bool autoDelete() const { return deletes; }
    //! Whether removed items are deleted by the collection. Off at first.
    void setAutoDelete(bool enable) { deletes = enable; }

    virtual uint count() const = 0;
    virtual void clear() = 0;

    //! What is stored for an item that is added.
    virtual Item newItem(Item item) { return item; }

protected:
    QPtrCollection() : deletes(false) {}
    QPtrCollection(const QPtrCollection&) : deletes(false) {}
    virtual ~QPtrCollection() {}
    QPtrCollection& operator=(const QPtrCollection&) { return *this; }

    virtual void deleteItem(Item item) = 0;

private:
    bool deletes;
};

#endif
