#include "faketime.h"

namespace
{
bool faked = false;
time_t fakedNow = 0;
} // namespace

// Stands before the C library's, for this program and every library it loads.
extern "C" time_t time(time_t* result) noexcept
{
    time_t now = fakedNow;
    if (!faked) {
        timespec real;
        clock_gettime(CLOCK_REALTIME, &real);
        now = real.tv_sec;
    }
    if (result)
        *result = now;
    return now;
}

FakeTime::FakeTime(time_t now)
{
    faked = true;
    fakedNow = now;
}

FakeTime::~FakeTime()
{
    faked = false;
}

void FakeTime::set(time_t now)
{
    fakedNow = now;
}

void FakeTime::advance(long seconds)
{
    fakedNow += seconds;
}
