// Your first zelkit window: a label that ends the program.
#include <qapplication.h>
#include <zelactivelabel.h>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window(0, "window");
    window.setCaption("My first window");
    window.resize(200, 80);

    ZelActiveLabel* quit = new ZelActiveLabel("Quit", &window, "quit");
    quit->setAlignment(Qt::AlignCenter);
    quit->setGeometry(60, 24, 80, 32);
    QObject::connect(quit, SIGNAL(clicked()), &application, SLOT(quit()));

    application.setMainWidget(&window);
    window.show();
    return application.exec();
}
