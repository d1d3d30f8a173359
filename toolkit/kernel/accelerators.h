// Keyboard shortcuts of labels and buttons, as in "&Open" and setAccel().
#ifndef ZELTK_ACCELERATORS_H
#define ZELTK_ACCELERATORS_H

class QWidget;
class QString;

namespace zeltk
{

// One who is called when its key is pressed in the window of its widget.
class AcceleratorTarget
{
public:
    virtual ~AcceleratorTarget() {}
    virtual void activateAccelerator() = 0;
};

// `key` is a Qt key code with modifiers (Qt::ALT + Qt::Key_O). The widget must be visible and enabled for
// the key to act.
void addAccelerator(QWidget* widget, int key, AcceleratorTarget* target);
// All of a target's; for destructors.
void removeAccelerators(AcceleratorTarget* target);

} // namespace zeltk

#endif
