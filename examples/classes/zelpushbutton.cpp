// A row of push buttons, one for each colour; any of them ends the program.
#include <qapplication.h>
#include <zelpushbutton.h>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window(0, "window");
    const QColor colors[] = {QColor(200, 40, 40), QColor(240, 200, 40), QColor(40, 140, 60)};
    for (int i = 0; i < 3; ++i) {
        ZelPushButton* const button = new ZelPushButton(colors[i], &window, "color");
        button->setGeometry(10 + i * 70, 10, 60, 30);
        QObject::connect(button, SIGNAL(clicked()), &application, SLOT(quit()));
    }
    application.setMainWidget(&window);
    window.show();
    return application.exec();
}
