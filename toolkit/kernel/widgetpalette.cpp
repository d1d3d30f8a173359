// QWidget: colours, and how children inherit them.
#include <qwidget.h>

#include "kernel/widgetdata.h"

#include <qapplication.h>

using zeltk::dataOf;
using zeltk::isPaletteMode;
using zeltk::WidgetAccess;
using zeltk::WidgetData;

namespace
{

// What is set for its class goes before its parent's.
QPalette inheritedPalette(const QWidget* widget)
{
    if (const QPalette* special = zeltk::classPalette(widget))
        return *special;
    const QWidget* parent = widget->parentWidget(true);
    return parent ? parent->palette() : QApplication::palette(widget);
}

// Children without a palette of their own follow, before the widget itself is told.
void changePalette(QWidget* widget, const QPalette& wanted)
{
    WidgetData* data = dataOf(widget);
    if (data->palette == wanted)
        return;
    const QPalette old = data->palette;
    // It may be another widget's, which somebody who is told deletes.
    const QPalette palette = wanted; // NOLINT(performance-unnecessary-copy-initialization)
    data->palette = palette;
    zeltk::applyBackground(widget);
    const QGuardedPtr<QWidget> alive(widget);
    for (const QGuardedPtr<QWidget>& child : zeltk::guardedChildren(widget)) {
        if (!child || child->isTopLevel() || child->ownPalette() || zeltk::classPalette(child))
            continue;
        child->setPalette(palette);
        if (child)
            dataOf(child)->ownPalette = false;
    }
    if (alive)
        WidgetAccess::paletteChange(widget, old);
    if (alive)
        widget->update();
}

} // namespace

namespace zeltk
{

void inheritLook(QWidget* widget)
{
    const QGuardedPtr<QWidget> alive(widget);
    if (!widget->ownPalette())
        changePalette(widget, inheritedPalette(widget));
    if (alive)
        inheritFont(widget);
}

} // namespace zeltk

const QColorGroup& QWidget::colorGroup() const
{
    if (!isEnabled())
        return w->palette.disabled();
    return !isVisible() || isActiveWindow() ? w->palette.active() : w->palette.inactive();
}

const QPalette& QWidget::palette() const
{
    return w->palette;
}

bool QWidget::ownPalette() const
{
    return w->ownPalette;
}

void QWidget::setPalette(const QPalette& palette)
{
    w->ownPalette = true;
    changePalette(this, palette);
}

void QWidget::unsetPalette()
{
    const QGuardedPtr<QWidget> alive(this);
    setPalette(inheritedPalette(this));
    if (alive)
        w->ownPalette = false;
}

void QWidget::paletteChange(const QPalette&) {}

// Another window has become active: another colour group holds.
void QWidget::windowActivationChange(bool)
{
    if (!isVisible() || w->palette.active() == w->palette.inactive())
        return;
    zeltk::applyBackground(this);
    update();
}

const QColor& QWidget::foregroundColor() const
{
    return paletteForegroundColor();
}

const QColor& QWidget::paletteForegroundColor() const
{
    return colorGroup().color(QPalette::foregroundRoleFromMode(w->visualMode));
}

void QWidget::setPaletteForegroundColor(const QColor& color)
{
    QPalette changed(palette());
    changed.setColor(QPalette::foregroundRoleFromMode(w->visualMode), color);
    setPalette(changed);
}

const QColor& QWidget::paletteBackgroundColor() const
{
    if (!isPaletteMode(w->visualMode))
        return eraseColor();
    return colorGroup().brush(QPalette::backgroundRoleFromMode(w->visualMode)).color();
}

// A widget without a role for its background gets a fixed colour.
void QWidget::setPaletteBackgroundColor(const QColor& color)
{
    if (!isPaletteMode(w->visualMode)) {
        setEraseColor(color);
        return;
    }
    QPalette changed(palette());
    changed.setColor(QPalette::backgroundRoleFromMode(w->visualMode), color);
    setPalette(changed);
}

const QPixmap* QWidget::paletteBackgroundPixmap() const
{
    if (!isPaletteMode(w->visualMode))
        return erasePixmap();
    return colorGroup().brush(QPalette::backgroundRoleFromMode(w->visualMode)).pixmap();
}

void QWidget::setPaletteBackgroundPixmap(const QPixmap& pixmap)
{
    if (!isPaletteMode(w->visualMode)) {
        setErasePixmap(pixmap);
        return;
    }
    QPalette changed(palette());
    changed.setBrush(QPalette::backgroundRoleFromMode(w->visualMode),
                     QBrush(paletteBackgroundColor(), pixmap));
    setPalette(changed);
}
