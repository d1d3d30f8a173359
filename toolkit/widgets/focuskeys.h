// Arrow keys that nobody else needs move the focus.
#ifndef ZELTK_FOCUSKEYS_H
#define ZELTK_FOCUSKEYS_H

#include <qnamespace.h>

namespace zeltk
{

// -1: to the widget before, 1: to the next one, 0: the key is no arrow.
inline int focusStep(int key)
{
    if (key == Qt::Key_Up || key == Qt::Key_Left)
        return -1;
    return key == Qt::Key_Down || key == Qt::Key_Right ? 1 : 0;
}

} // namespace zeltk

#endif
