// Boxes in Xlib's form. Only for sources of this folder.
#ifndef ZELTK_X11_XRECTANGLES_H
#define ZELTK_X11_XRECTANGLES_H

#include "x11/box.h"
#include "x11/xlib.h"

#include <vector>

namespace zeltk
{
namespace x11
{

inline std::vector<XRectangle> xRectangles(const std::vector<Box>& boxes)
{
    std::vector<XRectangle> rects;
    rects.reserve(boxes.size());
    for (const Box& box : boxes)
        rects.push_back({static_cast<short>(box.x), static_cast<short>(box.y),
                         static_cast<unsigned short>(box.width), static_cast<unsigned short>(box.height)});
    return rects;
}

} // namespace x11
} // namespace zeltk

#endif
