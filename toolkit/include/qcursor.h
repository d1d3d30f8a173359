// Mouse cursors.
#ifndef QCURSOR_H
#define QCURSOR_H

#include <qpoint.h>

class QBitmap;

namespace zeltk
{
struct CursorData;
}

//! How the pointer looks.
class Q_EXPORT QCursor : public Qt
{
public:
    QCursor();
    QCursor(int shape);
    //! Black where the bitmap is set, white elsewhere inside of the mask. A hot spot of -1 is the middle.
    QCursor(const QBitmap& bitmap, const QBitmap& mask, int hotX = -1, int hotY = -1);
    QCursor(const QCursor& other);
    ~QCursor();
    QCursor& operator=(const QCursor& other);

    int shape() const;
    QPoint hotSpot() const;
    Qt::HANDLE handle() const;

    //! The pointer's place on the screen.
    static QPoint pos();
    static void setPos(int x, int y);
    static void setPos(const QPoint& p) { setPos(p.x(), p.y()); }

private:
    zeltk::CursorData* d;
};

#endif
