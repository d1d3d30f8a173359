// One graph of the monitor with its caption, its colours and the value of the moment.
#ifndef PANEL_H
#define PANEL_H

#include "meters.h"

#include <qcolor.h>
#include <qwidget.h>

#include <ctime>

class GraphColors;
class QFont;
class QLabel;
class ZelGraph;

class Panel : public QWidget
{
    Q_OBJECT

public:
    struct Looks {
        const char* caption;
        // Shows how fast the readings grow, in whatever range they need; others are from 0 to 100.
        bool rate;
        QColor curve;
    };

    Panel(QWidget* parent, const Looks& looks);

    // Shows the reading, or that there is none.
    void take(const std::optional<Reading>& reading);
    // The graph begins anew.
    void setBars(bool bars);
    void setCaptionFont(const QFont& font);
    QFont captionFont() const;

private slots:
    void setParameters();

private:
    void count(long long value);

    const Looks m_looks;
    QLabel* const m_caption;
    GraphColors* const m_colors;
    QLabel* const m_value;
    ZelGraph* const m_graph;
    bool m_bars;
    // Of a graph of rates: whether it has a first sample, the reading that it knows as 0, and when it had the
    // last sample.
    bool m_counting;
    long long m_zero;
    time_t m_second;
};

#endif
