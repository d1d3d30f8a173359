// QWidget: coming and going, parents, flags.
#include <qwidget.h>

#include "kernel/applicationprivate.h"
#include "kernel/objectdata.h"
#include "kernel/objecttree.h"
#include "kernel/widgetdata.h"
#include "x11/textdraw.h"
#include "x11/window.h"

#include <qapplication.h>
#include <qdesktopwidget.h>
#include <qobjectlist.h>

#include <algorithm>
#include <cstdlib>
#include <map>

using zeltk::WidgetData;
namespace x11 = zeltk::x11;

namespace
{

std::map<WId, QWidget*>& byWindow()
{
    static auto* const map = new std::map<WId, QWidget*>;
    return *map;
}

std::vector<QWidget*>& widgets()
{
    static auto* const all = new std::vector<QWidget*>;
    return *all;
}

// Fills in what the caller left open.
Qt::WFlags completed(Qt::WFlags f, const QObject* parent)
{
    if (!parent || (f & Qt::WType_Mask))
        f |= Qt::WType_TopLevel;
    if (!(f & Qt::WType_TopLevel) || (f & (Qt::WType_Popup | Qt::WType_Desktop | Qt::WStyle_Customize)))
        return f;
    f |= Qt::WStyle_NormalBorder | Qt::WStyle_Title | Qt::WStyle_SysMenu;
    return f | (f & Qt::WType_Dialog ? Qt::WStyle_ContextHelp : Qt::WStyle_MinMax);
}

// In the middle of the screen, with a quarter of its area and room left for a frame.
QRect initialRect(bool topLevel)
{
    if (!topLevel)
        return QRect(0, 0, 100, 30);
    const QRect& screen = QApplication::desktop()->geometry();
    const int width = screen.width() / 2;
    const int height = screen.height() * 4 / 10;
    return QRect((screen.width() - width) / 2, (screen.height() - height) / 2, width, height);
}

bool isUnmanaged(const QWidget* widget)
{
    return widget->testWFlags(Qt::WType_Popup | Qt::WX11BypassWM);
}

WId outerWindow(const QWidget* widget, const QWidget* parent)
{
    return widget->isTopLevel() ? x11::rootWindow() : parent->winId();
}

// A new widget hears where it is before it is shown, at the latest.
void startGeometry(QWidget* widget)
{
    WidgetData* data = zeltk::dataOf(widget);
    const QRect start = initialRect(widget->isTopLevel());
    data->rect = data->frame = start;
    QApplication::postEvent(widget, new QMoveEvent(start.topLeft(), start.topLeft()));
    QApplication::postEvent(widget, new QResizeEvent(start.size(), start.size()));
}

void setWindow(QWidget* widget, WId window)
{
    zeltk::dataOf(widget)->window = window;
    zeltk::WidgetAccess::setWinId(widget, window);
}

// The server ends all windows inside with it.
void forgetWindows(QWidget* widget)
{
    byWindow().erase(widget->winId());
    if (!widget->isDesktop())
        x11::forgetDrawable(widget->winId());
    setWindow(widget, 0);
    zeltk::dataOf(widget)->mapped = false;
    for (QWidget* child : zeltk::childWidgets(widget))
        if (!child->isTopLevel())
            forgetWindows(child);
}

// Tells those whose proxy it is; what they do then may change the list.
void forgetFocusProxy(const QWidget* proxy)
{
    const std::vector<QGuardedPtr<QWidget>> all(widgets().begin(), widgets().end());
    for (const QGuardedPtr<QWidget>& widget : all)
        if (widget && zeltk::dataOf(widget)->focusProxy == proxy)
            zeltk::WidgetAccess::focusProxyDestroyed(widget);
}

} // namespace

namespace zeltk
{

std::vector<QWidget*> childWidgets(const QWidget* widget)
{
    std::vector<QWidget*> result;
    if (!widget->children())
        return result;
    for (QObjectListIterator it(*widget->children()); it.current(); ++it)
        if (it.current()->isWidgetType())
            result.push_back(static_cast<QWidget*>(it.current()));
    return result;
}

std::vector<QGuardedPtr<QWidget>> guardedChildren(const QWidget* widget)
{
    const std::vector<QWidget*> children = childWidgets(widget);
    return std::vector<QGuardedPtr<QWidget>>(children.begin(), children.end());
}

const std::vector<QWidget*>& everyWidget()
{
    return widgets();
}

void makeWindow(QWidget* widget)
{
    WidgetData* data = dataOf(widget);
    if (widget->isDesktop()) {
        data->rect = data->frame = QRect(0, 0, x11::screenWidth(), x11::screenHeight());
        setWindow(widget, x11::rootWindow());
    } else {
        startGeometry(widget);
        const QRect& box = data->rect;
        setWindow(widget,
                  x11::createWindow(outerWindow(widget, widget->parentWidget()), box.x(), box.y(),
                                    box.width(), box.height(), widget->isTopLevel(), isUnmanaged(widget)));
        if (data->flags & Qt::WStaticContents)
            x11::keepContents(widget->winId(), true);
    }
    byWindow()[widget->winId()] = widget;
    data->state |= Qt::WState_Created;
}

void takeWindowOut(QWidget* widget, const QWidget* parent, Qt::WFlags flags)
{
    WidgetData* data = dataOf(widget);
    data->flags = completed(flags, parent);
    data->described = false;
    data->windowState = 0;
    WidgetAccess::clearState(widget, Qt::WState_Resized);
    startGeometry(widget);
    const QRect& box = data->rect;
    x11::rehangWindow(widget->winId(), x11::rootWindow(), box.x(), box.y(), widget->isTopLevel(),
                      isUnmanaged(widget));
    x11::moveResizeWindow(widget->winId(), box.x(), box.y(), box.width(), box.height());
}

void putWindowIn(QWidget* widget, const QWidget* parent)
{
    if (widget->isTopLevel())
        return;
    WidgetData* data = dataOf(widget);
    data->flags = completed(data->flags, parent);
    x11::rehangWindow(widget->winId(), outerWindow(widget, parent), data->rect.x(), data->rect.y(),
                      widget->isTopLevel(), isUnmanaged(widget));
}

void unmakeWindow(QWidget* widget)
{
    const WId window = widget->winId();
    forgetWindows(widget);
    if (window && x11::connected() && !widget->isDesktop())
        x11::destroyWindow(window);
}

} // namespace zeltk

QWidget::QWidget(QWidget* parent, const char* name, WFlags f)
    : QObject(parent, name), QPaintDevice(WidgetDevice), w(nullptr)
{
    if (!qApp || qApp->type() == QApplication::Tty) {
        qFatal("QWidget: a QApplication with windows is needed before any widget");
        std::exit(1); // a message handler returns
    }
    w = new WidgetData;
    zeltk::dataOf(static_cast<QObject*>(this))->isWidget = true;
    w->flags = completed(f, parent);
    widgets().push_back(this);
    zeltk::makeWindow(this);
    if (isTopLevel() || parent->isVisible())
        w->state |= WState_ForceHide;
    if (!isTopLevel() && !parent->isEnabled())
        w->state |= WState_Disabled;
    zeltk::inheritLook(this);
    zeltk::applyBackground(this);
}

QWidget::~QWidget()
{
    w->dying = true;
    zeltk::WidgetAccess::setWinId(this, w->window);
    if (hasFocus())
        clearFocus();
    if (isVisible() && !isDesktop())
        hide();
    zeltk::hideChildren(this); // of a widget that dies while it is hidden, some are still visible
    if (w->isFocusProxy)
        forgetFocusProxy(this);
    zeltk::widgetDestroyed(this);
    widgets().erase(std::find(widgets().begin(), widgets().end(), this));
    zeltk::unmakeWindow(this);
    w->layout = nullptr;         // it goes with the children
    zeltk::deleteChildren(this); // while there is still a widget around them
    zeltk::dataOf(static_cast<QObject*>(this))->isWidget = false;
    delete w->cursor;
    delete w->backgroundPixmap;
    delete w->icon;
    delete w;
}

QWidget* QWidget::find(WId id)
{
    const auto found = byWindow().find(id);
    return found == byWindow().end() ? nullptr : found->second;
}

void QWidget::setName(const char* name)
{
    QObject::setName(name);
}

Qt::WState QWidget::getWState() const
{
    return w->state;
}

void QWidget::setWState(WState s)
{
    w->state |= s;
}

void QWidget::clearWState(WState s)
{
    w->state &= ~s;
}

Qt::WFlags QWidget::getWFlags() const
{
    return w->flags;
}

void QWidget::setWFlags(WFlags f)
{
    w->flags |= f;
}

void QWidget::clearWFlags(WFlags f)
{
    w->flags &= ~f;
}

bool QWidget::testWFlags(WFlags f) const
{
    return (w->flags & f) != 0;
}

QWidget* QWidget::parentWidget(bool sameWindow) const
{
    if (sameWindow && isTopLevel())
        return nullptr;
    QObject* const container = parent();
    return container && container->isWidgetType() ? static_cast<QWidget*>(container) : nullptr;
}

QWidget* QWidget::topLevelWidget() const
{
    const QWidget* widget = this;
    while (!widget->isTopLevel() && widget->parentWidget())
        widget = widget->parentWidget();
    return const_cast<QWidget*>(widget);
}

bool QWidget::isModal() const
{
    return testWFlags(WShowModal);
}
