// A program with one window, for tests that look at a program from outside. It prints the window's number.
#include <qapplication.h>
#include <qwidget.h>

#include <cstdio>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    application.setMainWidget(&window);
    window.setGeometry(10, 10, 40, 40);
    window.show();
    QApplication::syncX();
    std::printf("window %lu\n", static_cast<unsigned long>(window.winId()));
    for (int i = 1; i < argc; ++i)
        std::printf("argument %s\n", argv[i]);
    std::fflush(stdout);
    return application.exec();
}
