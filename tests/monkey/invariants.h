// What must hold after every step.
#ifndef MONKEY_INVARIANTS_H
#define MONKEY_INVARIANTS_H

#include <string>

struct World;

// What is wrong, or an empty text.
std::string brokenInvariant(World& world);
// The same for what only the X server knows: places, sizes, parents, what is mapped.
std::string differenceFromServer();

#endif
