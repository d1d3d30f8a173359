// The one connection to the X server. Everything in this folder draws and talks through it; the folders
// above see no X type, only plain numbers.
#ifndef ZELTK_X11_CONNECTION_H
#define ZELTK_X11_CONNECTION_H

#include <string>

struct _XDisplay; // Xlib's own name. NOLINT(bugprone-reserved-identifier)

namespace zeltk
{
namespace x11
{

// A window, pixmap or any other server resource, as Qt::HANDLE shows it.
typedef unsigned long XId;

// Opens the connection, once: it lasts as long as the program. An empty name means $DISPLAY. Returns false
// when no server answers.
bool openConnection(const std::string& displayName);
bool connected();

// Null while there is no connection.
extern _XDisplay* server;
inline _XDisplay* display()
{
    return server;
}
std::string displayName();
int screen();
XId rootWindow();
int screenWidth();
int screenHeight();
// Dots per inch of the screen, rounded.
int dpiX();
int dpiY();
// Not rounded.
double exactDpiY();
int depth();
// The descriptor that becomes readable when the server has something to say.
int connectionFd();

void flush();
// Waits until the server has carried out everything sent so far.
void sync();
// The atom of that name; each is asked of the server once.
XId atom(const char* name);

} // namespace x11
} // namespace zeltk

#endif
