// A button that shows a colour and opens a dialog.
#include <colordlg.h>
#include <qapplication.h>
#include <zelcolorbutton.h>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window(0, "window");
    const QColor sea(0, 120, 160);
    ZelColorButton button(&window, "sea");
    button.setColor(sea);
    button.setGeometry(20, 20, 60, 30);
    ZelColorDlg dialog(sea, &window, "dialog");
    QObject::connect(&button, SIGNAL(clicked()), &dialog, SLOT(exec()));
    application.setMainWidget(&window);
    window.show();
    return application.exec();
}
