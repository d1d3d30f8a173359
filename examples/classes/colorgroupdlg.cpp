// Asks for the colours of the program's windows and prints two of them.
#include <colorgroupdlg.h>
#include <qapplication.h>
#include <stdio.h>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    ZelColorGroupDlg dialog(0, "colors", true);
    dialog.setColorGroup(application.palette().active());
    if (dialog.exec() == QDialog::Accepted) {
        const QColorGroup& colors = dialog.getColorGroup();
        printf("%s on %s\n", colors.text().name().latin1(), colors.background().name().latin1());
    }
    return 0;
}
