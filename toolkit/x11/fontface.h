// What a font is made of. Only for the sources of this folder, and included before xlib.h, which removes
// macros that Xft's header needs.
#ifndef ZELTK_X11_FONTFACE_H
#define ZELTK_X11_FONTFACE_H

#include <X11/Xft/Xft.h>

#include "x11/fonts.h"

#include <unordered_map>

namespace zeltk
{
namespace x11
{

class Font
{
public:
    XftFont* face;
    // The measures are those of this face, times `scale`: huge letters are measured smaller.
    XftFont* measured;
    double scale;
    int pixelSize;
    mutable std::unordered_map<char16_t, GlyphBox> boxes;
};

// The face that the pattern describes, which owns it from now on. Without a face, null, the pattern is gone.
XftFont* openPattern(FcPattern* pattern);

// Whether the font lacks the character, so that a box is drawn in its place.
bool isBoxed(const Font* font, char16_t c);

} // namespace x11
} // namespace zeltk

#endif
