// The colour dialog in another language: its parts are found by their names.
#include <colordlg.h>
#include <qapplication.h>
#include <qlabel.h>
#include <qpushbutton.h>

static void relabel(QDialog& dialog, const char* name, const char* text)
{
    QObject* const part = dialog.child(name);
    if (part && part->inherits("QLabel"))
        static_cast<QLabel*>(part)->setText(text);
    else if (part && part->inherits("QButton"))
        static_cast<QButton*>(part)->setText(text);
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    ZelColorDlg dialog(Qt::darkCyan, 0, "color");
    dialog.setCaption("Scegli un colore");
    relabel(dialog, "RLabel", "Rosso");
    relabel(dialog, "GLabel", "Verde");
    relabel(dialog, "BLabel", "Blu");
    relabel(dialog, "cancel", "Annulla");
    dialog.exec();
    return 0;
}
