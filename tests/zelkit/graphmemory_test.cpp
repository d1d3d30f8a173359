// ZelGraph and the memory for its samples.
#include "failedcreation.h"
#include "graphpair.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <new>

namespace
{

int freedArrays = 0; // by the library itself

void freeArray(void* memory, const void* caller)
{
    Dl_info place;
    freedArrays += memory && dladdr(caller, &place) && std::strstr(place.dli_fname, "libzelkit.so");
    std::free(memory);
}

} // namespace

// These stand before the C++ library's, for this program and every library it loads.

void* operator new[](std::size_t size)
{
    void* const memory = std::malloc(size ? size : 1);
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

void operator delete[](void* memory) noexcept
{
    freeArray(memory, __builtin_return_address(0));
}

void operator delete[](void* memory, std::size_t) noexcept
{
    freeArray(memory, __builtin_return_address(0));
}

TEST(GraphMemory, ThereIsOneArrayAndAtTheEndNone)
{
    QWidget window(0, "window");
    showAndWait(&window);
    FailedCreation creations("libzelkit.so", FailedCreation::none);
    freedArrays = 0;
    {
        ZelGraph graph(&window, "graph");
        EXPECT_EQ(creations.count(), 0);
        graph.show();
        for (int i = 0; i < 20; ++i) {
            const int before = creations.count();
            graph.resize(40 + i, 30);
            EXPECT_EQ(creations.count(), before + 1);
            EXPECT_EQ(freedArrays, before);
        }
    }
    EXPECT_EQ(freedArrays, creations.count());
}

TEST(GraphMemory, WithoutColumnsThereIsNoArray)
{
    GraphPair pair;
    FailedCreation creations("libzelkit.so", FailedCreation::none);
    for (int width = 1; width <= 2; ++width) {
        pair.graph.resize(width, 50);
        pair.graph.setValue(3);
        EXPECT_EQ(creations.count(), 0) << width;
    }
    pair.graph.resize(3, 50);
    EXPECT_EQ(creations.count(), 1);
}

TEST(GraphMemory, WithoutItNoSampleIsKeptUntilTheNextResize)
{
    GraphPair pair;
    pair.setValue(3);
    {
        FailedCreation failure("libzelkit.so", 0);
        pair.graph.resize(150, 90);
        settle();
    }
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
