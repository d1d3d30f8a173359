// The default button of a dialog: the one that Return presses.
#ifndef ZELTK_DEFAULTBUTTON_H
#define ZELTK_DEFAULTBUTTON_H

class QPushButton;
class QWidget;

namespace zeltk
{

// The one at the moment; null if there is none.
QPushButton* defaultButton(QWidget* dialog);
// When a dialog is shown: without a default button its first auto-default one becomes it.
void ensureDefaultButton(QWidget* dialog);

// For push buttons: the program made it the default button; it has got or lost the focus.
void defaultButtonChosen(QPushButton* button);
void defaultButtonFocused(QPushButton* button);
void defaultButtonLeft(QPushButton* button);

} // namespace zeltk

#endif
