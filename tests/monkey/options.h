#ifndef MONKEY_OPTIONS_H
#define MONKEY_OPTIONS_H

#include <vector>

struct Options {
    int seed = 1;
    std::vector<int> steps; // their numbers
    bool verbose = false;
    bool shrink = false;
};

// False, after a word to the user, if they make no sense.
bool readOptions(int argc, char** argv, Options* options);

#endif
