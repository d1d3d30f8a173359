// QWidget: moving to another parent.
#include "kernel/applicationprivate.h"
#include "kernel/dispatch.h"
#include "kernel/taborder.h"
#include "kernel/widgetdata.h"

#include <qapplication.h>
#include <qevent.h>
#include <qguardedptr.h>

namespace
{

// Children go with their parent and hear nothing.
void forgetVisible(QWidget* widget)
{
    zeltk::WidgetAccess::clearState(widget, Qt::WState_Visible);
    for (QWidget* child : zeltk::childWidgets(widget))
        if (!child->isTopLevel())
            forgetVisible(child);
}

void leaveScreen(QWidget* widget)
{
    if (!widget->isVisible())
        return;
    const QGuardedPtr<QWidget> alive(widget);
    zeltk::WidgetAccess::clearState(widget, Qt::WState_Visible);
    zeltk::leavePopupOrModal(widget);
    if (alive)
        forgetVisible(widget);
}

} // namespace

// The server's window lives on, so that all inside it come along; only its place changes. Focus and Tab order
// are of a window, and stay where that stays the same. If the parent dies meanwhile it remains a hidden
// window.
void QWidget::reparent(QWidget* parent, WFlags f, const QPoint& pos, bool showIt)
{
    if (zeltk::isInside(parent, this)) {
        qWarning("QWidget::reparent: %s cannot be inside itself", name());
        return;
    }
    const QSize keptSize = size();
    const bool leavesWindow =
        isTopLevel() || !parent || (f & WType_Mask) || parent->topLevelWidget() != topLevelWidget();
    const QGuardedPtr<QWidget> alive(this);
    const QGuardedPtr<QWidget> newParent(parent);
    leaveScreen(this);
    if (alive)
        zeltk::widgetLeavesPlace(this, leavesWindow);
    if (!alive)
        return;
    zeltk::hideWindow(this);
    zeltk::takeWindowOut(this, newParent, f);
    if (QObject* old = this->parent())
        old->removeChild(this);
    if (newParent && alive)
        newParent->insertChild(this);
    if (!alive)
        return;
    zeltk::putWindowIn(this, newParent);
    if (!newParent || isTopLevel() || w->selfHidden || newParent->isVisible())
        setWState(WState_ForceHide);
    else
        clearWState(WState_ForceHide);
    if (leavesWindow)
        zeltk::joinTabOrder(this);
    zeltk::refreshEnabled(this);
    if (!alive)
        return;
    zeltk::inheritLook(this);
    if (alive)
        setGeometry(pos.x(), pos.y(), keptSize.width(), keptSize.height());
    if (showIt && alive && (newParent || !parent))
        show();
    if (alive) {
        QEvent event(QEvent::Reparent);
        QApplication::sendEvent(this, &event);
    }
}

void QWidget::reparent(QWidget* parent, const QPoint& pos, bool showIt)
{
    reparent(parent, getWFlags() & ~static_cast<WFlags>(WType_Mask), pos, showIt);
}
