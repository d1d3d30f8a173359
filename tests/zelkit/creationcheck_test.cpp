// The report of a child widget that could not be created.
#include "../../src/creationcheck.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <new>

namespace
{

const struct {
    const char* format;
    const char* line;
} reports[] = {
    {ZELKIT_PUSH_BUTTON_FAILED, "File: some.cpp, line: 42: push button creation failed"},
    {ZELKIT_LABEL_FAILED, "File: some.cpp, line: 42: label creation failed"},
    {ZELKIT_LINE_EDIT_FAILED, "File: some.cpp, line: 42: line edit creation failed"},
    {ZELKIT_SCROLL_BAR_FAILED, "File: some.cpp, line: 42: scroll bar creation failed"},
    {ZELKIT_FRAME_FAILED, "File: some.cpp, line: 42: frame creation failed"},
    {ZELKIT_COMBO_BOX_FAILED, "File: some.cpp, line: 42: combo box creation failed"},
    {ZELKIT_CHECK_BOX_FAILED, "File: some.cpp, line: 42: check box creation failed"},
};

class CreationCheckDeathTest : public testing::Test
{
protected:
    void SetUp() override { testing::FLAGS_gtest_death_test_style = "threadsafe"; }
};

} // namespace

TEST_F(CreationCheckDeathTest, EveryKindOfChildHasItsLine)
{
    for (const auto& report : reports)
        EXPECT_EXIT(checkCreation(nullptr, report.format, "some.cpp", 42), testing::KilledBySignal(SIGABRT),
                    std::string("^") + report.line + "\n$");
}

TEST_F(CreationCheckDeathTest, AChildThatIsThereIsNotReported)
{
    int child = 0;
    EXPECT_EXIT(
        {
            checkCreation(&child, ZELKIT_LABEL_FAILED, "some.cpp", 42);
            std::exit(0);
        },
        testing::ExitedWithCode(0), "^$");
}
