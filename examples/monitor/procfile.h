// What the kernel's files in /proc say, apart from where and when they are read.
#ifndef PROCFILE_H
#define PROCFILE_H

#include <map>
#include <optional>
#include <string>

// The beginning of a file, at most a mebibyte; nothing if it cannot be read.
std::optional<std::string> fileText(const std::string& path);

// Times of all processors together since the start, in ticks.
struct ProcessorTimes {
    unsigned long long busy;
    unsigned long long all;
};

// Kibibytes.
struct MemoryUse {
    unsigned long long used;
    unsigned long long all;
};

// A number that only grows, for each interface or disk.
using Counters = std::map<std::string, unsigned long long>;

// Each of the following is nothing if the text is not what it should be.

// Of /proc/stat. A processor that waits for a disk is not busy.
std::optional<ProcessorTimes> processorTimes(const std::string& stat);

// Of /proc/meminfo. What the kernel can give back at once is not used.
std::optional<MemoryUse> memoryUse(const std::string& meminfo);

// Of /proc/net/dev: bytes that came and went. Without the loopback.
std::optional<Counters> networkBytes(const std::string& dev);

// Of /proc/diskstats: milliseconds in which the disk had something to do.
std::optional<Counters> diskMilliseconds(const std::string& diskstats);

#endif
