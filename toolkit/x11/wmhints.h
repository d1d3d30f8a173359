// What window managers read.
#ifndef ZELTK_X11_WMHINTS_H
#define ZELTK_X11_WMHINTS_H

#include "x11/connection.h"

#include <string>

namespace zeltk
{
namespace x11
{

struct SizeHints {
    int x;
    int y;
    bool positioned; // the program chose the place
    int width;
    int height;
    int minWidth; // 0: none
    int minHeight;
    int maxWidth; // 32767: none
    int maxHeight;
    int baseWidth;
    int baseHeight;
    int widthStep; // 0: none
    int heightStep;
};

// Protocols, class, process and leader of a new top-level window.
void announceWindow(XId window, const std::string& instanceName, const std::string& className);
void setTitle(XId window, const std::string& utf8);
void setIconTitle(XId window, const std::string& utf8);
void setIconPixmap(XId window, XId pixmap, XId mask);
void setSizeHints(XId window, const SizeHints& hints);
void setTransientFor(XId window, XId parent); // 0: none
enum class WindowType { Normal, Dialog };
void setWindowType(XId window, WindowType type);
// Before the window is mapped.
void setModal(XId window, bool modal);
void iconify(XId window);
// Asks the window manager for a state of a mapped window, or notes it for one that will be mapped.
void requestState(XId window, bool mapped, const char* state, const char* otherState, bool on);
void requestActivation(XId window);
// Whether a window manager that knows these conventions is running.
bool hasWindowManager();
// Answers a ping of the window manager.
void answerPing(XId window, unsigned long time);

} // namespace x11
} // namespace zeltk

#endif
