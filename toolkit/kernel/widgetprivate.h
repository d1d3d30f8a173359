// What the event dispatcher tells a widget of news from the X server.
#ifndef ZELTK_WIDGETPRIVATE_H
#define ZELTK_WIDGETPRIVATE_H

#include <qrect.h>
#include <qregion.h>

#include <vector>

class QWidget;

namespace zeltk
{

// The server lost this part of the window (widget coordinates); it is painted now. `more` is the number of
// Expose events that follow for the same window: they are collected and painted with the last.
void windowExposed(QWidget* widget, const QRect& rect, int more);
// The geometry of a top-level window has changed, by us or by the window manager. Position in root
// coordinates, of the client area.
// `serial` is the number of the last request that the server had carried out: news older than our own latest
// change of the geometry are dropped.
void windowConfigured(QWidget* topLevel, const QRect& clientGeometry, unsigned long serial);
void windowMapped(QWidget* topLevel);
void windowUnmapped(QWidget* topLevel);
// The window manager wrapped the window in a frame, or took it out again.
void windowReparented(QWidget* topLevel);
// All widgets, in no order.
std::vector<QWidget*> allWidgets();
// The application's palette or font has changed: widgets without one of their own take it.
void applicationPaletteChanged();
void applicationFontChanged();

} // namespace zeltk

#endif
