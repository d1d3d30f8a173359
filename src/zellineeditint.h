#ifndef ZELLINEEDITINT_H
#define ZELLINEEDITINT_H

#include <qlineedit.h>

#include "zelexport.h"

/*!
 * \brief A field for a whole number within a range.
 *
 * Only digits, the keys that move the cursor or delete, and combinations with Control alone reach the field.
 * All others, Return, Enter and Escape too, are dropped, and the parent does not see them either. A key that
 * would bring the number out of the range is undone: the number before it is written back. The text is the
 * only state; read the number from text(), where a text that does not begin with digits stands for 0.
 */
class ZELKIT_EXPORT ZelLineEditInt : public QLineEdit
{
    Q_OBJECT

public:
    //! Makes an empty field for numbers from \a min to \a max, both included. If \a min is above \a max, no
    //! key can change the number.
    ZelLineEditInt(QWidget* parent, const char* name, int min, int max);

    //! Destroys the field.
    ~ZelLineEditInt();

signals:
    //! A key has changed the number to \a value. Not emitted for changes by setText() or the mouse.
    void valueChanged(int value);

protected:
    void keyPressEvent(QKeyEvent* event);

private:
    int number() const;

    int minimum;
    int maximum;
};

#endif
