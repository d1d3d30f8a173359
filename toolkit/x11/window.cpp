// Windows of the server.
#include "x11/window.h"

#include "x11/xlib.h"

namespace zeltk
{
namespace x11
{

namespace
{

const long childEvents = KeyPressMask | KeyReleaseMask | ButtonPressMask | ButtonReleaseMask |
                         PointerMotionMask | EnterWindowMask | LeaveWindowMask | ExposureMask;
const long topLevelEvents =
    childEvents | FocusChangeMask | StructureNotifyMask | PropertyChangeMask | KeymapStateMask;

unsigned positive(int length)
{
    return length > 0 ? static_cast<unsigned>(length) : 1u;
}

} // namespace

XId createWindow(const WindowSpec& spec)
{
    XSetWindowAttributes attributes;
    attributes.background_pixel = spec.backgroundPixel;
    attributes.bit_gravity = spec.staticContents ? NorthWestGravity : ForgetGravity;
    attributes.override_redirect = spec.overrideRedirect;
    attributes.save_under = spec.saveUnder;
    attributes.event_mask = spec.topLevel ? topLevelEvents : childEvents;
    unsigned long mask = CWBackPixel | CWEventMask;
    if (spec.staticContents)
        mask |= CWBitGravity;
    if (spec.overrideRedirect)
        mask |= CWOverrideRedirect;
    if (spec.saveUnder)
        mask |= CWSaveUnder;
    return XCreateWindow(display(), spec.parent, spec.box.x, spec.box.y, positive(spec.box.width),
                         positive(spec.box.height), 0, CopyFromParent, InputOutput, CopyFromParent, mask,
                         &attributes);
}

void destroyWindow(XId window)
{
    XDestroyWindow(display(), window);
}

void mapWindow(XId window)
{
    XMapWindow(display(), window);
}

void unmapWindow(XId window)
{
    XUnmapWindow(display(), window);
}

void withdrawWindow(XId window)
{
    XWithdrawWindow(display(), window, screen());
}

void iconifyWindow(XId window)
{
    XIconifyWindow(display(), window, screen());
}

unsigned long moveResizeWindow(XId window, const Box& box, bool move, bool resize)
{
    const unsigned long serial = NextRequest(display());
    if (move && resize)
        XMoveResizeWindow(display(), window, box.x, box.y, positive(box.width), positive(box.height));
    else if (move)
        XMoveWindow(display(), window, box.x, box.y);
    else
        XResizeWindow(display(), window, positive(box.width), positive(box.height));
    return serial;
}

void raiseWindow(XId window)
{
    XRaiseWindow(display(), window);
}

void lowerWindow(XId window)
{
    XLowerWindow(display(), window);
}

// A window manager may have put frames round both; only it can restack these.
void stackWindowUnder(XId window, XId sibling)
{
    XWindowChanges changes;
    changes.sibling = sibling;
    changes.stack_mode = 1; // below the sibling
    XReconfigureWMWindow(display(), window, screen(), CWSibling | CWStackMode, &changes);
}

void setWindowBackground(XId window, unsigned long pixel)
{
    XSetWindowBackground(display(), window, pixel);
}

void setWindowBackgroundPixmap(XId window, XId pixmap)
{
    XSetWindowBackgroundPixmap(display(), window, pixmap);
}

void unsetWindowBackground(XId window)
{
    XSetWindowBackgroundPixmap(display(), window, XNone);
}

void setParentRelativeBackground(XId window)
{
    XSetWindowBackgroundPixmap(display(), window, ParentRelative);
}

void clearWindowArea(XId window, const Box& box)
{
    XClearArea(display(), window, box.x, box.y, positive(box.width), positive(box.height), False);
}

bool framePlace(XId window, FramePlace* place)
{
    XId inner = window;
    while (true) {
        Window root = 0, parent = 0, *inside = nullptr;
        unsigned count = 0;
        if (!XQueryTree(display(), inner, &root, &parent, &inside, &count))
            return false;
        if (inside)
            XFree(inside);
        if (parent == root || parent == XNone)
            break;
        inner = parent;
    }
    Window root = 0, child = 0;
    unsigned width = 0, height = 0, border = 0, depth = 0;
    int x = 0, y = 0;
    if (!XGetGeometry(display(), window, &root, &x, &y, &width, &height, &border, &depth))
        return false;
    if (!XTranslateCoordinates(display(), window, root, 0, 0, &x, &y, &child))
        return false;
    place->frameWindow = inner;
    place->client = {x, y, static_cast<int>(width), static_cast<int>(height)};
    place->frame = place->client;
    if (inner == window)
        return true;
    if (!XGetGeometry(display(), inner, &root, &x, &y, &width, &height, &border, &depth))
        return false;
    place->frame = {x, y, static_cast<int>(width + 2 * border), static_cast<int>(height + 2 * border)};
    return true;
}

} // namespace x11
} // namespace zeltk
