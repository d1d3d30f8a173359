// Events of the X server in plain form.
#ifndef ZELTK_X11_EVENTS_H
#define ZELTK_X11_EVENTS_H

#include "x11/connection.h"

#include <string>

namespace zeltk
{
namespace x11
{

struct Event {
    enum Type {
        Other,
        KeyDown,
        KeyUp,
        ButtonDown,
        ButtonUp,
        Motion,
        EnterWindow,
        LeaveWindow,
        FocusGained,
        FocusLost,
        Exposed,
        Configured,
        Mapped,
        Unmapped,
        Reparented,
        IconicChanged, // isIconic tells
        CloseRequest,
        Ping
    };
    Type type = Other;
    XId window = 0;
    unsigned long time = 0;
    int x = 0; // in the window; for Configured on the screen when known
    int y = 0;
    int rootX = 0;
    int rootY = 0;
    int width = 0;
    int height = 0;
    unsigned state = 0;     // modifiers and buttons before the event, bits of the X server
    unsigned button = 0;    // its number
    int count = 0;          // Exposed: how many follow for the window
    bool synthetic = false; // sent by a client, such as the window manager
    unsigned long keysym = 0;
    std::string text; // UTF-8
    bool autoRepeat = false;
};

// Takes the next event from the connection without waiting; false if there is none. Without input, what the
// user does is kept for later.
bool nextEvent(Event* event, bool withInput);
bool eventsPending(bool withInput);
// Takes motions that follow right behind one of the same window, and keeps the last.
void compressMotion(Event* event);
// Takes all changes of the same window's geometry that have come already, and keeps the last.
void compressConfigured(Event* event);
// Takes the crossings that follow and tells the window that was entered at last; 0 if there is none.
XId takeEntered();
// The time of the last event that had one.
unsigned long lastTime();
// How far the server had come with our requests when it sent the event that was taken last.
unsigned long lastSerial();

} // namespace x11
} // namespace zeltk

#endif
