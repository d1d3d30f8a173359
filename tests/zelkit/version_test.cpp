// The version functions, as C programs and plug-in loaders see them.
#include <zelversion.h>

#include <gtest/gtest.h>

#include <dlfcn.h>

TEST(Version, AllThreeNumbersAreWritten)
{
    int major = -1, minor = -1, patch = -1;
    zelkit_version(&major, &minor, &patch);
    EXPECT_EQ(major, 0);
    EXPECT_EQ(minor, 18);
    EXPECT_EQ(patch, 0);
}

TEST(Version, EveryNumberMayBeAskedForAlone)
{
    int major = -1, minor = -1, patch = -1;
    zelkit_version(&major, nullptr, nullptr);
    EXPECT_EQ(major, 0);
    zelkit_version(nullptr, &minor, nullptr);
    EXPECT_EQ(minor, 18);
    zelkit_version(nullptr, nullptr, &patch);
    EXPECT_EQ(patch, 0);
    zelkit_version(nullptr, nullptr, nullptr);
}

TEST(Version, TextIsOneConstant)
{
    EXPECT_STREQ(zelkit_version_str(), "0.18.0");
    EXPECT_EQ(zelkit_version_str(), zelkit_version_str());
}

TEST(Version, FunctionsHavePlainNamesInTheLibraryOfThatVersion)
{
    void* const library = dlopen("libzelkit.so.0.18", RTLD_NOW | RTLD_NOLOAD);
    ASSERT_NE(library, nullptr) << dlerror();
    EXPECT_EQ(dlsym(library, "zelkit_version"), reinterpret_cast<void*>(zelkit_version));
    EXPECT_EQ(dlsym(library, "zelkit_version_str"), reinterpret_cast<void*>(zelkit_version_str));
    dlclose(library);
}
