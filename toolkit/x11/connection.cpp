// The one connection to the X server.
#include "x11/connection.h"

#include "x11/errors.h"
#include "x11/xlib.h"

#include <cmath>
#include <map>

namespace zeltk
{
namespace x11
{

_XDisplay* server = nullptr;

namespace
{

// From the size that the server tells.
double dotsPerInch(int pixels, int millimetres)
{
    return millimetres > 0 ? pixels * 25.4 / millimetres : 75.0;
}

std::map<std::string, Atom>& atoms()
{
    static std::map<std::string, Atom> known;
    return known;
}

// What nearly every program needs is asked for together: over a slow line each answer takes its time.
void learnAtoms()
{
    const char* const names[] = {"CLIPBOARD",
                                 "UTF8_STRING",
                                 "WM_DELETE_WINDOW",
                                 "WM_PROTOCOLS",
                                 "WM_STATE",
                                 "_MOTIF_WM_HINTS",
                                 "_NET_WM_CONTEXT_HELP",
                                 "_NET_WM_ICON_NAME",
                                 "_NET_WM_NAME",
                                 "_NET_WM_PING",
                                 "_NET_WM_WINDOW_TYPE_DIALOG",
                                 "_NET_WM_WINDOW_TYPE_NORMAL",
                                 "_NET_WM_WINDOW_TYPE_UTILITY",
                                 "_ZELTK_TIME"};
    const int count = sizeof names / sizeof names[0];
    Atom found[count];
    XInternAtoms(server, const_cast<char**>(names), count, False, found);
    for (int i = 0; i < count; ++i)
        atoms()[names[i]] = found[i];
}

} // namespace

bool openConnection(const std::string& name)
{
    if (server)
        return true;
    watchErrors(); // before, since the connection may be lost while it is made
    server = XOpenDisplay(name.empty() ? nullptr : name.c_str());
    if (!server)
        return false;
    learnAtoms();
    return true;
}

bool connected()
{
    return server != nullptr;
}

std::string displayName()
{
    return server ? DisplayString(server) : XDisplayName(nullptr);
}

int screen()
{
    return DefaultScreen(server);
}

XId rootWindow()
{
    return DefaultRootWindow(server);
}

int screenWidth()
{
    return DisplayWidth(server, screen());
}

int screenHeight()
{
    return DisplayHeight(server, screen());
}

int dpiX()
{
    return server
               ? static_cast<int>(std::lround(dotsPerInch(screenWidth(), DisplayWidthMM(server, screen()))))
               : 75;
}

int dpiY()
{
    return static_cast<int>(std::lround(exactDpiY()));
}

double exactDpiY()
{
    return server ? dotsPerInch(screenHeight(), DisplayHeightMM(server, screen())) : 75.0;
}

int depth()
{
    return DefaultDepth(server, screen());
}

int connectionFd()
{
    return ConnectionNumber(server);
}

void flush()
{
    if (server)
        XFlush(server);
}

void sync()
{
    if (!server)
        return;
    XSync(server, False);
    endIfLost();
}

XId atom(const char* name)
{
    const auto found = atoms().find(name);
    if (found != atoms().end())
        return found->second;
    return atoms()[name] = XInternAtom(server, name, False);
}

} // namespace x11
} // namespace zeltk
