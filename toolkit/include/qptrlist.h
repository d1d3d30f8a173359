// Lists of pointers, with a current item and with iterators that survive removals.
#ifndef QPTRLIST_H
#define QPTRLIST_H

#include <qptrcollection.h>

namespace zeltk
{

class PointerIterator;
struct PointerListData;

// The list without types. Indexes are counted from 0; -1 means none.
class Q_EXPORT PointerList : public QPtrCollection
{
public:
    uint count() const;
    void clear();

protected:
    PointerList();
    PointerList(const PointerList& other);
    virtual ~PointerList();

    virtual int compareItems(Item a, Item b) { return a == b ? 0 : 1; }

    void copyItems(const PointerList& other);
    bool equals(const PointerList& other) const;
    Item item(uint index) const;
    bool insertItem(uint index, Item item);
    void insertSorted(Item item);
    // Without deleting it. The current item becomes the next one, or the last.
    Item takeItem(int index);
    bool removeItem(int index);
    bool replaceItem(uint index, Item item);
    int indexOf(Item item) const;
    int findIndex(Item item, int from, bool byPointer);
    uint containsItem(Item item, bool byPointer) const;
    void sortItems();

    int currentIndex() const;
    Item setCurrent(int index) const;
    Item currentItem() const;

private:
    friend class PointerIterator;
    PointerList& operator=(const PointerList&);
    PointerListData* d;
};

// A place in a list. The list keeps it right when items come and go.
class Q_EXPORT PointerIterator
{
public:
    PointerIterator(const PointerList& list);
    PointerIterator(const PointerIterator& other);
    ~PointerIterator();
    PointerIterator& operator=(const PointerIterator& other);
    uint count() const;
    void* item() const;
    int index() const { return place; }
    void* move(int index);

private:
    friend class PointerList;
    friend struct PointerListData;
    void attach(const PointerList* to);
    void detach();
    const PointerList* list;
    int place;
};

} // namespace zeltk

template <class type>
class QPtrListIterator;

/*!
 * \brief A list of pointers with a current item.
 *
 * Functions that look for an item, add or replace one make it the current one; after a removal it is the next
 * one, or the last. Indexes behind the end give null or false. With autoDelete() items that are removed or
 * replaced are deleted, unless they are taken.
 */
template <class type>
class QPtrList : public zeltk::PointerList
{
public:
    QPtrList() {}
    QPtrList(const QPtrList<type>& other) : zeltk::PointerList(other) { copyItems(other); }
    ~QPtrList() { clear(); }
    QPtrList<type>& operator=(const QPtrList<type>& other)
    {
        copyItems(other);
        return *this;
    }
    bool operator==(const QPtrList<type>& other) const { return equals(other); }
    bool operator!=(const QPtrList<type>& other) const { return !equals(other); }

    bool isEmpty() const { return count() == 0; }
    bool insert(uint index, const type* item) { return insertItem(index, (Item)item); }
    //! Before the first item that is not less by compareItems().
    void inSort(const type* item) { insertSorted((Item)item); }
    void prepend(const type* item) { insertItem(0, (Item)item); }
    void append(const type* item) { insertItem(count(), (Item)item); }
    bool remove(uint index) { return removeItem(index < count() ? (int)index : -1); }
    bool remove() { return removeItem(currentIndex()); }
    bool remove(const type* item) { return item ? removeItem(findIndex((Item)item, 0, false)) : remove(); }
    bool removeRef(const type* item) { return removeItem(indexOf((Item)item)); }
    bool removeFirst() { return removeItem(count() ? 0 : -1); }
    bool removeLast() { return removeItem((int)count() - 1); }
    //! Removes an item without deleting it.
    type* take(uint index) { return (type*)takeItem(index < count() ? (int)index : -1); }
    type* take() { return (type*)takeItem(currentIndex()); }
    bool replace(uint index, const type* item) { return replaceItem(index, (Item)item); }
    void sort() { sortItems(); }

    //! By compareItems(), or by address; from the start, or behind the current item. -1, and no item is
    //! current, if there is none.
    int find(const type* item) { return findAndSet(findIndex((Item)item, 0, false)); }
    int findNext(const type* item) { return findAndSet(findIndex((Item)item, currentIndex() + 1, false)); }
    int findRef(const type* item) { return findAndSet(findIndex((Item)item, 0, true)); }
    int findNextRef(const type* item) { return findAndSet(findIndex((Item)item, currentIndex() + 1, true)); }
    uint contains(const type* item) const { return containsItem((Item)item, false); }
    uint containsRef(const type* item) const { return containsItem((Item)item, true); }

    type* at(uint index) { return (type*)setCurrent((int)index); }
    int at() const { return currentIndex(); }
    type* current() const { return (type*)currentItem(); }
    type* getFirst() const { return (type*)item(0); }
    type* getLast() const { return (type*)item(count() - 1); }
    type* first() { return (type*)setCurrent(0); }
    type* last() { return (type*)setCurrent((int)count() - 1); }
    type* next() { return (type*)setCurrent(currentIndex() < 0 ? -1 : currentIndex() + 1); }
    type* prev() { return (type*)setCurrent(currentIndex() < 0 ? -1 : currentIndex() - 1); }

protected:
    void deleteItem(Item item)
    {
        if (autoDelete())
            delete (type*)item;
    }

private:
    int findAndSet(int index)
    {
        setCurrent(index);
        return index;
    }
};

//! Starts at the first item. Beyond either end it is null, and stays there until toFirst() or toLast().
template <class type>
class QPtrListIterator : public zeltk::PointerIterator
{
public:
    QPtrListIterator(const QPtrList<type>& list) : zeltk::PointerIterator(list) {}

    bool isEmpty() const { return count() == 0; }
    bool atFirst() const { return index() == 0; }
    bool atLast() const { return index() >= 0 && index() == (int)count() - 1; }
    type* toFirst() { return (type*)move(0); }
    type* toLast() { return (type*)move((int)count() - 1); }
    type* current() const { return (type*)item(); }
    operator type*() const { return (type*)item(); }
    type* operator*() { return (type*)item(); }
    //! Goes on, and returns the item that was the current one.
    type* operator()()
    {
        type* before = current();
        ++*this;
        return before;
    }
    type* operator++() { return (type*)move(index() < 0 ? -1 : index() + 1); }
    type* operator--() { return (type*)move(index() < 0 ? -1 : index() - 1); }
    type* operator+=(uint steps) { return (type*)move(has(steps) ? index() + (int)steps : -1); }
    type* operator-=(uint steps) { return (type*)move(has(steps) ? index() - (int)steps : -1); }

private:
    bool has(uint steps) const { return index() >= 0 && steps < count(); }
};

#endif
