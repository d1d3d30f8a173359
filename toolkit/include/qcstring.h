// Byte arrays and 8-bit strings, and the C string functions in a null-proof form.
#ifndef QCSTRING_H
#define QCSTRING_H

#include <qmemarray.h>

#include <string.h>

typedef QMemArray<char> QByteArray;

//! The C library's functions, safe for null pointers: a null text counts as shorter than any other.
Q_EXPORT char* qstrdup(const char* text);
Q_EXPORT char* qstrcpy(char* destination, const char* source);
Q_EXPORT char* qstrncpy(char* destination, const char* source, uint size);
Q_EXPORT int qstricmp(const char* a, const char* b);
Q_EXPORT int qstrnicmp(const char* a, const char* b, uint length);
inline uint qstrlen(const char* text)
{
    return text ? (uint)strlen(text) : 0;
}
inline int qstrcmp(const char* a, const char* b)
{
    return a && b ? strcmp(a, b) : a ? 1 : b ? -1 : 0;
}
inline int qstrncmp(const char* a, const char* b, uint length)
{
    return a && b ? strncmp(a, b, length) : a ? 1 : b ? -1 : 0;
}

//! An 8-bit string that ends with a zero byte. Copies share explicitly, as those of QByteArray do.
class Q_EXPORT QCString : public QByteArray
{
public:
    QCString() {}
    QCString(int size);
    QCString(const QCString& other) : QByteArray(other) {}
    QCString(const char* text);
    //! At most size - 1 characters of the text.
    QCString(const char* text, uint size);

    QCString& operator=(const QCString& other);
    QCString& operator=(const char* text);

    bool isNull() const { return data() == 0; }
    bool isEmpty() const { return data() == 0 || *data() == 0; }
    uint length() const { return qstrlen(data()); }
    bool resize(uint size);
    bool truncate(uint position) { return resize(position + 1); }
    bool fill(char c, int length = -1);
    QCString copy() const { return QCString(data()); }
    QCString& sprintf(const char* format, ...) __attribute__((format(printf, 2, 3)));

    int find(char c, int index = 0, bool caseSensitive = true) const;
    int find(const char* text, int index = 0, bool caseSensitive = true) const;
    int findRev(char c, int index = -1, bool caseSensitive = true) const;
    int findRev(const char* text, int index = -1, bool caseSensitive = true) const;
    int contains(char c, bool caseSensitive = true) const;
    int contains(const char* text, bool caseSensitive = true) const;

    QCString left(uint length) const;
    QCString right(uint length) const;
    QCString mid(uint index, uint length = 0xffffffff) const;
    QCString leftJustify(uint width, char fill = ' ', bool truncate = false) const;
    QCString rightJustify(uint width, char fill = ' ', bool truncate = false) const;
    QCString lower() const;
    QCString upper() const;
    QCString stripWhiteSpace() const;
    QCString simplifyWhiteSpace() const;

    QCString& insert(uint index, const char* text);
    QCString& insert(uint index, char c);
    QCString& append(const char* text) { return *this += text; }
    QCString& prepend(const char* text) { return insert(0, text); }
    QCString& remove(uint index, uint length);
    QCString& replace(uint index, uint length, const char* text);
    QCString& replace(char before, const char* after);
    QCString& replace(const char* before, const char* after);
    QCString& replace(char before, char after);

    short toShort(bool* ok = 0) const;
    ushort toUShort(bool* ok = 0) const;
    int toInt(bool* ok = 0) const;
    uint toUInt(bool* ok = 0) const;
    long toLong(bool* ok = 0) const;
    ulong toULong(bool* ok = 0) const;
    float toFloat(bool* ok = 0) const;
    double toDouble(bool* ok = 0) const;

    QCString& setStr(const char* text) { return *this = text; }
    QCString& setNum(short number) { return setNum((long)number); }
    QCString& setNum(ushort number) { return setNum((ulong)number); }
    QCString& setNum(int number) { return setNum((long)number); }
    QCString& setNum(uint number) { return setNum((ulong)number); }
    QCString& setNum(long number);
    QCString& setNum(ulong number);
    QCString& setNum(float number, char format = 'g', int precision = 6)
    {
        return setNum((double)number, format, precision);
    }
    QCString& setNum(double number, char format = 'g', int precision = 6);

    operator const char*() const { return data(); }
    QCString& operator+=(const char* text);
    QCString& operator+=(char c);
};

inline bool operator==(const QCString& a, const QCString& b)
{
    return qstrcmp(a.data(), b.data()) == 0;
}
inline bool operator==(const QCString& a, const char* b)
{
    return qstrcmp(a.data(), b) == 0;
}
inline bool operator==(const char* a, const QCString& b)
{
    return qstrcmp(a, b.data()) == 0;
}
inline bool operator!=(const QCString& a, const QCString& b)
{
    return !(a == b);
}
inline bool operator!=(const QCString& a, const char* b)
{
    return !(a == b);
}
inline bool operator!=(const char* a, const QCString& b)
{
    return !(a == b);
}
inline bool operator<(const QCString& a, const QCString& b)
{
    return qstrcmp(a.data(), b.data()) < 0;
}
inline bool operator<(const QCString& a, const char* b)
{
    return qstrcmp(a.data(), b) < 0;
}
inline bool operator<(const char* a, const QCString& b)
{
    return qstrcmp(a, b.data()) < 0;
}
inline bool operator<=(const QCString& a, const QCString& b)
{
    return qstrcmp(a.data(), b.data()) <= 0;
}
inline bool operator<=(const QCString& a, const char* b)
{
    return qstrcmp(a.data(), b) <= 0;
}
inline bool operator<=(const char* a, const QCString& b)
{
    return qstrcmp(a, b.data()) <= 0;
}
inline bool operator>(const QCString& a, const QCString& b)
{
    return b < a;
}
inline bool operator>(const QCString& a, const char* b)
{
    return b < a;
}
inline bool operator>(const char* a, const QCString& b)
{
    return b < a;
}
inline bool operator>=(const QCString& a, const QCString& b)
{
    return b <= a;
}
inline bool operator>=(const QCString& a, const char* b)
{
    return b <= a;
}
inline bool operator>=(const char* a, const QCString& b)
{
    return b <= a;
}

inline QCString operator+(const QCString& a, const QCString& b)
{
    QCString sum(a.data());
    sum += b.data();
    return sum;
}
inline QCString operator+(const QCString& a, const char* b)
{
    QCString sum(a.data());
    sum += b;
    return sum;
}
inline QCString operator+(const char* a, const QCString& b)
{
    QCString sum(a);
    sum += b.data();
    return sum;
}
inline QCString operator+(const QCString& a, char b)
{
    QCString sum(a.data());
    sum += b;
    return sum;
}
inline QCString operator+(char a, const QCString& b)
{
    QCString sum;
    sum += a;
    sum += b.data();
    return sum;
}

#endif
