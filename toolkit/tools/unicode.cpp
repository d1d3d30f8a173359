// Conversions between the toolkit's strings and those of the C++ library.
#include "tools/unicode.h"

namespace zeltk
{

namespace
{

const char32_t foreignByte = 0x10fe00;

void appendCodePoint(std::u16string& text, char32_t code)
{
    if (code < 0x10000) {
        text += static_cast<char16_t>(code);
    } else {
        text += static_cast<char16_t>(0xd7c0 + (code >> 10));
        text += static_cast<char16_t>(0xdc00 + (code & 0x3ff));
    }
}

// The length of the UTF-8 sequence at the beginning of the text and its code point; 0 if there is none.
int readSequence(const uchar* text, size_t available, char32_t* code)
{
    static const struct {
        uchar mask, lead;
        int length;
        char32_t smallest;
    } forms[] = {{0x80, 0x00, 1, 0}, {0xe0, 0xc0, 2, 0x80}, {0xf0, 0xe0, 3, 0x800}, {0xf8, 0xf0, 4, 0x10000}};
    for (const auto& form : forms) {
        if ((text[0] & form.mask) != form.lead)
            continue;
        if (static_cast<size_t>(form.length) > available)
            return 0;
        char32_t value = text[0] & static_cast<uchar>(~form.mask);
        for (int i = 1; i < form.length; ++i) {
            if ((text[i] & 0xc0) != 0x80)
                return 0;
            value = (value << 6) | (text[i] & 0x3f);
        }
        if (value < form.smallest || value > 0x10ffff)
            return 0;
        *code = value;
        return form.length;
    }
    return 0;
}

void appendUtf8(std::string& text, char32_t code)
{
    if (code < 0x80) {
        text += static_cast<char>(code);
    } else if (code < 0x800) {
        text += static_cast<char>(0xc0 | (code >> 6));
        text += static_cast<char>(0x80 | (code & 0x3f));
    } else if (code < 0x10000) {
        text += static_cast<char>(0xe0 | (code >> 12));
        text += static_cast<char>(0x80 | ((code >> 6) & 0x3f));
        text += static_cast<char>(0x80 | (code & 0x3f));
    } else {
        text += static_cast<char>(0xf0 | (code >> 18));
        text += static_cast<char>(0x80 | ((code >> 12) & 0x3f));
        text += static_cast<char>(0x80 | ((code >> 6) & 0x3f));
        text += static_cast<char>(0x80 | (code & 0x3f));
    }
}

} // namespace

std::u16string utf16FromUtf8(const char* text, size_t length)
{
    std::u16string result;
    result.reserve(length);
    const uchar* const bytes = reinterpret_cast<const uchar*>(text);
    for (size_t i = 0; i < length;) {
        char32_t code = 0;
        const int used = readSequence(bytes + i, length - i, &code);
        appendCodePoint(result, used ? code : foreignByte + bytes[i]);
        i += used ? static_cast<size_t>(used) : 1;
    }
    return result;
}

std::string utf8FromUtf16(const char16_t* text, size_t length)
{
    std::string result;
    result.reserve(length);
    for (size_t i = 0; i < length; ++i) {
        char32_t code = text[i];
        const bool pair = code >= 0xd800 && code < 0xdc00 && i + 1 < length && text[i + 1] >= 0xdc00 &&
                          text[i + 1] < 0xe000;
        if (pair)
            code = 0x10000 + ((code - 0xd800) << 10) + (text[++i] - 0xdc00u);
        if (code >= foreignByte && code < foreignByte + 0x100)
            result += static_cast<char>(code - foreignByte);
        else
            appendUtf8(result, code);
    }
    return result;
}

std::string toUtf8(const QString& text)
{
    return utf8FromUtf16(reinterpret_cast<const char16_t*>(text.unicode()), text.length());
}

std::u16string toUtf16(const QString& text)
{
    const char16_t* const code = reinterpret_cast<const char16_t*>(text.unicode());
    return text.isEmpty() ? std::u16string() : std::u16string(code, text.length());
}

QString fromUtf16(const std::u16string& text)
{
    return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<uint>(text.size()));
}

QString fromUtf8(const std::string& text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

} // namespace zeltk
