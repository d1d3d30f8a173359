// What the two sides of the selections share. Only for sources of this folder.
#ifndef ZELTK_X11_SELECTIONPRIVATE_H
#define ZELTK_X11_SELECTIONPRIVATE_H

#include "x11/selection.h"
#include "x11/xlib.h"

namespace zeltk
{
namespace x11
{

typedef long long Milliseconds;

// How long the other side may take for an answer, and for each piece of a long text.
constexpr Milliseconds patience = 5000;

// The invisible window that owns selections.
Window selectionWindow();
Atom selectionAtom(Selection selection);
// Asks the owner of the selection for its text.
bool requestText(Atom selection, std::string* utf8);
// Waits a little while for news from the server; false when the deadline is over, in milliseconds of a clock
// that only grows.
bool waitForNews(Milliseconds deadline);
Milliseconds clockMilliseconds();

// Answers requests and goes on with transfers while the program waits for a selection itself.
void serveRequests();

} // namespace x11
} // namespace zeltk

#endif
