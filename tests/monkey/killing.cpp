#include "killing.h"

#include "random.h"
#include "xinput.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

#include <X11/Xlib.h>

namespace
{

XErrorHandler toolkitsHandler = nullptr;

// The windows that the hands reach for die with the other connection, a little before the program knows.
int forgiveHands(Display* server, XErrorEvent* error)
{
    return server == xinput::display() ? 0 : toolkitsHandler(server, error);
}

} // namespace

void killOwnerLater(unsigned long window, int microseconds)
{
    toolkitsHandler = XSetErrorHandler(forgiveHands);
    std::signal(SIGCHLD, SIG_IGN);
    if (fork() != 0)
        return;
    for (int file = 3; file < 64; ++file)
        close(file);
    Display* display = XOpenDisplay(nullptr);
    usleep(static_cast<useconds_t>(microseconds));
    if (display) {
        XKillClient(display, window);
        XSync(display, False);
    }
    _exit(0);
}

namespace
{

const int latest = 400000; // microseconds after the beginning

// What it says on the error output, and how it ends.
std::string playKilled(const char* program, int seed, int microseconds, int* status)
{
    int ends[2];
    if (pipe(ends) != 0)
        return "no pipe";
    const std::string seedText = std::to_string(seed);
    const std::string timeText = std::to_string(microseconds);
    const pid_t child = fork();
    if (child == 0) {
        dup2(ends[1], STDERR_FILENO);
        close(ends[0]);
        close(ends[1]);
        execl(program, program, "--seed", seedText.c_str(), "--steps", "1000000", "--killed-after",
              timeText.c_str(), static_cast<char*>(nullptr));
        _exit(2);
    }
    close(ends[1]);
    std::string said;
    char buffer[4096];
    for (ssize_t got = 0; (got = read(ends[0], buffer, sizeof buffer)) > 0;)
        said.append(buffer, static_cast<std::size_t>(got));
    close(ends[0]);
    waitpid(child, status, 0);
    return said;
}

bool isOneLine(const std::string& text)
{
    return std::count(text.begin(), text.end(), '\n') == 1 && text.back() == '\n';
}

} // namespace

int playKilledGames(const char* program, int count)
{
    Random random(1);
    for (int seed = 1; seed <= count; ++seed) {
        const int time = random.below(latest);
        int status = 0;
        const std::string said = playKilled(program, seed, time, &status);
        if (WIFEXITED(status) && WEXITSTATUS(status) == 1 && isOneLine(said))
            continue;
        std::fprintf(stderr, "monkey: seed %d killed after %d us: status %d, it said\n%s", seed, time, status,
                     said.c_str());
        return 1;
    }
    std::printf("monkey: %d connections ended, each with one line and exit status 1\n", count);
    return 0;
}
