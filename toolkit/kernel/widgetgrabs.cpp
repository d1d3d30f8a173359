// QWidget: taking the mouse or the keyboard from all others.
#include "kernel/applicationdata.h"
#include "x11/events.h"
#include "x11/input.h"

#include <qwidget.h>

using zeltk::application;
namespace x11 = zeltk::x11;

namespace
{

void grabPointer(QWidget* widget, Qt::HANDLE cursor)
{
    if (application()->mouseGrabber)
        application()->mouseGrabber->releaseMouse();
    if (widget->isVisible() && x11::grabPointer(widget->winId(), cursor, false, x11::lastTime()))
        application()->mouseGrabber = widget;
}

} // namespace

void QWidget::grabMouse()
{
    grabPointer(this, 0);
}

void QWidget::grabMouse(const QCursor& cursor)
{
    grabPointer(this, cursor.handle());
}

void QWidget::releaseMouse()
{
    if (application()->mouseGrabber != this)
        return;
    x11::ungrabPointer(x11::lastTime());
    application()->mouseGrabber = nullptr;
}

void QWidget::grabKeyboard()
{
    if (application()->keyboardGrabber)
        application()->keyboardGrabber->releaseKeyboard();
    if (isVisible() && x11::grabKeyboard(winId(), x11::lastTime()))
        application()->keyboardGrabber = this;
}

void QWidget::releaseKeyboard()
{
    if (application()->keyboardGrabber != this)
        return;
    x11::ungrabKeyboard(x11::lastTime());
    application()->keyboardGrabber = nullptr;
}

QWidget* QWidget::mouseGrabber()
{
    return application()->mouseGrabber;
}

QWidget* QWidget::keyboardGrabber()
{
    return application()->keyboardGrabber;
}
