#ifndef ZELPUSHBUTTON_H
#define ZELPUSHBUTTON_H

#include <qcolor.h>
#include <qpushbutton.h>

#include "zelexport.h"

/*!
 * \brief A push button that shows a colour in place of a text.
 *
 * The black-outlined swatch keeps five pixels from every edge.
 */
class ZELKIT_EXPORT ZelPushButton : public QPushButton
{
    Q_OBJECT

public:
    //! Makes a button that shows \a color for all its life.
    ZelPushButton(const QColor& color, QWidget* parent, const char* name);

    //! Destroys the button.
    ~ZelPushButton();

protected:
    void drawButtonLabel(QPainter* painter);

private:
    QColor color;
};

#endif
