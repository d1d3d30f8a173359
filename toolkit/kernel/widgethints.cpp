// QWidget: the sizes it would like to have.
#include "kernel/widgetdata.h"
#include "x11/connection.h"

#include <qapplication.h>
#include <qevent.h>
#include <qlayout.h>

QLayout* QWidget::layout() const
{
    return w->layout;
}

QSize QWidget::sizeHint() const
{
    return w->layout ? w->layout->totalSizeHint() : QSize(-1, -1);
}

QSize QWidget::minimumSizeHint() const
{
    return w->layout ? w->layout->totalMinimumSize() : QSize(-1, -1);
}

QSizePolicy QWidget::sizePolicy() const
{
    return w->policy;
}

void QWidget::setSizePolicy(QSizePolicy policy)
{
    if (policy == sizePolicy())
        return;
    w->policy = policy;
    updateGeometry();
}

int QWidget::heightForWidth(int width) const
{
    return w->layout && w->layout->hasHeightForWidth() ? w->layout->totalHeightForWidth(width) : 0;
}

void QWidget::updateGeometry()
{
    if (!isTopLevel() && !isHidden() && parentWidget())
        QApplication::postEvent(parentWidget(), new QEvent(QEvent::LayoutHint));
}

namespace
{

// A window that wants to grow gets a useful size, none covers the screen.
QSize windowSize(const QWidget* window, QSize wanted)
{
    QLayout* const layout = window->layout();
    const int directions = layout ? layout->expanding() : window->sizePolicy().expanding();
    if (directions & QSizePolicy::Horizontally)
        wanted.setWidth(QMAX(wanted.width(), 200));
    if (layout && layout->hasHeightForWidth())
        wanted.setHeight(layout->totalHeightForWidth(wanted.width()));
    if (directions & QSizePolicy::Vertically)
        wanted.setHeight(QMAX(wanted.height(), 150));
    return wanted.boundedTo(QSize(zeltk::x11::screenWidth() * 2 / 3, zeltk::x11::screenHeight() * 2 / 3));
}

} // namespace

void QWidget::adjustSize()
{
    const QGuardedPtr<QWidget> alive(this);
    constPolish();
    if (!alive)
        return;
    const QSize wanted = sizeHint();
    if (wanted.isValid() && !wanted.isNull()) {
        resize(isTopLevel() ? windowSize(this, wanted) : wanted);
        return;
    }
    const QRect children = childrenRect();
    if (!children.isNull())
        resize(children.width() + 2 * children.x(), children.height() + 2 * children.y());
}
