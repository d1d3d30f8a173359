#ifndef ZELCOMBOBOX_H
#define ZELCOMBOBOX_H

#include <qcombobox.h>

#include "zelexport.h"

/*!
 * \brief A combo box that reports when it is left and when Escape is pressed.
 *
 * Return, Enter and Escape stay in the box: an enclosing dialog does not see them.
 */
class ZELKIT_EXPORT ZelComboBox : public QComboBox
{
    Q_OBJECT

public:
    //! Makes a combo box; \a rw: one whose text can be edited.
    ZelComboBox(bool rw, QWidget* parent = 0, const char* name = 0);

    //! Makes a combo box that cannot be edited.
    ZelComboBox(QWidget* parent = 0, const char* name = 0);

    //! Destroys the combo box.
    ~ZelComboBox();

signals:
    //! The pointer left the combo box.
    void leave();
    //! The keyboard focus left the combo box for another place than its own list. Emitted before the combo
    //! box handles it.
    void focusOut();
    //! Escape was pressed. Emitted after the combo box has handled the key.
    void escapePressed();

protected:
    void keyPressEvent(QKeyEvent* event);
    void focusOutEvent(QFocusEvent* event);
    void leaveEvent(QEvent* event);
};

#endif
