// Data that several values share. They count their owners in `references`, starting with one.
#ifndef ZELTK_SHARED_H
#define ZELTK_SHARED_H

namespace zeltk
{

// One owner's hold on shared data. That its end may delete them is said in a destructor of this name because
// clang's analyzer knows such, and does not take every owner for the last one.
template <class Data>
struct SharedPtr {
    Data* data;
    ~SharedPtr()
    {
        if (--data->references == 0)
            delete data;
    }
};

template <class Data>
Data* shared(Data* data)
{
    ++data->references;
    return data;
}

// The last owner deletes the data.
template <class Data>
void release(Data* data)
{
    SharedPtr<Data>{data};
}

// Shares other data instead; they may be the same.
template <class Data>
void share(Data*& data, Data* other)
{
    shared(other);
    release(data);
    data = other;
}

} // namespace zeltk

#endif
