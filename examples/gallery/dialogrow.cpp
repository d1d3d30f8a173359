// ZelColorDlg, ZelColorGroupDlg and ZelFontDlg, each behind a button.
#include "dialogrow.h"
#include "gallerywindow.h"
#include "rows.h"

#include <colordlg.h>
#include <colorgroupdlg.h>
#include <fontdlg.h>
#include <zelcolorbutton.h>
#include <zelpushbutton2.h>

#include <qlabel.h>

namespace
{
const int buttonWidth = 146;
const int lineHeight = 32;
const int gap = 10;

int columnLeft(int column)
{
    return column * (buttonWidth + gap);
}
} // namespace

DialogRow::DialogRow(QWidget* row)
    : QObject(row, "dialogs"), m_window(row->topLevelWidget()),
      m_color(new ZelColorButton(row, "Chosen colour")), m_chosenColor(80, 160, 255),
      m_sample(new QLabel("Chosen font", row, "Chosen font"))
{
    m_color->setColor(m_chosenColor);
    m_color->setGeometry(columnLeft(0), lineHeight + gap, buttonWidth, lineHeight);
    m_sample->setAlignment(AlignCenter);
    m_sample->setGeometry(columnLeft(2), lineHeight + gap, buttonWidth, lineHeight);
}

void DialogRow::chooseColor()
{
    ZelColorDlg dialog(m_chosenColor, m_window, "Colour");
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_chosenColor = dialog.getColor();
    m_color->setColor(m_chosenColor);
    emit chosen("the colour " + m_chosenColor.name());
}

void DialogRow::chooseColors()
{
    ZelColorGroupDlg dialog(m_window, "Colours", true);
    dialog.setColorGroup(m_window->colorGroup());
    if (dialog.exec() != QDialog::Accepted)
        return;
    QPalette palette = m_window->palette();
    palette.setActive(dialog.getColorGroup());
    palette.setInactive(dialog.getColorGroup());
    m_window->setPalette(palette);
    emit chosen("colours on " + dialog.getColorGroup().background().name());
}

void DialogRow::chooseFont()
{
    ZelFontDlg dialog(m_window, "Font", true);
    const QFont font = m_sample->font();
    dialog.setFontParameters(font.family(), font.pointSize(), font.weight(), font.italic(), font.underline(),
                             font.strikeOut());
    if (dialog.exec() != QDialog::Accepted)
        return;
    QFont chosenFont(dialog.getFontFamily(), dialog.getFontSize(), dialog.getFontWeight(),
                     dialog.beFontItalic());
    chosenFont.setUnderline(dialog.beFontUnderline());
    chosenFont.setStrikeOut(dialog.beFontStrikeOut());
    m_sample->setFont(chosenFont);
    emit chosen("the font " + chosenFont.family() + " " + QString::number(chosenFont.pointSize()));
}

void addDialogRow(GalleryWindow& gallery)
{
    QWidget* const row = gallery.addRow("ZelColorDlg, ZelColorGroupDlg and ZelFontDlg", 2 * lineHeight + gap);
    DialogRow* const dialogs = new DialogRow(row);
    const struct {
        const char* text;
        const char* slot;
    } buttons[] = {{"Choose colour", SLOT(chooseColor())},
                   {"Choose colours", SLOT(chooseColors())},
                   {"Choose font", SLOT(chooseFont())}};
    int column = 0;
    for (const auto& entry : buttons) {
        ZelPushButton2* const button = new ZelPushButton2(entry.text, row, entry.text);
        button->setGeometry(columnLeft(column), 0, buttonWidth, lineHeight);
        gallery.watch(button, SIGNAL(clicked()));
        QObject::connect(button, SIGNAL(clicked()), dialogs, entry.slot);
        ++column;
    }
    QObject::connect(dialogs, SIGNAL(chosen(const QString&)), &gallery, SLOT(tellChoice(const QString&)));
}
