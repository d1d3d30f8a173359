// A rectangle as the X server takes it.
#ifndef ZELTK_X11_CLIPRECT_H
#define ZELTK_X11_CLIPRECT_H

namespace zeltk
{
namespace x11
{

struct ClipRect {
    int x;
    int y;
    int width;
    int height;
};

} // namespace x11
} // namespace zeltk

#endif
