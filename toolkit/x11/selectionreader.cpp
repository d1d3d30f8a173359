// Receiving the selections of other programs.
#include "x11/latin1.h"
#include "x11/selectionprivate.h"

#include <algorithm>
#include <chrono>
#include <poll.h>

namespace zeltk
{
namespace x11
{

namespace
{

// How long all pieces of a text may take together: an owner could go on for ever.
constexpr Milliseconds piecesPatience = 60000;

// The invisible window that receives. Who answers a question too late finds it destroyed.
Window receiver = 0;

Window receiverWindow()
{
    if (!receiver) {
        receiver = XCreateSimpleWindow(display(), rootWindow(), -10, -10, 1, 1, 0, 0, 0);
        XSelectInput(display(), receiver, PropertyChangeMask);
    }
    return receiver;
}

void destroyReceiver()
{
    XDestroyWindow(display(), receiver);
    receiver = 0;
}

struct Property {
    Atom type = 0;
    std::string bytes;
};

// Reads and deletes the property; the deletion asks for the next piece.
Property takeProperty(Atom name)
{
    Property result;
    unsigned long rest = 1;
    long offset = 0; // in units of four bytes
    while (rest > 0) {
        int format = 0;
        unsigned long count = 0;
        unsigned char* data = nullptr;
        if (XGetWindowProperty(display(), receiverWindow(), name, offset, 65536, False, AnyPropertyType,
                               &result.type, &format, &count, &rest, &data) != Success)
            return Property();
        if (format == 8)
            result.bytes.append(reinterpret_cast<const char*>(data), count);
        else
            rest = 0;
        offset += static_cast<long>(count / 4);
        if (data)
            XFree(data);
    }
    XDeleteProperty(display(), receiverWindow(), name);
    return result;
}

int isAnswer(Display*, XEvent* event, XPointer)
{
    return event->type == SelectionNotify && event->xselection.requestor == receiverWindow();
}

int isNewPiece(Display*, XEvent* event, XPointer name)
{
    return event->type == PropertyNotify && event->xproperty.window == receiverWindow() &&
           event->xproperty.state == PropertyNewValue &&
           event->xproperty.atom == *reinterpret_cast<Atom*>(name);
}

bool waitFor(XEvent* event, int (*condition)(Display*, XEvent*, XPointer), Atom* argument)
{
    const Milliseconds deadline = clockMilliseconds() + patience;
    do {
        serveRequests();
        if (XCheckIfEvent(display(), event, condition, reinterpret_cast<XPointer>(argument)))
            return true;
    } while (waitForNews(deadline));
    return false;
}

bool readPieces(Atom name, Property* whole)
{
    whole->bytes.clear();
    const Milliseconds deadline = clockMilliseconds() + piecesPatience;
    XEvent event;
    while (clockMilliseconds() < deadline && waitFor(&event, isNewPiece, &name)) {
        const Property piece = takeProperty(name);
        if (piece.bytes.empty())
            return true;
        whole->type = piece.type;
        whole->bytes += piece.bytes;
    }
    return false;
}

enum class Answer { Text, NoText, Silence };

Answer request(Atom selection, Atom target, std::string* utf8)
{
    Atom name = atom("_ZELTK_SELECTION");
    XDeleteProperty(display(), receiverWindow(), name);
    XConvertSelection(display(), selection, target, name, receiverWindow(), CurrentTime);
    XEvent event;
    if (!waitFor(&event, isAnswer, nullptr))
        return Answer::Silence;
    if (event.xselection.property == XNone || event.xselection.target != target)
        return Answer::NoText;
    // Only what comes after the first part is a piece.
    XSync(display(), False);
    XEvent old;
    while (XCheckIfEvent(display(), &old, isNewPiece, reinterpret_cast<XPointer>(&name)))
        ;
    Property property = takeProperty(name);
    if (property.type == atom("INCR") && !readPieces(name, &property))
        return Answer::Silence;
    *utf8 = property.type == XA_STRING ? utf8FromLatin1(property.bytes) : property.bytes;
    return property.type == XA_STRING || property.type == atom("UTF8_STRING") ? Answer::Text : Answer::NoText;
}

} // namespace

Milliseconds clockMilliseconds()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

// Sending may read too, so that news are there already and the descriptor stays silent; no wait is long
// therefore.
bool waitForNews(Milliseconds deadline)
{
    const Milliseconds rest = deadline - clockMilliseconds();
    if (rest <= 0)
        return false;
    XFlush(display());
    pollfd server = {connectionFd(), POLLIN, 0};
    poll(&server, 1, static_cast<int>(std::min(rest, Milliseconds(10))));
    XEventsQueued(display(), QueuedAfterReading);
    return true;
}

// An owner that refuses one kind of text may have the other; one that says nothing is not asked again.
bool requestText(Atom selection, std::string* utf8)
{
    if (XGetSelectionOwner(display(), selection) == XNone)
        return false;
    Answer answer = request(selection, atom("UTF8_STRING"), utf8);
    if (answer == Answer::NoText)
        answer = request(selection, XA_STRING, utf8);
    if (answer == Answer::Silence)
        destroyReceiver();
    return answer == Answer::Text;
}

} // namespace x11
} // namespace zeltk
