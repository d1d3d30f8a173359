// Colours as the X server knows them.
#ifndef ZELTK_X11_COLORS_H
#define ZELTK_X11_COLORS_H

#include <cstdint>

namespace zeltk
{
namespace x11
{

// The pixel value of a colour 0xRRGGBB on the default visual; the colour itself without connection.
unsigned long pixelOf(std::uint32_t rgb);
// The same for the pixels of pictures, of whose colours a screen may have less.
unsigned long picturePixelOf(std::uint32_t rgb);
// The colour of a pixel value.
std::uint32_t colorOf(unsigned long pixel);
int colorCount();

} // namespace x11
} // namespace zeltk

#endif
