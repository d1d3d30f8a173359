// What every widget carries.
#ifndef ZELTK_WIDGETDATA_H
#define ZELTK_WIDGETDATA_H

#include <qcursor.h>
#include <qfont.h>
#include <qguardedptr.h>
#include <qpalette.h>
#include <qpixmap.h>
#include <qrect.h>
#include <qregion.h>
#include <qsizepolicy.h>
#include <qwidget.h>

#include "kernel/widgetprivate.h"
#include "x11/connection.h"

#include <memory>
#include <vector>

namespace zeltk
{

// What only windows of their own have.
struct TopLevelData {
    QString caption;
    QString iconText;
    std::unique_ptr<QPixmap> icon;
    // Width of the window manager's frame on each side, and its window.
    int frameLeft = 0;
    int frameTop = 0;
    int frameRight = 0;
    int frameBottom = 0;
    x11::XId frameWindow = 0;
    bool placed = false;    // the program chose the position
    bool described = false; // the window manager knows class, kind and decorations
    unsigned long configureSerial = 0;
    uint windowState = 0;
    QRect normalGeometry; // while maximized or full screen
    QWidget* focusWidget = nullptr;
    std::vector<QWidget*> tabChain;
};

struct WidgetData {
    x11::XId window = 0;
    Qt::WFlags flags = 0;
    Qt::WState state = 0;
    QRect geometry; // without the frame
    QSize minimumSize;
    QSize maximumSize;
    QSize increment;
    QSize baseSize;
    QSizePolicy policy;

    Qt::BackgroundMode mode = Qt::PaletteBackground;
    Qt::BackgroundMode visualMode = Qt::PaletteBackground;
    QWidget::BackgroundOrigin origin = QWidget::WidgetOrigin;
    QColor eraseColor;
    std::unique_ptr<QPixmap> erasePixmap;
    QPalette palette;
    QFont wantedFont; // as given to setFont
    QFont font;       // with what it left open taken from the parent
    bool ownPalette = false;
    bool ownFont = false;
    bool disabledItself = false; // not only by an ancestor
    bool hiddenItself = false;   // the program hid it
    bool plainBackground = true; // the server clears with eraseColor
    bool mapped = false;         // the server has been told to show it

    std::unique_ptr<QCursor> cursor;
    QWidget::FocusPolicy focusPolicy = QWidget::NoFocus;
    QWidget* focusProxy = nullptr;

    QRegion exposed;                  // collected until the last Expose event of a series
    bool keepsOnResize = false;       // the next Expose follows a resize without erasing
    const QRegion* painted = nullptr; // region of the paint event in progress

    std::unique_ptr<TopLevelData> top;
};

struct WidgetAccess {
    static WidgetData* data(const QWidget* widget) { return widget->wd; }
    static void setState(QWidget* widget, Qt::WState bits) { widget->setWState(bits); }
    static void clearState(QWidget* widget, Qt::WState bits) { widget->clearWState(bits); }
    static void setFlags(QWidget* widget, Qt::WFlags bits) { widget->setWFlags(bits); }
    static void paletteChange(QWidget* widget, const QPalette& old) { widget->paletteChange(old); }
    static void fontChange(QWidget* widget, const QFont& old) { widget->fontChange(old); }
    static void enabledChange(QWidget* widget, bool was) { widget->enabledChange(was); }
    static void windowActivationChange(QWidget* widget, bool was) { widget->windowActivationChange(was); }
    static bool focusNextPrevChild(QWidget* widget, bool next) { return widget->focusNextPrevChild(next); }
    static void setBackground(QWidget* widget) { widget->setBackgroundFromMode(); }
    static void hideWindow(QWidget* widget) { widget->hideWindow(); }
    static void showWindow(QWidget* widget) { widget->showWindow(); }
    static void setHandle(QWidget* widget, x11::XId handle) { widget->hd = handle; }
};

inline WidgetData* dataOf(const QWidget* widget)
{
    return WidgetAccess::data(widget);
}

// The children that are widgets, from the lowest to the highest.
std::vector<QWidget*> childWidgets(const QWidget* widget);

// Makes the window of a widget that has none, with default geometry.
void createWidgetWindow(QWidget* widget);
// Makes it fit a new parent and new flags.
void replaceWidgetWindow(QWidget* widget, Qt::WFlags flags);
// Ends the window with all inside it; descendants' windows are forgotten.
void destroyWidgetWindow(QWidget* widget);
// The geometry that new windows have.
QRect defaultGeometry(const QWidget* widget);

// The palette or font that a widget has which sets none itself.
QPalette inheritedPalette(const QWidget* widget);
QFont inheritedFont(const QWidget* widget);
// After a widget got another parent: palette, font, and whether it is enabled.
void inheritAgain(QWidget* widget);

// Sets whether the widget and all inside it are enabled, as they and their ancestors say.
void refreshEnabled(QWidget* widget);

// Describe a top-level window to the window manager.
void describeWindow(QWidget* widget);
void sendSizeHints(QWidget* widget);
void sendWindowHints(QWidget* widget);

// What the server clears the widget's window with.
void applyBackground(QWidget* widget);
// The cursor that the widget's window shows.
void applyCursor(QWidget* widget);
// Whether an event may be painted now.
bool mayPaint(const QWidget* widget);

} // namespace zeltk

#endif
