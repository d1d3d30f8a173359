// Keyboard shortcuts of labels and buttons.
#include "kernel/accelerators.h"

#include "kernel/applicationdata.h"

#include <qwidget.h>

#include <algorithm>
#include <cctype>
#include <vector>

namespace zeltk
{

namespace
{

struct Accelerator {
    QWidget* widget;
    int key;
    AcceleratorTarget* target;
};

std::vector<Accelerator>& accelerators()
{
    static auto* const all = new std::vector<Accelerator>; // windows may outlive main()
    return *all;
}

// The pressed key with its modifiers in the form of an accelerator.
int codeOf(const QKeyEvent* key)
{
    int code = key->key();
    if (key->state() & Qt::ShiftButton)
        code |= Qt::SHIFT;
    if (key->state() & Qt::ControlButton)
        code |= Qt::CTRL;
    if (key->state() & Qt::AltButton)
        code |= Qt::ALT;
    return code;
}

} // namespace

void addAccelerator(QWidget* widget, int key, AcceleratorTarget* target)
{
    accelerators().push_back({widget, key, target});
}

void removeAccelerators(AcceleratorTarget* target)
{
    std::vector<Accelerator>& all = accelerators();
    all.erase(
        std::remove_if(all.begin(), all.end(), [target](const Accelerator& a) { return a.target == target; }),
        all.end());
}

bool activateAccelerator(QWidget* window, QKeyEvent* key)
{
    int code = codeOf(key);
    // Where Shift is needed to type the sign, it is no part of the shortcut.
    if (key->key() < 0x80 && key->key() > Qt::Key_Space && !std::isalnum(key->key()))
        code &= ~Qt::SHIFT;
    for (const Accelerator& accelerator : accelerators()) {
        if (accelerator.key != code || accelerator.widget->topLevelWidget() != window ||
            !accelerator.widget->isVisible() || !accelerator.widget->isEnabled())
            continue;
        accelerator.target->activateAccelerator();
        return true;
    }
    return false;
}

} // namespace zeltk
