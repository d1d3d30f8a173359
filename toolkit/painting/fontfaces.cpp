// Which face is found for a font: its family, those that stand in for it, and its size in pixels.
#include "painting/fontdata.h"
#include "tools/unicode.h"
#include "x11/connection.h"
#include "x11/fonts.h"

#include <algorithm>
#include <limits>
#include <map>

using zeltk::FontData;

namespace
{

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

int roundedSize(double size)
{
    constexpr int most = std::numeric_limits<int>::max();
    return size > -static_cast<double>(most) ? qRound(std::min(size, static_cast<double>(most))) : -most;
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

} // namespace zeltk

bool QFont::exactMatch() const
{
    const zeltk::x11::Font* face = zeltk::faceOf(*this);
    return zeltk::fromUtf8(zeltk::x11::familyOf(face)) == d->family &&
           d->weight == (zeltk::x11::isBold(face) ? Bold : Normal);
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
