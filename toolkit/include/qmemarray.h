// Arrays of plain values, shared explicitly: a change shows in every copy until detach() or copy().
#ifndef QMEMARRAY_H
#define QMEMARRAY_H

#include <qglobal.h>

namespace zeltk
{

struct ArrayData {
    int references;
    char* bytes;
    uint length;
};

// Bytes shared by reference counting: what QMemArray<type> stands on.
class Q_EXPORT RawArray
{
public:
    RawArray();
    RawArray(const RawArray& other);
    ~RawArray();
    void share(const RawArray& other);
    bool isNull() const;
    char* bytes() const { return d ? d->bytes : 0; }
    uint length() const { return d ? d->length : 0; }
    bool resize(uint length);
    void assign(const char* bytes, uint length);
    void detach();
    int references() const;

private:
    RawArray& operator=(const RawArray&);
    ArrayData* d;
};

} // namespace zeltk

/*!
 * \brief An array of values that can be copied byte by byte.
 *
 * Indexes are not checked. An array without elements is null.
 */
template <class type>
class QMemArray
{
public:
    typedef type* Iterator;
    typedef const type* ConstIterator;
    typedef type ValueType;

    QMemArray() {}
    QMemArray(int size) { resize((uint)size); }
    QMemArray(const QMemArray<type>& other) : raw(other.raw) {}
    virtual ~QMemArray() {}
    QMemArray<type>& operator=(const QMemArray<type>& other) { return assign(other); }

    type* data() const { return (type*)raw.bytes(); }
    uint nrefs() const { return (uint)raw.references(); }
    uint size() const { return raw.length() / (uint)sizeof(type); }
    uint count() const { return size(); }
    bool isEmpty() const { return size() == 0; }
    bool isNull() const { return raw.isNull(); }
    //! New elements are 0 in all bytes. False, and nothing changes, if there is no memory for them.
    bool resize(uint size)
    {
        return size <= 0xffffffffu / (uint)sizeof(type) && raw.resize(size * (uint)sizeof(type));
    }
    bool truncate(uint position) { return resize(position); }
    //! All elements become the value, after a resize() if there is a new size; false if that fails.
    bool fill(const type& value, int newSize = -1)
    {
        const type filling(value); // which may be an element that resize() moves
        if (newSize >= 0 && !resize((uint)newSize))
            return false;
        for (uint i = 0; i < size(); ++i)
            data()[i] = filling;
        return true;
    }
    //! Gives this copy elements of its own.
    virtual void detach() { raw.detach(); }
    QMemArray<type> copy() const
    {
        QMemArray<type> result;
        return result.duplicate(*this);
    }
    //! Shares the elements of the other one from now on.
    QMemArray<type>& assign(const QMemArray<type>& other)
    {
        raw.share(other.raw);
        return *this;
    }
    //! Takes copies of the elements.
    QMemArray<type>& duplicate(const QMemArray<type>& other) { return duplicate(other.data(), other.size()); }
    QMemArray<type>& duplicate(const type* values, uint size)
    {
        raw.assign((const char*)values, size * (uint)sizeof(type));
        return *this;
    }
    //! The index of the first such element from that index on; -1 if there is none.
    int find(const type& value, uint index = 0) const
    {
        for (uint i = index; i < size(); ++i)
            if (data()[i] == value)
                return (int)i;
        return -1;
    }
    int contains(const type& value) const
    {
        int number = 0;
        for (uint i = 0; i < size(); ++i)
            number += data()[i] == value;
        return number;
    }
    type& operator[](int index) const { return at((uint)index); }
    type& at(uint index) const { return data()[index]; }
    operator const type*() const { return data(); }
    bool operator==(const QMemArray<type>& other) const
    {
        if (size() != other.size())
            return false;
        for (uint i = 0; i < size(); ++i)
            if (!(data()[i] == other.data()[i]))
                return false;
        return true;
    }
    bool operator!=(const QMemArray<type>& other) const { return !(*this == other); }
    Iterator begin() { return data(); }
    Iterator end() { return data() + size(); }
    ConstIterator begin() const { return data(); }
    ConstIterator end() const { return data() + size(); }

private:
    zeltk::RawArray raw;
};

#endif
