#ifndef ZELFRAME_H
#define ZELFRAME_H

#include <qframe.h>

#include "zelexport.h"

/*!
 * \brief A frame that reports its mouse events.
 *
 * Each event is reported twice, first alone and then together with the frame, so that one slot can serve many
 * frames. After that it goes on to the parent widget. Events are valid during the emission.
 */
class ZELKIT_EXPORT ZelFrame : public QFrame
{
    Q_OBJECT

public:
    //! Makes a frame as QFrame does.
    ZelFrame(QWidget* parent = 0, const char* name = 0, WFlags flags = 0);

    //! Destroys the frame.
    ~ZelFrame();

signals:
    //! A button went down on the frame.
    void mousePress(QMouseEvent* event);
    //! A button that went down on the frame was let go.
    void mouseRelease(QMouseEvent* event);
    //! A button went down on the frame twice. A mousePress() follows for the same event.
    void mouseDoubleClick(QMouseEvent* event);
    //! The pointer moved while a button was held, or at any time with mouse tracking.
    void mouseMove(QMouseEvent* event);

    //! Follows mousePress(); \a frame is the sender.
    void mousePressEx(QMouseEvent* event, ZelFrame* frame);
    //! Follows mouseRelease(); \a frame is the sender.
    void mouseReleaseEx(QMouseEvent* event, ZelFrame* frame);
    //! Follows mouseDoubleClick(); \a frame is the sender.
    void mouseDoubleClickEx(QMouseEvent* event, ZelFrame* frame);
    //! Follows mouseMove(); \a frame is the sender.
    void mouseMoveEx(QMouseEvent* event, ZelFrame* frame);

protected:
    void mousePressEvent(QMouseEvent* event);
    void mouseReleaseEvent(QMouseEvent* event);
    void mouseDoubleClickEvent(QMouseEvent* event);
    void mouseMoveEvent(QMouseEvent* event);
};

#endif
