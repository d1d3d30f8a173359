// The strip chart of the benchmarks written by hand on Xlib: the same picture as ZelGraph, made the same way.
#ifndef HANDCHART_H
#define HANDCHART_H

#include <vector>

#include <X11/Xlib.h>

class HandChart
{
public:
    // A chart of that size inside of its frame, in a window of its own, full of samples of 0.
    HandChart(Display* display, int width, int height, bool bars);
    ~HandChart();

    // Takes in a sample between 0 and 100.
    void store(int value);
    // The same, and paints.
    void setValue(int value);

    Window window() const { return m_window; }

private:
    GC colour(unsigned long pixel);
    void paint();
    void drawFrame();
    void drawGrid(Pixmap picture);
    void drawHistory(Pixmap picture);
    int rowOf(double value) const;

    Display* m_display;
    int m_width;
    int m_height;
    bool m_bars;
    Window m_window;
    GC m_ground;
    GC m_grid;
    GC m_curve;
    GC m_light;
    GC m_dark;
    std::vector<double> m_history;
    size_t m_next = 0;
};

#endif
