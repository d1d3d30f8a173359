// A rectangle of pixels.
#ifndef QRECT_H
#define QRECT_H

#include <qsize.h>

namespace zeltk
{
inline int lastOf(int first, int count)
{
    return difference(sum(first, count), 1);
}
} // namespace zeltk

//! right() and bottom() are the last pixels inside: left() + width() - 1, top() + height() - 1.
class Q_EXPORT QRect
{
public:
    QRect() : x1(0), y1(0), x2(-1), y2(-1) {}
    QRect(const QPoint& topLeft, const QPoint& bottomRight)
        : x1(topLeft.x()), y1(topLeft.y()), x2(bottomRight.x()), y2(bottomRight.y())
    {
    }
    QRect(const QPoint& topLeft, const QSize& size)
        : x1(topLeft.x()), y1(topLeft.y()), x2(zeltk::lastOf(x1, size.width())),
          y2(zeltk::lastOf(y1, size.height()))
    {
    }
    QRect(int left, int top, int width, int height)
        : x1(left), y1(top), x2(zeltk::lastOf(left, width)), y2(zeltk::lastOf(top, height))
    {
    }

    bool isNull() const { return width() == 0 && height() == 0; }
    bool isEmpty() const { return x1 > x2 || y1 > y2; }
    bool isValid() const { return x1 <= x2 && y1 <= y2; }
    //! Left and right, top and bottom exchanged where they are in the wrong order.
    QRect normalize() const;

    int left() const { return x1; }
    int top() const { return y1; }
    int right() const { return x2; }
    int bottom() const { return y2; }
    QCOORD& rLeft() { return x1; }
    QCOORD& rTop() { return y1; }
    QCOORD& rRight() { return x2; }
    QCOORD& rBottom() { return y2; }
    int x() const { return x1; }
    int y() const { return y1; }

    void setLeft(int pos) { x1 = pos; }
    void setTop(int pos) { y1 = pos; }
    void setRight(int pos) { x2 = pos; }
    void setBottom(int pos) { y2 = pos; }
    void setX(int x) { x1 = x; }
    void setY(int y) { y1 = y; }
    void setTopLeft(const QPoint& p)
    {
        x1 = p.x();
        y1 = p.y();
    }
    void setBottomRight(const QPoint& p)
    {
        x2 = p.x();
        y2 = p.y();
    }
    void setTopRight(const QPoint& p)
    {
        x2 = p.x();
        y1 = p.y();
    }
    void setBottomLeft(const QPoint& p)
    {
        x1 = p.x();
        y2 = p.y();
    }

    QPoint topLeft() const { return QPoint(x1, y1); }
    QPoint bottomRight() const { return QPoint(x2, y2); }
    QPoint topRight() const { return QPoint(x2, y1); }
    QPoint bottomLeft() const { return QPoint(x1, y2); }
    QPoint center() const { return QPoint((int)(((Q_LLONG)x1 + x2) / 2), (int)(((Q_LLONG)y1 + y2) / 2)); }

    void rect(int* x, int* y, int* width, int* height) const
    {
        *x = x1;
        *y = y1;
        *width = this->width();
        *height = this->height();
    }
    void coords(int* left, int* top, int* right, int* bottom) const
    {
        *left = x1;
        *top = y1;
        *right = x2;
        *bottom = y2;
    }

    void moveLeft(int pos) { moveBy(zeltk::difference(pos, x1), 0); }
    void moveTop(int pos) { moveBy(0, zeltk::difference(pos, y1)); }
    void moveRight(int pos) { moveBy(zeltk::difference(pos, x2), 0); }
    void moveBottom(int pos) { moveBy(0, zeltk::difference(pos, y2)); }
    void moveTopLeft(const QPoint& p) { moveBy(zeltk::difference(p.x(), x1), zeltk::difference(p.y(), y1)); }
    void moveBottomRight(const QPoint& p)
    {
        moveBy(zeltk::difference(p.x(), x2), zeltk::difference(p.y(), y2));
    }
    void moveTopRight(const QPoint& p) { moveBy(zeltk::difference(p.x(), x2), zeltk::difference(p.y(), y1)); }
    void moveBottomLeft(const QPoint& p)
    {
        moveBy(zeltk::difference(p.x(), x1), zeltk::difference(p.y(), y2));
    }
    void moveCenter(const QPoint& p);
    void moveBy(int dx, int dy)
    {
        x1 = zeltk::sum(x1, dx);
        y1 = zeltk::sum(y1, dy);
        x2 = zeltk::sum(x2, dx);
        y2 = zeltk::sum(y2, dy);
    }

    void setRect(int x, int y, int width, int height) { *this = QRect(x, y, width, height); }
    void setCoords(int left, int top, int right, int bottom)
    {
        x1 = left;
        y1 = top;
        x2 = right;
        y2 = bottom;
    }
    void addCoords(int left, int top, int right, int bottom)
    {
        x1 = zeltk::sum(x1, left);
        y1 = zeltk::sum(y1, top);
        x2 = zeltk::sum(x2, right);
        y2 = zeltk::sum(y2, bottom);
    }

    QSize size() const { return QSize(width(), height()); }
    int width() const { return zeltk::sum(zeltk::difference(x2, x1), 1); }
    int height() const { return zeltk::sum(zeltk::difference(y2, y1), 1); }
    void setWidth(int width) { x2 = zeltk::lastOf(x1, width); }
    void setHeight(int height) { y2 = zeltk::lastOf(y1, height); }
    void setSize(const QSize& size)
    {
        setWidth(size.width());
        setHeight(size.height());
    }

    //! The smallest rectangle around both; an invalid one adds nothing.
    QRect operator|(const QRect& other) const;
    //! What both have in common; invalid if that is nothing.
    QRect operator&(const QRect& other) const;
    QRect& operator|=(const QRect& other) { return *this = *this | other; }
    QRect& operator&=(const QRect& other) { return *this = *this & other; }

    //! `proper`: the edge does not count as inside.
    bool contains(const QPoint& p, bool proper = false) const;
    bool contains(int x, int y) const { return contains(QPoint(x, y), false); }
    bool contains(int x, int y, bool proper) const { return contains(QPoint(x, y), proper); }
    bool contains(const QRect& other, bool proper = false) const;
    QRect unite(const QRect& other) const { return *this | other; }
    QRect intersect(const QRect& other) const { return *this & other; }
    bool intersects(const QRect& other) const;

    friend bool operator==(const QRect& a, const QRect& b)
    {
        return a.x1 == b.x1 && a.x2 == b.x2 && a.y1 == b.y1 && a.y2 == b.y2;
    }
    friend bool operator!=(const QRect& a, const QRect& b) { return !(a == b); }

private:
    QCOORD x1;
    QCOORD y1;
    QCOORD x2;
    QCOORD y2;
};

#endif
