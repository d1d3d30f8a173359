// Runs a program over a slow line to the X server: slow-line MILLISECONDS PROGRAM [ARGUMENT...]
// Prints what the program waited for when it has ended, and ends with its status.
#include "xline.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>

int main(int argc, char** argv)
{
    const int delay = argc > 2 ? std::atoi(argv[1]) : -1;
    if (delay < 0) {
        std::fputs("usage: slow-line MILLISECONDS PROGRAM [ARGUMENT...]\n", stderr);
        return 2;
    }
    XLine line(delay);
    setenv("DISPLAY", line.name().c_str(), 1);
    const pid_t child = fork();
    if (child == 0) {
        execvp(argv[2], argv + 2);
        std::perror(argv[2]);
        _exit(127);
    }
    int status = 0;
    waitpid(child, &status, 0);
    std::printf("slow-line: %u requests; waited for %u answers before the first window was shown, for %u "
                "afterwards\n",
                line.requests(), line.answersAtFirst(), line.answers() - line.answersAtFirst());
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}
