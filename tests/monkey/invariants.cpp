#include "invariants.h"

#include "messages.h"
#include "witness.h"
#include "world.h"
#include "xinput.h"

#include <qapplication.h>
#include <qlineedit.h>
#include <qlistbox.h>
#include <qcombobox.h>
#include <qobjectlist.h>
#include <qscrollbar.h>
#include <qwidgetlist.h>

#include <X11/Xlib.h>

#include <algorithm>

namespace
{

std::string nameOf(const QWidget* widget)
{
    return std::string(widget->className()) + " " + widget->name();
}

// The monkey's, what they are made of, and what the toolkit made for itself. The desktop is the server's.
std::vector<const QWidget*> allWidgets()
{
    std::vector<const QWidget*> widgets;
    QWidgetList* all = QApplication::allWidgets();
    for (QWidgetListIt it(*all); it.current(); ++it)
        if (!it.current()->isDesktop())
            widgets.push_back(it.current());
    delete all;
    return widgets;
}

// Pointers that the application keeps must be widgets that exist.
bool exists(const QWidget* widget)
{
    const std::vector<const QWidget*> all = allWidgets();
    return std::find(all.begin(), all.end(), widget) != all.end();
}

std::string brokenFocus()
{
    if (const QWidget* focus = qApp->focusWidget()) {
        if (!exists(focus))
            return "the focus widget does not exist";
        if (!focus->isEnabled())
            return nameOf(focus) + " has the focus and is disabled";
        if (focus->topLevelWidget()->focusWidget() != focus)
            return nameOf(focus) + " has the focus and its window does not know";
    }
    if (const QWidget* active = qApp->activeWindow()) {
        if (!exists(active))
            return "the active window does not exist";
        if (!active->isTopLevel())
            return nameOf(active) + " is the active window and no window";
    }
    const QWidget* popup = QApplication::activePopupWidget();
    if (popup && (!exists(popup) || !popup->isVisible()))
        return "the active popup is not there";
    const QWidget* modal = QApplication::activeModalWidget();
    if (modal && (!exists(modal) || !modal->isVisible()))
        return "the modal window is not there";
    for (const QWidget* grabber : {QWidget::mouseGrabber(), QWidget::keyboardGrabber()})
        if (grabber && !exists(grabber))
            return "a grabber does not exist";
    return std::string();
}

std::string brokenRange(const QWidget* widget)
{
    if (widget->inherits("QScrollBar")) {
        const QScrollBar* bar = static_cast<const QScrollBar*>(widget);
        if (bar->minValue() > bar->maxValue() || bar->value() < bar->minValue() ||
            bar->value() > bar->maxValue())
            return nameOf(widget) + ": the value is outside of the range";
    } else if (widget->inherits("QLineEdit")) {
        const QLineEdit* edit = static_cast<const QLineEdit*>(widget);
        const int length = static_cast<int>(edit->text().length());
        if (edit->cursorPosition() < 0 || edit->cursorPosition() > length)
            return nameOf(widget) + ": the cursor is outside of the text";
        if (edit->hasSelectedText() &&
            (edit->selectionStart() < 0 ||
             edit->selectionStart() + static_cast<int>(edit->selectedText().length()) > length))
            return nameOf(widget) + ": the selection is outside of the text";
    } else if (widget->inherits("QListBox")) {
        const QListBox* box = static_cast<const QListBox*>(widget);
        if (box->currentItem() < -1 || box->currentItem() >= static_cast<int>(box->count()))
            return nameOf(widget) + ": the current item does not exist";
    } else if (widget->inherits("QComboBox")) {
        const QComboBox* box = static_cast<const QComboBox*>(widget);
        if (box->currentItem() < -1 || box->currentItem() > box->count())
            return nameOf(widget) + ": the current item does not exist";
    }
    return std::string();
}

bool isChild(const QWidget* widget, const QWidget* parent)
{
    QObjectList* children = const_cast<QObjectList*>(parent->children());
    return children && children->findRef(widget) >= 0;
}

std::string brokenTree(const QWidget* widget)
{
    if (widget->width() < 1 || widget->height() < 1)
        return nameOf(widget) + " has no size";
    const QWidget* parent = widget->parentWidget();
    if (parent && !isChild(widget, parent))
        return nameOf(widget) + " is no child of its parent";
    if (parent && !widget->isTopLevel()) {
        if (widget->isVisible() && !parent->isVisible())
            return nameOf(widget) + " is visible and its parent is not";
        if (widget->isEnabled() && !parent->isEnabled())
            return nameOf(widget) + " is enabled and its parent is not";
    } else if (!widget->isTopLevel()) {
        return nameOf(widget) + " has no parent and is no window";
    }
    if (QWidget::find(widget->winId()) != widget)
        return nameOf(widget) + " is not found by its window";
    return std::string();
}

} // namespace

// What the toolkit says about arguments that make no sense.
static bool isAnswerToArguments(const std::string& message)
{
    static const char* const answers[] = {"out of range",    "Sizes reach from", "Invalid cursor shape",
                                          "own focus proxy", "minValue",         "Point size <= 0",
                                          "Pixel size <= 0"};
    for (const char* answer : answers)
        if (message.find(answer) != std::string::npos)
            return true;
    return false;
}

std::string brokenInvariant(World& world)
{
    for (const std::string& message : testMessages())
        if (!isAnswerToArguments(message))
            return "message: " + message;
    testMessages().clear();
    std::string broken = brokenFocus();
    for (const QWidget* widget : allWidgets()) {
        if (broken.empty())
            broken = brokenTree(widget);
        if (broken.empty())
            broken = brokenRange(widget);
    }
    for (const QWidget* widget : world.widgets())
        if (broken.empty())
            broken = world.witness->broken(widget);
    return broken;
}

// What lies outside of the 16 bits of the protocol stays at their ends.
static int atServer(int coordinate)
{
    return std::min(std::max(coordinate, -32768), 32767);
}

static std::string differenceOf(const QWidget* widget)
{
    XWindowAttributes there;
    if (!XGetWindowAttributes(xinput::display(), widget->winId(), &there))
        return nameOf(widget) + " has no window at the server";
    if (there.width != widget->width() || there.height != widget->height())
        return nameOf(widget) + " is " + std::to_string(widget->width()) + "x" +
               std::to_string(widget->height()) + " and at the server " + std::to_string(there.width) + "x" +
               std::to_string(there.height);
    if (!widget->isTopLevel() && (there.x != atServer(widget->x()) || there.y != atServer(widget->y())))
        return nameOf(widget) + " is at " + std::to_string(widget->x()) + "," + std::to_string(widget->y()) +
               " and at the server at " + std::to_string(there.x) + "," + std::to_string(there.y);
    if ((there.map_state == IsViewable) != widget->isVisible())
        return nameOf(widget) + (widget->isVisible() ? " is visible but not" : " is hidden but viewable") +
               " at the server";
    return std::string();
}

std::string differenceFromServer()
{
    for (const QWidget* widget : allWidgets()) {
        const std::string difference = differenceOf(widget);
        if (!difference.empty())
            return difference;
    }
    return std::string();
}
