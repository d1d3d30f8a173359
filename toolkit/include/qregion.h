// Sets of pixels.
#ifndef QREGION_H
#define QREGION_H

#include <qrect.h>

#include <qmemarray.h>

class QBitmap;
class QPointArray;

namespace zeltk
{
struct RegionData;
}

//! A set of pixels as rectangles, shared until one of its copies changes.
class Q_EXPORT QRegion
{
public:
    enum RegionType { Rectangle, Ellipse };

    QRegion();
    QRegion(int x, int y, int width, int height, RegionType type = Rectangle);
    QRegion(const QRect& rect, RegionType type = Rectangle);
    //! The inside of a polygon. `winding`: everything that it goes round, not only what it goes round oddly.
    QRegion(const QPointArray& polygon, bool winding = false);
    QRegion(const QRegion& other);
    //! The pixels of color1.
    QRegion(const QBitmap& bitmap);
    ~QRegion();
    QRegion& operator=(const QRegion& other);

    bool isNull() const;
    bool isEmpty() const;
    bool contains(const QPoint& p) const;
    //! Whether they have a pixel in common.
    bool contains(const QRect& rect) const;
    void translate(int dx, int dy);

    QRegion unite(const QRegion& other) const;
    QRegion intersect(const QRegion& other) const;
    QRegion subtract(const QRegion& other) const;
    QRegion eor(const QRegion& other) const;

    QRect boundingRect() const;
    //! Rectangles that do not overlap, from top to bottom and left to right.
    QMemArray<QRect> rects() const;
    //! Makes the region of rectangles as rects() gives them.
    void setRects(const QRect* rects, int number);

    const QRegion operator|(const QRegion& other) const { return unite(other); }
    const QRegion operator+(const QRegion& other) const { return unite(other); }
    const QRegion operator&(const QRegion& other) const { return intersect(other); }
    const QRegion operator-(const QRegion& other) const { return subtract(other); }
    const QRegion operator^(const QRegion& other) const { return eor(other); }
    QRegion& operator|=(const QRegion& other) { return *this = unite(other); }
    QRegion& operator+=(const QRegion& other) { return *this = unite(other); }
    QRegion& operator&=(const QRegion& other) { return *this = intersect(other); }
    QRegion& operator-=(const QRegion& other) { return *this = subtract(other); }
    QRegion& operator^=(const QRegion& other) { return *this = eor(other); }
    bool operator==(const QRegion& other) const;
    bool operator!=(const QRegion& other) const { return !(*this == other); }

private:
    ZELTK_LOCAL explicit QRegion(zeltk::RegionData* data);
    zeltk::RegionData* d;
};

#endif
