// A field that Escape empties.
#include <qapplication.h>
#include <zellineedit.h>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window(0, "window");
    ZelLineEdit field(&window, "field");
    field.setText("Escape clears this");
    field.setGeometry(10, 10, 160, 26);
    QObject::connect(&field, SIGNAL(escapePressed()), &field, SLOT(clear()));
    application.setMainWidget(&window);
    window.show();
    return application.exec();
}
