// What the clickable widgets share: the state of pointer and button over them, and where a click counts.
#ifndef HOVERPRESS_H
#define HOVERPRESS_H

#include <qwidget.h>

// The bits of a clickable widget's state.
const unsigned int HoverState = 1; // the pointer is over the widget
const unsigned int PressState = 2; // the left button went down on the widget and is still held

// True for every position from (0, 0) to the widget's last pixel.
inline bool insideWidget(const QWidget* widget, const QPoint& position)
{
    return position.x() >= 0 && position.y() >= 0 && position.x() < widget->width() &&
           position.y() < widget->height();
}

#endif
