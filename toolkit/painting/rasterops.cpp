// Raster operations.
#include "painting/rasterops.h"

namespace zeltk
{

bool isRasterOp(Qt::RasterOp op)
{
    return op >= Qt::CopyROP && op <= Qt::LastROP;
}

x11::Function functionOf(Qt::RasterOp op)
{
    // In the order of Qt::RasterOp.
    static const x11::Function functions[] = {
        x11::FunctionCopy,         x11::FunctionOr,         x11::FunctionXor,   x11::FunctionAndInverted,
        x11::FunctionCopyInverted, x11::FunctionOrInverted, x11::FunctionEquiv, x11::FunctionAnd,
        x11::FunctionInvert,       x11::FunctionClear,      x11::FunctionSet,   x11::FunctionNoop,
        x11::FunctionAndReverse,   x11::FunctionOrReverse,  x11::FunctionNand,  x11::FunctionNor};
    return functions[op];
}

} // namespace zeltk
