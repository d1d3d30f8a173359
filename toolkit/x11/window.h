// Windows.
#ifndef ZELTK_X11_WINDOW_H
#define ZELTK_X11_WINDOW_H

#include "x11/connection.h"
#include "x11/box.h"

#include <cstdint>
#include <vector>

namespace zeltk
{
namespace x11
{

// Its events are reported. `popup`: the window manager leaves it alone.
XId createWindow(XId parent, int x, int y, int width, int height, bool topLevel, bool popup);
void destroyWindow(XId window);
void mapWindow(XId window);
void unmapWindow(XId window);
// A top-level window goes away; its window manager is told.
void withdrawWindow(XId window);
void iconifyWindow(XId window);
void moveWindow(XId window, int x, int y);
void resizeWindow(XId window, int width, int height);
void moveResizeWindow(XId window, int x, int y, int width, int height);
// Puts an unmapped window elsewhere, as one of that kind.
void rehangWindow(XId window, XId parent, int x, int y, bool topLevel, bool popup);
// Number of the next request, which the server repeats in the events that answer it.
unsigned long nextSerial();
void raiseWindow(XId window);
void lowerWindow(XId window);
// Right below the sibling.
void stackBelow(XId window, XId sibling);

void setBackgroundColor(XId window, std::uint32_t rgb);
void setBackgroundPixmap(XId window, XId pixmap);
void setNoBackground(XId window);
void setParentBackground(XId window);
// Whether the contents stay at the upper left when the size changes, or are lost.
void keepContents(XId window, bool keep);
// Paints the background without an Expose event. Width and height must be positive.
void clearArea(XId window, int x, int y, int width, int height);
void scrollWindow(XId window, int sx, int sy, int width, int height, int dx, int dy);
void setShape(XId window, const std::vector<Box>* shape);

// Asks the server for the place of the window's corner on the screen.
bool rootPosition(XId window, int* x, int* y);

// The window on the screen, and the window right inside the root that holds it: the window manager's frame,
// or the window itself. Waits for the server.
struct FramePlace {
    Box client;
    Box frame;
};
bool framePlace(XId window, FramePlace* place);
// The innermost window at a place of the screen, 0 for the root.
XId windowAt(int x, int y);

} // namespace x11
} // namespace zeltk

#endif
