// What window managers read.
#include "x11/wmhints.h"

#include "x11/xlib.h"

#include <cstring>
#include <unistd.h>

namespace zeltk
{
namespace x11
{

namespace
{

void setText(XId window, const char* property, const char* type, const std::string& text)
{
    XChangeProperty(display(), window, atom(property), atom(type), 8, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(text.data()), static_cast<int>(text.size()));
}

void setAtoms(XId window, const char* property, const Atom* atoms, int count)
{
    XChangeProperty(display(), window, atom(property), XA_ATOM, 32, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(atoms), count);
}

void sendToRoot(XId window, const char* type, long a, long b, long c)
{
    XEvent event;
    std::memset(&event, 0, sizeof event);
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = atom(type);
    event.xclient.format = 32;
    event.xclient.data.l[0] = a;
    event.xclient.data.l[1] = b;
    event.xclient.data.l[2] = c;
    XSendEvent(display(), rootWindow(), False, SubstructureNotifyMask | SubstructureRedirectMask, &event);
}

} // namespace

void announceWindow(XId window, const std::string& instanceName, const std::string& className)
{
    const Atom protocols[] = {atom("WM_DELETE_WINDOW"), atom("WM_TAKE_FOCUS"), atom("_NET_WM_PING")};
    setAtoms(window, "WM_PROTOCOLS", protocols, 3);
    setText(window, "WM_CLASS", "STRING", instanceName + '\0' + className + '\0');
    const long pid = getpid();
    XChangeProperty(display(), window, atom("_NET_WM_PID"), XA_CARDINAL, 32, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(&pid), 1);
    char host[256] = "";
    if (gethostname(host, sizeof host - 1) == 0)
        setText(window, "WM_CLIENT_MACHINE", "STRING", host);
    XWMHints hints;
    std::memset(&hints, 0, sizeof hints);
    hints.flags = InputHint | StateHint;
    hints.input = True;
    hints.initial_state = NormalState;
    XSetWMHints(display(), window, &hints);
}

void setTitle(XId window, const std::string& utf8)
{
    setText(window, "_NET_WM_NAME", "UTF8_STRING", utf8);
    char* text = const_cast<char*>(utf8.c_str());
    XTextProperty property;
    if (Xutf8TextListToTextProperty(display(), &text, 1, XStdICCTextStyle, &property) >= 0) {
        XSetWMName(display(), window, &property);
        XFree(property.value);
    }
}

void setIconTitle(XId window, const std::string& utf8)
{
    setText(window, "_NET_WM_ICON_NAME", "UTF8_STRING", utf8);
    char* text = const_cast<char*>(utf8.c_str());
    XTextProperty property;
    if (Xutf8TextListToTextProperty(display(), &text, 1, XStdICCTextStyle, &property) >= 0) {
        XSetWMIconName(display(), window, &property);
        XFree(property.value);
    }
}

void setIconPixmap(XId window, XId pixmap, XId mask)
{
    XWMHints* hints = XGetWMHints(display(), window);
    if (!hints)
        hints = XAllocWMHints();
    hints->flags = (hints->flags & ~(IconPixmapHint | IconMaskHint)) | (pixmap ? IconPixmapHint : 0) |
                   (mask ? IconMaskHint : 0);
    hints->icon_pixmap = pixmap;
    hints->icon_mask = mask;
    XSetWMHints(display(), window, hints);
    XFree(hints);
}

void setSizeHints(XId window, const SizeHints& h)
{
    XSizeHints hints;
    std::memset(&hints, 0, sizeof hints);
    hints.flags = USSize | PSize | PWinGravity;
    hints.width = h.width;
    hints.height = h.height;
    hints.win_gravity = NorthWestGravity;
    if (h.positioned) {
        hints.flags |= USPosition | PPosition;
        hints.x = h.x;
        hints.y = h.y;
    }
    if (h.minWidth > 0 || h.minHeight > 0) {
        hints.flags |= PMinSize;
        hints.min_width = h.minWidth;
        hints.min_height = h.minHeight;
    }
    if (h.maxWidth < 32767 || h.maxHeight < 32767) {
        hints.flags |= PMaxSize;
        hints.max_width = h.maxWidth;
        hints.max_height = h.maxHeight;
    }
    if (h.widthStep > 0 || h.heightStep > 0) {
        hints.flags |= PResizeInc | PBaseSize;
        hints.width_inc = h.widthStep;
        hints.height_inc = h.heightStep;
        hints.base_width = h.baseWidth;
        hints.base_height = h.baseHeight;
    }
    XSetWMNormalHints(display(), window, &hints);
}

void setTransientFor(XId window, XId parent)
{
    if (parent)
        XSetTransientForHint(display(), window, parent);
    else
        XDeleteProperty(display(), window, atom("WM_TRANSIENT_FOR"));
}

void setWindowType(XId window, WindowType type)
{
    const Atom value =
        atom(type == WindowType::Dialog ? "_NET_WM_WINDOW_TYPE_DIALOG" : "_NET_WM_WINDOW_TYPE_NORMAL");
    setAtoms(window, "_NET_WM_WINDOW_TYPE", &value, 1);
}

void setModal(XId window, bool modal)
{
    const Atom value = atom("_NET_WM_STATE_MODAL");
    if (modal)
        setAtoms(window, "_NET_WM_STATE", &value, 1);
    else
        XDeleteProperty(display(), window, atom("_NET_WM_STATE"));
}

void iconify(XId window)
{
    XIconifyWindow(display(), window, screen());
}

void requestState(XId window, bool mapped, const char* state, const char* otherState, bool on)
{
    const Atom first = atom(state);
    const Atom second = otherState ? atom(otherState) : 0;
    if (mapped) {
        sendToRoot(window, "_NET_WM_STATE", on ? 1 : 0, static_cast<long>(first), static_cast<long>(second));
        return;
    }
    const Atom both[] = {first, second};
    if (on)
        setAtoms(window, "_NET_WM_STATE", both, otherState ? 2 : 1);
    else
        XDeleteProperty(display(), window, atom("_NET_WM_STATE"));
}

void requestActivation(XId window)
{
    sendToRoot(window, "_NET_ACTIVE_WINDOW", 1, CurrentTime, 0);
}

bool hasWindowManager()
{
    Atom type;
    int format;
    unsigned long count;
    unsigned long rest;
    unsigned char* data = nullptr;
    const int status = XGetWindowProperty(display(), rootWindow(), atom("_NET_SUPPORTING_WM_CHECK"), 0, 1,
                                          False, XA_WINDOW, &type, &format, &count, &rest, &data);
    if (data)
        XFree(data);
    return status == Success && type == XA_WINDOW && count == 1;
}

void answerPing(XId window, unsigned long time)
{
    sendToRoot(rootWindow(), "WM_PROTOCOLS", static_cast<long>(atom("_NET_WM_PING")), static_cast<long>(time),
               static_cast<long>(window));
}

} // namespace x11
} // namespace zeltk
