// Events of the X server in plain form.
#include "x11/events.h"

#include "x11/keys.h"
#include "x11/selection.h"
#include "x11/xlib.h"

#include <deque>

namespace zeltk
{
namespace x11
{

namespace
{

unsigned long latest = 0;
unsigned long serial = 0;
std::deque<Event> keptInput;

void noteTime(unsigned long time, Event* event)
{
    event->time = time;
    if (time)
        latest = time;
}

// A held key sends a release and a press of the same time over and over.
bool isRepeat(const XKeyEvent& key)
{
    if (key.type != XKeyRelease || !XEventsQueued(display(), QueuedAfterReading))
        return false;
    XEvent next;
    XPeekEvent(display(), &next);
    return next.type == XKeyPress && next.xkey.keycode == key.keycode && next.xkey.window == key.window &&
           next.xkey.time - key.time < 2;
}

void readKey(XKeyEvent* key, Event* event)
{
    static unsigned repeating = 0; // code of the key that is held
    event->type = key->type == XKeyPress ? Event::KeyDown : Event::KeyUp;
    noteTime(key->time, event);
    event->state = key->state;
    event->rootX = key->x_root;
    event->rootY = key->y_root;
    const KeyMeaning meaning = meaningOf(reinterpret_cast<XEvent*>(key));
    event->keysym = meaning.symbol;
    event->text = meaning.text;
    if (key->type == XKeyRelease) {
        event->autoRepeat = isRepeat(*key);
        repeating = event->autoRepeat ? key->keycode : 0;
    } else {
        event->autoRepeat = repeating == key->keycode;
        repeating = 0;
    }
}

// What events of buttons, motions and crossings have in common.
template <typename PointerEvent>
void readPointer(const PointerEvent& pointer, Event::Type type, Event* event)
{
    event->type = type;
    noteTime(pointer.time, event);
    event->x = pointer.x;
    event->y = pointer.y;
    event->rootX = pointer.x_root;
    event->rootY = pointer.y_root;
    event->state = pointer.state;
}

void readButton(const XButtonEvent& button, Event* event)
{
    readPointer(button, button.type == ButtonPress ? Event::ButtonDown : Event::ButtonUp, event);
    event->button = button.button;
}

// Whether the pointer really comes or goes: not when it passes through to a window further inside or outside,
// nor when a grab begins. At the end of a grab a window does not hear of what was inside of it all the time.
bool isCrossing(const XCrossingEvent& crossing)
{
    if (crossing.detail == NotifyVirtual || crossing.detail == NotifyNonlinearVirtual)
        return false;
    if (crossing.type == EnterNotify && crossing.mode == NotifyUngrab)
        return crossing.detail != NotifyInferior;
    return crossing.mode == NotifyNormal;
}

void readCrossing(const XCrossingEvent& crossing, Event* event)
{
    noteTime(crossing.time, event);
    if (isCrossing(crossing))
        readPointer(crossing, crossing.type == EnterNotify ? Event::EnterWindow : Event::LeaveWindow, event);
}

void readFocus(const XFocusChangeEvent& focus, Event* event)
{
    const bool toPointer = focus.detail == NotifyPointer || focus.detail == NotifyPointerRoot ||
                           focus.detail == NotifyDetailNone;
    const bool byGrab = focus.mode == NotifyGrab || focus.mode == NotifyUngrab;
    if (toPointer || byGrab || focus.detail == NotifyInferior)
        return;
    event->type = focus.type == XFocusIn ? Event::FocusGained : Event::FocusLost;
}

void readConfigure(const XConfigureEvent& configure, Event* event)
{
    if (configure.event != configure.window)
        return;
    event->type = Event::Configured;
    event->x = configure.x;
    event->y = configure.y;
    event->width = configure.width;
    event->height = configure.height;
    event->synthetic = configure.send_event != 0;
}

void readMessage(const XClientMessageEvent& message, Event* event)
{
    if (message.message_type != atom("WM_PROTOCOLS") || message.format != 32)
        return;
    const Atom protocol = static_cast<Atom>(message.data.l[0]);
    noteTime(static_cast<unsigned long>(message.data.l[1]), event);
    if (protocol == atom("WM_DELETE_WINDOW"))
        event->type = Event::CloseRequest;
    else if (protocol == atom("_NET_WM_PING"))
        event->type = Event::Ping;
}

void translate(XEvent* x, Event* event)
{
    event->window = x->xany.window;
    switch (x->type) {
    case XKeyPress:
    case XKeyRelease:
        readKey(&x->xkey, event);
        break;
    case ButtonPress:
    case ButtonRelease:
        readButton(x->xbutton, event);
        break;
    case MotionNotify:
        readPointer(x->xmotion, Event::Motion, event);
        break;
    case EnterNotify:
    case LeaveNotify:
        readCrossing(x->xcrossing, event);
        break;
    case XFocusIn:
    case XFocusOut:
        readFocus(x->xfocus, event);
        break;
    case Expose:
    case GraphicsExpose:
        event->type = Event::Exposed;
        event->x = x->xexpose.x;
        event->y = x->xexpose.y;
        event->width = x->xexpose.width;
        event->height = x->xexpose.height;
        event->count = x->xexpose.count;
        break;
    case ConfigureNotify:
        readConfigure(x->xconfigure, event);
        break;
    case MapNotify:
        event->type = x->xmap.event == x->xmap.window ? Event::Mapped : Event::Other;
        break;
    case UnmapNotify:
        event->type = x->xunmap.event == x->xunmap.window ? Event::Unmapped : Event::Other;
        break;
    case ReparentNotify:
        event->type = x->xreparent.event == x->xreparent.window ? Event::Reparented : Event::Other;
        break;
    case PropertyNotify:
        noteTime(x->xproperty.time, event);
        if (x->xproperty.atom == atom("WM_STATE"))
            event->type = Event::IconicChanged;
        break;
    case MappingNotify:
        XRefreshKeyboardMapping(&x->xmapping);
        break;
    case ClientMessage:
        readMessage(x->xclient, event);
        break;
    default:
        break;
    }
}

} // namespace

bool eventsPending(bool withInput)
{
    return (withInput && !keptInput.empty()) || XPending(display()) > 0;
}

bool nextEvent(Event* event, bool withInput)
{
    if (withInput && !keptInput.empty()) {
        *event = keptInput.front();
        keptInput.pop_front();
        return true;
    }
    while (XPending(display()) > 0) {
        XEvent x;
        XNextEvent(display(), &x);
        *event = Event();
        serial = x.xany.serial;
        if (!filteredByInputMethod(&x) && !handleSelectionEvent(&x))
            translate(&x, event);
        if (withInput || event->type == Event::Other || event->type > Event::LeaveWindow)
            return true;
        keptInput.push_back(*event);
    }
    return false;
}

void compressMotion(Event* event)
{
    while (XEventsQueued(display(), QueuedAlready) > 0) {
        XEvent next;
        XPeekEvent(display(), &next);
        if (next.type != MotionNotify || next.xmotion.window != event->window ||
            next.xmotion.state != event->state)
            return;
        XNextEvent(display(), &next);
        readPointer(next.xmotion, Event::Motion, event);
    }
}

void compressConfigured(Event* event)
{
    XEvent next;
    while (XCheckTypedWindowEvent(display(), event->window, ConfigureNotify, &next)) {
        serial = next.xany.serial;
        readConfigure(next.xconfigure, event);
    }
}

XId takeEntered()
{
    XId entered = 0;
    XEvent event;
    while (XCheckMaskEvent(display(), EnterWindowMask | LeaveWindowMask, &event))
        if (event.type == EnterNotify && isCrossing(event.xcrossing))
            entered = event.xcrossing.window;
    return entered;
}

unsigned long lastTime()
{
    return latest;
}

unsigned long lastSerial()
{
    return serial;
}

} // namespace x11
} // namespace zeltk
