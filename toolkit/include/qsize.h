// Width and height, in pixels.
#ifndef QSIZE_H
#define QSIZE_H

#include <qpoint.h>

//! A default size is invalid: -1 x -1.
class Q_EXPORT QSize
{
public:
    enum ScaleMode { ScaleFree, ScaleMin, ScaleMax };

    QSize() : wd(-1), ht(-1) {}
    QSize(int width, int height) : wd(width), ht(height) {}

    bool isNull() const { return wd == 0 && ht == 0; }
    bool isEmpty() const { return wd < 1 || ht < 1; }
    bool isValid() const { return wd >= 0 && ht >= 0; }
    int width() const { return wd; }
    int height() const { return ht; }
    void setWidth(int width) { wd = width; }
    void setHeight(int height) { ht = height; }
    //! Exchanges width and height.
    void transpose();
    //! To that size; ScaleMin and ScaleMax keep the proportions and stay inside it, or go round it.
    void scale(int width, int height, ScaleMode mode);
    void scale(const QSize& size, ScaleMode mode) { scale(size.wd, size.ht, mode); }
    QSize expandedTo(const QSize& other) const { return QSize(QMAX(wd, other.wd), QMAX(ht, other.ht)); }
    QSize boundedTo(const QSize& other) const { return QSize(QMIN(wd, other.wd), QMIN(ht, other.ht)); }
    QCOORD& rwidth() { return wd; }
    QCOORD& rheight() { return ht; }

    QSize& operator+=(const QSize& s)
    {
        wd = zeltk::sum(wd, s.wd);
        ht = zeltk::sum(ht, s.ht);
        return *this;
    }
    QSize& operator-=(const QSize& s)
    {
        wd = zeltk::difference(wd, s.wd);
        ht = zeltk::difference(ht, s.ht);
        return *this;
    }
    QSize& operator*=(int c)
    {
        wd = zeltk::product(wd, c);
        ht = zeltk::product(ht, c);
        return *this;
    }
    QSize& operator*=(double c)
    {
        wd = (QCOORD)(wd * c);
        ht = (QCOORD)(ht * c);
        return *this;
    }
    QSize& operator/=(int c)
    {
        wd /= c;
        ht /= c;
        return *this;
    }
    QSize& operator/=(double c)
    {
        wd = (QCOORD)(wd / c);
        ht = (QCOORD)(ht / c);
        return *this;
    }

private:
    QCOORD wd;
    QCOORD ht;
};

inline bool operator==(const QSize& a, const QSize& b)
{
    return a.width() == b.width() && a.height() == b.height();
}
inline bool operator!=(const QSize& a, const QSize& b)
{
    return !(a == b);
}
inline const QSize operator+(const QSize& a, const QSize& b)
{
    return QSize(zeltk::sum(a.width(), b.width()), zeltk::sum(a.height(), b.height()));
}
inline const QSize operator-(const QSize& a, const QSize& b)
{
    return QSize(zeltk::difference(a.width(), b.width()), zeltk::difference(a.height(), b.height()));
}
inline const QSize operator*(const QSize& s, int c)
{
    return QSize(zeltk::product(s.width(), c), zeltk::product(s.height(), c));
}
inline const QSize operator*(int c, const QSize& s)
{
    return s * c;
}
inline const QSize operator*(const QSize& s, double c)
{
    return QSize((int)(s.width() * c), (int)(s.height() * c));
}
inline const QSize operator*(double c, const QSize& s)
{
    return s * c;
}
inline const QSize operator/(const QSize& s, int c)
{
    return QSize(s.width() / c, s.height() / c);
}
inline const QSize operator/(const QSize& s, double c)
{
    return QSize((int)(s.width() / c), (int)(s.height() / c));
}

#endif
