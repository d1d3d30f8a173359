// A lack of memory in the test's hands: a chosen `new` of a library returns null.
#ifndef TEST_FAILEDCREATION_H
#define TEST_FAILEDCREATION_H

// While one of these exists, the library's objects are counted as it creates them, and one of them fails.
// Only the `new` expressions in the library's own code count, not what they cause elsewhere.
class FailedCreation
{
public:
    enum { none = -1 };

    // The file name of the library, as "libzelkit.so", and which of its creations fails, from 0.
    FailedCreation(const char* library, int failing);
    ~FailedCreation();

    // How many there were so far.
    int count() const;

private:
    FailedCreation(const FailedCreation&);
    FailedCreation& operator=(const FailedCreation&);
};

#endif
