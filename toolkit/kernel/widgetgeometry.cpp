// QWidget: places and sizes.
#include <qwidget.h>

#include "kernel/widgetdata.h"
#include "x11/window.h"

#include <qapplication.h>
#include <qevent.h>

#include <algorithm>

using zeltk::WidgetData;
namespace x11 = zeltk::x11;

namespace
{

// Tells a visible widget at once; a hidden one hears of it when it is shown.
void tellGeometry(QWidget* widget, const QPoint& oldPos, const QSize& oldSize)
{
    WidgetData* data = zeltk::dataOf(widget);
    const bool moved = widget->pos() != oldPos;
    const bool resized = widget->size() != oldSize;
    if (!widget->isVisible()) {
        if (moved && !data->moved)
            data->oldPos = oldPos;
        if (resized && !data->resized)
            data->oldSize = oldSize;
        data->moved = data->moved || moved;
        data->resized = data->resized || resized;
        return;
    }
    if (moved) {
        QMoveEvent event(widget->pos(), oldPos);
        QApplication::sendEvent(widget, &event);
    }
    if (resized) {
        QResizeEvent event(widget->size(), oldSize);
        QApplication::sendEvent(widget, &event);
    }
}

// A window whose contents must not be erased when it is resized is without background meanwhile.
void resizeWindow(QWidget* widget, const QRect& r, bool moved, bool resized)
{
    WidgetData* data = zeltk::dataOf(widget);
    const bool unerased = resized && widget->isVisible() && widget->testWFlags(Qt::WResizeNoErase);
    if (unerased) {
        x11::setNoBackground(widget->winId());
        data->unerasedExpose = true;
    }
    if (moved && resized)
        x11::moveResizeWindow(widget->winId(), r.x(), r.y(), r.width(), r.height());
    else if (moved)
        x11::moveWindow(widget->winId(), r.x(), r.y());
    else if (resized)
        x11::resizeWindow(widget->winId(), r.width(), r.height());
    if (unerased)
        zeltk::applyBackground(widget);
}

// `pos` is the place of the frame, where there is one.
void changeGeometry(QWidget* widget, const QPoint& pos, QSize size)
{
    if (widget->isDesktop())
        return;
    WidgetData* data = zeltk::dataOf(widget);
    size = size.boundedTo(data->maximum).expandedTo(data->minimum).expandedTo(QSize(1, 1));
    const QPoint oldPos = widget->pos();
    const QSize oldSize = widget->size();
    if (pos == oldPos && size == oldSize)
        return;
    const QPoint inFrame = data->rect.topLeft() - data->frame.topLeft();
    const QSize around = data->frame.size() - data->rect.size();
    data->rect = QRect(pos + inFrame, size);
    data->frame = QRect(pos, size + around);
    if (widget->isTopLevel())
        zeltk::applySizeHints(widget);
    resizeWindow(widget, QRect(pos, size), pos != oldPos, size != oldSize);
    tellGeometry(widget, oldPos, oldSize);
}

} // namespace

namespace zeltk
{

void deliverPendingGeometry(QWidget* widget)
{
    WidgetData* data = dataOf(widget);
    if (data->moved) {
        data->moved = false;
        QMoveEvent event(widget->pos(), data->oldPos);
        QApplication::sendEvent(widget, &event);
    }
    if (data->resized) {
        data->resized = false;
        QResizeEvent event(widget->size(), data->oldSize);
        QApplication::sendEvent(widget, &event);
    }
}

void windowConfigured(QWidget* window, const QRect& rect)
{
    WidgetData* data = dataOf(window);
    if (rect == data->rect)
        return;
    const QPoint oldPos = window->pos();
    const QSize oldSize = window->size();
    data->frame = QRect(data->frame.topLeft() + (rect.topLeft() - data->rect.topLeft()),
                        data->frame.size() + (rect.size() - data->rect.size()));
    data->rect = rect;
    tellGeometry(window, oldPos, oldSize);
}

} // namespace zeltk

const QRect& QWidget::geometry() const
{
    return w->rect;
}

QRect QWidget::frameGeometry() const
{
    return isTopLevel() ? w->frame : w->rect;
}

int QWidget::x() const
{
    return pos().x();
}

int QWidget::y() const
{
    return pos().y();
}

QPoint QWidget::pos() const
{
    return frameGeometry().topLeft();
}

QSize QWidget::frameSize() const
{
    return frameGeometry().size();
}

void QWidget::move(int x, int y)
{
    w->placed = true;
    changeGeometry(this, QPoint(x, y), size());
}

void QWidget::move(const QPoint& p)
{
    move(p.x(), p.y());
}

void QWidget::resize(int width, int height)
{
    w->sized = true;
    changeGeometry(this, pos(), QSize(width, height));
}

void QWidget::resize(const QSize& size)
{
    resize(size.width(), size.height());
}

// The rectangle is the client area's; move() takes the frame's corner.
void QWidget::setGeometry(int x, int y, int width, int height)
{
    w->placed = w->sized = true;
    const QPoint inFrame = isTopLevel() ? w->rect.topLeft() - w->frame.topLeft() : QPoint(0, 0);
    changeGeometry(this, QPoint(x, y) - inFrame, QSize(width, height));
}

void QWidget::setGeometry(const QRect& rect)
{
    setGeometry(rect.x(), rect.y(), rect.width(), rect.height());
}

QSize QWidget::minimumSize() const
{
    return w->minimum;
}

QSize QWidget::maximumSize() const
{
    return w->maximum;
}

void QWidget::setMinimumSize(int minw, int minh)
{
    if (minw < 0 || minh < 0 || minw > QWIDGETSIZE_MAX || minh > QWIDGETSIZE_MAX)
        qWarning("QWidget::setMinimumSize: The smallest allowed size is (0,0), the largest (%d,%d)",
                 QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    const QSize wanted =
        QSize(minw, minh).expandedTo(QSize(0, 0)).boundedTo(QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    if (wanted == w->minimum)
        return;
    w->minimum = wanted;
    if (isTopLevel())
        zeltk::applySizeHints(this);
    changeGeometry(this, pos(), size().expandedTo(wanted));
    updateGeometry();
}

void QWidget::setMaximumSize(int maxw, int maxh)
{
    if (maxw < 0 || maxh < 0 || maxw > QWIDGETSIZE_MAX || maxh > QWIDGETSIZE_MAX)
        qWarning("QWidget::setMaximumSize: The smallest allowed size is (0,0), the largest (%d,%d)",
                 QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    const QSize wanted =
        QSize(maxw, maxh).expandedTo(QSize(0, 0)).boundedTo(QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    if (wanted == w->maximum)
        return;
    w->maximum = wanted;
    if (isTopLevel())
        zeltk::applySizeHints(this);
    changeGeometry(this, pos(), size().boundedTo(wanted));
    updateGeometry();
}

void QWidget::setMinimumWidth(int minw)
{
    setMinimumSize(minw, minimumHeight());
}

void QWidget::setMinimumHeight(int minh)
{
    setMinimumSize(minimumWidth(), minh);
}

void QWidget::setMaximumWidth(int maxw)
{
    setMaximumSize(maxw, maximumHeight());
}

void QWidget::setMaximumHeight(int maxh)
{
    setMaximumSize(maximumWidth(), maxh);
}

void QWidget::setFixedSize(int width, int height)
{
    setMinimumSize(width, height);
    setMaximumSize(width, height);
    resize(width, height);
}

void QWidget::setFixedWidth(int width)
{
    setMinimumSize(width, minimumHeight());
    setMaximumSize(width, maximumHeight());
}

void QWidget::setFixedHeight(int height)
{
    setMinimumSize(minimumWidth(), height);
    setMaximumSize(maximumWidth(), height);
}

QSize QWidget::sizeIncrement() const
{
    return w->step;
}

void QWidget::setSizeIncrement(int width, int height)
{
    w->step = QSize(width, height);
    if (isTopLevel())
        zeltk::applySizeHints(this);
}

QSize QWidget::baseSize() const
{
    return w->base;
}

void QWidget::setBaseSize(int width, int height)
{
    w->base = QSize(width, height);
    if (isTopLevel())
        zeltk::applySizeHints(this);
}

QSize QWidget::sizeHint() const
{
    return QSize();
}

QSize QWidget::minimumSizeHint() const
{
    return QSize();
}

QSizePolicy QWidget::sizePolicy() const
{
    return w->policy;
}

void QWidget::setSizePolicy(QSizePolicy policy)
{
    if (policy == w->policy)
        return;
    w->policy = policy;
    updateGeometry();
}

int QWidget::heightForWidth(int) const
{
    return 0;
}

// Who arranges the widget hears of it through a LayoutHint event of the parent.
void QWidget::updateGeometry()
{
    if (!isTopLevel() && parentWidget() && !isHidden())
        QApplication::postEvent(parentWidget(), new QEvent(QEvent::LayoutHint));
}

void QWidget::adjustSize()
{
    constPolish();
    const QSize hint = sizeHint();
    if (hint.isValid()) {
        resize(hint);
        return;
    }
    const QRect children = childrenRect();
    if (!children.isNull())
        resize(children.width() + 2 * children.x(), children.height() + 2 * children.y());
}

QPoint QWidget::mapToParent(const QPoint& p) const
{
    return p + w->rect.topLeft();
}

QPoint QWidget::mapFromParent(const QPoint& p) const
{
    return p - w->rect.topLeft();
}

QPoint QWidget::mapToGlobal(const QPoint& p) const
{
    QPoint result = p;
    for (const QWidget* widget = this; widget;
         widget = widget->isTopLevel() ? nullptr : widget->parentWidget())
        result += zeltk::dataOf(widget)->rect.topLeft();
    return result;
}

QPoint QWidget::mapFromGlobal(const QPoint& p) const
{
    return p - mapToGlobal(QPoint(0, 0));
}

QPoint QWidget::mapTo(QWidget* ancestor, const QPoint& p) const
{
    QPoint result = p;
    for (const QWidget* widget = this; widget && widget != ancestor; widget = widget->parentWidget())
        result += zeltk::dataOf(widget)->rect.topLeft();
    return result;
}

QPoint QWidget::mapFrom(QWidget* ancestor, const QPoint& p) const
{
    return p - mapTo(ancestor, QPoint(0, 0));
}

QRect QWidget::visibleRect() const
{
    QRect visible = rect();
    QPoint offset(0, 0);
    for (const QWidget* widget = this; !widget->isTopLevel() && widget->parentWidget();
         widget = widget->parentWidget()) {
        offset += widget->pos();
        visible &= QRect(-offset, widget->parentWidget()->size());
    }
    return visible;
}

// The part that is not covered by children and not cut off by parents.
QRegion QWidget::clipRegion() const
{
    return QRegion(visibleRect()) - childrenRegion();
}
