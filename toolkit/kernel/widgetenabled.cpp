// QWidget: enabled or not.
#include "kernel/applicationprivate.h"
#include "kernel/widgetdata.h"

namespace zeltk
{

void refreshEnabled(QWidget* widget)
{
    const QWidget* const container = widget->parentWidget(true);
    const bool enable = !dataOf(widget)->selfDisabled && (!container || container->isEnabled());
    if (enable == widget->isEnabled())
        return;
    if (enable) {
        WidgetAccess::clearState(widget, Qt::WState_Disabled);
    } else {
        WidgetAccess::setState(widget, Qt::WState_Disabled);
        widgetDisabled(widget);
    }
    applyBackground(widget);
    WidgetAccess::enabledChange(widget, !enable);
    for (QWidget* child : childWidgets(widget))
        if (!child->isTopLevel())
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
