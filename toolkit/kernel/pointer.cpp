// From the X server's pointer events to mouse events.
#include "kernel/applicationdata.h"
#include "kernel/applicationprivate.h"
#include "kernel/dispatch.h"
#include "kernel/widgetdata.h"

#include <qevent.h>

#include <algorithm>
#include <cstdlib>

namespace zeltk
{

namespace
{

Qt::ButtonState buttonOf(unsigned number)
{
    const Qt::ButtonState buttons[] = {Qt::NoButton, Qt::LeftButton, Qt::MidButton, Qt::RightButton};
    return number < 4 ? buttons[number] : Qt::NoButton;
}

bool anyButton(unsigned state)
{
    return (state & (leftBit | middleBit | rightBit)) != 0;
}

bool takesPointer(QWidget* widget)
{
    return widget->isVisible() && widget->isEnabled() && !blockedByModal(widget);
}

struct LastClick {
    QWidget* widget = nullptr; // only compared
    unsigned button = 0;
    unsigned long time = 0;
    QPoint pos; // on the screen
};
LastClick lastClick;

// A third click begins anew.
bool isDoubleClick(QWidget* widget, const x11::Event& e)
{
    const LastClick before = lastClick;
    const QPoint way = QPoint(e.rootX, e.rootY) - before.pos;
    const unsigned waited = static_cast<unsigned>(e.time - before.time); // the server's 32 bits go round
    const bool twice = before.widget == widget && before.button == e.button &&
                       waited < static_cast<unsigned>(QApplication::doubleClickInterval()) &&
                       std::abs(way.x()) < 5 && std::abs(way.y()) < 5;
    lastClick.widget = twice ? nullptr : widget;
    lastClick.button = e.button;
    lastClick.time = e.time;
    lastClick.pos = QPoint(e.rootX, e.rootY);
    return twice;
}

// The first of the widget and its parents that takes the focus by this gets it.
void focusBy(QWidget* widget, int policy)
{
    for (; widget; widget = widget->parentWidget(true)) {
        if (!widget->isEnabled() || (widget->focusPolicy() & policy) != policy)
            continue;
        QFocusEvent::setReason(QFocusEvent::Mouse);
        widget->setFocus();
        QFocusEvent::resetReason();
        return;
    }
}

void sendMouse(QWidget* widget, QEvent::Type type, const x11::Event& e)
{
    const QPoint global(e.rootX, e.rootY);
    const int button = type == QEvent::MouseMove ? Qt::NoButton : buttonOf(e.button);
    QMouseEvent event(type, widget->mapFromGlobal(global), global, button, stateOf(e.state));
    sendSpontaneous(widget, &event);
}

void press(QWidget* widget, QEvent::Type type, const x11::Event& e)
{
    const QGuardedPtr<QWidget> alive(widget);
    sendMouse(widget, type, e);
    if (e.button != 3 || alive.isNull())
        return;
    const QPoint global(e.rootX, e.rootY);
    QContextMenuEvent menu(QContextMenuEvent::Mouse, widget->mapFromGlobal(global), global, stateOf(e.state));
    sendSpontaneous(widget, &menu);
}

// The widget that an event over this one is for: grabs and held buttons come first, then open popups.
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

// What nobody under the pointer wants is offered to the one with the focus.
void wheel(QWidget* widget, const x11::Event& e)
{
    const QPoint global(e.rootX, e.rootY);
    const bool sideways = e.button > 5 || (e.state & altBit);
    const int delta = e.button % 2 == 0 ? 120 : -120;
    const QGuardedPtr<QWidget> under(widget);
    const QGuardedPtr<QWidget> focus(application()->focus);
    for (const QGuardedPtr<QWidget>& receiver : {under, focus}) {
        if (receiver.isNull() || !takesPointer(receiver))
            continue;
        if (static_cast<QWidget*>(receiver) == widget)
            focusBy(widget, QWidget::WheelFocus);
        if (receiver.isNull())
            continue;
        QWheelEvent event(receiver->mapFromGlobal(global), global, delta, stateOf(e.state),
                          sideways ? Qt::Horizontal : Qt::Vertical);
        if ((sendSpontaneous(receiver, &event) && event.isAccepted()) || focus.isNull() || under.isNull() ||
            isInside(focus, widget))
            return;
    }
}

// A click that closed the last popup belongs to the window beneath too.
void pressBesidePopup(QWidget* popup, QWidget* beneath, const x11::Event& e)
{
    const QGuardedPtr<QWidget> alive(beneath);
    press(popup, QEvent::MouseButtonPress, e);
    if (!application()->popups.empty() || alive.isNull() || !takesPointer(beneath))
        return;
    application()->pressed = beneath;
    focusBy(beneath, QWidget::ClickFocus);
    if (!alive.isNull())
        press(beneath, QEvent::MouseButtonPress, e);
}

// ---- enter and leave

// The innermost first.
std::vector<QWidget*> pathTo(QWidget* widget)
{
    std::vector<QWidget*> path;
    for (; widget; widget = widget->parentWidget(true))
        path.push_back(widget);
    return path;
}

void sendCrossing(QWidget* widget, QEvent::Type type)
{
    QEvent event(type);
    sendSpontaneous(widget, &event);
}

bool contains(const std::vector<QWidget*>& list, const QWidget* widget)
{
    return std::find(list.begin(), list.end(), widget) != list.end();
}

// Leaves from the inside to the outside, enters the other way; ancestors of both hear nothing. Any of them
// may die meanwhile.
void hover(QWidget* widget)
{
    ApplicationData* app = application();
    const std::vector<QWidget*> left = pathTo(app->hovered);
    const std::vector<QWidget*> entered = pathTo(widget);
    app->hovered = widget;
    for (QWidget* w : left)
        if (!contains(entered, w) && contains(everyWidget(), w))
            sendCrossing(w, QEvent::Leave);
    for (auto it = entered.rbegin(); it != entered.rend(); ++it)
        if (!contains(left, *it) && app->hovered == widget && contains(everyWidget(), *it))
            sendCrossing(*it, QEvent::Enter);
}

bool mayEnter(QWidget* widget)
{
    const QWidget* grabber = application()->mouseGrabber;
    return !blockedByModal(widget) && (!grabber || grabber == widget);
}

} // namespace

void buttonDown(QWidget* widget, const x11::Event& e)
{
    ApplicationData* app = application();
    if (!anyButton(e.state))
        app->pressed = nullptr;
    QWidget* target = pointerTarget(widget);
    if (buttonOf(e.button) == Qt::NoButton) {
        if (e.button >= 4 && e.button <= 7)
            wheel(target, e);
        return;
    }
    if (blockedByModal(target))
        QApplication::activeModalWidget()->raise();
    const bool twice = isDoubleClick(target, e);
    if (!takesPointer(target))
        return;
    if (!app->popups.empty() && target == app->popups.back() && !isInside(widget, target)) {
        pressBesidePopup(target, widget, e);
        return;
    }
    if (!app->mouseGrabber)
        app->pressed = target;
    const QGuardedPtr<QWidget> alive(target);
    focusBy(target, QWidget::ClickFocus);
    if (!alive.isNull())
        press(target, twice ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, e);
}

void buttonUp(QWidget* widget, const x11::Event& e)
{
    if (buttonOf(e.button) == Qt::NoButton)
        return;
    QWidget* target = pointerTarget(widget);
    const unsigned released = leftBit << (e.button - 1);
    if (!anyButton(e.state & ~released))
        application()->pressed = nullptr;
    if (takesPointer(target))
        sendMouse(target, QEvent::MouseButtonRelease, e);
}

void pointerMoved(QWidget* widget, const x11::Event& e)
{
    if (!anyButton(e.state))
        application()->pressed = nullptr;
    QWidget* target = pointerTarget(widget);
    if (takesPointer(target))
        sendMouse(target, QEvent::MouseMove, e);
}

void pointerEntered(QWidget* widget)
{
    if (mayEnter(widget))
        hover(widget);
}

// The widget sees where the pointer went before it hears that it is gone. Who is entered instead is known at
// once, so that common ancestors stay out of it.
void pointerLeft(QWidget* widget, const x11::Event& e)
{
    const QGuardedPtr<QWidget> alive(widget);
    const QWidget* grabber = application()->mouseGrabber;
    if (grabber && grabber != widget)
        return;
    pointerMoved(widget, e);
    if (alive.isNull())
        return;
    QWidget* next = QWidget::find(x11::takeEntered());
    if (next || isInside(application()->hovered, widget))
        hover(next && mayEnter(next) ? next : nullptr);
}

void leaveHovered()
{
    hover(nullptr);
}

void forgetHovered(QWidget* widget)
{
    if (application()->hovered && isInside(application()->hovered, widget))
        application()->hovered = nullptr;
    if (lastClick.widget == widget)
        lastClick.widget = nullptr;
}

} // namespace zeltk
