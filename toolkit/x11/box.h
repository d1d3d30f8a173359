// A rectangle of a drawable or of the screen, in pixels.
#ifndef ZELTK_X11_BOX_H
#define ZELTK_X11_BOX_H

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

} // namespace x11
} // namespace zeltk

#endif
