// What windows tell the window manager: the properties of ICCCM and of the desktop conventions (EWMH).
#include "x11/wmhints.h"

#include "x11/xlib.h"

#include <unistd.h>

#include <algorithm>
#include <vector>

namespace zeltk
{
namespace x11
{

namespace
{

void setText(XId window, XId property, XId type, const std::string& text)
{
    XChangeProperty(display(), window, property, type, 8, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(text.data()), static_cast<int>(text.size()));
}

void setLongs(XId window, const char* property, XId type, const std::vector<long>& values)
{
    XChangeProperty(display(), window, atom(property), type, 32, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(values.data()), static_cast<int>(values.size()));
}

// The first number of a property; false if there is none.
bool readLong(XId window, const char* property, XId type, long* value)
{
    Atom found;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest;
    unsigned char* data = nullptr;
    const int status = XGetWindowProperty(display(), window, atom(property), 0, 1, False, type, &found,
                                          &format, &count, &rest, &data);
    const bool isThere = status == Success && format == 32 && count == 1;
    if (isThere)
        *value = *reinterpret_cast<const long*>(data);
    if (data)
        XFree(data);
    return isThere;
}

void sendToRoot(XId window, const char* type, const std::vector<long>& values)
{
    XEvent event = XEvent();
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = atom(type);
    event.xclient.format = 32;
    std::copy(values.begin(), values.end(), event.xclient.data.l);
    XSendEvent(display(), rootWindow(), False, SubstructureRedirectMask | SubstructureNotifyMask, &event);
}

// For window managers that do not know UTF-8: Latin-1 as far as it goes, else compound text.
void setOldText(XId window, XId property, const std::string& utf8)
{
    char* list[] = {const_cast<char*>(utf8.c_str())};
    XTextProperty text = XTextProperty();
    if (Xutf8TextListToTextProperty(display(), list, 1, XStdICCTextStyle, &text) < 0) {
        XDeleteProperty(display(), window, property);
        return;
    }
    XSetTextProperty(display(), window, &text, property);
    XFree(text.value);
}

std::vector<long> stateAtoms(unsigned bits)
{
    std::vector<long> atoms;
    const auto add = [&](const char* name) { atoms.push_back(static_cast<long>(atom(name))); };
    if (bits & StateModal)
        add("_NET_WM_STATE_MODAL");
    if (bits & StateMaximized) {
        add("_NET_WM_STATE_MAXIMIZED_HORZ");
        add("_NET_WM_STATE_MAXIMIZED_VERT");
    }
    if (bits & StateFullScreen)
        add("_NET_WM_STATE_FULLSCREEN");
    if (bits & StateAbove)
        add("_NET_WM_STATE_ABOVE");
    return atoms;
}

} // namespace

void setWindowIdentity(XId window, const std::string& name, const std::string& className, bool contextHelp)
{
    std::vector<long> protocols;
    for (const char* protocol : {"WM_DELETE_WINDOW", "WM_TAKE_FOCUS", "_NET_WM_PING"})
        protocols.push_back(static_cast<long>(atom(protocol)));
    if (contextHelp)
        protocols.push_back(static_cast<long>(atom("_NET_WM_CONTEXT_HELP")));
    setLongs(window, "WM_PROTOCOLS", XA_ATOM, protocols);
    setText(window, XA_WM_CLASS, XA_STRING, name + '\0' + className + '\0');
    setLongs(window, "_NET_WM_PID", XA_CARDINAL, {static_cast<long>(getpid())});
    char host[256] = "";
    if (gethostname(host, sizeof host - 1) == 0)
        setText(window, XA_WM_CLIENT_MACHINE, XA_STRING, host);
}

void setPlainTitle(XId window, const std::string& ascii)
{
    setText(window, XA_WM_NAME, XA_STRING, ascii);
    XDeleteProperty(display(), window, atom("_NET_WM_NAME"));
}

void setTitle(XId window, const std::string& utf8)
{
    setText(window, atom("_NET_WM_NAME"), atom("UTF8_STRING"), utf8);
    setOldText(window, XA_WM_NAME, utf8);
}

void setIconName(XId window, const std::string& utf8)
{
    setText(window, atom("_NET_WM_ICON_NAME"), atom("UTF8_STRING"), utf8);
    setOldText(window, XA_WM_ICON_NAME, utf8);
}

void setSizeHints(XId window, const SizeHints& wanted)
{
    XSizeHints hints = XSizeHints();
    hints.x = wanted.x;
    hints.y = wanted.y;
    hints.width = wanted.width;
    hints.height = wanted.height;
    hints.flags = wanted.userPosition ? USPosition | PPosition : 0;
    hints.flags |= wanted.userSize ? USSize | PSize : 0;
    if (wanted.minimumWidth > 0 || wanted.minimumHeight > 0) {
        hints.flags |= PMinSize;
        hints.min_width = wanted.minimumWidth;
        hints.min_height = wanted.minimumHeight;
    }
    if (wanted.maximumWidth > 0 || wanted.maximumHeight > 0) {
        hints.flags |= PMaxSize;
        hints.max_width = wanted.maximumWidth;
        hints.max_height = wanted.maximumHeight;
    }
    if (wanted.widthIncrement > 0 || wanted.heightIncrement > 0) {
        hints.flags |= PResizeInc | PBaseSize;
        hints.width_inc = wanted.widthIncrement;
        hints.height_inc = wanted.heightIncrement;
        hints.base_width = wanted.baseWidth;
        hints.base_height = wanted.baseHeight;
    }
    hints.flags |= PWinGravity;
    hints.win_gravity = NorthWestGravity;
    XSetWMNormalHints(display(), window, &hints);
}

void setWindowHints(XId window, bool startsIconic, XId iconPixmap, XId iconMask, XId groupLeader)
{
    XWMHints hints = XWMHints();
    hints.flags = InputHint | StateHint;
    hints.input = True;
    hints.initial_state = startsIconic ? IconicState : NormalState;
    if (iconPixmap) {
        hints.flags |= IconPixmapHint;
        hints.icon_pixmap = iconPixmap;
    }
    if (iconMask) {
        hints.flags |= IconMaskHint;
        hints.icon_mask = iconMask;
    }
    if (groupLeader) {
        hints.flags |= WindowGroupHint;
        hints.window_group = groupLeader;
    }
    XSetWMHints(display(), window, &hints);
}

void setTransientFor(XId window, XId owner)
{
    XSetTransientForHint(display(), window, owner);
}

void setWindowKind(XId window, WindowKind kind)
{
    std::vector<long> types;
    if (kind == WindowKind::Dialog)
        types.push_back(static_cast<long>(atom("_NET_WM_WINDOW_TYPE_DIALOG")));
    if (kind == WindowKind::Tool)
        types.push_back(static_cast<long>(atom("_NET_WM_WINDOW_TYPE_UTILITY")));
    types.push_back(static_cast<long>(atom("_NET_WM_WINDOW_TYPE_NORMAL")));
    setLongs(window, "_NET_WM_WINDOW_TYPE", XA_ATOM, types);
}

// The old but understood property: flags, functions, decorations, input mode, status.
void setDecorations(XId window, const Decorations& wanted)
{
    enum { HasFunctions = 1, HasDecorations = 2, HasInputMode = 4 };
    enum { Resize = 2, Move = 4, Minimize = 8, Maximize = 16, Close = 32 };
    enum { Border = 2, ResizeHandles = 4, Title = 8, Menu = 16, MinimizeButton = 32, MaximizeButton = 64 };
    long functions = Move | Close;
    long decorations = 0;
    if (wanted.resizable)
        functions |= Resize;
    if (wanted.minimize)
        functions |= Minimize;
    if (wanted.maximize)
        functions |= Maximize;
    if (wanted.border)
        decorations |= Border | (wanted.resizable ? ResizeHandles : 0);
    if (wanted.title)
        decorations |= Title;
    if (wanted.menu)
        decorations |= Menu;
    if (wanted.minimize)
        decorations |= MinimizeButton;
    if (wanted.maximize)
        decorations |= MaximizeButton;
    long flags = HasFunctions | HasDecorations;
    if (wanted.modal)
        flags |= HasInputMode;
    setLongs(window, "_MOTIF_WM_HINTS", atom("_MOTIF_WM_HINTS"),
             {flags, functions, decorations, wanted.modal ? 1 : 0, 0});
}

void setInitialState(XId window, unsigned bits)
{
    setLongs(window, "_NET_WM_STATE", XA_ATOM, stateAtoms(bits));
}

void requestState(XId window, unsigned bits, bool on)
{
    const std::vector<long> atoms = stateAtoms(bits);
    sendToRoot(window, "_NET_WM_STATE",
               {on ? 1 : 0, atoms.empty() ? 0 : atoms[0], atoms.size() > 1 ? atoms[1] : 0, 1});
}

bool isIconic(XId window)
{
    long state = WithdrawnState;
    return readLong(window, "WM_STATE", atom("WM_STATE"), &state) && state == IconicState;
}

void requestActivation(XId window)
{
    sendToRoot(window, "_NET_ACTIVE_WINDOW", {1, CurrentTime, 0});
}

bool hasWindowManager()
{
    long itsWindow = 0;
    return readLong(rootWindow(), "_NET_SUPPORTING_WM_CHECK", XA_WINDOW, &itsWindow);
}

void answerPing(XId window, unsigned long time)
{
    sendToRoot(rootWindow(), "WM_PROTOCOLS",
               {static_cast<long>(atom("_NET_WM_PING")), static_cast<long>(time), static_cast<long>(window)});
}

} // namespace x11
} // namespace zeltk
