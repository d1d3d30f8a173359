// Fonts through Xft: finding and measuring.
#include "x11/fontface.h"
#include "x11/xlib.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>
#include <memory>
#include <tuple>

namespace zeltk
{
namespace x11
{

XftFont* openPattern(FcPattern* pattern)
{
    XftFont* face = XftFontOpenPattern(display(), pattern);
    if (!face)
        FcPatternDestroy(pattern);
    return face;
}

namespace
{

int fontconfigWeight(int weight)
{
    if (weight < 63)
        return FC_WEIGHT_MEDIUM;
    if (weight < 69)
        return FC_WEIGHT_DEMIBOLD;
    return weight < 81 ? FC_WEIGHT_BOLD : FC_WEIGHT_BLACK;
}

// Faces above this size are not measured.
constexpr int largestMeasured = 256;

// No text is larger, whatever is asked for: its glyphs would no longer fit into a request to the server.
constexpr int largestFace = 3000;

FcPattern* patternOf(const FontRequest& request, int pixelSize)
{
    FcPattern* pattern = FcPatternCreate();
    for (const std::string& family : request.families)
        if (!family.empty())
            FcPatternAddString(pattern, FC_FAMILY, reinterpret_cast<const FcChar8*>(family.c_str()));
    FcPatternAddInteger(pattern, FC_WEIGHT, fontconfigWeight(request.weight));
    FcPatternAddInteger(pattern, FC_SLANT, request.italic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
    FcPatternAddDouble(pattern, FC_PIXEL_SIZE, pixelSize * exactDpiY() / dpiY());
    if (!request.antialias)
        FcPatternAddBool(pattern, FC_ANTIALIAS, FcFalse);
    return pattern;
}

using Key = std::tuple<std::vector<std::string>, int, int, bool, bool>;

// The size counts pixels at the rounded resolution of the screen; the face gets its share of the exact one.
XftFont* openFace(const FontRequest& request, int pixelSize)
{
    FcPattern* pattern = patternOf(request, pixelSize);
    FcResult result;
    FcPattern* match = XftFontMatch(display(), screen(), pattern, &result);
    FcPatternDestroy(pattern);
    return match ? openPattern(match) : nullptr;
}

std::string propertyOf(const Font* font, const char* property)
{
    FcChar8* text = nullptr;
    if (!font || FcPatternGetString(font->face->pattern, property, 0, &text) != FcResultMatch)
        return std::string();
    return reinterpret_cast<const char*>(text);
}

int scaled(const Font* font, int measure)
{
    return static_cast<int>(std::lround(measure * font->scale));
}

// The box that stands for a character that no font has.
GlyphBox missingBox(const Font* font)
{
    const int side = std::max(font->pixelSize - 2, 1);
    return {0, -side, side, side, font->pixelSize};
}

// Without any font text stays invisible, but it has measures, so that windows still work.
void reportNoFont()
{
    static bool reported = false;
    if (!reported)
        std::fprintf(stderr, "fontconfig finds no usable font, so no text can be shown.\n");
    reported = true;
}

} // namespace

bool isBoxed(const Font* font, char16_t c)
{
    return c >= 0x20 && !XftCharExists(display(), font->face, c);
}

const Font* openFont(const FontRequest& request)
{
    static std::map<Key, std::unique_ptr<Font>> fonts;
    const int pixelSize = std::min(request.pixelSize, largestFace);
    const Key key(request.families, pixelSize, fontconfigWeight(request.weight), request.italic,
                  request.antialias);
    std::unique_ptr<Font>& font = fonts[key];
    if (font)
        return font.get();
    XftFont* face = openFace(request, pixelSize);
    if (!face) {
        reportNoFont();
        return nullptr;
    }
    font.reset(new Font);
    font->face = font->measured = face;
    font->scale = 1.0;
    font->pixelSize = pixelSize;
    if (pixelSize > largestMeasured) {
        font->measured = openFace(request, largestMeasured);
        font->scale = static_cast<double>(pixelSize) / largestMeasured;
    }
    return font.get();
}

int ascent(const Font* font)
{
    return font ? scaled(font, font->measured->ascent) : 10;
}

int descent(const Font* font)
{
    return font ? scaled(font, font->measured->descent - 1) : 2;
}

int lineHeight(const Font* font)
{
    return font ? scaled(font, font->measured->height) : 13;
}

int maxAdvance(const Font* font)
{
    return font ? scaled(font, font->measured->max_advance_width) : 10;
}

std::string familyOf(const Font* font)
{
    return propertyOf(font, FC_FAMILY);
}

std::string foundryOf(const Font* font)
{
    const std::string foundry = propertyOf(font, FC_FOUNDRY);
    return foundry == "unknown" ? std::string() : foundry;
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
        const FT_UInt glyph = XftCharIndex(display(), font->measured, c);
        XGlyphInfo info;
        XftGlyphExtents(display(), font->measured, &glyph, 1, &info);
        box = {scaled(font, -info.x), scaled(font, -info.y), scaled(font, info.width),
               scaled(font, info.height), scaled(font, info.xOff)};
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
