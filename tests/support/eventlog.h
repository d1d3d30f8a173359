// A widget that writes down the events that reach it.
#ifndef TEST_EVENTLOG_H
#define TEST_EVENTLOG_H

#include <qevent.h>
#include <qwidget.h>

#include <string>
#include <vector>

// The lines of all logged widgets of a test, in the order of the events, as "name Move 1,2 from 0,0".
class EventLog
{
public:
    // All since the last call, joined by "; ".
    std::string take();
    void write(const std::string& line) { m_lines.push_back(line); }

private:
    std::vector<std::string> m_lines;
};

// Logs what concerns its place, its being seen, its painting and its parents; not mouse and keyboard.
class LoggedWidget : public QWidget
{
public:
    LoggedWidget(EventLog* log, QWidget* parent, const char* name, WFlags flags = 0)
        : QWidget(parent, name, flags), logsPaint(false), m_log(log)
    {
    }

    bool logsPaint;

protected:
    bool event(QEvent* event) override;

private:
    EventLog* m_log;
};

#endif
