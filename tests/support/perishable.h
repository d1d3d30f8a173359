// Widgets whose use after their end does not go unnoticed.
#ifndef TEST_PERISHABLE_H
#define TEST_PERISHABLE_H

#include <cstring>
#include <new>
#include <vector>

// Where they are kept until the test is over, so that their memory is not used for something else. The
// address sanitizer keeps freed memory by itself, and knows more of it.
class Graveyard
{
public:
    static void bury(void* memory, std::size_t size)
    {
#if defined(__SANITIZE_ADDRESS__)
        ::operator delete(memory, size);
#else
        std::memset(memory, 0xff, size); // every flag is set, every pointer is wild
        graves().push_back(memory);
#endif
    }
    static void clear()
    {
        for (void* memory : graves())
            ::operator delete(memory);
        graves().clear();
    }

private:
    static std::vector<void*>& graves()
    {
        static std::vector<void*> all;
        return all;
    }
};

// A widget that becomes rubbish at once when it is deleted: who still calls it does not get away with it.
template <typename Class>
class Perishable : public Class
{
public:
    using Class::Class;
    static void* operator new(std::size_t size) { return ::operator new(size); }
    static void operator delete(void* memory, std::size_t size) { Graveyard::bury(memory, size); }
};

#endif
