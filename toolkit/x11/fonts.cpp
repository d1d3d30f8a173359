// Fonts through Xft: finding, measuring, drawing.
// Before xlib.h, which removes macros that this header needs.
#include <X11/Xft/Xft.h>

#include "x11/fonts.h"
#include "x11/xlib.h"

#include <algorithm>
#include <map>
#include <memory>
#include <tuple>
#include <unordered_map>

namespace zeltk
{
namespace x11
{

class Font
{
public:
    XftFont* face;
    int pixelSize;
    mutable std::unordered_map<char16_t, GlyphBox> boxes;
};

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

bool isBoxed(const Font* font, char16_t c)
{
    return c >= 0x20 && !XftCharExists(display(), font->face, c);
}

// The box that stands for a character that no font has.
GlyphBox missingBox(const Font* font)
{
    const int side = font->pixelSize;
    const int height = std::max(font->face->ascent - 2, 1);
    return {1, -height, std::max(side - 2, 1), height, side};
}

// One drawing context is enough: text goes to one drawable for a while.
struct Target {
    XftDraw* draw = nullptr;
    XId drawable = 0;
    bool bitmap = false;
};

Target& target()
{
    static Target t;
    return t;
}

XftDraw* drawOn(XId drawable, bool bitmap)
{
    Target& t = target();
    if (t.draw && t.drawable == drawable && t.bitmap == bitmap)
        return t.draw;
    if (t.draw)
        XftDrawDestroy(t.draw);
    t.draw = bitmap ? XftDrawCreateBitmap(display(), drawable)
                    : XftDrawCreate(display(), drawable, DefaultVisual(display(), screen()),
                                    DefaultColormap(display(), screen()));
    t.drawable = drawable;
    t.bitmap = bitmap;
    return t.draw;
}

XftColor colorOfText(std::uint32_t rgb)
{
    XftColor color;
    color.pixel = 0;
    color.color.red = static_cast<unsigned short>((rgb >> 16 & 0xff) * 0x101);
    color.color.green = static_cast<unsigned short>((rgb >> 8 & 0xff) * 0x101);
    color.color.blue = static_cast<unsigned short>((rgb & 0xff) * 0x101);
    color.color.alpha = 0xffff;
    return color;
}

void setClip(XftDraw* draw, const std::vector<ClipRect>* clip)
{
    if (!clip) {
        XftDrawSetClip(draw, nullptr);
        return;
    }
    std::vector<XRectangle> rects;
    for (const ClipRect& r : *clip)
        rects.push_back({static_cast<short>(r.x), static_cast<short>(r.y),
                         static_cast<unsigned short>(r.width), static_cast<unsigned short>(r.height)});
    XftDrawSetClipRectangles(draw, 0, 0, rects.data(), static_cast<int>(rects.size()));
}

// Each character stands where the widths of those before it, whole pixels all, put it.
void drawGlyphs(XftDraw* draw, const Font* font, const XftColor& color, int x, int y, const char16_t* text,
                size_t length)
{
    std::vector<XftGlyphSpec> glyphs;
    for (size_t i = 0; i < length; ++i) {
        const GlyphBox box = glyphBox(font, text[i]);
        if (isBoxed(font, text[i])) {
            const auto width = static_cast<unsigned>(box.width);
            const auto height = static_cast<unsigned>(box.height);
            XftDrawRect(draw, &color, x + box.x, y + box.y, width, 1);
            XftDrawRect(draw, &color, x + box.x, y - 1, width, 1);
            XftDrawRect(draw, &color, x + box.x, y + box.y, 1, height);
            XftDrawRect(draw, &color, x + box.x + box.width - 1, y + box.y, 1, height);
        } else {
            glyphs.push_back(
                {XftCharIndex(display(), font->face, text[i]), static_cast<short>(x), static_cast<short>(y)});
        }
        x += box.advance;
    }
    if (!glyphs.empty())
        XftDrawGlyphSpec(draw, &color, font->face, glyphs.data(), static_cast<int>(glyphs.size()));
}

} // namespace

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

void drawText(XId drawable, bool bitmap, const Font* font, int x, int y, const char16_t* text, size_t length,
              std::uint32_t color, const std::vector<ClipRect>* clip)
{
    if (!font)
        return;
    XftDraw* draw = drawOn(drawable, bitmap);
    setClip(draw, clip);
    XftColor ink = colorOfText(color);
    if (bitmap)
        ink.color.alpha = color ? 0xffff : 0;
    drawGlyphs(draw, font, ink, x, y, text, length);
}

XId textMask(const Font* font, int width, int height, int x, int y, const char16_t* text, size_t length)
{
    const auto w = static_cast<unsigned>(width);
    const auto h = static_cast<unsigned>(height);
    const Pixmap canvas = XCreatePixmap(display(), rootWindow(), w, h, static_cast<unsigned>(depth()));
    XGCValues values;
    values.foreground = BlackPixel(display(), screen());
    const GC gc = XCreateGC(display(), canvas, GCForeground, &values);
    XFillRectangle(display(), canvas, gc, 0, 0, w, h);
    XFreeGC(display(), gc);
    drawText(canvas, false, font, x, y, text, length, 0xffffff, nullptr);
    XImage* image = XGetImage(display(), canvas, 0, 0, w, h, AllPlanes, ZPixmap);
    forgetDrawable(canvas);
    XFreePixmap(display(), canvas);

    const unsigned rowBytes = (w + 7) / 8;
    std::vector<char> bits(rowBytes * h, 0);
    for (unsigned row = 0; image && row < h; ++row)
        for (unsigned column = 0; column < w; ++column)
            if ((XGetPixel(image, static_cast<int>(column), static_cast<int>(row)) & 0xff) >= 128)
                bits[row * rowBytes + column / 8] |= static_cast<char>(1 << column % 8);
    if (image)
        XDestroyImage(image);
    return XCreateBitmapFromData(display(), rootWindow(), bits.data(), w, h);
}

void forgetDrawable(XId drawable)
{
    Target& t = target();
    if (!t.draw || t.drawable != drawable)
        return;
    XftDrawDestroy(t.draw);
    t.draw = nullptr;
}

} // namespace x11
} // namespace zeltk
