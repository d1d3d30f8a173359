// How the items of a row share its length.
#ifndef ZELTK_SPACESHARE_H
#define ZELTK_SPACESHARE_H

#include <vector>

namespace zeltk
{

struct Share {
    int hint = 0;
    int minimum = 0;
    int maximum = 0;
    int stretch = 0;
    bool expanding = false;
    bool empty = true; // no spacing goes with it

    int pos = 0;
    int size = 0;
};

// Sets `pos` and `size` of all. Too little room is taken from all alike, down to their minimum; surplus goes
// to those with stretch, else to those that expand, else to all, up to their maximum. What nobody may take is
// spread around the items.
void shareSpace(std::vector<Share>& row, int start, int room, int spacing);

} // namespace zeltk

#endif
