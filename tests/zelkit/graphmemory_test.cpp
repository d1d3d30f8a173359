// ZelGraph and the memory for its samples.
#include "graphpair.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

namespace
{

bool noMemory = false;
std::size_t bytesAsked = 0; // by the last request that may fail
int arrays = 0;             // that are there

} // namespace

// These stand before the C++ library's, for this program and every library it loads.

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    bytesAsked = size;
    arrays += !noMemory;
    return noMemory ? nullptr : std::malloc(size ? size : 1);
}

void* operator new[](std::size_t size)
{
    void* const memory = std::malloc(size ? size : 1);
    if (!memory)
        throw std::bad_alloc();
    ++arrays;
    return memory;
}

void operator delete[](void* memory) noexcept
{
    arrays -= memory != nullptr;
    std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
    arrays -= memory != nullptr;
    std::free(memory);
}

TEST(GraphMemory, ThereIsOneArrayAndAtTheEndNone)
{
    QWidget window(0, "window");
    showAndWait(&window);
    const int before = arrays;
    {
        ZelGraph graph(&window, "graph");
        EXPECT_EQ(arrays, before);
        graph.show();
        for (int width = 40; width < 60; ++width) {
            graph.resize(width, 30);
            EXPECT_EQ(arrays, before + 1);
            EXPECT_EQ(bytesAsked, (static_cast<size_t>(width) - 2) * sizeof(double));
        }
    }
    EXPECT_EQ(arrays, before);
}

TEST(GraphMemory, WithoutColumnsThereIsNoArray)
{
    GraphPair pair;
    const int before = arrays;
    for (int width = 1; width <= 2; ++width) {
        pair.graph.resize(width, 50);
        pair.graph.setValue(3);
        EXPECT_EQ(arrays, before - 1) << width;
    }
    pair.graph.resize(3, 50);
    EXPECT_EQ(arrays, before);
    EXPECT_EQ(bytesAsked, sizeof(double));
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
