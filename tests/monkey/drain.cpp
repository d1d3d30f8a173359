#include "world.h"
#include "xinput.h"

#include <qapplication.h>

// Each round carries the program's requests to the server and the answers back; a widget that causes new
// events for ever is found by the watchdog.
void drain()
{
    int quiet = 0;
    while (quiet < 2) {
        QApplication::syncX();
        xinput::sync();
        quiet = qApp->hasPendingEvents() ? 0 : quiet + 1;
        qApp->processEvents();
    }
}
