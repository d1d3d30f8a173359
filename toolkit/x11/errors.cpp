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

std::string requestName(Display* server, const XErrorEvent* error)
{
    char number[16];
    std::snprintf(number, sizeof number, "%d", error->request_code);
    char text[128];
    XGetErrorDatabaseText(server, "XRequest", number, "", text, sizeof text);
    if (text[0])
        return text;
    return std::string("request ") + number + "." + std::to_string(error->minor_code);
}

int reportError(Display* server, XErrorEvent* error)
{
    char description[128];
    XGetErrorText(server, error->error_code, description, sizeof description);
    char resource[32];
    std::snprintf(resource, sizeof resource, "0x%lx", error->resourceid);
    const std::string text = requestName(server, error) + ": " + description + ", resource " + resource;
    if (handler)
        handler(text);
    else
        std::fprintf(stderr, "X error: %s\n", text.c_str());
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
