// From events of the X server to events of widgets.
#include "kernel/dispatch.h"

#include "kernel/applicationdata.h"
#include "kernel/applicationprivate.h"
#include "kernel/widgetdata.h"
#include "x11/window.h"
#include "x11/wmhints.h"

namespace zeltk
{

namespace
{

// The window manager tells where the window is on the screen; the server tells where it is in its frame.
void configured(QWidget* window, x11::Event e)
{
    x11::compressConfigured(&e);
    QPoint pos(e.x, e.y);
    const bool framed = window->geometry().topLeft() != window->frameGeometry().topLeft();
    int x = 0;
    int y = 0;
    if (!e.synthetic && framed && x11::rootPosition(window->winId(), &x, &y))
        pos = QPoint(x, y);
    windowConfigured(window, QRect(pos, QSize(e.width, e.height)));
}

void dispatchInput(QWidget* widget, const x11::Event& e)
{
    switch (e.type) {
    case x11::Event::KeyDown:
    case x11::Event::KeyUp:
        keyChanged(widget, e);
        break;
    case x11::Event::ButtonDown:
        buttonDown(widget, e);
        break;
    case x11::Event::ButtonUp:
        buttonUp(widget, e);
        break;
    case x11::Event::Motion: {
        x11::Event last = e;
        x11::compressMotion(&last);
        pointerMoved(widget, last);
        break;
    }
    case x11::Event::EnterWindow:
        pointerEntered(widget);
        break;
    case x11::Event::LeaveWindow:
        pointerLeft(widget, e);
        break;
    case x11::Event::FocusGained:
    case x11::Event::FocusLost:
        focusChanged(widget, e);
        break;
    default:
        break;
    }
}

void dispatchToWindow(QWidget* window, const x11::Event& e)
{
    switch (e.type) {
    case x11::Event::Configured:
        configured(window, e);
        break;
    case x11::Event::Mapped:
        windowMapped(window);
        break;
    case x11::Event::Unmapped:
        windowUnmapped(window);
        break;
    case x11::Event::IconicChanged:
        windowIconicChanged(window);
        break;
    case x11::Event::Reparented:
        windowReparented(window);
        break;
    case x11::Event::CloseRequest:
        if (!blockedByModal(window))
            window->close();
        break;
    case x11::Event::Ping:
        x11::answerPing(window->winId(), e.time);
        break;
    default:
        break;
    }
}

} // namespace

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

bool isInside(const QWidget* widget, const QWidget* ancestor)
{
    for (; widget; widget = widget->parentWidget())
        if (widget == ancestor)
            return true;
    return false;
}

bool dispatchEvents(bool withInput)
{
    x11::Event event;
    if (!x11::nextEvent(&event, withInput))
        return false;
    QWidget* widget = QWidget::find(event.window);
    if (!widget)
        return true;
    if (event.type == x11::Event::Exposed)
        windowExposed(widget, QRect(event.x, event.y, event.width, event.height), event.count);
    else if (event.type <= x11::Event::FocusLost)
        dispatchInput(widget, event);
    else if (widget->isTopLevel())
        dispatchToWindow(widget, event);
    return true;
}

} // namespace zeltk
