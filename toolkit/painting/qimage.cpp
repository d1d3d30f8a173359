// QImage: how images come about, share, and hold pixels.
#include <qimage.h>
#include <qpixmap.h>

#include "painting/imagedata.h"
#include "tools/shared.h"

#include <algorithm>
#include <new>

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

void findRows(ImageData* data)
{
    for (size_t y = 0; y < data->rows.size(); ++y)
        data->rows[y] = reinterpret_cast<uchar*>(&data->pixels[y * static_cast<size_t>(data->width)]);
}

} // namespace

QImage::QImage() : d(new ImageData) {}

QImage::QImage(int width, int height, int depth, int numColors, Endian bitOrder) : QImage()
{
    create(width, height, depth, numColors, bitOrder);
}

QImage::QImage(const QSize& size, int depth, int numColors, Endian bitOrder) : QImage()
{
    create(size, depth, numColors, bitOrder);
}

QImage::QImage(const QString& fileName, const char* format) : QImage()
{
    load(fileName, format);
}

QImage::QImage(const QByteArray& data) : QImage()
{
    loadFromData(data);
}

QImage::QImage(const QImage& other) : d(zeltk::shared(other.d)) {}

QImage::~QImage()
{
    zeltk::release(d);
}

QImage& QImage::operator=(const QImage& other)
{
    zeltk::share(d, other.d);
    return *this;
}

QImage& QImage::operator=(const QPixmap& pixmap)
{
    return *this = pixmap.convertToImage();
}

// Images of the same measures are brought to a common depth; null images complain of that.
bool QImage::operator==(const QImage& other) const
{
    if (d == other.d)
        return true;
    if (size() != other.size() || d->alpha != other.d->alpha)
        return false;
    const QImage a = convertDepth(32);
    const QImage b = other.convertDepth(32);
    const QRgb counting = d->alpha ? 0xffffffff : RGB_MASK;
    return std::equal(a.d->pixels.begin(), a.d->pixels.end(), b.d->pixels.begin(),
                      [counting](QRgb one, QRgb two) { return (one & counting) == (two & counting); });
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
    findRows(result.d);
    return result;
}

bool QImage::create(int width, int height, int depth, int, Endian)
{
    reset();
    if (width <= 0 || height <= 0 || depth != 32)
        return false;
    if (width > 0x7fffffff / 4 / height)
        return false;
    try {
        d->pixels.resize(static_cast<size_t>(width) * static_cast<size_t>(height));
        d->rows.resize(static_cast<size_t>(height));
    } catch (const std::bad_alloc&) {
        reset();
        return false;
    }
    d->width = width;
    d->height = height;
    findRows(d);
    return true;
}

void QImage::reset()
{
    *this = QImage();
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

QImage::Endian QImage::systemByteOrder()
{
    const int one = 1;
    return *reinterpret_cast<const char*>(&one) ? LittleEndian : BigEndian;
}

// The two agree on every machine that Linux runs on.
QImage::Endian QImage::systemBitOrder()
{
    return systemByteOrder();
}

uchar* QImage::bits() const
{
    return isNull() ? nullptr : d->rows[0];
}

uchar* QImage::scanLine(int row) const
{
    return row < 0 || row >= d->height ? nullptr : d->rows[static_cast<size_t>(row)];
}

uchar** QImage::jumpTable() const
{
    return isNull() ? nullptr : d->rows.data();
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

QPoint QImage::offset() const
{
    return d->offset;
}

void QImage::setOffset(const QPoint& offset)
{
    d->offset = offset;
}

int QImage::dotsPerMeterX() const
{
    return d->dotsPerMeterX;
}

int QImage::dotsPerMeterY() const
{
    return d->dotsPerMeterY;
}

void QImage::setDotsPerMeterX(int dots)
{
    d->dotsPerMeterX = dots;
}

void QImage::setDotsPerMeterY(int dots)
{
    d->dotsPerMeterY = dots;
}

void QImage::fill(uint pixel)
{
    std::fill(d->pixels.begin(), d->pixels.end(), pixel);
}

QRgb QImage::pixel(int x, int y) const
{
    if (!isWithin(*this, "pixel", x, y))
        return outsideColor;
    return d->pixels[static_cast<size_t>(y) * static_cast<size_t>(d->width) + static_cast<size_t>(x)];
}

void QImage::setPixel(int x, int y, uint pixel)
{
    if (!isWithin(*this, "setPixel", x, y))
        return;
    d->pixels[static_cast<size_t>(y) * static_cast<size_t>(d->width) + static_cast<size_t>(x)] = pixel;
}

int QImage::pixelIndex(int x, int y) const
{
    if (isWithin(*this, "pixelIndex", x, y))
        qWarning("QImage::pixelIndex: Not applicable for 32-bpp images (no palette)");
    return 0;
}
