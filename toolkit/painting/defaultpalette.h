// The application's palette.
#ifndef ZELTK_DEFAULTPALETTE_H
#define ZELTK_DEFAULTPALETTE_H

class QPalette;

namespace zeltk
{

// Greys at first.
const QPalette& defaultPalette();
void setDefaultPalette(const QPalette& palette);

} // namespace zeltk

#endif
