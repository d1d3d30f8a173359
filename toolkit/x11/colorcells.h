// Colours of screens whose pixels are numbers of cells in a table, 256 at most as a rule.
#ifndef ZELTK_X11_COLORCELLS_H
#define ZELTK_X11_COLORCELLS_H

#include <cstdint>

namespace zeltk
{
namespace x11
{

// Whether this is such a screen.
bool hasColorCells();
// The cell with that colour 0xRRGGBB, taken from the free ones if need be; the nearest one when there are
// none left.
unsigned long cellOf(std::uint32_t rgb);
// For pictures, which have more colours than there are cells: one of at most 216 colours, unless the very
// colour has a cell already.
unsigned long pictureCellOf(std::uint32_t rgb);
std::uint32_t colorOfCell(unsigned long pixel);

} // namespace x11
} // namespace zeltk

#endif
