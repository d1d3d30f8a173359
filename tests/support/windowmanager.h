// A window manager for the tests that need one: openbox, from the construction to the destruction.
#ifndef TEST_WINDOWMANAGER_H
#define TEST_WINDOWMANAGER_H

#include <sys/types.h>

class QWidget;

class WindowManager
{
public:
    // Starts it and waits until it is in charge; adds a failure to the test if that takes too long.
    WindowManager();
    ~WindowManager();

    // What a user asks for with the buttons of the window's frame.
    void iconify(const QWidget& window);
    void restore(const QWidget& window);
    void close(const QWidget& window);

private:
    WindowManager(const WindowManager&);
    WindowManager& operator=(const WindowManager&);

    pid_t m_process;
};

#endif
