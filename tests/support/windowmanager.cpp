#include "windowmanager.h"

#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qwidget.h>

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

Atom atom(const char* name)
{
    return XInternAtom(xinput::display(), name, False);
}

bool isManaged(Window window)
{
    Atom type = 0;
    int format;
    unsigned long count, rest;
    unsigned char* data = nullptr;
    XGetWindowProperty(xinput::display(), window, atom("WM_STATE"), 0, 1, False, AnyPropertyType, &type,
                       &format, &count, &rest, &data);
    if (data)
        XFree(data);
    return type != 0;
}

// While it starts it loses windows that want to be shown; so one of our own asks until it is taken.
bool takesWindows()
{
    Display* const display = xinput::display();
    const Window probe = XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 10, 10, 0, 0, 0);
    const bool taken = waitFor([=] {
        XMapWindow(display, probe);
        return isManaged(probe);
    });
    XDestroyWindow(display, probe);
    settle();
    return taken;
}

void ask(const QWidget& window, const char* message, long first)
{
    QApplication::syncX();
    XEvent event;
    std::memset(&event, 0, sizeof event);
    event.xclient.type = ClientMessage;
    event.xclient.window = window.winId();
    event.xclient.message_type = atom(message);
    event.xclient.format = 32;
    event.xclient.data.l[0] = first;
    XSendEvent(xinput::display(), DefaultRootWindow(xinput::display()), False,
               SubstructureRedirectMask | SubstructureNotifyMask, &event);
    xinput::sync();
}

} // namespace

WindowManager::WindowManager() : m_process(fork())
{
    if (m_process == 0) {
        const int silence = open("/dev/null", O_RDWR);
        dup2(silence, 1);
        dup2(silence, 2);
        execlp("openbox", "openbox", "--sm-disable", "--config-file", TEST_OPENBOX_RC,
               static_cast<char*>(nullptr));
        _exit(127);
    }
    if (!takesWindows())
        ADD_FAILURE() << "openbox does not start (Debian: openbox)";
}

WindowManager::~WindowManager()
{
    kill(m_process, SIGTERM);
    waitpid(m_process, nullptr, 0);
    settle();
}

void WindowManager::iconify(const QWidget& window)
{
    ask(window, "WM_CHANGE_STATE", IconicState);
}

void WindowManager::restore(const QWidget& window)
{
    const long byPager = 2;
    ask(window, "_NET_ACTIVE_WINDOW", byPager);
}

void WindowManager::close(const QWidget& window)
{
    ask(window, "_NET_CLOSE_WINDOW", 0);
}
