// A window with one button, up to the moment that it stands painted.
#include "used.h"

#include <qapplication.h>
#include <qpushbutton.h>

class Button : public QPushButton
{
public:
    Button(const QString& text, QWidget* parent) : QPushButton(text, parent) {}

protected:
    void paintEvent(QPaintEvent* event)
    {
        QPushButton::paintEvent(event);
        QApplication::syncX();
        printUsedAndExit();
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    window.resize(200, 100);
    window.setCaption("One button");
    Button button("Quit", &window);
    button.setGeometry(50, 35, 100, 30);
    QObject::connect(&button, SIGNAL(clicked()), &application, SLOT(quit()));
    application.setMainWidget(&window);
    window.show();
    return application.exec();
}
