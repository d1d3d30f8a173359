// The event loop's side of the timers.
#ifndef ZELTK_TIMERQUEUE_H
#define ZELTK_TIMERQUEUE_H

namespace zeltk
{

// Milliseconds until the next timer is due, -1 without timers.
int timeToNextTimer();
// Sends the events of those that are due; false if there were none.
bool fireTimers();

} // namespace zeltk

#endif
