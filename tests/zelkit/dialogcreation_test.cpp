// Each child of each dialog is missed when it cannot be created.
#include <colordlg.h>
#include <colorgroupdlg.h>
#include <fontdlg.h>

#include "failedcreation.h"

#include <gtest/gtest.h>

#include <csignal>
#include <string>
#include <vector>

namespace
{

struct Child {
    const char* kind;
    int line;
};

// In the order in which the dialogs create them.
const std::vector<Child> colorChildren = {
    {"push button", 73}, {"push button", 79}, {"label", 87},       {"label", 92},
    {"label", 97},       {"line edit", 102},  {"line edit", 109},  {"line edit", 116},
    {"scroll bar", 124}, {"scroll bar", 130}, {"scroll bar", 136}, {"frame", 143},
};

const std::vector<Child> colorGroupChildren = {
    {"label", 56},        {"label", 61},        {"label", 66},  {"label", 71},  {"frame", 76},
    {"frame", 88},        {"frame", 100},       {"frame", 112}, {"label", 127}, {"label", 136},
    {"label", 145},       {"label", 152},       {"label", 157}, {"label", 162}, {"frame", 169},
    {"frame", 185},       {"frame", 201},       {"frame", 215}, {"frame", 227}, {"frame", 239},
    {"push button", 254}, {"push button", 265},
};

const std::vector<Child> fontChildren = {
    {"push button", 102}, {"push button", 108}, {"label", 114},     {"combo box", 119},
    {"label", 128},       {"combo box", 133},   {"label", 140},     {"combo box", 145},
    {"check box", 152},   {"check box", 158},   {"check box", 164}, {"label", 170},
};

// How many objects the library creates for a dialog, of which one fails. The first dialog sets up what all
// share, so only a second one is looked at.
template <class Dialog>
int creations(int failing)
{
    QWidget* const none = nullptr;
    Dialog first(none, "first");
    FailedCreation failure("libzelkit.so", failing);
    Dialog second(none, "second");
    return failure.count();
}

template <class Dialog>
void expectReports(const char* file, const std::vector<Child>& children)
{
    EXPECT_EQ(creations<Dialog>(FailedCreation::none), static_cast<int>(children.size()));
    for (size_t i = 0; i < children.size(); ++i) {
        const std::string report = "^File: " + std::string(file) +
                                   "\\.cpp, line: " + std::to_string(children[i].line) + ": " +
                                   children[i].kind + " creation failed\n$";
        EXPECT_EXIT(creations<Dialog>(static_cast<int>(i)), testing::KilledBySignal(SIGABRT), report);
    }
}

class DialogCreationDeathTest : public testing::Test
{
protected:
    void SetUp() override { testing::FLAGS_gtest_death_test_style = "threadsafe"; }
};

} // namespace

TEST_F(DialogCreationDeathTest, EveryMissingChildOfTheColourDialogIsReported)
{
    expectReports<ZelColorDlg>("colordlg", colorChildren);
}

TEST_F(DialogCreationDeathTest, EveryMissingChildOfTheColourGroupDialogIsReported)
{
    expectReports<ZelColorGroupDlg>("colorgroupdlg", colorGroupChildren);
}

TEST_F(DialogCreationDeathTest, EveryMissingChildOfTheFontDialogIsReported)
{
    expectReports<ZelFontDlg>("fontdlg", fontChildren);
}
