// QRect.
#include <qrect.h>

#include <algorithm>

QRect QRect::normalize() const
{
    QRect result(*this);
    if (x2 < x1) {
        result.x1 = x2;
        result.x2 = x1;
    }
    if (y2 < y1) {
        result.y1 = y2;
        result.y2 = y1;
    }
    return result;
}

void QRect::moveCenter(const QPoint& p)
{
    const QSize extent(x2 - x1, y2 - y1);
    x1 = p.x() - extent.width() / 2;
    y1 = p.y() - extent.height() / 2;
    x2 = x1 + extent.width();
    y2 = y1 + extent.height();
}

bool QRect::contains(const QPoint& p, bool proper) const
{
    const int edge = proper ? 1 : 0;
    return p.x() >= x1 + edge && p.x() <= x2 - edge && p.y() >= y1 + edge && p.y() <= y2 - edge;
}

bool QRect::contains(const QRect& other, bool proper) const
{
    const int edge = proper ? 1 : 0;
    return other.x1 >= x1 + edge && other.x2 <= x2 - edge && other.y1 >= y1 + edge && other.y2 <= y2 - edge;
}

QRect QRect::operator|(const QRect& other) const
{
    if (!isValid())
        return other;
    if (!other.isValid())
        return *this;
    return QRect(QPoint(std::min(x1, other.x1), std::min(y1, other.y1)),
                 QPoint(std::max(x2, other.x2), std::max(y2, other.y2)));
}

QRect QRect::operator&(const QRect& other) const
{
    return QRect(QPoint(std::max(x1, other.x1), std::max(y1, other.y1)),
                 QPoint(std::min(x2, other.x2), std::min(y2, other.y2)));
}

bool QRect::intersects(const QRect& other) const
{
    return std::max(x1, other.x1) <= std::min(x2, other.x2) &&
           std::max(y1, other.y1) <= std::min(y2, other.y2);
}
