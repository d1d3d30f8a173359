#include "xinput.h"

#include <qapplication.h>
#include <qwidget.h>

#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>

#include <cstdio>
#include <cstdlib>
#include <set>

namespace xinput
{

static Display* connection = nullptr;
static std::set<int> heldButtons;
static std::set<KeyCode> heldKeys;

Display* display()
{
    if (!connection) {
        connection = XOpenDisplay(nullptr);
        if (!connection) {
            std::fprintf(stderr, "The tests need an X server (run them through ctest)\n");
            std::exit(2);
        }
    }
    return connection;
}

void disconnect()
{
    if (connection)
        XCloseDisplay(connection);
    connection = nullptr;
}

void sync()
{
    XSync(display(), False);
}

// What the program under test has sent arrives at the server before what we do.
static void programFirst()
{
    if (qApp)
        QApplication::syncX();
}

void moveToRoot(int x, int y)
{
    programFirst();
    XTestFakeMotionEvent(display(), -1, x, y, CurrentTime);
    sync();
}

void moveTo(QWidget* widget, int x, int y)
{
    programFirst();
    int rootX = 0, rootY = 0;
    Window child;
    XTranslateCoordinates(display(), widget->winId(), DefaultRootWindow(display()), x, y, &rootX, &rootY,
                          &child);
    moveToRoot(rootX, rootY);
}

void park()
{
    moveToRoot(1015, 760);
}

void pressButton(int button)
{
    programFirst();
    heldButtons.insert(button);
    XTestFakeButtonEvent(display(), button, True, CurrentTime);
    sync();
}

void releaseButton(int button)
{
    programFirst();
    heldButtons.erase(button);
    XTestFakeButtonEvent(display(), button, False, CurrentTime);
    sync();
}

void click(QWidget* widget, int x, int y, int button)
{
    moveTo(widget, x, y);
    pressButton(button);
    releaseButton(button);
}

void doubleClick(QWidget* widget, int x, int y, int button)
{
    click(widget, x, y, button);
    pressButton(button);
    releaseButton(button);
}

void pressKey(unsigned long keysym)
{
    programFirst();
    const KeyCode code = XKeysymToKeycode(display(), keysym);
    heldKeys.insert(code);
    XTestFakeKeyEvent(display(), code, True, CurrentTime);
    sync();
}

void releaseKey(unsigned long keysym)
{
    programFirst();
    const KeyCode code = XKeysymToKeycode(display(), keysym);
    heldKeys.erase(code);
    XTestFakeKeyEvent(display(), code, False, CurrentTime);
    sync();
}

void typeKey(unsigned long keysym, unsigned long modifier, unsigned long secondModifier)
{
    if (modifier)
        pressKey(modifier);
    if (secondModifier)
        pressKey(secondModifier);
    pressKey(keysym);
    releaseKey(keysym);
    if (secondModifier)
        releaseKey(secondModifier);
    if (modifier)
        releaseKey(modifier);
}

void typeText(const std::string& text)
{
    const KeySym shift = 0xffe1; // XK_Shift_L
    for (const char letter : text) {
        const KeySym keysym = static_cast<unsigned char>(letter); // Latin-1 keysyms equal their characters
        const KeyCode code = XKeysymToKeycode(display(), keysym);
        const bool shifted = XkbKeycodeToKeysym(display(), code, 0, 0) != keysym;
        typeKey(keysym, shifted ? shift : 0);
    }
}

void releaseAll()
{
    for (const int button : heldButtons)
        XTestFakeButtonEvent(display(), button, False, CurrentTime);
    for (const KeyCode code : heldKeys)
        XTestFakeKeyEvent(display(), code, False, CurrentTime);
    heldButtons.clear();
    heldKeys.clear();
    sync();
}

bool isViewable(unsigned long window)
{
    XWindowAttributes attributes;
    return XGetWindowAttributes(display(), window, &attributes) && attributes.map_state == IsViewable;
}

void closeWindow(QWidget* window)
{
    programFirst();
    XEvent event = {};
    event.xclient.type = ClientMessage;
    event.xclient.window = window->winId();
    event.xclient.message_type = XInternAtom(display(), "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = static_cast<long>(XInternAtom(display(), "WM_DELETE_WINDOW", False));
    event.xclient.data.l[1] = CurrentTime;
    XSendEvent(display(), window->winId(), False, NoEventMask, &event);
    sync();
}

} // namespace xinput
