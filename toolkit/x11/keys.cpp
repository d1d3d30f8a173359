// What keys mean: symbols and text, through the user's input method.
#include "x11/keys.h"

#include "x11/latin1.h"
#include "x11/selectionprivate.h"
#include "x11/xlib.h"

namespace zeltk
{
namespace x11
{

namespace
{

XIC context = nullptr;
bool opened = false;

// One context serves all windows: it follows the window that has the keyboard. Without an input method keys
// give what their layout says.
XIC inputContext()
{
    if (opened)
        return context;
    opened = true;
    if (!XSupportsLocale())
        return nullptr;
    XSetLocaleModifiers("");
    const XIM method = XOpenIM(display(), nullptr, nullptr, nullptr);
    if (method)
        context = XCreateIC(method, XNInputStyle, XIMPreeditNothing | XIMStatusNothing, XNClientWindow,
                            selectionWindow(), nullptr);
    return context;
}

void followFocus(const XFocusChangeEvent& focus)
{
    XIC ic = inputContext();
    if (!ic || focus.detail == NotifyInferior || focus.detail == NotifyPointer)
        return;
    if (focus.type == XFocusOut) {
        XUnsetICFocus(ic);
        return;
    }
    XSetICValues(ic, XNFocusWindow, focus.window, nullptr);
    XSetICFocus(ic);
}

} // namespace

// What the input method has composed comes back as a key without a code, as the very next event. Another
// program's key without a code has it look for a text that is not there, and that ends in a crash.
bool filteredByInputMethod(XEvent* event)
{
    static bool composes = false;
    if (event->type == XFocusIn || event->type == XFocusOut)
        followFocus(event->xfocus);
    const bool isForged =
        event->type == XKeyPress && event->xkey.keycode == 0 && event->xkey.send_event && !composes;
    composes = !isForged && XFilterEvent(event, XNone) != 0;
    return composes || isForged;
}

KeyMeaning meaningOf(XEvent* event)
{
    XKeyEvent* key = &event->xkey;
    char text[512];
    KeySym symbol = 0;
    if (event->type == XKeyPress && inputContext()) {
        int kind = 0;
        const int length = Xutf8LookupString(context, key, text, sizeof text, &symbol, &kind);
        if (kind == XLookupBoth || kind == XLookupChars || kind == XLookupKeySym)
            return {kind == XLookupChars ? 0 : symbol,
                    kind == XLookupKeySym ? "" : std::string(text, static_cast<size_t>(length))};
    }
    const int length = XLookupString(key, text, sizeof text, &symbol, nullptr);
    return {symbol, utf8FromLatin1(std::string(text, static_cast<size_t>(length)))};
}

} // namespace x11
} // namespace zeltk
