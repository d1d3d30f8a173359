// QWidget: coordinates, and what lies where.
#include "kernel/widgetdata.h"

QPoint QWidget::mapToParent(const QPoint& pos) const
{
    return pos + w->rect.topLeft();
}

QPoint QWidget::mapFromParent(const QPoint& pos) const
{
    return pos - w->rect.topLeft();
}

QPoint QWidget::mapToGlobal(const QPoint& pos) const
{
    QPoint place = pos;
    for (const QWidget* widget = this; widget; widget = widget->parentWidget(true))
        place += zeltk::dataOf(widget)->rect.topLeft();
    return place;
}

QPoint QWidget::mapFromGlobal(const QPoint& pos) const
{
    return pos - mapToGlobal(QPoint(0, 0));
}

QPoint QWidget::mapTo(QWidget* ancestor, const QPoint& pos) const
{
    QPoint place = pos;
    for (const QWidget* widget = this; widget && widget != ancestor; widget = widget->parentWidget())
        place = widget->mapToParent(place);
    return place;
}

QPoint QWidget::mapFrom(QWidget* ancestor, const QPoint& pos) const
{
    return pos - mapTo(ancestor, QPoint(0, 0));
}

QWidget* QWidget::childAt(int x, int y, bool includeThis) const
{
    const QPoint place(x, y);
    if (!rect().contains(place))
        return 0;
    const std::vector<QWidget*> children = zeltk::childWidgets(this);
    for (auto child = children.rbegin(); child != children.rend(); ++child)
        if (!(*child)->isTopLevel() && !(*child)->isHidden() && (*child)->geometry().contains(place))
            return (*child)->childAt((*child)->mapFromParent(place), true);
    return includeThis ? const_cast<QWidget*>(this) : 0;
}

QRect QWidget::childrenRect() const
{
    QRect all;
    for (QWidget* child : zeltk::childWidgets(this))
        if (!child->isTopLevel() && !child->isHidden())
            all |= child->geometry();
    return all;
}

QRegion QWidget::childrenRegion() const
{
    QRegion all;
    for (QWidget* child : zeltk::childWidgets(this))
        if (!child->isTopLevel() && !child->isHidden())
            all |= QRegion(child->geometry());
    return all;
}

QRect QWidget::visibleRect() const
{
    if (!isVisible())
        return QRect();
    QRect seen = rect();
    QPoint offset(0, 0);
    for (const QWidget* widget = this; widget->parentWidget(true); widget = widget->parentWidget(true)) {
        offset += zeltk::dataOf(widget)->rect.topLeft();
        QRect room = widget->parentWidget()->rect();
        room.moveBy(-offset.x(), -offset.y());
        seen &= room;
    }
    return seen;
}

QRegion QWidget::clipRegion() const
{
    QRegion seen(visibleRect());
    if (seen.isEmpty())
        return seen;
    seen -= childrenRegion();
    QPoint offset(0, 0);
    for (const QWidget* widget = this; widget->parentWidget(true); widget = widget->parentWidget(true)) {
        offset += zeltk::dataOf(widget)->rect.topLeft();
        bool above = false;
        for (QWidget* sibling : zeltk::childWidgets(widget->parentWidget())) {
            if (above && !sibling->isTopLevel() && sibling->isVisible()) {
                QRect cover = sibling->geometry();
                cover.moveBy(-offset.x(), -offset.y());
                seen -= QRegion(cover);
            }
            above = above || sibling == widget;
        }
    }
    return seen;
}
