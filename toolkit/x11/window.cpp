// Windows.
#include "x11/window.h"

#include "x11/colors.h"
#include "x11/errors.h"
#include "x11/gc.h"
#include "x11/textdraw.h"
#include "x11/xlib.h"
#include "x11/xrectangles.h"

#include <algorithm>

namespace zeltk
{
namespace x11
{

namespace
{

constexpr long commonEvents = KeyPressMask | KeyReleaseMask | ButtonPressMask | ButtonReleaseMask |
                              PointerMotionMask | EnterWindowMask | LeaveWindowMask | ExposureMask |
                              KeymapStateMask;
constexpr long topLevelEvents = StructureNotifyMask | FocusChangeMask | PropertyChangeMask;

constexpr unsigned long kindFields = CWEventMask | CWOverrideRedirect | CWSaveUnder;

XSetWindowAttributes kindAttributes(bool topLevel, bool popup)
{
    XSetWindowAttributes attributes;
    attributes.event_mask = commonEvents | (topLevel ? topLevelEvents : 0);
    attributes.override_redirect = popup;
    attributes.save_under = popup;
    return attributes;
}

// Places are 16 bits on the wire. What lies further out stays out of sight instead of coming round.
int onWire(int coordinate)
{
    return std::min(std::max(coordinate, -32768), 32767);
}

} // namespace

XId createWindow(XId parent, int x, int y, int width, int height, bool topLevel, bool popup)
{
    XSetWindowAttributes attributes = kindAttributes(topLevel, popup);
    attributes.border_pixel = 0;
    attributes.bit_gravity = ForgetGravity;
    attributes.background_pixmap = XNone;
    endIfLost();
    return XCreateWindow(display(), parent, onWire(x), onWire(y), static_cast<unsigned>(width),
                         static_cast<unsigned>(height), 0, CopyFromParent, InputOutput, CopyFromParent,
                         kindFields | CWBorderPixel | CWBitGravity | CWBackPixmap, &attributes);
}

void destroyWindow(XId window)
{
    forgetDrawable(window);
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

void moveWindow(XId window, int x, int y)
{
    XMoveWindow(display(), window, onWire(x), onWire(y));
}

void resizeWindow(XId window, int width, int height)
{
    XResizeWindow(display(), window, static_cast<unsigned>(width), static_cast<unsigned>(height));
}

void moveResizeWindow(XId window, int x, int y, int width, int height)
{
    XMoveResizeWindow(display(), window, onWire(x), onWire(y), static_cast<unsigned>(width),
                      static_cast<unsigned>(height));
}

void rehangWindow(XId window, XId parent, int x, int y, bool topLevel, bool popup)
{
    XSetWindowAttributes attributes = kindAttributes(topLevel, popup);
    XChangeWindowAttributes(display(), window, kindFields, &attributes);
    XReparentWindow(display(), window, parent, onWire(x), onWire(y));
}

unsigned long nextSerial()
{
    return NextRequest(display());
}

void raiseWindow(XId window)
{
    XRaiseWindow(display(), window);
}

void lowerWindow(XId window)
{
    XLowerWindow(display(), window);
}

void stackBelow(XId window, XId sibling)
{
    XWindowChanges changes;
    changes.sibling = sibling;
    changes.stack_mode = 1; // below
    XConfigureWindow(display(), window, CWSibling | CWStackMode, &changes);
}

void setBackgroundColor(XId window, std::uint32_t rgb)
{
    XSetWindowBackground(display(), window, pixelOf(rgb));
}

void setBackgroundPixmap(XId window, XId pixmap)
{
    XSetWindowBackgroundPixmap(display(), window, pixmap);
}

void setNoBackground(XId window)
{
    XSetWindowBackgroundPixmap(display(), window, XNone);
}

void setParentBackground(XId window)
{
    XSetWindowBackgroundPixmap(display(), window, ParentRelative);
}

void keepContents(XId window, bool keep)
{
    XSetWindowAttributes attributes;
    attributes.bit_gravity = keep ? NorthWestGravity : ForgetGravity;
    XChangeWindowAttributes(display(), window, CWBitGravity, &attributes);
}

void clearArea(XId window, int x, int y, int width, int height)
{
    XClearArea(display(), window, x, y, static_cast<unsigned>(width), static_cast<unsigned>(height), False);
}

// Parts that lie under other windows come as Expose events.
void scrollWindow(XId window, int sx, int sy, int width, int height, int dx, int dy)
{
    XGCValues values;
    values.graphics_exposures = True;
    const GC gc = XCreateGC(display(), window, GCGraphicsExposures, &values);
    XCopyArea(display(), window, window, gc, sx, sy, static_cast<unsigned>(width),
              static_cast<unsigned>(height), dx, dy);
    XFreeGC(display(), gc);
}

void setShape(XId window, const std::vector<Box>* shape)
{
    if (!shape) {
        XShapeCombineMask(display(), window, ShapeBounding, 0, 0, XNone, ShapeSet);
        return;
    }
    std::vector<XRectangle> rects = xRectangles(*shape);
    XShapeCombineRectangles(display(), window, ShapeBounding, 0, 0, rects.data(),
                            static_cast<int>(rects.size()), ShapeSet, XUnsorted);
}

bool rootPosition(XId window, int* x, int* y)
{
    Window child;
    return XTranslateCoordinates(display(), window, rootWindow(), 0, 0, x, y, &child) != 0;
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
    place->client = {x, y, static_cast<int>(width), static_cast<int>(height)};
    place->frame = place->client;
    if (inner == window)
        return true;
    if (!XGetGeometry(display(), inner, &root, &x, &y, &width, &height, &border, &depth))
        return false;
    place->frame = {x, y, static_cast<int>(width + 2 * border), static_cast<int>(height + 2 * border)};
    return true;
}

XId windowAt(int x, int y)
{
    Window at = rootWindow();
    for (;;) {
        Window child = XNone;
        int wx;
        int wy;
        if (!XTranslateCoordinates(display(), rootWindow(), at, x, y, &wx, &wy, &child))
            return 0;
        if (child == XNone)
            return at == rootWindow() ? 0 : at;
        at = child;
    }
}

} // namespace x11
} // namespace zeltk
