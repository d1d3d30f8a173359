// QImage.
#include <qimage.h>
#include <qpixmap.h>

#include "painting/pngfile.h"
#include "tools/unicode.h"

#include <algorithm>
#include <vector>

namespace zeltk
{

struct ImageData {
    int references;
    int width;
    int height;
    bool alpha;
    std::vector<QRgb> pixels;
};

} // namespace zeltk

using zeltk::ImageData;

namespace
{

// What programs read outside of an image.
const QRgb outsideColor = 12345;

bool isWithin(const QImage& image, const char* function, int x, int y)
{
    if (image.valid(x, y))
        return true;
    if (x < 0 || x >= image.width())
        qWarning("QImage::%s: x=%d out of range", function, x);
    else
        qWarning("QImage::%s: y=%d out of range", function, y);
    return false;
}

bool canWrite(const char* format)
{
    const bool known = format && qstrcmp(format, "PNG") == 0;
    if (!known)
        qWarning("QImageIO::write: No such image format handler: %s", format);
    return known;
}

} // namespace

QImage::QImage() : d(new ImageData{1, 0, 0, false, {}}) {}

QImage::QImage(int width, int height, int depth, int numColors, Endian bitOrder) : QImage()
{
    create(width, height, depth, numColors, bitOrder);
}

QImage::QImage(const QSize& size, int depth, int numColors, Endian bitOrder) : QImage()
{
    create(size.width(), size.height(), depth, numColors, bitOrder);
}

QImage::QImage(const QString& fileName, const char* format) : QImage()
{
    load(fileName, format);
}

QImage::QImage(const QImage& other) : d(other.d)
{
    ++d->references;
}

QImage::~QImage()
{
    if (--d->references == 0)
        delete d;
}

QImage& QImage::operator=(const QImage& other)
{
    ++other.d->references;
    if (--d->references == 0)
        delete d;
    d = other.d;
    return *this;
}

QImage& QImage::operator=(const QPixmap& pixmap)
{
    return *this = pixmap.convertToImage();
}

bool QImage::operator==(const QImage& other) const
{
    return d == other.d ||
           (d->width == other.d->width && d->height == other.d->height && d->alpha == other.d->alpha &&
            std::equal(d->pixels.begin(), d->pixels.end(), other.d->pixels.begin(), [this](QRgb a, QRgb b) {
                return d->alpha ? a == b : (a & RGB_MASK) == (b & RGB_MASK);
            }));
}

void QImage::detach()
{
    if (d->references > 1)
        *this = copy();
}

QImage QImage::copy() const
{
    QImage result;
    *result.d = *d;
    result.d->references = 1;
    return result;
}

// What lies outside of the image is 0.
QImage QImage::copy(int x, int y, int w, int h, int) const
{
    QImage result(w, h, 32);
    if (result.isNull())
        return result;
    result.setAlphaBuffer(d->alpha);
    result.fill(0);
    for (int row = 0; row < h; ++row)
        for (int column = 0; column < w; ++column)
            if (valid(x + column, y + row))
                result.setPixel(column, row,
                                d->pixels[static_cast<size_t>((y + row) * d->width + x + column)]);
    return result;
}

bool QImage::isNull() const
{
    return d->pixels.empty();
}

int QImage::width() const
{
    return d->width;
}

int QImage::height() const
{
    return d->height;
}

int QImage::depth() const
{
    return isNull() ? 0 : 32;
}

int QImage::bytesPerLine() const
{
    return d->width * 4;
}

int QImage::numBytes() const
{
    return bytesPerLine() * d->height;
}

uchar* QImage::bits() const
{
    return isNull() ? nullptr : reinterpret_cast<uchar*>(d->pixels.data());
}

uchar* QImage::scanLine(int row) const
{
    return row < 0 || row >= d->height ? nullptr : bits() + row * bytesPerLine();
}

bool QImage::valid(int x, int y) const
{
    return x >= 0 && x < d->width && y >= 0 && y < d->height;
}

bool QImage::hasAlphaBuffer() const
{
    return d->alpha;
}

void QImage::setAlphaBuffer(bool enable)
{
    d->alpha = enable;
}

bool QImage::create(int width, int height, int depth, int, Endian)
{
    reset();
    if (width <= 0 || height <= 0 || depth != 32)
        return false;
    if (width > 0x7fffffff / 4 / height)
        return false;
    d->width = width;
    d->height = height;
    d->pixels.resize(static_cast<size_t>(width) * static_cast<size_t>(height));
    return true;
}

void QImage::reset()
{
    *this = QImage();
}

void QImage::fill(uint pixel)
{
    std::fill(d->pixels.begin(), d->pixels.end(), pixel);
}

QRgb QImage::pixel(int x, int y) const
{
    if (!isWithin(*this, "pixel", x, y))
        return outsideColor;
    return d->pixels[static_cast<size_t>(y * d->width + x)];
}

void QImage::setPixel(int x, int y, uint pixel)
{
    if (!isWithin(*this, "setPixel", x, y))
        return;
    d->pixels[static_cast<size_t>(y * d->width + x)] = pixel;
}

QImage QImage::mirror(bool horizontally, bool vertically) const
{
    QImage result(copy());
    for (int y = 0; y < d->height; ++y)
        for (int x = 0; x < d->width; ++x)
            result.setPixel(horizontally ? d->width - 1 - x : x, vertically ? d->height - 1 - y : y,
                            d->pixels[static_cast<size_t>(y * d->width + x)]);
    return result;
}

bool QImage::load(const QString& fileName, const char* format)
{
    zeltk::PngPicture picture;
    if ((format && qstrcmp(format, "PNG") != 0) || !zeltk::readPng(zeltk::toUtf8(fileName), &picture) ||
        !create(picture.width, picture.height, 32))
        return false;
    d->pixels = picture.pixels;
    d->alpha = picture.alpha;
    return true;
}

bool QImage::save(const QString& fileName, const char* format, int) const
{
    return !isNull() && canWrite(format) &&
           zeltk::writePng(zeltk::toUtf8(fileName), {d->width, d->height, d->alpha, d->pixels});
}
