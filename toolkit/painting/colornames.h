// The colours of the X11 colour list.
#ifndef ZELTK_COLORNAMES_H
#define ZELTK_COLORNAMES_H

#include <cstdint>
#include <string>

namespace zeltk
{

// Blanks and upper case do not matter. The colour becomes 0xRRGGBB; false if there is none of that name.
bool colorByName(const std::string& name, std::uint32_t* rgb);

} // namespace zeltk

#endif
