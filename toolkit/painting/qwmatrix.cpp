// QWMatrix.
#include <qwmatrix.h>

#include <algorithm>
#include <cmath>

namespace
{

// Sine and cosine that are exact for the right angles.
double sineOfDegrees(double degrees)
{
    if (degrees == 90.0 || degrees == -270.0)
        return 1.0;
    if (degrees == 270.0 || degrees == -90.0)
        return -1.0;
    if (degrees == 180.0 || degrees == -180.0 || degrees == 360.0)
        return 0.0;
    return std::sin(degrees * M_PI / 180.0);
}

double cosineOfDegrees(double degrees)
{
    if (degrees == 90.0 || degrees == -270.0 || degrees == 270.0 || degrees == -90.0)
        return 0.0;
    if (degrees == 180.0 || degrees == -180.0)
        return -1.0;
    return std::cos(degrees * M_PI / 180.0);
}

} // namespace

QWMatrix::QWMatrix()
{
    reset();
}

QWMatrix::QWMatrix(double m11, double m12, double m21, double m22, double dx, double dy)
{
    setMatrix(m11, m12, m21, m22, dx, dy);
}

void QWMatrix::setMatrix(double m11, double m12, double m21, double m22, double dx, double dy)
{
    _m11 = m11;
    _m12 = m12;
    _m21 = m21;
    _m22 = m22;
    _dx = dx;
    _dy = dy;
}

void QWMatrix::map(double x, double y, double* tx, double* ty) const
{
    *tx = _m11 * x + _m21 * y + _dx;
    *ty = _m12 * x + _m22 * y + _dy;
}

void QWMatrix::map(int x, int y, int* tx, int* ty) const
{
    double fx;
    double fy;
    map(static_cast<double>(x), static_cast<double>(y), &fx, &fy);
    *tx = qRound(fx);
    *ty = qRound(fy);
}

QPoint QWMatrix::map(const QPoint& p) const
{
    int x;
    int y;
    map(p.x(), p.y(), &x, &y);
    return QPoint(x, y);
}

QPointArray QWMatrix::map(const QPointArray& points) const
{
    QPointArray result = points.copy();
    for (uint i = 0; i < result.size(); ++i)
        result.setPoint(i, map(points.point(i)));
    return result;
}

// The outline of the rectangle's area, unlike that of its pixels.
QPointArray QWMatrix::mapToPolygon(const QRect& rect) const
{
    return map(QPointArray(QRect(rect.x(), rect.y(), rect.width() + 1, rect.height() + 1)));
}

QRect QWMatrix::mapRect(const QRect& rect) const
{
    return map(QPointArray(rect)).boundingRect();
}

QRegion QWMatrix::mapToRegion(const QRect& rect) const
{
    if (_m12 == 0.0 && _m21 == 0.0)
        return QRegion(mapRect(rect));
    return QRegion(mapToPolygon(rect));
}

QRegion QWMatrix::map(const QRegion& region) const
{
    if (isIdentity())
        return region;
    QRegion result;
    const QMemArray<QRect> rects = region.rects();
    for (uint i = 0; i < rects.size(); ++i)
        result |= mapToRegion(rects.at(i));
    return result;
}

void QWMatrix::reset()
{
    setMatrix(1, 0, 0, 1, 0, 0);
}

bool QWMatrix::isIdentity() const
{
    return *this == QWMatrix();
}

QWMatrix& QWMatrix::translate(double dx, double dy)
{
    return *this = QWMatrix(1, 0, 0, 1, dx, dy) * *this;
}

QWMatrix& QWMatrix::scale(double sx, double sy)
{
    return *this = QWMatrix(sx, 0, 0, sy, 0, 0) * *this;
}

QWMatrix& QWMatrix::shear(double sh, double sv)
{
    return *this = QWMatrix(1, sv, sh, 1, 0, 0) * *this;
}

QWMatrix& QWMatrix::rotate(double degrees)
{
    const double s = sineOfDegrees(degrees);
    const double c = cosineOfDegrees(degrees);
    return *this = QWMatrix(c, s, -s, c, 0, 0) * *this;
}

QWMatrix QWMatrix::invert(bool* invertible) const
{
    const double determinant = det();
    if (invertible)
        *invertible = determinant != 0.0;
    if (determinant == 0.0)
        return QWMatrix();
    const double inverse = 1.0 / determinant;
    return QWMatrix(_m22 * inverse, -_m12 * inverse, -_m21 * inverse, _m11 * inverse,
                    (_m21 * _dy - _m22 * _dx) * inverse, (_m12 * _dx - _m11 * _dy) * inverse);
}

bool QWMatrix::operator==(const QWMatrix& other) const
{
    return _m11 == other._m11 && _m12 == other._m12 && _m21 == other._m21 && _m22 == other._m22 &&
           _dx == other._dx && _dy == other._dy;
}

QWMatrix& QWMatrix::operator*=(const QWMatrix& other)
{
    return *this = *this * other;
}

QWMatrix operator*(const QWMatrix& a, const QWMatrix& b)
{
    return QWMatrix(a.m11() * b.m11() + a.m12() * b.m21(), a.m11() * b.m12() + a.m12() * b.m22(),
                    a.m21() * b.m11() + a.m22() * b.m21(), a.m21() * b.m12() + a.m22() * b.m22(),
                    a.dx() * b.m11() + a.dy() * b.m21() + b.dx(),
                    a.dx() * b.m12() + a.dy() * b.m22() + b.dy());
}
