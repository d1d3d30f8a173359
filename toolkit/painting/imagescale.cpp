// QImage: other sizes.
#include <qimage.h>

#include "painting/imagedata.h"

#include <algorithm>

using zeltk::ImageData;

namespace
{

// A new pixel, as far as it is known. Pixels of images with an alpha buffer count by their alpha.
class Average
{
public:
    Average(long long unit, bool byAlpha) : unit_(unit), byAlpha_(byAlpha) { clear(); }
    void clear() { alpha_ = red_ = green_ = blue_ = unit_ / 2; }
    void add(QRgb pixel, long long parts);
    QRgb pixel() const;

private:
    int value(long long sum) const;

    long long unit_; // the parts of a whole pixel
    bool byAlpha_;
    long long alpha_, red_, green_, blue_;
};

void Average::add(QRgb pixel, long long parts)
{
    const int alpha = qAlpha(pixel);
    alpha_ += parts * alpha;
    const long long weight = byAlpha_ ? parts * alpha : parts;
    const int whole = byAlpha_ ? 255 : 1;
    red_ += weight * qRed(pixel) / whole;
    green_ += weight * qGreen(pixel) / whole;
    blue_ += weight * qBlue(pixel) / whole;
}

int Average::value(long long sum) const
{
    return static_cast<int>(byAlpha_ ? sum * 255 / alpha_ : sum / unit_);
}

QRgb Average::pixel() const
{
    return qRgba(value(red_), value(green_), value(blue_), static_cast<int>(alpha_ / unit_));
}

// A line of `size` pixels out of `count` old ones; `stride` is from one to the next. An old pixel gives a
// whole number of parts, so that the last one may have to fill up what is missing.
void averageLine(const QRgb* from, int count, QRgb* to, int size, int stride, Average average, long long unit)
{
    const long long partsOfOne = size * unit / count;
    long long missing = unit;
    const auto finish = [&](QRgb pixel) {
        average.add(pixel, missing);
        *to = average.pixel();
        to += stride;
        average.clear();
        missing = unit;
    };
    for (int i = 0; i < count; ++i) {
        long long parts = partsOfOne;
        while (parts >= missing) {
            parts -= missing;
            finish(from[i * stride]);
        }
        average.add(from[i * stride], parts);
        missing -= parts;
    }
    if (missing < unit)
        finish(from[(count - 1) * stride]);
}

// First the rows become as many as wanted, then the columns. Columns have whole numbers of parts.
std::vector<QRgb> averaged(const std::vector<QRgb>& from, const QSize& size, const QSize& wanted,
                           bool byAlpha)
{
    long long unit = size.width();
    while (unit < 4096 || unit < 128LL * size.height())
        unit *= 2;
    const Average average(unit, byAlpha);
    std::vector<QRgb> rows(static_cast<size_t>(size.width()) * static_cast<size_t>(wanted.height()));
    for (int x = 0; x < size.width(); ++x)
        averageLine(&from[static_cast<size_t>(x)], size.height(), &rows[static_cast<size_t>(x)],
                    wanted.height(), size.width(), average, unit);
    std::vector<QRgb> result(static_cast<size_t>(wanted.width()) * static_cast<size_t>(wanted.height()));
    for (size_t y = 0; y < static_cast<size_t>(wanted.height()); ++y)
        averageLine(&rows[y * static_cast<size_t>(size.width())], size.width(),
                    &result[y * static_cast<size_t>(wanted.width())], wanted.width(), 1, average, unit);
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
    const std::vector<QRgb> pixels = averaged(d->pixels, size(), wanted, d->alpha);
    std::copy(pixels.begin(), pixels.end(), result.d->pixels.begin());
    return result;
}
