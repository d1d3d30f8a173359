// Lists of 8-bit strings.
#ifndef QSTRLIST_H
#define QSTRLIST_H

#include <qcstring.h>
#include <qptrlist.h>

//! Keeps copies of the texts (deep), or the pointers as they are.
class Q_EXPORT QStrList : public QPtrList<char>
{
public:
    QStrList(bool deepCopies = true) : deep(deepCopies) { setAutoDelete(deep); }
    // What the copy owns are texts of its own. NOLINTNEXTLINE(bugprone-copy-constructor-init)
    QStrList(const QStrList& other) : QPtrList<char>(), deep(false) { *this = other; }
    ~QStrList() { clear(); }
    QStrList& operator=(const QStrList& other);

protected:
    Item newItem(Item item) { return deep ? qstrdup((const char*)item) : item; }
    void deleteItem(Item item)
    {
        if (deep)
            delete[](char*) item;
    }
    int compareItems(Item a, Item b) { return qstrcmp((const char*)a, (const char*)b); }

private:
    bool deep;
};

typedef QPtrListIterator<char> QStrListIterator;

#endif
