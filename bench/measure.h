// What every benchmark counts.
#ifndef BENCH_MEASURE_H
#define BENCH_MEASURE_H

#include <benchmark/benchmark.h>

#include "process.h"

// Of the clock, and of processor time of the program and the server together: what a machine with nothing
// else to do would reach on one core.
const char* const perSecond = "per second";
const char* const perCpuSecond = "per CPU second";

// Runs rounds of `count` equal steps, each round ended by waiting for the X server, and counts steps a second
// and the processor time of a step in microseconds, here and in the server.
template <class Step, class Wait>
void measureRounds(benchmark::State& state, Display* display, int count, Step step, Wait wait)
{
    const clockid_t server = serverClock(display);
    const double clientBefore = secondsOf(CLOCK_PROCESS_CPUTIME_ID);
    const double serverBefore = secondsOf(server);
    for (auto _ : state) {
        for (int i = 0; i < count; ++i)
            step();
        wait();
    }
    const double steps = double(state.iterations()) * count;
    const double client = secondsOf(CLOCK_PROCESS_CPUTIME_ID) - clientBefore;
    const double served = secondsOf(server) - serverBefore;
    state.counters[perSecond] = benchmark::Counter(steps, benchmark::Counter::kIsRate);
    state.counters[perCpuSecond] = steps / (client + served);
    state.counters["client us"] = client / steps * 1e6;
    state.counters["server us"] = served / steps * 1e6;
}

#endif
