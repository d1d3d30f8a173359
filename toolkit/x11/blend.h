// Pictures that are partly transparent, blended by the server's Render extension.
#ifndef ZELTK_X11_BLEND_H
#define ZELTK_X11_BLEND_H

#include "x11/box.h"
#include "x11/connection.h"

#include <vector>

namespace zeltk
{
namespace x11
{

// Whether the server can blend.
bool canBlend();
// A pixmap of values from 0, transparent, to 255, opaque, row by row.
XId createAlpha(const std::vector<unsigned char>& values, int width, int height);
std::vector<unsigned char> readAlpha(XId alpha, int width, int height);
// Lays a part of one drawable over another one. The alpha pixmap has the size of `from`. A null clip means
// all of the drawable.
void blendArea(XId from, XId alpha, XId to, const std::vector<Box>* clip, int sx, int sy, int width,
               int height, int dx, int dy);

} // namespace x11
} // namespace zeltk

#endif
