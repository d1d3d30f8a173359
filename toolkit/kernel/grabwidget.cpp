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
    Diversion(QWidget* divertedWidget, const QPixmap& pixmap)
        : widget(divertedWidget), window(divertedWidget->winId())
    {
        zeltk::WidgetAccess::setWinId(widget, pixmap.handle());
    }
    ~Diversion() { zeltk::WidgetAccess::setWinId(widget, window); }

private:
    QWidget* widget;
    const WId window;
};

// With all children, whether they are on the screen or not.
QPixmap picture(QWidget* widget)
{
    widget->constPolish();
    QApplication::sendPostedEvents(widget, QEvent::ChildInserted);
    QApplication::sendPostedEvents(widget, QEvent::Move);
    QApplication::sendPostedEvents(widget, QEvent::Resize);
    QPixmap pixmap(widget->size());
    pixmap.fill(widget, 0, 0);
    {
        const Diversion diversion(widget, pixmap);
        zeltk::deliverPaint(widget, QRegion(widget->rect()), true);
    }
    for (QWidget* child : zeltk::childWidgets(widget)) {
        if (child->isTopLevel() || child->isHidden())
            continue;
        const QPixmap part = picture(child);
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
    const QPixmap whole = picture(widget);
    QPixmap part(w, h);
    part.fill(widget, x, y);
    bitBlt(&part, 0, 0, &whole, x, y, w, h);
    return part;
}
