// Which pixels a polygon covers.
#include "painting/polygonrows.h"

#include <qpointarray.h>

#include <algorithm>

namespace zeltk
{

namespace
{

struct Crossing {
    int x; // the first pixel at or right of the edge
    int direction;
};

// a / b rounded up; b > 0.
Q_LLONG ceilDivided(Q_LLONG a, Q_LLONG b)
{
    return a >= 0 ? (a + b - 1) / b : -(-a / b);
}

std::vector<Crossing> crossings(const QPointArray& polygon, int y)
{
    std::vector<Crossing> result;
    for (uint i = 0; i < polygon.size(); ++i) {
        QPoint from = polygon.point(i);
        QPoint to = polygon.point((i + 1) % polygon.size());
        const int direction = from.y() < to.y() ? 1 : -1;
        if (direction < 0)
            std::swap(from, to);
        if (y < from.y() || y >= to.y())
            continue;
        const Q_LLONG rise = Q_LLONG(to.y()) - from.y();
        const Q_LLONG run = Q_LLONG(to.x()) - from.x();
        const Q_LLONG x = from.x() + ceilDivided((Q_LLONG(y) - from.y()) * run, rise);
        result.push_back({static_cast<int>(x), direction});
    }
    std::sort(result.begin(), result.end(), [](const Crossing& a, const Crossing& b) { return a.x < b.x; });
    return result;
}

Spans rowOf(const std::vector<Crossing>& crossings, bool winding)
{
    Spans spans;
    int turns = 0;
    for (size_t i = 0; i + 1 < crossings.size(); ++i) {
        turns += winding ? crossings[i].direction : 1;
        const bool inside = winding ? turns != 0 : turns % 2 != 0;
        if (!inside || crossings[i].x == crossings[i + 1].x)
            continue;
        if (!spans.empty() && spans.back().behind == crossings[i].x)
            spans.back().behind = crossings[i + 1].x;
        else
            spans.push_back({crossings[i].x, crossings[i + 1].x});
    }
    return spans;
}

} // namespace

Bands polygonRows(const QPointArray& polygon, bool winding)
{
    Bands bands;
    if (polygon.size() < 3)
        return bands;
    const QRect box = polygon.boundingRect();
    for (int y = box.top(); y <= box.bottom(); ++y)
        appendRows(&bands, y, y + 1, rowOf(crossings(polygon, y), winding));
    return bands;
}

} // namespace zeltk
