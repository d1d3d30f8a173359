// Asks for a colour and prints it.
#include <colordlg.h>
#include <qapplication.h>
#include <stdio.h>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    ZelColorDlg dialog(QColor(80, 160, 255), 0, "color");
    if (dialog.exec() == QDialog::Accepted)
        printf("%s\n", dialog.getColor().name().latin1());
    return 0;
}
