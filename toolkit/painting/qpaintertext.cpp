// QPainter: text.
#include <qbitmap.h>
#include <qpainter.h>

#include "painting/fontdata.h"
#include "painting/painterdata.h"
#include "painting/textengine.h"
#include "tools/unicode.h"
#include "x11/fonts.h"
#include "x11/pixmap.h"

#include <cmath>

using zeltk::PainterData;
using zeltk::TextLayout;
using zeltk::TextMark;
using zeltk::TextRun;
namespace x11 = zeltk::x11;

namespace
{

// Lines with the text: under it, over it, through it.
void drawTextLines(PainterData* d, const QFont& font, int x, int baseline, int width)
{
    const QFontMetrics metrics(font);
    const int thickness = metrics.lineWidth();
    x11::GcKey key = d->baseKey();
    const x11::GcSlot* gc = x11::gcFor(key);
    if (font.underline())
        d->fillDeviceRect(QRect(x, baseline + metrics.underlinePos(), width, thickness), gc);
    if (font.overline())
        d->fillDeviceRect(QRect(x, baseline - metrics.overlinePos(), width, thickness), gc);
    if (font.strikeOut())
        d->fillDeviceRect(QRect(x, baseline - metrics.strikeOutPos(), width, thickness), gc);
}

struct MaskPlace {
    int left;
    int top;
    int width;
    int height;
};

// Where the text's pixels can be.
MaskPlace placeOf(const QFontMetrics& metrics, int x, int y, int width)
{
    const int side = metrics.height();
    return {x - side, y - metrics.ascent() - side / 2, width + 2 * side, 2 * side};
}

// Text whose pixels are all or nothing, for operations that read what they draw upon.
void drawMaskedText(PainterData* d, const TextRun& run)
{
    const MaskPlace place = placeOf(QFontMetrics(d->state.font), run.x, run.baseline, run.width);
    const x11::XId mask =
        x11::textMask(zeltk::faceOf(d->state.font), place.width, place.height, run.x - place.left,
                      run.baseline - place.top, run.text.data(), run.text.size());
    x11::GcKey key = d->baseKey();
    key.fill = x11::FillWithStipple;
    key.pattern = mask;
    key.originX = place.left;
    key.originY = place.top;
    d->fillDeviceRect(QRect(place.left, place.top, place.width, place.height), x11::gcFor(key));
    x11::freePixmap(mask);
}

// Turned or scaled text: each pixel of the device asks which pixel of the upright text it is.
void drawTransformedText(PainterData* d, const TextRun& run)
{
    const MaskPlace place = placeOf(QFontMetrics(d->state.font), run.x, run.baseline, run.width);
    const x11::XId mask =
        x11::textMask(zeltk::faceOf(d->state.font), place.width, place.height, run.x - place.left,
                      run.baseline - place.top, run.text.data(), run.text.size());
    const std::vector<std::uint32_t> bits = x11::readPixels(mask, true, 0, 0, place.width, place.height);
    x11::freePixmap(mask);
    bool invertible = false;
    const QWMatrix back = d->state.world.invert(&invertible);
    if (!invertible || bits.empty())
        return;
    const QRect box = d->state.world.mapRect(QRect(place.left, place.top, place.width, place.height));
    std::vector<x11::Point> points;
    for (int y = box.top(); y <= box.bottom(); ++y)
        for (int x = box.left(); x <= box.right(); ++x) {
            double fx;
            double fy;
            back.map(x + 0.5, y + 0.5, &fx, &fy);
            const int sx = static_cast<int>(std::floor(fx)) - place.left;
            const int sy = static_cast<int>(std::floor(fy)) - place.top;
            if (sx >= 0 && sx < place.width && sy >= 0 && sy < place.height &&
                bits[static_cast<size_t>(sy * place.width + sx)])
                points.push_back({static_cast<short>(x), static_cast<short>(y)});
        }
    if (!points.empty())
        x11::drawPoints(d->drawable, x11::gcFor(d->baseKey()), points);
}

// In the program's coordinates.
void drawRun(PainterData* d, TextRun run)
{
    const bool upright =
        d->transform == zeltk::Transform::None || d->transform == zeltk::Transform::Translation;
    if (!upright) {
        drawTransformedText(d, run);
        return;
    }
    d->map(&run.x, &run.baseline);
    if (d->state.backgroundMode == Qt::OpaqueMode) {
        const QFontMetrics metrics(d->state.font);
        x11::GcKey key = d->baseKey();
        key.foreground = key.background;
        d->fillDeviceRect(QRect(run.x, run.baseline - metrics.ascent(), run.width, metrics.height()),
                          x11::gcFor(key));
    }
    if (d->state.rop == Qt::CopyROP) {
        const QColor& color = d->state.pen.color();
        x11::drawText(d->drawable, d->bitmap, zeltk::faceOf(d->state.font), run.x, run.baseline,
                      run.text.data(), run.text.size(),
                      d->bitmap ? static_cast<std::uint32_t>(d->pixelOf(color)) : color.rgb() & RGB_MASK,
                      d->clip.get());
    } else {
        drawMaskedText(d, run);
    }
    drawTextLines(d, d->state.font, run.x, run.baseline, run.width);
}

void drawMark(PainterData* d, TextMark mark)
{
    const QFontMetrics metrics(d->state.font);
    d->map(&mark.x, &mark.baseline);
    d->fillDeviceRect(QRect(mark.x, mark.baseline + metrics.underlinePos(), mark.width, metrics.lineWidth()),
                      x11::gcFor(d->baseKey()));
}

QString firstOf(const QString& text, int length)
{
    return length < 0 ? text : text.left(static_cast<uint>(length));
}

} // namespace

void QPainter::drawText(int x, int y, const QString& text, int length, TextDirection)
{
    if (!isActive() || !d->hasPen())
        return;
    const QString part = firstOf(text, length);
    if (!part.isEmpty())
        drawRun(d, {zeltk::toUtf16(part), x, y, fontMetrics().width(part)});
}

void QPainter::drawText(int x, int y, const QString& text, int position, int length, TextDirection direction)
{
    drawText(x, y, text.mid(static_cast<uint>(position), static_cast<uint>(length)), -1, direction);
}

void QPainter::drawText(int x, int y, int w, int h, int flags, const QString& text, int length,
                        QRect* boundingRect)
{
    if (!isActive())
        return;
    const QRect rect(x, y, w, h);
    const TextLayout layout =
        zeltk::layoutText(d->state.font, rect, {flags, d->state.tabStops, nullptr}, firstOf(text, length));
    if (boundingRect)
        *boundingRect = layout.bounding;
    if ((flags & DontPrint) || !d->hasPen() || (!(flags & DontClip) && rect.isEmpty()))
        return;
    const bool clips = !(flags & DontClip) && !rect.contains(layout.bounding);
    const bool clipWasOn = d->state.clipOn;
    const QRegion before = d->state.clip;
    if (clips) {
        const QRegion here =
            d->mapsRectsToRects() ? QRegion(d->mapRect(rect)) : d->state.world.mapToRegion(rect);
        setClipRegion(clipWasOn ? before & here : here);
    }
    for (const TextRun& run : layout.runs)
        drawRun(d, run);
    for (const TextMark& mark : layout.marks)
        drawMark(d, mark);
    if (clips) {
        d->state.clip = before;
        setClipping(clipWasOn);
    }
}

QRect QPainter::boundingRect(int x, int y, int w, int h, int flags, const QString& text, int length)
{
    return zeltk::layoutText(d->state.font, QRect(x, y, w, h), {flags, d->state.tabStops, nullptr},
                             firstOf(text, length))
        .bounding;
}
