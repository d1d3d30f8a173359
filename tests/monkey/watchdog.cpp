#include "watchdog.h"

#include <csignal>
#include <cstring>
#include <execinfo.h>
#include <sys/time.h>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__)
static const int computingSeconds = 10;
#else
static const int computingSeconds = 2;
#endif

static const std::string* report = nullptr;
static const std::string* trace = nullptr;

static void say(const char* text, std::size_t length)
{
    if (write(STDERR_FILENO, text, length) < 0)
        _exit(3);
}

static void onTrouble(int signal)
{
    const char* what = signal == SIGPROF   ? "monkey: HANG, computing without end\n"
                       : signal == SIGALRM ? "monkey: HANG, waiting without end\n"
                                           : "monkey: CRASH\n";
    say(report->data(), report->size());
    say(trace->data(), trace->size());
    say("\n", 1);
    void* frames[40];
    backtrace_symbols_fd(frames, backtrace(frames, 40), STDERR_FILENO);
    say(what, std::strlen(what));
    std::signal(SIGABRT, SIG_DFL);
    abort();
}

void watchdog::start(const std::string* newReport, const std::string* newTrace)
{
    report = newReport;
    trace = newTrace;
    for (const int signal : {SIGPROF, SIGALRM, SIGABRT})
        std::signal(signal, onTrouble);
#if !defined(__SANITIZE_ADDRESS__)
    for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL})
        std::signal(signal, onTrouble);
#endif
}

void watchdog::step()
{
    const itimerval computing = {{0, 0}, {computingSeconds, 0}};
    const itimerval all = {{0, 0}, {60, 0}};
    setitimer(ITIMER_PROF, &computing, nullptr);
    setitimer(ITIMER_REAL, &all, nullptr);
}
