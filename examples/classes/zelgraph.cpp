// A graph of where a scroll bar was moved to.
#include <qapplication.h>
#include <qscrollbar.h>
#include <zelgraph.h>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window(0, "window");
    ZelGraph graph(&window, "graph", true);
    graph.setGraphParameters(0, 100, 5, 20, true, false, false, Qt::black, Qt::green, Qt::darkGreen);
    graph.setGeometry(10, 10, 200, 100);
    QScrollBar bar(0, 100, 1, 10, 50, Qt::Horizontal, &window);
    bar.setGeometry(10, 120, 200, 16);
    QObject::connect(&bar, SIGNAL(valueChanged(int)), &graph, SLOT(setValue(int)));
    application.setMainWidget(&window);
    window.show();
    return application.exec();
}
