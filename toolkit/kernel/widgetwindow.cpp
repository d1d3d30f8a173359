// QWidget: what a window tells its window manager.
#include <qwidget.h>

#include "kernel/widgetdata.h"
#include "tools/unicode.h"
#include "x11/window.h"
#include "x11/wmhints.h"

#include <qapplication.h>
#include <qbitmap.h>
#include <qevent.h>

using zeltk::dataOf;
using zeltk::WidgetData;
namespace x11 = zeltk::x11;

namespace
{

void sendStateChange(QWidget* widget, QEvent::Type type)
{
    QEvent event(type);
    QApplication::sendEvent(widget, &event);
}

// The window to which a dialog belongs.
const QWidget* ownerOf(const QWidget* window)
{
    return window->parentWidget() ? window->parentWidget()->topLevelWidget() : nullptr;
}

} // namespace

namespace zeltk
{

void announce(QWidget* window)
{
    if (window->testWFlags(Qt::WType_Popup | Qt::WX11BypassWM | Qt::WType_Desktop))
        return;
    std::string program = qApp->name("");
    std::string className = program;
    if (!className.empty() && className[0] >= 'a' && className[0] <= 'z')
        className[0] = static_cast<char>(className[0] - 'a' + 'A');
    x11::announceWindow(window->winId(), program, className);
    x11::setTitle(window->winId(), program);
    x11::setWindowType(window->winId(),
                       window->isDialog() ? x11::WindowType::Dialog : x11::WindowType::Normal);
    const QWidget* owner = ownerOf(window);
    if (owner && !owner->isDesktop())
        x11::setTransientFor(window->winId(), owner->winId());
    if (!dataOf(window)->caption.isNull())
        x11::setTitle(window->winId(), toUtf8(dataOf(window)->caption));
}

void applySizeHints(QWidget* window)
{
    const WidgetData* data = dataOf(window);
    x11::setSizeHints(window->winId(), {data->frame.x(), data->frame.y(), data->placed, data->rect.width(),
                                        data->rect.height(), data->minimum.width(), data->minimum.height(),
                                        data->maximum.width(), data->maximum.height(), data->base.width(),
                                        data->base.height(), data->step.width(), data->step.height()});
}

// The frame is what lies between the window and the root's child that holds it; its size is learnt from where
// the window has come to lie.
void windowReparented(QWidget* window)
{
    int x = 0;
    int y = 0;
    WidgetData* data = dataOf(window);
    if (!x11::rootPosition(window->winId(), &x, &y))
        return;
    const QPoint corner = data->frame.topLeft();
    const QPoint inside = QPoint(x, y) - corner;
    data->rect.moveTopLeft(QPoint(x, y));
    data->frame = QRect(corner, data->rect.size() + QSize(2 * inside.x(), inside.y() + inside.x()));
}

} // namespace zeltk

QString QWidget::caption() const
{
    return w->caption;
}

void QWidget::setCaption(const QString& caption)
{
    if (w->caption == caption && !w->caption.isNull())
        return;
    w->caption = caption;
    if (isTopLevel() && !isDesktop())
        x11::setTitle(winId(), zeltk::toUtf8(caption));
    sendStateChange(this, QEvent::CaptionChange);
}

const QPixmap* QWidget::icon() const
{
    return w->icon;
}

void QWidget::setIcon(const QPixmap& icon)
{
    delete w->icon;
    w->icon = icon.isNull() ? nullptr : new QPixmap(icon);
    if (isTopLevel() && !isDesktop())
        x11::setIconPixmap(winId(), icon.handle(), icon.mask() ? icon.mask()->handle() : 0);
    sendStateChange(this, QEvent::IconChange);
}

QString QWidget::iconText() const
{
    return w->iconText;
}

void QWidget::setIconText(const QString& text)
{
    w->iconText = text;
    if (isTopLevel() && !isDesktop())
        x11::setIconTitle(winId(), zeltk::toUtf8(text));
}

void QWidget::setMask(const QRegion& region)
{
    std::vector<x11::ClipRect> rects;
    const QMemArray<QRect> parts = region.rects();
    for (uint i = 0; i < parts.size(); ++i)
        rects.push_back({parts.at(i).x(), parts.at(i).y(), parts.at(i).width(), parts.at(i).height()});
    x11::setShape(winId(), &rects);
}

void QWidget::clearMask()
{
    x11::setShape(winId(), nullptr);
}

bool QWidget::isMinimized() const
{
    return w->minimized;
}

bool QWidget::isMaximized() const
{
    return w->maximized;
}

bool QWidget::isFullScreen() const
{
    return w->fullScreen;
}

void QWidget::iconify()
{
    showMinimized();
}

void QWidget::showMinimized()
{
    if (!isTopLevel()) {
        hide();
        return;
    }
    w->minimized = true;
    show();
    x11::iconify(winId());
    sendStateChange(this, QEvent::WindowStateChange);
}

void QWidget::showMaximized()
{
    if (isTopLevel())
        x11::requestState(winId(), isVisible(), "_NET_WM_STATE_MAXIMIZED_VERT",
                          "_NET_WM_STATE_MAXIMIZED_HORZ", true);
    w->maximized = true;
    show();
    sendStateChange(this, QEvent::WindowStateChange);
}

void QWidget::showFullScreen()
{
    if (!isTopLevel())
        return;
    w->normalRect = geometry();
    x11::requestState(winId(), isVisible(), "_NET_WM_STATE_FULLSCREEN", nullptr, true);
    w->fullScreen = true;
    show();
    raise();
    setActiveWindow();
    sendStateChange(this, QEvent::WindowStateChange);
}

void QWidget::showNormal()
{
    if (isTopLevel() && w->maximized)
        x11::requestState(winId(), isVisible(), "_NET_WM_STATE_MAXIMIZED_VERT",
                          "_NET_WM_STATE_MAXIMIZED_HORZ", false);
    if (isTopLevel() && w->fullScreen)
        x11::requestState(winId(), isVisible(), "_NET_WM_STATE_FULLSCREEN", nullptr, false);
    const bool changed = w->minimized || w->maximized || w->fullScreen;
    w->minimized = w->maximized = w->fullScreen = false;
    if (isTopLevel() && isVisible())
        x11::mapWindow(winId());
    show();
    if (changed)
        sendStateChange(this, QEvent::WindowStateChange);
}
