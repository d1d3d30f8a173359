// The pattern that a field's text is typed into.
#include "widgets/editmask.h"

#include <algorithm>

namespace zeltk
{

namespace
{

bool isAsciiLetter(QChar letter)
{
    const ushort code = letter.lower().unicode();
    return code >= 'a' && code <= 'z';
}

bool isDigit(QChar letter, char first)
{
    return letter.unicode() >= first && letter.unicode() <= '9';
}

// Capital kinds and 9 and D need a letter, the others may stay without.
bool isNeeded(QChar kind)
{
    return QString("ANX9D").find(kind) >= 0;
}

} // namespace

EditMask::EditMask(const QString& mask) : m_pattern(mask)
{
    const int semicolon = mask.findRev(';');
    const bool namesBlank = semicolon >= 0 && semicolon == static_cast<int>(mask.length()) - 2;
    if (namesBlank)
        m_blank = mask.at(static_cast<uint>(semicolon) + 1);
    const QString kinds = "AaNnXx90Dd#";
    const uint length = semicolon >= 0 ? static_cast<uint>(semicolon) : mask.length();
    Case letterCase = Case::AsTyped;
    for (uint i = 0; i < length; ++i) {
        const QChar c = mask.at(i);
        if (c == '\\' && i + 1 < length)
            m_places.push_back({mask.at(++i), true, letterCase});
        else if (c == '>')
            letterCase = Case::Upper;
        else if (c == '<')
            letterCase = Case::Lower;
        else if (c == '!')
            letterCase = Case::AsTyped;
        else
            m_places.push_back({c, kinds.find(c) < 0, letterCase});
    }
}

bool EditMask::takes(const Place& place, QChar letter) const
{
    if (letter == m_blank && !isNeeded(place.kind))
        return true;
    switch (place.kind.lower().unicode()) {
    case 'a':
        return isAsciiLetter(letter);
    case 'n':
        return isAsciiLetter(letter) || isDigit(letter, '0');
    case 'x':
        return letter.isPrint();
    case 'd':
        return isDigit(letter, '1');
    case '#':
        return isDigit(letter, '0') || letter == '+' || letter == '-';
    default:
        return isDigit(letter, '0');
    }
}

QString EditMask::filled(const QString& whole, int from, const QString& text, int* end) const
{
    QString result = whole;
    int at = from;
    for (uint i = 0; i < text.length(); ++i) {
        const QChar letter = text.at(i);
        const int place = placeFrom(at);
        const int separator = separatorFrom(at, letter);
        if (separator < place) {
            at = separator + 1;
        } else if (place < length() && takes(m_places[static_cast<size_t>(place)], letter)) {
            const Case letterCase = m_places[static_cast<size_t>(place)].letterCase;
            result[place] = letterCase == Case::Upper   ? letter.upper()
                            : letterCase == Case::Lower ? letter.lower()
                                                        : letter;
            at = place + 1;
        } else if (separator < length()) {
            at = separator + 1;
        }
    }
    *end = at;
    return result;
}

QString EditMask::empty() const
{
    QString whole;
    for (const Place& place : m_places)
        whole += place.isSeparator ? place.kind : m_blank;
    return whole;
}

QString EditMask::emptied(const QString& whole, int from, int count) const
{
    return whole.left(static_cast<uint>(from)) +
           empty().mid(static_cast<uint>(from), static_cast<uint>(count)) +
           whole.mid(static_cast<uint>(from + count));
}

QString EditMask::meaning(const QString& whole, int from, int count) const
{
    QString result = "";
    const int end = std::min(from + count, std::min(length(), static_cast<int>(whole.length())));
    for (int i = from; i < end; ++i) {
        const QChar letter = whole.at(static_cast<uint>(i));
        if (m_places[static_cast<size_t>(i)].isSeparator || !(letter == m_blank))
            result += letter;
    }
    return result;
}

bool EditMask::isComplete(const QString& whole) const
{
    for (int i = 0; i < length(); ++i) {
        const Place& place = m_places[static_cast<size_t>(i)];
        const QChar letter = whole.at(static_cast<uint>(i));
        if (!place.isSeparator && isNeeded(place.kind) && (letter == m_blank || !takes(place, letter)))
            return false;
    }
    return true;
}

int EditMask::separatorFrom(int from, QChar letter) const
{
    const auto isIt = [letter](const Place& place) { return place.isSeparator && place.kind == letter; };
    const auto first = m_places.begin() + std::min(from, length());
    return static_cast<int>(std::find_if(first, m_places.end(), isIt) - m_places.begin());
}

int EditMask::placeFrom(int from) const
{
    while (from < length() && m_places[static_cast<size_t>(from)].isSeparator)
        ++from;
    return std::min(from, length());
}

int EditMask::placeBefore(int from) const
{
    --from;
    while (from >= 0 && m_places[static_cast<size_t>(from)].isSeparator)
        --from;
    return from;
}

} // namespace zeltk
