// The stand-in for the maker's logging library: just the one call that zelkit makes.
#include <cstdarg>
#include <cstdio>
#include <cstdlib>

// Writes one line to the error output, formatted as by printf, and aborts the program.
extern "C" void murmel_fatal(const char* format, ...) __attribute__((format(printf, 1, 2), noreturn));

extern "C" void murmel_fatal(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    std::vfprintf(stderr, format, arguments);
    va_end(arguments);
    std::fputc('\n', stderr);
    std::abort();
}
