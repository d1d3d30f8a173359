// Xlib without the macros that clash with the toolkit's own names. Sources of this folder include Xlib
// through this header only; headers that other folders see must not include it.
#ifndef ZELTK_X11_XLIB_H
#define ZELTK_X11_XLIB_H

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/Xatom.h>
#include <X11/extensions/shape.h>

namespace zeltk
{
namespace x11
{
// The values behind the macros that are removed below.
enum {
    XNone = None,
    XKeyPress = KeyPress,
    XKeyRelease = KeyRelease,
    XFocusIn = FocusIn,
    XFocusOut = FocusOut,
    XUnsorted = Unsorted,
    XCursorShape = CursorShape
};
typedef int XBool;
} // namespace x11
} // namespace zeltk

#undef None
#undef KeyPress
#undef KeyRelease
#undef FocusIn
#undef FocusOut
#undef Unsorted
#undef CursorShape
#undef Bool
#undef Status
#undef GrayScale
#undef Color
#undef Above
#undef Below

#endif
