// The line to the X server ends in the midst of its messages: one line tells so, and the exit status is 1.
#include "childprogram.h"
#include "xline.h"

#include <gtest/gtest.h>

namespace
{

std::string lossOf(const XLine& line)
{
    return "The connection to the X server " + line.name() + " is lost.\n";
}

// Xlib tells nobody of an end that comes with an answer.
void expectEndWith(const char* answer, const char* thing)
{
    XLine line(0);
    ChildProgram program(MAKER_PROGRAM, line.name().c_str(), {answer, thing});
    ASSERT_EQ("ready\n", program.line());
    line.endWithAnswerTo(program.process());
    program.endInput();
    EXPECT_EQ(lossOf(line), program.rest());
    EXPECT_EQ(1, program.exitStatus());
}

} // namespace

TEST(LostWithAnAnswer, IsToldBeforeAWindowIsMade)
{
    expectEndWith("pointer", "window");
}

TEST(LostWithAnAnswer, IsToldBeforeAPixmapIsMade)
{
    expectEndWith("pointer", "pixmap");
}

TEST(LostWithAnAnswer, IsToldWhenAllIsDone)
{
    expectEndWith("sync", "nothing");
}

// Once for every message, from the greetings to the last one of a program that shows texts: with half of it.
TEST(LostAnywhere, IsToldOnce)
{
    XLine line(0);
    int messages = 0;
    for (bool lost = true; lost; ++messages) {
        line.endAfter(messages);
        ChildProgram program(PLAIN_PROGRAM, line.name().c_str(), {"--texts"});
        std::string said = program.rest();
        said = said.substr(0, said.find("label measured")); // its own last words
        const int status = program.exitStatus();
        lost = status != 0;
        if (!lost)
            continue;
        EXPECT_EQ(messages < 2 ? "plain: cannot connect to the X server " + line.name() + "\n" : lossOf(line),
                  said)
            << messages;
        EXPECT_EQ(1, status) << messages;
    }
    EXPECT_GT(messages, 50);
}
