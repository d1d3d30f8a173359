// QWidget: coming and going, parents, flags.
#include <qwidget.h>

#include "kernel/applicationprivate.h"
#include "kernel/objectdata.h"
#include "kernel/objecttree.h"
#include "kernel/widgetdata.h"
#include "x11/window.h"

#include <qapplication.h>
#include <qobjectlist.h>

#include <algorithm>
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

// Windows are of one kind; popups and the desktop are always windows.
Qt::WFlags completed(Qt::WFlags f, const QWidget* parent)
{
    if (!parent || (f & (Qt::WType_Popup | Qt::WType_Desktop | Qt::WType_Dialog)))
        f |= Qt::WType_TopLevel;
    return f;
}

// In the middle of the screen, with a quarter of its area and room left for a frame.
QRect initialRect(bool topLevel)
{
    if (!topLevel)
        return QRect(0, 0, 100, 30);
    const int width = x11::screenWidth() / 2;
    const int height = x11::screenHeight() * 4 / 10;
    return QRect(x11::screenWidth() / 2 - width / 2, x11::screenHeight() / 2 - height / 2, width, height);
}

WId parentWindow(const QWidget* parent, bool topLevel)
{
    return topLevel ? x11::rootWindow() : parent->winId();
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

const std::vector<QWidget*>& everyWidget()
{
    return widgets();
}

void makeWindow(QWidget* widget, const QWidget* parent)
{
    WidgetData* data = dataOf(widget);
    const bool topLevel = widget->isTopLevel();
    data->rect = initialRect(topLevel);
    data->frame = data->rect;
    data->oldPos = data->rect.topLeft();
    data->oldSize = data->rect.size();
    data->moved = data->resized = true;
    const bool unmanaged = data->flags & (Qt::WType_Popup | Qt::WX11BypassWM);
    if (widget->isDesktop()) {
        data->rect = data->frame = QRect(0, 0, x11::screenWidth(), x11::screenHeight());
        WidgetAccess::setWinId(widget, x11::rootWindow());
    } else {
        WidgetAccess::setWinId(widget, x11::createWindow(parentWindow(parent, topLevel), data->rect.x(),
                                                         data->rect.y(), data->rect.width(),
                                                         data->rect.height(), topLevel, unmanaged));
        byWindow()[widget->winId()] = widget;
    }
    data->state |= Qt::WState_Created;
    if (data->flags & (Qt::WStaticContents))
        x11::keepContents(widget->winId(), true);
}

void moveWindowTo(QWidget* widget, QWidget* parent, bool wasTopLevel)
{
    WidgetData* data = dataOf(widget);
    const bool topLevel = widget->isTopLevel();
    if (topLevel != wasTopLevel) {
        // Another kind of window: its children move over to it.
        const WId old = widget->winId();
        byWindow().erase(old);
        makeWindow(widget, parent);
        for (const QWidget* child : childWidgets(widget))
            if (!child->isTopLevel())
                x11::reparentWindow(child->winId(), widget->winId(), child->x(), child->y());
        x11::destroyWindow(old);
        if (topLevel)
            announce(widget);
        applyCursor(widget);
        return;
    }
    data->rect = data->frame = initialRect(topLevel);
    data->oldPos = data->rect.topLeft();
    data->oldSize = data->rect.size();
    data->moved = data->resized = true;
    if (!topLevel)
        x11::reparentWindow(widget->winId(), parent->winId(), data->rect.x(), data->rect.y());
}

void unmakeWindow(QWidget* widget)
{
    byWindow().erase(widget->winId());
    if (x11::connected() && !widget->isDesktop())
        x11::destroyWindow(widget->winId());
}

} // namespace zeltk

QWidget::QWidget(QWidget* parent, const char* name, WFlags f)
    : QObject(parent, name), QPaintDevice(WidgetDevice), w(nullptr)
{
    if (!qApp)
        qFatal("QWidget: a QApplication is needed before any widget");
    w = new WidgetData;
    zeltk::dataOf(static_cast<QObject*>(this))->isWidget = true;
    w->flags = completed(f, parent);
    widgets().push_back(this);
    zeltk::makeWindow(this, parent);
    if (isTopLevel() || parent->isVisible())
        w->state |= WState_ForceHide;
    if (!isTopLevel() && !parent->isEnabled())
        w->state |= WState_Disabled;
    zeltk::inheritLook(this);
    if (isTopLevel() && !isDesktop())
        zeltk::announce(this);
    zeltk::applyBackground(this);
}

QWidget::~QWidget()
{
    if (isVisible() && !isDesktop())
        hide();
    zeltk::widgetDestroyed(this);
    for (QWidget* other : widgets())
        if (zeltk::dataOf(other)->focusProxy == this)
            zeltk::WidgetAccess::focusProxyDestroyed(other);
    zeltk::deleteChildren(this);
    widgets().erase(std::find(widgets().begin(), widgets().end(), this));
    zeltk::unmakeWindow(this);
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
    return static_cast<QWidget*>(parent());
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

bool QWidget::isEnabledTo(QWidget* ancestor) const
{
    for (const QWidget* widget = this; widget && widget != ancestor; widget = widget->parentWidget(true))
        if (zeltk::dataOf(widget)->selfDisabled)
            return false;
    return true;
}

void QWidget::setEnabled(bool enable)
{
    w->selfDisabled = !enable;
    if (enable && !isTopLevel() && parentWidget() && !parentWidget()->isEnabled())
        return;
    zeltk::setEnabledByParent(this, enable);
}

void QWidget::setDisabled(bool disable)
{
    setEnabled(!disable);
}

namespace zeltk
{

void setEnabledByParent(QWidget* widget, bool enable)
{
    if (widget->isEnabled() == enable || (enable && dataOf(widget)->selfDisabled))
        return;
    if (enable) {
        WidgetAccess::clearState(widget, Qt::WState_Disabled);
    } else {
        WidgetAccess::setState(widget, Qt::WState_Disabled);
        widgetDisabled(widget);
    }
    applyBackground(widget);
    WidgetAccess::enabledChange(widget, !enable);
    for (QWidget* child : childWidgets(widget))
        if (!child->isTopLevel())
            setEnabledByParent(child, enable);
}

} // namespace zeltk

void QWidget::enabledChange(bool)
{
    update();
}

QWidget* QWidget::childAt(int x, int y, bool includeThis) const
{
    if (!rect().contains(x, y))
        return nullptr;
    const std::vector<QWidget*> all = zeltk::childWidgets(this);
    for (auto it = all.rbegin(); it != all.rend(); ++it) {
        QWidget* child = *it;
        if (child->isTopLevel() || child->isHidden() || !child->geometry().contains(x, y))
            continue;
        return child->childAt(x - child->x(), y - child->y(), true);
    }
    return includeThis ? const_cast<QWidget*>(this) : nullptr;
}

QRect QWidget::childrenRect() const
{
    QRect all(0, 0, 0, 0);
    for (const QWidget* child : zeltk::childWidgets(this))
        if (!child->isTopLevel() && !child->isHidden())
            all |= child->geometry();
    return all;
}

QRegion QWidget::childrenRegion() const
{
    QRegion all;
    for (const QWidget* child : zeltk::childWidgets(this))
        if (!child->isTopLevel() && !child->isHidden())
            all |= child->geometry();
    return all;
}
