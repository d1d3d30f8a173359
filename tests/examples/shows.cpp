// shows PROGRAM...: starts one program after the other, waits until it shows a window with something on it,
// closes that window as a window manager does, and expects the program to end well.
#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <cstdio>
#include <functional>

#include <signal.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

namespace
{

const int deadlineSeconds = 20;

bool waitFor(const std::function<bool()>& condition)
{
    for (int tick = 0; tick < deadlineSeconds * 50; ++tick) {
        if (condition())
            return true;
        const timespec pause = {0, 20 * 1000 * 1000};
        nanosleep(&pause, nullptr);
    }
    return false;
}

// A window may go away while it is looked at.
int ignoreError(Display*, XErrorEvent*)
{
    return 0;
}

// The first mapped window below the root that says which protocols it knows, as windows of programs do.
Window shownWindow(Display* display)
{
    Window root, parent, *children = nullptr, found = None;
    unsigned count = 0;
    if (!XQueryTree(display, DefaultRootWindow(display), &root, &parent, &children, &count))
        return None;
    for (unsigned i = 0; i < count && !found; ++i) {
        XWindowAttributes attributes;
        Atom* protocols = nullptr;
        int protocolCount = 0;
        if (XGetWindowAttributes(display, children[i], &attributes) && attributes.map_state == IsViewable &&
            XGetWMProtocols(display, children[i], &protocols, &protocolCount)) {
            found = children[i];
            XFree(protocols);
        }
    }
    if (children)
        XFree(children);
    return found;
}

// Whether the window has more than its ground.
bool showsSomething(Display* display, Window window)
{
    XWindowAttributes attributes;
    if (!XGetWindowAttributes(display, window, &attributes))
        return false;
    XImage* const image =
        XGetImage(display, window, 0, 0, attributes.width, attributes.height, AllPlanes, ZPixmap);
    if (!image)
        return false;
    bool differs = false;
    for (int y = 0; y < image->height && !differs; ++y)
        for (int x = 0; x < image->width && !differs; ++x)
            differs = XGetPixel(image, x, y) != XGetPixel(image, 0, 0);
    XDestroyImage(image);
    return differs;
}

void close(Display* display, Window window)
{
    XEvent event = {};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = XInternAtom(display, "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = static_cast<long>(XInternAtom(display, "WM_DELETE_WINDOW", False));
    XSendEvent(display, window, False, NoEventMask, &event);
    XFlush(display);
}

// Says what goes wrong; null if nothing does. `pid` is 0 when the program has ended.
const char* watch(Display* display, pid_t& pid)
{
    Window window = None;
    int status = 0;
    const auto ended = [&] { return pid == 0 || (waitpid(pid, &status, WNOHANG) == pid && (pid = 0, true)); };
    if (!waitFor([&] { return ended() || (window = shownWindow(display)) != None; }))
        return "no window came";
    if (!window)
        return "it ended before it showed a window";
    if (!waitFor([&] { return ended() || showsSomething(display, window); }))
        return "its window stays empty";
    close(display, window);
    if (!waitFor(ended))
        return "it goes on when its window is closed";
    return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? nullptr : "it ended badly";
}

bool passes(Display* display, const char* program)
{
    pid_t pid = fork();
    if (pid == 0) {
        execl(program, program, static_cast<char*>(nullptr));
        std::perror(program);
        _exit(127);
    }
    const char* const fault = watch(display, pid);
    if (pid > 0) {
        kill(pid, SIGKILL);
        waitpid(pid, nullptr, 0);
    }
    std::printf("%s: %s\n", program, fault ? fault : "shows something and ends well");
    std::fflush(stdout);
    return !fault;
}

} // namespace

int main(int argc, char** argv)
{
    Display* const display = XOpenDisplay(nullptr);
    if (!display || argc < 2) {
        std::fprintf(stderr, "usage: shows PROGRAM... (with a DISPLAY)\n");
        return 2;
    }
    XSetErrorHandler(ignoreError);
    int failures = 0;
    for (int i = 1; i < argc; ++i)
        failures += !passes(display, argv[i]);
    return failures ? 1 : 0;
}
