// What every QMemArray stands on.
#include <qmemarray.h>

#include <cstdlib>
#include <cstring>

namespace zeltk
{

namespace
{

ArrayData* ensure(ArrayData*& d)
{
    if (!d)
        d = new ArrayData{1, nullptr, 0};
    return d;
}

void release(ArrayData* d)
{
    if (d && --d->references == 0) {
        std::free(d->bytes);
        delete d;
    }
}

} // namespace

// Arrays without data share nothing; a null pointer is an array of its own.
RawArray::RawArray() : d(nullptr) {}

RawArray::RawArray(const RawArray& other) : d(nullptr)
{
    // Two names of one null array must also share what comes later, so the first copy makes the data.
    share(other);
}

RawArray::~RawArray()
{
    release(d);
}

void RawArray::share(const RawArray& other)
{
    ArrayData* const theirs = ensure(const_cast<RawArray&>(other).d);
    ++theirs->references;
    release(d);
    d = theirs;
}

bool RawArray::isNull() const
{
    return bytes() == nullptr;
}

bool RawArray::resize(uint length)
{
    ensure(d);
    if (length == d->length)
        return true;
    if (length == 0) {
        std::free(d->bytes);
        d->bytes = nullptr;
    } else {
        char* const bytes = static_cast<char*>(std::realloc(d->bytes, length));
        if (!bytes)
            return false;
        if (length > d->length)
            std::memset(bytes + d->length, 0, length - d->length);
        d->bytes = bytes;
    }
    d->length = length;
    return true;
}

void RawArray::assign(const char* bytes, uint length)
{
    char* copy = nullptr;
    if (length) {
        copy = static_cast<char*>(std::malloc(length));
        if (!copy)
            return;
        std::memcpy(copy, bytes, length);
    }
    release(d);
    d = new ArrayData{1, copy, length};
}

void RawArray::detach()
{
    if (d && d->references > 1)
        assign(d->bytes, d->length);
}

int RawArray::references() const
{
    return d ? d->references : 1;
}

} // namespace zeltk
