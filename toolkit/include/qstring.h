// Characters and strings of 16-bit Unicode.
#ifndef QSTRING_H
#define QSTRING_H

#include <qcstring.h>

#include <string>

class QString;

namespace zeltk
{
struct StringData;
}

//! One 16-bit character.
class Q_EXPORT QChar
{
public:
    static const QChar null;
    static const QChar replacement;
    static const QChar byteOrderMark;
    static const QChar byteOrderSwapped;
    static const QChar nbsp;

    QChar() : ucs(0) {}
    QChar(char c) : ucs((uchar)c) {}
    QChar(uchar c) : ucs(c) {}
    QChar(uchar cell, uchar row) : ucs((ushort)((row << 8) | cell)) {}
    QChar(ushort code) : ucs(code) {}
    QChar(short code) : ucs((ushort)code) {}
    QChar(uint code) : ucs((ushort)code) {}
    QChar(int code) : ucs((ushort)code) {}

    bool isNull() const { return ucs == 0; }
    bool isPrint() const;
    bool isPunct() const;
    bool isSpace() const;
    bool isMark() const;
    bool isLetter() const;
    bool isNumber() const;
    bool isLetterOrNumber() const;
    bool isDigit() const;
    bool isSymbol() const;

    //! The value of a decimal digit, -1 for other characters.
    int digitValue() const;
    QChar lower() const;
    QChar upper() const;

    //! The Latin-1 code, 0 for characters beyond Latin-1.
    char latin1() const { return ucs > 0xff ? 0 : (char)ucs; }
    ushort unicode() const { return ucs; }
    ushort& unicode() { return ucs; }
    operator char() const { return latin1(); }

    uchar cell() const { return (uchar)ucs; }
    uchar row() const { return (uchar)(ucs >> 8); }
    void setCell(uchar cell) { ucs = (ushort)((ucs & 0xff00) | cell); }
    void setRow(uchar row) { ucs = (ushort)((ucs & 0x00ff) | (row << 8)); }

private:
    ushort ucs;
};

inline bool operator==(char a, QChar b)
{
    return (uchar)a == b.unicode();
}
inline bool operator==(QChar a, char b)
{
    return a.unicode() == (uchar)b;
}
inline bool operator==(QChar a, QChar b)
{
    return a.unicode() == b.unicode();
}
inline bool operator!=(char a, QChar b)
{
    return (uchar)a != b.unicode();
}
inline bool operator!=(QChar a, char b)
{
    return a.unicode() != (uchar)b;
}
inline bool operator!=(QChar a, QChar b)
{
    return a.unicode() != b.unicode();
}
inline bool operator<(char a, QChar b)
{
    return (uchar)a < b.unicode();
}
inline bool operator<(QChar a, char b)
{
    return a.unicode() < (uchar)b;
}
inline bool operator<(QChar a, QChar b)
{
    return a.unicode() < b.unicode();
}
inline bool operator<=(char a, QChar b)
{
    return (uchar)a <= b.unicode();
}
inline bool operator<=(QChar a, char b)
{
    return a.unicode() <= (uchar)b;
}
inline bool operator<=(QChar a, QChar b)
{
    return a.unicode() <= b.unicode();
}
inline bool operator>(char a, QChar b)
{
    return (uchar)a > b.unicode();
}
inline bool operator>(QChar a, char b)
{
    return a.unicode() > (uchar)b;
}
inline bool operator>(QChar a, QChar b)
{
    return a.unicode() > b.unicode();
}
inline bool operator>=(char a, QChar b)
{
    return (uchar)a >= b.unicode();
}
inline bool operator>=(QChar a, char b)
{
    return a.unicode() >= (uchar)b;
}
inline bool operator>=(QChar a, QChar b)
{
    return a.unicode() >= b.unicode();
}

//! A place in a string that can be read and assigned.
class Q_EXPORT QCharRef
{
    friend class QString;
    QString& s;
    uint p;
    QCharRef(QString* string, uint place) : s(*string), p(place) {}

public:
    QCharRef(const QCharRef& other) : s(other.s), p(other.p) {}
    ushort unicode() const;
    char latin1() const { return QChar(unicode()).latin1(); }
    operator QChar() const { return QChar(unicode()); }
    QCharRef operator=(const QCharRef& c);
    QCharRef operator=(QChar c);
    QCharRef operator=(char c) { return *this = QChar(c); }
    QCharRef operator=(uchar c) { return *this = QChar(c); }
    QCharRef operator=(short c) { return *this = QChar(c); }
    QCharRef operator=(ushort c) { return *this = QChar(c); }
    QCharRef operator=(int c) { return *this = QChar(c); }
    QCharRef operator=(uint c) { return *this = QChar(c); }
    bool isNull() const { return unicode() == 0; }
    bool isPrint() const { return QChar(unicode()).isPrint(); }
    bool isPunct() const { return QChar(unicode()).isPunct(); }
    bool isSpace() const { return QChar(unicode()).isSpace(); }
    bool isMark() const { return QChar(unicode()).isMark(); }
    bool isLetter() const { return QChar(unicode()).isLetter(); }
    bool isNumber() const { return QChar(unicode()).isNumber(); }
    bool isLetterOrNumber() { return QChar(unicode()).isLetterOrNumber(); }
    bool isDigit() const { return QChar(unicode()).isDigit(); }
    int digitValue() const { return QChar(unicode()).digitValue(); }
    QChar lower() const { return QChar(unicode()).lower(); }
    QChar upper() const { return QChar(unicode()).upper(); }
    uchar cell() const { return QChar(unicode()).cell(); }
    uchar row() const { return QChar(unicode()).row(); }
};

/*!
 * \brief A string of 16-bit characters, shared until one of its copies changes.
 *
 * A null string (QString(), QString::null) is different from an empty one (""), though both are empty. 8-bit
 * texts are taken as Latin-1.
 */
class Q_EXPORT QString
{
public:
    static const QString null;

    enum SectionFlags {
        SectionDefault = 0x00,
        SectionSkipEmpty = 0x01,
        SectionIncludeLeadingSep = 0x02,
        SectionIncludeTrailingSep = 0x04,
        SectionCaseInsensitiveSeps = 0x08
    };

    QString();
    QString(QChar c);
    QString(const QString& other);
    QString(const QByteArray& latin1);
    QString(const QChar* unicode, uint length);
    QString(const char* latin1);
    QString(const std::string& latin1);
    ~QString();

    QString& operator=(const QString& other);
    QString& operator=(const char* latin1);
    QString& operator=(const std::string& latin1);
    QString& operator=(const QCString& latin1);
    QString& operator=(QChar c);
    QString& operator=(char c) { return *this = QChar(c); }

    bool isNull() const;
    bool isEmpty() const { return length() == 0; }
    uint length() const;
    void truncate(uint length);
    QString& fill(QChar c, int length = -1);
    QString copy() const { return QString(*this); }

    QString arg(Q_LLONG a, int fieldWidth = 0, int base = 10) const;
    QString arg(Q_ULLONG a, int fieldWidth = 0, int base = 10) const;
    QString arg(long a, int fieldWidth = 0, int base = 10) const;
    QString arg(ulong a, int fieldWidth = 0, int base = 10) const;
    QString arg(int a, int fieldWidth = 0, int base = 10) const { return arg((long)a, fieldWidth, base); }
    QString arg(uint a, int fieldWidth = 0, int base = 10) const { return arg((ulong)a, fieldWidth, base); }
    QString arg(short a, int fieldWidth = 0, int base = 10) const { return arg((long)a, fieldWidth, base); }
    QString arg(ushort a, int fieldWidth = 0, int base = 10) const { return arg((ulong)a, fieldWidth, base); }
    QString arg(double a, int fieldWidth = 0, char format = 'g', int precision = -1) const;
    QString arg(char a, int fieldWidth = 0) const { return arg(QChar(a), fieldWidth); }
    QString arg(QChar a, int fieldWidth = 0) const;
    QString arg(const QString& a, int fieldWidth = 0) const;
    QString arg(const QString& a1, const QString& a2) const;
    QString arg(const QString& a1, const QString& a2, const QString& a3) const;
    QString arg(const QString& a1, const QString& a2, const QString& a3, const QString& a4) const;

    //! Replaces the string by the formatted text; %s takes UTF-8.
    QString& sprintf(const char* format, ...) __attribute__((format(printf, 2, 3)));

    int find(QChar c, int index = 0, bool caseSensitive = true) const;
    int find(char c, int index = 0, bool caseSensitive = true) const
    {
        return find(QChar(c), index, caseSensitive);
    }
    int find(const QString& text, int index = 0, bool caseSensitive = true) const;
    int find(const char* text, int index = 0) const { return find(QString(text), index); }
    int findRev(QChar c, int index = -1, bool caseSensitive = true) const;
    int findRev(char c, int index = -1, bool caseSensitive = true) const
    {
        return findRev(QChar(c), index, caseSensitive);
    }
    int findRev(const QString& text, int index = -1, bool caseSensitive = true) const;
    int findRev(const char* text, int index = -1) const { return findRev(QString(text), index); }
    int contains(QChar c, bool caseSensitive = true) const;
    int contains(char c, bool caseSensitive = true) const { return contains(QChar(c), caseSensitive); }
    int contains(const char* text, bool caseSensitive = true) const
    {
        return contains(QString(text), caseSensitive);
    }
    int contains(const QString& text, bool caseSensitive = true) const;

    QString section(char separator, int start, int end = -1, int flags = SectionDefault) const
    {
        return section(QString(QChar(separator)), start, end, flags);
    }
    QString section(QChar separator, int start, int end = -1, int flags = SectionDefault) const
    {
        return section(QString(separator), start, end, flags);
    }
    QString section(const char* separator, int start, int end = -1, int flags = SectionDefault) const
    {
        return section(QString(separator), start, end, flags);
    }
    QString section(const QString& separator, int start, int end = -1, int flags = SectionDefault) const;

    QString left(uint length) const;
    QString right(uint length) const;
    QString mid(uint index, uint length = 0xffffffff) const;
    QString leftJustify(uint width, QChar fill = ' ', bool truncate = false) const;
    QString rightJustify(uint width, QChar fill = ' ', bool truncate = false) const;
    QString lower() const;
    QString upper() const;
    QString stripWhiteSpace() const;
    QString simplifyWhiteSpace() const;

    QString& insert(uint index, const QString& text);
    QString& insert(uint index, const char* text) { return insert(index, QString(text)); }
    QString& insert(uint index, const QChar* text, uint length)
    {
        return insert(index, QString(text, length));
    }
    QString& insert(uint index, QChar c) { return insert(index, QString(c)); }
    QString& insert(uint index, char c) { return insert(index, QString(QChar(c))); }
    QString& append(char c) { return *this += QChar(c); }
    QString& append(QChar c) { return *this += c; }
    QString& append(const QString& text) { return *this += text; }
    QString& append(const char* text) { return *this += QString(text); }
    QString& append(const std::string& text) { return *this += QString(text); }
    QString& prepend(char c) { return insert(0, c); }
    QString& prepend(QChar c) { return insert(0, c); }
    QString& prepend(const QString& text) { return insert(0, text); }
    QString& prepend(const char* text) { return insert(0, text); }
    QString& prepend(const std::string& text) { return insert(0, QString(text)); }
    QString& remove(uint index, uint length);
    QString& remove(const QString& text) { return replace(text, QString("")); }
    QString& remove(const QString& text, bool caseSensitive)
    {
        return replace(text, QString(""), caseSensitive);
    }
    QString& remove(QChar c) { return replace(c, QString("")); }
    QString& remove(char c) { return replace(QChar(c), QString("")); }
    QString& remove(const char* text) { return replace(QString(text), QString("")); }
    QString& replace(uint index, uint length, const QString& text);
    QString& replace(uint index, uint length, QChar c) { return replace(index, length, QString(c)); }
    QString& replace(uint index, uint length, char c) { return replace(index, length, QString(QChar(c))); }
    QString& replace(QChar before, const QString& after) { return replace(QString(before), after); }
    QString& replace(QChar before, const QString& after, bool caseSensitive)
    {
        return replace(QString(before), after, caseSensitive);
    }
    QString& replace(char before, const QString& after) { return replace(QString(QChar(before)), after); }
    QString& replace(char before, const QString& after, bool caseSensitive)
    {
        return replace(QString(QChar(before)), after, caseSensitive);
    }
    QString& replace(const QString& before, const QString& after) { return replace(before, after, true); }
    QString& replace(const QString& before, const QString& after, bool caseSensitive);
    QString& replace(QChar before, QChar after) { return replace(QString(before), QString(after)); }

    short toShort(bool* ok = 0, int base = 10) const;
    ushort toUShort(bool* ok = 0, int base = 10) const;
    int toInt(bool* ok = 0, int base = 10) const;
    uint toUInt(bool* ok = 0, int base = 10) const;
    long toLong(bool* ok = 0, int base = 10) const;
    ulong toULong(bool* ok = 0, int base = 10) const;
    Q_LLONG toLongLong(bool* ok = 0, int base = 10) const;
    Q_ULLONG toULongLong(bool* ok = 0, int base = 10) const;
    float toFloat(bool* ok = 0) const;
    double toDouble(bool* ok = 0) const;

    QString& setNum(short number, int base = 10) { return setNum((long)number, base); }
    QString& setNum(ushort number, int base = 10) { return setNum((ulong)number, base); }
    QString& setNum(int number, int base = 10) { return setNum((long)number, base); }
    QString& setNum(uint number, int base = 10) { return setNum((ulong)number, base); }
    QString& setNum(long number, int base = 10);
    QString& setNum(ulong number, int base = 10);
    QString& setNum(Q_LLONG number, int base = 10);
    QString& setNum(Q_ULLONG number, int base = 10);
    QString& setNum(float number, char format = 'g', int precision = 6)
    {
        return setNum((double)number, format, precision);
    }
    QString& setNum(double number, char format = 'g', int precision = 6);
    static QString number(long number, int base = 10);
    static QString number(ulong number, int base = 10);
    static QString number(Q_LLONG number, int base = 10);
    static QString number(Q_ULLONG number, int base = 10);
    static QString number(int number, int base = 10);
    static QString number(uint number, int base = 10);
    static QString number(double number, char format = 'g', int precision = 6);

    bool startsWith(const QString& text) const { return startsWith(text, true); }
    bool startsWith(const QString& text, bool caseSensitive) const;
    bool endsWith(const QString& text) const { return endsWith(text, true); }
    bool endsWith(const QString& text, bool caseSensitive) const;

    void setLength(uint length);

    QChar at(uint index) const;
    QCharRef at(uint index) { return QCharRef(this, index); }
    QChar operator[](int index) const { return at((uint)index); }
    QCharRef operator[](int index) { return QCharRef(this, (uint)index); }
    QChar constref(uint index) const { return at(index); }
    //! The character at that place, made if the string is shorter.
    QChar& ref(uint index);
    const QChar* unicode() const;

    //! The text as Latin-1, '?' for other characters; kept until the string changes. Null for a null string.
    const char* latin1() const;
    const char* ascii() const { return latin1(); }
    operator const char*() const { return latin1(); }
    operator std::string() const { return isNull() ? std::string() : std::string(latin1()); }
    QCString utf8() const;
    QCString local8Bit() const;
    static QString fromLatin1(const char* text, int length = -1);
    static QString fromAscii(const char* text, int length = -1) { return fromLatin1(text, length); }
    static QString fromUtf8(const char* text, int length = -1);
    static QString fromLocal8Bit(const char* text, int length = -1);

    bool operator!() const { return isNull(); }
    QString& operator+=(const QString& text);
    QString& operator+=(const char* text) { return *this += QString(text); }
    QString& operator+=(const std::string& text) { return *this += QString(text); }
    QString& operator+=(QChar c);
    QString& operator+=(char c) { return *this += QChar(c); }
    QString& operator+=(const QByteArray& text) { return *this += QString(text); }

    QString& setUnicode(const QChar* unicode, uint length);
    QString& setLatin1(const char* text, int length = -1);
    QString& setAscii(const char* text, int length = -1) { return setLatin1(text, length); }

    static int compare(const QString& a, const QString& b);
    int compare(const QString& other) const { return compare(*this, other); }
    static int localeAwareCompare(const QString& a, const QString& b);
    int localeAwareCompare(const QString& other) const { return localeAwareCompare(*this, other); }

private:
    friend class QCharRef;
    void detach();

    zeltk::StringData* d;
};

inline ushort QCharRef::unicode() const
{
    return ((const QString&)s).at(p).unicode();
}
inline QCharRef QCharRef::operator=(const QCharRef& c)
{
    return *this = QChar(c.unicode());
}
inline QCharRef QCharRef::operator=(QChar c)
{
    s.ref(p) = c;
    return *this;
}

Q_EXPORT bool operator==(const QString& a, const QString& b);
Q_EXPORT bool operator==(const QString& a, const char* b);
inline bool operator==(const char* a, const QString& b)
{
    return b == a;
}
inline bool operator!=(const QString& a, const QString& b)
{
    return !(a == b);
}
inline bool operator!=(const QString& a, const char* b)
{
    return !(a == b);
}
inline bool operator!=(const char* a, const QString& b)
{
    return !(b == a);
}
inline bool operator<(const QString& a, const QString& b)
{
    return QString::compare(a, b) < 0;
}
inline bool operator<(const QString& a, const char* b)
{
    return QString::compare(a, b) < 0;
}
inline bool operator<(const char* a, const QString& b)
{
    return QString::compare(a, b) < 0;
}
inline bool operator<=(const QString& a, const QString& b)
{
    return QString::compare(a, b) <= 0;
}
inline bool operator<=(const QString& a, const char* b)
{
    return QString::compare(a, b) <= 0;
}
inline bool operator<=(const char* a, const QString& b)
{
    return QString::compare(a, b) <= 0;
}
inline bool operator>(const QString& a, const QString& b)
{
    return QString::compare(a, b) > 0;
}
inline bool operator>(const QString& a, const char* b)
{
    return QString::compare(a, b) > 0;
}
inline bool operator>(const char* a, const QString& b)
{
    return QString::compare(a, b) > 0;
}
inline bool operator>=(const QString& a, const QString& b)
{
    return QString::compare(a, b) >= 0;
}
inline bool operator>=(const QString& a, const char* b)
{
    return QString::compare(a, b) >= 0;
}
inline bool operator>=(const char* a, const QString& b)
{
    return QString::compare(a, b) >= 0;
}

inline QString operator+(const QString& a, const QString& b)
{
    QString sum(a);
    sum += b;
    return sum;
}
inline QString operator+(const QString& a, const char* b)
{
    return a + QString(b);
}
inline QString operator+(const char* a, const QString& b)
{
    return QString(a) + b;
}
inline QString operator+(const QString& a, QChar b)
{
    return a + QString(b);
}
inline QString operator+(const QString& a, char b)
{
    return a + QString(QChar(b));
}
inline QString operator+(QChar a, const QString& b)
{
    return QString(a) + b;
}
inline QString operator+(char a, const QString& b)
{
    return QString(QChar(a)) + b;
}
inline QString operator+(const QString& a, const std::string& b)
{
    return a + QString(b);
}
inline QString operator+(const std::string& a, const QString& b)
{
    return QString(a) + b;
}

#endif
