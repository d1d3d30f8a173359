// A clock in the test's hands: while one of these exists, time() in this program, and in the libraries it
// uses, answers what the test says.
#ifndef TEST_FAKETIME_H
#define TEST_FAKETIME_H

#include <ctime>

class FakeTime
{
public:
    explicit FakeTime(time_t now);
    ~FakeTime();
    void set(time_t now);
    void advance(long seconds);

private:
    FakeTime(const FakeTime&);
    FakeTime& operator=(const FakeTime&);
};

#endif
