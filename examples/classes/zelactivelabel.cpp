// A caption along the left edge and one that ends the program when it is clicked.
#include <qapplication.h>
#include <zelactivelabel.h>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window(0, "window");
    ZelActiveLabel along("Chapter one", &window, "along");
    along.setTextTop(1);
    along.setGeometry(10, 10, 24, 110);
    ZelActiveLabel quit("Quit", &window, "quit");
    quit.setAlignment(Qt::AlignCenter);
    quit.setGeometry(50, 96, 80, 24);
    QObject::connect(&quit, SIGNAL(clicked()), &application, SLOT(quit()));
    application.setMainWidget(&window);
    window.show();
    return application.exec();
}
