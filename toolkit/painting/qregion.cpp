// QRegion.
#include <qregion.h>

#include <qbitmap.h>
#include <qpointarray.h>

#include "painting/polygonrows.h"
#include "painting/regiondata.h"
#include "tools/shared.h"
#include "x11/pixmap.h"

#include <algorithm>

using zeltk::Band;
using zeltk::RegionData;
using zeltk::SetOperation;
using zeltk::Span;

namespace
{

RegionData* emptyData()
{
    static RegionData* const data = new RegionData{1, {}};
    return zeltk::shared(data);
}

RegionData* newData(zeltk::Bands bands)
{
    if (bands.empty())
        return emptyData();
    return new RegionData{1, std::move(bands)};
}

RegionData* dataOf(const QRect& rect, QRegion::RegionType type)
{
    if (rect.isEmpty())
        return emptyData();
    if (type == QRegion::Ellipse) {
        QPointArray outline;
        outline.makeEllipse(rect.x(), rect.y(), rect.width(), rect.height());
        return newData(zeltk::polygonRows(outline, false));
    }
    zeltk::Bands bands;
    bands.push_back({rect.top(), rect.bottom() + 1, zeltk::Spans(1, {rect.left(), rect.right() + 1})});
    return newData(std::move(bands));
}

bool isRect(const RegionData* data)
{
    return data->bands.size() == 1 && data->bands.front().spans.size() == 1;
}

} // namespace

QRegion::QRegion() : d(emptyData()) {}

QRegion::QRegion(int x, int y, int width, int height, RegionType type)
    : d(dataOf(QRect(x, y, width, height), type))
{
}

QRegion::QRegion(const QRect& rect, RegionType type) : d(dataOf(rect, type)) {}

QRegion::QRegion(const QPointArray& polygon, bool winding) : d(newData(zeltk::polygonRows(polygon, winding)))
{
}

QRegion::QRegion(const QRegion& other) : d(zeltk::shared(other.d)) {}

QRegion::QRegion(RegionData* data) : d(data) {}

QRegion::~QRegion()
{
    zeltk::release(d);
}

QRegion& QRegion::operator=(const QRegion& other)
{
    zeltk::share(d, other.d);
    return *this;
}

bool QRegion::isNull() const
{
    return isEmpty();
}

bool QRegion::isEmpty() const
{
    return d->bands.empty();
}

bool QRegion::contains(const QPoint& p) const
{
    return contains(QRect(p, p));
}

bool QRegion::contains(const QRect& rect) const
{
    for (const Band& band : d->bands)
        if (band.top <= rect.bottom() && band.bottom > rect.top())
            for (const Span& span : band.spans)
                if (span.from <= rect.right() && span.behind > rect.left())
                    return true;
    return false;
}

void QRegion::translate(int dx, int dy)
{
    zeltk::Bands bands = d->bands;
    for (Band& band : bands) {
        band.top = zeltk::sum(band.top, dy);
        band.bottom = zeltk::sum(band.bottom, dy);
        for (Span& span : band.spans) {
            span.from = zeltk::sum(span.from, dx);
            span.behind = zeltk::sum(span.behind, dx);
        }
    }
    *this = QRegion(newData(std::move(bands)));
}

QRegion QRegion::unite(const QRegion& other) const
{
    if (isEmpty() || other.isEmpty())
        return isEmpty() ? other : *this;
    return QRegion(newData(combined(d->bands, other.d->bands, SetOperation::Unite)));
}

QRegion QRegion::intersect(const QRegion& other) const
{
    // Mostly rectangles are cut to each other, and often one lies within the other.
    if (!isEmpty() && isRect(other.d)) {
        const QRect bounds = boundingRect();
        const QRect limits = other.boundingRect();
        if (limits.contains(bounds))
            return *this;
        if (isRect(d))
            return QRegion(bounds & limits);
    }
    return QRegion(newData(combined(d->bands, other.d->bands, SetOperation::Intersect)));
}

QRegion QRegion::subtract(const QRegion& other) const
{
    return QRegion(newData(combined(d->bands, other.d->bands, SetOperation::Subtract)));
}

QRegion QRegion::eor(const QRegion& other) const
{
    return QRegion(newData(combined(d->bands, other.d->bands, SetOperation::Xor)));
}

QRect QRegion::boundingRect() const
{
    if (isEmpty())
        return QRect(0, 0, 0, 0);
    int left = d->bands.front().spans.front().from;
    int behind = d->bands.front().spans.back().behind;
    for (const Band& band : d->bands) {
        left = std::min(left, band.spans.front().from);
        behind = std::max(behind, band.spans.back().behind);
    }
    return QRect(QPoint(left, d->bands.front().top), QPoint(behind - 1, d->bands.back().bottom - 1));
}

QMemArray<QRect> QRegion::rects() const
{
    QMemArray<QRect> result;
    size_t count = 0;
    for (const Band& band : d->bands)
        count += band.spans.size();
    result.resize(static_cast<uint>(count));
    uint i = 0;
    for (const Band& band : d->bands)
        for (const Span& span : band.spans)
            result[static_cast<int>(i++)] =
                QRect(QPoint(span.from, band.top), QPoint(span.behind - 1, band.bottom - 1));
    return result;
}

void QRegion::setRects(const QRect* rects, int number)
{
    QRegion result;
    for (int i = 0; i < number; ++i)
        result |= QRegion(rects[i]);
    *this = result;
}

bool QRegion::operator==(const QRegion& other) const
{
    return d == other.d || d->bands == other.d->bands;
}

QRegion::QRegion(const QBitmap& bitmap) : d(emptyData())
{
    if (bitmap.isNull())
        return;
    const std::vector<std::uint32_t> bits =
        zeltk::x11::readPixels(bitmap.handle(), true, 0, 0, bitmap.width(), bitmap.height());
    zeltk::Bands bands;
    for (int y = 0; y < bitmap.height() && !bits.empty(); ++y) {
        zeltk::Spans spans;
        for (int x = 0; x < bitmap.width(); ++x) {
            if (!bits[static_cast<size_t>(y) * static_cast<size_t>(bitmap.width()) + static_cast<size_t>(x)])
                continue;
            if (!spans.empty() && spans.back().behind == x)
                ++spans.back().behind;
            else
                spans.push_back({x, x + 1});
        }
        zeltk::appendRows(&bands, y, y + 1, spans);
    }
    *this = QRegion(newData(std::move(bands)));
}
