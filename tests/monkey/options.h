#ifndef MONKEY_OPTIONS_H
#define MONKEY_OPTIONS_H

#include <vector>

struct Options {
    int seed = 1;
    std::vector<int> steps; // their numbers
    bool verbose = false;
    bool shrink = false;
    int killedAfter = 0; // microseconds; 0: never
    int kills = 0;       // how many games that are killed to play instead
};

// False, after a word to the user, if they make no sense.
bool readOptions(int argc, char** argv, Options* options);

#endif
