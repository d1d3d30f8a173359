// Arrays of points.
#ifndef QPOINTARRAY_H
#define QPOINTARRAY_H

#include <qmemarray.h>
#include <qpoint.h>
#include <qrect.h>

//! Copies share explicitly, as those of every QMemArray do.
class Q_EXPORT QPointArray : public QMemArray<QPoint>
{
public:
    QPointArray() {}
    ~QPointArray() {}
    QPointArray(int size) : QMemArray<QPoint>(size) {}
    QPointArray(const QPointArray& other) : QMemArray<QPoint>(other) {}
    //! The corners clockwise from the top left; the first one again at the end if closed.
    QPointArray(const QRect& rect, bool closed = false);
    //! `points` are x and y in turn.
    QPointArray(int count, const QCOORD* points);
    QPointArray& operator=(const QPointArray& other)
    {
        assign(other);
        return *this;
    }
    QPointArray copy() const;

    void translate(int dx, int dy);
    QRect boundingRect() const;

    void point(uint index, int* x, int* y) const;
    QPoint point(uint index) const { return at(index); }
    void setPoint(uint index, int x, int y) { at(index) = QPoint(x, y); }
    void setPoint(uint index, const QPoint& p) { at(index) = p; }
    bool setPoints(int count, const QCOORD* points);
    bool setPoints(int count, int firstX, int firstY, ...);
    //! Like setPoints(), from that index on; the array grows as needed.
    bool putPoints(int index, int count, const QCOORD* points);
    bool putPoints(int index, int count, int firstX, int firstY, ...);
    bool putPoints(int index, int count, const QPointArray& from, int fromIndex = 0);

    //! An arc of the ellipse in the rectangle; angles in 16ths of a degree, counter-clockwise from 3 o'clock.
    void makeArc(int x, int y, int width, int height, int startAngle, int angleLength);
    void makeEllipse(int x, int y, int width, int height);
    //! The curve of four control points as a line of points.
    QPointArray cubicBezier() const;
};

#endif
