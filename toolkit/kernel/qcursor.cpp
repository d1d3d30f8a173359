// QCursor.
#include <qcursor.h>

#include "x11/cursor.h"

#include <qbitmap.h>
#include <qimage.h>

#include <memory>
#include <vector>

namespace zeltk
{

struct CursorData {
    int references = 1;
    int shape = Qt::ArrowCursor;
    // Of a cursor made of bitmaps.
    std::unique_ptr<QBitmap> bitmap;
    std::unique_ptr<QBitmap> mask;
    QPoint hotSpot;
    x11::XId handle = 0;

    ~CursorData()
    {
        if (handle && x11::connected())
            x11::freeCursor(handle);
    }
};

} // namespace zeltk

using zeltk::CursorData;

namespace
{

CursorData* shaped(int shape)
{
    CursorData* data = new CursorData;
    data->shape = shape;
    return data;
}

CursorData* drawn(const QBitmap& bitmap, const QBitmap& mask, int hotX, int hotY)
{
    if (bitmap.isNull() || mask.isNull() || bitmap.size() != mask.size()) {
        qWarning("QCursor: Cannot create bitmap cursor; invalid bitmap(s)");
        return new CursorData;
    }
    CursorData* data = new CursorData;
    data->shape = Qt::BitmapCursor;
    data->bitmap.reset(new QBitmap(bitmap));
    data->mask.reset(new QBitmap(mask));
    data->hotSpot = QPoint(hotX >= 0 ? hotX : bitmap.width() / 2, hotY >= 0 ? hotY : bitmap.height() / 2);
    return data;
}

void release(CursorData* data)
{
    if (--data->references == 0)
        delete data;
}

// The pixels that are darker than the middle.
QBitmap darkPixels(const QPixmap& pixmap)
{
    const QImage image = pixmap.convertToImage();
    const int rowBytes = (image.width() + 7) / 8;
    std::vector<uchar> bits(static_cast<size_t>(rowBytes * image.height()), 0);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qGray(image.pixel(x, y)) < 128)
                bits[static_cast<size_t>(y * rowBytes + x / 8)] |= static_cast<uchar>(1 << x % 8);
    return QBitmap(image.width(), image.height(), bits.data(), true);
}

QBitmap shownPixels(const QPixmap& pixmap)
{
    if (pixmap.mask())
        return *pixmap.mask();
    QBitmap all(pixmap.width(), pixmap.height());
    all.fill(Qt::color1);
    return all;
}

} // namespace

QCursor::QCursor() : d(shaped(ArrowCursor)) {}

QCursor::QCursor(int shape) : d(0)
{
    d = shaped(ArrowCursor);
    setShape(shape);
}

QCursor::QCursor(const QBitmap& bitmap, const QBitmap& mask, int hotX, int hotY)
    : d(drawn(bitmap, mask, hotX, hotY))
{
}

QCursor::QCursor(const QPixmap& pixmap, int hotX, int hotY)
    : d(pixmap.isNull() ? shaped(ArrowCursor) : drawn(darkPixels(pixmap), shownPixels(pixmap), hotX, hotY))
{
}

QCursor::QCursor(const QCursor& other) : d(other.d)
{
    ++d->references;
}

QCursor::~QCursor()
{
    release(d);
}

QCursor& QCursor::operator=(const QCursor& other)
{
    ++other.d->references;
    release(d);
    d = other.d;
    return *this;
}

int QCursor::shape() const
{
    return d->shape;
}

void QCursor::setShape(int shape)
{
    if (shape < 0 || shape > LastCursor) {
        qWarning("QCursor::setShape: Invalid cursor shape: %d", shape);
        shape = ArrowCursor;
    }
    release(d);
    d = shaped(shape);
}

const QBitmap* QCursor::bitmap() const
{
    return d->bitmap.get();
}

const QBitmap* QCursor::mask() const
{
    return d->mask.get();
}

QPoint QCursor::hotSpot() const
{
    return d->hotSpot;
}

Qt::HANDLE QCursor::handle() const
{
    if (!d->bitmap)
        return zeltk::x11::shapeCursor(d->shape);
    if (!d->handle)
        d->handle =
            zeltk::x11::bitmapCursor(d->bitmap->handle(), d->mask->handle(), d->hotSpot.x(), d->hotSpot.y());
    return d->handle;
}

QPoint QCursor::pos()
{
    int x = 0;
    int y = 0;
    zeltk::x11::pointerPosition(&x, &y);
    return QPoint(x, y);
}

void QCursor::setPos(int x, int y)
{
    zeltk::x11::movePointer(x, y);
}

void QCursor::setPos(const QPoint& pos)
{
    setPos(pos.x(), pos.y());
}
