// QApplication: fonts and colours of all widgets.
#include <qapplication.h>

#include "kernel/applicationprivate.h"
#include "kernel/widgetdata.h"
#include "painting/defaultfont.h"
#include "painting/defaultpalette.h"

#include <map>
#include <string>

namespace
{

std::map<std::string, QPalette>& classPalettes()
{
    static auto* const all = new std::map<std::string, QPalette>;
    return *all;
}

std::map<std::string, QFont>& classFonts()
{
    static auto* const all = new std::map<std::string, QFont>;
    return *all;
}

template <typename Value>
const Value* valueForClass(const std::map<std::string, Value>& values, const QWidget* widget)
{
    if (!widget)
        return nullptr;
    for (const auto& entry : values)
        if (widget->inherits(entry.first.c_str()))
            return &entry.second;
    return nullptr;
}

} // namespace

namespace zeltk
{

const QPalette* classPalette(const QWidget* widget)
{
    return valueForClass(classPalettes(), widget);
}

const QFont* classFont(const QWidget* widget)
{
    return valueForClass(classFonts(), widget);
}

} // namespace zeltk

QPalette QApplication::palette(const QWidget* widget)
{
    const QPalette* special = zeltk::classPalette(widget);
    return special ? *special : zeltk::defaultPalette();
}

namespace
{

void informWidgets(const char* className)
{
    const std::vector<QWidget*>& all = zeltk::everyWidget();
    for (const QGuardedPtr<QWidget>& widget : std::vector<QGuardedPtr<QWidget>>(all.begin(), all.end()))
        if (widget && (!className || widget->inherits(className)))
            zeltk::inheritLook(widget);
}

bool styled = false;

// The default style has softer highlights, and shows a selection as text turned inside out.
QPalette styledPalette(QPalette palette)
{
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        if (palette.color(group, QColorGroup::Light) == Qt::white)
            palette.setColor(group, QColorGroup::Light,
                             palette.color(group, QColorGroup::Background).light(123));
        palette.setColor(group, QColorGroup::Highlight, palette.color(group, QColorGroup::Text));
        palette.setColor(group, QColorGroup::HighlightedText, palette.color(group, QColorGroup::Base));
    }
    return palette;
}

} // namespace

void QApplication::setPalette(const QPalette& palette, bool inform, const char* className)
{
    const QPalette wanted = styled ? styledPalette(palette) : palette;
    if (className) {
        classPalettes()[className] = wanted;
    } else {
        classPalettes().clear();
        zeltk::setDefaultPalette(wanted);
    }
    if (inform)
        informWidgets(className);
}

namespace zeltk
{

void ensureStyled()
{
    if (styled)
        return;
    styled = true;
    setDefaultPalette(styledPalette(defaultPalette()));
    informWidgets(nullptr);
}

} // namespace zeltk

QFont QApplication::font(const QWidget* widget)
{
    const QFont* special = zeltk::classFont(widget);
    return special ? *special : zeltk::defaultFont();
}

void QApplication::setFont(const QFont& font, bool inform, const char* className)
{
    if (className) {
        classFonts()[className] = font;
    } else {
        classFonts().clear();
        zeltk::setDefaultFont(font);
    }
    if (inform)
        informWidgets(className);
}

QFontMetrics QApplication::fontMetrics()
{
    return QFontMetrics(font());
}
