// QApplication: who has the keyboard, and where it goes when widgets come, go and are disabled.
#include "kernel/applicationdata.h"
#include "kernel/applicationprivate.h"
#include "kernel/dispatch.h"
#include "kernel/taborder.h"
#include "kernel/widgetdata.h"

#include <qapplication.h>
#include <qevent.h>
#include <qguardedptr.h>

namespace zeltk
{

namespace
{

void sendFocus(QWidget* widget, QEvent::Type type, QFocusEvent::Reason reason)
{
    QFocusEvent::setReason(reason);
    QFocusEvent event(type);
    QApplication::sendEvent(widget, &event);
    QFocusEvent::resetReason();
}

} // namespace

void moveFocus(QWidget* widget, QFocusEvent::Reason reason)
{
    ApplicationData* app = application();
    QWidget* before = app->focus;
    if (before == widget)
        return;
    app->focus = widget;
    if (before)
        sendFocus(before, QEvent::FocusOut, reason);
    if (widget && app->focus == widget)
        sendFocus(widget, QEvent::FocusIn, reason);
}

void takeFocusFrom(QWidget* widget)
{
    WidgetData* window = dataOf(widget->topLevelWidget());
    if (window->focus == widget)
        window->focus = nullptr;
    if (application()->focus == widget)
        moveFocus(nullptr, QFocusEvent::Other);
}

namespace
{

// The first in the Tab order, or else the window itself.
QWidget* firstFocus(QWidget* window)
{
    if (!window->isTopLevel())
        return nullptr;
    for (QWidget* candidate : dataOf(window)->tabOrder)
        if (candidate != window && takesTab(candidate))
            return candidate;
    return window->isEnabled() && window->focusPolicy() != QWidget::NoFocus ? window : nullptr;
}

} // namespace

void setActive(QWidget* window)
{
    ApplicationData* app = application();
    QWidget* before = app->active;
    if (before == window)
        return;
    app->active = window;
    if (before) {
        QEvent event(QEvent::WindowDeactivate);
        QApplication::sendEvent(before, &event);
    }
    if (window && app->active == window) {
        QEvent event(QEvent::WindowActivate);
        QApplication::sendEvent(window, &event);
    }
    QWidget* focus = nullptr;
    if (window && app->active == window) {
        if (!dataOf(window)->focus)
            dataOf(window)->focus = firstFocus(window);
        focus = dataOf(window)->focus;
    }
    moveFocus(focus, QFocusEvent::ActiveWindow);
}

QWidget* keyReceiver(QWidget* window)
{
    const ApplicationData* app = application();
    if (app->keyboardGrabber)
        return app->keyboardGrabber;
    if (!app->popups.empty()) {
        QWidget* popup = app->popups.back();
        return popup->focusWidget() ? popup->focusWidget() : popup;
    }
    if (app->focus && app->focus->isVisible())
        return app->focus;
    return window;
}

namespace
{

void forgetGrabs(QWidget* widget)
{
    ApplicationData* app = application();
    if (app->mouseGrabber == widget)
        widget->releaseMouse();
    if (app->keyboardGrabber == widget)
        widget->releaseKeyboard();
    if (app->pressed == widget)
        app->pressed = nullptr;
}

// The focus goes on to the next widget, or away.
void passFocusOn(QWidget* widget)
{
    if (dataOf(widget->topLevelWidget())->focus != widget || widget->isTopLevel())
        return;
    const QGuardedPtr<QWidget> alive(widget);
    const bool passed = application()->focus == widget && WidgetAccess::focusNextPrev(widget, true);
    if (!passed && alive)
        takeFocusFrom(widget);
}

} // namespace

void widgetHidden(QWidget* widget)
{
    const QGuardedPtr<QWidget> alive(widget);
    passFocusOn(widget);
    if (alive)
        forgetGrabs(widget);
    if (alive && application()->active == widget)
        setActive(nullptr);
}

void widgetLeavesPlace(QWidget* widget, bool leavesWindow)
{
    const QGuardedPtr<QWidget> alive(widget);
    const QWidget* holder = application()->focus;
    while (holder && holder != widget && !holder->isTopLevel())
        holder = holder->parentWidget();
    if (leavesWindow && holder && holder == widget)
        moveFocus(nullptr, QFocusEvent::Other);
    if (alive)
        forgetGrabs(widget);
    if (alive && application()->active == widget)
        setActive(nullptr);
    if (alive && leavesWindow)
        leaveTabOrder(widget);
}

// Who is disabled together with the parent has no next one, and neither has a window.
void widgetDisabled(QWidget* widget)
{
    const QWidget* parent = widget->parentWidget(true);
    if (!parent || !parent->isEnabled())
        takeFocusFrom(widget);
    else
        passFocusOn(widget);
}

void widgetDestroyed(QWidget* widget)
{
    ApplicationData* app = application();
    widgetHidden(widget);
    forgetHovered(widget);
    forget(&app->popups, widget);
    forget(&app->modals, widget);
    if (app->focus == widget)
        app->focus = nullptr;
    if (app->mainWidget == widget)
        app->mainWidget = nullptr;
    if (app->desktop == widget)
        app->desktop = nullptr;
    leaveTabOrder(widget);
}

} // namespace zeltk
