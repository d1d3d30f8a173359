// What every widget carries, and what the parts of the kernel tell each other of widgets.
#ifndef ZELTK_WIDGETDATA_H
#define ZELTK_WIDGETDATA_H

#include <qguardedptr.h>
#include <qpixmap.h>
#include <qwidget.h>

#include <algorithm>
#include <vector>

class QLayout;

namespace zeltk
{

struct WidgetData {
    WState state = 0;
    WFlags flags = 0;
    WId window = 0; // also while painters on the widget draw elsewhere

    QRect rect;  // in the parent; of windows on the screen, without the window manager's frame
    QRect frame; // of windows, with it
    QSize minimum = QSize(0, 0);
    QSize maximum = QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    QSize step = QSize(0, 0);
    QSize base = QSize(0, 0);
    QSizePolicy policy = QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    QLayout* layout = nullptr;
    bool placed = false;               // the program chose the place
    bool mapped = false;               // the server was told to show the window
    bool takenAway = false;            // by the window manager, after the program had shown it
    bool frameMayGrow = false;         // it was put into a frame and not mapped there yet
    unsigned long configureSerial = 0; // the latest change of the geometry that the server was told of

    QPalette palette;
    bool ownPalette = false;
    QFont font;
    QFont askedFont; // the widget's own wishes
    bool ownFont = false;
    bool selfDisabled = false; // not only through the parent
    bool selfHidden = false;   // by the program
    QCursor* cursor = nullptr;

    Qt::BackgroundMode mode = Qt::PaletteBackground;
    Qt::BackgroundMode visualMode = Qt::PaletteBackground;
    QColor background;            // what erase() paints
    bool plainBackground = false; // the server has been told this colour
    QPixmap* backgroundPixmap = nullptr;
    QWidget::BackgroundOrigin origin = QWidget::WidgetOrigin;

    bool painting = false;
    QRegion paintRegion;
    QRegion exposed;                   // until the last Expose event of a series
    unsigned long repaintedSerial = 0; // older Expose events are void

    QWidget::FocusPolicy focusPolicy = QWidget::NoFocus;
    QWidget* focusProxy = nullptr;
    bool dying = false;             // its destructor runs
    bool isFocusProxy = false;      // of another widget
    std::vector<QWidget*> tabOrder; // of a window
    QWidget* focus = nullptr;       // in a window, also while it is not active

    QString caption;
    QString iconText;
    QPixmap* icon = nullptr;
    bool described = false; // the window manager has been told all about the window
    uint windowState = 0;
    QRect normalRect; // before it became large
};

struct WidgetAccess {
    static WidgetData* data(const QWidget* widget) { return widget->w; }
    static void setState(QWidget* widget, WState s) { widget->w->state |= s; }
    static void clearState(QWidget* widget, WState s) { widget->w->state &= ~s; }
    static bool focusNextPrev(QWidget* widget, bool next) { return widget->focusNextPrevChild(next); }
    static void paletteChange(QWidget* widget, const QPalette& old) { widget->paletteChange(old); }
    static void fontChange(QWidget* widget, const QFont& old) { widget->fontChange(old); }
    static void enabledChange(QWidget* widget, bool old) { widget->enabledChange(old); }
    static void activationChange(QWidget* widget, bool old) { widget->windowActivationChange(old); }
    // Where its painters draw: on the window, or for a while on something else.
    static void setWinId(QWidget* widget, WId id) { widget->hd = id; }
    static void focusProxyDestroyed(QWidget* widget) { widget->focusProxyDestroyed(); }
};

inline WidgetData* dataOf(const QWidget* widget)
{
    return WidgetAccess::data(widget);
}

// The children that are widgets.
std::vector<QWidget*> childWidgets(const QWidget* widget);
// The same, for telling them something: who hears of it may delete any.
std::vector<QGuardedPtr<QWidget>> guardedChildren(const QWidget* widget);
// Takes the widget out of a list.
inline void forget(std::vector<QWidget*>* list, QWidget* widget)
{
    list->erase(std::remove(list->begin(), list->end(), widget), list->end());
}
// All widgets, in the order of their creation.
const std::vector<QWidget*>& everyWidget();

// Palette and font of a new or moved widget, from its parent or the application.
void inheritLook(QWidget* widget);
void inheritFont(QWidget* widget);
// What the program set for a class that the widget inherits; null if there is none.
const QPalette* classPalette(const QWidget* widget);
const QFont* classFont(const QWidget* widget);
// Whether the background comes from a role of the palette.
bool isPaletteMode(Qt::BackgroundMode mode);
// Sets the window's background from its mode and colours.
void applyBackground(QWidget* widget);
void applyCursor(QWidget* widget);
// For a widget on its way to that parent: gives it the flags and the geometry of a new one. Its window is
// inside of nobody's until putWindowIn(): with a parent who dies meanwhile goes every window in it.
void takeWindowOut(QWidget* widget, const QWidget* parent, Qt::WFlags flags);
// Without a parent it becomes a window of its own.
void putWindowIn(QWidget* widget, const QWidget* parent);
// Tell the window manager all it may know; once it knows, only what changed.
void describeWindow(QWidget* window);
void applySizeHints(QWidget* window);
void applyWindowHints(QWidget* window);

// Everything inside of a widget that is hidden becomes invisible with it.
void hideChildren(QWidget* widget);
// Unmaps the window, which the window manager then no longer knows.
void hideWindow(QWidget* widget);
// A popup or modal widget keeps input from nobody any more.
void leavePopupOrModal(QWidget* widget);
// Enables or disables the widget and all inside it, as they and their ancestors say.
void refreshEnabled(QWidget* widget);
// Sends the paint event, wherever the widget's painters draw at the moment.
void deliverPaint(QWidget* widget, const QRegion& region, bool erased);

// News from the X server.
void windowExposed(QWidget* widget, const QRect& rect, int more);
void windowConfigured(QWidget* window, const QRect& rect);
void windowReparented(QWidget* window);
void windowMapped(QWidget* window);
void windowUnmapped(QWidget* window);
void windowIconicChanged(QWidget* window);
// A queued paint event is delivered.
void repaintPosted(QWidget* widget, const QRegion& region, bool erase);

} // namespace zeltk

#endif
