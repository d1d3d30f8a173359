// Images for which there is no memory.
#include "messages.h"

#include <gtest/gtest.h>
#include <qimage.h>

#include <cstdlib>
#include <new>

namespace
{

size_t largestBlock = static_cast<size_t>(-1);

// While one of these exists, larger blocks of memory are not to be had.
struct LittleMemory {
    explicit LittleMemory(size_t largest) { largestBlock = largest; }
    ~LittleMemory() { largestBlock = static_cast<size_t>(-1); }
};

} // namespace

// Not inline: a compiler that sees only one of the pair at a place takes the two for unequal.

__attribute__((noinline)) void* operator new(size_t size)
{
    void* const block = size > largestBlock ? nullptr : std::malloc(size);
    if (!block)
        throw std::bad_alloc();
    return block;
}

__attribute__((noinline)) void operator delete(void* block) noexcept
{
    std::free(block);
}

__attribute__((noinline)) void operator delete(void* block, size_t) noexcept
{
    std::free(block);
}

TEST(ImageMemory, ThatIsMissingMakesNullImages)
{
    const LittleMemory little(100000);
    QImage image(100, 100, 32);
    EXPECT_FALSE(image.isNull());
    EXPECT_FALSE(image.create(1000, 1000, 32));
    EXPECT_TRUE(image.isNull());
    EXPECT_EQ(QSize(0, 0), image.size());
    EXPECT_FALSE(image.bits());
    EXPECT_TRUE(image.create(10, 10, 32)) << "a smaller one is possible";
}

TEST(ImageMemory, ThatIsMissingKeepsPicturesFromBeingRead)
{
    char file[] = "/tmp/imageXXXXXX";
    ASSERT_NE(-1, mkstemp(file));
    QImage large(300, 300, 32);
    large.fill(0xff336699);
    ASSERT_TRUE(large.save(file, "PNG"));
    {
        const LittleMemory little(100000);
        EXPECT_TRUE(QImage(file).isNull());
    }
    EXPECT_EQ(large, QImage(file));
    std::remove(file);
}
