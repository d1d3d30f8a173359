// How a region is kept.
#ifndef ZELTK_REGIONDATA_H
#define ZELTK_REGIONDATA_H

#include <vector>

namespace zeltk
{

// Pixels from..behind-1 of a row.
struct Span {
    int from;
    int behind;
    bool operator==(const Span& other) const { return from == other.from && behind == other.behind; }
};
using Spans = std::vector<Span>;

// Rows top..bottom-1 that all have the same spans, sorted and apart from each other.
struct Band {
    int top;
    int bottom;
    Spans spans;
    bool operator==(const Band& other) const
    {
        return top == other.top && bottom == other.bottom && spans == other.spans;
    }
};

// Bands from top to bottom; neighbours that touch differ in their spans. So equal regions have equal bands.
using Bands = std::vector<Band>;

struct RegionData {
    int references;
    Bands bands;
};

enum class SetOperation { Unite, Intersect, Subtract, Xor };

Bands combined(const Bands& a, const Bands& b, SetOperation operation);
// Adds rows below all others; joins them with the band above when they are alike.
void appendRows(Bands* bands, int top, int bottom, Spans spans);

} // namespace zeltk

#endif
