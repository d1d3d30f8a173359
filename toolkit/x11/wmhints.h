// What windows tell the window manager.
#ifndef ZELTK_X11_WMHINTS_H
#define ZELTK_X11_WMHINTS_H

#include "x11/connection.h"

#include <string>

namespace zeltk
{
namespace x11
{

// Once for each top-level window: protocols, class, process and leader.
void setWindowIdentity(XId window, const std::string& name, const std::string& className, bool contextHelp);

// A title of plain ASCII that stands in for a missing one.
void setPlainTitle(XId window, const std::string& ascii);
void setTitle(XId window, const std::string& utf8);
void setIconName(XId window, const std::string& utf8);

struct SizeHints {
    int x;
    int y;
    int width;
    int height;
    bool userPosition; // the program asked for this place
    bool userSize;
    int minimumWidth; // 0: no limit; so for all that follow
    int minimumHeight;
    int maximumWidth;
    int maximumHeight;
    int widthIncrement;
    int heightIncrement;
    int baseWidth;
    int baseHeight;
};
void setSizeHints(XId window, const SizeHints& hints);

// Pixmap and mask may be 0.
void setWindowHints(XId window, bool startsIconic, XId iconPixmap, XId iconMask, XId groupLeader);
void setTransientFor(XId window, XId owner);

enum class WindowKind { Normal, Dialog, Tool };
void setWindowKind(XId window, WindowKind kind);

// Frame and buttons that the window manager shall give.
struct Decorations {
    bool border;
    bool title;
    bool menu;
    bool minimize;
    bool maximize;
    bool resizable;
    bool modal;
};
void setDecorations(XId window, const Decorations& decorations);

enum StateBits { StateModal = 1, StateMaximized = 2, StateFullScreen = 4, StateAbove = 8 };
// Before the window is mapped.
void setInitialState(XId window, unsigned bits);
// Afterwards the window manager is asked.
void requestState(XId window, unsigned bits, bool on);

// Whether the window manager has put an icon in the window's place.
bool isIconic(XId window);

void requestActivation(XId window);
// Whether a window manager that knows these conventions is running.
bool hasWindowManager();
// Answers a ping of the window manager.
void answerPing(XId window, unsigned long time);

} // namespace x11
} // namespace zeltk

#endif
