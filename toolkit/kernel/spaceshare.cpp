// How the items of a row share its length.
#include "kernel/spaceshare.h"

#include <algorithm>

namespace
{

using zeltk::Share;
using Row = std::vector<Share>;

// Parts of a whole in proportion to weights, counted in fractions of a pixel: edges are rounded, not sizes,
// so that the parts add up.
class Divider
{
public:
    Divider(int whole, long long weights) : m_whole(whole), m_weights(weights) {}

    int next(int weight)
    {
        const int before = pixels();
        m_edge += m_whole * fraction * weight / m_weights;
        return pixels() - before;
    }

private:
    static constexpr long long fraction = 256;

    int pixels() const { return static_cast<int>((m_edge + fraction / 2) / fraction); }

    int m_whole;
    long long m_weights;
    long long m_edge = 0;
};

// With stretch the hint does not count: the stretch alone says how the room is shared.
int wish(const Share& share)
{
    return share.stretch > 0 ? share.minimum : share.hint;
}

int shownIn(const Row& row)
{
    return static_cast<int>(std::count_if(row.begin(), row.end(), [](const Share& s) { return !s.empty; }));
}

// All give up the same, but none more than it can.
void shrink(Row& row, int missing)
{
    std::vector<Share*> open;
    for (Share& share : row)
        open.push_back(&share);
    for (bool settled = false; !settled && !open.empty();) {
        Divider cut(missing, static_cast<long long>(open.size()));
        std::vector<Share*> still;
        settled = true;
        for (Share* share : open) {
            const int part = cut.next(1);
            const int most = std::max(0, wish(*share) - share->minimum);
            share->size = wish(*share) - std::min(part, most);
            if (part > most) {
                missing -= most;
                settled = false;
            } else {
                still.push_back(share);
            }
        }
        open = still;
    }
}

// Those that want surplus; all if nobody does.
std::vector<Share*> takers(Row& row)
{
    const auto wants = [](const Share& s) { return s.stretch > 0 || s.expanding; };
    const bool some = std::any_of(row.begin(), row.end(), wants);
    std::vector<Share*> result;
    for (Share& share : row)
        if (wants(share) || !some)
            result.push_back(&share);
    return result;
}

// Returns what nobody takes. Where there is stretch the rest gets nothing by itself. Then those outside their
// limits are settled, first those above or those below, whichever matters more, and the rest is shared anew.
int grow(Row& row, int room)
{
    std::vector<Share*> open = takers(row);
    for (Share& share : row)
        if (std::find(open.begin(), open.end(), &share) == open.end())
            room -= share.size = wish(share);
    while (!open.empty()) {
        long long stretches = 0;
        for (const Share* share : open)
            stretches += share->stretch;
        Divider parts(room, stretches ? stretches : static_cast<long long>(open.size()));
        int above = 0;
        int below = 0;
        for (Share* share : open) {
            share->size = parts.next(stretches ? share->stretch : 1);
            above += std::max(0, share->size - share->maximum);
            below += std::max(0, wish(*share) - share->size);
        }
        if (!above && !below)
            return 0;
        const bool cap = above > below;
        std::vector<Share*> still;
        for (Share* share : open) {
            if (cap ? share->size > share->maximum : share->size < wish(*share))
                room -= share->size = cap ? share->maximum : wish(*share);
            else
                still.push_back(share);
        }
        open = still;
    }
    return std::max(0, room);
}

} // namespace

void zeltk::shareSpace(std::vector<Share>& row, int start, int room, int spacing)
{
    const int shown = shownIn(row);
    const int gaps = std::max(0, shown - 1) * spacing;
    long long least = gaps;
    long long wished = gaps;
    for (const Share& share : row) {
        least += share.minimum;
        wished += wish(share);
    }
    int around = 0;
    if (room < least) {
        for (Share& share : row)
            share.size = share.minimum;
    } else if (room < wished) {
        shrink(row, static_cast<int>(wished - room));
    } else {
        around = grow(row, room - gaps) / (shown + 1);
    }
    int pos = start + around;
    for (Share& share : row) {
        share.pos = pos;
        pos += share.size + (share.empty ? 0 : around + spacing);
    }
}
