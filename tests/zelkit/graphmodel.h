// A software model of ZelGraph: what it must show after everything that was done to it, worked out with plain
// lists and painted pixel by pixel.
#ifndef TEST_GRAPHMODEL_H
#define TEST_GRAPHMODEL_H

#include "pixels.h"

#include <qcolor.h>
#include <qfont.h>
#include <qfontmetrics.h>
#include <qpainter.h>
#include <qpixmap.h>
#include <qrect.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <string>
#include <vector>

class GraphModel
{
public:
    GraphModel() : m_before(std::time(nullptr)) {}

    // What an application does to a graph.
    void setGraphParameters(int minimum, int maximum, int gridCount, int gridStep, bool bars, bool rate,
                            bool automatic, const QColor& ground, const QColor& curve, const QColor& grid)
    {
        m_minimum = automatic ? 0 : minimum;
        m_maximum = automatic ? 2 : maximum;
        repair();
        m_gridCount = gridCount;
        m_gridStep = gridStep;
        m_bars = bars;
        m_rate = rate;
        m_automatic = automatic;
        m_ground = ground.rgb() & 0xffffff;
        m_curve = curve.rgb() & 0xffffff;
        m_grid = grid.rgb() & 0xffffff;
        clearAll();
    }

    void setMinY(int y)
    {
        if (m_automatic || y == m_minimum)
            return;
        m_minimum = y;
        repair();
        paint();
    }

    void setMaxY(int y)
    {
        if (m_automatic || y == m_maximum)
            return;
        m_maximum = y;
        repair();
        paint();
    }

    void clearAll()
    {
        m_blank = m_minimum;
        std::fill(m_samples.begin(), m_samples.end(), m_minimum);
        paint();
    }

    void setValue(int value)
    {
        const std::time_t now = std::time(nullptr);
        double y = m_rate ? change(value, static_cast<int>(static_cast<long long>(now) - m_before)) : value;
        m_before = now;
        m_previous = value;
        if (m_automatic) {
            m_maximum = m_first ? y + 1 : std::max(m_maximum, y);
            m_minimum = m_first ? y - 1 : std::min(m_minimum, y);
        }
        if (m_first)
            m_blank = m_minimum;
        m_first = false;
        if (y > m_maximum)
            y = m_maximum;
        else if (y < m_minimum)
            y = m_minimum;
        if (m_columns > 0)
            m_samples.push_back(y);
        paint();
    }

    // The contents in the widget's coordinates, after a resize.
    void resize(const QRect& contents)
    {
        m_samples.clear();
        m_columns = std::max(contents.width(), 0);
        m_blank = m_minimum;
        reframe(contents);
    }

    // The same when only the frame changed.
    void reframe(const QRect& contents)
    {
        m_contents = contents;
        paint();
    }

    void press(int y, const QFont& font)
    {
        m_shown = true;
        place(y, font);
        mark();
    }

    void drag(int y, const QFont& font)
    {
        if (!m_shown)
            return;
        mark();
        place(std::min(std::max(y, 0), m_contents.bottom()), font);
        mark();
    }

    void release()
    {
        if (m_shown)
            mark();
        m_shown = false;
    }

    // After every repaint the read-out is there once.
    void paint()
    {
        m_marks.clear();
        if (m_shown)
            mark();
    }

    const std::string& readout() const { return m_mark.text; }
    const QRect& readoutPlace() const { return m_mark.place; }

    // The inside of the frame, without the read-out.
    Pixels contents() const
    {
        const int width = std::max(m_contents.width(), 0), height = std::max(m_contents.height(), 0);
        Pixels picture(width, height, m_ground);
        drawGrid(picture);
        drawHistory(picture);
        return picture;
    }

    // Everything, on a picture of the frame.
    Pixels widget(Pixels picture, const QFont& font) const
    {
        const Pixels inside = contents();
        for (int y = 0; y < inside.height(); ++y)
            for (int x = 0; x < inside.width(); ++x)
                picture.set(m_contents.left() + x, m_contents.top() + y, inside.at(x, y));
        for (const Mark& mark : m_marks)
            invert(picture, mark, font);
        return picture;
    }

private:
    struct Mark {
        std::string text;
        QRect place;
        int y = 0, left = 0, right = 0;
    };

    void repair()
    {
        if (m_maximum <= m_minimum - 1)
            m_maximum += 1;
        else if (m_minimum >= m_maximum)
            m_minimum -= 1;
    }

    double change(int value, int seconds) const
    {
        if (m_first)
            return 0;
        const double difference = double(value) - m_previous;
        const volatile double result = seconds == 0 ? difference / 2 : difference / seconds;
        return result;
    }

    // Counted from the top of the widget.
    int rowOf(double value) const
    {
        const volatile double range = m_maximum - m_minimum;
        const volatile double above = value - m_minimum;
        const volatile double part = above / range;
        const volatile double height = part * m_contents.height();
        const double row = m_contents.bottom() - std::trunc(height);
        return row >= 0 && row <= m_contents.bottom() ? static_cast<int>(row) : 0;
    }

    void drawGrid(Pixels& picture) const
    {
        const int left = m_contents.left(), right = m_contents.right(), bottom = m_contents.bottom();
        if (m_gridCount > 0 && m_contents.height() >= m_gridCount)
            for (int line = 1; bottom - line * (m_contents.height() / m_gridCount) >= 0; ++line)
                picture.fill(left, bottom - line * (m_contents.height() / m_gridCount), right - left + 1, 1,
                             m_grid);
        if (m_gridStep > 0)
            for (long long x = left + static_cast<long long>(m_gridStep); x <= right; x += m_gridStep)
                picture.fill(static_cast<int>(x), m_contents.top(), 1, m_contents.height(), m_grid);
    }

    struct Column {
        int row;
        bool filled;
    };

    // From the left. The place that the next sample takes is the last one to come, and is not shown; only
    // when samples have just filled their places to the last do the columns go on with the oldest.
    std::vector<Column> columns() const
    {
        std::vector<Column> all;
        const int count = static_cast<int>(m_samples.size());
        const int kept = std::min(count, m_columns);
        for (int i = 0; i < m_columns - 1 - kept; ++i)
            all.push_back({rowOf(m_blank), false});
        for (int i = count - std::min(kept, m_columns - 1); i < count; ++i)
            all.push_back({rowOf(m_samples[static_cast<size_t>(i)]), true});
        if (kept == m_columns && count % m_columns == 0)
            for (int i = 0; static_cast<int>(all.size()) < m_contents.width(); ++i)
                all.push_back({rowOf(m_samples[static_cast<size_t>(count - kept + i % kept)]), true});
        return all;
    }

    void drawHistory(Pixels& picture) const
    {
        if (m_samples.empty() || m_contents.width() <= 0)
            return;
        const std::vector<Column> all = columns();
        const size_t shown = std::min(all.size(), static_cast<size_t>(m_contents.width()));
        for (size_t i = 0; i < shown; ++i) {
            if (!all[i].filled)
                continue;
            const int row = all[i].row;
            const int from = m_bars ? m_contents.bottom() : all[i == 0 ? 0 : i - 1].row;
            picture.fill(m_contents.left() + static_cast<int>(i), std::min(from, row), 1,
                         std::abs(from - row) + 1, m_curve);
        }
    }

    void place(int y, const QFont& font)
    {
        const volatile double part = double(m_contents.height() - y) / m_contents.height();
        const volatile double above = part * (m_maximum - m_minimum);
        const volatile double value = m_minimum + above;
        char text[64];
        std::snprintf(text, sizeof text, "%.2f", value);
        const QFontMetrics metrics(font);
        const int width = metrics.width(text), height = metrics.height();
        int top = std::max(y - height / 2, 0);
        if (top + height - 1 > m_contents.bottom())
            top = std::max(m_contents.bottom() - height + 1, 0);
        m_mark.text = text;
        m_mark.place = QRect(m_contents.width() / 2 - width / 2, top, width, height);
        m_mark.y = y;
    }

    // The lines reach from edge to edge of what the frame leaves now.
    void mark()
    {
        m_mark.left = m_contents.left();
        m_mark.right = m_contents.right();
        m_marks.push_back(m_mark);
    }

    static void flip(Pixels& picture, int x, int y)
    {
        if (picture.at(x, y) != Pixels::outside)
            picture.set(x, y, picture.at(x, y) ^ 0xffffff);
    }

    static void flipLine(Pixels& picture, int from, int to, int y)
    {
        for (int x = std::min(from, to); x <= std::max(from, to); ++x)
            flip(picture, x, y);
    }

    // The text's shape comes from the toolkit, drawn inverting on black.
    static void invert(Pixels& picture, const Mark& mark, const QFont& font)
    {
        QPixmap pixmap(picture.width(), picture.height());
        pixmap.fill(Qt::black);
        QPainter painter(&pixmap);
        painter.setFont(font);
        painter.setRasterOp(Qt::NotROP);
        painter.drawText(mark.place, Qt::AlignCenter, mark.text.c_str());
        painter.end();
        const Pixels shape = Pixels::of(pixmap);
        for (int y = 0; y < shape.height(); ++y)
            for (int x = 0; x < shape.width(); ++x)
                if (shape.at(x, y) == 0xffffff)
                    flip(picture, x, y);
        flipLine(picture, mark.left, mark.place.left(), mark.y);
        flipLine(picture, mark.place.right(), mark.right, mark.y);
    }

    double m_minimum = 0, m_maximum = 5;
    int m_gridCount = 10, m_gridStep = 10;
    bool m_bars = false, m_rate = false, m_automatic = false;
    unsigned m_ground = 0x000000, m_curve = 0x0000dc, m_grid = 0x009600;

    QRect m_contents;
    int m_columns = 0;             // places for samples
    std::vector<double> m_samples; // all since the last resize, the oldest first
    double m_blank = 0;            // what the places without a sample count as

    bool m_first = true;
    double m_previous = 0;
    std::time_t m_before;

    bool m_shown = false;
    Mark m_mark;
    std::vector<Mark> m_marks; // drawn on the screen since the last repaint
};

#endif
