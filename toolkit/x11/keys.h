// What keys mean: symbols and text.
#ifndef ZELTK_X11_KEYS_H
#define ZELTK_X11_KEYS_H

#include "x11/connection.h"

#include <string>

union _XEvent; // Xlib's own name. NOLINT(bugprone-reserved-identifier)

namespace zeltk
{
namespace x11
{

struct KeyMeaning {
    unsigned long symbol;
    std::string text; // UTF-8
};

// Input methods compose texts from several keys: they see each event first. True if they keep it.
bool filteredByInputMethod(_XEvent* event);
KeyMeaning meaningOf(_XEvent* key);

} // namespace x11
} // namespace zeltk

#endif
