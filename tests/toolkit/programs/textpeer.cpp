// Another X program that exchanges texts, made without the toolkit:
//   textpeer own SELECTION TARGET PIECE   owns the selection with the bytes of its input, prints a line when
//   it
//                                         does, and gives them away, in pieces if PIECE is not 0; until
//                                         killed
//   textpeer read SELECTION TARGET        prints the bytes of the selection, which another program owns
#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace
{

Display* display;
Window window;

Atom atom(const char* name)
{
    return XInternAtom(display, name, False);
}

void put(const XSelectionRequestEvent& request, const char* bytes, size_t size)
{
    XChangeProperty(display, request.requestor, request.property, request.target, 8, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(bytes), static_cast<int>(size));
}

// The receiver asks for each piece by deleting the one before; an empty one is the end.
void sendPieces(const XSelectionRequestEvent& request, const std::string& text, size_t pieceSize)
{
    size_t sent = 0;
    for (bool more = true; more;) {
        XEvent event;
        XNextEvent(display, &event);
        if (event.type != PropertyNotify || event.xproperty.window != request.requestor ||
            event.xproperty.state != PropertyDelete)
            continue;
        const size_t size = std::min(pieceSize, text.size() - sent);
        put(request, text.data() + sent, size);
        sent += size;
        more = size > 0;
    }
}

void answer(const XSelectionRequestEvent& request, const std::string& text, Atom target, size_t pieceSize)
{
    const bool wanted = request.target == target;
    const long size = static_cast<long>(text.size());
    if (wanted && pieceSize) {
        XSelectInput(display, request.requestor, PropertyChangeMask);
        XChangeProperty(display, request.requestor, request.property, atom("INCR"), 32, PropModeReplace,
                        reinterpret_cast<const unsigned char*>(&size), 1);
    } else if (wanted) {
        put(request, text.data(), text.size());
    }
    XEvent reply;
    std::memset(&reply, 0, sizeof reply);
    reply.xselection.type = SelectionNotify;
    reply.xselection.requestor = request.requestor;
    reply.xselection.selection = request.selection;
    reply.xselection.target = request.target;
    reply.xselection.property = wanted ? request.property : 0;
    reply.xselection.time = request.time;
    XSendEvent(display, request.requestor, False, 0, &reply);
    if (wanted && pieceSize)
        sendPieces(request, text, pieceSize);
    XFlush(display);
}

int own(Atom selection, Atom target, size_t pieceSize)
{
    std::string text;
    char buffer[65536];
    for (size_t count; (count = std::fread(buffer, 1, sizeof buffer, stdin)) > 0;)
        text.append(buffer, count);
    XSetSelectionOwner(display, selection, window, CurrentTime);
    XSync(display, False);
    std::puts("owner");
    std::fflush(stdout);
    for (;;) {
        XEvent event;
        XNextEvent(display, &event);
        if (event.type == SelectionRequest)
            answer(event.xselectionrequest, text, target, pieceSize);
    }
}

void waitForEvent(int type, int state)
{
    XEvent event;
    do
        XNextEvent(display, &event);
    while (event.type != type || (type == PropertyNotify && event.xproperty.state != state));
}

std::string take(Atom property, Atom* type)
{
    int format = 0;
    unsigned long count = 0, rest = 0;
    unsigned char* data = nullptr;
    XGetWindowProperty(display, window, property, 0, 1 << 24, True, AnyPropertyType, type, &format, &count,
                       &rest, &data);
    const std::string bytes(reinterpret_cast<char*>(data), format == 8 ? count : 0);
    if (data)
        XFree(data);
    return bytes;
}

int read(Atom selection, Atom target)
{
    const Atom property = atom("ANSWER");
    XConvertSelection(display, selection, target, property, window, CurrentTime);
    XEvent event;
    do
        XNextEvent(display, &event);
    while (event.type != SelectionNotify);
    if (event.xselection.property == 0)
        return 3;
    XSync(display, False);
    while (XCheckTypedEvent(display, PropertyNotify, &event))
        ; // of the first part
    Atom type = 0;
    std::string text = take(property, &type);
    if (type == atom("INCR")) {
        for (std::string piece;; text += piece) {
            waitForEvent(PropertyNotify, PropertyNewValue);
            piece = take(property, &type);
            if (piece.empty())
                break;
        }
    }
    std::fwrite(text.data(), 1, text.size(), stdout);
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    display = XOpenDisplay(nullptr);
    if (!display || argc < 4)
        return 2;
    window = XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 1, 1, 0, 0, 0);
    XSelectInput(display, window, PropertyChangeMask);
    if (argc == 5 && !std::strcmp(argv[1], "own"))
        return own(atom(argv[2]), atom(argv[3]), static_cast<size_t>(std::atol(argv[4])));
    return read(atom(argv[2]), atom(argv[3]));
}
