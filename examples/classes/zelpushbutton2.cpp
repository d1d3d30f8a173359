// Escape on the button closes the window, as a click does.
#include <qapplication.h>
#include <zelpushbutton2.h>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window(0, "window");
    ZelPushButton2 button("Close", &window, "close");
    button.setGeometry(20, 20, 90, 30);
    button.setFocus();
    QObject::connect(&button, SIGNAL(clicked()), &window, SLOT(close()));
    QObject::connect(&button, SIGNAL(escapePressed()), &window, SLOT(close()));
    application.setMainWidget(&window);
    window.show();
    return application.exec();
}
