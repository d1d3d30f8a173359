// Text on drawables.
#include "x11/colorcells.h"
#include "x11/colors.h"
#include "x11/draw.h"
#include "x11/pixmap.h"

#include "x11/fontface.h"
#include "x11/textdraw.h"
#include "x11/xlib.h"
#include "x11/xrectangles.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace zeltk
{
namespace x11
{

namespace
{

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

void dropTarget()
{
    Target& t = target();
    if (t.draw)
        XftDrawDestroy(t.draw);
    t.draw = nullptr;
}

XftDraw* drawOn(XId drawable, bool bitmap)
{
    Target& t = target();
    if (t.draw && t.drawable == drawable && t.bitmap == bitmap)
        return t.draw;
    dropTarget();
    t.draw = bitmap ? XftDrawCreateBitmap(display(), drawable)
                    : XftDrawCreate(display(), drawable, DefaultVisual(display(), screen()),
                                    DefaultColormap(display(), screen()));
    t.drawable = drawable;
    t.bitmap = bitmap;
    return t.draw;
}

XftColor inkOf(std::uint32_t rgb, bool bitmap)
{
    XftColor color;
    color.pixel = bitmap ? rgb & 1 : pixelOf(rgb);
    color.color.red = static_cast<unsigned short>((rgb >> 16 & 0xff) * 0x101);
    color.color.green = static_cast<unsigned short>((rgb >> 8 & 0xff) * 0x101);
    color.color.blue = static_cast<unsigned short>((rgb & 0xff) * 0x101);
    color.color.alpha = bitmap && !rgb ? 0 : 0xffff;
    return color;
}

void setClip(XftDraw* draw, const std::vector<Box>* clip)
{
    if (!clip) {
        XftDrawSetClip(draw, nullptr);
        return;
    }
    const std::vector<XRectangle> rects = xRectangles(*clip);
    XftDrawSetClipRectangles(draw, 0, 0, rects.data(), static_cast<int>(rects.size()));
}

XftFont* openTurned(XftFont* upright, const LetterMatrix& matrix)
{
    FcPattern* pattern = FcPatternDuplicate(upright->pattern);
    FcMatrix turned; // fontconfig's y goes up
    turned.xx = matrix.xx;
    turned.xy = -matrix.xy;
    turned.yx = -matrix.yx;
    turned.yy = matrix.yy;
    FcMatrix* own = nullptr; // slants an upright face
    if (FcPatternGetMatrix(pattern, FC_MATRIX, 0, &own) == FcResultMatch) {
        FcMatrix both;
        FcMatrixMultiply(&both, &turned, own);
        turned = both;
    }
    FcPatternDel(pattern, FC_MATRIX);
    FcPatternAddMatrix(pattern, FC_MATRIX, &turned);
    return openPattern(pattern);
}

// The faces for turned letters that were used last. Programs turn by few angles.
XftFont* faceFor(const Font* font, const LetterMatrix& matrix)
{
    if (matrix == LetterMatrix())
        return font->face;
    struct Turned {
        const Font* font;
        LetterMatrix matrix;
        XftFont* face;
    };
    static std::vector<Turned> kept;
    constexpr size_t most = 16;
    for (const Turned& turned : kept)
        if (turned.font == font && turned.matrix == matrix)
            return turned.face;
    XftFont* face = openTurned(font->face, matrix);
    if (!face)
        return font->face;
    if (kept.size() == most) {
        XftFontClose(display(), kept.front().face);
        kept.erase(kept.begin());
    }
    kept.push_back({font, matrix, face});
    return face;
}

void drawEdge(XftDraw* draw, const XftColor& ink, int x1, int y1, int x2, int y2)
{
    const int steps = std::max(std::abs(x2 - x1), std::abs(y2 - y1));
    for (int i = 0; i <= steps; ++i)
        XftDrawRect(draw, &ink, x1 + (x2 - x1) * i / std::max(steps, 1),
                    y1 + (y2 - y1) * i / std::max(steps, 1), 1, 1);
}

// The box in the place of a character that no font has.
void drawBox(XftDraw* draw, const XftColor& ink, const TextPiece& text, const PlacedGlyph& glyph)
{
    const GlyphBox box = glyphBox(text.font, glyph.c);
    const int left = box.x;
    const int right = box.x + box.width - 1;
    const int bottom = box.y + box.height - 1;
    const int upright[4][2] = {{left, box.y}, {right, box.y}, {right, bottom}, {left, bottom}};
    int corners[4][2];
    for (int i = 0; i < 4; ++i) {
        const int x = upright[i][0];
        const int y = upright[i][1];
        corners[i][0] = glyph.x + static_cast<int>(std::lround(text.matrix.xx * x + text.matrix.xy * y));
        corners[i][1] = glyph.y + static_cast<int>(std::lround(text.matrix.yx * x + text.matrix.yy * y));
    }
    for (int i = 0; i < 4; ++i) {
        const int* from = corners[i];
        const int* to = corners[(i + 1) % 4];
        drawEdge(draw, ink, from[0], from[1], to[0], to[1]);
    }
}

// Beyond the 16 bits of the wire.
bool isOut(const PlacedGlyph& glyph)
{
    return glyph.x != static_cast<short>(glyph.x) || glyph.y != static_cast<short>(glyph.y);
}

// How many letters, from that one on, the server draws at once: neither too many for a request nor too far
// from each other for a picture that holds them all.
template <class Glyph>
size_t oneRequest(const std::vector<Glyph>& specs, size_t first)
{
    constexpr size_t most = 4096;
    constexpr int farthest = 8192;
    size_t end = first + 1;
    while (end < specs.size() && end - first < most && std::abs(specs[end].x - specs[first].x) < farthest &&
           std::abs(specs[end].y - specs[first].y) < farthest)
        ++end;
    return end - first;
}

// What all glyphs together take up, boxes included.
Box placeOf(const TextPiece& text, XftFont* face)
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    for (const PlacedGlyph& glyph : text.glyphs) {
        const FT_UInt index = XftCharIndex(display(), face, glyph.c);
        XGlyphInfo info;
        XftGlyphExtents(display(), face, &index, 1, &info);
        const int reach = isBoxed(text.font, glyph.c) ? 2 * text.font->pixelSize : 0;
        const bool first = &glyph == text.glyphs.data();
        const int x1 = glyph.x - std::max<int>(info.x, reach);
        const int y1 = glyph.y - std::max<int>(info.y, reach);
        const int x2 = glyph.x + std::max<int>(info.width - info.x, reach);
        const int y2 = glyph.y + std::max<int>(info.height - info.y, reach);
        left = first ? x1 : std::min(left, x1);
        top = first ? y1 : std::min(top, y1);
        right = first ? x2 : std::max(right, x2);
        bottom = first ? y2 : std::max(bottom, y2);
    }
    return {left, top, right - left, bottom - top};
}

void fillThroughMask(XId drawable, GcKey key, const TextPiece& text, XftFont* face)
{
    const Box place = placeOf(text, face);
    if (place.width <= 0 || place.height <= 0)
        return;
    const XId mask = textMask(text, place);
    key.pattern = mask;
    key.originX = place.x;
    key.originY = place.y;
    fillRectangle(drawable, gcFor(key), place.x, place.y, place.width, place.height);
    freePixmap(mask);
}

// Without shades, for screens where these cannot be mixed.
void drawThroughMasks(XId drawable, const TextPiece& text, XftFont* face, std::uint32_t color,
                      const std::vector<Box>* clip)
{
    GcKey key;
    key.foreground = pixelOf(color);
    key.fill = FillWithStipple;
    if (clip)
        key.clip = std::make_shared<const std::vector<Box>>(*clip);
    std::vector<PlacedGlyph> glyphs = text.glyphs;
    glyphs.erase(std::remove_if(glyphs.begin(), glyphs.end(), isOut), glyphs.end());
    for (size_t i = 0, step; i < glyphs.size(); i += step) {
        step = oneRequest(glyphs, i);
        const auto begin = glyphs.begin() + static_cast<std::ptrdiff_t>(i);
        fillThroughMask(drawable, key,
                        {text.font, text.matrix, {begin, begin + static_cast<std::ptrdiff_t>(step)}}, face);
    }
}

// A new bitmap with the pixels that are lighter than half.
XId bitmapOfLight(XId canvas, int width, int height)
{
    const std::vector<std::uint32_t> pixels = readPixels(canvas, false, 0, 0, width, height);
    const size_t rowBytes = (static_cast<size_t>(width) + 7) / 8;
    std::vector<unsigned char> bits(rowBytes * static_cast<size_t>(height), 0);
    for (size_t i = 0; i < pixels.size(); ++i) {
        const size_t row = i / static_cast<size_t>(width);
        const size_t column = i % static_cast<size_t>(width);
        if ((pixels[i] & 0xff) >= 128)
            bits[row * rowBytes + column / 8] |= static_cast<unsigned char>(1 << column % 8);
    }
    return createBitmap(bits.data(), width, height);
}

} // namespace

bool LetterMatrix::operator==(const LetterMatrix& other) const
{
    return xx == other.xx && xy == other.xy && yx == other.yx && yy == other.yy;
}

void drawText(XId drawable, bool bitmap, const TextPiece& text, std::uint32_t color,
              const std::vector<Box>* clip)
{
    if (!text.font)
        return;
    XftFont* face = faceFor(text.font, text.matrix);
    if (!bitmap && hasColorCells()) {
        drawThroughMasks(drawable, text, face, color, clip);
        return;
    }
    XftDraw* draw = drawOn(drawable, bitmap);
    setClip(draw, clip);
    const XftColor ink = inkOf(color, bitmap);
    std::vector<XftGlyphSpec> specs;
    for (const PlacedGlyph& glyph : text.glyphs) {
        if (isOut(glyph))
            continue;
        if (isBoxed(text.font, glyph.c))
            drawBox(draw, ink, text, glyph);
        else
            specs.push_back({XftCharIndex(display(), face, glyph.c), static_cast<short>(glyph.x),
                             static_cast<short>(glyph.y)});
    }
    // Turned letters may overlap; one by one they are laid over each other instead of adding up.
    const bool oneByOne = face != text.font->face;
    for (size_t i = 0, step; i < specs.size(); i += step) {
        step = oneByOne ? 1 : oneRequest(specs, i);
        XftDrawGlyphSpec(draw, &ink, face, specs.data() + i, static_cast<int>(step));
    }
}

XId textMask(const TextPiece& text, const Box& place)
{
    TextPiece moved = text;
    for (PlacedGlyph& glyph : moved.glyphs) {
        glyph.x -= place.x;
        glyph.y -= place.y;
    }
    if (hasColorCells()) {
        const XId mask = createPixmap(place.width, place.height, 1);
        GcKey clear;
        clear.bitmap = true;
        fillRectangle(mask, gcFor(clear), 0, 0, place.width, place.height);
        drawText(mask, true, moved, 1, nullptr);
        return mask;
    }
    const XId canvas = createPixmap(place.width, place.height, depth());
    GcKey black;
    black.foreground = pixelOf(0x000000);
    fillRectangle(canvas, gcFor(black), 0, 0, place.width, place.height);
    drawText(canvas, false, moved, 0xffffff, nullptr);
    const XId mask = bitmapOfLight(canvas, place.width, place.height);
    freePixmap(canvas);
    return mask;
}

void forgetDrawable(XId drawable)
{
    if (target().drawable == drawable)
        dropTarget();
}

} // namespace x11
} // namespace zeltk
