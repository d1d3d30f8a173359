// The timers of the event loop.
#include "kernel/timers.h"

#include "kernel/timerqueue.h"

#include <qapplication.h>
#include <qevent.h>

#include <algorithm>
#include <chrono>
#include <limits>
#include <vector>

namespace zeltk
{

namespace
{

using Clock = std::chrono::steady_clock;

struct Timer {
    int id;
    QObject* receiver;
    std::chrono::milliseconds interval;
    Clock::time_point due;
};

std::vector<Timer>& timers()
{
    static auto* const all = new std::vector<Timer>;
    return *all;
}

template <typename Condition>
bool removeIf(Condition condition)
{
    std::vector<Timer>& all = timers();
    const auto rest = std::remove_if(all.begin(), all.end(), condition);
    const bool found = rest != all.end();
    all.erase(rest, all.end());
    return found;
}

Timer* findTimer(int id)
{
    const auto found =
        std::find_if(timers().begin(), timers().end(), [id](const Timer& t) { return t.id == id; });
    return found == timers().end() ? nullptr : &*found;
}

// They go round at the end of the numbers, past those that are in use.
int newId()
{
    static int last = 0;
    do
        last = last == std::numeric_limits<int>::max() ? 1 : last + 1;
    while (findTimer(last));
    return last;
}

} // namespace

int startTimer(QObject* receiver, int milliseconds)
{
    if (!qApp)
        return 0;
    const std::chrono::milliseconds interval(std::max(milliseconds, 0));
    const int id = newId();
    timers().push_back({id, receiver, interval, Clock::now() + interval});
    return id;
}

bool killTimer(int id)
{
    return removeIf([id](const Timer& t) { return t.id == id; });
}

void killTimers(QObject* receiver)
{
    removeIf([receiver](const Timer& t) { return t.receiver == receiver; });
}

int timeToNextTimer()
{
    if (timers().empty())
        return -1;
    const auto next = std::min_element(timers().begin(), timers().end(),
                                       [](const Timer& a, const Timer& b) { return a.due < b.due; });
    const auto left = std::chrono::duration_cast<std::chrono::microseconds>(next->due - Clock::now()).count();
    return left <= 0 ? 0 : static_cast<int>((left + 999) / 1000);
}

// Each timer that is due fires once; a slow receiver does not make it fire more often later.
bool fireTimers()
{
    const Clock::time_point now = Clock::now();
    std::vector<Timer> due;
    std::copy_if(timers().begin(), timers().end(), std::back_inserter(due),
                 [now](const Timer& t) { return t.due <= now; });
    std::stable_sort(due.begin(), due.end(), [](const Timer& a, const Timer& b) { return a.due < b.due; });
    for (const Timer& timer : due) {
        Timer* current = findTimer(timer.id);
        if (!current)
            continue;
        current->due += current->interval;
        if (current->due < now)
            current->due = now + current->interval;
        QTimerEvent event(timer.id);
        QApplication::sendEvent(timer.receiver, &event);
    }
    return !due.empty();
}

} // namespace zeltk
