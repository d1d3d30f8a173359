#include "fastclock.h"

#include <atomic>
#include <memory>
#include <poll.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

namespace
{

// Milliseconds.
struct Clocks {
    long long start;
    long long steady;
    long long wall;
    FakeTime seconds; // for time()
};

std::unique_ptr<Clocks> clocks;
std::atomic<int> skipped{0}; // seconds

void pass(long long milliseconds)
{
    clocks->steady += milliseconds;
    clocks->wall += milliseconds;
    clocks->seconds.set(static_cast<time_t>(clocks->wall / 1000));
}

} // namespace

// These three stand before the C library's, for this program and every library it loads.
extern "C" int clock_gettime(clockid_t clock, timespec* result) noexcept
{
    if (!clocks || (clock != CLOCK_MONOTONIC && clock != CLOCK_REALTIME)) {
        const int status = static_cast<int>(syscall(SYS_clock_gettime, clock, result));
        if (clock == CLOCK_MONOTONIC)
            result->tv_sec += skipped;
        return status;
    }
    const long long now = clock == CLOCK_MONOTONIC ? clocks->steady : clocks->wall;
    result->tv_sec = static_cast<time_t>(now / 1000);
    result->tv_nsec = static_cast<long>(now % 1000) * 1000000;
    return 0;
}

extern "C" int gettimeofday(timeval* result, void*) noexcept
{
    timespec now;
    clock_gettime(CLOCK_REALTIME, &now);
    result->tv_sec = now.tv_sec;
    result->tv_usec = static_cast<suseconds_t>(now.tv_nsec / 1000);
    return 0;
}

extern "C" int poll(pollfd* files, nfds_t count, int milliseconds)
{
    const bool skips = clocks && milliseconds > 0;
    timespec wait = {};
    if (milliseconds > 0 && !skips) {
        wait.tv_sec = milliseconds / 1000;
        wait.tv_nsec = static_cast<long>(milliseconds % 1000) * 1000000;
    }
    const int ready = ppoll(files, count, milliseconds < 0 ? nullptr : &wait, nullptr);
    if (ready == 0 && skips)
        pass(milliseconds);
    return ready;
}

FastClock::FastClock(time_t wall)
{
    timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    const long long steady = now.tv_sec * 1000LL + now.tv_nsec / 1000000;
    clocks.reset(new Clocks{steady, steady, wall * 1000LL, FakeTime(wall)});
}

FastClock::~FastClock()
{
    clocks.reset();
}

void FastClock::pass(long long milliseconds)
{
    ::pass(milliseconds);
}

void FastClock::setWall(time_t seconds)
{
    clocks->wall = seconds * 1000LL;
    clocks->seconds.set(seconds);
}

long long FastClock::passed() const
{
    return clocks->steady - clocks->start;
}

void skipSeconds(int seconds)
{
    skipped += seconds;
}
