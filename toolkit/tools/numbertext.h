// Numbers as text and back, in any base from 2 to 36 and without regard to the locale.
#ifndef ZELTK_NUMBERTEXT_H
#define ZELTK_NUMBERTEXT_H

#include <qglobal.h>

#include <limits>
#include <string>
#include <type_traits>

namespace zeltk
{

// Another base counts as 10.
std::string numberText(Q_LLONG number, int base);
std::string numberText(Q_ULLONG number, int base);
// `format` is e, E, f, F, g or G; another one counts as g. A negative precision means 6 digits,
// and more than 10000 are never written.
std::string numberText(double number, char format, int precision);

// The whole text must be the number; blanks around it are skipped. False if it is none or out of the
// range; the number is 0 then. Base 16 accepts 0x before the digits.
bool parseNumber(const std::string& text, int base, Q_LLONG smallest, Q_LLONG largest, Q_LLONG* number);
bool parseNumber(const std::string& text, int base, Q_ULLONG largest, Q_ULLONG* number);
bool parseNumber(const std::string& text, double* number);

// For the conversions of strings: 0 if the text is no number of the type; `ok`, unless null, tells whether.
template <typename Number>
Number parsed(const std::string& text, int base, bool* ok)
{
    using Limits = std::numeric_limits<Number>;
    std::conditional_t<Limits::is_signed, Q_LLONG, Q_ULLONG> number = 0;
    bool good;
    if constexpr (Limits::is_signed)
        good = parseNumber(text, base, Limits::min(), Limits::max(), &number);
    else
        good = parseNumber(text, base, Limits::max(), &number);
    if (ok)
        *ok = good;
    return static_cast<Number>(number);
}

} // namespace zeltk

#endif
