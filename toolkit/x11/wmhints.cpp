// What windows tell the window manager: the properties of ICCCM and of the desktop specification.
#include "x11/wmhints.h"

#include "x11/xlib.h"

#include <unistd.h>

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

void setWindowIdentity(XId window, const std::string& name, const std::string& className)
{
    setLongs(window, "WM_PROTOCOLS", XA_ATOM,
             {static_cast<long>(atom("WM_DELETE_WINDOW")), static_cast<long>(atom("WM_TAKE_FOCUS")),
              static_cast<long>(atom("_NET_WM_PING"))});
    setText(window, XA_WM_CLASS, XA_STRING, name + '\0' + className + '\0');
    setLongs(window, "_NET_WM_PID", XA_CARDINAL, {static_cast<long>(getpid())});
    char host[256] = "";
    if (gethostname(host, sizeof host - 1) == 0)
        setText(window, XA_WM_CLIENT_MACHINE, XA_STRING, host);
}

void setTitle(XId window, const std::string& utf8, const std::string& latin1)
{
    setText(window, atom("_NET_WM_NAME"), atom("UTF8_STRING"), utf8);
    setText(window, XA_WM_NAME, XA_STRING, latin1);
}

void setIconName(XId window, const std::string& utf8, const std::string& latin1)
{
    setText(window, atom("_NET_WM_ICON_NAME"), atom("UTF8_STRING"), utf8);
    setText(window, XA_WM_ICON_NAME, XA_STRING, latin1);
}

void setSizeHints(XId window, const SizeHints& wanted)
{
    XSizeHints hints = XSizeHints();
    hints.x = wanted.x;
    hints.y = wanted.y;
    hints.width = wanted.width;
    hints.height = wanted.height;
    hints.flags = wanted.userPosition ? USPosition | PPosition : 0;
    hints.flags |= wanted.userSize ? USSize | PSize : PSize;
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
    static const char* const names[] = {"_NET_WM_WINDOW_TYPE_NORMAL", "_NET_WM_WINDOW_TYPE_DIALOG",
                                        "_NET_WM_WINDOW_TYPE_UTILITY", "_NET_WM_WINDOW_TYPE_SPLASH"};
    setLongs(window, "_NET_WM_WINDOW_TYPE", XA_ATOM,
             {static_cast<long>(atom(names[static_cast<int>(kind)]))});
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
    XEvent event = XEvent();
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = atom("_NET_WM_STATE");
    event.xclient.format = 32;
    event.xclient.data.l[0] = on ? 1 : 0;
    event.xclient.data.l[1] = atoms.empty() ? 0 : atoms[0];
    event.xclient.data.l[2] = atoms.size() > 1 ? atoms[1] : 0;
    event.xclient.data.l[3] = 1;
    XSendEvent(display(), rootWindow(), False, SubstructureRedirectMask | SubstructureNotifyMask, &event);
}

} // namespace x11
} // namespace zeltk
