// What the library's widgets keep to themselves.
#ifndef MONKEY_INSIDES_H
#define MONKEY_INSIDES_H

#include <string>

class QWidget;

// Whether the widget remembers that the pointer is over it (1) or that a button is held on it (2), and where
// it remembers it.
struct PointerState {
    unsigned remembered; // the bits that the class has; 0 if it has none
    unsigned bits;
};
PointerState pointerState(const QWidget* widget);

// For how many samples a graph has room.
int graphCapacity(const QWidget* graph);
// What is wrong with a graph's range, its mode or its history, or an empty text.
std::string brokenGraph(const QWidget* graph);

bool isInRange(const QWidget* fieldOfAnInt, int number);

#endif
