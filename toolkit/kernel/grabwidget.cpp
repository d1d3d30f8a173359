// QPixmap: pictures of widgets.
#include "kernel/widgetdata.h"

#include <qapplication.h>
#include <qevent.h>
#include <qpainter.h>

namespace
{

// While it lives, painters on the widget draw on the pixmap.
class Diversion
{
public:
    Diversion(QWidget* divertedWidget, const QPixmap& pixmap) : widget(divertedWidget)
    {
        zeltk::WidgetAccess::setWinId(widget, pixmap.handle());
    }
    ~Diversion()
    {
        if (widget)
            zeltk::WidgetAccess::setWinId(widget, zeltk::dataOf(widget)->window);
    }

private:
    const QGuardedPtr<QWidget> widget;
};

// With all children, whether they are on the screen or not. Any of them may die of what it hears; the picture
// of the dead is null or not complete.
QPixmap picture(QWidget* widget)
{
    const QGuardedPtr<QWidget> alive(widget);
    widget->constPolish();
    for (const QEvent::Type type : {QEvent::ChildInserted, QEvent::Move, QEvent::Resize})
        if (alive)
            QApplication::sendPostedEvents(widget, type);
    if (!alive)
        return QPixmap();
    QPixmap pixmap(widget->size());
    pixmap.fill(widget, 0, 0);
    {
        const Diversion diversion(widget, pixmap);
        zeltk::deliverPaint(widget, QRegion(widget->rect()), true);
    }
    if (!alive)
        return pixmap;
    for (const QGuardedPtr<QWidget>& child : zeltk::guardedChildren(widget)) {
        if (!child || child->isTopLevel() || child->isHidden())
            continue;
        const QPixmap part = picture(child);
        if (child)
            bitBlt(&pixmap, child->pos(), &part);
    }
    return pixmap;
}

} // namespace

QPixmap QPixmap::grabWidget(QWidget* widget, int x, int y, int w, int h)
{
    if (!widget)
        return QPixmap();
    if (w < 0)
        w = widget->width() - x;
    if (h < 0)
        h = widget->height() - y;
    const QRect wanted = QRect(x, y, w, h) & widget->rect();
    if (wanted.isEmpty())
        return QPixmap();
    const QGuardedPtr<QWidget> alive(widget);
    const QPixmap whole = picture(widget);
    if (!alive)
        return QPixmap();
    QPixmap part(w, h);
    part.fill(widget, x, y);
    bitBlt(&part, 0, 0, &whole, x, y, w, h);
    return part;
}
