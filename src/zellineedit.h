#ifndef ZELLINEEDIT_H
#define ZELLINEEDIT_H

#include <qlineedit.h>

#include "zelexport.h"

/*!
 * \brief A line edit that reports when it is left and when Escape is pressed.
 *
 * Return, Enter and Escape stay in the field: an enclosing dialog does not see them.
 */
class ZELKIT_EXPORT ZelLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    //! Makes an empty field.
    ZelLineEdit(QWidget* parent = 0, const char* name = 0);

    //! Destroys the field.
    ~ZelLineEdit();

signals:
    //! The pointer left the field. \a event is valid during the emission.
    void leave(QEvent* event);
    //! The keyboard focus left the field, for whatever reason. Emitted before the field handles it.
    void focusOut();
    //! Escape was pressed. Emitted after the field has handled the key.
    void escapePressed();

protected:
    void keyPressEvent(QKeyEvent* event);
    void focusOutEvent(QFocusEvent* event);
    void leaveEvent(QEvent* event);
};

#endif
