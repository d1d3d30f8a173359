// An active label and a check box that switches along with it.
#include <qapplication.h>
#include <qcheckbox.h>
#include <zellabel.h>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window(0, "window");
    ZelLabel label("Mute", &window, "mute", true, 0);
    QColor red(200, 0, 0), black(0, 0, 0);
    label.setTextColors(red, black);
    label.setGeometry(10, 10, 80, 24);
    QCheckBox box("is muted", &window);
    box.move(100, 10);
    QObject::connect(&label, SIGNAL(clicked(ZelLabel*)), &box, SLOT(toggle()));
    application.setMainWidget(&window);
    window.show();
    return application.exec();
}
