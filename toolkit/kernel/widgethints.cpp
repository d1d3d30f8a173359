// QWidget: the sizes it would like to have.
#include "kernel/widgetdata.h"
#include "x11/connection.h"

#include <qapplication.h>
#include <qevent.h>

QSize QWidget::sizeHint() const
{
    return QSize(-1, -1);
}

QSize QWidget::minimumSizeHint() const
{
    return QSize(-1, -1);
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

void QWidget::updateGeometry()
{
    if (!isTopLevel() && !isHidden() && parentWidget())
        QApplication::postEvent(parentWidget(), new QEvent(QEvent::LayoutHint));
}

// A window that wants to grow gets a useful size, none covers the screen.
void QWidget::adjustSize()
{
    constPolish();
    QSize wanted = sizeHint();
    if (isTopLevel() && wanted.isValid()) {
        const int directions = sizePolicy().expanding();
        if (directions & QSizePolicy::Horizontally)
            wanted.setWidth(QMAX(wanted.width(), 200));
        if (directions & QSizePolicy::Vertically)
            wanted.setHeight(QMAX(wanted.height(), 150));
        wanted =
            wanted.boundedTo(QSize(zeltk::x11::screenWidth() * 2 / 3, zeltk::x11::screenHeight() * 2 / 3));
    }
    if (wanted.isValid()) {
        resize(wanted);
        return;
    }
    const QRect children = childrenRect();
    if (!children.isNull())
        resize(children.width() + 2 * children.x(), children.height() + 2 * children.y());
}
