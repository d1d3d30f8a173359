// Graphics contexts, kept for use again.
#include "x11/gc.h"

#include "x11/errors.h"
#include "x11/xlib.h"
#include "x11/xrectangles.h"

namespace zeltk
{
namespace x11
{

namespace
{

constexpr size_t storeSize = 24;
constexpr unsigned long fields = GCFunction | GCForeground | GCBackground | GCLineWidth | GCLineStyle |
                                 GCCapStyle | GCJoinStyle | GCFillStyle | GCTileStipXOrigin |
                                 GCTileStipYOrigin | GCSubwindowMode | GCGraphicsExposures;

unsigned long fill(const GcKey& key, XGCValues* values)
{
    values->function = key.function;
    values->foreground = key.foreground;
    values->background = key.background;
    values->line_width = key.lineWidth;
    values->line_style = key.lineStyle;
    values->cap_style = key.cap;
    values->join_style = key.join;
    values->fill_style = key.fill;
    values->ts_x_origin = key.originX;
    values->ts_y_origin = key.originY;
    values->subwindow_mode = key.overChildren ? IncludeInferiors : ClipByChildren;
    values->graphics_exposures = 0;
    values->tile = key.pattern;
    values->stipple = key.pattern;
    if (key.fill == FillWithTile)
        return fields | GCTile;
    return key.fill == FillWithColor ? fields : fields | GCStipple;
}

// A context belongs to a depth, which a drawable names.
_XGC* makeContext(bool forBitmaps, unsigned long mask, XGCValues* values)
{
    endIfLost();
    if (!forBitmaps)
        return XCreateGC(display(), rootWindow(), mask, values);
    const Pixmap example = XCreatePixmap(display(), rootWindow(), 1, 1, 1);
    _XGC* const made = XCreateGC(display(), example, mask, values);
    XFreePixmap(display(), example);
    return made;
}

void empty(GcSlot* slot)
{
    if (slot->lost)
        XFree(slot->gc); // XFreeGC() would tell the server, which does not know it
    else
        XFreeGC(display(), slot->gc);
    slot->gc = nullptr;
    slot->lost = false;
}

void set(GcSlot* slot, const GcKey& key)
{
    XGCValues values;
    const unsigned long mask = fill(key, &values);
    if (slot->lost)
        empty(slot);
    const bool wasClipped = slot->gc && slot->key.clip;
    if (slot->gc)
        XChangeGC(display(), slot->gc, mask, &values);
    else
        slot->gc = makeContext(key.bitmap, mask, &values);
    if (!key.dashes.empty())
        XSetDashes(display(), slot->gc, 0, key.dashes.data(), static_cast<int>(key.dashes.size()));
    if (key.clip) {
        std::vector<XRectangle> rects = xRectangles(*key.clip);
        XSetClipRectangles(display(), slot->gc, 0, 0, rects.data(), static_cast<int>(rects.size()),
                           XUnsorted);
    } else if (wasClipped) {
        XSetClipMask(display(), slot->gc, XNone);
    }
    slot->key = key;
    ++slot->version;
}

// Never destroyed: pixmaps that outlive main() still ask it to forget them.
std::vector<GcSlot>& store()
{
    static std::vector<GcSlot>* const slots = [] {
        auto* made = new std::vector<GcSlot>;
        made->reserve(storeSize);
        return made;
    }();
    return *slots;
}

} // namespace

bool GcKey::operator==(const GcKey& other) const
{
    return foreground == other.foreground && clip == other.clip && background == other.background &&
           function == other.function && lineWidth == other.lineWidth && lineStyle == other.lineStyle &&
           cap == other.cap && join == other.join && fill == other.fill && pattern == other.pattern &&
           originX == other.originX && originY == other.originY && overChildren == other.overChildren &&
           bitmap == other.bitmap && dashes == other.dashes;
}

GcSlot* gcFor(const GcKey& key)
{
    static unsigned long uses = 0;
    std::vector<GcSlot>& slots = store();
    GcSlot* oldest = nullptr;
    for (GcSlot& slot : slots) {
        if (slot.key == key && !slot.lost) {
            slot.lastUse = ++uses;
            return &slot;
        }
        if (slot.key.bitmap == key.bitmap && (!oldest || slot.lastUse < oldest->lastUse))
            oldest = &slot;
    }
    if (slots.size() < storeSize) {
        slots.emplace_back();
        oldest = &slots.back();
    } else if (!oldest) { // none has the right depth
        oldest = &slots.back();
        empty(oldest);
    }
    set(oldest, key);
    oldest->lastUse = ++uses;
    return oldest;
}

void forgetPattern(XId pattern)
{
    for (GcSlot& slot : store())
        if (slot.key.fill != FillWithColor && slot.key.pattern == pattern) {
            GcKey plain;
            plain.bitmap = slot.key.bitmap;
            set(&slot, plain);
        }
}

void forgetContext(XId context)
{
    for (GcSlot& slot : store())
        if (slot.gc && XGContextFromGC(slot.gc) == context) {
            slot.lost = true;
            slot.lastUse = 0;
            ++slot.version;
        }
}

} // namespace x11
} // namespace zeltk
