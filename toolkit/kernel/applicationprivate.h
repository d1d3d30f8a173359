// What the rest of the kernel tells the application about widgets. The application keeps the focus, the
// active window, popups, modal widgets, grabs and the widget under the pointer.
#ifndef ZELTK_APPLICATIONPRIVATE_H
#define ZELTK_APPLICATIONPRIVATE_H

class QObject;
class QWidget;

namespace zeltk
{

// Called when the first styled widget comes into being: the default style then adjusts the application
// palette (Light, Highlight, HighlightedText). Cheap when it has happened already.
void ensureStyled();

// QWidget's show and hide, after the window was mapped and before it is unmapped.
void popupShown(QWidget* popup);
void popupHidden(QWidget* popup);
// Popups that belong to somebody in a widget that was hidden do not stay.
void hidePopupsOf(QWidget* hidden);
void modalShown(QWidget* modal);
void modalHidden(QWidget* modal);
// True if a modal widget or popup keeps input from this widget.
bool blockedByModal(QWidget* widget);

// After the close event of a window was accepted and it was hidden.
void windowClosed(bool wasMainWidget);

// A widget is hidden, disabled or dies: focus, grabs and hover move on.
void widgetHidden(QWidget* widget);
void widgetDisabled(QWidget* widget);
void widgetDestroyed(QWidget* widget);
// A widget is about to get another parent. Who leaves the window leaves the focus and the Tab order, too.
void widgetLeavesPlace(QWidget* widget, bool leavesWindow);

// Removes what is queued for an object that dies.
void removePostedEvents(QObject* receiver);
// Removes the news of a child that its parent has not heard of yet.
void removePostedChildEvents(QObject* parent, QObject* child);
bool hasPostedEvents();

} // namespace zeltk

#endif
