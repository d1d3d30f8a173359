// Texts between UTF-8 and Latin-1, the older form of the X protocol.
#ifndef ZELTK_X11_LATIN1_H
#define ZELTK_X11_LATIN1_H

#include <string>

namespace zeltk
{
namespace x11
{

// Characters that Latin-1 lacks become question marks.
std::string latin1FromUtf8(const std::string& utf8);
std::string utf8FromLatin1(const std::string& latin1);

} // namespace x11
} // namespace zeltk

#endif
