// Chance that repeats: the same seed gives the same numbers on every machine.
#ifndef MONKEY_RANDOM_H
#define MONKEY_RANDOM_H

#include <cstdint>
#include <string>

class QString;

// Every number that anyInt() and text() give is also written to the trace, so that a step can be read.
class Random
{
public:
    explicit Random(std::uint64_t seed = 0) : m_state(seed) {}

    // Bytes that choices come from are spent as needed for numbers up to `largest`.
    std::uint64_t next(std::uint64_t largest = UINT64_MAX);
    int below(int count)
    {
        const auto choices = static_cast<unsigned>(count);
        return count > 0 ? static_cast<int>(next(choices - 1) % choices) : 0;
    }
    int between(int low, int high) { return low + below(high - low + 1); }
    bool chance(int percent) { return below(100) < percent; }

    // Mostly what programs say, often the limits of types and protocols, sometimes any of the 2^32.
    int anyInt();
    // Empty, plain, with blanks and accelerators, long, of many scripts, with lone surrogates, with zeroes.
    QString text();

    // From now on the choices come from these bytes instead of from chance; after them each is the first one.
    void takeFrom(const unsigned char* bytes, std::size_t size);
    bool hasMore() const { return m_bytes != m_end; }

    std::string trace;

private:
    std::uint64_t m_state;
    const unsigned char* m_bytes = nullptr;
    const unsigned char* m_end = nullptr;
};

#endif
