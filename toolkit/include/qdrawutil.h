// Bevels and frames.
#ifndef QDRAWUTIL_H
#define QDRAWUTIL_H

#include <qbrush.h>
#include <qnamespace.h>
#include <qrect.h>

class QColorGroup;
class QPainter;
class QPoint;

//! All of these leave the painter's pen and brush as they find them. Light comes from the upper left. `fill`
//! may be null: the inside stays untouched then.

//! A horizontal or vertical groove (sunken) or ridge.
Q_EXPORT void qDrawShadeLine(QPainter* p, int x1, int y1, int x2, int y2, const QColorGroup& group,
                             bool sunken = true, int lineWidth = 1, int midLineWidth = 0);
Q_EXPORT void qDrawShadeLine(QPainter* p, const QPoint& p1, const QPoint& p2, const QColorGroup& group,
                             bool sunken = true, int lineWidth = 1, int midLineWidth = 0);
//! A groove or ridge around.
Q_EXPORT void qDrawShadeRect(QPainter* p, int x, int y, int w, int h, const QColorGroup& group,
                             bool sunken = false, int lineWidth = 1, int midLineWidth = 0,
                             const QBrush* fill = 0);
Q_EXPORT void qDrawShadeRect(QPainter* p, const QRect& r, const QColorGroup& group, bool sunken = false,
                             int lineWidth = 1, int midLineWidth = 0, const QBrush* fill = 0);
//! An area that stands out or is sunken.
Q_EXPORT void qDrawShadePanel(QPainter* p, int x, int y, int w, int h, const QColorGroup& group,
                              bool sunken = false, int lineWidth = 1, const QBrush* fill = 0);
Q_EXPORT void qDrawShadePanel(QPainter* p, const QRect& r, const QColorGroup& group, bool sunken = false,
                              int lineWidth = 1, const QBrush* fill = 0);
//! Two-pixel panels with a finer shade.
Q_EXPORT void qDrawWinButton(QPainter* p, int x, int y, int w, int h, const QColorGroup& group,
                             bool sunken = false, const QBrush* fill = 0);
Q_EXPORT void qDrawWinButton(QPainter* p, const QRect& r, const QColorGroup& group, bool sunken = false,
                             const QBrush* fill = 0);
Q_EXPORT void qDrawWinPanel(QPainter* p, int x, int y, int w, int h, const QColorGroup& group,
                            bool sunken = false, const QBrush* fill = 0);
Q_EXPORT void qDrawWinPanel(QPainter* p, const QRect& r, const QColorGroup& group, bool sunken = false,
                            const QBrush* fill = 0);
//! A frame of one colour.
Q_EXPORT void qDrawPlainRect(QPainter* p, int x, int y, int w, int h, const QColor& color, int lineWidth = 1,
                             const QBrush* fill = 0);
Q_EXPORT void qDrawPlainRect(QPainter* p, const QRect& r, const QColor& color, int lineWidth = 1,
                             const QBrush* fill = 0);

#endif
