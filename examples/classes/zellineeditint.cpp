// A field for a percentage, and a label that follows it.
#include <qapplication.h>
#include <qlabel.h>
#include <zellineeditint.h>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window(0, "window");
    ZelLineEditInt percent(&window, "percent", 0, 100);
    percent.setText("50");
    percent.setGeometry(10, 10, 60, 26);
    QLabel follower("50", &window);
    follower.setGeometry(80, 10, 60, 26);
    QObject::connect(&percent, SIGNAL(valueChanged(int)), &follower, SLOT(setNum(int)));
    application.setMainWidget(&window);
    window.show();
    return application.exec();
}
