// The parts of the dispatcher: what each kind of event of the X server becomes.
#ifndef ZELTK_DISPATCH_H
#define ZELTK_DISPATCH_H

#include "x11/events.h"

class QWidget;

namespace zeltk
{

// Bits of the X server's state.
constexpr unsigned shiftBit = 1U << 0;
constexpr unsigned controlBit = 1U << 2;
constexpr unsigned altBit = 1U << 3;
constexpr unsigned metaBit = 1U << 6;
constexpr unsigned leftBit = 1U << 8;
constexpr unsigned middleBit = 1U << 9;
constexpr unsigned rightBit = 1U << 10;

// The same as bits of Qt::ButtonState.
int stateOf(unsigned bits);
// True for the ancestor itself; windows belong to their parents too.
bool isInside(const QWidget* widget, const QWidget* ancestor);

void buttonDown(QWidget* widget, const x11::Event& event);
void buttonUp(QWidget* widget, const x11::Event& event);
void pointerMoved(QWidget* widget, const x11::Event& event);
void pointerEntered(QWidget* widget);
void pointerLeft(QWidget* widget, const x11::Event& event);

void keyChanged(QWidget* window, const x11::Event& event);
void focusChanged(QWidget* window, const x11::Event& event);

// Nobody has the pointer any more, without a word: for widgets that die and for modal windows.
void forgetHovered(QWidget* widget);
void leaveHovered();

} // namespace zeltk

#endif
