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
