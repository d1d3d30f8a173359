// Processor time of this program and of the X server.
#ifndef BENCH_PROCESS_H
#define BENCH_PROCESS_H

#include <X11/Xlib.h>

#include <sys/socket.h>
#include <time.h>

#include <cstdio>
#include <cstdlib>

inline double secondsOf(clockid_t clock)
{
    timespec now = {0, 0};
    clock_gettime(clock, &now);
    return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
}

// The processor time of the server at the other end of a local connection.
inline clockid_t serverClock(Display* display)
{
    ucred server = {0, 0, 0};
    socklen_t size = sizeof server;
    clockid_t clock = 0;
    if (getsockopt(ConnectionNumber(display), SOL_SOCKET, SO_PEERCRED, &server, &size) != 0 ||
        clock_getcpuclockid(server.pid, &clock) != 0) {
        std::fprintf(stderr, "The X server's processor time cannot be read; it must run on this machine.\n");
        std::exit(1);
    }
    return clock;
}

#endif
