// QWidget: where Tab goes.
#include "kernel/taborder.h"

#include "kernel/widgetdata.h"

#include <algorithm>

namespace zeltk
{

bool takesTab(const QWidget* widget)
{
    return (widget->focusPolicy() & QWidget::TabFocus) && widget->isEnabled() &&
           widget->isVisibleTo(widget->topLevelWidget()) && !widget->focusProxy();
}

namespace
{

// With a parent, perhaps.
bool isDying(const QWidget* widget)
{
    const QWidget* const parent = widget->parentWidget(true);
    return dataOf(widget)->dying || (parent && isDying(parent));
}

} // namespace

// Nobody who is about to die comes back.
void joinTabOrder(QWidget* widget)
{
    if (isDying(widget))
        return;
    std::vector<QWidget*>& order = dataOf(widget->topLevelWidget())->tabOrder;
    if (widget->focusPolicy() != QWidget::NoFocus &&
        std::find(order.begin(), order.end(), widget) == order.end())
        order.push_back(widget);
    for (QWidget* child : childWidgets(widget))
        if (!child->isTopLevel())
            joinTabOrder(child);
}

void leaveTabOrder(QWidget* widget)
{
    WidgetData* window = dataOf(widget->topLevelWidget());
    forget(&window->tabOrder, widget);
    if (window->focus == widget)
        window->focus = nullptr;
    for (QWidget* child : childWidgets(widget))
        if (!child->isTopLevel())
            leaveTabOrder(child);
}

} // namespace zeltk

bool QWidget::focusNextPrevChild(bool next)
{
    if (!isTopLevel() && parentWidget())
        return zeltk::WidgetAccess::focusNextPrev(parentWidget(), next);
    const std::vector<QWidget*> order = w->tabOrder;
    const int size = static_cast<int>(order.size());
    const auto here = std::find(order.begin(), order.end(), w->focus);
    int place = here == order.end() ? (next ? -1 : size) : static_cast<int>(here - order.begin());
    for (int i = 0; i < size; ++i) {
        place = (place + (next ? 1 : -1) + size) % size;
        QWidget* candidate = order[static_cast<size_t>(place)];
        if (candidate == w->focus || candidate == this || !zeltk::takesTab(candidate))
            continue;
        candidate->setFocus();
        return true;
    }
    return false;
}

void QWidget::setTabOrder(QWidget* first, QWidget* second)
{
    if (!first || !second || first == second || first->topLevelWidget() != second->topLevelWidget())
        return;
    while (zeltk::dataOf(first)->focusProxy)
        first = zeltk::dataOf(first)->focusProxy;
    while (zeltk::dataOf(second)->focusProxy)
        second = zeltk::dataOf(second)->focusProxy;
    std::vector<QWidget*>& order = zeltk::dataOf(first->topLevelWidget())->tabOrder;
    if (first == second || std::find(order.begin(), order.end(), first) == order.end() ||
        std::find(order.begin(), order.end(), second) == order.end())
        return;
    zeltk::forget(&order, second);
    order.insert(std::find(order.begin(), order.end(), first) + 1, second);
}
