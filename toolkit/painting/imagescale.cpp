// QImage: other sizes.
#include <qimage.h>

#include "painting/imagedata.h"

#include <algorithm>

using zeltk::ImageData;

namespace
{

typedef std::vector<int> Channels; // alpha, red, green, blue of one pixel after the other

// A row of `size` values, each the average of what it covers of `count` ones; `stride` is from one to the
// next. The line is measured in parts of which `size` make a pixel of the old one and `count` one of the new
// one.
void averageLine(const int* from, int count, int* to, int size, int stride)
{
    for (int i = 0; i < size; ++i) {
        const long long begin = static_cast<long long>(i) * count;
        const long long end = begin + count;
        long long sum = 0;
        for (long long at = begin; at < end;) {
            const long long pixel = at / size;
            const long long next = std::min(end, (pixel + 1) * size);
            sum += from[pixel * stride] * (next - at);
            at = next;
        }
        to[i * stride] = static_cast<int>((2 * sum + count) / (2 * count));
    }
}

Channels channelsOf(const std::vector<QRgb>& pixels)
{
    Channels values;
    for (const QRgb pixel : pixels)
        values.insert(values.end(), {qAlpha(pixel), qRed(pixel), qGreen(pixel), qBlue(pixel)});
    return values;
}

// First the rows become as many as wanted, then the columns.
Channels averaged(const Channels& from, const QSize& size, const QSize& wanted)
{
    Channels rows(static_cast<size_t>(4 * size.width() * wanted.height()));
    for (int i = 0; i < 4 * size.width(); ++i)
        averageLine(&from[static_cast<size_t>(i)], size.height(), &rows[static_cast<size_t>(i)],
                    wanted.height(), 4 * size.width());
    Channels result(static_cast<size_t>(4 * wanted.width() * wanted.height()));
    for (int y = 0; y < wanted.height(); ++y)
        for (int channel = 0; channel < 4; ++channel)
            averageLine(&rows[static_cast<size_t>(4 * y * size.width() + channel)], size.width(),
                        &result[static_cast<size_t>(4 * y * wanted.width() + channel)], wanted.width(), 4);
    return result;
}

// Which pixel of `count` stands at a place of the scaled image. Quotients that are whole numbers but for
// their last digit count as such on every processor.
int sourceOf(int place, double factor, int count)
{
    return std::min(static_cast<int>(place / factor + 1e-9), count - 1);
}

// The nearest pixels, for a size and factors of its own.
QImage enlarged(const QImage& image, const QSize& size, double across, double down)
{
    QImage result(size, 32);
    result.setAlphaBuffer(image.hasAlphaBuffer());
    for (int y = 0; y < result.height(); ++y)
        for (int x = 0; x < result.width(); ++x)
            result.setPixel(
                x, y, image.pixel(sourceOf(x, across, image.width()), sourceOf(y, down, image.height())));
    return result;
}

} // namespace

// The size that scaling comes to; empty if there is nothing to scale.
QSize QImage::scaled(const char* function, int width, int height, ScaleMode mode) const
{
    if (isNull()) {
        qWarning("QImage::%s: Image is a null image", function);
        return QSize();
    }
    QSize result = size();
    result.scale(width, height, static_cast<QSize::ScaleMode>(mode));
    return result;
}

QImage QImage::scale(int width, int height, ScaleMode mode) const
{
    const QSize wanted = scaled("scale", width, height, mode);
    if (wanted == size())
        return copy();
    return enlarged(*this, wanted, static_cast<double>(wanted.width()) / d->width,
                    static_cast<double>(wanted.height()) / d->height);
}

QImage QImage::scaleWidth(int width) const
{
    if (isNull() || width == d->width)
        return scale(width, d->height);
    const double factor = static_cast<double>(width) / d->width;
    return enlarged(*this, QSize(width, qRound(factor * d->height)), factor, factor);
}

QImage QImage::scaleHeight(int height) const
{
    if (isNull() || height == d->height)
        return scale(d->width, height);
    const double factor = static_cast<double>(height) / d->height;
    return enlarged(*this, QSize(qRound(factor * d->width), height), factor, factor);
}

QImage QImage::smoothScale(int width, int height, ScaleMode mode) const
{
    const QSize wanted = scaled("smoothScale", width, height, mode);
    if (wanted == size())
        return copy();
    QImage result(wanted, 32);
    if (result.isNull())
        return result;
    result.d->alpha = d->alpha;
    const Channels values = averaged(channelsOf(d->pixels), size(), wanted);
    for (size_t i = 0; i < result.d->pixels.size(); ++i)
        result.d->pixels[i] = qRgba(values[4 * i + 1], values[4 * i + 2], values[4 * i + 3], values[4 * i]);
    return result;
}
