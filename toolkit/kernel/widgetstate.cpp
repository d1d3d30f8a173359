// QWidget: enabled or not; normal, iconified, maximized or filling the screen.
#include "kernel/applicationprivate.h"
#include "kernel/widgetdata.h"
#include "x11/window.h"
#include "x11/wmhints.h"

#include <qapplication.h>
#include <qdesktopwidget.h>
#include <qevent.h>

namespace
{

unsigned managerBits(uint state)
{
    unsigned bits = 0;
    if (state & Qt::WindowMaximized)
        bits |= zeltk::x11::StateMaximized;
    if (state & Qt::WindowFullScreen)
        bits |= zeltk::x11::StateFullScreen;
    return bits;
}

} // namespace

namespace zeltk
{

void refreshEnabled(QWidget* widget)
{
    const QWidget* const container = widget->parentWidget(true);
    const bool enable = !dataOf(widget)->disabledItself && (!container || container->isEnabled());
    if (enable == widget->isEnabled())
        return;
    if (enable) {
        WidgetAccess::clearState(widget, Qt::WState_Disabled);
    } else {
        WidgetAccess::setState(widget, Qt::WState_Disabled);
        widgetDisabled(widget);
    }
    WidgetAccess::setBackground(widget);
    WidgetAccess::enabledChange(widget, !enable);
    for (QWidget* child : childWidgets(widget))
        if (!child->isTopLevel())
            refreshEnabled(child);
}

} // namespace zeltk

bool QWidget::isEnabled() const
{
    return !testWState(WState_Disabled);
}

bool QWidget::isEnabledTo(QWidget* ancestor) const
{
    const QWidget* widget = this;
    while (widget && !widget->wd->disabledItself && !widget->isTopLevel() &&
           widget->parentWidget() != ancestor)
        widget = widget->parentWidget();
    return !widget || !widget->wd->disabledItself;
}

bool QWidget::isEnabledToTLW() const
{
    return isEnabled();
}

void QWidget::setEnabled(bool enable)
{
    wd->disabledItself = !enable;
    zeltk::refreshEnabled(this);
}

void QWidget::setDisabled(bool disable)
{
    setEnabled(!disable);
}

void QWidget::enabledChange(bool)
{
    update();
}

bool QWidget::isMinimized() const
{
    return (windowState() & WindowMinimized) != 0;
}

bool QWidget::isMaximized() const
{
    return (windowState() & WindowMaximized) != 0;
}

bool QWidget::isFullScreen() const
{
    return (windowState() & WindowFullScreen) != 0;
}

uint QWidget::windowState() const
{
    return wd->top ? wd->top->windowState : 0u;
}

void QWidget::setWindowState(uint state)
{
    const uint before = windowState();
    if (!isTopLevel() || state == before)
        return;
    const uint large = WindowMaximized | WindowFullScreen;
    wd->top->windowState = state;
    if ((state & large) && !(before & large))
        wd->top->normalGeometry = geometry();
    if (isVisible()) {
        if (managerBits(before & ~state))
            zeltk::x11::requestState(wd->window, managerBits(before & ~state), false);
        if (managerBits(state & ~before))
            zeltk::x11::requestState(wd->window, managerBits(state & ~before), true);
        if (state & ~before & WindowMinimized)
            zeltk::x11::iconifyWindow(wd->window);
        else if (before & ~state & WindowMinimized)
            zeltk::x11::mapWindow(wd->window);
    } else {
        wd->top->described = false;
    }
    if ((state ^ before) & large)
        setGeometry(state & WindowFullScreen  ? QApplication::desktop()->screenGeometry()
                    : state & WindowMaximized ? QApplication::desktop()->availableGeometry()
                                              : wd->top->normalGeometry);
    QEvent event(QEvent::WindowStateChange);
    QApplication::sendEvent(this, &event);
}

void QWidget::iconify()
{
    showMinimized();
}

void QWidget::showMinimized()
{
    setWindowState(windowState() | WindowMinimized);
    show();
}

void QWidget::showMaximized()
{
    setWindowState((windowState() & ~(WindowMinimized | WindowFullScreen)) | WindowMaximized);
    show();
}

void QWidget::showFullScreen()
{
    setWindowState((windowState() & ~(WindowMinimized | WindowMaximized)) | WindowFullScreen);
    show();
}

void QWidget::showNormal()
{
    setWindowState(windowState() & ~(WindowMinimized | WindowMaximized | WindowFullScreen));
    show();
}
