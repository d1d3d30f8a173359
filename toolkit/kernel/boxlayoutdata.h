// The items of a box layout and what it has worked out about them.
#ifndef ZELTK_BOXLAYOUTDATA_H
#define ZELTK_BOXLAYOUTDATA_H

#include "kernel/spaceshare.h"

#include <qlayout.h>

#include <optional>
#include <vector>

namespace zeltk
{

// Room along the box or, without any, at least that much across.
struct OwnSpacer {
    int along = 0;
    int across = 0;
    bool expanding = false;
};

struct BoxItem {
    QLayoutItem* item;
    int stretch;
    std::optional<OwnSpacer> own; // made by the box, and turned with it
};

struct BoxLayoutData {
    QBoxLayout::Direction direction;
    std::vector<BoxItem> items;

    // What follows from the items' sizes, without the margin.
    bool dirty = true;
    std::vector<Share> row;
    QSize hint;
    QSize minimum;
    QSize maximum;
    int expanding = 0;
    bool hasHeightForWidth = false;

    bool horizontal() const
    {
        return direction == QBoxLayout::LeftToRight || direction == QBoxLayout::RightToLeft;
    }
    // Brings all that up to date.
    void measure(int spacing);
    // The row for that width; only in a column are there items that get higher by it.
    std::vector<Share> rowFor(int width) const;
    // The height, and the least one, for that width.
    void heights(int width, int spacing, int& height, int& least) const;
};

} // namespace zeltk

#endif
