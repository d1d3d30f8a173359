// A combo box whose text Escape empties.
#include <qapplication.h>
#include <zelcombobox.h>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window(0, "window");
    ZelComboBox box(true, &window, "town");
    box.insertItem("Hamburg");
    box.insertItem("Lyon");
    box.insertItem("Porto");
    box.setGeometry(10, 10, 160, 26);
    QObject::connect(&box, SIGNAL(escapePressed()), &box, SLOT(clearEdit()));
    application.setMainWidget(&window);
    window.show();
    return application.exec();
}
