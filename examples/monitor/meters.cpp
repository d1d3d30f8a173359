#include "meters.h"
#include "procfile.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace
{

using Number = unsigned long long;

// In the unit in which it has three digits at most.
std::string rateText(double bytes)
{
    const char* const units[] = {"B/s", "KiB/s", "MiB/s", "GiB/s"};
    size_t unit = 0;
    for (; bytes >= 999.5 && unit < 3; ++unit)
        bytes /= 1024;
    char text[64];
    std::snprintf(text, sizeof text, unit > 0 && bytes < 9.95 ? "%.1f %s" : "%.0f %s", bytes, units[unit]);
    return text;
}

Reading percent(double share)
{
    const long whole = std::lround(100 * std::clamp(share, 0.0, 1.0));
    return {whole, std::to_string(whole) + " %"};
}

// A counter that began anew, or a device that came or went, has not grown.
Number growth(const Counters& before, const std::pair<const std::string, Number>& after)
{
    const auto old = before.find(after.first);
    return old == before.end() || after.second < old->second ? 0 : after.second - old->second;
}

// Reads a file and understands it, if that is possible.
template <typename Value>
std::optional<Value> readFile(const std::string& path, std::optional<Value> (*understand)(const std::string&))
{
    const std::optional<std::string> text = fileText(path);
    return text ? understand(*text) : std::nullopt;
}

// A meter of what has changed since the last time.
template <typename Value>
class ChangeMeter : public Meter
{
public:
    using Understand = std::optional<Value> (*)(const std::string&);

    ChangeMeter(const std::string& path, Understand understand, long long now)
        : m_path(path), m_understand(understand), m_last(readFile(path, understand)), m_lastTime(now)
    {
    }

    std::optional<Reading> read(long long now) override
    {
        const std::optional<Value> value = readFile(m_path, m_understand);
        if (!value)
            return {};
        const double seconds = std::max(1LL, now - m_lastTime) / 1000.0;
        std::optional<Reading> reading;
        if (m_last)
            reading = compare(*m_last, *value, seconds);
        m_last = value;
        m_lastTime = now;
        return reading;
    }

private:
    virtual Reading compare(const Value& before, const Value& after, double seconds) = 0;

    const std::string m_path;
    const Understand m_understand;
    std::optional<Value> m_last;
    long long m_lastTime;
};

class ProcessorMeter : public ChangeMeter<ProcessorTimes>
{
public:
    using ChangeMeter::ChangeMeter;

private:
    Reading compare(const ProcessorTimes& before, const ProcessorTimes& after, double) override
    {
        if (after.all <= before.all || after.busy < before.busy)
            return percent(0);
        return percent(static_cast<double>(after.busy - before.busy) / (after.all - before.all));
    }
};

class NetworkMeter : public ChangeMeter<Counters>
{
public:
    using ChangeMeter::ChangeMeter;

private:
    Reading compare(const Counters& before, const Counters& after, double seconds) override
    {
        Number bytes = 0;
        for (const auto& interface : after)
            bytes += growth(before, interface);
        m_bytes += bytes;
        return {static_cast<long long>(m_bytes / 1024), rateText(bytes / seconds)};
    }

    Number m_bytes = 0;
};

class DiskMeter : public ChangeMeter<Counters>
{
public:
    using ChangeMeter::ChangeMeter;

private:
    Reading compare(const Counters& before, const Counters& after, double seconds) override
    {
        Number most = 0;
        for (const auto& disk : after)
            most = std::max(most, growth(before, disk));
        return percent(most / 1000.0 / seconds);
    }
};

class MemoryMeter : public Meter
{
public:
    explicit MemoryMeter(const std::string& path) : m_path(path) {}

    std::optional<Reading> read(long long) override
    {
        const std::optional<MemoryUse> use = readFile(m_path, memoryUse);
        if (!use)
            return {};
        return percent(static_cast<double>(use->used) / use->all);
    }

private:
    const std::string m_path;
};

} // namespace

std::unique_ptr<Meter> makeProcessorMeter(const std::string& folder, long long now)
{
    return std::make_unique<ProcessorMeter>(folder + "/stat", processorTimes, now);
}

std::unique_ptr<Meter> makeMemoryMeter(const std::string& folder, long long)
{
    return std::make_unique<MemoryMeter>(folder + "/meminfo");
}

std::unique_ptr<Meter> makeNetworkMeter(const std::string& folder, long long now)
{
    return std::make_unique<NetworkMeter>(folder + "/net/dev", networkBytes, now);
}

std::unique_ptr<Meter> makeDiskMeter(const std::string& folder, long long now)
{
    return std::make_unique<DiskMeter>(folder + "/diskstats", diskMilliseconds, now);
}
