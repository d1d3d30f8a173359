// QFontMetrics and QFontInfo.
#include <qfontinfo.h>
#include <qfontmetrics.h>

#include "painting/fontdata.h"
#include "painting/textengine.h"
#include "tools/unicode.h"
#include "x11/fonts.h"

#include <algorithm>

using zeltk::faceOf;

namespace
{

// The letters whose bearings stand for all of a font's.
const char16_t reachLeft[] = u"FTVXYZ";
const char16_t reachRight[] = u"FKTVXYZfr\u00cd\u0149\u0192";

std::u16string firstOf(const QString& text, int length)
{
    const std::u16string all = zeltk::toUtf16(text);
    return length < 0 ? all : all.substr(0, static_cast<size_t>(length));
}

// Grows with size and weight; two pixels come early.
int lineWidthOf(const QFont& font)
{
    const int weight = zeltk::x11::isBold(faceOf(font)) ? QFont::Bold : QFont::Normal;
    const int score = zeltk::pixelSizeOf(font) * weight;
    return score >= 1050 && score < 1400 ? 2 : std::max(1, score / 700);
}

} // namespace

QFontMetrics::QFontMetrics(const QFont& f) : font(f) {}

QFontMetrics::QFontMetrics(const QFontMetrics& other) : font(other.font) {}

QFontMetrics::~QFontMetrics() {}

QFontMetrics& QFontMetrics::operator=(const QFontMetrics& other)
{
    font = other.font;
    return *this;
}

int QFontMetrics::ascent() const
{
    return zeltk::x11::ascent(faceOf(font));
}

int QFontMetrics::descent() const
{
    return zeltk::x11::descent(faceOf(font));
}

int QFontMetrics::leading() const
{
    const int extra = zeltk::x11::lineHeight(faceOf(font)) - height();
    return std::max(extra, 1);
}

int QFontMetrics::minLeftBearing() const
{
    int least = 0;
    for (const char16_t* c = reachLeft; *c; ++c)
        least = std::min(least, leftBearing(QChar(static_cast<ushort>(*c))));
    return least;
}

int QFontMetrics::minRightBearing() const
{
    int least = 0;
    for (const char16_t* c = reachRight; *c; ++c)
        least = std::min(least, rightBearing(QChar(static_cast<ushort>(*c))));
    return least;
}

int QFontMetrics::maxWidth() const
{
    return zeltk::x11::maxAdvance(faceOf(font));
}

bool QFontMetrics::inFont(QChar c) const
{
    return zeltk::x11::hasGlyph(faceOf(font), c.unicode());
}

int QFontMetrics::leftBearing(QChar c) const
{
    return zeltk::x11::glyphBox(faceOf(font), c.unicode()).x;
}

int QFontMetrics::rightBearing(QChar c) const
{
    const zeltk::x11::GlyphBox box = zeltk::x11::glyphBox(faceOf(font), c.unicode());
    return box.advance - box.x - box.width;
}

int QFontMetrics::width(const QString& text, int length) const
{
    const std::u16string part = firstOf(text, length);
    return zeltk::x11::textWidth(faceOf(font), part.data(), part.size());
}

int QFontMetrics::width(QChar c) const
{
    return zeltk::x11::glyphBox(faceOf(font), c.unicode()).advance;
}

int QFontMetrics::charWidth(const QString& text, int position) const
{
    return position < 0 || position >= static_cast<int>(text.length())
               ? 0
               : width(text.at(static_cast<uint>(position)));
}

QRect QFontMetrics::boundingRect(const QString& text, int length) const
{
    QRect box;
    int pen = 0;
    for (const char16_t c : firstOf(text, length)) {
        const zeltk::x11::GlyphBox glyph = zeltk::x11::glyphBox(faceOf(font), c);
        box |= QRect(pen + glyph.x, glyph.y, glyph.width, glyph.height);
        pen += glyph.advance;
    }
    return box;
}

QRect QFontMetrics::boundingRect(QChar c) const
{
    const zeltk::x11::GlyphBox glyph = zeltk::x11::glyphBox(faceOf(font), c.unicode());
    return QRect(glyph.x, glyph.y, glyph.width, glyph.height);
}

QRect QFontMetrics::boundingRect(int x, int y, int w, int h, int flags, const QString& text, int length,
                                 int tabStops, int* tabArray, QTextParag**) const
{
    return zeltk::layoutText(font, QRect(x, y, w, h), {flags, tabStops, tabArray},
                             zeltk::fromUtf16(firstOf(text, length)))
        .bounding;
}

QSize QFontMetrics::size(int flags, const QString& text, int length, int tabStops, int* tabArray,
                         QTextParag**) const
{
    return boundingRect(0, 0, 0, 0, flags, text, length, tabStops, tabArray).size();
}

int QFontMetrics::underlinePos() const
{
    return std::max(1, (lineWidth() * 2 + 3) / 6);
}

int QFontMetrics::strikeOutPos() const
{
    return std::max(1, ascent() / 3);
}

int QFontMetrics::lineWidth() const
{
    return lineWidthOf(font);
}

QFontInfo::QFontInfo(const QFont& font) : wanted(font) {}

// A family that was asked for by its name comes with the foundry, a stand-in without.
QString QFontInfo::family() const
{
    const zeltk::x11::Font* face = faceOf(wanted);
    const QString found = zeltk::fromUtf8(zeltk::x11::familyOf(face));
    const QString foundry = zeltk::fromUtf8(zeltk::x11::foundryOf(face));
    if (foundry.isEmpty() || found.lower() != wanted.family().lower())
        return found;
    return found + " [" + foundry + "]";
}

int QFontInfo::pointSize() const
{
    return wanted.pointSize();
}

int QFontInfo::pixelSize() const
{
    return zeltk::pixelSizeOf(wanted);
}

int QFontInfo::weight() const
{
    return zeltk::x11::isBold(faceOf(wanted)) ? QFont::Bold : QFont::Normal;
}

bool QFontInfo::fixedPitch() const
{
    return zeltk::x11::isFixed(faceOf(wanted));
}

bool QFontInfo::exactMatch() const
{
    return wanted.exactMatch();
}
