#ifndef ZELCOLORBUTTON_H
#define ZELCOLORBUTTON_H

#include <qcolor.h>
#include <qwidget.h>

#include "zelexport.h"

/*!
 * \brief A button that shows a colour.
 *
 * At rest it is a sunken panel filled with the colour; while the pointer is over it, an outlined swatch on a
 * white field. Pressing and letting go do not change the look, and do not go on to the parent.
 */
class ZELKIT_EXPORT ZelColorButton : public QWidget
{
    Q_OBJECT

public:
    //! Makes a button that shows the colour (200, 0, 0). \a parent owns it.
    ZelColorButton(QWidget* parent, const char* name);

    //! Destroys the button.
    ~ZelColorButton();

    //! Shows a copy of \a color from now on and repaints at once.
    void setColor(const QColor& color);

signals:
    /*!
     * The left button was pressed on the button and a mouse button was released inside it. Emitted from the
     * release event. A double click emits it twice.
     */
    void clicked();

protected:
    void mousePressEvent(QMouseEvent* event);
    void mouseReleaseEvent(QMouseEvent* event);
    void enterEvent(QEvent* event);
    void leaveEvent(QEvent* event);
    void paintEvent(QPaintEvent* event);

private:
    QColor color;
    unsigned int state;
};

#endif
