// A frame that can be double-clicked to close the window.
#include <qapplication.h>
#include <zelframe.h>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window(0, "window");
    ZelFrame frame(&window, "frame");
    frame.setFrameStyle(QFrame::Panel | QFrame::Raised);
    frame.setLineWidth(2);
    frame.setGeometry(10, 10, 180, 60);
    QObject::connect(&frame, SIGNAL(mouseDoubleClick(QMouseEvent*)), &window, SLOT(close()));
    application.setMainWidget(&window);
    window.show();
    return application.exec();
}
