// Errors of the X protocol, and the end of the connection.
#include "x11/errors.h"

#include "x11/connection.h"
#include "x11/xlib.h"

#include <cstdio>
#include <cstdlib>
#include <map>
#include <unistd.h>

namespace zeltk
{
namespace x11
{

namespace
{

ErrorHandler handler = nullptr;

// The extensions that the toolkit uses, by the code of their requests. The server cannot be asked in the
// midst of an error.
std::map<int, std::string>& extensions()
{
    static auto* const names = new std::map<int, std::string>;
    return *names;
}

void learnExtensions(Display* server)
{
    for (const char* name : {"SHAPE", "RENDER", "BIG-REQUESTS", "XKEYBOARD"}) {
        int code = 0;
        int event = 0;
        int error = 0;
        if (XQueryExtension(server, name, &code, &event, &error))
            extensions()[code] = name;
    }
}

std::string requestName(Display* server, const XErrorEvent* error)
{
    const auto extension = extensions().find(error->request_code);
    const std::string code = extension == extensions().end()
                                 ? std::to_string(error->request_code)
                                 : extension->second + "." + std::to_string(error->minor_code);
    char text[128];
    XGetErrorDatabaseText(server, "XRequest", code.c_str(), ("request " + code).c_str(), text, sizeof text);
    return text;
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
    learnExtensions(display());
    XSetErrorHandler(reportError);
    XSetIOErrorHandler(reportLoss);
}

void setErrorHandler(ErrorHandler h)
{
    handler = h;
}

} // namespace x11
} // namespace zeltk
