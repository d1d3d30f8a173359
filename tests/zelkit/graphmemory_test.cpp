// ZelGraph without memory for its samples.
#include "graphpair.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

namespace
{

bool noMemory = false;

} // namespace

// These stand before the C++ library's, for this program and every library it loads.

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return noMemory ? nullptr : std::malloc(size ? size : 1);
}

void* operator new[](std::size_t size)
{
    void* const memory = std::malloc(size ? size : 1);
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

void operator delete[](void* memory) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}

TEST(GraphMemory, WithoutItNoSampleIsKeptUntilTheNextResize)
{
    GraphPair pair;
    pair.setValue(3);
    noMemory = true;
    pair.graph.resize(150, 90);
    settle();
    noMemory = false;
    EXPECT_EQ(pair.contents().count(0x0000dc), 0);
    EXPECT_GT(pair.contents().count(0x009600), 1000) << "the grid is there";
    for (int i = 0; i < 5; ++i)
        pair.setValue(i);
    EXPECT_EQ(pair.contents().count(0x0000dc), 0);
    pair.graph.clearAll();
    pair.setGraphParameters(0, 5, 10, 10, true);
    pair.press(40);
    pair.drag(50);
    pair.release();
    pair.resize(151, 90);
    for (int i = 0; i < 5; ++i)
        pair.setValue(i);
    EXPECT_EQ(pair.difference(), "");
}
