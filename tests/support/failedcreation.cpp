#include "failedcreation.h"

#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <new>

namespace
{

const char* watchedLibrary = nullptr;
int creations = 0;
int failingCreation = FailedCreation::none;

// True for the creation that fails. `caller` is an address in the code with the `new`.
bool fails(const void* caller)
{
    Dl_info place;
    if (!watchedLibrary || !dladdr(caller, &place) || !std::strstr(place.dli_fname, watchedLibrary))
        return false;
    return creations++ == failingCreation;
}

void* allocated(std::size_t size)
{
    void* const memory = std::malloc(size ? size : 1);
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

} // namespace

FailedCreation::FailedCreation(const char* library, int failing)
{
    creations = 0;
    failingCreation = failing;
    watchedLibrary = library;
}

FailedCreation::~FailedCreation()
{
    watchedLibrary = nullptr;
}

int FailedCreation::count() const
{
    return creations;
}

// These stand before the C++ library's, for this program and every library it loads.

void* operator new(std::size_t size)
{
    void* const memory = fails(__builtin_return_address(0)) ? nullptr : allocated(size);
    return memory;
}

// A test may have its own for arrays.

__attribute__((weak)) void* operator new[](std::size_t size)
{
    return allocated(size);
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return std::malloc(size ? size : 1);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return fails(__builtin_return_address(0)) ? nullptr : std::malloc(size ? size : 1);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

__attribute__((weak)) void operator delete[](void* memory) noexcept
{
    std::free(memory);
}

__attribute__((weak)) void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}
