// QFont.
#include <qfont.h>

#include "painting/defaultfont.h"
#include "painting/fontdata.h"
#include "tools/shared.h"

using zeltk::FontData;

namespace
{

FontData* newData(const QString& family, int pointSize, int weight, bool italic, int set)
{
    FontData* data = new FontData;
    data->set = set;
    data->family = family;
    data->tenths = zeltk::roundedSize(pointSize * 10.0);
    data->weight = weight;
    data->italic = italic;
    return data;
}

QFont& applicationFont()
{
    static QFont* const font = new QFont("Helvetica", 12);
    return *font;
}

} // namespace

namespace zeltk
{

const QFont& defaultFont()
{
    return applicationFont();
}

void setDefaultFont(const QFont& font)
{
    applicationFont() = font;
}

QFont FontAccess::withMask(const QFont& font, int set)
{
    QFont result(font);
    result.detach();
    result.d->set = set;
    return result;
}

} // namespace zeltk

QFont::QFont() : d(zeltk::shared(zeltk::FontAccess::data(applicationFont())))
{
    *this = zeltk::FontAccess::withMask(*this, 0);
}

QFont::QFont(const QString& family, int pointSize, int weight, bool italic)
    : d(newData(family, pointSize < 1 ? 12 : pointSize, weight, italic,
                FontData::Family | FontData::Size | FontData::Weight | FontData::Italic))
{
}

QFont::QFont(const QFont& other) : Qt(other), d(zeltk::shared(other.d)) {}

QFont::~QFont()
{
    zeltk::release(d);
}

QFont& QFont::operator=(const QFont& other)
{
    zeltk::share(d, other.d);
    return *this;
}

void QFont::detach()
{
    if (d->references > 1) {
        FontData* own = new FontData(*d);
        own->references = 1;
        --d->references;
        d = own;
    }
    d->face = nullptr;
}

QString QFont::family() const
{
    return d->family;
}

void QFont::setFamily(const QString& family)
{
    detach();
    d->family = family;
    d->set |= FontData::Family;
}

int QFont::pointSize() const
{
    return d->tenths < 0 ? -1 : qRound(d->tenths / 10.0);
}

float QFont::pointSizeFloat() const
{
    return d->tenths < 0 ? -1.0F : static_cast<float>(d->tenths) / 10.0F;
}

void QFont::setPointSize(int size)
{
    if (size <= 0) {
        qWarning("QFont::setPointSize: Point size <= 0 (%d)", size);
        return;
    }
    setPointSizeFloat(static_cast<float>(size));
}

void QFont::setPointSizeFloat(float size)
{
    if (!(size > 0.0F)) {
        qWarning("QFont::setPointSize: Point size <= 0 (%f)", static_cast<double>(size));
        return;
    }
    detach();
    d->tenths = zeltk::roundedSize(static_cast<double>(size) * 10.0);
    d->pixelSize = -1;
    d->set |= FontData::Size;
}

int QFont::pixelSize() const
{
    return d->pixelSize;
}

void QFont::setPixelSize(int size)
{
    if (size <= 0) {
        qWarning("QFont::setPixelSize: Pixel size <= 0 (%d)", size);
        return;
    }
    detach();
    d->pixelSize = size;
    d->tenths = -1;
    d->set |= FontData::Size;
}

void QFont::setPixelSizeFloat(float size)
{
    setPixelSize(zeltk::roundedSize(static_cast<double>(size)));
}

int QFont::weight() const
{
    return d->weight;
}

void QFont::setWeight(int weight)
{
    if (weight < 0 || weight > 99) {
        qWarning("QFont::setWeight: Value out of range (%d)", weight);
        return;
    }
    detach();
    d->weight = weight;
    d->set |= FontData::Weight;
}

bool QFont::italic() const
{
    return d->italic;
}

void QFont::setItalic(bool enable)
{
    detach();
    d->italic = enable;
    d->set |= FontData::Italic;
}

bool QFont::underline() const
{
    return d->underline;
}

void QFont::setUnderline(bool enable)
{
    detach();
    d->underline = enable;
    d->set |= FontData::Underline;
}

bool QFont::overline() const
{
    return d->overline;
}

void QFont::setOverline(bool enable)
{
    detach();
    d->overline = enable;
    d->set |= FontData::Underline;
}

bool QFont::strikeOut() const
{
    return d->strikeOut;
}

void QFont::setStrikeOut(bool enable)
{
    detach();
    d->strikeOut = enable;
    d->set |= FontData::StrikeOut;
}

bool QFont::fixedPitch() const
{
    return d->fixedPitch;
}

void QFont::setFixedPitch(bool enable)
{
    detach();
    d->fixedPitch = enable;
    d->set |= FontData::Pitch;
}

QFont::StyleHint QFont::styleHint() const
{
    return d->hint;
}

QFont::StyleStrategy QFont::styleStrategy() const
{
    return d->strategy;
}

void QFont::setStyleHint(StyleHint hint, StyleStrategy strategy)
{
    detach();
    d->hint = hint;
    d->strategy = strategy;
    d->set |= FontData::Hint;
}

void QFont::setStyleStrategy(StyleStrategy strategy)
{
    setStyleHint(d->hint, strategy);
}

bool QFont::rawMode() const
{
    return d->raw;
}

void QFont::setRawMode(bool enable)
{
    detach();
    d->raw = enable;
}

bool QFont::operator==(const QFont& other) const
{
    const FontData* a = d;
    const FontData* b = other.d;
    return a == b ||
           (a->family == b->family && a->tenths == b->tenths && a->pixelSize == b->pixelSize &&
            a->weight == b->weight && a->italic == b->italic && a->underline == b->underline &&
            a->overline == b->overline && a->strikeOut == b->strikeOut && a->fixedPitch == b->fixedPitch &&
            a->raw == b->raw && a->hint == b->hint && a->strategy == b->strategy);
}

QFont QFont::resolve(const QFont& other) const
{
    if (d->set == FontData::All)
        return *this;
    QFont result(*this);
    result.detach();
    FontData* own = result.d;
    const FontData* from = other.d;
    if (!(own->set & FontData::Family))
        own->family = from->family;
    if (!(own->set & FontData::Size)) {
        own->tenths = from->tenths;
        own->pixelSize = from->pixelSize;
    }
    if (!(own->set & FontData::Weight))
        own->weight = from->weight;
    if (!(own->set & FontData::Italic))
        own->italic = from->italic;
    if (!(own->set & FontData::Underline)) {
        own->underline = from->underline;
        own->overline = from->overline;
    }
    if (!(own->set & FontData::StrikeOut))
        own->strikeOut = from->strikeOut;
    if (!(own->set & FontData::Hint)) {
        own->hint = from->hint;
        own->strategy = from->strategy;
    }
    if (!(own->set & FontData::Pitch))
        own->fixedPitch = from->fixedPitch;
    own->set |= from->set;
    return result;
}
