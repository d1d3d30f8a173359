// Patterns for the search of objects by name.
#include "tools/regexp.h"

#include "tools/unicode.h"

// With sanitizers GCC takes members of the library's automaton for uninitialized.
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#endif
#include <regex>

namespace zeltk
{

bool matchesRegExp(const QString& pattern, const QString& text)
{
    try {
        return std::regex_search(toUtf8(text), std::regex(toUtf8(pattern)));
    } catch (const std::regex_error&) {
        return false;
    }
}

} // namespace zeltk
