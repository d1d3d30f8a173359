#ifndef ZELACTIVELABEL2_H
#define ZELACTIVELABEL2_H

#include <qstring.h>
#include <qwidget.h>

#include "zelexport.h"

/*!
 * \brief A framed text that works as a flat button.
 *
 * A sunken outline surrounds the centred text in every state. The text is blue (0, 0, 220), and white while
 * the pointer is over the label. Pressing and letting go do not change the look, and do not go on to the
 * parent.
 */
class ZELKIT_EXPORT ZelActiveLabel2 : public QWidget
{
    Q_OBJECT

public:
    /*!
     * Makes a label without a text. The palette background colour is copied from \a parent now; later changes
     * of the parent's do not reach the label. \a parent must not be null and owns the label.
     */
    ZelActiveLabel2(QWidget* parent, const char* name);

    //! Destroys the label.
    ~ZelActiveLabel2();

    //! Shows \a text from now on and repaints at once.
    void setText(const char* text);

signals:
    /*!
     * The left button was pressed on the label and a button was released inside it. Emitted from the release
     * event. A double click emits it twice.
     */
    void clicked();

    //! The left button went down on the label. Emitted from the press event.
    void pressed();

protected:
    void mousePressEvent(QMouseEvent* event);
    void mouseReleaseEvent(QMouseEvent* event);
    void enterEvent(QEvent* event);
    void leaveEvent(QEvent* event);
    void paintEvent(QPaintEvent* event);

private:
    QString text;
    unsigned int state;
};

#endif
