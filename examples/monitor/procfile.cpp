#include "procfile.h"

#include <algorithm>
#include <cstdio>
#include <sstream>
#include <vector>

namespace
{

using Number = unsigned long long;

// All numbers up to the first word that is none. Empty if there is a number with a sign or out of range.
std::vector<Number> numbers(const std::string& text)
{
    std::vector<Number> result;
    if (text.find('-') != std::string::npos)
        return result;
    std::istringstream words(text);
    for (Number number; words >> number;)
        result.push_back(number);
    return result;
}

// The line that begins with this word, without it.
std::optional<std::string> lineOf(const std::string& text, const std::string& word)
{
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
        if (line.compare(0, word.size(), word) == 0)
            return line.substr(word.size());
    return {};
}

std::optional<Number> entry(const std::string& text, const std::string& word)
{
    const std::optional<std::string> line = lineOf(text, word);
    const std::vector<Number> values = line ? numbers(*line) : std::vector<Number>();
    if (values.empty())
        return {};
    return values[0];
}

} // namespace

std::optional<std::string> fileText(const std::string& path)
{
    constexpr size_t most = 1 << 20;
    FILE* const file = std::fopen(path.c_str(), "r");
    if (!file)
        return {};
    std::string text;
    char piece[4096];
    for (size_t length; text.size() < most && (length = std::fread(piece, 1, sizeof piece, file)) > 0;)
        text.append(piece, length);
    const bool failed = std::ferror(file);
    std::fclose(file);
    if (failed)
        return {};
    return text;
}

// user nice system idle iowait irq softirq steal; time of guests is part of user.
std::optional<ProcessorTimes> processorTimes(const std::string& stat)
{
    const std::optional<std::string> line = lineOf(stat, "cpu ");
    if (!line)
        return {};
    std::vector<Number> times = numbers(*line);
    if (times.size() < 4)
        return {};
    times.resize(8);
    ProcessorTimes result = {0, 0};
    for (const Number time : times)
        result.all += time;
    result.busy = result.all - times[3] - times[4];
    return result;
}

// Old kernels do not say what is available.
std::optional<MemoryUse> memoryUse(const std::string& meminfo)
{
    const std::optional<Number> all = entry(meminfo, "MemTotal:");
    std::optional<Number> available = entry(meminfo, "MemAvailable:");
    if (!available) {
        available = entry(meminfo, "MemFree:");
        if (available)
            *available += entry(meminfo, "Buffers:").value_or(0) + entry(meminfo, "Cached:").value_or(0);
    }
    if (!all || !available || *all == 0)
        return {};
    return MemoryUse{*all - std::min(*all, *available), *all};
}

// name: bytes received, seven more numbers, bytes sent ...
std::optional<Counters> networkBytes(const std::string& dev)
{
    Counters result;
    bool known = false;
    std::istringstream lines(dev);
    for (std::string line; std::getline(lines, line);) {
        const size_t colon = line.find(':');
        if (colon == std::string::npos)
            continue; // a heading
        const std::vector<Number> values = numbers(line.substr(colon + 1));
        if (values.size() < 9)
            continue;
        known = true;
        const size_t start = std::min(line.find_first_not_of(' '), colon);
        const std::string name = line.substr(start, colon - start);
        if (name != "lo")
            result[name] = values[0] + values[8];
    }
    if (!known)
        return {};
    return result;
}

// major minor name, nine numbers, milliseconds of work ...
std::optional<Counters> diskMilliseconds(const std::string& diskstats)
{
    Counters result;
    std::istringstream lines(diskstats);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string major, minor, name, rest;
        words >> major >> minor >> name;
        std::getline(words, rest);
        const std::vector<Number> values = numbers(rest);
        if (values.size() >= 10)
            result[name] = values[9];
    }
    if (result.empty())
        return {};
    return result;
}
