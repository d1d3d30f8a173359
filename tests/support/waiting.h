// Waiting with a deadline: tests poll for what they expect and never sleep for a fixed time.
#ifndef TEST_WAITING_H
#define TEST_WAITING_H

#include <qobject.h>

#include <functional>

class QWidget;

// Handles events until the condition holds; false if it does not within the deadline, which TEST_PATIENCE in
// the environment multiplies.
bool waitFor(const std::function<bool()>& condition, int milliseconds = 5000);

// Handles everything that is on its way: what was sent to the X server, what it answers, what is posted.
// For checks that something does not happen; use waitFor for what should.
void settle();

// For a test that waits in an event loop, as in QDialog::exec(): while this lives, a loop that does not end
// by itself is ended at the deadline, with a failure.
class LoopDeadline : public QObject
{
public:
    LoopDeadline();

protected:
    void timerEvent(QTimerEvent* event) override;
};

// Shows a top-level widget and waits until it is on the screen and active (no window manager needed).
void showAndActivate(QWidget* topLevel);

// Shows a top-level widget and waits until the server has mapped it and it is painted.
void showAndWait(QWidget* topLevel);

#endif
