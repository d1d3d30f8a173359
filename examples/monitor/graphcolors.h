// The colours of a graph, as buttons with which the user changes them.
#ifndef GRAPHCOLORS_H
#define GRAPHCOLORS_H

#include <qcolor.h>
#include <qwidget.h>

class ZelColorButton;

class GraphColors : public QWidget
{
    Q_OBJECT

public:
    enum Part { Curve, Grid, Background, PartCount };

    GraphColors(QWidget* parent, const QColor& curve, const QColor& grid, const QColor& background);

    const QColor& color(Part part) const { return m_colors[part]; }

signals:
    // The user chose another colour.
    void changed();

private slots:
    void choose();

private:
    QColor m_colors[PartCount];
    ZelColorButton* m_buttons[PartCount];
};

#endif
