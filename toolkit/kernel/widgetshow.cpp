// QWidget: showing, hiding and closing.
#include "kernel/applicationprivate.h"
#include "kernel/widgetdata.h"
#include "x11/window.h"

#include <qapplication.h>
#include <qevent.h>
#include <qguardedptr.h>

namespace
{

void deliver(QWidget* widget, QEvent::Type type)
{
    QApplication::sendPostedEvents(widget, type);
}

// A window takes the size it likes best, unless the program has chosen one.
void takeFirstSize(QWidget* window)
{
    if (!window->testWState(Qt::WState_Resized) && window->sizeHint().isValid())
        window->adjustSize();
}

// Whether no window is left that keeps the program alive.
bool isLastWindow()
{
    for (QWidget* widget : zeltk::allWidgets())
        if (widget->isTopLevel() && !widget->isHidden() && !widget->isDesktop() && !widget->isPopup() &&
            !(widget->isDialog() && widget->parentWidget()))
            return false;
    return true;
}

} // namespace

void QWidget::show()
{
    if (isVisible() || isDesktop())
        return;
    const bool wasHidden = isHidden();
    clearWState(WState_ForceHide);
    wd->hiddenItself = false;
    QWidget* container = isTopLevel() ? 0 : parentWidget();
    if (wasHidden)
        updateGeometry();
    if (container && !container->isVisible()) {
        if (wasHidden) {
            QEvent event(QEvent::ShowToParent);
            QApplication::sendEvent(this, &event);
        }
        return;
    }
    deliver(this, QEvent::ChildInserted);
    constPolish();
    if (isTopLevel())
        takeFirstSize(this);
    deliver(this, QEvent::Move);
    deliver(this, QEvent::Resize);
    if (container)
        deliver(container, QEvent::ChildInserted);
    setWState(WState_Visible);
    showChildren(false);
    QShowEvent event;
    QApplication::sendEvent(this, &event);
    if (isVisible())
        showWindow();
}

void QWidget::showChildren(bool)
{
    for (QWidget* child : zeltk::childWidgets(this))
        if (!child->isTopLevel() && !child->isHidden())
            child->show();
}

void QWidget::showWindow()
{
    if (wd->mapped)
        return;
    wd->mapped = true;
    if (!isTopLevel()) {
        zeltk::x11::mapWindow(wd->window);
        return;
    }
    if (wd->top->described)
        zeltk::sendSizeHints(this);
    else
        zeltk::describeWindow(this);
    if (isPopup())
        zeltk::x11::raiseWindow(wd->window);
    if (wd->top->windowState & WindowMinimized)
        zeltk::sendWindowHints(this);
    zeltk::x11::mapWindow(wd->window);
    if (isPopup())
        zeltk::popupShown(this);
    else if (isModal())
        zeltk::modalShown(this);
}

void QWidget::hide()
{
    if (isDesktop())
        return;
    const bool wasHidden = isHidden();
    setWState(WState_ForceHide);
    wd->hiddenItself = true;
    if (!isVisible()) {
        if (!wasHidden && !isTopLevel()) {
            QEvent event(QEvent::HideToParent);
            QApplication::sendEvent(this, &event);
        }
        if (wd->mapped)
            hideWindow();
        return;
    }
    clearWState(WState_Visible);
    if (isPopup())
        zeltk::popupHidden(this);
    else if (isTopLevel() && isModal())
        zeltk::modalHidden(this);
    zeltk::widgetHidden(this);
    hideWindow();
    QHideEvent event;
    QApplication::sendEvent(this, &event);
    hideChildren(false);
    if (!isTopLevel() && parentWidget())
        QApplication::postEvent(parentWidget(), new QEvent(QEvent::LayoutHint));
}

// Windows inside a hidden one need not be unmapped; they reappear with it.
void QWidget::hideChildren(bool)
{
    for (QWidget* child : zeltk::childWidgets(this)) {
        if (child->isTopLevel() || !child->isVisible())
            continue;
        child->clearWState(WState_Visible);
        child->hideChildren(false);
        zeltk::widgetHidden(child);
        QHideEvent event;
        QApplication::sendEvent(child, &event);
    }
}

void QWidget::hideWindow()
{
    if (!wd->mapped || !wd->window)
        return;
    wd->mapped = false;
    wd->exposed = QRegion();
    if (isTopLevel() && !isPopup())
        zeltk::x11::withdrawWindow(wd->window);
    else
        zeltk::x11::unmapWindow(wd->window);
}

void QWidget::polish()
{
    if (testWState(WState_Polished))
        return;
    setWState(WState_Polished);
    zeltk::ensureStyled();
    qApp->polish(this);
}

void QWidget::constPolish() const
{
    if (!testWState(WState_Polished)) {
        QWidget* that = const_cast<QWidget*>(this);
        that->polish();
        that->setWState(WState_Polished);
    }
}

bool QWidget::isVisible() const
{
    return testWState(WState_Visible) != 0;
}

bool QWidget::isHidden() const
{
    return testWState(WState_ForceHide) != 0;
}

bool QWidget::isShown() const
{
    return !isHidden();
}

bool QWidget::isVisibleTo(QWidget* ancestor) const
{
    const QWidget* widget = this;
    while (widget && !widget->isHidden() && !widget->isTopLevel() && widget->parentWidget() &&
           widget->parentWidget() != ancestor)
        widget = widget->parentWidget();
    return widget && !widget->isHidden();
}

bool QWidget::isVisibleToTLW() const
{
    return isVisible();
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
    const bool wasTopLevel = isTopLevel();
    hide();
    if (wasMain)
        qApp->quit();
    else if (wasTopLevel && isLastWindow())
        qApp->lastWindowClosed();
    if (alsoDelete && alive)
        delete this;
    return true;
}
