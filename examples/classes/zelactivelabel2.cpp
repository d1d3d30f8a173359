// A framed label that empties a field.
#include <qapplication.h>
#include <qlineedit.h>
#include <zelactivelabel2.h>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window(0, "window");
    QLineEdit field("Some text", &window);
    field.setGeometry(10, 10, 120, 24);
    ZelActiveLabel2 clear(&window, "clear");
    clear.setText("Clear");
    clear.setGeometry(140, 10, 60, 24);
    QObject::connect(&clear, SIGNAL(clicked()), &field, SLOT(clear()));
    application.setMainWidget(&window);
    window.show();
    return application.exec();
}
