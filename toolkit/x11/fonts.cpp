// Fonts through Xft: finding and measuring.
#include "x11/fontface.h"
#include "x11/xlib.h"

#include <algorithm>
#include <map>
#include <memory>
#include <tuple>

namespace zeltk
{
namespace x11
{

namespace
{

int fontconfigWeight(int weight)
{
    if (weight < 57)
        return FC_WEIGHT_MEDIUM;
    if (weight < 69)
        return FC_WEIGHT_DEMIBOLD;
    return weight < 81 ? FC_WEIGHT_BOLD : FC_WEIGHT_BLACK;
}

FcPattern* patternOf(const FontRequest& request)
{
    FcPattern* pattern = FcPatternCreate();
    for (const std::string& family : request.families)
        if (!family.empty())
            FcPatternAddString(pattern, FC_FAMILY, reinterpret_cast<const FcChar8*>(family.c_str()));
    FcPatternAddInteger(pattern, FC_WEIGHT, fontconfigWeight(request.weight));
    FcPatternAddInteger(pattern, FC_SLANT, request.italic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
    FcPatternAddDouble(pattern, FC_PIXEL_SIZE, request.pixelSize);
    if (!request.antialias)
        FcPatternAddBool(pattern, FC_ANTIALIAS, FcFalse);
    return pattern;
}

using Key = std::tuple<std::vector<std::string>, int, int, bool, bool>;

// The box that stands for a character that no font has.
GlyphBox missingBox(const Font* font)
{
    const int side = font->pixelSize;
    const int height = std::max(font->face->ascent - 2, 1);
    return {1, -height, std::max(side - 2, 1), height, side};
}

} // namespace

bool isBoxed(const Font* font, char16_t c)
{
    return c >= 0x20 && !XftCharExists(display(), font->face, c);
}

const Font* openFont(const FontRequest& request)
{
    static std::map<Key, std::unique_ptr<Font>> fonts;
    const Key key(request.families, request.pixelSize, fontconfigWeight(request.weight), request.italic,
                  request.antialias);
    std::unique_ptr<Font>& font = fonts[key];
    if (font)
        return font.get();
    FcPattern* pattern = patternOf(request);
    FcResult result;
    FcPattern* match = XftFontMatch(display(), screen(), pattern, &result);
    FcPatternDestroy(pattern);
    XftFont* face = match ? XftFontOpenPattern(display(), match) : nullptr;
    if (!face) // no font at all: text stays invisible, but it has measures
        return nullptr;
    font.reset(new Font);
    font->face = face;
    font->pixelSize = request.pixelSize;
    return font.get();
}

int ascent(const Font* font)
{
    return font ? font->face->ascent : 10;
}

int descent(const Font* font)
{
    return font ? font->face->descent : 3;
}

int lineHeight(const Font* font)
{
    return font ? font->face->height : 13;
}

int maxAdvance(const Font* font)
{
    return font ? font->face->max_advance_width : 10;
}

std::string familyOf(const Font* font)
{
    FcChar8* family = nullptr;
    if (!font || FcPatternGetString(font->face->pattern, FC_FAMILY, 0, &family) != FcResultMatch)
        return std::string();
    return reinterpret_cast<const char*>(family);
}

bool isBold(const Font* font)
{
    int weight = 0;
    return font && FcPatternGetInteger(font->face->pattern, FC_WEIGHT, 0, &weight) == FcResultMatch &&
           weight >= FC_WEIGHT_DEMIBOLD;
}

bool isFixed(const Font* font)
{
    int spacing = FC_PROPORTIONAL;
    return font && FcPatternGetInteger(font->face->pattern, FC_SPACING, 0, &spacing) == FcResultMatch &&
           spacing >= FC_MONO;
}

bool hasGlyph(const Font* font, char16_t c)
{
    return font && XftCharExists(display(), font->face, c);
}

GlyphBox glyphBox(const Font* font, char16_t c)
{
    if (!font)
        return {0, -10, 6, 10, 8};
    const auto found = font->boxes.find(c);
    if (found != font->boxes.end())
        return found->second;
    GlyphBox box = missingBox(font);
    if (!isBoxed(font, c)) {
        const FT_UInt glyph = XftCharIndex(display(), font->face, c);
        XGlyphInfo info;
        XftGlyphExtents(display(), font->face, &glyph, 1, &info);
        box = {-info.x, -info.y, info.width, info.height, info.xOff};
    }
    font->boxes[c] = box;
    return box;
}

int textWidth(const Font* font, const char16_t* text, size_t length)
{
    int width = 0;
    for (size_t i = 0; i < length; ++i)
        width += glyphBox(font, text[i]).advance;
    return width;
}

} // namespace x11
} // namespace zeltk
