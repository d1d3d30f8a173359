// QWidget: how it begins and ends, and what kind of widget it is.
#include "kernel/applicationprivate.h"
#include "kernel/objectdata.h"
#include "kernel/widgetdata.h"
#include "x11/window.h"

#include <qapplication.h>
#include <qevent.h>
#include <qobjectlist.h>

#include <unordered_map>

using zeltk::WidgetData;

namespace
{

std::unordered_map<zeltk::x11::XId, QWidget*>& windowTable()
{
    static std::unordered_map<zeltk::x11::XId, QWidget*>* const table =
        new std::unordered_map<zeltk::x11::XId, QWidget*>;
    return *table;
}

// Fills in what the caller left open.
Qt::WFlags completeFlags(Qt::WFlags flags, bool hasParent)
{
    if (!hasParent || (flags & Qt::WType_Mask))
        flags |= Qt::WType_TopLevel;
    if (!(flags & Qt::WType_TopLevel) || (flags & (Qt::WType_Popup | Qt::WType_Desktop)))
        return flags;
    if (flags & Qt::WStyle_Customize)
        return flags;
    flags |= Qt::WStyle_NormalBorder | Qt::WStyle_Title | Qt::WStyle_SysMenu;
    return flags | (flags & Qt::WType_Dialog ? Qt::WStyle_ContextHelp : Qt::WStyle_MinMax);
}

void forgetWindows(QWidget* widget)
{
    WidgetData* data = zeltk::dataOf(widget);
    windowTable().erase(data->window);
    data->window = 0;
    data->mapped = false;
    zeltk::WidgetAccess::setHandle(widget, 0);
    for (QWidget* child : zeltk::childWidgets(widget))
        if (!child->isTopLevel())
            forgetWindows(child);
}

zeltk::x11::WindowSpec windowSpec(const QWidget* widget)
{
    const QRect& box = widget->geometry();
    zeltk::x11::WindowSpec spec;
    spec.parent = widget->isTopLevel() ? zeltk::x11::rootWindow() : widget->parentWidget()->winId();
    spec.box = {box.x(), box.y(), box.width(), box.height()};
    spec.topLevel = widget->isTopLevel();
    spec.overrideRedirect = widget->testWFlags(Qt::WType_Popup | Qt::WX11BypassWM) != 0;
    spec.saveUnder = widget->isPopup();
    spec.staticContents = widget->testWFlags(Qt::WStaticContents) != 0;
    spec.backgroundPixel = widget->eraseColor().pixel();
    return spec;
}

void postFirstGeometry(QWidget* widget)
{
    const QRect& geometry = widget->geometry();
    QApplication::postEvent(widget, new QMoveEvent(geometry.topLeft(), geometry.topLeft()));
    QApplication::postEvent(widget, new QResizeEvent(geometry.size(), geometry.size()));
}

} // namespace

namespace zeltk
{

std::vector<QWidget*> childWidgets(const QWidget* widget)
{
    std::vector<QWidget*> found;
    if (const QObjectList* children = widget->children())
        for (QObjectListIterator it(*children); it.current(); ++it)
            if (it.current()->isWidgetType())
                found.push_back(static_cast<QWidget*>(it.current()));
    return found;
}

std::vector<QWidget*> allWidgets()
{
    std::vector<QWidget*> widgets;
    for (const auto& entry : windowTable())
        widgets.push_back(entry.second);
    return widgets;
}

QRect defaultGeometry(const QWidget* widget)
{
    if (!widget->isTopLevel())
        return QRect(0, 0, 100, 30);
    const int screenWidth = x11::screenWidth();
    const int screenHeight = x11::screenHeight();
    if (widget->isDesktop())
        return QRect(0, 0, screenWidth, screenHeight);
    const int width = screenWidth / 2;
    const int height = screenHeight * 4 / 10;
    return QRect((screenWidth - width) / 2, (screenHeight - height) / 2, width, height);
}

void createWidgetWindow(QWidget* widget)
{
    WidgetData* data = dataOf(widget);
    data->geometry = defaultGeometry(widget);
    if (widget->isTopLevel())
        data->top.reset(new TopLevelData);
    if (widget->isDesktop()) {
        data->window = x11::rootWindow();
    } else {
        data->window = x11::createWindow(windowSpec(widget));
    }
    windowTable()[data->window] = widget;
    WidgetAccess::setHandle(widget, data->window);
    WidgetAccess::setState(widget, Qt::WState_Created);
    if (!widget->isDesktop())
        postFirstGeometry(widget);
}

void replaceWidgetWindow(QWidget* widget, Qt::WFlags flags)
{
    WidgetData* data = dataOf(widget);
    data->flags = completeFlags(flags, widget->parentWidget() != nullptr);
    data->geometry = defaultGeometry(widget);
    if (!widget->isTopLevel()) {
        data->top.reset();
    } else {
        std::unique_ptr<TopLevelData> top(new TopLevelData);
        if (data->top) {
            top->caption = data->top->caption;
            top->iconText = data->top->iconText;
            top->icon = std::move(data->top->icon);
        }
        data->top = std::move(top);
    }
    x11::rehangWindow(data->window, windowSpec(widget));
    postFirstGeometry(widget);
}

void destroyWidgetWindow(QWidget* widget)
{
    const x11::XId window = dataOf(widget)->window;
    forgetWindows(widget);
    WidgetAccess::clearState(widget, Qt::WState_Created);
    if (window && window != x11::rootWindow() && x11::connected())
        x11::destroyWindow(window);
}

} // namespace zeltk

QWidget::QWidget(QWidget* parent, const char* name, WFlags f)
    : QObject(parent, name), QPaintDevice(WidgetDevice), wd(new WidgetData)
{
    zeltk::dataOf(static_cast<QObject*>(this))->isWidget = true;
    if (!qApp)
        qFatal("QWidget: Must construct a QApplication before a QPaintDevice");
    wd->flags = completeFlags(f, parent != 0);
    wd->minimumSize = QSize(0, 0);
    wd->maximumSize = QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    wd->increment = wd->baseSize = QSize(0, 0);
    wd->policy = QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    wd->palette = zeltk::inheritedPalette(this);
    wd->font = zeltk::inheritedFont(this);
    if (!isTopLevel() && !parent->isEnabled())
        wd->state |= WState_Disabled;
    if (isTopLevel() || parent->isVisible())
        wd->state |= WState_ForceHide;
    wd->eraseColor = colorGroup().background();
    zeltk::createWidgetWindow(this);
}

QWidget::~QWidget()
{
    if (!isDesktop())
        hide();
    zeltk::widgetDestroyed(this);
    zeltk::destroyWidgetWindow(this);
    delete wd;
    wd = 0;
    zeltk::dataOf(static_cast<QObject*>(this))->isWidget = false;
}

WId QWidget::winId() const
{
    return wd->window;
}

QWidget* QWidget::find(WId id)
{
    const auto place = windowTable().find(id);
    return place == windowTable().end() ? 0 : place->second;
}

bool QWidget::isTopLevel() const
{
    return testWFlags(WType_TopLevel) != 0;
}

bool QWidget::isDialog() const
{
    return testWFlags(WType_Dialog) != 0;
}

bool QWidget::isPopup() const
{
    return testWFlags(WType_Popup) != 0;
}

bool QWidget::isDesktop() const
{
    return testWFlags(WType_Desktop) != 0;
}

bool QWidget::isModal() const
{
    return testWFlags(WShowModal) != 0;
}

Qt::WFlags QWidget::testWFlags(WFlags flags) const
{
    return wd->flags & flags;
}

Qt::WState QWidget::testWState(WState states) const
{
    return wd->state & states;
}

Qt::WState QWidget::getWState() const
{
    return wd->state;
}

void QWidget::setWState(WState states)
{
    wd->state |= states;
}

void QWidget::clearWState(WState states)
{
    wd->state &= ~states;
}

Qt::WFlags QWidget::getWFlags() const
{
    return wd->flags;
}

void QWidget::setWFlags(WFlags flags)
{
    wd->flags |= flags;
}

void QWidget::clearWFlags(WFlags flags)
{
    wd->flags &= ~flags;
}

QWidget* QWidget::parentWidget(bool sameWindow) const
{
    if (sameWindow && isTopLevel())
        return 0;
    return static_cast<QWidget*>(parent());
}

QWidget* QWidget::topLevelWidget() const
{
    const QWidget* widget = this;
    while (!widget->isTopLevel() && widget->parentWidget())
        widget = widget->parentWidget();
    return const_cast<QWidget*>(widget);
}
