// QPainter: text.
#include <qbitmap.h>
#include <qpainter.h>

#include "painting/fontdata.h"
#include "painting/painterdata.h"
#include "painting/textengine.h"
#include "tools/unicode.h"
#include "x11/pixmap.h"
#include "x11/textdraw.h"

#include <cmath>

using zeltk::PainterData;
using zeltk::TextLayout;
using zeltk::TextMark;
using zeltk::TextRun;
namespace x11 = zeltk::x11;

namespace
{

// Lines with the text: under it, over it, through it.
void drawTextLines(const PainterData* d, const TextRun& run)
{
    const QFont& font = d->state.font;
    const QFontMetrics metrics(font);
    const auto line = [&](int y) {
        d->fillMappedRect(QRect(run.x, y, run.width, metrics.lineWidth()), x11::gcFor(d->baseKey()));
    };
    if (font.underline())
        line(run.baseline + metrics.underlinePos());
    if (font.overline())
        line(run.baseline - metrics.overlinePos());
    if (font.strikeOut())
        line(run.baseline - metrics.strikeOutPos());
}

// Where the run's pixels can be, in the program's coordinates.
QRect reachOf(const QFontMetrics& metrics, const TextRun& run)
{
    const int side = metrics.height();
    return QRect(run.x - side, run.baseline - metrics.ascent() - side / 2, run.width + 2 * side, 2 * side);
}

// Each letter stands where the widths of those before it, whole pixels all, put it. Letters of turned text go
// to the nearest pixel; a half goes up.
x11::TextPiece pieceOf(const PainterData* d, const TextRun& run)
{
    x11::TextPiece piece = {zeltk::faceOf(d->state.font), x11::LetterMatrix(), {}};
    if (d->transform != zeltk::Transform::None && d->transform != zeltk::Transform::Translation) {
        piece.matrix.xx = d->matrix.m11();
        piece.matrix.xy = d->matrix.m21();
        piece.matrix.yx = d->matrix.m12();
        piece.matrix.yy = d->matrix.m22();
    }
    int pen = run.x;
    for (const char16_t c : run.text) {
        double x;
        double y;
        d->matrix.map(static_cast<double>(pen), static_cast<double>(run.baseline), &x, &y);
        piece.glyphs.push_back({c, qRound(x), static_cast<int>(std::ceil(y - 0.5))});
        pen += x11::glyphBox(piece.font, c).advance;
    }
    return piece;
}

// Text whose pixels are all or nothing, for operations that read what they draw upon. The mask is no larger
// than the device: the server has no room for that of a long text.
void drawMaskedText(const PainterData* d, const TextRun& run)
{
    const QRect reach = d->mapRect(reachOf(QFontMetrics(d->state.font), run)) & d->deviceRect();
    if (reach.isEmpty())
        return;
    const x11::XId mask =
        x11::textMask(pieceOf(d, run), {reach.x(), reach.y(), reach.width(), reach.height()});
    x11::GcKey key = d->baseKey();
    key.fill = x11::FillWithStipple;
    key.pattern = mask;
    key.originX = reach.x();
    key.originY = reach.y();
    d->fillDeviceRect(reach, x11::gcFor(key));
    x11::freePixmap(mask);
}

// In the program's coordinates.
void drawRun(PainterData* d, const TextRun& run)
{
    if (d->state.backgroundMode == Qt::OpaqueMode) {
        const QFontMetrics metrics(d->state.font);
        x11::GcKey key = d->baseKey();
        key.foreground = key.background;
        d->fillMappedRect(QRect(run.x, run.baseline - metrics.ascent(), run.width, metrics.height()),
                          x11::gcFor(key));
    }
    if (d->state.rop == Qt::CopyROP) {
        const QColor& color = d->state.pen.color();
        x11::drawText(d->drawable, d->bitmap, pieceOf(d, run),
                      d->bitmap ? static_cast<std::uint32_t>(d->pixelOf(color)) : color.rgb() & RGB_MASK,
                      d->clip.get());
    } else {
        drawMaskedText(d, run);
    }
    drawTextLines(d, run);
}

void drawMark(const PainterData* d, const TextMark& mark)
{
    const QFontMetrics metrics(d->state.font);
    d->fillMappedRect(QRect(mark.x, mark.baseline + metrics.underlinePos(), mark.width, metrics.lineWidth()),
                      x11::gcFor(d->baseKey()));
}

zeltk::TextFormat formatOf(const PainterData* d, int flags)
{
    const std::vector<int>& tabs = d->state.tabArray;
    return {flags, d->state.tabStops, tabs.empty() ? nullptr : tabs.data()};
}

QString firstOf(const QString& text, int length)
{
    return length < 0 ? text : text.left(static_cast<uint>(length));
}

} // namespace

void QPainter::drawText(int x, int y, const QString& text, int length, TextDirection)
{
    if (!d->strokes())
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
                        QRect* boundingRect, QTextParag**)
{
    if (!isActive())
        return;
    const QRect rect(x, y, w, h);
    const TextLayout layout =
        zeltk::layoutText(d->state.font, rect, formatOf(d, flags), firstOf(text, length));
    if (boundingRect)
        *boundingRect = layout.bounding;
    if ((flags & DontPrint) || !d->hasPen() || (!(flags & DontClip) && rect.isEmpty()))
        return;
    const bool clips = !(flags & DontClip) && !rect.contains(layout.bounding);
    const bool clipWasOn = d->state.clipOn;
    const QRegion before = d->state.clip;
    if (clips) {
        const QRegion here = d->mapsRectsToRects() ? QRegion(d->mapRect(rect)) : d->matrix.mapToRegion(rect);
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

QRect QPainter::boundingRect(int x, int y, int w, int h, int flags, const QString& text, int length,
                             QTextParag**)
{
    return zeltk::layoutText(d->state.font, QRect(x, y, w, h), formatOf(d, flags), firstOf(text, length))
        .bounding;
}

int QPainter::tabStops() const
{
    return d->state.tabStops;
}

void QPainter::setTabStops(int pixels)
{
    d->state.tabStops = pixels;
}

int* QPainter::tabArray() const
{
    return d->state.tabArray.empty() ? nullptr : d->state.tabArray.data();
}

void QPainter::setTabArray(int* places)
{
    d->state.tabArray.clear();
    for (; places && *places; ++places)
        d->state.tabArray.push_back(*places);
    if (places)
        d->state.tabArray.push_back(0);
}
