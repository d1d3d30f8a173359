// QWidget: colours, and how children inherit them.
#include "kernel/widgetdata.h"

#include <qapplication.h>

using zeltk::WidgetData;

namespace
{

bool isRole(Qt::BackgroundMode mode)
{
    return mode >= Qt::PaletteForeground && mode < Qt::X11ParentRelative;
}

} // namespace

namespace zeltk
{

QPalette inheritedPalette(const QWidget* widget)
{
    for (const QWidget* above = widget; !above->isTopLevel() && above->parentWidget();) {
        above = above->parentWidget();
        if (above->ownPalette())
            return widget->parentWidget()->palette();
    }
    return QApplication::palette(widget);
}

void applicationPaletteChanged()
{
    for (QWidget* widget : allWidgets())
        if (!widget->ownPalette())
            widget->setPalette(inheritedPalette(widget), false);
}

} // namespace zeltk

const QPalette& QWidget::palette() const
{
    return wd->palette;
}

bool QWidget::ownPalette() const
{
    return wd->ownPalette;
}

const QColorGroup& QWidget::colorGroup() const
{
    if (!isEnabled())
        return wd->palette.disabled();
    return !isVisible() || isActiveWindow() ? wd->palette.active() : wd->palette.inactive();
}

void QWidget::setPalette(const QPalette& palette)
{
    wd->ownPalette = true;
    if (palette == wd->palette)
        return;
    const QPalette old = wd->palette;
    wd->palette = palette;
    setBackgroundFromMode();
    for (QWidget* child : zeltk::childWidgets(this))
        if (!child->isTopLevel() && !child->ownPalette())
            child->setPalette(zeltk::inheritedPalette(child), false);
    paletteChange(old);
    update();
}

// `fixed` is whether it stays when a parent's palette changes.
void QWidget::setPalette(const QPalette& palette, bool fixed)
{
    const bool own = wd->ownPalette;
    setPalette(palette);
    wd->ownPalette = own && fixed;
}

void QWidget::unsetPalette()
{
    wd->ownPalette = false;
    setPalette(zeltk::inheritedPalette(this), false);
}

void QWidget::paletteChange(const QPalette&) {}

const QColor& QWidget::foregroundColor() const
{
    return paletteForegroundColor();
}

const QColor& QWidget::paletteForegroundColor() const
{
    return colorGroup().color(QPalette::foregroundRoleFromMode(wd->visualMode));
}

void QWidget::setPaletteForegroundColor(const QColor& color)
{
    QPalette changed = palette();
    changed.setColor(QPalette::foregroundRoleFromMode(wd->visualMode), color);
    setPalette(changed);
}

const QColor& QWidget::paletteBackgroundColor() const
{
    if (!isRole(wd->visualMode))
        return eraseColor();
    return colorGroup().color(QPalette::backgroundRoleFromMode(wd->visualMode));
}

void QWidget::setPaletteBackgroundColor(const QColor& color)
{
    if (!isRole(wd->visualMode)) {
        setEraseColor(color);
        return;
    }
    QPalette changed = palette();
    changed.setColor(QPalette::backgroundRoleFromMode(wd->visualMode), color);
    setPalette(changed);
}

const QPixmap* QWidget::paletteBackgroundPixmap() const
{
    if (!isRole(wd->visualMode))
        return erasePixmap();
    return colorGroup().brush(QPalette::backgroundRoleFromMode(wd->visualMode)).pixmap();
}

void QWidget::setPaletteBackgroundPixmap(const QPixmap& pixmap)
{
    if (!isRole(wd->visualMode)) {
        setErasePixmap(pixmap);
        return;
    }
    QPalette changed = palette();
    changed.setBrush(QPalette::backgroundRoleFromMode(wd->visualMode),
                     QBrush(paletteBackgroundColor(), pixmap));
    setPalette(changed);
}
