// What a scroll bar keeps.
#ifndef ZELTK_SCROLLBARDATA_H
#define ZELTK_SCROLLBARDATA_H

#include <qtimer.h>

namespace zeltk
{

struct ScrollBarData {
    enum Part { Nothing, LineBack, LineForward, PageBack, PageForward, Slider };

    Qt::Orientation orientation = Qt::Vertical;
    bool tracking = true;
    int sliderStart = 0;
    Part pressed = Nothing;
    bool inside = false;  // the pointer is still on the pressed part
    int grabbedAt = 0;    // from the slider's start
    int pointer = 0;      // along the bar
    bool repeats = false; // after the first wait
    QTimer repeatTimer;
    int wheelRest = 0; // what was too little for a step
};

} // namespace zeltk

#endif
