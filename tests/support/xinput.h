// The pointer and the keyboard, worked through XTEST on a connection of their own, as a user's hands would.
// Every call returns when the X server has carried it out; handle events afterwards (waitFor, settle).
#ifndef TEST_XINPUT_H
#define TEST_XINPUT_H

#include <string>

struct _XDisplay;
class QWidget;

namespace xinput
{

_XDisplay* display();
void disconnect();
void sync();

// Moves the pointer to a place inside the widget.
void moveTo(QWidget* widget, int x, int y);
void moveToRoot(int x, int y);
// Moves the pointer to the corner of the screen where no test opens a window.
void park();

// X buttons: 1 left, 2 middle, 3 right, 4 and 5 wheel.
void pressButton(int button = 1);
void releaseButton(int button = 1);
void click(QWidget* widget, int x, int y, int button = 1);
void doubleClick(QWidget* widget, int x, int y, int button = 1);

// Keys by X keysym (XK_Return, XK_a...).
void pressKey(unsigned long keysym);
void releaseKey(unsigned long keysym);
void typeKey(unsigned long keysym, unsigned long modifier = 0, unsigned long secondModifier = 0);
// Printable ASCII; capital letters and shifted signs with Shift held.
void typeText(const std::string& text);

// Lets go of everything that is still held.
void releaseAll();

bool isViewable(unsigned long window);

// Asks a window to close, as a window manager does when its close button is clicked.
void closeWindow(QWidget* window);

} // namespace xinput

#endif
