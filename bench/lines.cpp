// A line of the toolkit's painter beside a line of Xlib.
#include <qapplication.h>
#include <qpainter.h>
#include <qpixmap.h>

#include "measure.h"

#include "charts.h"

namespace
{

const int columns = 900;
const int height = 100;

void measurePainter(benchmark::State& state, Display* display)
{
    QPixmap picture(columns, height);
    QPainter painter(&picture);
    painter.setPen(Qt::blue);
    int x = 0;
    measureRounds(
        state, display, columns,
        [&] {
            painter.drawLine(x, 40, x, 44);
            x = x + 1 < columns ? x + 1 : 0;
        },
        [] { QApplication::syncX(); });
}

void measureXlib(benchmark::State& state, Display* display)
{
    const int screen = DefaultScreen(display);
    const Pixmap picture =
        XCreatePixmap(display, DefaultRootWindow(display), columns, height, DefaultDepth(display, screen));
    const GC gc = XCreateGC(display, picture, 0, nullptr);
    int x = 0;
    measureRounds(
        state, display, columns,
        [&] {
            XDrawLine(display, picture, gc, x, 40, x, 44);
            x = x + 1 < columns ? x + 1 : 0;
        },
        [=] { XSync(display, False); });
    XFreeGC(display, gc);
    XFreePixmap(display, picture);
}

} // namespace

void registerLines(Display* display)
{
    benchmark::RegisterBenchmark("line/toolkit", measurePainter, display)->Iterations(200)->UseRealTime();
    benchmark::RegisterBenchmark("line/xlib", measureXlib, display)->Iterations(200)->UseRealTime();
}
