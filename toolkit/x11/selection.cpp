// Owning selections: the answers to those who ask for them.
#include "x11/selection.h"

#include "x11/latin1.h"
#include "x11/selectionprivate.h"

#include <algorithm>
#include <list>

namespace zeltk
{
namespace x11
{

namespace
{

// Longer texts are sent in pieces of this size.
constexpr size_t pieceSize = 1 << 18;

struct Owned {
    bool owned = false;
    std::string text;
    Time since = 0;
};

// A long text on its way: the next piece goes when the receiver has deleted the one before.
struct Transfer {
    Window receiver;
    Atom property;
    Atom type;
    std::string text;
    size_t sent;
    long eventsBefore; // that this program wanted of the receiver's window, which may be its own
    Milliseconds lastPiece;
};

Owned primary;
Owned clipboard;
std::list<Transfer> transfers;
Window window = 0;
SelectionLostHandler lostHandler = nullptr;

Owned& ownedOf(Selection selection)
{
    return selection == Selection::Primary ? primary : clipboard;
}

Owned* ownedBy(Atom name)
{
    if (name == selectionAtom(Selection::Primary))
        return &primary;
    return name == selectionAtom(Selection::Clipboard) ? &clipboard : nullptr;
}

int isTimeStamp(Display*, XEvent* event, XPointer)
{
    return event->type == PropertyNotify && event->xproperty.window == window &&
           event->xproperty.atom == atom("_ZELTK_TIME");
}

// The server tells its time only with an event, so one is brought about.
Time serverTime()
{
    const unsigned char nothing = 0;
    XChangeProperty(display(), selectionWindow(), atom("_ZELTK_TIME"), XA_STRING, 8, PropModeAppend, &nothing,
                    0);
    XEvent event;
    XIfEvent(display(), &event, isTimeStamp, nullptr);
    return event.xproperty.time;
}

void setBytes(Window receiver, Atom property, Atom type, const char* bytes, size_t count)
{
    XChangeProperty(display(), receiver, property, type, 8, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(bytes), static_cast<int>(count));
}

// Receivers may die, or give up and ask again.
void forgetStaleTransfers(Window receiver, Atom property)
{
    const Milliseconds now = clockMilliseconds();
    transfers.remove_if([&](const Transfer& t) {
        return (t.receiver == receiver && t.property == property) || now - t.lastPiece > patience;
    });
}

void sendText(Window receiver, Atom property, Atom type, const std::string& text)
{
    if (text.size() <= pieceSize) {
        setBytes(receiver, property, type, text.data(), text.size());
        return;
    }
    forgetStaleTransfers(receiver, property);
    XWindowAttributes its;
    if (!XGetWindowAttributes(display(), receiver, &its))
        return;
    const long size = static_cast<long>(text.size());
    XSelectInput(display(), receiver, its.your_event_mask | PropertyChangeMask);
    XChangeProperty(display(), receiver, property, atom("INCR"), 32, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(&size), 1);
    transfers.push_back({receiver, property, type, text, 0, its.your_event_mask, clockMilliseconds()});
}

bool isReceiver(Window any)
{
    return std::any_of(transfers.begin(), transfers.end(),
                       [any](const Transfer& t) { return t.receiver == any; });
}

// An empty piece ends the transfer.
void sendNextPiece(const XPropertyEvent& deleted)
{
    const auto place = std::find_if(transfers.begin(), transfers.end(), [&deleted](const Transfer& t) {
        return t.receiver == deleted.window && t.property == deleted.atom;
    });
    if (place == transfers.end())
        return;
    const size_t size = std::min(pieceSize, place->text.size() - place->sent);
    setBytes(place->receiver, place->property, place->type, place->text.data() + place->sent, size);
    place->sent += size;
    place->lastPiece = clockMilliseconds();
    if (size > 0)
        return;
    const long eventsBefore = place->eventsBefore;
    transfers.erase(place);
    if (!isReceiver(deleted.window))
        XSelectInput(display(), deleted.window, eventsBefore);
}

bool answer(const XSelectionRequestEvent& request, const Owned& owned, Atom property)
{
    if (request.target == atom("TARGETS")) {
        const Atom targets[] = {atom("TARGETS"), atom("TIMESTAMP"), atom("UTF8_STRING"), atom("TEXT"),
                                XA_STRING};
        XChangeProperty(display(), request.requestor, property, XA_ATOM, 32, PropModeReplace,
                        reinterpret_cast<const unsigned char*>(targets), 5);
    } else if (request.target == atom("TIMESTAMP")) {
        const long since = static_cast<long>(owned.since);
        XChangeProperty(display(), request.requestor, property, XA_INTEGER, 32, PropModeReplace,
                        reinterpret_cast<const unsigned char*>(&since), 1);
    } else if (request.target == atom("UTF8_STRING") || request.target == atom("TEXT")) {
        sendText(request.requestor, property, atom("UTF8_STRING"), owned.text);
    } else if (request.target == XA_STRING) {
        sendText(request.requestor, property, XA_STRING, latin1FromUtf8(owned.text));
    } else {
        return false;
    }
    return true;
}

void answerRequest(const XSelectionRequestEvent& request)
{
    const Owned* owned = ownedBy(request.selection);
    // Old programs name no property and mean one called like the target.
    const Atom property = request.property == XNone ? request.target : request.property;
    const bool current =
        owned && owned->owned && (request.time == CurrentTime || request.time >= owned->since);
    XEvent reply = {};
    reply.xselection.type = SelectionNotify;
    reply.xselection.requestor = request.requestor;
    reply.xselection.selection = request.selection;
    reply.xselection.target = request.target;
    reply.xselection.property =
        current && answer(request, *owned, property) ? property : static_cast<Atom>(XNone);
    reply.xselection.time = request.time;
    XSendEvent(display(), request.requestor, False, NoEventMask, &reply);
}

void takeAway(const XSelectionClearEvent& clear)
{
    Owned* owned = ownedBy(clear.selection);
    if (!owned || !owned->owned || clear.time < owned->since)
        return;
    *owned = Owned();
    if (lostHandler)
        lostHandler(owned == &primary ? Selection::Primary : Selection::Clipboard);
}

bool isForReceiver(const XPropertyEvent& property)
{
    return property.state == PropertyDelete && isReceiver(property.window);
}

int isRequest(Display*, XEvent* event, XPointer)
{
    return event->type == SelectionRequest ||
           (event->type == PropertyNotify && isForReceiver(event->xproperty));
}

} // namespace

Window selectionWindow()
{
    if (!window) {
        window = XCreateSimpleWindow(display(), rootWindow(), -10, -10, 1, 1, 0, 0, 0);
        XSelectInput(display(), window, PropertyChangeMask);
    }
    return window;
}

Atom selectionAtom(Selection selection)
{
    return selection == Selection::Primary ? XA_PRIMARY : atom("CLIPBOARD");
}

bool ownSelection(Selection selection, const std::string& utf8)
{
    const Time now = serverTime();
    XSetSelectionOwner(display(), selectionAtom(selection), selectionWindow(), now);
    Owned& owned = ownedOf(selection);
    owned = Owned();
    if (XGetSelectionOwner(display(), selectionAtom(selection)) != selectionWindow())
        return false;
    owned.owned = true;
    owned.text = utf8;
    owned.since = now;
    return true;
}

void disownSelection(Selection selection)
{
    Owned& owned = ownedOf(selection);
    if (owned.owned)
        XSetSelectionOwner(display(), selectionAtom(selection), XNone, owned.since);
    owned = Owned();
}

bool ownsSelection(Selection selection)
{
    return ownedOf(selection).owned;
}

bool selectionText(Selection selection, std::string* utf8)
{
    const Owned& owned = ownedOf(selection);
    if (owned.owned) {
        *utf8 = owned.text;
        return true;
    }
    return requestText(selectionAtom(selection), utf8);
}

void setSelectionLostHandler(SelectionLostHandler handler)
{
    lostHandler = handler;
}

bool handleSelectionEvent(XEvent* event)
{
    switch (event->type) {
    case SelectionRequest:
        answerRequest(event->xselectionrequest);
        return true;
    case SelectionClear:
        takeAway(event->xselectionclear);
        return true;
    case SelectionNotify:
        return true; // the answer to a question that nobody waits for any more
    case PropertyNotify:
        if (isForReceiver(event->xproperty))
            sendNextPiece(event->xproperty);
        return event->xproperty.window == window || isForReceiver(event->xproperty);
    default:
        return false;
    }
}

void serveRequests()
{
    XEvent event;
    while (XCheckIfEvent(display(), &event, isRequest, nullptr))
        handleSelectionEvent(&event);
}

} // namespace x11
} // namespace zeltk
