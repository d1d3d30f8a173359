// The default button of a dialog.
#include "widgets/defaultbutton.h"

#include <qobjectlist.h>
#include <qpushbutton.h>

#include <vector>

namespace zeltk
{

struct PushButtonAccess {
    static bool& chosen(QPushButton* button) { return button->chosen; }
    static void show(QPushButton* button, bool on) { button->showDefault(on); }
};

namespace
{

std::vector<QPushButton*> buttonsOf(QWidget* dialog)
{
    std::vector<QPushButton*> buttons;
    QObjectList* found = dialog->queryList("QPushButton");
    for (QObjectListIt it(*found); it.current(); ++it) {
        QPushButton* button = static_cast<QPushButton*>(it.current());
        if (button->topLevelWidget() == dialog)
            buttons.push_back(button);
    }
    delete found;
    return buttons;
}

QWidget* dialogOf(QPushButton* button)
{
    QWidget* window = button->topLevelWidget();
    return window->inherits("QDialog") ? window : nullptr;
}

void showOnly(const std::vector<QPushButton*>& buttons, QPushButton* button)
{
    for (QPushButton* each : buttons)
        PushButtonAccess::show(each, each == button);
}

} // namespace

QPushButton* defaultButton(QWidget* dialog)
{
    for (QPushButton* button : buttonsOf(dialog)) {
        if (button->isDefault())
            return button;
    }
    return nullptr;
}

void ensureDefaultButton(QWidget* dialog)
{
    if (defaultButton(dialog))
        return;
    for (QPushButton* button : buttonsOf(dialog)) {
        if (button->autoDefault()) {
            button->setDefault(true);
            return;
        }
    }
}

void defaultButtonChosen(QPushButton* button)
{
    PushButtonAccess::chosen(button) = true;
    QWidget* dialog = dialogOf(button);
    if (!dialog)
        return;
    const std::vector<QPushButton*> buttons = buttonsOf(dialog);
    for (QPushButton* each : buttons)
        PushButtonAccess::chosen(each) = each == button;
    showOnly(buttons, button);
}

void defaultButtonFocused(QPushButton* button)
{
    if (QWidget* dialog = dialogOf(button))
        showOnly(buttonsOf(dialog), button);
    else
        PushButtonAccess::show(button, true);
}

// The chosen one is it again; without one this button remains it.
void defaultButtonLeft(QPushButton* button)
{
    QWidget* dialog = dialogOf(button);
    if (!dialog)
        return;
    const std::vector<QPushButton*> buttons = buttonsOf(dialog);
    for (QPushButton* each : buttons) {
        if (PushButtonAccess::chosen(each))
            return showOnly(buttons, each);
    }
}

} // namespace zeltk
