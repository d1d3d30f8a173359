// A program that makes something new right after it has got an answer of the X server, for tests that end its
// connection with that answer: maker ANSWER THING. It says "ready" and waits for the end of its input before,
// and says "made" if it comes to that.
#include <qapplication.h>
#include <qcursor.h>
#include <qeventloop.h>
#include <qpixmap.h>
#include <qwidget.h>

#include <cstdio>
#include <string>

namespace
{

class Window : public QWidget
{
public:
    bool isPainted = false;

protected:
    void paintEvent(QPaintEvent*) override { isPainted = true; }
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const std::string answer = argv[1], thing = argv[2];
    Window window;
    window.show();
    // Once an event has followed the last answer, Xlib expects no more of it and takes the next answer
    // without a second look at the line.
    while (!window.isPainted)
        qApp->eventLoop()->processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMore);
    std::puts("ready");
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    if (answer == "pointer")
        QCursor::pos();
    else
        QApplication::syncX();
    if (thing == "window")
        (new QWidget)->winId();
    else if (thing == "pixmap")
        QPixmap(20, 20);
    std::puts("made");
    return 0;
}
