// The patterns of brushes.
#ifndef ZELTK_BRUSHPATTERNS_H
#define ZELTK_BRUSHPATTERNS_H

#include "x11/connection.h"

#include <qnamespace.h>

namespace zeltk
{

// The bitmap of a pattern, made once; 0 for styles without one.
x11::XId patternBitmap(Qt::BrushStyle style);

} // namespace zeltk

#endif
