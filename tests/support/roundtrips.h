// How often the program waited for an answer of the X server, on any connection.
#ifndef TEST_ROUNDTRIPS_H
#define TEST_ROUNDTRIPS_H

class RoundTrips
{
public:
    // Counts from now on.
    RoundTrips();
    int count() const;

private:
    const int before;
};

#endif
