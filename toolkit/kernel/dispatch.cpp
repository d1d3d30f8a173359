// From events of the X server to events of widgets.
#include "kernel/applicationdata.h"
#include "kernel/applicationprivate.h"
#include "kernel/widgetdata.h"
#include "tools/unicode.h"
#include "x11/events.h"
#include "x11/input.h"
#include "x11/window.h"
#include "x11/wmhints.h"

#include <qevent.h>
#include <qwidget.h>

#include <algorithm>
#include <cstdlib>

namespace zeltk
{

namespace
{

// The bits of the X server.
constexpr unsigned shiftBit = 1U << 0;
constexpr unsigned controlBit = 1U << 2;
constexpr unsigned altBit = 1U << 3;
constexpr unsigned metaBit = 1U << 6;
constexpr unsigned leftBit = 1U << 8;
constexpr unsigned middleBit = 1U << 9;
constexpr unsigned rightBit = 1U << 10;

int stateOf(unsigned bits)
{
    const struct {
        unsigned bit;
        int state;
    } table[] = {{shiftBit, Qt::ShiftButton}, {controlBit, Qt::ControlButton}, {altBit, Qt::AltButton},
                 {metaBit, Qt::MetaButton},   {leftBit, Qt::LeftButton},       {middleBit, Qt::MidButton},
                 {rightBit, Qt::RightButton}};
    int state = 0;
    for (const auto& entry : table)
        if (bits & entry.bit)
            state |= entry.state;
    return state;
}

Qt::ButtonState buttonOf(unsigned number)
{
    return number == 1   ? Qt::LeftButton
           : number == 2 ? Qt::MidButton
           : number == 3 ? Qt::RightButton
                         : Qt::NoButton;
}

bool isInside(const QWidget* widget, const QWidget* ancestor)
{
    for (; widget; widget = widget->parentWidget())
        if (widget == ancestor)
            return true;
    return false;
}

bool anyButton(unsigned state)
{
    return (state & (leftBit | middleBit | rightBit)) != 0;
}

// ---- pointer

struct LastClick {
    QWidget* widget = nullptr; // only compared
    unsigned button = 0;
    unsigned long time = 0;
    QPoint pos;
};
LastClick lastClick;

bool isDoubleClick(const QWidget* widget, const x11::Event& e)
{
    const LastClick& before = lastClick;
    return before.widget == widget && before.button == e.button &&
           e.time - before.time < static_cast<unsigned long>(QApplication::doubleClickInterval()) &&
           std::abs(e.x - before.pos.x()) < 5 && std::abs(e.y - before.pos.y()) < 5;
}

// The first of the widget and its parents that takes the focus by a click gets it.
void focusByClick(QWidget* widget)
{
    for (; widget; widget = widget->parentWidget(true)) {
        if (widget->isEnabled() && (widget->focusPolicy() & QWidget::ClickFocus)) {
            QFocusEvent::setReason(QFocusEvent::Mouse);
            widget->setFocus();
            QFocusEvent::resetReason();
            return;
        }
        if (widget->isTopLevel())
            return;
    }
}

void sendMouse(QWidget* widget, QEvent::Type type, const QPoint& global, int button, unsigned state)
{
    QMouseEvent event(type, widget->mapFromGlobal(global), global, button, stateOf(state));
    sendSpontaneous(widget, &event);
}

// The widget that an event in this window is for: grabs and held buttons come first, then open popups.
QWidget* pointerTarget(QWidget* widget)
{
    const ApplicationData* app = application();
    if (app->mouseGrabber)
        return app->mouseGrabber;
    if (app->pressed)
        return app->pressed;
    if (!app->popups.empty() && !isInside(widget, app->popups.back()))
        return app->popups.back();
    return widget;
}

void wheel(QWidget* widget, const x11::Event& e)
{
    if (blockedByModal(widget) || !widget->isEnabled())
        return;
    const QPoint global(e.rootX, e.rootY);
    const bool vertical = e.button < 6;
    QWheelEvent event(widget->mapFromGlobal(global), global, e.button % 2 == 0 ? 120 : -120, stateOf(e.state),
                      vertical ? Qt::Vertical : Qt::Horizontal);
    sendSpontaneous(widget, &event);
}

void buttonDown(QWidget* widget, const x11::Event& e)
{
    if (e.button >= 4) {
        if (e.button <= 7)
            wheel(pointerTarget(widget), e);
        return;
    }
    ApplicationData* app = application();
    QWidget* target = pointerTarget(widget);
    if (blockedByModal(target)) {
        if (!app->modals.empty())
            app->modals.back()->raise();
        return;
    }
    const QPoint global(e.rootX, e.rootY);
    const bool outside = !app->popups.empty() && target == app->popups.back() && !isInside(widget, target);
    const bool twice = isDoubleClick(target, e);
    lastClick.widget = twice ? nullptr : target;
    lastClick.button = e.button;
    lastClick.time = e.time;
    lastClick.pos = QPoint(e.x, e.y);
    if (!target->isEnabled())
        return;
    if (!anyButton(e.state) && !app->mouseGrabber && !outside)
        app->pressed = target;
    if (app->popups.empty())
        focusByClick(target);
    const size_t popups = app->popups.size();
    sendMouse(target, twice ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, global,
              buttonOf(e.button), e.state);
    // A click that closed a popup belongs to the window beneath too.
    if (outside && app->popups.size() < popups && app->popups.empty() && widget->isVisible() &&
        widget->isEnabled() && !blockedByModal(widget)) {
        app->pressed = widget;
        focusByClick(widget);
        sendMouse(widget, QEvent::MouseButtonPress, global, buttonOf(e.button), e.state);
    }
}

void buttonUp(QWidget* widget, const x11::Event& e)
{
    if (e.button >= 4)
        return;
    ApplicationData* app = application();
    QWidget* target = pointerTarget(widget);
    const unsigned released = e.button == 1 ? leftBit : e.button == 2 ? middleBit : rightBit;
    if (!anyButton(e.state & ~released))
        app->pressed = nullptr;
    if (!blockedByModal(target) && target->isEnabled())
        sendMouse(target, QEvent::MouseButtonRelease, QPoint(e.rootX, e.rootY), buttonOf(e.button), e.state);
}

void motion(QWidget* widget, x11::Event e)
{
    x11::compressMotion(&e);
    QWidget* target = pointerTarget(widget);
    if (!blockedByModal(target) && target->isEnabled())
        sendMouse(target, QEvent::MouseMove, QPoint(e.rootX, e.rootY), Qt::NoButton, e.state);
}

// ---- enter and leave

std::vector<QWidget*> pathTo(QWidget* widget)
{
    std::vector<QWidget*> path;
    for (; widget; widget = widget->parentWidget(true))
        path.push_back(widget);
    return path; // the innermost first
}

void sendCrossing(QWidget* widget, QEvent::Type type)
{
    if (type == QEvent::Enter)
        WidgetAccess::setState(widget, Qt::WState_HasMouse);
    else
        WidgetAccess::clearState(widget, Qt::WState_HasMouse);
    if (!widget->isEnabled() && type == QEvent::Enter)
        return;
    QEvent event(type);
    sendSpontaneous(widget, &event);
}

// Ancestors of both hear nothing.
void hover(QWidget* widget)
{
    ApplicationData* app = application();
    if (widget == app->hovered)
        return;
    const std::vector<QWidget*> left = pathTo(app->hovered);
    const std::vector<QWidget*> entered = pathTo(widget);
    app->hovered = widget;
    for (QWidget* w : left) {
        if (std::find(entered.begin(), entered.end(), w) != entered.end())
            break;
        sendCrossing(w, QEvent::Leave);
    }
    for (auto it = entered.rbegin(); it != entered.rend(); ++it)
        if (std::find(left.begin(), left.end(), *it) == left.end() && app->hovered == widget)
            sendCrossing(*it, QEvent::Enter);
}

// A leave waits for the enter that belongs to it.
bool leavePending = false;

void finishLeave()
{
    if (leavePending) {
        leavePending = false;
        hover(nullptr);
    }
}

void crossing(QWidget* widget, const x11::Event& e)
{
    if (e.byGrab)
        return;
    if (e.type == x11::Event::LeaveWindow) {
        leavePending = leavePending || application()->hovered == widget;
        return;
    }
    if (application()->pressed && application()->pressed != widget)
        return;
    leavePending = false;
    if (!blockedByModal(widget))
        hover(widget);
}

// ---- keyboard

void key(QWidget* window, const x11::Event& e)
{
    QWidget* receiver = keyReceiver(window->topLevelWidget());
    if (!receiver || blockedByModal(receiver) || !receiver->isEnabled())
        return;
    int code = keyCode(e.keysym);
    if (code == Qt::Key_Tab && (e.state & shiftBit))
        code = Qt::Key_Backtab;
    const QString text = fromUtf8(e.text);
    const int ascii = text.length() == 1 ? text.at(0).unicode() & 0xff : 0;
    if (code == 0)
        code = ascii ? ascii : static_cast<int>(Qt::Key_unknown);
    const bool down = e.type == x11::Event::KeyDown;
    const QEvent::Type type = down ? QEvent::KeyPress : QEvent::KeyRelease;
    const int state = stateOf(e.state);
    if (down && !application()->keyboardGrabber) {
        QKeyEvent wish(QEvent::AccelOverride, code, ascii, state, text, e.autoRepeat);
        wish.ignore();
        QKeyEvent shortcut(QEvent::Accel, code, ascii, state, text, e.autoRepeat);
        if (activateAccelerator(receiver->topLevelWidget(), &shortcut))
            return;
    }
    QKeyEvent event(type, code, ascii, state, text, e.autoRepeat);
    sendSpontaneous(receiver, &event);
}

void focusChanged(QWidget* window, const x11::Event& e)
{
    if (e.byGrab || window->isPopup())
        return;
    if (e.type == x11::Event::FocusGained) {
        QWidget* modal = QApplication::activeModalWidget();
        if (modal && blockedByModal(window)) {
            modal->setActiveWindow();
            return;
        }
        setActive(window->topLevelWidget());
    } else if (application()->active == window && application()->popups.empty()) {
        setActive(nullptr);
    }
}

// ---- windows

void configured(QWidget* window, const x11::Event& e)
{
    if (!window->isTopLevel())
        return;
    QPoint pos(e.x, e.y);
    const bool framed = window->geometry().topLeft() != window->frameGeometry().topLeft();
    int x = 0;
    int y = 0;
    if (!e.synthetic && framed && x11::rootPosition(window->winId(), &x, &y))
        pos = QPoint(x, y);
    windowConfigured(window, QRect(pos, QSize(e.width, e.height)));
}

void dispatch(const x11::Event& e)
{
    if (e.type != x11::Event::EnterWindow && e.type != x11::Event::LeaveWindow)
        finishLeave();
    QWidget* widget = QWidget::find(e.window);
    if (!widget)
        return;
    switch (e.type) {
    case x11::Event::KeyDown:
    case x11::Event::KeyUp:
        key(widget, e);
        break;
    case x11::Event::ButtonDown:
        buttonDown(widget, e);
        break;
    case x11::Event::ButtonUp:
        buttonUp(widget, e);
        break;
    case x11::Event::Motion:
        motion(widget, e);
        break;
    case x11::Event::EnterWindow:
    case x11::Event::LeaveWindow:
        crossing(widget, e);
        break;
    case x11::Event::FocusGained:
    case x11::Event::FocusLost:
        focusChanged(widget, e);
        break;
    case x11::Event::Exposed:
        windowExposed(widget, QRect(e.x, e.y, e.width, e.height), e.count);
        break;
    case x11::Event::Configured:
        configured(widget, e);
        break;
    case x11::Event::Mapped:
        windowMapped(widget);
        break;
    case x11::Event::Unmapped:
        windowUnmapped(widget);
        break;
    case x11::Event::Reparented:
        if (widget->isTopLevel())
            windowReparented(widget);
        break;
    case x11::Event::CloseRequest:
        if (!blockedByModal(widget))
            widget->close();
        break;
    case x11::Event::Ping:
        x11::answerPing(widget->winId(), e.time);
        break;
    case x11::Event::Other:
        break;
    }
}

} // namespace

bool dispatchEvents()
{
    x11::Event event;
    if (!x11::nextEvent(&event)) {
        finishLeave();
        return false;
    }
    dispatch(event);
    return true;
}

void popupShown(QWidget* popup)
{
    ApplicationData* app = application();
    app->popups.push_back(popup);
    app->pressed = nullptr;
    if (app->popups.size() == 1) {
        x11::grabPointer(popup->winId(), 0, true, x11::lastTime());
        x11::grabKeyboard(popup->winId(), x11::lastTime());
    }
    if (popup->focusWidget())
        moveFocus(popup->focusWidget(), QFocusEvent::Popup);
    else
        moveFocus(nullptr, QFocusEvent::Popup);
}

void popupHidden(QWidget* popup)
{
    ApplicationData* app = application();
    app->popups.erase(std::remove(app->popups.begin(), app->popups.end(), popup), app->popups.end());
    if (!app->popups.empty())
        return;
    x11::ungrabPointer(x11::lastTime());
    x11::ungrabKeyboard(x11::lastTime());
    if (app->active)
        moveFocus(dataOf(app->active)->focus, QFocusEvent::Popup);
}

void modalShown(QWidget* modal)
{
    application()->modals.push_back(modal);
    application()->pressed = nullptr;
    hover(nullptr);
}

void modalHidden(QWidget* modal)
{
    std::vector<QWidget*>& modals = application()->modals;
    modals.erase(std::remove(modals.begin(), modals.end(), modal), modals.end());
}

// Windows that belong to the modal one stay open to the user.
bool blockedByModal(QWidget* widget)
{
    const QWidget* modal = QApplication::activeModalWidget();
    if (!modal || widget->topLevelWidget()->isPopup())
        return false;
    return !isInside(widget, modal);
}

} // namespace zeltk
