// ZelGraph as a curve, as bars, and with an automatic range.
#include "gallerywindow.h"
#include "rows.h"

#include <zelgraph.h>

#include <cmath>

namespace
{

// Fills its graph with two waves at the first tick and gives it a sample more at each further one.
class Waves : public QObject
{
public:
    explicit Waves(ZelGraph* graph) : QObject(graph), m_graph(graph), m_step(0) { startTimer(40); }

protected:
    void timerEvent(QTimerEvent*)
    {
        do
            addSample();
        while (m_step < m_graph->width());
    }

private:
    void addSample()
    {
        ++m_step;
        m_graph->setValue(static_cast<int>(50 + 35 * std::sin(m_step / 9.0) + 10 * std::sin(m_step / 2.3)));
    }

    ZelGraph* m_graph;
    int m_step;
};

} // namespace

void addGraphRow(GalleryWindow& gallery)
{
    QWidget* const row = gallery.addRow("ZelGraph (hold the left button for values)", 100);
    const struct {
        const char* name;
        bool bars, automatic;
        QColor color;
    } graphs[] = {{"Curve", false, false, QColor(80, 160, 255)},
                  {"Bars", true, false, QColor(240, 160, 0)},
                  {"Automatic range", false, true, QColor(240, 240, 240)}};
    int x = 0;
    for (const auto& entry : graphs) {
        ZelGraph* const graph = new ZelGraph(row, entry.name, true);
        graph->setGeometry(x, 0, 146, 100);
        graph->setGraphParameters(0, 100, 5, 20, entry.bars, false, entry.automatic, Qt::black, entry.color,
                                  QColor(0, 90, 0));
        new Waves(graph);
        gallery.watch(graph, SIGNAL(mousePress(QMouseEvent*)));
        x += 156;
    }
}
