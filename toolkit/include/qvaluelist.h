// Lists of values, shared until one of the copies changes.
#ifndef QVALUELIST_H
#define QVALUELIST_H

#include <qglobal.h>

#include <algorithm>
#include <list>

//! A list of copies of values. Iterators and references stay valid until their element is removed; a change
//! of a list that shares its elements makes them the list's own first.
template <class T>
class QValueList
{
    struct Shared {
        int references;
        std::list<T> items;
        Shared() : references(1) {}
        explicit Shared(const std::list<T>& i) : references(1), items(i) {}
    };

public:
    typedef typename std::list<T>::iterator Iterator;
    typedef typename std::list<T>::const_iterator ConstIterator;
    typedef typename std::list<T>::iterator iterator;
    typedef typename std::list<T>::const_iterator const_iterator;
    typedef T value_type;
    typedef value_type* pointer;
    typedef const value_type* const_pointer;
    typedef value_type& reference;
    typedef const value_type& const_reference;
    typedef size_t size_type;

    QValueList() : d(new Shared) {}
    QValueList(const QValueList<T>& other) : d(other.d) { ++d->references; }
    QValueList(const std::list<T>& other) : d(new Shared(other)) {}
    ~QValueList() { release(); }
    QValueList<T>& operator=(const QValueList<T>& other)
    {
        QValueList<T> copy(other);
        std::swap(d, copy.d);
        return *this;
    }

    bool operator==(const QValueList<T>& other) const { return d == other.d || d->items == other.d->items; }
    bool operator!=(const QValueList<T>& other) const { return !(*this == other); }
    QValueList<T> operator+(const QValueList<T>& other) const
    {
        QValueList<T> sum(*this);
        return sum += other;
    }
    QValueList<T>& operator+=(const QValueList<T>& other)
    {
        const std::list<T> added(other.d->items);
        items().insert(d->items.end(), added.begin(), added.end());
        return *this;
    }
    QValueList<T>& operator+=(const T& value)
    {
        append(value);
        return *this;
    }
    QValueList<T>& operator<<(const T& value)
    {
        append(value);
        return *this;
    }

    Iterator begin() { return items().begin(); }
    ConstIterator begin() const { return read().begin(); }
    ConstIterator constBegin() const { return read().begin(); }
    Iterator end() { return items().end(); }
    ConstIterator end() const { return read().end(); }
    ConstIterator constEnd() const { return read().end(); }

    bool empty() const { return read().empty(); }
    size_type size() const { return read().size(); }
    bool isEmpty() const { return read().empty(); }
    size_type count() const { return read().size(); }

    void push_front(const T& value) { items().push_front(value); }
    void push_back(const T& value) { items().push_back(value); }
    void pop_front() { items().pop_front(); }
    void pop_back() { items().pop_back(); }
    Iterator append(const T& value) { return items().insert(items().end(), value); }
    Iterator prepend(const T& value) { return items().insert(items().begin(), value); }
    Iterator insert(Iterator before, const T& value) { return items().insert(before, value); }
    Iterator remove(Iterator place) { return items().erase(place); }
    Iterator erase(Iterator place) { return items().erase(place); }
    Iterator erase(Iterator from, Iterator behind) { return items().erase(from, behind); }
    //! Removes all elements equal to the value; returns their number.
    uint remove(const T& value)
    {
        const T wanted(value);
        const size_type before = size();
        items().remove(wanted);
        return (uint)(before - size());
    }
    void clear()
    {
        release();
        d = new Shared;
    }

    T& front() { return items().front(); }
    const T& front() const { return read().front(); }
    T& back() { return items().back(); }
    const T& back() const { return read().back(); }
    T& first() { return items().front(); }
    const T& first() const { return read().front(); }
    T& last() { return items().back(); }
    const T& last() const { return read().back(); }

    T& operator[](size_type index) { return *at(index); }
    const T& operator[](size_type index) const { return *at(index); }
    Iterator at(size_type index)
    {
        Iterator it = begin();
        for (; index > 0; --index)
            ++it;
        return it;
    }
    ConstIterator at(size_type index) const
    {
        ConstIterator it = begin();
        for (; index > 0; --index)
            ++it;
        return it;
    }

    Iterator find(const T& value) { return find(begin(), value); }
    ConstIterator find(const T& value) const { return find(begin(), value); }
    Iterator find(Iterator from, const T& value)
    {
        while (from != end() && !(*from == value))
            ++from;
        return from;
    }
    ConstIterator find(ConstIterator from, const T& value) const
    {
        while (from != end() && !(*from == value))
            ++from;
        return from;
    }
    int findIndex(const T& value) const
    {
        int index = 0;
        for (ConstIterator it = begin(); it != end(); ++it, ++index)
            if (*it == value)
                return index;
        return -1;
    }
    size_type contains(const T& value) const
    {
        size_type number = 0;
        for (ConstIterator it = begin(); it != end(); ++it)
            number += *it == value ? 1 : 0;
        return number;
    }

protected:
    const std::list<T>& read() const { return d->items; }
    std::list<T>& items()
    {
        if (d->references > 1) {
            Shared* own = new Shared(d->items);
            release();
            d = own;
        }
        return d->items;
    }

private:
// GCC takes the count of a list that has another owner for one that was deleted.
#if defined(__GNUC__) && !defined(__clang__) && __GNUC__ >= 12
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wuse-after-free"
#endif
    void release()
    {
        if (--d->references == 0)
            delete d;
    }
#if defined(__GNUC__) && !defined(__clang__) && __GNUC__ >= 12
#pragma GCC diagnostic pop
#endif

    Shared* d;
};

#endif
