// A monitor of the machine's load: a graph that takes a sample every second.
#include <qapplication.h>
#include <stdlib.h>
#include <zelgraph.h>

class Monitor : public ZelGraph
{
public:
    Monitor() : ZelGraph(0, "monitor", true)
    {
        const bool bars = false, rate = false, autoRange = true;
        setCaption("Load, in percent of one processor");
        setFrameStyle(Panel | Sunken);
        setGraphParameters(0, 0, 4, 30, bars, rate, autoRange, black, green, darkGreen);
        resize(300, 120);
        startTimer(1000);
    }

protected:
    void timerEvent(QTimerEvent*)
    {
        double load;
        if (getloadavg(&load, 1) == 1)
            setValue(int(100 * load));
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    Monitor monitor;
    application.setMainWidget(&monitor);
    monitor.show();
    return application.exec();
}
