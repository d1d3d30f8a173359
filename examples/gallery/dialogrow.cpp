// ZelColorDlg, ZelColorGroupDlg and ZelFontDlg, each behind a button.
#include "dialogrow.h"
#include "gallerywindow.h"
#include "rows.h"

#include <colordlg.h>
#include <colorgroupdlg.h>
#include <fontdlg.h>
#include <zelpushbutton2.h>

DialogRow::DialogRow(QWidget* row) : QObject(row, "dialogs"), m_window(row->topLevelWidget()) {}

void DialogRow::chooseColor()
{
    ZelColorDlg dialog(QColor(80, 160, 255), m_window, "Colour");
    if (dialog.exec() == QDialog::Accepted)
        emit chosen("the colour " + dialog.getColor().name());
}

void DialogRow::chooseColors()
{
    ZelColorGroupDlg dialog(m_window, "Colours", true);
    dialog.setColorGroup(m_window->palette().active());
    if (dialog.exec() == QDialog::Accepted)
        emit chosen("colours on " + dialog.getColorGroup().background().name());
}

void DialogRow::chooseFont()
{
    ZelFontDlg dialog(m_window, "Font", true);
    dialog.setFontParameters("Helvetica", 18, 75, false, false, false);
    if (dialog.exec() == QDialog::Accepted)
        emit chosen("the font " + QString(dialog.getFontFamily()) + " " +
                    QString::number(dialog.getFontSize()));
}

void addDialogRow(GalleryWindow& gallery)
{
    QWidget* const row = gallery.addRow("ZelColorDlg, ZelColorGroupDlg and ZelFontDlg", 32);
    DialogRow* const dialogs = new DialogRow(row);
    const struct {
        const char* text;
        const char* slot;
    } buttons[] = {{"Choose colour", SLOT(chooseColor())},
                   {"Choose colours", SLOT(chooseColors())},
                   {"Choose font", SLOT(chooseFont())}};
    int x = 0;
    for (const auto& entry : buttons) {
        ZelPushButton2* const button = new ZelPushButton2(entry.text, row, entry.text);
        button->setGeometry(x, 0, 146, 32);
        gallery.watch(button, SIGNAL(clicked()));
        QObject::connect(button, SIGNAL(clicked()), dialogs, entry.slot);
        x += 156;
    }
    QObject::connect(dialogs, SIGNAL(chosen(const QString&)), &gallery, SLOT(tellChoice(const QString&)));
}
