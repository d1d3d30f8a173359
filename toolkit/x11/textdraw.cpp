// Text on drawables.
#include "x11/fontface.h"
#include "x11/textdraw.h"
#include "x11/xlib.h"

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
    color.pixel = 0;
    color.color.red = static_cast<unsigned short>((rgb >> 16 & 0xff) * 0x101);
    color.color.green = static_cast<unsigned short>((rgb >> 8 & 0xff) * 0x101);
    color.color.blue = static_cast<unsigned short>((rgb & 0xff) * 0x101);
    color.color.alpha = bitmap && !rgb ? 0 : 0xffff;
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
    return XftFontOpenPattern(display(), pattern);
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

// How many letters, from that one on, the server draws at once: neither too many for a request nor too far
// from each other for a picture that holds them all.
size_t oneRequest(const std::vector<XftGlyphSpec>& specs, size_t first)
{
    constexpr size_t most = 4096;
    constexpr int farthest = 8192;
    size_t end = first + 1;
    while (end < specs.size() && end - first < most && std::abs(specs[end].x - specs[first].x) < farthest &&
           std::abs(specs[end].y - specs[first].y) < farthest)
        ++end;
    return end - first;
}

} // namespace

bool LetterMatrix::operator==(const LetterMatrix& other) const
{
    return xx == other.xx && xy == other.xy && yx == other.yx && yy == other.yy;
}

void drawText(XId drawable, bool bitmap, const TextPiece& text, std::uint32_t color,
              const std::vector<ClipRect>* clip)
{
    if (!text.font)
        return;
    XftDraw* draw = drawOn(drawable, bitmap);
    setClip(draw, clip);
    const XftColor ink = inkOf(color, bitmap);
    const auto isOut = [](const PlacedGlyph& glyph) {
        return glyph.x != static_cast<short>(glyph.x) || glyph.y != static_cast<short>(glyph.y);
    };
    XftFont* face = faceFor(text.font, text.matrix);
    std::vector<XftGlyphSpec> specs;
    for (const PlacedGlyph& glyph : text.glyphs) {
        if (isOut(glyph)) // of the 16 bits of the wire
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

XId textMask(const TextPiece& text, const ClipRect& place)
{
    const auto w = static_cast<unsigned>(place.width);
    const auto h = static_cast<unsigned>(place.height);
    const Pixmap canvas = XCreatePixmap(display(), rootWindow(), w, h, static_cast<unsigned>(depth()));
    XGCValues values;
    values.foreground = BlackPixel(display(), screen());
    const GC gc = XCreateGC(display(), canvas, GCForeground, &values);
    XFillRectangle(display(), canvas, gc, 0, 0, w, h);
    XFreeGC(display(), gc);
    TextPiece moved = text;
    for (PlacedGlyph& glyph : moved.glyphs) {
        glyph.x -= place.x;
        glyph.y -= place.y;
    }
    drawText(canvas, false, moved, 0xffffff, nullptr);
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
    if (target().drawable == drawable)
        dropTarget();
}

} // namespace x11
} // namespace zeltk
