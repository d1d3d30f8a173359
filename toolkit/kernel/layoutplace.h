// Where something stands that does not fill its room.
#ifndef ZELTK_LAYOUTPLACE_H
#define ZELTK_LAYOUTPLACE_H

#include <qpoint.h>

class QRect;
class QSize;

namespace zeltk
{

// At the left and halfway down if the alignment says nothing else.
QPoint placedIn(const QRect& room, const QSize& size, int alignment);

} // namespace zeltk

#endif
