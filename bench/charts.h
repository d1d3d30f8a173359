#ifndef BENCH_CHARTS_H
#define BENCH_CHARTS_H

#include <X11/Xlib.h>

// ZelGraph beside a chart by hand. False if the two do not make the same picture.
bool registerCharts(Display* display);
// QPainter::drawLine beside XDrawLine.
void registerLines(Display* display);

#endif
