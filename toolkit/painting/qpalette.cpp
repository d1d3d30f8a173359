// QColorGroup and QPalette.
#include <qpalette.h>

#include "painting/defaultpalette.h"
#include "tools/shared.h"

#include <algorithm>

namespace zeltk
{

struct PaletteData {
    int references;
    int serial;
    QColorGroup groups[QPalette::NColorGroups];
};

} // namespace zeltk

using zeltk::PaletteData;

namespace
{

int nextSerial()
{
    static int last = 0;
    return ++last;
}

QColor between(const QColor& a, const QColor& b)
{
    return QColor((a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2);
}

struct ModeRoles {
    Qt::BackgroundMode mode;
    QColorGroup::ColorRole background;
    QColorGroup::ColorRole foreground;
};

// What is drawn on each background; the foreground on all others.
const ModeRoles modeRoles[] = {
    {Qt::PaletteForeground, QColorGroup::Foreground, QColorGroup::Foreground},
    {Qt::PaletteButton, QColorGroup::Button, QColorGroup::ButtonText},
    {Qt::PaletteLight, QColorGroup::Light, QColorGroup::Foreground},
    {Qt::PaletteMidlight, QColorGroup::Midlight, QColorGroup::Foreground},
    {Qt::PaletteDark, QColorGroup::Dark, QColorGroup::Light},
    {Qt::PaletteMid, QColorGroup::Mid, QColorGroup::Foreground},
    {Qt::PaletteText, QColorGroup::Text, QColorGroup::Foreground},
    {Qt::PaletteBrightText, QColorGroup::BrightText, QColorGroup::Foreground},
    {Qt::PaletteBase, QColorGroup::Base, QColorGroup::Text},
    {Qt::PaletteShadow, QColorGroup::Shadow, QColorGroup::Light},
    {Qt::PaletteHighlight, QColorGroup::Highlight, QColorGroup::HighlightedText},
    {Qt::PaletteHighlightedText, QColorGroup::HighlightedText, QColorGroup::Highlight},
    {Qt::PaletteButtonText, QColorGroup::ButtonText, QColorGroup::Foreground},
    {Qt::PaletteLink, QColorGroup::Link, QColorGroup::Foreground},
    {Qt::PaletteLinkVisited, QColorGroup::LinkVisited, QColorGroup::Foreground},
};

ModeRoles rolesOf(Qt::BackgroundMode mode)
{
    for (const ModeRoles& roles : modeRoles)
        if (roles.mode == mode)
            return roles;
    return {mode, QColorGroup::Background, QColorGroup::Foreground};
}

// Black text on a bright background, white text on a dark one.
QPalette paletteOf(const QColor& button, const QColor& background)
{
    int h;
    int s;
    int v;
    background.hsv(&h, &s, &v);
    const QColor& base = v > 128 ? Qt::white : Qt::black;
    const QColor& text = v > 128 ? Qt::black : Qt::white;
    const QBrush light = button.light(150);
    const QBrush dark = button.dark();
    const QBrush mid = button.dark(150);
    const QColorGroup active(text, button, light, dark, mid, text, Qt::white, base, background);
    const QColorGroup disabled(Qt::darkGray, button, light, dark, mid, Qt::darkGray, Qt::white, base,
                               background);
    return QPalette(active, disabled, active);
}

QPalette initialPalette()
{
    const QColorGroup active(Qt::black, Qt::lightGray, Qt::white, Qt::darkGray, Qt::gray, Qt::black,
                             Qt::white, Qt::white, Qt::lightGray);
    QColorGroup disabled(Qt::darkGray, Qt::lightGray, Qt::white, Qt::darkGray, Qt::gray, Qt::darkGray,
                         Qt::white, Qt::lightGray, Qt::lightGray);
    return QPalette(active, disabled, active);
}

QPalette& applicationPalette()
{
    static QPalette* const palette = new QPalette(initialPalette());
    return *palette;
}

} // namespace

namespace zeltk
{

const QPalette& defaultPalette()
{
    return applicationPalette();
}

void setDefaultPalette(const QPalette& palette)
{
    applicationPalette() = palette;
}

} // namespace zeltk

QColorGroup::QColorGroup() {}

QColorGroup::QColorGroup(const QColor& foreground, const QColor& button, const QColor& light,
                         const QColor& dark, const QColor& mid, const QColor& text, const QColor& base)
{
    *this = QColorGroup(QBrush(foreground), QBrush(button), QBrush(light), QBrush(dark), QBrush(mid),
                        QBrush(text), QBrush(light), QBrush(base), QBrush(button));
}

QColorGroup::QColorGroup(const QBrush& foreground, const QBrush& button, const QBrush& light,
                         const QBrush& dark, const QBrush& mid, const QBrush& text, const QBrush& brightText,
                         const QBrush& base, const QBrush& background)
{
    brushes[Foreground] = foreground;
    brushes[Button] = button;
    brushes[Light] = light;
    brushes[Dark] = dark;
    brushes[Mid] = mid;
    brushes[Text] = text;
    brushes[BrightText] = brightText;
    brushes[ButtonText] = text;
    brushes[Base] = base;
    brushes[Background] = background;
    derive();
}

void QColorGroup::derive()
{
    brushes[Midlight] = between(button(), light());
    brushes[Shadow] = Qt::black;
    brushes[Highlight] = Qt::darkBlue;
    brushes[HighlightedText] = Qt::white;
    brushes[Link] = Qt::blue;
    brushes[LinkVisited] = Qt::magenta;
}

bool QColorGroup::operator==(const QColorGroup& other) const
{
    return std::equal(brushes, brushes + NColorRoles, other.brushes);
}

QPalette::QPalette() : d(new PaletteData{1, nextSerial(), {}}) {}

QPalette::QPalette(const QColor& button) : QPalette(paletteOf(button, button)) {}

QPalette::QPalette(const QColor& button, const QColor& background) : QPalette(paletteOf(button, background))
{
}

QPalette::QPalette(const QColorGroup& active, const QColorGroup& disabled, const QColorGroup& inactive)
    : d(new PaletteData{1, nextSerial(), {disabled, active, inactive}})
{
}

QPalette::QPalette(const QPalette& other) : d(zeltk::shared(other.d)) {}

QPalette::~QPalette()
{
    zeltk::release(d);
}

QPalette& QPalette::operator=(const QPalette& other)
{
    zeltk::share(d, other.d);
    return *this;
}

void QPalette::detach()
{
    if (d->references > 1)
        *this = copy();
    d->serial = nextSerial();
}

QPalette QPalette::copy() const
{
    return QPalette(active(), disabled(), inactive());
}

const QColor& QPalette::color(ColorGroup group, QColorGroup::ColorRole role) const
{
    return d->groups[group].color(role);
}

const QBrush& QPalette::brush(ColorGroup group, QColorGroup::ColorRole role) const
{
    return d->groups[group].brush(role);
}

void QPalette::setColor(ColorGroup group, QColorGroup::ColorRole role, const QColor& color)
{
    setBrush(group, role, QBrush(color));
}

void QPalette::setBrush(ColorGroup group, QColorGroup::ColorRole role, const QBrush& brush)
{
    detach();
    d->groups[group].setBrush(role, brush);
}

void QPalette::setColor(QColorGroup::ColorRole role, const QColor& color)
{
    setBrush(role, QBrush(color));
}

void QPalette::setBrush(QColorGroup::ColorRole role, const QBrush& brush)
{
    detach();
    for (QColorGroup& group : d->groups)
        group.setBrush(role, brush);
}

const QColorGroup& QPalette::active() const
{
    return d->groups[Active];
}

const QColorGroup& QPalette::inactive() const
{
    return d->groups[Inactive];
}

const QColorGroup& QPalette::disabled() const
{
    return d->groups[Disabled];
}

void QPalette::setActive(const QColorGroup& group)
{
    detach();
    d->groups[Active] = group;
}

void QPalette::setInactive(const QColorGroup& group)
{
    detach();
    d->groups[Inactive] = group;
}

void QPalette::setDisabled(const QColorGroup& group)
{
    detach();
    d->groups[Disabled] = group;
}

bool QPalette::operator==(const QPalette& other) const
{
    return d == other.d || std::equal(d->groups, d->groups + NColorGroups, other.d->groups);
}

int QPalette::serialNumber() const
{
    return d->serial;
}

QColorGroup::ColorRole QPalette::foregroundRoleFromMode(Qt::BackgroundMode mode)
{
    return rolesOf(mode).foreground;
}

QColorGroup::ColorRole QPalette::backgroundRoleFromMode(Qt::BackgroundMode mode)
{
    return rolesOf(mode).background;
}
