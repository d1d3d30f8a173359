// QWidget: showing, hiding and closing.
#include "kernel/applicationprivate.h"
#include "kernel/widgetdata.h"
#include "x11/window.h"

#include <qapplication.h>
#include <qevent.h>
#include <qguardedptr.h>

using zeltk::WidgetAccess;
using zeltk::WidgetData;
namespace x11 = zeltk::x11;

namespace
{

// False if that was the widget's end.
bool deliver(QWidget* widget, QEvent::Type type)
{
    const QGuardedPtr<QWidget> alive(widget);
    QApplication::sendPostedEvents(widget, type);
    return !alive.isNull();
}

// A window takes the size it likes best, unless the program has chosen one.
void takeFirstSize(QWidget* window)
{
    if (!window->testWState(Qt::WState_Resized) && window->sizeHint().isValid())
        window->adjustSize();
}

// What a widget hears before it is shown; false if that was its end.
bool prepareToShow(QWidget* widget)
{
    const QGuardedPtr<QWidget> alive(widget);
    if (!deliver(widget, QEvent::ChildInserted))
        return false;
    widget->constPolish();
    if (!alive)
        return false;
    if (widget->isTopLevel())
        takeFirstSize(widget);
    // A layout may enlarge it when it hears of its size.
    if (!deliver(widget, QEvent::Move) || !deliver(widget, QEvent::Resize) ||
        (widget->layout() && !deliver(widget, QEvent::Resize)))
        return false;
    QWidget* container = widget->parentWidget(true);
    return !container || (deliver(container, QEvent::ChildInserted) && alive);
}

void showChildren(QWidget* widget)
{
    for (const QGuardedPtr<QWidget>& child : zeltk::guardedChildren(widget))
        if (child && !child->isTopLevel() && !child->isHidden())
            child->show();
}

void sendPlain(QWidget* widget, QEvent::Type type)
{
    QEvent event(type);
    QApplication::sendEvent(widget, &event);
}

void showWindow(QWidget* widget)
{
    WidgetData* data = zeltk::dataOf(widget);
    if (data->mapped)
        return;
    data->mapped = true;
    if (!widget->isTopLevel()) {
        x11::mapWindow(widget->winId());
        return;
    }
    if (data->described)
        zeltk::applySizeHints(widget);
    else
        zeltk::describeWindow(widget);
    if (widget->isPopup())
        x11::raiseWindow(widget->winId());
    x11::mapWindow(widget->winId());
    if (widget->isPopup())
        zeltk::popupShown(widget);
    else if (widget->isModal())
        zeltk::modalShown(widget);
}

} // namespace

namespace zeltk
{

// Windows inside a hidden one need not be unmapped; they reappear with it.
void hideChildren(QWidget* widget)
{
    for (const QGuardedPtr<QWidget>& child : guardedChildren(widget)) {
        if (!child || child->isTopLevel() || !child->isVisible())
            continue;
        WidgetAccess::clearState(child, Qt::WState_Visible);
        hideChildren(child);
        if (child)
            widgetHidden(child);
        QHideEvent event;
        if (child)
            QApplication::sendEvent(child, &event);
    }
}

void hideWindow(QWidget* widget)
{
    WidgetData* data = dataOf(widget);
    if (!data->mapped)
        return;
    data->mapped = false;
    data->takenAway = false;
    data->exposed = QRegion();
    if (widget->isTopLevel() && !widget->testWFlags(Qt::WType_Popup | Qt::WX11BypassWM))
        x11::withdrawWindow(widget->winId());
    else
        x11::unmapWindow(widget->winId());
}

void leavePopupOrModal(QWidget* widget)
{
    if (widget->isPopup())
        popupHidden(widget);
    else if (widget->isTopLevel() && widget->isModal())
        modalHidden(widget);
}

} // namespace zeltk

void QWidget::show()
{
    if (isVisible() || isDesktop())
        return;
    const bool wasHidden = isHidden();
    clearWState(WState_ForceHide);
    w->selfHidden = false;
    QWidget* container = parentWidget(true);
    if (wasHidden)
        updateGeometry();
    if (container && !container->isVisible()) {
        if (wasHidden)
            sendPlain(this, QEvent::ShowToParent);
        return;
    }
    if (!prepareToShow(this))
        return;
    setWState(WState_Visible);
    zeltk::applyBackground(this); // the group of a visible widget depends on its window
    const QGuardedPtr<QWidget> alive(this);
    showChildren(this);
    QShowEvent event;
    if (alive)
        QApplication::sendEvent(this, &event);
    if (alive && isVisible())
        showWindow(this);
}

void QWidget::hide()
{
    if (isDesktop())
        return;
    const bool wasHidden = isHidden();
    setWState(WState_ForceHide);
    w->selfHidden = true;
    if (!isVisible()) {
        if (!wasHidden && !isTopLevel())
            sendPlain(this, QEvent::HideToParent);
        zeltk::hideWindow(this);
        return;
    }
    const QGuardedPtr<QWidget> alive(this);
    clearWState(WState_Visible);
    zeltk::leavePopupOrModal(this);
    if (alive)
        zeltk::widgetHidden(this);
    if (!alive)
        return;
    zeltk::hideWindow(this);
    QHideEvent event;
    QApplication::sendEvent(this, &event);
    if (alive)
        zeltk::hideChildren(this);
    if (alive)
        zeltk::hidePopupsOf(this);
    if (alive && !isTopLevel() && parentWidget())
        QApplication::postEvent(parentWidget(), new QEvent(QEvent::LayoutHint));
}

void QWidget::polish()
{
    if (testWState(WState_Polished))
        return;
    setWState(WState_Polished);
    const QGuardedPtr<QWidget> alive(this);
    zeltk::ensureStyled();
    if (alive && (zeltk::classFont(this) || zeltk::classPalette(this)))
        zeltk::inheritLook(this); // its constructor did not know yet of what class it is
    if (alive)
        qApp->polish(this);
}

void QWidget::constPolish() const
{
    if (!testWState(WState_Polished)) {
        QWidget* that = const_cast<QWidget*>(this);
        const QGuardedPtr<QWidget> alive(that);
        that->polish();
        if (alive)
            that->setWState(WState_Polished);
    }
}

bool QWidget::isVisibleTo(QWidget* ancestor) const
{
    const QWidget* widget = this;
    while (widget && !widget->isHidden() && !widget->isTopLevel() && widget->parentWidget() &&
           widget->parentWidget() != ancestor)
        widget = widget->parentWidget();
    return widget && !widget->isHidden();
}

void QWidget::setShown(bool show)
{
    if (show)
        this->show();
    else
        hide();
}

void QWidget::setHidden(bool hide)
{
    setShown(!hide);
}

bool QWidget::close()
{
    const QGuardedPtr<QWidget> alive(this);
    const bool closed = close(false);
    if (closed && alive && testWFlags(WDestructiveClose))
        deleteLater();
    return closed;
}

bool QWidget::close(bool alsoDelete)
{
    const QGuardedPtr<QWidget> alive(this);
    QCloseEvent event;
    QApplication::sendEvent(this, &event);
    if (!alive)
        return true;
    if (!event.isAccepted())
        return false;
    const bool wasMain = qApp->mainWidget() == this;
    const bool counts = isTopLevel() && !isPopup();
    hide();
    if (counts && alive)
        zeltk::windowClosed(wasMain);
    if (alsoDelete && alive)
        delete this;
    return true;
}
