// QEventLoop.
#include <qeventloop.h>

#include "kernel/applicationdata.h"
#include "kernel/applicationprivate.h"
#include "kernel/timerqueue.h"
#include "x11/connection.h"
#include "x11/events.h"

#include <qdatetime.h>

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace x11 = zeltk::x11;

namespace zeltk
{

struct EventLoopState {
    int level = 0;
    bool leaveLoop = false; // the innermost one
    bool quit = false;      // all of them; until the next one begins
    int result = 0;
    int wakeUpPipe[2] = {-1, -1};
};

} // namespace zeltk

namespace
{

// After all that the program has asked of the X server is on its way.
bool somethingWaits(bool withInput)
{
    if (x11::connected())
        x11::flush();
    return zeltk::hasPostedEvents() || (x11::connected() && x11::eventsPending(withInput));
}

} // namespace

QEventLoop::QEventLoop(QObject* parent, const char* name)
    : QObject(parent, name), d(new zeltk::EventLoopState)
{
    if (pipe2(d->wakeUpPipe, O_NONBLOCK | O_CLOEXEC) != 0) {
        qFatal("QEventLoop: no pipe can be made");
        std::exit(1); // a message handler returns
    }
}

QEventLoop::~QEventLoop()
{
    ::close(d->wakeUpPipe[0]);
    ::close(d->wakeUpPipe[1]);
    delete d;
}

bool QEventLoop::hasPendingEvents() const
{
    return zeltk::hasPostedEvents() || (x11::connected() && x11::eventsPending(true));
}

// What the program has queued comes first, then what the X server and the clock bring.
bool QEventLoop::processEvents(ProcessEventsFlags flags)
{
    bool found = false;
    QApplication::sendPostedEvents();
    if (x11::connected()) {
        while (zeltk::dispatchEvents(!(flags & ExcludeUserInput)))
            found = true;
    }
    found = zeltk::fireTimers() || found;
    if (found || !(flags & WaitForMore) || d->leaveLoop || d->quit)
        return found;
    waitForEvents(flags);
    return true;
}

void QEventLoop::waitForEvents(ProcessEventsFlags flags)
{
    const bool withInput = !(flags & ExcludeUserInput);
    if (somethingWaits(withInput))
        return;
    aboutToBlock();
    const bool sleeps = !somethingWaits(withInput); // who heard of that may have drawn or posted something
    pollfd watched[2] = {{d->wakeUpPipe[0], POLLIN, 0},
                         {x11::connected() ? x11::connectionFd() : -1, POLLIN, 0}};
    while (poll(watched, 2, sleeps ? zeltk::timeToNextTimer() : 0) < 0 && errno == EINTR) {
    }
    char bytes[64];
    while (read(d->wakeUpPipe[0], bytes, sizeof bytes) > 0) {
    }
    awake();
}

// Goes on while the server has more. A timer that is always due does not count: it would take all the time.
void QEventLoop::processEvents(ProcessEventsFlags flags, int maxtime)
{
    QTime start = QTime::currentTime();
    const bool withInput = !(flags & ExcludeUserInput);
    do {
        if (d->quit)
            return;
        processEvents(flags & ~static_cast<uint>(WaitForMore));
    } while (x11::connected() && x11::eventsPending(withInput) && start.elapsed() < maxtime);
}

int QEventLoop::exec()
{
    d->result = 0;
    enterLoop();
    return d->result;
}

void QEventLoop::exit(int retcode)
{
    if (d->quit)
        return;
    d->quit = true;
    d->result = retcode;
    wakeUp();
}

int QEventLoop::enterLoop()
{
    const bool outer = d->leaveLoop;
    d->leaveLoop = false;
    if (d->level == 0)
        d->quit = false;
    ++d->level;
    while (!d->leaveLoop && !d->quit)
        processEvents(AllEvents | WaitForMore);
    --d->level;
    d->leaveLoop = outer;
    if (d->level == 0 && d->quit)
        zeltk::ApplicationAccess::emitAboutToQuit();
    return d->level;
}

void QEventLoop::exitLoop()
{
    d->leaveLoop = true;
    wakeUp();
}

int QEventLoop::loopLevel() const
{
    return d->level;
}

void QEventLoop::wakeUp()
{
    const char byte = 0;
    if (write(d->wakeUpPipe[1], &byte, 1) < 0 && errno != EAGAIN)
        qWarning("QEventLoop::wakeUp: the pipe cannot be written");
}
