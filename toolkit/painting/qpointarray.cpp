// QPointArray.
#include <qpointarray.h>

#include <algorithm>
#include <cmath>
#include <cstdarg>

namespace
{

// As many as the lines of a polygon in X; what would need more does not fit on any device.
constexpr double mostSteps = 0xffff;

int wholeSteps(double length)
{
    return static_cast<int>(std::min(std::max(length, 0.0), mostSteps));
}

} // namespace

QPointArray::QPointArray(const QRect& rect, bool closed) : QMemArray<QPoint>(closed ? 5 : 4)
{
    const int right = rect.right();
    const int bottom = rect.bottom();
    setPoint(0, rect.left(), rect.top());
    setPoint(1, right, rect.top());
    setPoint(2, right, bottom);
    setPoint(3, rect.left(), bottom);
    if (closed)
        setPoint(4, rect.left(), rect.top());
}

QPointArray::QPointArray(int count, const QCOORD* points)
{
    setPoints(count, points);
}

QPointArray QPointArray::copy() const
{
    QPointArray result;
    result.duplicate(*this);
    return result;
}

void QPointArray::translate(int dx, int dy)
{
    const QPoint offset(dx, dy);
    for (uint i = 0; i < size(); ++i)
        at(i) += offset;
}

QRect QPointArray::boundingRect() const
{
    if (isEmpty())
        return QRect(0, 0, 0, 0);
    QRect box(at(0), at(0));
    for (uint i = 1; i < size(); ++i)
        box |= QRect(at(i), at(i));
    return box;
}

void QPointArray::point(uint index, int* x, int* y) const
{
    *x = at(index).x();
    *y = at(index).y();
}

bool QPointArray::setPoints(int count, const QCOORD* points)
{
    return resize(static_cast<uint>(std::max(count, 0))) && putPoints(0, count, points);
}

bool QPointArray::setPoints(int count, int firstX, int firstY, ...)
{
    if (!resize(static_cast<uint>(std::max(count, 0))) || count <= 0)
        return count == 0;
    setPoint(0, firstX, firstY);
    va_list rest;
    va_start(rest, firstY);
    for (uint i = 1; i < size(); ++i) {
        const int x = va_arg(rest, int);
        setPoint(i, x, va_arg(rest, int));
    }
    va_end(rest);
    return true;
}

bool QPointArray::putPoints(int index, int count, const QCOORD* points)
{
    if (static_cast<int>(size()) < index + count && !resize(static_cast<uint>(index + count)))
        return false;
    for (int i = 0; i < count; ++i)
        setPoint(static_cast<uint>(index + i), points[2 * i], points[2 * i + 1]);
    return true;
}

bool QPointArray::putPoints(int index, int count, int firstX, int firstY, ...)
{
    if (count <= 0)
        return count == 0;
    if (static_cast<int>(size()) < index + count && !resize(static_cast<uint>(index + count)))
        return false;
    setPoint(static_cast<uint>(index), firstX, firstY);
    va_list rest;
    va_start(rest, firstY);
    for (int i = index + 1; i < index + count; ++i) {
        const int x = va_arg(rest, int);
        setPoint(static_cast<uint>(i), x, va_arg(rest, int));
    }
    va_end(rest);
    return true;
}

bool QPointArray::putPoints(int index, int count, const QPointArray& from, int fromIndex)
{
    if (static_cast<int>(size()) < index + count && !resize(static_cast<uint>(index + count)))
        return false;
    for (int i = 0; i < count; ++i)
        setPoint(static_cast<uint>(index + i), from.point(static_cast<uint>(fromIndex + i)));
    return true;
}

// One point for each pixel that the arc passes, roughly.
void QPointArray::makeArc(int x, int y, int width, int height, int startAngle, int angleLength)
{
    const double a = (width - 1.0) / 2.0;
    const double b = (height - 1.0) / 2.0;
    const double sixteenth = M_PI / 180.0 / 16.0;
    const double length = std::fabs(angleLength * sixteenth) * std::max(a, b);
    const int steps = std::max(2, wholeSteps(length) + 1);
    resize(static_cast<uint>(steps + 1));
    for (int i = 0; i <= steps; ++i) {
        const double angle = (startAngle + angleLength * double(i) / steps) * sixteenth;
        setPoint(static_cast<uint>(i),
                 QPoint(x, y) + QPoint(qRound(a + a * std::cos(angle)), qRound(b - b * std::sin(angle))));
    }
}

void QPointArray::makeEllipse(int x, int y, int width, int height)
{
    makeArc(x, y, width, height, 0, 360 * 16);
}

QPointArray QPointArray::cubicBezier() const
{
    if (size() != 4) {
        qWarning("QPointArray::bezier: The array must have 4 control points");
        return QPointArray();
    }
    double length = 0;
    for (uint i = 1; i < 4; ++i)
        length += std::hypot(static_cast<double>(point(i).x()) - point(i - 1).x(),
                             static_cast<double>(point(i).y()) - point(i - 1).y());
    const int steps = std::max(2, wholeSteps(length / 4));
    QPointArray curve(steps + 1);
    for (int i = 0; i <= steps; ++i) {
        const double t = double(i) / steps;
        const double s = 1 - t;
        const double weights[4] = {s * s * s, 3 * s * s * t, 3 * s * t * t, t * t * t};
        double x = 0;
        double y = 0;
        for (uint k = 0; k < 4; ++k) {
            x += weights[k] * point(k).x();
            y += weights[k] * point(k).y();
        }
        curve.setPoint(static_cast<uint>(i), qRound(x), qRound(y));
    }
    return curve;
}
