// Graphics contexts, kept for use again.
#ifndef ZELTK_X11_GC_H
#define ZELTK_X11_GC_H

#include "x11/connection.h"
#include "x11/box.h"

#include <memory>
#include <vector>

struct _XGC; // behind the type GC of Xlib. NOLINT(bugprone-reserved-identifier)

namespace zeltk
{
namespace x11
{

// The numbers of the X protocol.
enum Function {
    FunctionClear,
    FunctionAnd,
    FunctionAndReverse,
    FunctionCopy,
    FunctionAndInverted,
    FunctionNoop,
    FunctionXor,
    FunctionOr,
    FunctionNor,
    FunctionEquiv,
    FunctionInvert,
    FunctionOrReverse,
    FunctionCopyInverted,
    FunctionOrInverted,
    FunctionNand,
    FunctionSet
};
enum LineStyle { LineSolid, LineOnOff, LineDoubleDash };
enum CapStyle { CapFlat = 1, CapRounded = 2, CapSquare = 3 };
enum JoinStyle { JoinMitered, JoinRounded, JoinBeveled };
enum FillStyle { FillWithColor, FillWithTile, FillWithStipple, FillWithOpaqueStipple };

using Clip = std::shared_ptr<const std::vector<Box>>;

struct GcKey {
    unsigned long foreground = 0; // pixel values
    unsigned long background = 0;
    int function = FunctionCopy;
    int lineWidth = 0;
    int lineStyle = LineSolid;
    int cap = CapFlat;
    int join = JoinMitered;
    std::vector<char> dashes;
    int fill = FillWithColor;
    XId pattern = 0; // tile or stipple
    int originX = 0; // of the pattern
    int originY = 0;
    bool overChildren = false;
    bool bitmap = false; // for drawables of depth 1
    Clip clip;           // null: all of the drawable

    bool operator==(const GcKey& other) const;
};

// A context in a small store. When the store is full the one that was not used for longest is changed, which
// its version tells.
struct GcSlot {
    GcKey key;
    _XGC* gc = nullptr;
    unsigned version = 0;
    unsigned long lastUse = 0;
    bool lost = false; // the server could not make it
};

GcSlot* gcFor(const GcKey& key);
// Contexts that use a pattern must not be found again when it is freed.
void forgetPattern(XId pattern);
// Nor one that the server does not have. Sends nothing, for it is called while an error is handled.
void forgetContext(XId context);

} // namespace x11
} // namespace zeltk

#endif
