// Keyboard focus, pointer and grabs.
#ifndef ZELTK_X11_INPUT_H
#define ZELTK_X11_INPUT_H

#include "x11/connection.h"

namespace zeltk
{
namespace x11
{

void setInputFocus(XId window);
// `popup`: events inside of the program's windows go where the pointer is.
bool grabPointer(XId window, XId cursor, bool popup, unsigned long time);
void ungrabPointer(unsigned long time);
bool grabKeyboard(XId window, unsigned long time);
void ungrabKeyboard(unsigned long time);

struct PointerState {
    int x; // on the screen
    int y;
    unsigned state; // the X server's bits
};
PointerState queryPointer();
void warpPointer(int x, int y);
void bell();

// Cursors of the X cursor font, made once each.
XId fontCursor(unsigned shape);
XId blankCursor();
XId bitmapCursor(XId bitmap, XId mask, int hotX, int hotY);
void freeCursor(XId cursor);
void setCursor(XId window, XId cursor); // 0: the parent's

} // namespace x11
} // namespace zeltk

#endif
