// QWidget: showing, hiding, closing, stacking, changing parents.
#include <qwidget.h>

#include "kernel/applicationprivate.h"
#include "kernel/objecttree.h"
#include "kernel/widgetdata.h"
#include "x11/window.h"
#include "x11/wmhints.h"

#include <qapplication.h>
#include <qevent.h>
#include <qguardedptr.h>

#include <algorithm>

using zeltk::childWidgets;
using zeltk::WidgetAccess;
using zeltk::WidgetData;
namespace x11 = zeltk::x11;

namespace
{

void sendShow(QWidget* widget)
{
    QShowEvent event;
    QApplication::sendEvent(widget, &event);
}

void sendPlain(QWidget* widget, QEvent::Type type)
{
    QEvent event(type);
    QApplication::sendEvent(widget, &event);
}

void prepareToShow(QWidget* widget)
{
    QApplication::sendPostedEvents(widget, QEvent::ChildInserted);
    widget->polish();
    zeltk::deliverPendingGeometry(widget);
}

// Children come to be visible before their parents, so that all appears at once.
void showChildren(QWidget* widget)
{
    for (QWidget* child : childWidgets(widget)) {
        if (child->isTopLevel() || child->isHidden() || child->isVisible())
            continue;
        prepareToShow(child);
        showChildren(child);
        WidgetAccess::setState(child, Qt::WState_Visible);
        x11::mapWindow(child->winId());
        sendShow(child);
    }
}

void hideChildren(QWidget* widget)
{
    for (QWidget* child : childWidgets(widget)) {
        if (child->isTopLevel() || !child->isVisible())
            continue;
        WidgetAccess::clearState(child, Qt::WState_Visible);
        hideChildren(child);
        zeltk::widgetHidden(child);
        QHideEvent event;
        QApplication::sendEvent(child, &event);
    }
}

void mapTopLevel(QWidget* window)
{
    zeltk::applySizeHints(window);
    if (window->isPopup())
        x11::raiseWindow(window->winId());
    if (window->isModal())
        x11::setModal(window->winId(), true);
    x11::mapWindow(window->winId());
    if (window->isPopup())
        zeltk::popupShown(window);
    if (window->isModal())
        zeltk::modalShown(window);
}

void unmapTopLevel(QWidget* window)
{
    if (window->isPopup())
        zeltk::popupHidden(window);
    if (window->isModal())
        zeltk::modalHidden(window);
    if (window->testWFlags(Qt::WType_Popup | Qt::WX11BypassWM))
        x11::unmapWindow(window->winId());
    else
        x11::withdrawWindow(window->winId());
}

} // namespace

void QWidget::show()
{
    if (isVisible() || isDesktop())
        return;
    const bool wasHidden = isHidden();
    w->state &= ~WState_ForceHide;
    if (!isTopLevel() && !parentWidget()->isVisible()) {
        if (wasHidden)
            sendPlain(this, QEvent::ShowToParent);
        return;
    }
    prepareToShow(this);
    showChildren(this);
    if (isTopLevel()) {
        w->state |= WState_Visible;
        mapTopLevel(this);
    } else {
        QApplication::sendPostedEvents(parentWidget(), QEvent::ChildInserted);
        w->state |= WState_Visible;
        x11::mapWindow(winId());
        updateGeometry();
    }
    sendShow(this);
}

void QWidget::hide()
{
    const bool wasHidden = isHidden();
    w->state |= WState_ForceHide;
    if (!isVisible()) {
        if (!wasHidden && !isTopLevel())
            sendPlain(this, QEvent::HideToParent);
        return;
    }
    w->state &= ~WState_Visible;
    if (isTopLevel())
        unmapTopLevel(this);
    else
        x11::unmapWindow(winId());
    zeltk::widgetHidden(this);
    if (!isTopLevel() && parentWidget() && parentWidget()->isVisible())
        QApplication::postEvent(parentWidget(), new QEvent(QEvent::LayoutHint));
    QHideEvent event;
    QApplication::sendEvent(this, &event);
    hideChildren(this);
}

void QWidget::setShown(bool enable)
{
    if (enable)
        show();
    else
        hide();
}

void QWidget::setHidden(bool enable)
{
    setShown(!enable);
}

bool QWidget::isVisibleTo(QWidget* ancestor) const
{
    for (const QWidget* widget = this; widget && widget != ancestor; widget = widget->parentWidget()) {
        if (widget->isHidden())
            return false;
        if (widget->isTopLevel())
            break;
    }
    return true;
}

void QWidget::polish()
{
    if (testWState(WState_Polished))
        return;
    w->state |= WState_Polished;
    qApp->polish(this);
}

void QWidget::constPolish() const
{
    if (!testWState(WState_Polished))
        const_cast<QWidget*>(this)->polish();
}

bool QWidget::close()
{
    return close(false);
}

// The window is hidden when its close event is accepted. The last one ends the program, if it asked for that.
bool QWidget::close(bool alsoDelete)
{
    const QGuardedPtr<QWidget> self(this);
    const bool wasMain = qApp->mainWidget() == this;
    QCloseEvent event;
    QApplication::sendEvent(this, &event);
    if (!event.isAccepted() || self.isNull())
        return self.isNull();
    const bool deletes = alsoDelete || testWFlags(WDestructiveClose);
    const bool counts = isTopLevel() && !isPopup();
    hide();
    if (counts && !self.isNull())
        zeltk::windowClosed(this, wasMain);
    if (deletes && !self.isNull())
        deleteLater();
    return true;
}

void QWidget::raise()
{
    zeltk::moveToFront(this);
    x11::raiseWindow(winId());
}

void QWidget::lower()
{
    zeltk::moveToBack(this);
    x11::lowerWindow(winId());
}

void QWidget::stackUnder(QWidget* sibling)
{
    if (!sibling || isTopLevel() || sibling->isTopLevel() || parentWidget() != sibling->parentWidget() ||
        sibling == this)
        return;
    zeltk::moveBefore(this, sibling);
    x11::stackBelow(winId(), sibling->winId());
}

void QWidget::reparent(QWidget* parent, const QPoint& p, bool showIt)
{
    reparent(parent, getWFlags() & ~static_cast<WFlags>(WType_Mask), p, showIt);
}

// The size stays; the place is a new one.
void QWidget::reparent(QWidget* parent, WFlags f, const QPoint& p, bool showIt)
{
    const QSize oldSize = size();
    const bool wasEnabled = isEnabled();
    if (isVisible()) {
        w->state &= ~WState_Visible;
        if (isTopLevel())
            unmapTopLevel(this);
        else
            x11::unmapWindow(winId());
        zeltk::widgetHidden(this);
        for (QWidget* child : childWidgets(this))
            if (!child->isTopLevel())
                WidgetAccess::clearState(child, WState_Visible);
    }
    zeltk::leaveTabOrder(this);
    if (this->parent())
        this->parent()->removeChild(this);
    const bool wasTopLevel = isTopLevel();
    w->flags = f & ~static_cast<WFlags>(WType_TopLevel);
    if (!parent || (f & (WType_Popup | WType_Dialog | WType_TopLevel)))
        w->flags |= WType_TopLevel;
    if (parent)
        parent->insertChild(this);
    zeltk::moveWindowTo(this, parent, wasTopLevel);
    w->state |= WState_ForceHide;
    setGeometry(p.x(), p.y(), oldSize.width(), oldSize.height());
    zeltk::joinTabOrder(this);
    zeltk::setEnabledByParent(this,
                              !(!isTopLevel() && !parent->isEnabled()) && (wasEnabled || !w->selfDisabled));
    zeltk::inheritLook(this);
    zeltk::applyBackground(this);
    if (showIt) {
        show();
    } else {
        w->moved = w->resized = false;
        QApplication::postEvent(this, new QMoveEvent(pos(), w->oldPos));
        QApplication::postEvent(this, new QResizeEvent(size(), w->oldSize));
    }
    QEvent event(QEvent::Reparent);
    QApplication::sendEvent(this, &event);
}
