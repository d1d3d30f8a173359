// Every clock in the test's hands: hours pass at once, and the wall's clock jumps.
#ifndef TEST_FASTCLOCK_H
#define TEST_FASTCLOCK_H

#include "faketime.h"

// While one of these exists, no clock of this program and its libraries moves by itself. Who waits for a time
// (in poll) and hears nothing meanwhile does not wait: the clocks move on by that time at once.
class FastClock
{
public:
    // The seconds that the clock on the wall shows at first.
    explicit FastClock(time_t wall = 1000000);
    ~FastClock();

    // Time passes on all clocks.
    void pass(long long milliseconds);
    // Somebody sets the clock on the wall; the time since the start of the machine goes on.
    void setWall(time_t seconds);
    // Milliseconds that have passed.
    long long passed() const;

private:
    FastClock(const FastClock&);
    FastClock& operator=(const FastClock&);
};

// While clocks move by themselves: the one that only grows is ahead by so many seconds more from now on. Any
// thread may call it.
void skipSeconds(int seconds);

#endif
