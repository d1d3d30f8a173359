#include "random.h"

#include <qstring.h>

#include <climits>

// SplitMix64: small, and good from its first number on.
std::uint64_t Random::next(std::uint64_t largest)
{
    if (m_end) {
        std::uint64_t value = 0;
        for (; largest > 0 && hasMore(); largest >>= 8)
            value = value << 8 | *m_bytes++;
        return value;
    }
    std::uint64_t z = (m_state += 0x9e3779b97f4a7c15u);
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
    return z ^ (z >> 31);
}

void Random::takeFrom(const unsigned char* bytes, std::size_t size)
{
    m_bytes = bytes;
    m_end = bytes + size;
}

int Random::anyInt()
{
    static const int limits[] = {INT_MIN, INT_MIN + 1, -65537,  -65536,  -32769,      -32768,
                                 -256,    -2,          -1,      0,       1,           2,
                                 127,     255,         256,     32767,   32768,       65535,
                                 65536,   100000,      1 << 24, 1 << 30, INT_MAX - 1, INT_MAX};
    const int kind = below(10);
    const int value = kind < 5   ? between(-20, 400)
                      : kind < 9 ? limits[below(sizeof limits / sizeof limits[0])]
                                 : static_cast<int>(static_cast<std::uint32_t>(next(UINT32_MAX)));
    trace += ' ' + std::to_string(value);
    return value;
}

QString Random::text()
{
    static const char* const plain[] = {"",
                                        " ",
                                        "&",
                                        "&&",
                                        "&Ok",
                                        "a&b",
                                        "two words",
                                        "one\ntwo",
                                        "tab\tstop",
                                        "12",
                                        "-1",
                                        "255",
                                        "99999999999999999999",
                                        "%1 %s %n",
                                        "<b>rich</b>",
                                        "\xe4\xf6\xfc"};
    const int kind = below(8);
    QString result;
    if (kind < 4) {
        result = QString::fromLatin1(plain[below(sizeof plain / sizeof plain[0])]);
    } else if (kind == 4) {
        result = QString::null;
    } else {
        const int length = kind == 5 ? between(1, 12) : kind == 6 ? between(1, 300) : below(20) ? 40 : 20000;
        // Given bytes, a text is no longer than what they say of it.
        for (int i = 0; i < length && (!m_end || hasMore()); ++i)
            result += QChar(static_cast<unsigned short>(chance(50) ? between(32, 126) : below(65536)));
    }
    trace += " text" + std::to_string(kind) + "(" + std::to_string(result.length()) + ")";
    return result;
}
