// Text on drawables.
#ifndef ZELTK_X11_TEXTDRAW_H
#define ZELTK_X11_TEXTDRAW_H

#include "x11/box.h"
#include "x11/fonts.h"

#include <cstdint>

namespace zeltk
{
namespace x11
{

struct PlacedGlyph {
    char16_t c;
    int x; // of the pen, in the drawable
    int y;
};

// How letters are turned and scaled: (x, y) of an upright letter, y downwards, becomes
// (xx * x + xy * y, yx * x + yy * y).
struct LetterMatrix {
    double xx = 1.0;
    double xy = 0.0;
    double yx = 0.0;
    double yy = 1.0;

    bool operator==(const LetterMatrix& other) const;
};

struct TextPiece {
    const Font* font;
    LetterMatrix matrix;
    std::vector<PlacedGlyph> glyphs;
};

// The colour is 0xRRGGBB. `bitmap`: the drawable has depth 1, and the colour is 0 or 1. A null clip means all
// of the drawable.
void drawText(XId drawable, bool bitmap, const TextPiece& text, std::uint32_t color,
              const std::vector<Box>* clip);
// A new bitmap of that place with the pixels that the text covers by half or more; the caller frees it.
XId textMask(const TextPiece& text, const Box& place);
// Must be called before a drawable is freed.
void forgetDrawable(XId drawable);

} // namespace x11
} // namespace zeltk

#endif
