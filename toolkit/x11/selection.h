// The selections by which programs exchange text.
#ifndef ZELTK_X11_SELECTION_H
#define ZELTK_X11_SELECTION_H

#include "x11/connection.h"

#include <string>

union _XEvent; // Xlib's own name. NOLINT(bugprone-reserved-identifier)

namespace zeltk
{
namespace x11
{

// Primary is what is marked with the mouse, Clipboard what was copied.
enum class Selection { Primary, Clipboard };

// From now on this program answers who asks for the selection. False if the server gave it to somebody else.
bool ownSelection(Selection selection, const std::string& utf8);
void disownSelection(Selection selection);
bool ownsSelection(Selection selection);
// The text, of this program or of the one who has it: waits for it some seconds at most. False if there is
// none.
bool selectionText(Selection selection, std::string* utf8);

// Called when another program has taken a selection of ours.
typedef void (*SelectionLostHandler)(Selection selection);
void setSelectionLostHandler(SelectionLostHandler handler);

// Deals with events that concern selections; false for others.
bool handleSelectionEvent(_XEvent* event);

} // namespace x11
} // namespace zeltk

#endif
