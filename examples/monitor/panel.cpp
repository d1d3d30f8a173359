#include "panel.h"
#include "graphcolors.h"

#include <qfont.h>
#include <qlabel.h>
#include <qlayout.h>
#include <zelgraph.h>

#include <climits>

Panel::Panel(QWidget* parent, const Looks& looks)
    : QWidget(parent, looks.caption), m_looks(looks), m_caption(new QLabel(looks.caption, this, "caption")),
      m_colors(new GraphColors(this, looks.curve, QColor(0, 70, 0), black)),
      m_value(new QLabel(this, "value")), m_graph(new ZelGraph(this, "graph", true)), m_bars(false),
      m_counting(false), m_zero(0), m_second(0)
{
    // Values of any length move nothing.
    m_value->setSizePolicy(QSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum));
    m_value->setMinimumWidth(m_value->fontMetrics().width("999 MiB/s"));
    m_value->setAlignment(AlignRight | AlignVCenter);
    m_graph->setMinimumSize(120, 50);
    setParameters();
    connect(m_colors, SIGNAL(changed()), this, SLOT(setParameters()));

    QVBoxLayout* const column = new QVBoxLayout(this, 0, 3);
    QHBoxLayout* const line = new QHBoxLayout(column);
    line->setSpacing(6);
    line->addWidget(m_caption);
    line->addWidget(m_colors, 0, AlignVCenter);
    line->addWidget(m_value, 1);
    column->addWidget(m_graph, 1);
}

void Panel::setParameters()
{
    const int divisions = 4, secondsPerLine = 30;
    m_graph->setGraphParameters(0, 100, divisions, secondsPerLine, m_bars, m_looks.rate, m_looks.rate,
                                m_colors->color(GraphColors::Background), m_colors->color(GraphColors::Curve),
                                m_colors->color(GraphColors::Grid));
}

void Panel::setBars(bool bars)
{
    m_bars = bars;
    setParameters();
}

void Panel::setCaptionFont(const QFont& font)
{
    m_caption->setFont(font);
}

QFont Panel::captionFont() const
{
    return m_caption->font();
}

void Panel::take(const std::optional<Reading>& reading)
{
    m_value->setText(reading ? reading->text.c_str() : "n/a");
    if (!reading)
        return;
    if (m_looks.rate)
        count(reading->value);
    else
        m_graph->setValue(static_cast<int>(reading->value));
}

// The graph reckons with whole seconds, so it gets one sample in each. It begins anew when the clock was set
// back and when the numbers get too large for it; its range forgets that first sample.
void Panel::count(long long value)
{
    const time_t now = time(nullptr);
    if (m_counting && now == m_second)
        return;
    const bool anew = !m_counting || now < m_second || value - m_zero > INT_MAX;
    if (anew)
        m_zero = value;
    m_graph->setValue(static_cast<int>(value - m_zero));
    if (anew)
        setParameters();
    m_counting = true;
    m_second = now;
}
