// QWidget: windows that are iconified, maximized, framed or fill the screen.
#include "kernel/applicationdata.h"
#include "kernel/widgetdata.h"
#include "x11/window.h"
#include "x11/wmhints.h"

#include <qapplication.h>
#include <qdesktopwidget.h>
#include <qevent.h>
#include <qguardedptr.h>

#include <vector>

namespace
{

unsigned managerBits(uint state)
{
    unsigned bits = 0;
    if (state & Qt::WindowMaximized)
        bits |= zeltk::x11::StateMaximized;
    if (state & Qt::WindowFullScreen)
        bits |= zeltk::x11::StateFullScreen;
    return bits;
}

void sendStateChange(QWidget* window)
{
    QEvent event(QEvent::WindowStateChange);
    QApplication::sendEvent(window, &event);
}

void setMinimized(QWidget* window, bool minimized)
{
    zeltk::WidgetData* data = zeltk::dataOf(window);
    const uint bit = Qt::WindowMinimized;
    const uint state = minimized ? data->windowState | bit : data->windowState & ~bit;
    if (state == data->windowState)
        return;
    data->windowState = state;
    sendStateChange(window);
}

void showIn(QWidget* window, uint state)
{
    const QGuardedPtr<QWidget> alive(window);
    window->setWindowState(state);
    if (alive)
        window->show();
}

// To the window and all that can be seen in it.
template <typename Event>
void tellVisible(QWidget* widget)
{
    const QGuardedPtr<QWidget> alive(widget);
    Event event;
    zeltk::sendSpontaneous(widget, &event);
    if (!alive)
        return;
    for (const QGuardedPtr<QWidget>& child : zeltk::guardedChildren(widget))
        if (child && !child->isTopLevel() && child->isVisible())
            tellVisible<Event>(child);
}

// Where the window is in the window manager's frame, if there is one.
void measureFrame(QWidget* window)
{
    zeltk::WidgetData* data = zeltk::dataOf(window);
    zeltk::x11::FramePlace place;
    if (!zeltk::x11::framePlace(window->winId(), &place))
        return;
    const QRect client(place.client.x, place.client.y, place.client.width, place.client.height);
    const QRect frame(place.frame.x, place.frame.y, place.frame.width, place.frame.height);
    const QSize around = frame.size() - client.size();
    data->frame =
        QRect(data->rect.topLeft() - (client.topLeft() - frame.topLeft()), data->rect.size() + around);
    zeltk::windowConfigured(window, client);
}

} // namespace

namespace zeltk
{

// Windows that come and go without the program's doing remain visible in its eyes, but hear of it. The server
// may also have told late of a hide() that was followed by a show(); then both are heard once more.
void windowMapped(QWidget* window)
{
    WidgetData* data = dataOf(window);
    if (data->frameMayGrow) {
        data->frameMayGrow = false;
        const QGuardedPtr<QWidget> alive(window);
        measureFrame(window);
        if (!alive)
            return;
    }
    if (data->mapped && data->takenAway) {
        data->takenAway = false;
        tellVisible<QShowEvent>(window);
    }
}

void windowUnmapped(QWidget* window)
{
    WidgetData* data = dataOf(window);
    if (data->mapped && !data->takenAway) {
        data->takenAway = true;
        tellVisible<QHideEvent>(window);
    }
}

void windowIconicChanged(QWidget* window)
{
    if (dataOf(window)->mapped)
        setMinimized(window, x11::isIconic(window->winId()));
}

// The window manager may have put the window into a frame, which it may still be making: it is ready when the
// window is mapped in it.
void windowReparented(QWidget* window)
{
    dataOf(window)->frameMayGrow = true;
    measureFrame(window);
}

} // namespace zeltk

bool QWidget::isMinimized() const
{
    return (windowState() & WindowMinimized) != 0;
}

bool QWidget::isMaximized() const
{
    return (windowState() & WindowMaximized) != 0;
}

bool QWidget::isFullScreen() const
{
    return (windowState() & WindowFullScreen) != 0;
}

uint QWidget::windowState() const
{
    return w->windowState;
}

void QWidget::setWindowState(uint state)
{
    const uint before = windowState();
    if (!isTopLevel() || state == before)
        return;
    const uint large = WindowMaximized | WindowFullScreen;
    w->windowState = state;
    if ((state & large) && !(before & large))
        w->normalRect = geometry();
    if (isVisible()) {
        if (managerBits(before & ~state))
            zeltk::x11::requestState(winId(), managerBits(before & ~state), false);
        if (managerBits(state & ~before))
            zeltk::x11::requestState(winId(), managerBits(state & ~before), true);
        if (state & ~before & WindowMinimized)
            zeltk::x11::iconifyWindow(winId());
        else if (before & ~state & WindowMinimized)
            zeltk::x11::mapWindow(winId());
    } else {
        w->described = false;
    }
    const QGuardedPtr<QWidget> alive(this);
    if ((state ^ before) & large)
        setGeometry(state & large ? QApplication::desktop()->screenGeometry() : w->normalRect);
    if (alive)
        sendStateChange(this);
}

void QWidget::iconify()
{
    showMinimized();
}

void QWidget::showMinimized()
{
    showIn(this, windowState() | WindowMinimized);
}

void QWidget::showMaximized()
{
    showIn(this, (windowState() & ~(WindowMinimized | WindowFullScreen)) | WindowMaximized);
}

void QWidget::showFullScreen()
{
    showIn(this, (windowState() & ~(WindowMinimized | WindowMaximized)) | WindowFullScreen);
}

void QWidget::showNormal()
{
    showIn(this, windowState() & ~(WindowMinimized | WindowMaximized | WindowFullScreen));
}
