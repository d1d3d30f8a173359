// The C library's string functions, safe for null pointers.
#include <qcstring.h>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <limits>

namespace
{

int lowered(char c)
{
    return std::tolower(static_cast<uchar>(c));
}

} // namespace

char* qstrdup(const char* text)
{
    if (!text)
        return nullptr;
    return qstrcpy(new char[std::strlen(text) + 1], text);
}

char* qstrcpy(char* destination, const char* source)
{
    if (!source)
        return nullptr;
    std::memcpy(destination, source, std::strlen(source) + 1);
    return destination;
}

char* qstrncpy(char* destination, const char* source, uint size)
{
    if (!source || size == 0)
        return nullptr;
    const size_t length = std::min<size_t>(strnlen(source, size), size - 1);
    std::memcpy(destination, source, length);
    destination[length] = '\0';
    return destination;
}

int qstricmp(const char* a, const char* b)
{
    return qstrnicmp(a, b, std::numeric_limits<uint>::max());
}

int qstrnicmp(const char* a, const char* b, uint length)
{
    if (!a || !b)
        return a ? 1 : b ? -1 : 0;
    for (; length > 0; --length, ++a, ++b) {
        const int difference = lowered(*a) - lowered(*b);
        if (difference != 0 || *a == '\0')
            return difference;
    }
    return 0;
}
