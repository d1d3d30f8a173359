// QWidget: its place among parents and siblings.
#include "kernel/applicationprivate.h"
#include "kernel/objecttree.h"
#include "kernel/widgetdata.h"
#include "x11/window.h"

#include <qapplication.h>
#include <qevent.h>

void QWidget::raise()
{
    zeltk::moveToFront(this);
    zeltk::x11::raiseWindow(wd->window);
}

void QWidget::lower()
{
    zeltk::moveToBack(this);
    zeltk::x11::lowerWindow(wd->window);
}

void QWidget::stackUnder(QWidget* sibling)
{
    if (!sibling || sibling == this || sibling->isTopLevel() != isTopLevel() ||
        (!isTopLevel() && sibling->parentWidget() != parentWidget()))
        return;
    if (sibling->parentWidget() == parentWidget())
        zeltk::moveBefore(this, sibling);
    zeltk::x11::stackWindowUnder(wd->window, sibling->winId());
}

// The server's window lives on, so that all inside it come along; only its place changes.
void QWidget::reparent(QWidget* parent, WFlags f, const QPoint& pos, bool showIt)
{
    const QSize keptSize = size();
    const bool wasHidden = wd->hiddenItself;
    if (isVisible()) {
        clearWState(WState_Visible);
        if (isPopup())
            zeltk::popupHidden(this);
        else if (isTopLevel() && isModal())
            zeltk::modalHidden(this);
    }
    zeltk::widgetHidden(this);
    hideWindow();
    if (QWidget* old = parentWidget())
        old->removeChild(this);
    if (parent)
        parent->insertChild(this);
    zeltk::replaceWidgetWindow(this, f);
    zeltk::inheritAgain(this);
    if (isTopLevel() || wasHidden || parent->isVisible())
        setWState(WState_ForceHide);
    else
        clearWState(WState_ForceHide);
    clearWState(WState_Resized);
    setGeometry(pos.x(), pos.y(), keptSize.width(), keptSize.height());
    if (showIt)
        show();
    QEvent event(QEvent::Reparent);
    QApplication::sendEvent(this, &event);
}

void QWidget::reparent(QWidget* parent, const QPoint& pos, bool showIt)
{
    reparent(parent, getWFlags() & ~WType_Mask, pos, showIt);
}
