// QCString.
#include <qcstring.h>

#include "tools/numbertext.h"

#include <qstring.h>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace
{

std::string textOf(const QCString& text)
{
    return text.data() ? std::string(text.data()) : std::string();
}

std::string folded(std::string text, bool caseSensitive)
{
    if (!caseSensitive)
        std::transform(text.begin(), text.end(), text.begin(),
                       [](char c) { return std::tolower(static_cast<uchar>(c)); });
    return text;
}

bool isBlank(char c)
{
    return std::isspace(static_cast<uchar>(c)) != 0;
}

} // namespace

QCString::QCString(int size)
{
    if (size > 0) {
        QByteArray::resize(static_cast<uint>(size));
        std::memset(data(), 0, static_cast<size_t>(size));
    }
}

QCString::QCString(const char* text)
{
    *this = text;
}

QCString::QCString(const char* text, uint size)
{
    if (!text || size == 0)
        return;
    const std::string part(text, strnlen(text, size - 1));
    duplicate(part.c_str(), static_cast<uint>(part.size()) + 1);
}

QCString& QCString::operator=(const QCString& other)
{
    assign(other);
    return *this;
}

QCString& QCString::operator=(const char* text)
{
    QByteArray fresh;
    if (text)
        fresh.duplicate(text, qstrlen(text) + 1);
    assign(fresh);
    return *this;
}

bool QCString::resize(uint size)
{
    detach();
    const uint before = this->size();
    if (!QByteArray::resize(size))
        return false;
    if (size > before)
        std::memset(data() + before, 0, size - before);
    if (size > 0)
        data()[size - 1] = '\0';
    return true;
}

bool QCString::fill(char c, int length)
{
    const uint count = length < 0 ? this->length() : static_cast<uint>(length);
    *this = std::string(count, c).c_str();
    return true;
}

QCString& QCString::sprintf(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    char* text = nullptr;
    if (vasprintf(&text, format, arguments) < 0)
        text = nullptr;
    va_end(arguments);
    *this = text;
    std::free(text);
    return *this;
}

int QCString::find(char c, int index, bool caseSensitive) const
{
    const char wanted[2] = {c, '\0'};
    return find(wanted, index, caseSensitive);
}

int QCString::find(const char* text, int index, bool caseSensitive) const
{
    if (!text || isNull() || index < 0 || static_cast<uint>(index) >= size())
        return -1;
    const size_t place =
        folded(textOf(*this), caseSensitive).find(folded(text, caseSensitive), static_cast<size_t>(index));
    return place == std::string::npos ? -1 : static_cast<int>(place);
}

int QCString::findRev(char c, int index, bool caseSensitive) const
{
    const char wanted[2] = {c, '\0'};
    return findRev(wanted, index, caseSensitive);
}

int QCString::findRev(const char* text, int index, bool caseSensitive) const
{
    if (!text || isNull())
        return -1;
    const size_t from = index < 0 ? std::string::npos : static_cast<size_t>(index);
    const size_t place = folded(textOf(*this), caseSensitive).rfind(folded(text, caseSensitive), from);
    return place == std::string::npos ? -1 : static_cast<int>(place);
}

int QCString::contains(char c, bool caseSensitive) const
{
    const char wanted[2] = {c, '\0'};
    return contains(wanted, caseSensitive);
}

int QCString::contains(const char* text, bool caseSensitive) const
{
    int number = 0;
    for (int place = find(text, 0, caseSensitive); place >= 0; place = find(text, place + 1, caseSensitive))
        ++number;
    return number;
}

QCString QCString::left(uint count) const
{
    return isNull() ? QCString() : QCString(textOf(*this).substr(0, count).c_str());
}

QCString QCString::right(uint count) const
{
    if (isNull())
        return QCString();
    return data() + (length() - std::min(count, length()));
}

QCString QCString::mid(uint index, uint count) const
{
    if (isNull() || index > length())
        return isNull() ? QCString() : QCString("");
    return textOf(*this).substr(index, count).c_str();
}

QCString QCString::leftJustify(uint width, char fill, bool truncate) const
{
    if (length() >= width)
        return truncate ? left(width) : copy();
    return (textOf(*this) + std::string(width - length(), fill)).c_str();
}

QCString QCString::rightJustify(uint width, char fill, bool truncate) const
{
    if (length() >= width)
        return truncate ? left(width) : copy();
    return (std::string(width - length(), fill) + textOf(*this)).c_str();
}

QCString QCString::lower() const
{
    QCString result = copy();
    for (uint i = 0; i < result.length(); ++i)
        result.at(i) = static_cast<char>(std::tolower(static_cast<uchar>(result.at(i))));
    return result;
}

QCString QCString::upper() const
{
    QCString result = copy();
    for (uint i = 0; i < result.length(); ++i)
        result.at(i) = static_cast<char>(std::toupper(static_cast<uchar>(result.at(i))));
    return result;
}

QCString QCString::stripWhiteSpace() const
{
    if (isNull())
        return QCString();
    std::string text = textOf(*this);
    text.erase(std::find_if_not(text.rbegin(), text.rend(), isBlank).base(), text.end());
    text.erase(text.begin(), std::find_if_not(text.begin(), text.end(), isBlank));
    return text.c_str();
}

QCString QCString::simplifyWhiteSpace() const
{
    if (isNull())
        return QCString();
    std::string result;
    for (const char c : textOf(stripWhiteSpace())) {
        if (!isBlank(c))
            result += c;
        else if (result.back() != ' ')
            result += ' ';
    }
    return result.c_str();
}

QCString& QCString::insert(uint index, const char* text)
{
    std::string result = textOf(*this);
    if (index > result.size())
        result.resize(index, ' ');
    return *this = result.insert(index, text ? text : "").c_str();
}

QCString& QCString::insert(uint index, char c)
{
    const char text[2] = {c, '\0'};
    return insert(index, text);
}

QCString& QCString::remove(uint index, uint count)
{
    if (index < length())
        *this = textOf(*this).erase(index, count).c_str();
    return *this;
}

QCString& QCString::replace(uint index, uint count, const char* text)
{
    const QCString inserted(text); // the text may be a part of this one
    remove(index, count);
    return insert(index, inserted);
}

QCString& QCString::replace(const char* before, const char* after)
{
    const std::string search(before ? before : ""), replacement(after ? after : "");
    if (search.empty() || find(search.c_str()) < 0)
        return *this;
    std::string text = textOf(*this);
    for (size_t place = 0; (place = text.find(search, place)) != std::string::npos;
         place += replacement.size())
        text.replace(place, search.size(), replacement);
    return *this = text.c_str();
}

QCString& QCString::replace(char before, const char* after)
{
    const char search[2] = {before, '\0'};
    return replace(search, after);
}

QCString& QCString::replace(char before, char after)
{
    const char replacement[2] = {after, '\0'};
    return replace(before, replacement);
}

short QCString::toShort(bool* ok) const
{
    return zeltk::parsed<short>(textOf(*this), 10, ok);
}

ushort QCString::toUShort(bool* ok) const
{
    return zeltk::parsed<ushort>(textOf(*this), 10, ok);
}

int QCString::toInt(bool* ok) const
{
    return zeltk::parsed<int>(textOf(*this), 10, ok);
}

uint QCString::toUInt(bool* ok) const
{
    return zeltk::parsed<uint>(textOf(*this), 10, ok);
}

long QCString::toLong(bool* ok) const
{
    return zeltk::parsed<long>(textOf(*this), 10, ok);
}

ulong QCString::toULong(bool* ok) const
{
    return zeltk::parsed<ulong>(textOf(*this), 10, ok);
}

float QCString::toFloat(bool* ok) const
{
    return static_cast<float>(toDouble(ok));
}

double QCString::toDouble(bool* ok) const
{
    return QString(data()).toDouble(ok);
}

QCString& QCString::setNum(long number)
{
    return *this = zeltk::numberText(static_cast<Q_LLONG>(number), 10).c_str();
}

QCString& QCString::setNum(ulong number)
{
    return *this = zeltk::numberText(static_cast<Q_ULLONG>(number), 10).c_str();
}

QCString& QCString::setNum(double number, char format, int precision)
{
    return *this = zeltk::numberText(number, format, precision).c_str();
}

QCString& QCString::operator+=(const char* text)
{
    if (text)
        *this = (textOf(*this) + text).c_str();
    return *this;
}

QCString& QCString::operator+=(char c)
{
    *this = (textOf(*this) + c).c_str();
    return *this;
}
