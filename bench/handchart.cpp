#include "handchart.h"

namespace
{

XSegment segment(int x1, int y1, int x2, int y2)
{
    return {static_cast<short>(x1), static_cast<short>(y1), static_cast<short>(x2), static_cast<short>(y2)};
}

} // namespace

HandChart::HandChart(Display* display, int width, int height, bool bars)
    : m_display(display), m_width(width), m_height(height), m_bars(bars), m_history(width, 0.0)
{
    m_window = XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, width + 2, height + 2, 0, 0, 0);
    XSetWindowBackgroundPixmap(display, m_window, None);
    XSelectInput(display, m_window, ExposureMask);
    XMapWindow(display, m_window);
    XEvent event;
    XWindowEvent(display, m_window, ExposureMask, &event);
    m_ground = colour(0x000000);
    m_grid = colour(0x009600);
    m_curve = colour(0x0000dc);
    m_light = colour(0xececec);
    m_dark = colour(0x808080);
}

HandChart::~HandChart()
{
    for (const GC gc : {m_ground, m_grid, m_curve, m_light, m_dark})
        XFreeGC(m_display, gc);
    XDestroyWindow(m_display, m_window);
    XSync(m_display, False);
}

GC HandChart::colour(unsigned long pixel)
{
    XGCValues values;
    values.foreground = pixel;
    values.graphics_exposures = False;
    return XCreateGC(m_display, m_window, GCForeground | GCGraphicsExposures, &values);
}

void HandChart::store(int value)
{
    m_history[m_next] = value;
    m_next = (m_next + 1) % m_history.size();
}

void HandChart::setValue(int value)
{
    store(value);
    paint();
}

void HandChart::paint()
{
    drawFrame();
    const Pixmap picture = XCreatePixmap(m_display, m_window, m_width, m_height,
                                         DefaultDepth(m_display, DefaultScreen(m_display)));
    XFillRectangle(m_display, picture, m_ground, 0, 0, m_width, m_height);
    drawGrid(picture);
    drawHistory(picture);
    XCopyArea(m_display, picture, m_window, m_ground, 0, 0, m_width, m_height, 1, 1);
    XFreePixmap(m_display, picture);
}

void HandChart::drawFrame()
{
    const int right = m_width + 1;
    const int bottom = m_height + 1;
    XSegment upperLeft[] = {segment(0, 0, right, 0), segment(0, 0, 0, bottom)};
    XSegment lowerRight[] = {segment(0, bottom, right, bottom), segment(right, 0, right, bottom)};
    XDrawSegments(m_display, m_window, m_dark, upperLeft, 2);
    XDrawSegments(m_display, m_window, m_light, lowerRight, 2);
}

// Ten divisions in height and a line every ten pixels in width.
void HandChart::drawGrid(Pixmap picture)
{
    std::vector<XSegment> lines;
    const int step = m_height / 10;
    for (int y = m_height - step; y >= 0; y -= step)
        lines.push_back(segment(1, y, m_width, y));
    for (int x = 11; x <= m_width; x += 10)
        lines.push_back(segment(x, 1, x, m_height));
    XDrawSegments(m_display, picture, m_grid, lines.data(), static_cast<int>(lines.size()));
}

void HandChart::drawHistory(Pixmap picture)
{
    std::vector<XSegment> lines;
    lines.reserve(m_width);
    size_t slot = (m_next + 1) % m_history.size();
    int previous = rowOf(m_history[slot]);
    for (int x = 1; x < m_width; ++x) {
        const int row = rowOf(m_history[slot]);
        lines.push_back(segment(x, m_bars ? m_height : previous, x, row));
        previous = row;
        slot = slot + 1 < m_history.size() ? slot + 1 : 0;
    }
    XDrawSegments(m_display, picture, m_curve, lines.data(), static_cast<int>(lines.size()));
}

int HandChart::rowOf(double value) const
{
    return m_height - static_cast<int>(value / 100.0 * m_height);
}
