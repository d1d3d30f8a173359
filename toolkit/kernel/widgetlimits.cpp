// QWidget: how small and how large it may be. Whoever hears of a new size may delete the widget.
#include "kernel/widgetdata.h"

#include <qguardedptr.h>

namespace
{

QSize limited(const char* function, const QSize& size)
{
    const QSize most(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    const QSize result = size.expandedTo(QSize(0, 0)).boundedTo(most);
    if (result != size)
        qWarning("QWidget::%s: Sizes reach from (0,0) to (%d,%d)", function, most.width(), most.height());
    return result;
}

void tell(QWidget* widget)
{
    if (widget->isTopLevel())
        zeltk::applySizeHints(widget);
}

} // namespace

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
    const QSize limit = limited("setMinimumSize", QSize(minw, minh));
    if (limit == w->minimum)
        return;
    const QGuardedPtr<QWidget> alive(this);
    w->minimum = limit;
    if (width() < limit.width() || height() < limit.height())
        resize(size().expandedTo(limit));
    if (alive)
        tell(this);
    if (alive)
        updateGeometry();
}

void QWidget::setMaximumSize(int maxw, int maxh)
{
    const QSize limit = limited("setMaximumSize", QSize(maxw, maxh));
    if (limit == w->maximum)
        return;
    const QGuardedPtr<QWidget> alive(this);
    w->maximum = limit;
    if (width() > limit.width() || height() > limit.height())
        resize(size().boundedTo(limit));
    if (alive)
        tell(this);
    if (alive)
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
    const QGuardedPtr<QWidget> alive(this);
    setMinimumSize(width, height);
    if (alive)
        setMaximumSize(width, height);
    if (alive)
        resize(width, height);
}

void QWidget::setFixedWidth(int width)
{
    const QGuardedPtr<QWidget> alive(this);
    setMinimumSize(width, minimumHeight());
    if (alive)
        setMaximumSize(width, maximumHeight());
}

void QWidget::setFixedHeight(int height)
{
    const QGuardedPtr<QWidget> alive(this);
    setMinimumSize(minimumWidth(), height);
    if (alive)
        setMaximumSize(maximumWidth(), height);
}

QSize QWidget::sizeIncrement() const
{
    return w->step;
}

void QWidget::setSizeIncrement(int width, int height)
{
    w->step = QSize(width, height);
    tell(this);
}

QSize QWidget::baseSize() const
{
    return w->base;
}

void QWidget::setBaseSize(int width, int height)
{
    w->base = QSize(width, height);
    tell(this);
}
