// A window with a label; switches the label on and off and tells what its own slot saw of that.
#include "toggles.h"

#include <zellabel.h>
#include <zelversion.h>

#include <qapplication.h>
#include <qtimer.h>

#include <stdio.h>

// Ends the program; its class is known to this file only.
class Ending : public QObject
{
    Q_OBJECT

public slots:
    void now() { qApp->quit(); }
};

void Toggles::count(ZelLabel* label)
{
    ++(label->isOn() ? on : off);
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window(0, "window");
    ZelLabel label("A toggle", &window, "toggle", true, 0);
    Toggles toggles;
    QObject::connect(&label, SIGNAL(clicked(ZelLabel*)), &toggles, SLOT(count(ZelLabel*)));
    application.setMainWidget(&window);
    window.show();

    Ending ending;
    QTimer::singleShot(0, &ending, SLOT(now()));
    application.exec();
    label.setOn(true);
    label.setOn(false);
    label.setOn(true);
    printf("zelkit %s: switched on %d, off %d, %s\n", zelkit_version_str(), toggles.on, toggles.off,
           window.isVisible() ? "visible" : "hidden");
    return 0;
}

#include "main.moc"
