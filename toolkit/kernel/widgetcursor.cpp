// QWidget: the shape of the pointer over it.
#include "kernel/widgetdata.h"
#include "x11/cursor.h"

#include <qapplication.h>

namespace zeltk
{

void applyCursor(QWidget* widget)
{
    const WidgetData* data = dataOf(widget);
    const QCursor* cursor = data->cursor.get();
    if (QApplication::overrideCursor() && (cursor || widget->isTopLevel()))
        cursor = QApplication::overrideCursor();
    if (widget->isDesktop())
        return;
    if (cursor)
        x11::setWindowCursor(data->window, cursor->handle());
    else
        x11::unsetWindowCursor(data->window);
}

} // namespace zeltk

const QCursor& QWidget::cursor() const
{
    static const QCursor* const arrow = new QCursor;
    for (const QWidget* widget = this; widget; widget = widget->parentWidget(true))
        if (widget->wd->cursor)
            return *widget->wd->cursor;
    return *arrow;
}

bool QWidget::ownCursor() const
{
    return wd->cursor != 0;
}

void QWidget::setCursor(const QCursor& cursor)
{
    wd->cursor.reset(new QCursor(cursor));
    setWState(WState_OwnCursor);
    zeltk::applyCursor(this);
}

void QWidget::unsetCursor()
{
    wd->cursor.reset();
    clearWState(WState_OwnCursor);
    zeltk::applyCursor(this);
}
