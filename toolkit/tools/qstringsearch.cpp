// QString: searching, comparing and sections.
#include <qstring.h>

#include <vector>

#include <cstring>
#include <cwchar>

namespace
{

bool sameAt(const QString& text, uint index, const QString& pattern, bool caseSensitive)
{
    for (uint i = 0; i < pattern.length(); ++i) {
        const QChar a = text.at(index + i), b = pattern.at(i);
        if (a != b && (caseSensitive || a.lower() != b.lower()))
            return false;
    }
    return true;
}

} // namespace

int QString::find(QChar c, int index, bool caseSensitive) const
{
    return find(QString(c), index, caseSensitive);
}

// A negative index counts from the end.
int QString::find(const QString& text, int index, bool caseSensitive) const
{
    const int own = static_cast<int>(length()), other = static_cast<int>(text.length());
    if (index < 0)
        index += own;
    if (index < 0)
        return -1;
    for (; index <= own - other; ++index)
        if (sameAt(*this, static_cast<uint>(index), text, caseSensitive))
            return index;
    return -1;
}

int QString::findRev(QChar c, int index, bool caseSensitive) const
{
    return findRev(QString(c), index, caseSensitive);
}

int QString::findRev(const QString& text, int index, bool caseSensitive) const
{
    const int own = static_cast<int>(length()), other = static_cast<int>(text.length());
    if (index < 0)
        index += own;
    if (index < 0 || index > own)
        return -1;
    for (index = QMIN(index, own - other); index >= 0; --index)
        if (sameAt(*this, static_cast<uint>(index), text, caseSensitive))
            return index;
    return -1;
}

int QString::contains(QChar c, bool caseSensitive) const
{
    return contains(QString(c), caseSensitive);
}

// Overlapping places count each.
int QString::contains(const QString& text, bool caseSensitive) const
{
    int number = 0;
    for (uint index = 0; index + text.length() <= length(); ++index)
        number += sameAt(*this, index, text, caseSensitive);
    return number;
}

bool QString::startsWith(const QString& text, bool caseSensitive) const
{
    return text.length() <= length() && sameAt(*this, 0, text, caseSensitive);
}

bool QString::endsWith(const QString& text, bool caseSensitive) const
{
    return text.length() <= length() && sameAt(*this, length() - text.length(), text, caseSensitive);
}

namespace
{

struct Field {
    int begin;
    int length;
};

std::vector<Field> fieldsOf(const QString& text, const QString& separator, int flags)
{
    const bool caseSensitive = !(flags & QString::SectionCaseInsensitiveSeps);
    const int separatorLength = static_cast<int>(separator.length());
    std::vector<Field> fields;
    for (int begin = 0;;) {
        const int found = separatorLength ? text.find(separator, begin, caseSensitive) : -1;
        const int stop = found < 0 ? static_cast<int>(text.length()) : found;
        if (!(flags & QString::SectionSkipEmpty) || stop > begin)
            fields.push_back({begin, stop - begin});
        if (found < 0)
            return fields;
        begin = found + separatorLength;
    }
}

} // namespace

// The fields between separators, counted from 0, or from -1 at the end backwards.
QString QString::section(const QString& separator, int start, int end, int flags) const
{
    const int separatorLength = static_cast<int>(separator.length());
    const std::vector<Field> fields = fieldsOf(*this, separator, flags);
    const int number = static_cast<int>(fields.size());
    if (start < 0)
        start += number;
    if (end < 0)
        end += number;
    start = QMAX(start, 0);
    end = QMIN(end, number - 1);
    if (start > end || start >= number)
        return QString("");

    int from = fields[static_cast<size_t>(start)].begin;
    int to = fields[static_cast<size_t>(end)].begin + fields[static_cast<size_t>(end)].length;
    if ((flags & SectionIncludeLeadingSep) && from >= separatorLength && start > 0)
        from -= separatorLength;
    if ((flags & SectionIncludeTrailingSep) && end < number - 1)
        to += separatorLength;
    return from == to ? QString("") : mid(static_cast<uint>(from), static_cast<uint>(to - from));
}

// A null string stands after all others, which only matters for sorting: it is equal to none but null.
int QString::compare(const QString& a, const QString& b)
{
    if (a.isNull() || b.isNull())
        return a.isNull() && b.isNull() ? 0 : a.isNull() ? 1 : -1;
    const uint common = QMIN(a.length(), b.length());
    const QChar *left = a.unicode(), *right = b.unicode();
    for (uint i = 0; i < common; ++i)
        if (left[i] != right[i])
            return left[i].unicode() - right[i].unicode();
    return static_cast<int>(a.length()) - static_cast<int>(b.length());
}

int QString::localeAwareCompare(const QString& a, const QString& b)
{
    return std::strcoll(a.isNull() ? "" : a.local8Bit().data(), b.isNull() ? "" : b.local8Bit().data());
}

bool operator==(const QString& a, const QString& b)
{
    return a.isNull() == b.isNull() && a.length() == b.length() &&
           (a.isEmpty() || std::memcmp(a.unicode(), b.unicode(), a.length() * sizeof(QChar)) == 0);
}

// Null and empty texts are all equal to the C text "" and to a null pointer.
bool operator==(const QString& a, const char* b)
{
    if (a.isEmpty() || !b)
        return a.isEmpty() && (!b || !*b);
    for (uint i = 0; i < a.length(); ++i, ++b)
        if (!*b || a.at(i).unicode() != static_cast<uchar>(*b))
            return false;
    return !*b;
}
