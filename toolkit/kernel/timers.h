// The timers of the event loop. QObject::startTimer and its companions stand on these functions.
#ifndef ZELTK_TIMERS_H
#define ZELTK_TIMERS_H

class QObject;

namespace zeltk
{

// Returns the identifier, greater than 0, or 0 when there is no application.
int startTimer(QObject* receiver, int milliseconds);
bool killTimer(int id);
void killTimers(QObject* receiver);

} // namespace zeltk

#endif
