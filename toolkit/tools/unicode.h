// Conversions between the toolkit's strings and those of the C++ library.
#ifndef ZELTK_UNICODE_H
#define ZELTK_UNICODE_H

#include <qstring.h>

#include <string>

namespace zeltk
{

// UTF-8 both ways. A byte that is no UTF-8 becomes a character of its own in the private planes (U+10FE00
// and the byte), which turns back into the same byte, so that nothing is lost.
std::u16string utf16FromUtf8(const char* text, size_t length);
std::string utf8FromUtf16(const char16_t* text, size_t length);

std::string toUtf8(const QString& text);
std::u16string toUtf16(const QString& text);
QString fromUtf16(const std::u16string& text);
QString fromUtf8(const std::string& text);

} // namespace zeltk

#endif
