// What the event dispatcher tells a widget of news from the X server.
#ifndef ZELTK_WIDGETPRIVATE_H
#define ZELTK_WIDGETPRIVATE_H

#include <qrect.h>
#include <qregion.h>

class QWidget;

namespace zeltk {

// The server lost this part of the window (widget coordinates); it is painted now. `more` is the number of
// Expose events that follow for the same window: they are collected and painted with the last.
void windowExposed(QWidget* widget, const QRect& rect, int more);
// The geometry of a top-level window has changed, by us or by the window manager. Position in root
// coordinates, of the client area.
void windowConfigured(QWidget* topLevel, const QRect& clientGeometry);
void windowMapped(QWidget* topLevel);
void windowUnmapped(QWidget* topLevel);
// The window manager wrapped the window in a frame, or took it out again.
void windowReparented(QWidget* topLevel);

} // namespace zeltk

#endif
