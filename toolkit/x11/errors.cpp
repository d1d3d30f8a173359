// Errors of the X protocol, and the end of the connection.
#include "x11/errors.h"

#include "x11/connection.h"
#include "x11/gc.h"
#include "x11/xlib.h"

#include <X11/Xproto.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <poll.h>
#include <string>
#include <unistd.h>

namespace zeltk
{
namespace x11
{

namespace
{

ErrorHandler handler = nullptr;

// The name of the extension with that code, asked over another connection: the one that had the error cannot
// be asked in the midst of it.
std::string extensionName(int code)
{
    Display* const asked = XOpenDisplay(displayName().c_str());
    if (!asked)
        return std::string();
    std::string found;
    int count = 0;
    char** const names = XListExtensions(asked, &count);
    for (int i = 0; i < count && found.empty(); ++i) {
        int itsCode, event, error;
        if (XQueryExtension(asked, names[i], &itsCode, &event, &error) && itsCode == code)
            found = names[i];
    }
    XFreeExtensionList(names);
    XCloseDisplay(asked);
    return found;
}

// As Xlib's table of texts has it: "X_ConfigureWindow", "X_ShapeRectangles".
std::string requestName(Display* server, const XErrorEvent* error)
{
    const int firstExtension = 128;
    std::string code = std::to_string(error->request_code);
    if (error->request_code >= firstExtension) {
        const std::string extension = extensionName(error->request_code);
        code = (extension.empty() ? code : extension) + "." + std::to_string(error->minor_code);
    }
    char name[128];
    XGetErrorDatabaseText(server, "XRequest", code.c_str(), code.c_str(), name, sizeof name);
    return name;
}

// Qt's own words go to the program's message handler; the name of the request, which they lack, goes beside
// them.
int reportError(Display* server, XErrorEvent* error)
{
    if (error->error_code == BadGC || error->request_code == X_CreateGC)
        forgetContext(error->resourceid);
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
    std::fprintf(stderr, "  Request:       %s\n", requestName(server, error).c_str());
    return 0;
}

// Nothing that needs the server may run any more, so the program ends at once.
int reportLoss(Display* lost)
{
    std::fprintf(stderr, "The connection to the X server %s is lost.\n", DisplayString(lost));
    std::fflush(nullptr);
    _exit(1);
}

// Writing to a lost connection brings this signal first. Other broken pipes end the program as ever. A
// connection that is only being made cannot be asked: Xlib tells of its loss.
void onBrokenPipe(int)
{
    if (!connected())
        return;
    endIfLost();
    std::signal(SIGPIPE, SIG_DFL);
    std::raise(SIGPIPE);
}

// A program's own handler stays.
void watchBrokenPipes()
{
    struct sigaction now;
    if (sigaction(SIGPIPE, nullptr, &now) == 0 && now.sa_handler == SIG_DFL)
        std::signal(SIGPIPE, onBrokenPipe);
}

} // namespace

void watchErrors()
{
    XSetErrorHandler(reportError);
    XSetIOErrorHandler(reportLoss);
    watchBrokenPipes();
}

void endIfLost()
{
    // Of a line over TCP only the server's half is known to have ended.
    pollfd server = {connectionFd(), POLLIN | POLLRDHUP, 0};
    if (poll(&server, 1, 0) > 0 && (server.revents & (POLLHUP | POLLRDHUP | POLLERR)))
        reportLoss(display());
}

void setErrorHandler(ErrorHandler h)
{
    handler = h;
}

} // namespace x11
} // namespace zeltk
