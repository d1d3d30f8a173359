// An edge to hold: a word shows for as long as a button is down on it.
#include <qapplication.h>
#include <qlabel.h>
#include <zeledge.h>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window(0, "window");
    ZelEdge edge(&window, "edge");
    edge.setColor(Qt::gray, Qt::blue);
    edge.setGeometry(90, 0, 8, 80);
    QLabel word("Held", &window);
    word.hide();
    QObject::connect(&edge, SIGNAL(mousePress(QMouseEvent*)), &word, SLOT(show()));
    QObject::connect(&edge, SIGNAL(mouseRelease(QMouseEvent*)), &word, SLOT(hide()));
    application.setMainWidget(&window);
    window.show();
    return application.exec();
}
