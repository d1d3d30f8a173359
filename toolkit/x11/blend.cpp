// Pictures that are partly transparent, blended by the server's Render extension.
#include <X11/extensions/Xrender.h> // before xlib.h, which removes macros that it needs

#include "x11/blend.h"
#include "x11/colorcells.h"
#include "x11/xlib.h"
#include "x11/xrectangles.h"

namespace zeltk
{
namespace x11
{

namespace
{

const unsigned alphaDepth = 8;

XRenderPictFormat* screenFormat()
{
    static XRenderPictFormat* const format =
        XRenderFindVisualFormat(display(), DefaultVisual(display(), screen()));
    return format;
}

// A picture for as long as one request needs it.
class PictureOf
{
public:
    PictureOf(XId drawable, XRenderPictFormat* format)
        : id(XRenderCreatePicture(display(), drawable, format, 0, nullptr))
    {
    }
    ~PictureOf() { XRenderFreePicture(display(), id); }
    PictureOf(const PictureOf&) = delete;
    PictureOf& operator=(const PictureOf&) = delete;

    const ::Picture id;
};

} // namespace

bool canBlend()
{
    int event;
    int error;
    static const bool able =
        !hasColorCells() && XRenderQueryExtension(display(), &event, &error) && screenFormat();
    return able;
}

XId createAlpha(const std::vector<unsigned char>& values, int width, int height)
{
    const auto w = static_cast<unsigned>(width);
    const auto h = static_cast<unsigned>(height);
    const Pixmap pixmap = XCreatePixmap(display(), rootWindow(), w, h, alphaDepth);
    std::vector<char> bytes(values.begin(), values.end());
    XImage* image = XCreateImage(display(), nullptr, alphaDepth, ZPixmap, 0, bytes.data(), w, h, 8, width);
    const GC gc = XCreateGC(display(), pixmap, 0, nullptr);
    XPutImage(display(), pixmap, gc, image, 0, 0, 0, 0, w, h);
    XFreeGC(display(), gc);
    image->data = nullptr; // not the image's to free
    XDestroyImage(image);
    return pixmap;
}

std::vector<unsigned char> readAlpha(XId alpha, int width, int height)
{
    std::vector<unsigned char> values;
    XImage* image = XGetImage(display(), alpha, 0, 0, static_cast<unsigned>(width),
                              static_cast<unsigned>(height), AllPlanes, ZPixmap);
    for (int y = 0; image && y < height; ++y)
        for (int x = 0; x < width; ++x)
            values.push_back(static_cast<unsigned char>(XGetPixel(image, x, y)));
    if (image)
        XDestroyImage(image);
    return values;
}

void blendArea(XId from, XId alpha, XId to, const std::vector<Box>* clip, int sx, int sy, int width,
               int height, int dx, int dy)
{
    const PictureOf source(from, screenFormat());
    const PictureOf mask(alpha, XRenderFindStandardFormat(display(), PictStandardA8));
    const PictureOf target(to, screenFormat());
    if (clip) {
        const std::vector<XRectangle> rects = xRectangles(*clip);
        XRenderSetPictureClipRectangles(display(), target.id, 0, 0, rects.data(),
                                        static_cast<int>(rects.size()));
    }
    XRenderComposite(display(), PictOpOver, source.id, mask.id, target.id, sx, sy, sx, sy, dx, dy,
                     static_cast<unsigned>(width), static_cast<unsigned>(height));
}

} // namespace x11
} // namespace zeltk
