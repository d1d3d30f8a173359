// QStrList.
#include <qstrlist.h>

QStrList& QStrList::operator=(const QStrList& other)
{
    if (&other == this)
        return *this;
    clear();
    deep = other.deep;
    setAutoDelete(deep);
    copyItems(other);
    return *this;
}
