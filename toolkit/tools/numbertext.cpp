// Numbers as text and back.
#include "tools/numbertext.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <locale.h>

namespace zeltk
{

namespace
{

// No number needs more; printf takes minutes for what an int can ask for, and then fails.
constexpr int mostDigits = 10000;

locale_t plainLocale()
{
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
}

int validBase(int base)
{
    return base < 2 || base > 36 ? 10 : base;
}

bool isBlank(char c)
{
    return std::isspace(static_cast<uchar>(c)) != 0;
}

int digitValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'z')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'Z')
        return c - 'A' + 10;
    return 99;
}

// Sign and magnitude of the text; false if it is no number or too long for 64 bits.
bool parseMagnitude(const std::string& text, int base, bool* negative, Q_ULLONG* magnitude)
{
    base = validBase(base);
    size_t begin = 0, end = text.size();
    while (begin < end && isBlank(text[begin]))
        ++begin;
    while (end > begin && isBlank(text[end - 1]))
        --end;
    *negative = false;
    if (begin < end && (text[begin] == '-' || text[begin] == '+'))
        *negative = text[begin++] == '-';
    if (base == 16 && end - begin > 2 && text[begin] == '0' && (text[begin + 1] | 0x20) == 'x')
        begin += 2;
    if (begin == end)
        return false;
    const Q_ULLONG largest = std::numeric_limits<Q_ULLONG>::max();
    *magnitude = 0;
    for (; begin < end; ++begin) {
        const int digit = digitValue(text[begin]);
        if (digit >= base ||
            *magnitude > (largest - static_cast<Q_ULLONG>(digit)) / static_cast<Q_ULLONG>(base))
            return false;
        *magnitude = *magnitude * static_cast<Q_ULLONG>(base) + static_cast<Q_ULLONG>(digit);
    }
    return true;
}

} // namespace

std::string numberText(Q_ULLONG number, int base)
{
    const auto valid = static_cast<Q_ULLONG>(validBase(base));
    std::string text;
    do {
        text.insert(text.begin(), "0123456789abcdefghijklmnopqrstuvwxyz"[number % valid]);
        number /= valid;
    } while (number);
    return text;
}

std::string numberText(Q_LLONG number, int base)
{
    if (number >= 0)
        return numberText(static_cast<Q_ULLONG>(number), base);
    return "-" + numberText(0 - static_cast<Q_ULLONG>(number), base);
}

std::string numberText(double number, char format, int precision)
{
    // Others would make printf look for arguments of other types.
    const bool valid =
        format == 'e' || format == 'E' || format == 'f' || format == 'F' || format == 'g' || format == 'G';
    const char pattern[] = {'%', '.', '*', valid ? format : 'g', '\0'};
    const locale_t before = uselocale(plainLocale());
    const int digits = precision < 0 ? 6 : std::min(precision, mostDigits);
    std::string text(static_cast<size_t>(std::snprintf(nullptr, 0, pattern, digits, number)), '\0');
    std::snprintf(&text[0], text.size() + 1, pattern, digits, number);
    uselocale(before);
    return text;
}

bool parseNumber(const std::string& text, int base, Q_LLONG smallest, Q_LLONG largest, Q_LLONG* number)
{
    bool negative;
    Q_ULLONG magnitude;
    *number = 0;
    if (!parseMagnitude(text, base, &negative, &magnitude))
        return false;
    const Q_ULLONG limit = negative ? 0 - static_cast<Q_ULLONG>(smallest) : static_cast<Q_ULLONG>(largest);
    if (magnitude > limit)
        return false;
    *number = static_cast<Q_LLONG>(negative ? 0 - magnitude : magnitude);
    return true;
}

bool parseNumber(const std::string& text, int base, Q_ULLONG largest, Q_ULLONG* number)
{
    bool negative;
    Q_ULLONG magnitude;
    *number = 0;
    if (!parseMagnitude(text, base, &negative, &magnitude) || magnitude > largest || (negative && magnitude))
        return false;
    *number = magnitude;
    return true;
}

bool parseNumber(const std::string& text, double* number)
{
    *number = 0;
    size_t begin = 0;
    while (begin < text.size() && isBlank(text[begin]))
        ++begin;
    size_t behind = text.size();
    while (behind > begin && isBlank(text[behind - 1]))
        --behind;
    const std::string digits = text.substr(begin, behind - begin);
    const bool inWords = digits == "inf" || digits == "-inf" || digits == "nan";
    if (digits.empty() || (!inWords && digits.find_first_not_of("0123456789+-.eE") != std::string::npos))
        return false;
    char* end = nullptr;
    const double value = strtod_l(digits.c_str(), &end, plainLocale());
    if (*end != '\0')
        return false;
    *number = value;
    return behind == text.size(); // blanks at the end are an error, but the number is there
}

} // namespace zeltk
