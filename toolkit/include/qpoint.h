// A place in the plane, in pixels.
#ifndef QPOINT_H
#define QPOINT_H

#include <qwindowdefs.h>

class Q_EXPORT QPoint
{
public:
    QPoint() : xp(0), yp(0) {}
    QPoint(int x, int y) : xp(x), yp(y) {}

    bool isNull() const { return xp == 0 && yp == 0; }
    int x() const { return xp; }
    int y() const { return yp; }
    void setX(int x) { xp = x; }
    void setY(int y) { yp = y; }
    QCOORD& rx() { return xp; }
    QCOORD& ry() { return yp; }
    int manhattanLength() const
    {
        return zeltk::sum(xp < 0 ? zeltk::difference(0, xp) : xp, yp < 0 ? zeltk::difference(0, yp) : yp);
    }

    QPoint& operator+=(const QPoint& p)
    {
        xp = zeltk::sum(xp, p.xp);
        yp = zeltk::sum(yp, p.yp);
        return *this;
    }
    QPoint& operator-=(const QPoint& p)
    {
        xp = zeltk::difference(xp, p.xp);
        yp = zeltk::difference(yp, p.yp);
        return *this;
    }
    QPoint& operator*=(int c)
    {
        xp = zeltk::product(xp, c);
        yp = zeltk::product(yp, c);
        return *this;
    }
    QPoint& operator*=(double c)
    {
        xp = (QCOORD)(xp * c);
        yp = (QCOORD)(yp * c);
        return *this;
    }
    QPoint& operator/=(int c)
    {
        xp /= c;
        yp /= c;
        return *this;
    }
    QPoint& operator/=(double c)
    {
        xp = (QCOORD)(xp / c);
        yp = (QCOORD)(yp / c);
        return *this;
    }

private:
    QCOORD xp;
    QCOORD yp;
};

inline bool operator==(const QPoint& a, const QPoint& b)
{
    return a.x() == b.x() && a.y() == b.y();
}
inline bool operator!=(const QPoint& a, const QPoint& b)
{
    return !(a == b);
}
inline const QPoint operator+(const QPoint& a, const QPoint& b)
{
    return QPoint(zeltk::sum(a.x(), b.x()), zeltk::sum(a.y(), b.y()));
}
inline const QPoint operator-(const QPoint& a, const QPoint& b)
{
    return QPoint(zeltk::difference(a.x(), b.x()), zeltk::difference(a.y(), b.y()));
}
inline const QPoint operator*(const QPoint& p, int c)
{
    return QPoint(zeltk::product(p.x(), c), zeltk::product(p.y(), c));
}
inline const QPoint operator*(int c, const QPoint& p)
{
    return p * c;
}
inline const QPoint operator*(const QPoint& p, double c)
{
    return QPoint((int)(p.x() * c), (int)(p.y() * c));
}
inline const QPoint operator*(double c, const QPoint& p)
{
    return p * c;
}
inline const QPoint operator-(const QPoint& p)
{
    return QPoint(zeltk::difference(0, p.x()), zeltk::difference(0, p.y()));
}
inline const QPoint operator/(const QPoint& p, int c)
{
    return QPoint(p.x() / c, p.y() / c);
}
inline const QPoint operator/(const QPoint& p, double c)
{
    return QPoint((int)(p.x() / c), (int)(p.y() / c));
}

#endif
