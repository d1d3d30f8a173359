// A program with one window, for tests that look at a program from outside. It prints the window's number.
// With --console as first argument it has no window and ends by itself; with --window it tries to make one
// nevertheless. With --texts its window shows texts of several fonts, and it ends by itself. With --twice it
// makes two applications, one after the other.
#include <qapplication.h>
#include <qcursor.h>
#include <qlabel.h>
#include <qpushbutton.h>
#include <qtimer.h>
#include <qwidget.h>

#include <cstdio>
#include <cstring>

static int runOnConsole(int argc, char** argv, bool makesWindow)
{
    QApplication application(argc, argv, false);
    if (makesWindow)
        QWidget window;
    QApplication::beep();
    QApplication::syncX();
    QTimer::singleShot(0, &application, SLOT(quit()));
    const int result = application.exec();
    std::printf("console, type %d\n", application.type());
    return result;
}

static int showTexts(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    QLabel label("A label", &window);
    label.setFont(QFont("Courier", 24, QFont::Bold, true));
    label.adjustSize();
    QPushButton button("A button", &window);
    button.setGeometry(0, label.height(), 100, 30);
    window.resize(200, 200);
    window.show();
    QApplication::syncX();
    application.processEvents();
    std::printf("label %s\n", label.width() > 0 && label.height() > 0 ? "measured" : "empty");
    return 0;
}

// The second application tells what is left of the first.
static int runTwice(int argc, char** argv)
{
    QWidget* window;
    {
        QApplication first(argc, argv);
        QApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
        window = new QWidget;
        first.setMainWidget(window);
    }
    QApplication second(argc, argv);
    std::printf("override cursor %d, main widget %d\n", QApplication::overrideCursor() != 0,
                second.mainWidget() != 0);
    delete window;
    return 0;
}

int main(int argc, char** argv)
{
    if (argc > 1 && !std::strcmp(argv[1], "--twice"))
        return runTwice(argc, argv);
    if (argc > 1 && (!std::strcmp(argv[1], "--console") || !std::strcmp(argv[1], "--window")))
        return runOnConsole(argc, argv, !std::strcmp(argv[1], "--window"));
    if (argc > 1 && !std::strcmp(argv[1], "--texts"))
        return showTexts(argc, argv);
    QApplication application(argc, argv, QApplication::GuiClient);
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
