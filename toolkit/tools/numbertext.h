// Numbers as text and back, in any base from 2 to 36 and without regard to the locale.
#ifndef ZELTK_NUMBERTEXT_H
#define ZELTK_NUMBERTEXT_H

#include <qglobal.h>

#include <string>

namespace zeltk
{

std::string numberText(Q_LLONG number, int base);
std::string numberText(Q_ULLONG number, int base);
// `format` is e, E, f, g or G; a negative precision means 6 digits.
std::string numberText(double number, char format, int precision);

// The whole text must be the number; blanks around it are skipped. False if it is none or out of the
// range; the number is 0 then. Base 16 accepts 0x before the digits.
bool parseNumber(const std::string& text, int base, Q_LLONG smallest, Q_LLONG largest, Q_LLONG* number);
bool parseNumber(const std::string& text, int base, Q_ULLONG largest, Q_ULLONG* number);
bool parseNumber(const std::string& text, double* number);

} // namespace zeltk

#endif
