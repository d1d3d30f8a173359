#ifndef MONITORWINDOW_H
#define MONITORWINDOW_H

#include "meters.h"

#include <qtimer.h>
#include <qwidget.h>

#include <memory>
#include <string>
#include <vector>

class Panel;

// The window of the monitor: a panel for each meter, a switch between curves and bars, and the choice of the
// captions' font.
class MonitorWindow : public QWidget
{
    Q_OBJECT

public:
    // Reads from this folder instead of /proc.
    explicit MonitorWindow(const std::string& folder);
    ~MonitorWindow();

    // Takes samples from now on, one every so many milliseconds.
    void run(int interval);

    // Takes one sample of everything. `now`: milliseconds of a clock that is never set.
    void sampleAt(long long now);

public slots:
    // The graphs begin anew, as bars or as curves.
    void setBars(bool bars);

private slots:
    void begin();
    void sample();
    void chooseFont();

private:
    struct Entry {
        std::unique_ptr<Meter> meter;
        Panel* panel;
    };

    std::vector<Entry> m_entries;
    QTimer m_timer;
    int m_interval;
};

#endif
