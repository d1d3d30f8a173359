// The shapes of the mouse pointer.
#ifndef QCURSOR_H
#define QCURSOR_H

#include <qpoint.h>
#include <qwindowdefs.h>

namespace zeltk
{
struct CursorData;
}

//! A shape of the mouse pointer, shared until changed. The static functions ask and move the pointer itself.
class Q_EXPORT QCursor : public Qt
{
public:
    //! The arrow.
    QCursor();
    //! One of Qt::CursorShape.
    QCursor(int shape);
    //! Black where both are set, white where only the mask is. A negative hot spot means the middle.
    QCursor(const QBitmap& bitmap, const QBitmap& mask, int hotX = -1, int hotY = -1);
    QCursor(const QPixmap& pixmap, int hotX = -1, int hotY = -1);
    QCursor(const QCursor& other);
    ~QCursor();
    QCursor& operator=(const QCursor& other);

    int shape() const;
    void setShape(int shape);
    //! Null unless it was made of bitmaps.
    const QBitmap* bitmap() const;
    const QBitmap* mask() const;
    QPoint hotSpot() const;
    //! The X server's cursor.
    HANDLE handle() const;

    static QPoint pos();
    static void setPos(int x, int y);
    static void setPos(const QPoint& pos);

private:
    zeltk::CursorData* d;
};

#endif
