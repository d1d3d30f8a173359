// QFont.
#include <qfont.h>

#include "painting/defaultfont.h"
#include "painting/fontdata.h"
#include "tools/unicode.h"
#include "x11/connection.h"
#include "x11/fonts.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

using zeltk::FontData;

namespace
{

// What is too large for an int is the largest that fits.
int roundedSize(double size)
{
    return qRound(std::min(size, static_cast<double>(std::numeric_limits<int>::max())));
}

FontData* newData(const QString& family, int pointSize, int weight, bool italic, int set)
{
    FontData* data = new FontData;
    data->references = 1;
    data->set = set;
    data->family = family;
    data->tenths = roundedSize(pointSize * 10.0);
    data->pixelSize = -1;
    data->weight = weight;
    data->italic = italic;
    data->underline = data->overline = data->strikeOut = data->fixedPitch = data->raw = false;
    data->hint = QFont::AnyStyle;
    data->strategy = QFont::PreferDefault;
    data->face = nullptr;
    return data;
}

QFont& applicationFont()
{
    static QFont* const font = new QFont("Helvetica", 12);
    return *font;
}

std::map<QString, QStringList>& standIns()
{
    static auto* const all = new std::map<QString, QStringList>;
    return *all;
}

struct HintFamily {
    QFont::StyleHint hint;
    const char* family;
    const char* generic; // fontconfig's name for such fonts
};

const HintFamily hintFamilies[] = {
    {QFont::Helvetica, "Helvetica", "sans-serif"}, {QFont::Times, "Times", "serif"},
    {QFont::Courier, "Courier", "monospace"},      {QFont::OldEnglish, "Old English", "sans-serif"},
    {QFont::System, "Helvetica", "sans-serif"},    {QFont::AnyStyle, "Helvetica", "sans-serif"},
};

const HintFamily& hintFamily(QFont::StyleHint hint)
{
    for (const HintFamily& entry : hintFamilies)
        if (entry.hint == hint)
            return entry;
    return hintFamilies[0];
}

std::vector<std::string> familiesOf(const FontData* data)
{
    std::vector<std::string> families = {zeltk::toUtf8(data->family)};
    const QStringList others = QFont::substitutes(data->family);
    for (QStringList::ConstIterator it = others.begin(); it != others.end(); ++it)
        families.push_back(zeltk::toUtf8(*it));
    families.push_back(hintFamily(data->hint).generic);
    return families;
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

int pixelSizeOf(const QFont& font)
{
    const FontData* data = FontAccess::data(font);
    if (data->pixelSize > 0)
        return data->pixelSize;
    return roundedSize(static_cast<double>(data->tenths) * x11::dpiY() / 720.0);
}

const x11::Font* faceOf(const QFont& font)
{
    FontData* data = FontAccess::data(font);
    if (!data->face && x11::connected())
        data->face = x11::openFont({familiesOf(data), pixelSizeOf(font), data->weight, data->italic,
                                    !(data->strategy & QFont::NoAntialias)});
    return data->face;
}

QFont FontAccess::withMask(const QFont& font, int set)
{
    QFont result(font);
    result.detach();
    result.d->set = set;
    return result;
}

} // namespace zeltk

QFont::QFont() : d(zeltk::FontAccess::data(applicationFont()))
{
    ++d->references;
    *this = zeltk::FontAccess::withMask(*this, 0);
}

QFont::QFont(const QString& family, int pointSize, int weight, bool italic)
    : d(newData(family, pointSize < 1 ? 12 : pointSize, weight, italic,
                FontData::Family | FontData::Size | FontData::Weight | FontData::Italic))
{
}

QFont::QFont(const QFont& other) : Qt(other), d(other.d)
{
    ++d->references;
}

QFont::~QFont()
{
    if (--d->references == 0)
        delete d;
}

QFont& QFont::operator=(const QFont& other)
{
    ++other.d->references;
    if (--d->references == 0)
        delete d;
    d = other.d;
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
    if (size <= 0.0F) {
        qWarning("QFont::setPointSize: Point size <= 0 (%f)", static_cast<double>(size));
        return;
    }
    detach();
    d->tenths = roundedSize(static_cast<double>(size) * 10.0);
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
    setPixelSize(qRound(static_cast<double>(size)));
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

bool QFont::exactMatch() const
{
    const zeltk::x11::Font* face = zeltk::faceOf(*this);
    return zeltk::fromUtf8(zeltk::x11::familyOf(face)) == d->family &&
           d->weight == (zeltk::x11::isBold(face) ? Bold : Normal);
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

QString QFont::toString() const
{
    const QString comma(",");
    return d->family + comma + QString::number(static_cast<double>(pointSizeFloat())) + comma +
           QString::number(d->pixelSize) + comma + QString::number(static_cast<int>(d->hint)) + comma +
           QString::number(d->weight) + comma + QString::number(static_cast<int>(d->italic)) + comma +
           QString::number(static_cast<int>(d->underline)) + comma +
           QString::number(static_cast<int>(d->strikeOut)) + comma +
           QString::number(static_cast<int>(d->fixedPitch)) + comma +
           QString::number(static_cast<int>(d->raw));
}

bool QFont::fromString(const QString& text)
{
    const QStringList parts = QStringList::split(",", text, true);
    if (parts.count() != 10) {
        qWarning("QFont::fromString: invalid description '%s'", text.isNull() ? "(null)" : text.latin1());
        return false;
    }
    *this = QFont(parts[0], 12, parts[4].toInt(), parts[5].toInt() != 0);
    if (parts[1].toDouble() > 0.0)
        setPointSizeFloat(parts[1].toFloat());
    else if (parts[2].toInt() > 0)
        setPixelSize(parts[2].toInt());
    d->hint = static_cast<StyleHint>(parts[3].toInt());
    d->underline = parts[6].toInt() != 0;
    d->strikeOut = parts[7].toInt() != 0;
    d->fixedPitch = parts[8].toInt() != 0;
    d->raw = parts[9].toInt() != 0;
    d->set = FontData::All;
    return true;
}

QString QFont::substitute(const QString& family)
{
    const QStringList all = substitutes(family);
    return all.isEmpty() ? family : all.first();
}

QStringList QFont::substitutes(const QString& family)
{
    const auto found = standIns().find(family.lower());
    return found == standIns().end() ? QStringList() : found->second;
}

void QFont::insertSubstitution(const QString& family, const QString& substitute)
{
    QStringList& list = standIns()[family.lower()];
    if (!list.contains(substitute))
        list.append(substitute);
}

void QFont::insertSubstitutions(const QString& family, const QStringList& substitutes)
{
    for (QStringList::ConstIterator it = substitutes.begin(); it != substitutes.end(); ++it)
        insertSubstitution(family, *it);
}

QStringList QFont::substitutions()
{
    QStringList families;
    for (const auto& entry : standIns())
        families.append(entry.first);
    return families;
}

void QFont::removeSubstitution(const QString& family)
{
    standIns().erase(family.lower());
}

QString QFont::defaultFamily() const
{
    return hintFamily(d->hint).family;
}

QString QFont::lastResortFamily() const
{
    return "Helvetica";
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
