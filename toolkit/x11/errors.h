// Errors of the X protocol, and the end of the connection.
#ifndef ZELTK_X11_ERRORS_H
#define ZELTK_X11_ERRORS_H

#include <string>

namespace zeltk
{
namespace x11
{

// From now on each error goes to the handler as a text of four lines; the program goes on.
// When the server goes away the program ends with a message and exit status 1.
void watchErrors();
// Xlib may learn of the loss together with an answer and tell nobody; when it needs a name for something new
// after that, it aborts the program. This ends it properly before.
void endIfLost();
typedef void (*ErrorHandler)(const std::string& text);
void setErrorHandler(ErrorHandler handler);

} // namespace x11
} // namespace zeltk

#endif
