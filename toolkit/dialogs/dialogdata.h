// What a dialog keeps.
#ifndef ZELTK_DIALOGDATA_H
#define ZELTK_DIALOGDATA_H

#include "dialogs/sizegrip.h"

#include <qdialog.h>
#include <qguardedptr.h>

namespace zeltk
{

struct DialogData {
    int result = 0;
    bool placed = false;    // by the program
    bool executing = false; // exec() runs

    QGuardedPtr<QWidget> extension;
    Qt::Orientation orientation = Qt::Horizontal;
    QSize sizeBefore = QSize(0, 0); // the extension was shown; null while it is not

    QGuardedPtr<SizeGrip> grip;
};

} // namespace zeltk

#endif
