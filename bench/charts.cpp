// ZelGraph beside the chart by hand.
// Xlib's macros would spoil other headers, so it comes last.
#include <qapplication.h>
#include <zelgraph.h>

#include <memory>

#include "xtraffic.h"

#include "measure.h"

#include "charts.h"
#include "handchart.h"

#include <X11/Xutil.h>

namespace
{

struct Shape {
    int width;
    int height;
    bool bars;
    std::string name() const
    {
        return std::to_string(width) + "x" + std::to_string(height) + (bars ? "/bars" : "/curve");
    }
};

// Between 0 and 100, as the load of a processor goes.
int sampleAt(int time)
{
    const int slow = time % 200 < 100 ? time % 100 : 100 - time % 100;
    return (slow * 80 + time * 7919 % 21 * 100) / 100;
}

std::unique_ptr<ZelGraph> shownGraph(const Shape& shape)
{
    auto graph = std::make_unique<ZelGraph>();
    graph->setGraphParameters(0, 100, 10, 10, shape.bars, false, false, QColor(0, 0, 0), QColor(0, 0, 220),
                              QColor(0, 150, 0));
    graph->setGeometry(0, 0, shape.width + 2, shape.height + 2);
    graph->show();
    QApplication::syncX();
    qApp->processEvents();
    return graph;
}

// Fills the history without painting each sample.
void fill(ZelGraph* graph, const Shape& shape)
{
    graph->setUpdatesEnabled(false);
    for (int i = 0; i < shape.width; ++i)
        graph->setValue(sampleAt(i));
    graph->setUpdatesEnabled(true);
}

void fill(HandChart* chart, const Shape& shape)
{
    for (int i = 0; i < shape.width; ++i)
        chart->store(sampleAt(i));
}

template <class Chart, class Flush, class Wait>
void measureChart(benchmark::State& state, Display* display, Chart* chart, int first, Flush flush, Wait wait)
{
    int time = first;
    const auto step = [&] { chart->setValue(sampleAt(time++)); };
    step();
    flush();
    const XTraffic before = sentToX();
    step();
    flush();
    const XTraffic sample = sentToX() - before;
    state.counters["requests"] = double(sample.requests);
    state.counters["bytes"] = double(sample.bytes);
    wait();
    measureRounds(state, display, 20, step, wait);
}

void measureGraph(benchmark::State& state, Display* display, const Shape& shape)
{
    const auto graph = shownGraph(shape);
    fill(graph.get(), shape);
    measureChart(
        state, display, graph.get(), shape.width, [] { QApplication::flushX(); },
        [] { QApplication::syncX(); });
}

void measureByHand(benchmark::State& state, Display* display, const Shape& shape)
{
    HandChart chart(display, shape.width, shape.height, shape.bars);
    fill(&chart, shape);
    measureChart(
        state, display, &chart, shape.width, [=] { XFlush(display); }, [=] { XSync(display, False); });
}

bool samePicture(Display* display, const Shape& shape)
{
    const auto graph = shownGraph(shape);
    HandChart chart(display, shape.width, shape.height, shape.bars);
    fill(graph.get(), shape);
    fill(&chart, shape);
    const auto pictureOf = [&](Window window) {
        XRaiseWindow(display, window);
        XImage* image =
            XGetImage(display, window, 0, 0, shape.width + 2, shape.height + 2, AllPlanes, ZPixmap);
        const std::string pixels(image->data, size_t(image->bytes_per_line) * image->height);
        XDestroyImage(image);
        return pixels;
    };
    XRaiseWindow(display, graph->winId());
    XSync(display, False);
    graph->setValue(sampleAt(shape.width));
    QApplication::syncX();
    const std::string one = pictureOf(graph->winId());
    XRaiseWindow(display, chart.window());
    chart.setValue(sampleAt(shape.width));
    return one == pictureOf(chart.window());
}

} // namespace

bool registerCharts(Display* display)
{
    for (const auto& size : {std::make_pair(200, 100), std::make_pair(800, 200), std::make_pair(1600, 400)})
        for (const bool bars : {false, true}) {
            const Shape shape = {size.first, size.second, bars};
            if (!samePicture(display, shape)) {
                std::fprintf(stderr, "%s: the pictures of the two charts differ\n", shape.name().c_str());
                return false;
            }
            const std::string name = shape.name();
            benchmark::RegisterBenchmark((name + "/toolkit").c_str(), measureGraph, display, shape)
                ->Iterations(2)
                ->UseRealTime();
            benchmark::RegisterBenchmark((name + "/xlib").c_str(), measureByHand, display, shape)
                ->Iterations(2)
                ->UseRealTime();
        }
    return true;
}
