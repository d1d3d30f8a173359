// QWidget: what the server and the window manager do with its window.
#include "kernel/widgetdata.h"
#include "x11/window.h"

#include <qapplication.h>
#include <qevent.h>

using zeltk::TopLevelData;

namespace
{

void setMinimized(QWidget* topLevel, bool minimized)
{
    TopLevelData* top = zeltk::dataOf(topLevel)->top.get();
    const uint state = minimized ? top->windowState | Qt::WindowMinimized
                                 : top->windowState & ~static_cast<uint>(Qt::WindowMinimized);
    if (state == top->windowState)
        return;
    top->windowState = state;
    QEvent event(QEvent::WindowStateChange);
    QApplication::sendEvent(topLevel, &event);
}

} // namespace

namespace zeltk
{

void windowConfigured(QWidget* topLevel, const QRect& clientGeometry, unsigned long serial)
{
    WidgetData* data = dataOf(topLevel);
    if (!data->top || serial < data->top->configureSerial || clientGeometry == data->geometry)
        return;
    const QPoint placeBefore = topLevel->pos();
    const QSize sizeBefore = topLevel->size();
    data->geometry = clientGeometry;
    if (topLevel->pos() != placeBefore) {
        QMoveEvent event(topLevel->pos(), placeBefore);
        QApplication::sendEvent(topLevel, &event);
    }
    if (topLevel->size() != sizeBefore) {
        QResizeEvent event(topLevel->size(), sizeBefore);
        QApplication::sendEvent(topLevel, &event);
    }
}

void windowMapped(QWidget* topLevel)
{
    if (dataOf(topLevel)->mapped)
        setMinimized(topLevel, false);
}

// If we did not take it away, it was iconified.
void windowUnmapped(QWidget* topLevel)
{
    if (dataOf(topLevel)->mapped)
        setMinimized(topLevel, true);
}

void windowReparented(QWidget* topLevel)
{
    TopLevelData* top = dataOf(topLevel)->top.get();
    x11::FramePlace place;
    if (!top || !x11::framePlace(dataOf(topLevel)->window, &place))
        return;
    const QRect client(place.client.x, place.client.y, place.client.width, place.client.height);
    const QRect frame(place.frame.x, place.frame.y, place.frame.width, place.frame.height);
    top->frameLeft = client.left() - frame.left();
    top->frameTop = client.top() - frame.top();
    top->frameRight = frame.right() - client.right();
    top->frameBottom = frame.bottom() - client.bottom();
    top->frameWindow = place.frameWindow;
    windowConfigured(topLevel, client, ~0ul);
}

} // namespace zeltk
