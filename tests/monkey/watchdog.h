// Ends the program with a message when a step hangs or crashes.
#ifndef MONKEY_WATCHDOG_H
#define MONKEY_WATCHDOG_H

#include <string>

namespace watchdog
{

// `report` and `trace` are printed in the worst case; they must stay where they are.
void start(const std::string* report, const std::string* trace);
// A step begins: it has two seconds of computing (more with sanitizers) and a minute in all.
void step();

} // namespace watchdog

#endif
