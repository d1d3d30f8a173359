// What a painter must know of the widget it is opened on. The kernel answers; painting only asks, because
// it stands below the kernel.
#ifndef ZELTK_WIDGETPAINTSTATE_H
#define ZELTK_WIDGETPAINTSTATE_H

#include <qcolor.h>
#include <qfont.h>
#include <qpoint.h>
#include <qregion.h>

class QPaintDevice;
class QWidget;

namespace zeltk
{

struct WidgetPaintState {
    QFont font;
    QColor foreground;  // the pen a painter starts with
    QColor background;  // what OpaqueMode fills with
    QPoint brushOrigin; // from the background origin
    bool unclipped;     // WPaintUnclipped: children are painted over
    bool painting;      // a paint event is being delivered to this widget
    QRegion eventClip;  // its region, in widget coordinates, when painting
    bool wholeWidget;   // the region is all of the widget, so that clipping is not needed
};

// Fills in the state of a widget, which is given as the one or the other; the kernel sets this, it is null
// before.
typedef void (*WidgetPaintStateFunction)(const QPaintDevice* device, const QWidget* widget,
                                         WidgetPaintState* state);
extern WidgetPaintStateFunction widgetPaintState;

} // namespace zeltk

#endif
