#include "graphcolors.h"

#include <colordlg.h>
#include <qlayout.h>
#include <zelcolorbutton.h>

#include <algorithm>
#include <iterator>

namespace
{

const struct {
    const char* button;
    const char* question;
} parts[GraphColors::PartCount] = {
    {"curve", "Colour of the curve"},
    {"grid", "Colour of the grid"},
    {"background", "Colour of the background"},
};

} // namespace

GraphColors::GraphColors(QWidget* parent, const QColor& curve, const QColor& grid, const QColor& background)
    : QWidget(parent, "colours"), m_colors{curve, grid, background}
{
    QHBoxLayout* const line = new QHBoxLayout(this, 0, 2);
    for (int i = 0; i < PartCount; ++i) {
        m_buttons[i] = new ZelColorButton(this, parts[i].button);
        m_buttons[i]->setColor(m_colors[i]);
        m_buttons[i]->setFixedSize(20, 14);
        line->addWidget(m_buttons[i]);
        connect(m_buttons[i], SIGNAL(clicked()), this, SLOT(choose()));
    }
}

void GraphColors::choose()
{
    const auto part = std::find(std::begin(m_buttons), std::end(m_buttons), sender()) - m_buttons;
    ZelColorDlg dialog(m_colors[part], this, "colour");
    dialog.setCaption(parts[part].question);
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_colors[part] = dialog.getColor();
    m_buttons[part]->setColor(m_colors[part]);
    emit changed();
}
