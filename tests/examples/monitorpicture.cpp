// monitor-picture FILE: writes a picture (PNG) of the monitor after some minutes on a busy machine.
#include "examplemachine.h"
#include "faketime.h"
#include "monitorwindow.h"
#include "waiting.h"

#include <qapplication.h>
#include <qpixmap.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace
{

// From 0 to 1, the same in every run.
double chance()
{
    static unsigned state = 12345;
    state = state * 1664525u + 1013904223u;
    return (state >> 8) / 16777216.0;
}

// What a machine does that builds programs: work in phases, files that come and go.
void passSecond(ExampleMachine& machine, int second)
{
    const bool building = second / 45 % 2 == 1;
    const bool loading = second % 70 > 48;
    const double processor = building ? 0.72 + 0.25 * chance() : 0.06 + 0.12 * chance() * chance();
    const double memory = 0.42 + 0.1 * std::sin(second / 40.0) + (building ? 0.002 * (second % 45) : 0);
    const double bytes = loading ? 3e6 * (0.6 + 0.4 * chance()) : 2e5 * chance() * chance();
    const double disk = building ? 0.5 * chance() * chance() + 0.1 : 0.08 * chance();
    machine.pass(1000, processor, memory, static_cast<long long>(bytes), std::min(disk, 1.0));
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: monitor-picture FILE\n");
        return 2;
    }
    ExampleMachine machine;
    FakeTime clock(1000000);
    MonitorWindow window(machine.folder());
    showAndWait(&window);
    long long now = 1LL << 50; // far ahead of the clock that the window reads itself
    for (int second = 0; second < 300; ++second) {
        passSecond(machine, second);
        clock.advance(1);
        window.sampleAt(now += 1000);
    }
    settle();
    if (!QPixmap::grabWindow(window.winId()).save(argv[1], "PNG")) {
        std::fprintf(stderr, "monitor-picture: cannot write %s\n", argv[1]);
        return 1;
    }
    return 0;
}
