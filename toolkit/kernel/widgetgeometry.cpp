// QWidget: place and size. The server is never asked: what it is told is what holds.
#include "kernel/widgetdata.h"
#include "x11/window.h"

#include <qapplication.h>
#include <qevent.h>

using zeltk::TopLevelData;

namespace
{

int between(int low, int value, int high)
{
    return QMAX(low, QMIN(value, high));
}

QSize limited(const QSize& size)
{
    return QSize(between(0, size.width(), QWIDGETSIZE_MAX), between(0, size.height(), QWIDGETSIZE_MAX));
}

void tellServer(QWidget* widget, bool moved, bool resized)
{
    zeltk::WidgetData* data = zeltk::dataOf(widget);
    // Only the widget itself may draw now: the server would clear what it makes larger.
    const bool keep = resized && widget->isVisible() && widget->testWFlags(Qt::WResizeNoErase);
    if (keep)
        zeltk::x11::unsetWindowBackground(data->window);
    const QRect& box = data->geometry;
    const unsigned long serial = zeltk::x11::moveResizeWindow(
        data->window, {box.x(), box.y(), box.width(), box.height()}, moved, resized);
    if (data->top)
        data->top->configureSerial = serial;
    if (keep) {
        zeltk::applyBackground(widget);
        data->keepsOnResize = true;
    }
}

} // namespace

void QWidget::internalSetGeometry(int x, int y, int width, int height, bool isMove)
{
    if (isDesktop())
        return;
    const QRect before = wd->geometry;
    const QPoint placeBefore = pos();
    width = QMAX(QMAX(QMIN(width, wd->maximumSize.width()), wd->minimumSize.width()), 1);
    height = QMAX(QMAX(QMIN(height, wd->maximumSize.height()), wd->minimumSize.height()), 1);
    wd->geometry = QRect(isMove ? x : before.x(), isMove ? y : before.y(), width, height);
    const bool moved = wd->geometry.topLeft() != before.topLeft();
    const bool resized = wd->geometry.size() != before.size();
    if (moved || resized)
        tellServer(this, moved, resized);
    if (isVisible()) {
        if (moved) {
            QMoveEvent event(pos(), placeBefore);
            QApplication::sendEvent(this, &event);
        }
        if (resized) {
            QResizeEvent event(size(), before.size());
            QApplication::sendEvent(this, &event);
        }
        return;
    }
    if (moved)
        QApplication::postEvent(this, new QMoveEvent(pos(), placeBefore));
    if (resized)
        QApplication::postEvent(this, new QResizeEvent(size(), before.size()));
}

void QWidget::move(int x, int y)
{
    if (wd->top) {
        wd->top->placed = true;
        x += wd->top->frameLeft;
        y += wd->top->frameTop;
    }
    internalSetGeometry(x, y, width(), height(), true);
}

void QWidget::move(const QPoint& pos)
{
    move(pos.x(), pos.y());
}

void QWidget::resize(int width, int height)
{
    setWState(WState_Resized);
    internalSetGeometry(x(), y(), width, height, false);
}

void QWidget::resize(const QSize& size)
{
    resize(size.width(), size.height());
}

void QWidget::setGeometry(int x, int y, int w, int h)
{
    setWState(WState_Resized);
    if (wd->top)
        wd->top->placed = true;
    internalSetGeometry(x, y, w, h, true);
}

void QWidget::setGeometry(const QRect& rect)
{
    setGeometry(rect.x(), rect.y(), rect.width(), rect.height());
}

const QRect& QWidget::geometry() const
{
    return wd->geometry;
}

QRect QWidget::frameGeometry() const
{
    if (!wd->top)
        return wd->geometry;
    QRect frame = wd->geometry;
    frame.addCoords(-wd->top->frameLeft, -wd->top->frameTop, wd->top->frameRight, wd->top->frameBottom);
    return frame;
}

QSize QWidget::frameSize() const
{
    return frameGeometry().size();
}

QPoint QWidget::pos() const
{
    return frameGeometry().topLeft();
}

int QWidget::x() const
{
    return pos().x();
}

int QWidget::y() const
{
    return pos().y();
}

QSize QWidget::size() const
{
    return wd->geometry.size();
}

int QWidget::width() const
{
    return wd->geometry.width();
}

int QWidget::height() const
{
    return wd->geometry.height();
}

QRect QWidget::rect() const
{
    return QRect(0, 0, width(), height());
}

QSize QWidget::minimumSize() const
{
    return wd->minimumSize;
}

QSize QWidget::maximumSize() const
{
    return wd->maximumSize;
}

int QWidget::minimumWidth() const
{
    return wd->minimumSize.width();
}

int QWidget::minimumHeight() const
{
    return wd->minimumSize.height();
}

int QWidget::maximumWidth() const
{
    return wd->maximumSize.width();
}

int QWidget::maximumHeight() const
{
    return wd->maximumSize.height();
}

void QWidget::setMinimumSize(int width, int height)
{
    const QSize limit = limited(QSize(width, height));
    if (limit == wd->minimumSize)
        return;
    wd->minimumSize = limit;
    if (this->width() < limit.width() || this->height() < limit.height())
        resize(size().expandedTo(limit));
    if (isTopLevel())
        zeltk::sendSizeHints(this);
    updateGeometry();
}

void QWidget::setMaximumSize(int width, int height)
{
    const QSize limit = limited(QSize(width, height));
    if (limit == wd->maximumSize)
        return;
    wd->maximumSize = limit;
    if (this->width() > limit.width() || this->height() > limit.height())
        resize(size().boundedTo(limit));
    if (isTopLevel())
        zeltk::sendSizeHints(this);
    updateGeometry();
}

void QWidget::setMinimumSize(const QSize& size)
{
    setMinimumSize(size.width(), size.height());
}

void QWidget::setMaximumSize(const QSize& size)
{
    setMaximumSize(size.width(), size.height());
}

void QWidget::setMinimumWidth(int width)
{
    setMinimumSize(width, minimumHeight());
}

void QWidget::setMinimumHeight(int height)
{
    setMinimumSize(minimumWidth(), height);
}

void QWidget::setMaximumWidth(int width)
{
    setMaximumSize(width, maximumHeight());
}

void QWidget::setMaximumHeight(int height)
{
    setMaximumSize(maximumWidth(), height);
}

void QWidget::setFixedSize(int width, int height)
{
    setMinimumSize(width, height);
    setMaximumSize(width, height);
    resize(width, height);
}

void QWidget::setFixedSize(const QSize& size)
{
    setFixedSize(size.width(), size.height());
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
    return wd->increment;
}

void QWidget::setSizeIncrement(int width, int height)
{
    wd->increment = QSize(width, height);
    if (isTopLevel())
        zeltk::sendSizeHints(this);
}

void QWidget::setSizeIncrement(const QSize& size)
{
    setSizeIncrement(size.width(), size.height());
}

QSize QWidget::baseSize() const
{
    return wd->baseSize;
}

void QWidget::setBaseSize(int width, int height)
{
    wd->baseSize = QSize(width, height);
    if (isTopLevel())
        zeltk::sendSizeHints(this);
}

void QWidget::setBaseSize(const QSize& size)
{
    setBaseSize(size.width(), size.height());
}
