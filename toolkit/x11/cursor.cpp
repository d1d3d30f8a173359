// The mouse pointer.
#include "x11/cursor.h"

#include "x11/xlib.h"

#include <X11/cursorfont.h>

#include <map>

namespace zeltk
{
namespace x11
{

namespace
{

const int blankShape = 10;

// In the order of the toolkit's shapes.
const unsigned fontShapes[] = {XC_left_ptr,
                               XC_center_ptr,
                               XC_crosshair,
                               XC_watch,
                               XC_xterm,
                               XC_sb_v_double_arrow,
                               XC_sb_h_double_arrow,
                               XC_bottom_left_corner,
                               XC_bottom_right_corner,
                               XC_fleur,
                               XC_left_ptr,
                               XC_sb_v_double_arrow,
                               XC_sb_h_double_arrow,
                               XC_hand2,
                               XC_circle,
                               XC_question_arrow,
                               XC_watch};

XId emptyCursor()
{
    const char bits[] = {0};
    const Pixmap empty = XCreateBitmapFromData(display(), rootWindow(), bits, 1, 1);
    const XId cursor = bitmapCursor(empty, empty, 0, 0);
    XFreePixmap(display(), empty);
    return cursor;
}

// They end with the connection that they were made on.
std::map<int, XId>& made()
{
    static std::map<int, XId> cursors;
    static Display* connection = nullptr;
    if (connection != display()) {
        connection = display();
        cursors.clear();
    }
    return cursors;
}

} // namespace

XId shapeCursor(int shape)
{
    if (shape < 0 || shape >= static_cast<int>(sizeof fontShapes / sizeof *fontShapes))
        shape = 0;
    XId& cursor = made()[shape];
    if (!cursor)
        cursor = shape == blankShape ? emptyCursor() : XCreateFontCursor(display(), fontShapes[shape]);
    return cursor;
}

XId bitmapCursor(XId bitmap, XId mask, int hotX, int hotY)
{
    XColor black = XColor();
    XColor white = XColor();
    white.red = white.green = white.blue = 0xffff;
    return XCreatePixmapCursor(display(), bitmap, mask, &black, &white, static_cast<unsigned>(hotX),
                               static_cast<unsigned>(hotY));
}

void freeCursor(XId cursor)
{
    XFreeCursor(display(), cursor);
}

void setWindowCursor(XId window, XId cursor)
{
    XDefineCursor(display(), window, cursor);
}

void unsetWindowCursor(XId window)
{
    XUndefineCursor(display(), window);
}

void pointerPosition(int* x, int* y)
{
    Window root = 0, child = 0;
    int insideX = 0, insideY = 0;
    unsigned state = 0;
    XQueryPointer(display(), rootWindow(), &root, &child, x, y, &insideX, &insideY, &state);
}

void movePointer(int x, int y)
{
    XWarpPointer(display(), XNone, rootWindow(), 0, 0, 0, 0, x, y);
}

} // namespace x11
} // namespace zeltk
