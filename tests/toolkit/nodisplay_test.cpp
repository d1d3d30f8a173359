// Programs without an X server or without fonts, and programs that lose the server.
#include "childprogram.h"
#include "xinput.h"

#include <gtest/gtest.h>

#include <X11/Xlib.h>

#include <cstdlib>
#include <string>
#include <unistd.h>
#include <vector>

namespace
{

class Program : public ChildProgram
{
public:
    Program(const char* display, std::vector<std::string> arguments)
        : ChildProgram(PLAIN_PROGRAM, display, std::move(arguments))
    {
    }
};

} // namespace

TEST(NoDisplay, EndsWithAMessage)
{
    Program program(nullptr, {});
    EXPECT_EQ("plain: no X server is named; set DISPLAY or use -display\n", program.rest());
    EXPECT_EQ(1, program.exitStatus());
}

TEST(NoDisplay, AServerThatDoesNotAnswerIsNamed)
{
    Program program(":4711", {});
    EXPECT_EQ("plain: cannot connect to the X server :4711\n", program.rest());
    EXPECT_EQ(1, program.exitStatus());
    Program other(nullptr, {"-display", ":4712"});
    EXPECT_EQ("plain: cannot connect to the X server :4712\n", other.rest());
    EXPECT_EQ(1, other.exitStatus());
}

TEST(NoDisplay, ProgramsWithoutWindowsNeedNone)
{
    Program program(nullptr, {"--console"});
    EXPECT_EQ("console, type 0\n", program.rest());
    EXPECT_EQ(0, program.exitStatus());
}

TEST(NoDisplay, AWindowInSuchAProgramIsFatal)
{
    Program program(nullptr, {"--window"});
    EXPECT_EQ("QWidget: a QApplication with windows is needed before any widget\n", program.rest());
    EXPECT_EQ(1, program.exitStatus());
}

TEST(Display, CanBeNamedInTheCommandLine)
{
    Program program(nullptr, {"-first", "-display", getenv("DISPLAY"), "second"});
    const std::string window = program.line();
    EXPECT_EQ("window ", window.substr(0, 7));
    EXPECT_EQ("argument -first\n", program.line()) << "the toolkit takes only what is its own";
    EXPECT_EQ("argument second\n", program.line());
    XKillClient(xinput::display(), strtoul(window.c_str() + 7, nullptr, 10));
    xinput::sync();
    program.exitStatus();
}

TEST(Display, ASecondApplicationStartsAfresh)
{
    Program program(getenv("DISPLAY"), {"--twice"});
    EXPECT_EQ("override cursor 0, main widget 0\n", program.rest());
    EXPECT_EQ(0, program.exitStatus());
}

TEST(LostDisplay, EndsTheProgramWithAMessage)
{
    Program program(getenv("DISPLAY"), {});
    const std::string window = program.line();
    ASSERT_EQ("window ", window.substr(0, 7));
    XKillClient(xinput::display(), strtoul(window.c_str() + 7, nullptr, 10));
    xinput::sync();
    EXPECT_EQ("The connection to the X server " + std::string(getenv("DISPLAY")) + " is lost.\n",
              program.rest());
    EXPECT_EQ(1, program.exitStatus());
}

TEST(NoFont, IsReportedOnceAndEverythingElseWorks)
{
    const std::string file = testing::TempDir() + "/nofonts-" + std::to_string(getpid()) + ".conf";
    std::FILE* config = std::fopen(file.c_str(), "w");
    ASSERT_TRUE(config);
    std::fputs("<?xml version=\"1.0\"?><fontconfig></fontconfig>\n", config);
    std::fclose(config);
    setenv("FONTCONFIG_FILE", file.c_str(), 1);
    Program program(getenv("DISPLAY"), {"--texts"});
    unsetenv("FONTCONFIG_FILE");
    EXPECT_EQ("fontconfig finds no usable font, so no text can be shown.\nlabel measured\n", program.rest());
    EXPECT_EQ(0, program.exitStatus());
    std::remove(file.c_str());
}
