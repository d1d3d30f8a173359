// QString: making, sharing, parts and changes.
#include <qstring.h>

#include "tools/shared.h"
#include "tools/stringdata.h"
#include "tools/unicode.h"

#include <algorithm>
#include <clocale>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <langinfo.h>

using zeltk::release;
using zeltk::shared;
using zeltk::StringData;

namespace
{

// All null strings share this one; it is never freed.
StringData* nullData()
{
    static StringData* const data = new StringData{1, true, std::u16string(), false, std::string()};
    return data;
}

StringData* newData(std::u16string text)
{
    return new StringData{1, false, std::move(text), false, std::string()};
}

StringData* dataFromLatin1(const char* text, size_t length)
{
    if (!text)
        return shared(nullData());
    std::u16string result(length, u'\0');
    for (size_t i = 0; i < length; ++i)
        result[i] = static_cast<uchar>(text[i]);
    return newData(std::move(result));
}

size_t lengthOf(const char* text, int length)
{
    if (!text)
        return 0;
    return length < 0 ? std::strlen(text) : strnlen(text, static_cast<size_t>(length));
}

// The locale of the user's environment, whether or not the program has set it.
bool localeIsUtf8()
{
    static const bool isUtf8 = [] {
        const locale_t locale = newlocale(LC_CTYPE_MASK, "", nullptr);
        const bool result = locale && std::strcmp(nl_langinfo_l(CODESET, locale), "UTF-8") == 0;
        if (locale)
            freelocale(locale);
        return result;
    }();
    return isUtf8;
}

} // namespace

const QString QString::null;

QString::QString() : d(shared(nullData())) {}

QString::QString(QChar c) : d(newData(std::u16string(1, c.unicode()))) {}

QString::QString(const QString& other) : d(shared(other.d)) {}

// Up to a zero byte, as a C string.
QString::QString(const QByteArray& latin1)
    : d(dataFromLatin1(latin1.data(), latin1.data() ? strnlen(latin1.data(), latin1.size()) : 0))
{
}

QString::QString(const QChar* unicode, uint length)
    : d(unicode ? newData(std::u16string(reinterpret_cast<const char16_t*>(unicode), length))
                : shared(nullData()))
{
}

QString::QString(const char* latin1) : d(dataFromLatin1(latin1, qstrlen(latin1))) {}

QString::QString(const std::string& latin1) : d(dataFromLatin1(latin1.c_str(), qstrlen(latin1.c_str()))) {}

QString::~QString()
{
    release(d);
}

QString& QString::operator=(const QString& other)
{
    zeltk::share(d, other.d);
    return *this;
}

QString& QString::operator=(const char* latin1)
{
    return *this = QString(latin1);
}

QString& QString::operator=(const std::string& latin1)
{
    return *this = QString(latin1);
}

QString& QString::operator=(const QCString& latin1)
{
    return *this = QString(latin1.data());
}

QString& QString::operator=(QChar c)
{
    return *this = QString(c);
}

// Makes the text this string's own, ready to be changed; null's text is always shared, so it is no longer
// null.
void QString::detach()
{
    if (d->references > 1) {
        StringData* const own = newData(d->text);
        release(d);
        d = own;
    }
    d->hasLatin1 = false;
}

bool QString::isNull() const
{
    return d->isNull;
}

uint QString::length() const
{
    return static_cast<uint>(d->text.size());
}

const QChar* QString::unicode() const
{
    return d->isNull ? nullptr : reinterpret_cast<const QChar*>(d->text.data());
}

QChar QString::at(uint index) const
{
    return index < length() ? QChar(static_cast<ushort>(d->text[index])) : QChar::null;
}

QChar& QString::ref(uint index)
{
    detach();
    if (index >= length())
        d->text.resize(index + 1, u' ');
    return reinterpret_cast<QChar&>(d->text[index]);
}

void QString::truncate(uint newLength)
{
    if (newLength < length())
        setLength(newLength);
}

void QString::setLength(uint newLength)
{
    detach();
    d->text.resize(newLength);
}

QString& QString::fill(QChar c, int newLength)
{
    const uint size = newLength < 0 ? length() : static_cast<uint>(newLength);
    return *this = zeltk::fromUtf16(std::u16string(size, c.unicode()));
}

QString QString::left(uint count) const
{
    return count >= length() ? *this : QString(unicode(), count);
}

QString QString::right(uint count) const
{
    return count >= length() ? *this : QString(unicode() + (length() - count), count);
}

QString QString::mid(uint index, uint count) const
{
    if (index >= length())
        return QString();
    return QString(unicode() + index, QMIN(count, length() - index));
}

static QString justified(const QString& text, uint width, QChar fill, bool truncate, bool toTheRight)
{
    if (text.length() >= width)
        return truncate ? text.left(width) : text;
    QString padding;
    padding.fill(fill, static_cast<int>(width - text.length()));
    return toTheRight ? padding + text : text + padding;
}

QString QString::leftJustify(uint width, QChar fill, bool truncate) const
{
    return justified(*this, width, fill, truncate, false);
}

QString QString::rightJustify(uint width, QChar fill, bool truncate) const
{
    return justified(*this, width, fill, truncate, true);
}

QString QString::lower() const
{
    QString result(*this);
    for (uint i = 0; i < length(); ++i)
        if (at(i).lower() != at(i))
            result.ref(i) = at(i).lower();
    return result;
}

QString QString::upper() const
{
    QString result(*this);
    for (uint i = 0; i < length(); ++i)
        if (at(i).upper() != at(i))
            result.ref(i) = at(i).upper();
    return result;
}

QString QString::stripWhiteSpace() const
{
    uint first = 0, last = length();
    while (first < last && at(first).isSpace())
        ++first;
    while (last > first && at(last - 1).isSpace())
        --last;
    if (last - first == length())
        return *this;
    return QString(unicode() + first, last - first);
}

QString QString::simplifyWhiteSpace() const
{
    if (isEmpty())
        return *this;
    std::u16string result;
    for (const char16_t code : d->text) {
        if (!QChar(static_cast<ushort>(code)).isSpace())
            result += code;
        else if (!result.empty() && result.back() != u' ')
            result += u' ';
    }
    if (!result.empty() && result.back() == u' ')
        result.pop_back();
    return zeltk::fromUtf16(result);
}

QString& QString::insert(uint index, const QString& text)
{
    if (text.isEmpty()) {
        if (isNull() && !text.isNull())
            *this = text;
        return *this;
    }
    const std::u16string inserted = text.d->text;
    detach();
    if (index > length())
        d->text.resize(index, u' ');
    d->text.insert(index, inserted);
    return *this;
}

QString& QString::remove(uint index, uint count)
{
    if (index < length() && count > 0) {
        detach();
        d->text.erase(index, count);
    }
    return *this;
}

QString& QString::replace(uint index, uint count, const QString& text)
{
    // It may be this one. NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    const QString replacement(text);
    remove(index, count);
    return insert(index, replacement);
}

QString& QString::replace(const QString& before, const QString& after, bool caseSensitive)
{
    // They may be this one. NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    const QString search(before), replacement(after);
    if (isEmpty())
        return *this;
    int index = 0;
    while ((index = find(search, index, caseSensitive)) >= 0) {
        replace(static_cast<uint>(index), search.length(), replacement);
        index += static_cast<int>(search.isEmpty() ? replacement.length() + 1 : replacement.length());
    }
    return *this;
}

QString& QString::operator+=(const QString& text)
{
    return insert(length(), text);
}

QString& QString::operator+=(QChar c)
{
    detach();
    d->text += static_cast<char16_t>(c.unicode());
    return *this;
}

QString& QString::setUnicode(const QChar* unicode, uint length)
{
    return *this = QString(unicode, length);
}

QString& QString::setLatin1(const char* text, int length)
{
    return *this = fromLatin1(text, length);
}

const char* QString::latin1() const
{
    if (d->isNull)
        return nullptr;
    if (!d->hasLatin1) {
        d->latin1.resize(d->text.size());
        for (size_t i = 0; i < d->text.size(); ++i)
            d->latin1[i] = d->text[i] > 0xff ? '?' : static_cast<char>(d->text[i]);
        d->hasLatin1 = true;
    }
    return d->latin1.c_str();
}

QCString QString::utf8() const
{
    return zeltk::toUtf8(*this).c_str();
}

QCString QString::local8Bit() const
{
    return localeIsUtf8() ? utf8() : QCString(latin1());
}

QString QString::fromLatin1(const char* text, int length)
{
    QString result;
    release(result.d);
    result.d = dataFromLatin1(text, lengthOf(text, length));
    return result;
}

QString QString::fromUtf8(const char* text, int length)
{
    return text ? zeltk::fromUtf16(zeltk::utf16FromUtf8(text, lengthOf(text, length))) : QString();
}

QString QString::fromLocal8Bit(const char* text, int length)
{
    return localeIsUtf8() ? fromUtf8(text, length) : fromLatin1(text, length);
}

// What %s takes is UTF-8; everything else is ASCII.
QString& QString::sprintf(const char* format, ...)
{
    va_list arguments, again;
    va_start(arguments, format);
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    va_end(arguments);
    std::string text(static_cast<size_t>(QMAX(length, 0)), '\0');
    if (length > 0)
        std::vsnprintf(&text[0], text.size() + 1, format, again);
    va_end(again);
    return *this = zeltk::fromUtf8(text);
}
