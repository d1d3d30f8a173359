#ifndef ZELEDGE_H
#define ZELEDGE_H

#include <qcolor.h>
#include <qwidget.h>

#include "zelexport.h"

/*!
 * \brief A coloured area to drag.
 *
 * It shows one colour at rest and another while a mouse button is held on it, and reports its mouse events,
 * which do not go on to the parent. Events are valid during the emission.
 */
class ZELKIT_EXPORT ZelEdge : public QWidget
{
    Q_OBJECT

public:
    //! Makes an edge that is black at rest and green (0, 240, 0) while held.
    ZelEdge(QWidget* parent, const char* name);

    //! Destroys the edge.
    ~ZelEdge();

    //! Copies both colours and sets the normal one at once, also while a button is held.
    void setColor(const QColor& normal, const QColor& pressed);

signals:
    //! Any button went down; the edge has its held colour already.
    void mousePress(QMouseEvent* event);
    //! Any button was let go; the edge has its normal colour already.
    void mouseRelease(QMouseEvent* event);
    //! The pointer moved while a button was held, or at any time with mouse tracking.
    void mouseMove(QMouseEvent* event);

protected:
    void mousePressEvent(QMouseEvent* event);
    void mouseReleaseEvent(QMouseEvent* event);
    void mouseMoveEvent(QMouseEvent* event);

private:
    QColor normalColor;
    QColor pressedColor;
};

#endif
