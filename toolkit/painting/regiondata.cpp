// Set operations on regions.
#include "painting/regiondata.h"

#include <algorithm>
#include <limits>

namespace zeltk
{

namespace
{

bool keeps(SetOperation operation, bool inA, bool inB)
{
    switch (operation) {
    case SetOperation::Unite:
        return inA || inB;
    case SetOperation::Intersect:
        return inA && inB;
    case SetOperation::Subtract:
        return inA && !inB;
    case SetOperation::Xor:
        return inA != inB;
    }
    return false;
}

// Walks along the ends of the spans of one row.
class Edges
{
public:
    explicit Edges(const Spans& s) : spans(s) {}
    int next() const
    {
        if (index >= spans.size())
            return std::numeric_limits<int>::max();
        return inside ? spans[index].behind : spans[index].from;
    }
    bool isInside() const { return inside; }
    void pass()
    {
        if (inside)
            ++index;
        inside = !inside;
    }
    bool atEnd() const { return index >= spans.size(); }

private:
    const Spans& spans;
    size_t index = 0;
    bool inside = false;
};

Spans combinedRow(const Spans& a, const Spans& b, SetOperation operation)
{
    Spans result;
    Edges edgesA(a);
    Edges edgesB(b);
    bool inside = false;
    int start = 0;
    while (!edgesA.atEnd() || !edgesB.atEnd()) {
        const int x = std::min(edgesA.next(), edgesB.next());
        while (!edgesA.atEnd() && edgesA.next() == x)
            edgesA.pass();
        while (!edgesB.atEnd() && edgesB.next() == x)
            edgesB.pass();
        const bool now = keeps(operation, edgesA.isInside(), edgesB.isInside());
        if (now && !inside)
            start = x;
        if (!now && inside)
            result.push_back({start, x});
        inside = now;
    }
    return result;
}

const Spans nothing;

} // namespace

void appendRows(Bands* bands, int top, int bottom, Spans spans)
{
    if (spans.empty() || top >= bottom)
        return;
    if (!bands->empty() && bands->back().bottom == top && bands->back().spans == spans)
        bands->back().bottom = bottom;
    else
        bands->push_back({top, bottom, std::move(spans)});
}

Bands combined(const Bands& a, const Bands& b, SetOperation operation)
{
    constexpr int farBelow = std::numeric_limits<int>::max();
    Bands result;
    size_t ia = 0;
    size_t ib = 0;
    int y = std::numeric_limits<int>::min();
    while (ia < a.size() || ib < b.size()) {
        const bool inA = ia < a.size() && a[ia].top <= y;
        const bool inB = ib < b.size() && b[ib].top <= y;
        const int endA = ia >= a.size() ? farBelow : inA ? a[ia].bottom : a[ia].top;
        const int endB = ib >= b.size() ? farBelow : inB ? b[ib].bottom : b[ib].top;
        const int bottom = std::min(endA, endB);
        if (inA || inB)
            appendRows(&result, y, bottom,
                       combinedRow(inA ? a[ia].spans : nothing, inB ? b[ib].spans : nothing, operation));
        y = bottom;
        if (inA && a[ia].bottom == y)
            ++ia;
        if (inB && b[ib].bottom == y)
            ++ib;
    }
    return result;
}

} // namespace zeltk
