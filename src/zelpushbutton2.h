#ifndef ZELPUSHBUTTON2_H
#define ZELPUSHBUTTON2_H

#include <qpushbutton.h>

#include "zelexport.h"

/*!
 * \brief A push button that reports the Escape key.
 */
class ZELKIT_EXPORT ZelPushButton2 : public QPushButton
{
    Q_OBJECT

public:
    //! Makes a button without a text.
    ZelPushButton2(QWidget* parent, const char* name);

    //! Makes a button with that text.
    ZelPushButton2(const char* text, QWidget* parent, const char* name);

    //! Destroys the button.
    ~ZelPushButton2();

signals:
    //! Escape was pressed while the button had the focus. The key goes on to the button, and to a dialog,
    //! afterwards.
    void escapePressed();

protected:
    void keyPressEvent(QKeyEvent* event);
};

#endif
