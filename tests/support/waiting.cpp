#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qwidget.h>

#include <chrono>
#include <cstdlib>
#include <poll.h>

static void handleEvents()
{
    xinput::sync();
    QApplication::syncX();
    qApp->processEvents();
    QApplication::flushX();
}

// Under Valgrind everything takes longer.
static int patience()
{
    const char* factor = std::getenv("TEST_PATIENCE");
    return factor ? std::atoi(factor) : 1;
}

bool waitFor(const std::function<bool()>& condition, int milliseconds)
{
    using Clock = std::chrono::steady_clock;
    const Clock::time_point deadline = Clock::now() + std::chrono::milliseconds(milliseconds) * patience();
    for (;;) {
        handleEvents();
        if (condition())
            return true;
        if (Clock::now() >= deadline)
            return false;
        poll(nullptr, 0, 2);
    }
}

void settle()
{
    // Each round carries one reply of the program to the server or back; a handful of rounds covers
    // chains such as raise, expose, paint, and answers of a window manager that takes its turn.
    for (int round = 0; round < 8; ++round) {
        handleEvents();
        poll(nullptr, 0, 1);
    }
}

LoopDeadline::LoopDeadline()
{
    startTimer(5000 * patience());
}

void LoopDeadline::timerEvent(QTimerEvent*)
{
    ADD_FAILURE() << "an event loop did not end by itself";
    qApp->exit_loop();
}

void showAndWait(QWidget* topLevel)
{
    topLevel->show();
    waitFor([=] { return xinput::isViewable(topLevel->winId()); });
    settle();
}

void showAndActivate(QWidget* topLevel)
{
    showAndWait(topLevel);
    topLevel->setActiveWindow();
    waitFor([=] { return topLevel->isActiveWindow(); });
    settle();
}
