// What a dialog keeps.
#ifndef ZELTK_DIALOGDATA_H
#define ZELTK_DIALOGDATA_H

#include <qdialog.h>

namespace zeltk
{

class SizeGrip;

struct DialogData {
    int result = 0;
    bool placed = false;    // by the program
    bool executing = false; // exec() runs

    QWidget* extension = nullptr;
    Qt::Orientation orientation = Qt::Horizontal;
    QSize sizeBefore = QSize(0, 0); // the extension was shown; null while it is not

    SizeGrip* grip = nullptr;
};

} // namespace zeltk

#endif
