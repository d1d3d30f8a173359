// QWidget: the font, and how children inherit it.
#include "kernel/widgetdata.h"

#include <qapplication.h>

namespace zeltk
{

QFont inheritedFont(const QWidget* widget)
{
    for (const QWidget* above = widget; !above->isTopLevel() && above->parentWidget();) {
        above = above->parentWidget();
        if (above->ownFont())
            return widget->parentWidget()->font();
    }
    return QApplication::font(widget);
}

void applicationFontChanged()
{
    for (QWidget* widget : allWidgets())
        if (!widget->ownFont())
            widget->setFont(inheritedFont(widget), false);
}

void inheritAgain(QWidget* widget)
{
    if (!widget->ownPalette())
        widget->setPalette(inheritedPalette(widget), false);
    if (!widget->ownFont())
        widget->setFont(inheritedFont(widget), false);
    refreshEnabled(widget);
}

} // namespace zeltk

QFont QWidget::font() const
{
    return wd->font;
}

bool QWidget::ownFont() const
{
    return wd->ownFont;
}

void QWidget::setFont(const QFont& font)
{
    wd->ownFont = true;
    wd->wantedFont = font;
    const QFont complete = font.resolve(zeltk::inheritedFont(this));
    if (complete == wd->font)
        return;
    const QFont old = wd->font;
    wd->font = complete;
    for (QWidget* child : zeltk::childWidgets(this)) {
        if (child->isTopLevel())
            continue;
        if (child->ownFont())
            child->setFont(child->wd->wantedFont);
        else
            child->setFont(zeltk::inheritedFont(child), false);
    }
    fontChange(old);
}

void QWidget::setFont(const QFont& font, bool fixed)
{
    const bool own = wd->ownFont;
    setFont(font);
    wd->ownFont = own && fixed;
}

void QWidget::unsetFont()
{
    wd->ownFont = false;
    setFont(zeltk::inheritedFont(this), false);
}

void QWidget::fontChange(const QFont&)
{
    update();
}

QFontMetrics QWidget::fontMetrics() const
{
    return QFontMetrics(wd->font);
}

QFontInfo QWidget::fontInfo() const
{
    return QFontInfo(wd->font);
}
