// QWidget: enabled or not.
#include "kernel/applicationprivate.h"
#include "kernel/widgetdata.h"

namespace zeltk
{

// Who hears of a lost focus may delete the widget or any in it.
void refreshEnabled(QWidget* widget)
{
    const QWidget* const container = widget->parentWidget(true);
    const bool enable = !dataOf(widget)->selfDisabled && (!container || container->isEnabled());
    if (enable == widget->isEnabled())
        return;
    const QGuardedPtr<QWidget> alive(widget);
    if (enable) {
        WidgetAccess::clearState(widget, Qt::WState_Disabled);
    } else {
        WidgetAccess::setState(widget, Qt::WState_Disabled);
        widgetDisabled(widget);
    }
    if (!alive)
        return;
    applyBackground(widget);
    WidgetAccess::enabledChange(widget, !enable);
    if (!alive)
        return;
    for (const QGuardedPtr<QWidget>& child : guardedChildren(widget))
        if (child && !child->isTopLevel())
            refreshEnabled(child);
}

} // namespace zeltk

bool QWidget::isEnabledTo(QWidget* ancestor) const
{
    const QWidget* widget = this;
    while (widget && !zeltk::dataOf(widget)->selfDisabled && !widget->isTopLevel() &&
           widget->parentWidget() != ancestor)
        widget = widget->parentWidget();
    return !widget || !zeltk::dataOf(widget)->selfDisabled;
}

void QWidget::setEnabled(bool enable)
{
    w->selfDisabled = !enable;
    zeltk::refreshEnabled(this);
}

void QWidget::setDisabled(bool disable)
{
    setEnabled(!disable);
}

void QWidget::enabledChange(bool)
{
    update();
}
