// What the monitor shows: each meter reads one file of /proc whenever it is asked.
#ifndef METERS_H
#define METERS_H

#include <memory>
#include <optional>
#include <string>

struct Reading {
    // Percent; or, for a graph of rates, kibibytes since the meter was made.
    long long value;
    // For people, with the unit.
    std::string text;
};

class Meter
{
public:
    virtual ~Meter() = default;
    // Nothing if the file cannot be read or says nothing of use. `now`: milliseconds of a clock that is never
    // set. What is shown is what happened since the last time that the file could be read.
    virtual std::optional<Reading> read(long long now) = 0;
};

// The folder is /proc. `now` is the time of the making, as of read().
using MakeMeter = std::unique_ptr<Meter> (*)(const std::string& folder, long long now);

std::unique_ptr<Meter> makeProcessorMeter(const std::string& folder, long long now);
std::unique_ptr<Meter> makeMemoryMeter(const std::string& folder, long long now);
std::unique_ptr<Meter> makeNetworkMeter(const std::string& folder, long long now);
std::unique_ptr<Meter> makeDiskMeter(const std::string& folder, long long now);

#endif
