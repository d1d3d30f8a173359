// ZelGraph as a curve, as bars, with an automatic range, as a rate, with a read-out, and in another frame.
#include "gallerywindow.h"
#include "rows.h"

#include <zelgraph.h>

#include <cmath>

namespace
{

// Fills its graph with two waves at the first tick and, if it moves, gives it a sample more at each further
// one. Where the graph shows a rate, what it is given counts up by the waves.
class Waves : public QObject
{
public:
    Waves(ZelGraph* graph, bool counting, bool moving)
        : QObject(graph), m_graph(graph), m_counting(counting), m_moving(moving), m_count(0), m_step(0)
    {
        startTimer(40);
    }

protected:
    void timerEvent(QTimerEvent*)
    {
        if (m_step == 0)
            fill();
        else
            addSample();
        if (!m_moving)
            killTimers();
    }

private:
    // The graph is painted once, and no second passes on the way.
    void fill()
    {
        m_graph->setUpdatesEnabled(false);
        while (m_step < m_graph->width())
            addSample();
        m_graph->setUpdatesEnabled(true);
        m_graph->repaint(false);
    }

    void addSample()
    {
        ++m_step;
        const int wave = static_cast<int>(50 + 35 * std::sin(m_step / 9.0) + 10 * std::sin(m_step / 2.3));
        m_count += wave;
        m_graph->setValue(m_counting ? m_count : wave);
    }

    ZelGraph* m_graph;
    bool m_counting, m_moving;
    int m_count;
    int m_step;
};

} // namespace

void addGraphRow(GalleryWindow& gallery)
{
    const int width = 146, height = 180, gap = 10, perLine = 3;
    QWidget* const row = gallery.addRow("ZelGraph (hold the left button on \"Read-out\")", 2 * height + gap);
    const struct {
        const char* name;
        bool bars, rate, automatic, readout;
        int frame;
        QColor color;
    } graphs[] = {
        {"Curve", false, false, false, false, 1, QColor(80, 160, 255)},
        {"Bars", true, false, false, false, 1, QColor(240, 160, 0)},
        {"Automatic range", false, false, true, false, 1, QColor(240, 240, 240)},
        {"Rate", true, true, true, false, 1, QColor(0, 190, 160)},
        {"Read-out", false, false, false, true, 1, QColor(255, 110, 110)},
        {"Thick frame", false, false, false, false, 5, QColor(200, 150, 255)},
    };
    int place = 0;
    for (const auto& entry : graphs) {
        ZelGraph* const graph = new ZelGraph(row, entry.name, entry.readout);
        graph->setLineWidth(entry.frame);
        graph->setGeometry(place % perLine * (width + gap), place / perLine * (height + gap), width, height);
        graph->setGraphParameters(0, 100, 5, 20, entry.bars, entry.rate, entry.automatic, Qt::black,
                                  entry.color, QColor(0, 90, 0));
        new Waves(graph, entry.rate, gallery.isMoving());
        gallery.watch(graph, SIGNAL(mousePress(QMouseEvent*)));
        ++place;
    }
}
