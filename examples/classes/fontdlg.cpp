// Asks for a font and prints its family and size.
#include <fontdlg.h>
#include <qapplication.h>
#include <stdio.h>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    ZelFontDlg dialog(0, "font", true);
    dialog.setFontParameters("Helvetica", 18, 50, false, false, false);
    if (dialog.exec() == QDialog::Accepted)
        printf("%s %d\n", dialog.getFontFamily(), dialog.getFontSize());
    return 0;
}
