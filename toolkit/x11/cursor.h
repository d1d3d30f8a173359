// The mouse pointer.
#ifndef ZELTK_X11_CURSOR_H
#define ZELTK_X11_CURSOR_H

#include "x11/connection.h"

namespace zeltk
{
namespace x11
{

// By the number of the shape, from the server's cursor font. Each is made once and kept.
XId shapeCursor(int shape);
// Of two bitmaps of depth 1.
XId bitmapCursor(XId bitmap, XId mask, int hotX, int hotY);
void freeCursor(XId cursor);

void setWindowCursor(XId window, XId cursor);
// The window shows its parent's cursor.
void unsetWindowCursor(XId window);

// Waits for the server.
void pointerPosition(int* x, int* y);
void movePointer(int x, int y);

} // namespace x11
} // namespace zeltk

#endif
