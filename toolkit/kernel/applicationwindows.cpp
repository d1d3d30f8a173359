// QApplication: all widgets and windows.
#include <qapplication.h>

#include "kernel/applicationdata.h"
#include "kernel/applicationprivate.h"
#include "kernel/widgetdata.h"
#include "x11/window.h"

#include <qwidgetlist.h>

#include <algorithm>

using zeltk::application;
using zeltk::ApplicationData;
namespace x11 = zeltk::x11;

QWidgetList* QApplication::allWidgets()
{
    QWidgetList* list = new QWidgetList;
    for (QWidget* widget : zeltk::everyWidget())
        list->append(widget);
    return list;
}

QWidgetList* QApplication::topLevelWidgets()
{
    QWidgetList* list = new QWidgetList;
    for (QWidget* widget : zeltk::everyWidget())
        if (widget->isTopLevel())
            list->append(widget);
    return list;
}

QDesktopWidget* QApplication::desktop()
{
    ApplicationData* app = application();
    if (!app->desktop)
        app->desktop = new QDesktopWidget;
    return app->desktop;
}

QWidget* QApplication::activePopupWidget()
{
    return application()->popups.empty() ? nullptr : application()->popups.back();
}

QWidget* QApplication::activeModalWidget()
{
    return application()->modals.empty() ? nullptr : application()->modals.back();
}

QWidget* QApplication::focusWidget() const
{
    return application()->focus;
}

QWidget* QApplication::activeWindow() const
{
    return application()->active;
}

QWidget* QApplication::widgetAt(int x, int y, bool child)
{
    QWidget* widget = QWidget::find(x11::windowAt(x, y));
    return widget && !child ? widget->topLevelWidget() : widget;
}

QWidget* QApplication::widgetAt(const QPoint& pos, bool child)
{
    return widgetAt(pos.x(), pos.y(), child);
}

void QApplication::closeAllWindows()
{
    for (QWidget* widget : std::vector<QWidget*>(zeltk::everyWidget())) {
        const std::vector<QWidget*>& left = zeltk::everyWidget();
        if (std::find(left.begin(), left.end(), widget) == left.end() || !widget->isTopLevel() ||
            widget->isHidden() || widget->isDesktop())
            continue;
        if (!widget->close())
            return;
    }
}

namespace zeltk
{

void windowClosed(bool wasMainWidget)
{
    if (wasMainWidget && qApp)
        qApp->quit();
    for (const QWidget* widget : everyWidget())
        if (widget->isTopLevel() && !widget->isHidden() && !widget->isDesktop() && !widget->isPopup())
            return;
    if (qApp)
        ApplicationAccess::emitLastWindowClosed();
}

} // namespace zeltk
