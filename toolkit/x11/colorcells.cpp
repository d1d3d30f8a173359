// Colours of screens whose pixels are numbers of cells in a table.
#include "x11/colorcells.h"

#include "x11/connection.h"
#include "x11/xlib.h"

#include <algorithm>
#include <unordered_map>
#include <vector>

namespace zeltk
{
namespace x11
{

namespace
{

struct Cells {
    std::unordered_map<std::uint32_t, unsigned long> pixels; // by colour: asked for before
    std::unordered_map<unsigned long, std::uint32_t> colors; // by cell
    bool full = false;
};

Cells& cells()
{
    static Cells all;
    return all;
}

Colormap colormap()
{
    return DefaultColormap(display(), screen());
}

XColor exactly(std::uint32_t rgb)
{
    XColor color = {};
    color.red = static_cast<unsigned short>((rgb >> 16 & 0xff) * 0x101);
    color.green = static_cast<unsigned short>((rgb >> 8 & 0xff) * 0x101);
    color.blue = static_cast<unsigned short>((rgb & 0xff) * 0x101);
    return color;
}

std::uint32_t rgbOf(const XColor& color)
{
    return static_cast<std::uint32_t>(color.red >> 8) << 16 |
           static_cast<std::uint32_t>(color.green >> 8) << 8 | color.blue >> 8;
}

std::vector<XColor> allCells()
{
    std::vector<XColor> table(static_cast<size_t>(DisplayCells(display(), screen())));
    for (size_t i = 0; i < table.size(); ++i)
        table[i].pixel = i;
    XQueryColors(display(), colormap(), table.data(), static_cast<int>(table.size()));
    return table;
}

// All cells belong to somebody: shares the nearest one whose owner allows it.
unsigned long nearestCell(std::uint32_t rgb)
{
    static const std::vector<XColor> table = allCells();
    const auto difference = [](std::uint32_t a, std::uint32_t b, int shift) {
        const long d = static_cast<long>(a >> shift & 0xff) - static_cast<long>(b >> shift & 0xff);
        return d * d;
    };
    const auto distance = [&](const XColor& cell) {
        const std::uint32_t other = rgbOf(cell);
        return difference(rgb, other, 16) + difference(rgb, other, 8) + difference(rgb, other, 0);
    };
    const XColor& best = *std::min_element(table.begin(), table.end(), [&](const XColor& a, const XColor& b) {
        return distance(a) < distance(b);
    });
    XColor shared = best;
    return XAllocColor(display(), colormap(), &shared) ? shared.pixel : best.pixel;
}

} // namespace

bool hasColorCells()
{
    static const bool cellsOnly = DefaultVisual(display(), screen())->red_mask == 0;
    return cellsOnly;
}

unsigned long cellOf(std::uint32_t rgb)
{
    Cells& all = cells();
    const auto known = all.pixels.find(rgb);
    if (known != all.pixels.end())
        return known->second;
    XColor color = exactly(rgb);
    all.full = all.full || !XAllocColor(display(), colormap(), &color);
    const unsigned long pixel = all.full ? nearestCell(rgb) : color.pixel;
    all.pixels[rgb] = pixel;
    all.colors.erase(pixel);
    return pixel;
}

unsigned long pictureCellOf(std::uint32_t rgb)
{
    const auto known = cells().pixels.find(rgb);
    if (known != cells().pixels.end())
        return known->second;
    std::uint32_t coarse = 0;
    for (int shift = 0; shift <= 16; shift += 8) {
        const std::uint32_t steps = ((rgb >> shift & 0xff) * 5 + 127) / 255; // six per colour part
        coarse |= steps * 51 << shift;
    }
    return cellOf(coarse);
}

// Cells that others own change; what was asked for once stays.
std::uint32_t colorOfCell(unsigned long pixel)
{
    std::unordered_map<unsigned long, std::uint32_t>& colors = cells().colors;
    const auto known = colors.find(pixel);
    if (known != colors.end())
        return known->second;
    XColor color = {};
    color.pixel = pixel;
    XQueryColor(display(), colormap(), &color);
    return colors[pixel] = rgbOf(color);
}

} // namespace x11
} // namespace zeltk
