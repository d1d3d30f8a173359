// Fonts through Xft: finding and measuring.
#ifndef ZELTK_X11_FONTS_H
#define ZELTK_X11_FONTS_H

#include "x11/connection.h"

#include <cstddef>
#include <string>
#include <vector>

namespace zeltk
{
namespace x11
{

struct FontRequest {
    std::vector<std::string> families; // the first one there is
    int pixelSize;
    int weight; // 0-99, from QFont::DemiBold on bold faces are wanted
    bool italic;
    bool antialias;
};

struct GlyphBox {
    int x; // from the pen to the left edge
    int y; // from the base line to the upper edge, negative above it
    int width;
    int height;
    int advance;
};

class Font;

// Fonts are opened once and kept. Needs a connection.
const Font* openFont(const FontRequest& request);

int ascent(const Font* font);
// Rows below that of the base line.
int descent(const Font* font);
int lineHeight(const Font* font);
int maxAdvance(const Font* font);
std::string familyOf(const Font* font);
// Who made it; empty if that is unknown.
std::string foundryOf(const Font* font);
bool isBold(const Font* font);
bool isFixed(const Font* font);

bool hasGlyph(const Font* font, char16_t c);
// Measures are cached; they cost no request.
GlyphBox glyphBox(const Font* font, char16_t c);
int textWidth(const Font* font, const char16_t* text, size_t length);

} // namespace x11
} // namespace zeltk

#endif
