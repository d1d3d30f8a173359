// Texts between UTF-8 and Latin-1, the older form of the X protocol.
#include "x11/latin1.h"

namespace zeltk
{
namespace x11
{

std::string latin1FromUtf8(const std::string& utf8)
{
    std::string result;
    for (size_t i = 0; i < utf8.size(); ++i) {
        const unsigned char c = static_cast<unsigned char>(utf8[i]);
        const unsigned char next = i + 1 < utf8.size() ? static_cast<unsigned char>(utf8[i + 1]) : 0;
        if (c < 0x80) {
            result += static_cast<char>(c);
        } else if (c == 0xc2 || c == 0xc3) {
            result += static_cast<char>((c & 3) << 6 | (next & 0x3f));
            ++i;
        } else if (c >= 0xc0) {
            result += '?'; // the bytes that follow belong to it and add nothing
        }
    }
    return result;
}

std::string utf8FromLatin1(const std::string& latin1)
{
    std::string result;
    for (const char letter : latin1) {
        const unsigned char c = static_cast<unsigned char>(letter);
        if (c < 0x80) {
            result += letter;
        } else {
            result += static_cast<char>(0xc0 | c >> 6);
            result += static_cast<char>(0x80 | (c & 0x3f));
        }
    }
    return result;
}

} // namespace x11
} // namespace zeltk
