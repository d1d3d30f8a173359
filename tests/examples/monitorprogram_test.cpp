// The monitor as a program: its arguments, and how it ends.
#include "examplemachine.h"
#include "options.h"
#include "pixels.h"
#include "waiting.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

struct Outcome {
    int status;
    std::string output;
};

Outcome run(const std::string& arguments)
{
    FILE* const program = popen((MONITOR_PROGRAM " " + arguments + " 2>&1").c_str(), "r");
    Outcome outcome;
    for (int c; (c = std::fgetc(program)) != EOF;)
        outcome.output += static_cast<char>(c);
    const int status = pclose(program);
    outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return outcome;
}

TEST(MonitorOptions, AreUnderstood)
{
    Options options;
    EXPECT_EQ(readOptions({}, options), "");
    EXPECT_EQ(options.interval, 1000);
    EXPECT_EQ(options.seconds, 0);
    EXPECT_EQ(options.folder, "/proc");
    EXPECT_EQ(readOptions({"--interval", "250", "--for", "60", "--proc", "/tmp"}, options), "");
    EXPECT_EQ(options.interval, 250);
    EXPECT_EQ(options.seconds, 60);
    EXPECT_EQ(options.folder, "/tmp");
}

TEST(MonitorOptions, OutOfRangeAreRefused)
{
    for (const char* value :
         {"0", "-1", "", "1.5", "12ms", "3600001", "99999999999999999999", " 5", "0x10"}) {
        Options options;
        EXPECT_NE(readOptions({"--interval", value}, options).find("--interval"), std::string::npos) << value;
        EXPECT_NE(readOptions({"--for", value}, options).find("--for"), std::string::npos) << value;
    }
}

TEST(MonitorOptions, WithoutAValueAreRefused)
{
    for (const char* name : {"--interval", "--for", "--proc"}) {
        Options options;
        EXPECT_EQ(readOptions({name}, options), std::string(name) + " needs a value");
    }
}

TEST(MonitorProgram, ExplainsItself)
{
    const Outcome outcome = run("--help");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, usageText);
    EXPECT_EQ(run("--interval 5 --help").output, usageText);
}

TEST(MonitorProgram, SaysWhatIsWrongInOneLine)
{
    const Outcome outcome = run("--fast");
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output,
              "zelkit-monitor: there is no option \"--fast\"; --help tells how it is called\n");
    EXPECT_EQ(run("--interval 0").status, 2);
    EXPECT_EQ(run("folder").status, 2);
}

TEST(MonitorProgram, EndsWhenItsTimeIsOver)
{
    const Outcome outcome = run("--interval 10 --for 1");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "");
}

TEST(MonitorProgram, KeepsRunningWithoutAnythingToRead)
{
    const Outcome outcome = run("--interval 10 --for 1 --proc /no/such/folder");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "");
}

TEST(MonitorProgram, MovesOn)
{
    ExampleMachine machine;
    machine.pass(1000, 0.3, 0.5, 0, 0);
    const pid_t program = fork();
    if (program == 0) {
        execl(MONITOR_PROGRAM, MONITOR_PROGRAM, "--interval", "20", "--proc", machine.folder().c_str(),
              static_cast<char*>(nullptr));
        _exit(99);
    }
    const auto memoryPixels = [] { return Pixels::ofRoot(0, 0, 1024, 768).count(0x50a0ff); };
    EXPECT_TRUE(waitFor([&] { return memoryPixels() >= 5; }, 20000)) << "samples come";
    const int before = memoryPixels();
    EXPECT_TRUE(waitFor([&] { return memoryPixels() >= before + 10; }, 20000)) << "and move to the left";
    kill(program, SIGTERM);
    int status;
    waitpid(program, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status)) << "it would have run on";
}

} // namespace
