// Transformations of the plane.
#ifndef QWMATRIX_H
#define QWMATRIX_H

#include <qpointarray.h>
#include <qrect.h>
#include <qregion.h>

//! x' = m11*x + m21*y + dx, y' = m22*y + m12*x + dy
class Q_EXPORT QWMatrix
{
public:
    QWMatrix();
    QWMatrix(double m11, double m12, double m21, double m22, double dx, double dy);
    void setMatrix(double m11, double m12, double m21, double m22, double dx, double dy);

    double m11() const { return _m11; }
    double m12() const { return _m12; }
    double m21() const { return _m21; }
    double m22() const { return _m22; }
    double dx() const { return _dx; }
    double dy() const { return _dy; }

    void map(int x, int y, int* tx, int* ty) const;
    void map(double x, double y, double* tx, double* ty) const;
    //! The smallest rectangle around the mapped one.
    QRect mapRect(const QRect& rect) const;
    QPoint map(const QPoint& p) const;
    QRect map(const QRect& rect) const { return mapRect(rect); }
    QPointArray map(const QPointArray& points) const;
    QRegion map(const QRegion& region) const;
    QRegion mapToRegion(const QRect& rect) const;
    QPointArray mapToPolygon(const QRect& rect) const;

    void reset();
    bool isIdentity() const;
    //! These four transform the coordinates before what the matrix does so far.
    QWMatrix& translate(double dx, double dy);
    QWMatrix& scale(double sx, double sy);
    QWMatrix& shear(double sh, double sv);
    QWMatrix& rotate(double degrees);

    bool isInvertible() const { return det() != 0.0; }
    double det() const { return _m11 * _m22 - _m12 * _m21; }
    //! The identity when there is no inverse.
    QWMatrix invert(bool* invertible = 0) const;

    bool operator==(const QWMatrix& other) const;
    bool operator!=(const QWMatrix& other) const { return !(*this == other); }
    QWMatrix& operator*=(const QWMatrix& other);
    QPoint operator*(const QPoint& p) const { return map(p); }
    QRegion operator*(const QRect& rect) const { return mapToRegion(rect); }
    QRegion operator*(const QRegion& region) const { return map(region); }
    QPointArray operator*(const QPointArray& points) const { return map(points); }

private:
    double _m11;
    double _m12;
    double _m21;
    double _m22;
    double _dx;
    double _dy;
};

//! First the left one, then the right one.
Q_EXPORT QWMatrix operator*(const QWMatrix& a, const QWMatrix& b);

#endif
