// Colours as the X server knows them.
#include "x11/colors.h"

#include "x11/colorcells.h"
#include "x11/connection.h"
#include "x11/xlib.h"

namespace zeltk
{
namespace x11
{

namespace
{

// The place of one colour part in a pixel value.
struct Part {
    int shift;
    int bits;
};

Part partOf(unsigned long mask)
{
    Part part = {0, 0};
    while (mask && !(mask & 1)) {
        mask >>= 1;
        ++part.shift;
    }
    for (; mask & 1; mask >>= 1)
        ++part.bits;
    return part;
}

struct Visual {
    Part red;
    Part green;
    Part blue;
};

const Visual& visual()
{
    static const Visual result = [] {
        const ::Visual* v = DefaultVisual(display(), screen());
        return Visual{partOf(v->red_mask), partOf(v->green_mask), partOf(v->blue_mask)};
    }();
    return result;
}

unsigned long toPixel(unsigned value, const Part& part)
{
    const unsigned long scaled =
        part.bits >= 8 ? static_cast<unsigned long>(value) << (part.bits - 8) : value >> (8 - part.bits);
    return scaled << part.shift;
}

std::uint32_t fromPixel(unsigned long pixel, const Part& part)
{
    const unsigned long largest = (1UL << part.bits) - 1;
    const unsigned long value = pixel >> part.shift & largest;
    return static_cast<std::uint32_t>(largest ? value * 255 / largest : 0);
}

} // namespace

unsigned long pixelOf(std::uint32_t rgb)
{
    if (!connected())
        return rgb & 0xffffff;
    if (hasColorCells())
        return cellOf(rgb & 0xffffff);
    return toPixel(rgb >> 16 & 0xff, visual().red) | toPixel(rgb >> 8 & 0xff, visual().green) |
           toPixel(rgb & 0xff, visual().blue);
}

unsigned long picturePixelOf(std::uint32_t rgb)
{
    return hasColorCells() ? pictureCellOf(rgb & 0xffffff) : pixelOf(rgb);
}

std::uint32_t colorOf(unsigned long pixel)
{
    if (hasColorCells())
        return colorOfCell(pixel);
    return fromPixel(pixel, visual().red) << 16 | fromPixel(pixel, visual().green) << 8 |
           fromPixel(pixel, visual().blue);
}

int colorCount()
{
    return connected() ? 1 << (depth() < 30 ? depth() : 30) : -1;
}

} // namespace x11
} // namespace zeltk
