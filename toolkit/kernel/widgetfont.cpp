// QWidget: the font, and how children inherit it.
#include "kernel/widgetdata.h"

#include <qapplication.h>
#include <qevent.h>

using zeltk::dataOf;
using zeltk::WidgetAccess;
using zeltk::WidgetData;

namespace
{

// What is set for its class goes before its parent's.
QFont inheritedFont(const QWidget* widget)
{
    if (const QFont* special = zeltk::classFont(widget))
        return *special;
    const QWidget* parent = widget->parentWidget(true);
    return parent ? dataOf(parent)->font : QApplication::font(widget);
}

void changeFont(QWidget* widget, const QFont& font)
{
    WidgetData* data = dataOf(widget);
    if (data->font == font)
        return;
    const QFont old = data->font;
    data->font = font;
    const QGuardedPtr<QWidget> alive(widget);
    for (const QGuardedPtr<QWidget>& child : zeltk::guardedChildren(widget)) {
        if (!child || child->isTopLevel())
            continue;
        QEvent news(QEvent::ParentFontChange);
        QApplication::sendEvent(child, &news);
        if (!child)
            continue;
        if (dataOf(child)->ownFont || zeltk::classFont(child)) {
            zeltk::inheritFont(child);
            continue;
        }
        child->setFont(font);
        if (child)
            dataOf(child)->ownFont = false;
    }
    if (alive)
        WidgetAccess::fontChange(widget, old);
}

} // namespace

namespace zeltk
{

void inheritFont(QWidget* widget)
{
    const WidgetData* data = dataOf(widget);
    const QFont parentFont = inheritedFont(widget);
    changeFont(widget, data->ownFont ? data->askedFont.resolve(parentFont) : parentFont);
}

} // namespace zeltk

QFont QWidget::font() const
{
    return w->font;
}

bool QWidget::ownFont() const
{
    return w->ownFont;
}

void QWidget::setFont(const QFont& font)
{
    w->ownFont = true;
    w->askedFont = font;
    changeFont(this, font.resolve(inheritedFont(this)));
}

void QWidget::unsetFont()
{
    const QGuardedPtr<QWidget> alive(this);
    setFont(inheritedFont(this));
    if (alive)
        w->ownFont = false;
}

void QWidget::fontChange(const QFont&)
{
    update();
    updateGeometry();
}

QFontMetrics QWidget::fontMetrics() const
{
    return QFontMetrics(w->font);
}

QFontInfo QWidget::fontInfo() const
{
    return QFontInfo(w->font);
}
