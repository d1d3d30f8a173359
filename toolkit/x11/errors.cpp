// Errors of the X protocol, and the end of the connection.
#include "x11/errors.h"

#include "x11/connection.h"
#include "x11/xlib.h"

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace zeltk
{
namespace x11
{

namespace
{

ErrorHandler handler = nullptr;

int reportError(Display* server, XErrorEvent* error)
{
    char description[128];
    XGetErrorText(server, error->error_code, description, sizeof description);
    char text[320];
    std::snprintf(text, sizeof text,
                  "X Error: %s %d\n  Major opcode:  %d\n  Minor opcode:  %d\n  Resource id:  0x%lx",
                  description, error->error_code, error->request_code, error->minor_code, error->resourceid);
    if (handler)
        handler(text);
    else
        std::fprintf(stderr, "%s\n", text);
    return 0;
}

// Nothing that needs the server may run any more, so the program ends at once.
int reportLoss(Display*)
{
    std::fprintf(stderr, "The connection to the X server %s is lost.\n", displayName().c_str());
    std::fflush(nullptr);
    _exit(1);
}

} // namespace

void watchErrors()
{
    XSetErrorHandler(reportError);
    XSetIOErrorHandler(reportLoss);
}

void setErrorHandler(ErrorHandler h)
{
    handler = h;
}

} // namespace x11
} // namespace zeltk
