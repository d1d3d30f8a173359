// What this program has sent to X servers so far, counted where it is written to the socket: flush before
// asking.
#ifndef TEST_XTRAFFIC_H
#define TEST_XTRAFFIC_H

struct XTraffic {
    unsigned long requests;
    unsigned long bytes;
    long pixmaps; // created and not freed
};

// Of all connections together.
XTraffic sentToX();

inline XTraffic operator-(const XTraffic& now, const XTraffic& before)
{
    return {now.requests - before.requests, now.bytes - before.bytes, now.pixmaps - before.pixmaps};
}

#endif
