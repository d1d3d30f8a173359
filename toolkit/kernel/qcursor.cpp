// QCursor.
#include <qbitmap.h>
#include <qcursor.h>

#include "tools/shared.h"
#include "x11/input.h"

namespace x11 = zeltk::x11;

namespace zeltk
{

struct CursorData {
    int references;
    int shape;
    QBitmap* bitmap;
    QBitmap* mask;
    QPoint hotSpot;
    x11::XId id; // of a bitmap's cursor, made when it is needed first

    ~CursorData()
    {
        if (id)
            x11::freeCursor(id);
        delete bitmap;
        delete mask;
    }
};

} // namespace zeltk

using zeltk::CursorData;

namespace
{

// Glyphs of the X cursor font, in the order of Qt::CursorShape.
const unsigned glyphs[] = {
    68,  // ArrowCursor: left_ptr
    22,  // UpArrowCursor: center_ptr
    34,  // CrossCursor: crosshair
    150, // WaitCursor: watch
    152, // IbeamCursor: xterm
    116, // SizeVerCursor: sb_v_double_arrow
    108, // SizeHorCursor: sb_h_double_arrow
    136, // SizeBDiagCursor: top_right_corner
    14,  // SizeFDiagCursor: bottom_right_corner
    52,  // SizeAllCursor: fleur
    0,   // BlankCursor is made of nothing
    116, // SplitVCursor: sb_v_double_arrow
    108, // SplitHCursor: sb_h_double_arrow
    60,  // PointingHandCursor: hand2
    24,  // ForbiddenCursor: circle
    92,  // WhatsThisCursor: question_arrow
    150, // BusyCursor: watch
};

CursorData* newData(int shape)
{
    return new CursorData{1, shape, nullptr, nullptr, QPoint(-1, -1), 0};
}

} // namespace

QCursor::QCursor() : d(newData(ArrowCursor)) {}

QCursor::QCursor(int shape) : d(newData(shape))
{
    if (shape < 0 || shape > LastCursor) {
        qWarning("QCursor: Invalid cursor shape %d", shape);
        d->shape = ArrowCursor;
    }
}

QCursor::QCursor(const QBitmap& bitmap, const QBitmap& mask, int hotX, int hotY) : d(newData(BitmapCursor))
{
    if (bitmap.isNull() || mask.isNull() || bitmap.size() != mask.size()) {
        qWarning("QCursor: Cannot create bitmap cursor; invalid bitmap(s)");
        d->shape = ArrowCursor;
        return;
    }
    d->bitmap = new QBitmap(bitmap);
    d->mask = new QBitmap(mask);
    d->hotSpot = QPoint(hotX < 0 ? bitmap.width() / 2 : hotX, hotY < 0 ? bitmap.height() / 2 : hotY);
}

QCursor::QCursor(const QCursor& other) : Qt(other), d(zeltk::shared(other.d)) {}

QCursor::~QCursor()
{
    zeltk::release(d);
}

QCursor& QCursor::operator=(const QCursor& other)
{
    zeltk::share(d, other.d);
    return *this;
}

int QCursor::shape() const
{
    return d->shape;
}

QPoint QCursor::hotSpot() const
{
    return d->hotSpot;
}

Qt::HANDLE QCursor::handle() const
{
    if (d->shape == BlankCursor)
        return x11::blankCursor();
    if (d->shape != BitmapCursor)
        return x11::fontCursor(glyphs[d->shape]);
    if (!d->id)
        d->id = x11::bitmapCursor(d->bitmap->handle(), d->mask->handle(), d->hotSpot.x(), d->hotSpot.y());
    return d->id;
}

QPoint QCursor::pos()
{
    const x11::PointerState pointer = x11::queryPointer();
    return QPoint(pointer.x, pointer.y);
}

void QCursor::setPos(int x, int y)
{
    x11::warpPointer(x, y);
}
