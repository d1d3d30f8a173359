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
    int id;
    QWidget* widget;
    int key;
    AcceleratorTarget* target;
};

std::vector<Accelerator>& accelerators()
{
    static std::vector<Accelerator> all;
    return all;
}

template <typename Condition>
void removeIf(Condition condition)
{
    std::vector<Accelerator>& all = accelerators();
    all.erase(std::remove_if(all.begin(), all.end(), condition), all.end());
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

int addAccelerator(QWidget* widget, int key, AcceleratorTarget* target)
{
    static int lastId = 0;
    accelerators().push_back({++lastId, widget, key, target});
    return lastId;
}

void removeAccelerator(int id)
{
    removeIf([id](const Accelerator& a) { return a.id == id; });
}

void removeAccelerators(AcceleratorTarget* target)
{
    removeIf([target](const Accelerator& a) { return a.target == target; });
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
