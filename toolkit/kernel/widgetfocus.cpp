// QWidget: keyboard focus, Tab order, activation, grabs.
#include <qwidget.h>

#include "kernel/applicationdata.h"
#include "kernel/applicationprivate.h"
#include "kernel/dispatch.h"
#include "kernel/widgetdata.h"
#include "x11/events.h"
#include "x11/input.h"
#include "x11/wmhints.h"

#include <qapplication.h>
#include <qguardedptr.h>

#include <algorithm>

using zeltk::application;
using zeltk::dataOf;
namespace x11 = zeltk::x11;

namespace
{

template <typename Item>
void removeFrom(std::vector<Item>* list, Item item)
{
    list->erase(std::remove(list->begin(), list->end(), item), list->end());
}

bool takesTab(const QWidget* widget)
{
    return (widget->focusPolicy() & QWidget::TabFocus) && widget->isEnabled() &&
           widget->isVisibleTo(widget->topLevelWidget()) && !widget->focusProxy();
}

void sendFocus(QWidget* widget, QEvent::Type type, QFocusEvent::Reason reason)
{
    QFocusEvent::setReason(reason);
    QFocusEvent event(type);
    QApplication::sendEvent(widget, &event);
    QFocusEvent::resetReason();
}

} // namespace

namespace zeltk
{

// Nobody who is about to die with a parent comes back.
void joinTabOrder(QWidget* widget)
{
    for (const QWidget* each = widget; each; each = each->parentWidget(true))
        if (dataOf(each)->dying)
            return;
    std::vector<QWidget*>& order = dataOf(widget->topLevelWidget())->tabOrder;
    if (widget->focusPolicy() != QWidget::NoFocus &&
        std::find(order.begin(), order.end(), widget) == order.end())
        order.push_back(widget);
    for (QWidget* child : childWidgets(widget))
        if (!child->isTopLevel())
            joinTabOrder(child);
}

void leaveTabOrder(QWidget* widget)
{
    WidgetData* window = dataOf(widget->topLevelWidget());
    removeFrom(&window->tabOrder, widget);
    if (window->focus == widget)
        window->focus = nullptr;
    for (QWidget* child : childWidgets(widget))
        if (!child->isTopLevel())
            leaveTabOrder(child);
}

// Tells the one who loses the focus and the one who gets it. Null: nobody gets it.
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

// From the widget itself, whatever its proxy.
static void takeFocusFrom(QWidget* widget)
{
    WidgetData* window = dataOf(widget->topLevelWidget());
    if (window->focus == widget)
        window->focus = nullptr;
    if (application()->focus == widget)
        moveFocus(nullptr, QFocusEvent::Other);
}

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
        focus = dataOf(window)->focus;
        if (!focus && window->isTopLevel()) {
            for (QWidget* candidate : dataOf(window)->tabOrder)
                if (!focus && candidate != window && takesTab(candidate))
                    focus = candidate;
            if (!focus && window->isEnabled() && window->focusPolicy() != QWidget::NoFocus)
                focus = window;
            dataOf(window)->focus = focus;
        }
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
    if (leavesWindow && holder == widget)
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
    removeFrom(&app->popups, widget);
    removeFrom(&app->modals, widget);
    if (app->focus == widget)
        app->focus = nullptr;
    if (app->mainWidget == widget)
        app->mainWidget = nullptr;
    if (app->desktop == widget)
        app->desktop = nullptr;
    leaveTabOrder(widget);
}

} // namespace zeltk

QWidget::FocusPolicy QWidget::focusPolicy() const
{
    return w->focusPolicy;
}

void QWidget::setFocusPolicy(FocusPolicy policy)
{
    if (w->focusProxy)
        w->focusProxy->setFocusPolicy(policy);
    w->focusPolicy = policy;
    zeltk::joinTabOrder(this);
}

bool QWidget::hasFocus() const
{
    const QWidget* widget = this;
    while (zeltk::dataOf(widget)->focusProxy)
        widget = zeltk::dataOf(widget)->focusProxy;
    return application()->focus == widget;
}

QWidget* QWidget::focusWidget() const
{
    return dataOf(topLevelWidget())->focus;
}

QWidget* QWidget::focusProxy() const
{
    return w->focusProxy;
}

void QWidget::setFocusProxy(QWidget* proxy)
{
    for (const QWidget* end = proxy; end; end = end->focusProxy())
        if (end == this) {
            qWarning("QWidget::setFocusProxy: %s would be its own focus proxy", name());
            return;
        }
    w->focusProxy = proxy;
    if (proxy)
        zeltk::dataOf(proxy)->isFocusProxy = true;
    if (proxy && w->focusPolicy == NoFocus)
        setFocusPolicy(proxy->focusPolicy());
}

void QWidget::focusProxyDestroyed()
{
    w->focusProxy = nullptr;
    setFocusPolicy(NoFocus);
}

void QWidget::setFocus()
{
    if (!isEnabled())
        return;
    if (w->focusProxy) {
        w->focusProxy->setFocus();
        return;
    }
    QWidget* window = topLevelWidget();
    dataOf(window)->focus = this;
    if (!isActiveWindow())
        return;
    const QFocusEvent::Reason reason = QFocusEvent::reason();
    zeltk::moveFocus(this, reason);
}

void QWidget::clearFocus()
{
    if (w->focusProxy) {
        w->focusProxy->clearFocus();
        return;
    }
    zeltk::takeFocusFrom(this);
}

bool QWidget::focusNextPrevChild(bool next)
{
    if (!isTopLevel() && parentWidget())
        return zeltk::WidgetAccess::focusNextPrev(parentWidget(), next);
    const std::vector<QWidget*> order = w->tabOrder;
    const int size = static_cast<int>(order.size());
    const auto here = std::find(order.begin(), order.end(), w->focus);
    int place = here == order.end() ? (next ? -1 : size) : static_cast<int>(here - order.begin());
    for (int i = 0; i < size; ++i) {
        place = (place + (next ? 1 : -1) + size) % size;
        QWidget* candidate = order[static_cast<size_t>(place)];
        if (candidate == w->focus || candidate == this || !takesTab(candidate))
            continue;
        candidate->setFocus();
        return true;
    }
    return false;
}

void QWidget::setTabOrder(QWidget* first, QWidget* second)
{
    if (!first || !second || first == second || first->topLevelWidget() != second->topLevelWidget())
        return;
    while (dataOf(first)->focusProxy)
        first = dataOf(first)->focusProxy;
    while (dataOf(second)->focusProxy)
        second = dataOf(second)->focusProxy;
    std::vector<QWidget*>& order = dataOf(first->topLevelWidget())->tabOrder;
    if (first == second || std::find(order.begin(), order.end(), first) == order.end() ||
        std::find(order.begin(), order.end(), second) == order.end())
        return;
    removeFrom(&order, second);
    order.insert(std::find(order.begin(), order.end(), first) + 1, second);
}

bool QWidget::isActiveWindow() const
{
    const QWidget* window = topLevelWidget();
    return application()->active == window || window->isPopup();
}

// With a window manager the keyboard is its to give.
void QWidget::setActiveWindow()
{
    QWidget* window = topLevelWidget();
    if (!window->isVisible())
        return;
    if (x11::hasWindowManager())
        x11::requestActivation(window->winId());
    x11::setInputFocus(window->winId());
}

void QWidget::grabMouse()
{
    if (application()->mouseGrabber)
        application()->mouseGrabber->releaseMouse();
    if (isVisible() && x11::grabPointer(winId(), 0, false, x11::lastTime()))
        application()->mouseGrabber = this;
}

void QWidget::grabMouse(const QCursor& cursor)
{
    if (application()->mouseGrabber)
        application()->mouseGrabber->releaseMouse();
    if (isVisible() && x11::grabPointer(winId(), cursor.handle(), false, x11::lastTime()))
        application()->mouseGrabber = this;
}

void QWidget::releaseMouse()
{
    if (application()->mouseGrabber != this)
        return;
    x11::ungrabPointer(x11::lastTime());
    application()->mouseGrabber = nullptr;
}

void QWidget::grabKeyboard()
{
    if (application()->keyboardGrabber)
        application()->keyboardGrabber->releaseKeyboard();
    if (isVisible() && x11::grabKeyboard(winId(), x11::lastTime()))
        application()->keyboardGrabber = this;
}

void QWidget::releaseKeyboard()
{
    if (application()->keyboardGrabber != this)
        return;
    x11::ungrabKeyboard(x11::lastTime());
    application()->keyboardGrabber = nullptr;
}

QWidget* QWidget::mouseGrabber()
{
    return application()->mouseGrabber;
}

QWidget* QWidget::keyboardGrabber()
{
    return application()->keyboardGrabber;
}
