// Pixmaps of the X server, and their way to the program and back.
#include "x11/pixmap.h"

#include "x11/colors.h"
#include "x11/errors.h"
#include "x11/gc.h"
#include "x11/textdraw.h"
#include "x11/xlib.h"

#include <cstdlib>

namespace zeltk
{
namespace x11
{

namespace
{

struct Spare {
    XId id;
    int width;
    int height;
    int depth;
    long pixels() const { return static_cast<long>(width) * height; }
};

constexpr size_t mostSpares = 4;
constexpr long mostSparePixels = 2000000; // all together

// Never destroyed: pixmaps that outlive main() still come here.
std::vector<Spare>& spares()
{
    static auto* const kept = new std::vector<Spare>;
    return *kept;
}

void freeOldestSpare()
{
    XFreePixmap(display(), spares().front().id);
    spares().erase(spares().begin());
}

bool tooManySpares()
{
    long pixels = 0;
    for (const Spare& spare : spares())
        pixels += spare.pixels();
    return spares().size() > mostSpares || pixels > mostSparePixels;
}

} // namespace

XId createPixmap(int width, int height, int depth)
{
    std::vector<Spare>& kept = spares();
    for (auto spare = kept.begin(); spare != kept.end(); ++spare)
        if (spare->width == width && spare->height == height && spare->depth == depth) {
            const XId pixmap = spare->id;
            kept.erase(spare);
            return pixmap;
        }
    endIfLost();
    return XCreatePixmap(display(), rootWindow(), static_cast<unsigned>(width), static_cast<unsigned>(height),
                         static_cast<unsigned>(depth));
}

void freePixmap(XId pixmap)
{
    if (!connected() || !pixmap)
        return;
    forgetDrawable(pixmap);
    forgetPattern(pixmap);
    XFreePixmap(display(), pixmap);
}

void recyclePixmap(XId pixmap, int width, int height, int depth)
{
    const Spare spare = {pixmap, width, height, depth};
    if (!connected() || !pixmap || spare.pixels() > mostSparePixels) {
        freePixmap(pixmap);
        return;
    }
    forgetDrawable(pixmap);
    forgetPattern(pixmap);
    spares().push_back(spare);
    while (tooManySpares())
        freeOldestSpare();
}

void freeRecycledPixmaps()
{
    while (!spares().empty())
        freeOldestSpare();
}

XId createBitmap(const unsigned char* bits, int width, int height)
{
    return XCreateBitmapFromData(display(), rootWindow(), reinterpret_cast<const char*>(bits),
                                 static_cast<unsigned>(width), static_cast<unsigned>(height));
}

std::vector<std::uint32_t> readPixels(XId drawable, bool bitmap, int x, int y, int width, int height)
{
    std::vector<std::uint32_t> pixels;
    XImage* image = XGetImage(display(), drawable, x, y, static_cast<unsigned>(width),
                              static_cast<unsigned>(height), AllPlanes, ZPixmap);
    if (!image)
        return pixels;
    pixels.reserve(static_cast<size_t>(width) * static_cast<size_t>(height));
    for (int row = 0; row < height; ++row)
        for (int column = 0; column < width; ++column) {
            const unsigned long pixel = XGetPixel(image, column, row);
            pixels.push_back(bitmap ? static_cast<std::uint32_t>(pixel & 1) : 0xff000000 | colorOf(pixel));
        }
    XDestroyImage(image);
    return pixels;
}

void writePixels(XId drawable, bool bitmap, const std::uint32_t* pixels, int width, int height)
{
    const int bits = bitmap ? 1 : depth();
    XImage* image =
        XCreateImage(display(), DefaultVisual(display(), screen()), static_cast<unsigned>(bits), ZPixmap, 0,
                     nullptr, static_cast<unsigned>(width), static_cast<unsigned>(height), 32, 0);
    if (!image)
        return;
    image->data = static_cast<char*>(
        std::calloc(static_cast<size_t>(image->bytes_per_line), static_cast<size_t>(height)));
    for (int row = 0; row < height; ++row)
        for (int column = 0; column < width; ++column, ++pixels)
            XPutPixel(image, column, row, bitmap ? *pixels & 1 : picturePixelOf(*pixels & 0xffffff));
    GcKey plain;
    plain.bitmap = bitmap;
    XPutImage(display(), drawable, gcFor(plain)->gc, image, 0, 0, 0, 0, static_cast<unsigned>(width),
              static_cast<unsigned>(height));
    XDestroyImage(image);
}

bool drawableSize(XId drawable, int* width, int* height)
{
    Window root;
    int x;
    int y;
    unsigned w;
    unsigned h;
    unsigned border;
    unsigned d;
    if (!XGetGeometry(display(), drawable, &root, &x, &y, &w, &h, &border, &d))
        return false;
    *width = static_cast<int>(w);
    *height = static_cast<int>(h);
    return true;
}

} // namespace x11
} // namespace zeltk
