// Windows of the server. None of these functions waits for the server, unless it says so.
#ifndef ZELTK_X11_WINDOW_H
#define ZELTK_X11_WINDOW_H

#include "x11/connection.h"

#include <vector>

namespace zeltk
{
namespace x11
{

struct Box {
    int x;
    int y;
    int width;
    int height;
};

struct WindowSpec {
    XId parent;
    Box box;
    bool topLevel;
    bool overrideRedirect; // the window manager leaves it alone
    bool saveUnder;        // the server may keep what it covers
    bool staticContents;   // the upper left part survives when its size changes
    unsigned long backgroundPixel;
};

XId createWindow(const WindowSpec& spec);
// With all windows inside it.
void destroyWindow(XId window);

void mapWindow(XId window);
void unmapWindow(XId window);
// Also tells the window manager that it shall forget the window.
void withdrawWindow(XId window);
void iconifyWindow(XId window);

// Number of the request, which the server repeats in the event that confirms it.
unsigned long moveResizeWindow(XId window, const Box& box, bool move, bool resize);
void raiseWindow(XId window);
void lowerWindow(XId window);
void stackWindowUnder(XId window, XId sibling);

void setWindowBackground(XId window, unsigned long pixel);
void setWindowBackgroundPixmap(XId window, XId pixmap);
// Nothing is cleared any more.
void unsetWindowBackground(XId window);
void setParentRelativeBackground(XId window);
void clearWindowArea(XId window, const Box& box);

// The client area of a top-level window on the screen, and the window inside the root that holds it: the
// window manager's frame, or the window itself. Waits for the server.
struct FramePlace {
    XId frameWindow;
    Box client;
    Box frame;
};
bool framePlace(XId window, FramePlace* place);

} // namespace x11
} // namespace zeltk

#endif
