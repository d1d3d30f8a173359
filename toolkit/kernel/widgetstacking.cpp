// QWidget: what lies above what.
#include "kernel/objecttree.h"
#include "kernel/widgetdata.h"
#include "x11/window.h"

void QWidget::raise()
{
    zeltk::moveToFront(this);
    zeltk::x11::raiseWindow(winId());
}

void QWidget::lower()
{
    zeltk::moveToBack(this);
    zeltk::x11::lowerWindow(winId());
}

// Only the window manager stacks windows among each other.
void QWidget::stackUnder(QWidget* sibling)
{
    if (!sibling || sibling == this || isTopLevel() || sibling->isTopLevel() ||
        sibling->parentWidget() != parentWidget())
        return;
    zeltk::moveBefore(this, sibling);
    zeltk::x11::stackBelow(winId(), sibling->winId());
}
