// QWidget: the shape of the pointer over it.
#include "kernel/widgetdata.h"
#include "x11/input.h"

#include <qapplication.h>

namespace zeltk
{

void applyCursor(QWidget* widget)
{
    const WidgetData* data = dataOf(widget);
    const QCursor* cursor = data->cursor;
    if (QApplication::overrideCursor() && (cursor || widget->isTopLevel()))
        cursor = QApplication::overrideCursor();
    if (!widget->isDesktop())
        x11::setCursor(widget->winId(), cursor ? cursor->handle() : 0);
}

} // namespace zeltk

const QCursor& QWidget::cursor() const
{
    static const QCursor arrow(ArrowCursor);
    if (w->cursor)
        return *w->cursor;
    return isTopLevel() || !parentWidget() ? arrow : parentWidget()->cursor();
}

bool QWidget::ownCursor() const
{
    return w->cursor != nullptr;
}

void QWidget::setCursor(const QCursor& cursor)
{
    QCursor* copy = new QCursor(cursor);
    delete w->cursor;
    w->cursor = copy;
    w->state |= WState_OwnCursor;
    zeltk::applyCursor(this);
}

void QWidget::unsetCursor()
{
    delete w->cursor;
    w->cursor = nullptr;
    w->state &= ~WState_OwnCursor;
    zeltk::applyCursor(this);
}
