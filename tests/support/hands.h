// A user who works a dialog while the program waits for its result.
#ifndef TEST_HANDS_H
#define TEST_HANDS_H

#include <qobject.h>

#include <functional>

class QWidget;

// Does the work once, as soon as a modal window is on the screen and active. Closes a window that is still
// there afterwards and adds a failure.
class Hands : public QObject
{
public:
    explicit Hands(const std::function<void(QWidget*)>& work);
    // Adds a failure if no window has come.
    ~Hands() override;

protected:
    void timerEvent(QTimerEvent*) override;

private:
    std::function<void(QWidget*)> m_work;
    bool m_done;
};

// Clicks the button with that text somewhere in the window; adds a failure if there is none.
void clickButton(QWidget* window, const char* text);

// The child of that name; adds a failure if there is none.
QWidget* childNamed(QWidget* window, const char* name);

#endif
