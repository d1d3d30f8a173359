// Keyboard focus, pointer and grabs.
#include "x11/input.h"

#include "x11/xlib.h"

#include <map>

namespace zeltk
{
namespace x11
{

namespace
{

constexpr unsigned pointerEvents =
    ButtonPressMask | ButtonReleaseMask | PointerMotionMask | EnterWindowMask | LeaveWindowMask;

} // namespace

void setInputFocus(XId window)
{
    XSetInputFocus(display(), window, RevertToParent, CurrentTime);
}

bool grabPointer(XId window, XId cursor, bool popup, unsigned long time)
{
    return XGrabPointer(display(), window, popup ? True : False, pointerEvents, GrabModeAsync, GrabModeAsync,
                        XNone, cursor, time) == GrabSuccess;
}

void ungrabPointer(unsigned long time)
{
    XUngrabPointer(display(), time);
}

bool grabKeyboard(XId window, unsigned long time)
{
    return XGrabKeyboard(display(), window, False, GrabModeAsync, GrabModeAsync, time) == GrabSuccess;
}

void ungrabKeyboard(unsigned long time)
{
    XUngrabKeyboard(display(), time);
}

PointerState queryPointer()
{
    Window root;
    Window child;
    int x = 0;
    int y = 0;
    int wx;
    int wy;
    unsigned state = 0;
    XQueryPointer(display(), rootWindow(), &root, &child, &x, &y, &wx, &wy, &state);
    return {x, y, state};
}

void warpPointer(int x, int y)
{
    XWarpPointer(display(), XNone, rootWindow(), 0, 0, 0, 0, x, y);
}

void bell()
{
    XBell(display(), 0);
}

XId fontCursor(unsigned shape)
{
    static std::map<unsigned, Cursor> made;
    Cursor& cursor = made[shape];
    if (!cursor)
        cursor = XCreateFontCursor(display(), shape);
    return cursor;
}

XId blankCursor()
{
    static const XId cursor = [] {
        const char nothing[1] = {0};
        const Pixmap bitmap = XCreateBitmapFromData(display(), rootWindow(), nothing, 1, 1);
        const XId made = bitmapCursor(bitmap, bitmap, 0, 0);
        XFreePixmap(display(), bitmap);
        return made;
    }();
    return cursor;
}

XId bitmapCursor(XId bitmap, XId mask, int hotX, int hotY)
{
    XColor black = {0, 0, 0, 0, 0, 0};
    XColor white = {0, 0xffff, 0xffff, 0xffff, 0, 0};
    return XCreatePixmapCursor(display(), bitmap, mask, &black, &white, static_cast<unsigned>(hotX),
                               static_cast<unsigned>(hotY));
}

void freeCursor(XId cursor)
{
    if (connected())
        XFreeCursor(display(), cursor);
}

void setCursor(XId window, XId cursor)
{
    if (cursor)
        XDefineCursor(display(), window, cursor);
    else
        XUndefineCursor(display(), window);
}

} // namespace x11
} // namespace zeltk
