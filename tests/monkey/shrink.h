#ifndef MONKEY_SHRINK_H
#define MONKEY_SHRINK_H

struct Options;

// Plays the game again and again in processes of its own with fewer steps, as long as it still fails; prints
// what is left. Returns the exit status.
int shrink(const char* program, const Options& options);

#endif
