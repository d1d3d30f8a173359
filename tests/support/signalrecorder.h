// Writes down signals in the order in which they come.
#ifndef TEST_SIGNALRECORDER_H
#define TEST_SIGNALRECORDER_H

#include <qobject.h>
#include <qstring.h>

#include <functional>
#include <string>
#include <vector>

// One connection of a SignalRecorder.
class SignalNote : public QObject
{
    Q_OBJECT

public:
    SignalNote(QObject* parent, const std::string& label, std::vector<std::string>* log,
               std::function<void()>* whenever);

public slots:
    void none();
    void number(int value);
    void flag(bool value);
    void text(const QString& value);

private:
    void note(const std::string& arguments);

    std::string m_label;
    std::vector<std::string>* m_log;
    std::function<void()>* m_whenever;
};

// Records signals without arguments, or with one int, bool or QString, as "name", "name(3)", "name(true)"
// or "name(text)".
class SignalRecorder
{
public:
    // Connects to SIGNAL(...) of the sender; adds a failure to the test if there is no such signal. The label
    // is the signal's name unless one is given.
    void watch(QObject* sender, const char* signal, const char* label = 0);

    // Called at every signal, after it was written down: to look around or to do harm in the middle of it.
    std::function<void()> whenever;

    int count() const { return static_cast<int>(m_log.size()); }
    // All since the last call, separated by blanks.
    std::string take();

private:
    QObject m_notes;
    std::vector<std::string> m_log;
};

#endif
