// Which pixels a polygon covers.
#ifndef ZELTK_POLYGONROWS_H
#define ZELTK_POLYGONROWS_H

#include "painting/regiondata.h"

class QPointArray;

namespace zeltk
{

// The pixels whose place lies inside the polygon or on its left or upper edge. `winding`: all that the
// outline goes round; else what it goes round an odd number of times.
Bands polygonRows(const QPointArray& polygon, bool winding);

} // namespace zeltk

#endif
