#include "shrink.h"

#include "options.h"

#include <cstdio>
#include <fcntl.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

static std::string joined(const std::vector<int>& steps)
{
    std::string text;
    for (const int step : steps)
        text += (text.empty() ? "" : ",") + std::to_string(step);
    return text;
}

static bool fails(const char* program, int seed, const std::vector<int>& steps)
{
    const std::string seedText = std::to_string(seed);
    const std::string list = joined(steps);
    const pid_t child = fork();
    if (child == 0) {
        const int nothing = open("/dev/null", O_WRONLY);
        dup2(nothing, 1);
        dup2(nothing, 2);
        execl(program, program, "--seed", seedText.c_str(), "--only", list.c_str(),
              static_cast<char*>(nullptr));
        _exit(2);
    }
    int status = 0;
    return waitpid(child, &status, 0) == child && !(WIFEXITED(status) && WEXITSTATUS(status) == 0);
}

// Without the steps from `first` on, `count` of them.
static std::vector<int> without(const std::vector<int>& steps, std::size_t first, std::size_t count)
{
    std::vector<int> rest(steps.begin(), steps.begin() + static_cast<long>(first));
    if (first + count < steps.size())
        rest.insert(rest.end(), steps.begin() + static_cast<long>(first + count), steps.end());
    return rest;
}

int shrink(const char* program, const Options& options)
{
    std::vector<int> steps = options.steps;
    if (!fails(program, options.seed, steps)) {
        std::printf("monkey: seed %d does not fail\n", options.seed);
        return 1;
    }
    for (std::size_t part = steps.size() / 2; part > 0; part /= 2) {
        for (std::size_t first = 0; first < steps.size() && steps.size() > 1;) {
            const std::vector<int> fewer = without(steps, first, part);
            if (!fewer.empty() && fails(program, options.seed, fewer))
                steps = fewer;
            else
                first += part;
        }
    }
    std::printf("monkey --verbose --seed %d --only %s\n", options.seed, joined(steps).c_str());
    return 0;
}
