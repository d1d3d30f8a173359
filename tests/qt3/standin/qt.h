// Qt 3's header of all headers is how CMake knows its folder.
#ifndef QT_H
#define QT_H

#include <qglobal.h>

#endif
