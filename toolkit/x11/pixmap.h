// Pixmaps of the X server, and their way to the program and back.
#ifndef ZELTK_X11_PIXMAP_H
#define ZELTK_X11_PIXMAP_H

#include "x11/connection.h"

#include <cstdint>
#include <vector>

namespace zeltk
{
namespace x11
{

XId createPixmap(int width, int height, int depth);
void freePixmap(XId pixmap);
// Frees a pixmap from createPixmap(), or keeps a few that were dropped last for the next ones of the same
// size: what paints through a pixmap of its own makes the same one over and over.
void recyclePixmap(XId pixmap, int width, int height, int depth);
void freeRecycledPixmaps();
// Rows of whole bytes, the lowest bit leftmost.
XId createBitmap(const unsigned char* bits, int width, int height);

// Pixels as 0xffRRGGBB, row by row; of a bitmap as 0 and 1. Empty when they cannot be read. Waits for the
// server.
std::vector<std::uint32_t> readPixels(XId drawable, bool bitmap, int x, int y, int width, int height);
// Writes such pixels.
void writePixels(XId drawable, bool bitmap, const std::uint32_t* pixels, int width, int height);
// The size of any drawable; false if there is none.
bool drawableSize(XId drawable, int* width, int* height);

} // namespace x11
} // namespace zeltk

#endif
