// What the monitor was told on its command line.
#ifndef OPTIONS_H
#define OPTIONS_H

#include <string>
#include <vector>

struct Options {
    int interval = 1000; // milliseconds between two samples
    int seconds = 0;     // after which it ends; 0: never
    std::string folder = "/proc";
};

extern const char usageText[];

// Fills in the options. What is wrong with the arguments, in words; empty if nothing is.
std::string readOptions(const std::vector<std::string>& arguments, Options& options);

#endif
