// Box layouts: what the items of a row or column need together.
#include "kernel/boxlayoutdata.h"

#include <qwidget.h>

using zeltk::BoxItem;
using zeltk::Share;

namespace
{

bool isHidden(QLayoutItem* item)
{
    return item->isEmpty() && item->widget();
}

// A widget that was given none in the box may bring its own.
int stretchOf(const BoxItem& box, bool horizontal)
{
    if (isHidden(box.item))
        return 0;
    QWidget* const widget = box.item->widget();
    if (box.stretch > 0 || !widget)
        return QMAX(0, box.stretch);
    const QSizePolicy policy = widget->sizePolicy();
    return static_cast<int>(horizontal ? policy.horStretch() : policy.verStretch());
}

// No sum of lengths overflows.
int bounded(int length)
{
    return QMAX(0, QMIN(length, QLAYOUTSIZE_MAX));
}

Share shareOf(const BoxItem& box, bool horizontal)
{
    const QSize hint = box.item->sizeHint();
    const QSize least = box.item->minimumSize();
    const QSize most = box.item->maximumSize();
    Share share;
    share.hint = bounded(horizontal ? hint.width() : hint.height());
    share.minimum = bounded(horizontal ? least.width() : least.height());
    share.maximum = QMAX(share.minimum, bounded(horizontal ? most.width() : most.height()));
    share.stretch = stretchOf(box, horizontal);
    share.expanding =
        box.item->expanding() & (horizontal ? QSizePolicy::Horizontally : QSizePolicy::Vertically);
    share.empty = box.item->isEmpty();
    return share;
}

// Sizes of a whole box: the sum one way, a limit the other.
class Extent
{
public:
    Extent(bool horizontal, int across) : m_horizontal(horizontal), m_across(across) {}

    void add(int along) { m_along = QMIN(m_along + along, QLAYOUTSIZE_MAX); }
    void atLeast(const QSize& item) { m_across = QMAX(m_across, side(item)); }
    // Where some expand the others do not hold them back.
    void atMost(const QSize& item, bool expands)
    {
        if (expands != m_expanding && expands)
            m_across = side(item);
        else if (expands == m_expanding)
            m_across = expands ? QMAX(m_across, side(item)) : QMIN(m_across, side(item));
        m_expanding = m_expanding || expands;
    }
    QSize size() const { return m_horizontal ? QSize(m_along, m_across) : QSize(m_across, m_along); }

private:
    int side(const QSize& item) const { return bounded(m_horizontal ? item.height() : item.width()); }

    bool m_horizontal;
    bool m_expanding = false;
    int m_along = 0;
    int m_across;
};

} // namespace

void zeltk::BoxLayoutData::measure(int spacing)
{
    if (!dirty)
        return;
    dirty = false;
    row.clear();
    expanding = 0;
    hasHeightForWidth = false;
    const bool h = horizontal();
    const int along = h ? QSizePolicy::Horizontally : QSizePolicy::Vertically;
    const int across = along ^ QSizePolicy::BothDirections;
    Extent all(h, 0);
    Extent least(h, 0);
    Extent most(h, QLAYOUTSIZE_MAX);
    bool first = true;
    for (const BoxItem& box : items) {
        const Share share = shareOf(box, h);
        row.push_back(share);
        const int gap = share.empty || first ? 0 : spacing;
        first = first && share.empty;
        all.add(share.hint + gap);
        least.add(share.minimum + gap);
        most.add(bounded(h ? box.item->maximumSize().width() : box.item->maximumSize().height()) + gap);
        expanding |= box.item->expanding() | (share.stretch > 0 ? along : 0);
        if (!share.empty)
            hasHeightForWidth = hasHeightForWidth || box.item->hasHeightForWidth();
        if (isHidden(box.item))
            continue;
        all.atLeast(box.item->sizeHint());
        least.atLeast(box.item->minimumSize());
        most.atMost(box.item->maximumSize(), box.item->expanding() & across);
    }
    minimum = least.size();
    maximum = most.size().expandedTo(minimum);
    hint = all.size().boundedTo(maximum).expandedTo(minimum);
}

std::vector<zeltk::Share> zeltk::BoxLayoutData::rowFor(int width) const
{
    std::vector<Share> result = row;
    if (!hasHeightForWidth || horizontal())
        return result;
    for (size_t i = 0; i < items.size(); ++i)
        if (items[i].item->hasHeightForWidth())
            result[i].hint = result[i].minimum = items[i].item->heightForWidth(width);
    return result;
}

void zeltk::BoxLayoutData::heights(int width, int spacing, int& height, int& least) const
{
    height = least = 0;
    if (!horizontal()) {
        bool first = true;
        for (const Share& share : rowFor(width)) {
            const int gap = share.empty || first ? 0 : spacing;
            first = first && share.empty;
            height += share.hint + gap;
            least += share.minimum + gap;
        }
        return;
    }
    std::vector<Share> shared = row;
    shareSpace(shared, 0, width, spacing);
    for (size_t i = 0; i < items.size(); ++i) {
        QLayoutItem* const item = items[i].item;
        const bool depends = item->hasHeightForWidth();
        const int high = depends ? item->heightForWidth(shared[i].size) : 0;
        height = QMAX(height, depends ? high : item->sizeHint().height());
        least = QMAX(least, depends ? high : item->minimumSize().height());
    }
}
