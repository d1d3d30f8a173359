// Windows that keep input from others: popups and modal windows.
#include "kernel/applicationdata.h"
#include "kernel/applicationprivate.h"
#include "kernel/dispatch.h"
#include "kernel/widgetdata.h"
#include "x11/events.h"
#include "x11/input.h"

#include <qguardedptr.h>

#include <vector>

namespace zeltk
{

// The first popup takes pointer and keyboard, so that it hears of clicks beside it.
void popupShown(QWidget* popup)
{
    ApplicationData* app = application();
    app->popups.push_back(popup);
    app->pressed = nullptr;
    if (app->popups.size() == 1) {
        x11::grabPointer(popup->winId(), 0, true, x11::lastTime());
        x11::grabKeyboard(popup->winId(), x11::lastTime());
    }
    moveFocus(popup->focusWidget(), QFocusEvent::Popup);
}

void popupHidden(QWidget* popup)
{
    ApplicationData* app = application();
    forget(&app->popups, popup);
    if (!app->popups.empty()) {
        moveFocus(app->popups.back()->focusWidget(), QFocusEvent::Popup);
        return;
    }
    x11::ungrabPointer(x11::lastTime());
    x11::ungrabKeyboard(x11::lastTime());
    if (app->active)
        moveFocus(dataOf(app->active)->focus, QFocusEvent::Popup);
}

void hidePopupsOf(QWidget* hidden)
{
    std::vector<QGuardedPtr<QWidget>> popups;
    for (QWidget* popup : application()->popups)
        if (popup != hidden && isInside(popup, hidden) && !popup->parentWidget()->isVisible())
            popups.emplace_back(popup);
    for (const QGuardedPtr<QWidget>& popup : popups)
        if (popup)
            popup->hide();
}

void modalShown(QWidget* modal)
{
    const QGuardedPtr<QWidget> alive(modal);
    leaveHovered();
    if (!alive || !alive->isVisible())
        return;
    application()->modals.push_back(modal);
    application()->pressed = nullptr;
}

void modalHidden(QWidget* modal)
{
    forget(&application()->modals, modal);
}

// What belongs to the modal window, and popups, stay open to the user.
bool blockedByModal(QWidget* widget)
{
    const QWidget* modal = QApplication::activeModalWidget();
    return modal && !widget->topLevelWidget()->isPopup() && !isInside(widget, modal);
}

} // namespace zeltk
