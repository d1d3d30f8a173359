#include "options.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <numeric>

static bool readNumbers(const char* text, std::vector<int>* numbers)
{
    while (*text) {
        char* end = nullptr;
        numbers->push_back(static_cast<int>(std::strtol(text, &end, 10)));
        if (end == text || (*end && *end != ','))
            return false;
        text = *end ? end + 1 : end;
    }
    return true;
}

static int usage()
{
    std::fprintf(stderr, "usage: monkey [--seed N] [--steps N | --only N,N,...] [--verbose] [--shrink]\n"
                         "       monkey --kills N\n"
                         "  --seed N     which game to play (1)\n"
                         "  --steps N    how many steps to take (1000)\n"
                         "  --only LIST  take only these steps of the game\n"
                         "  --verbose    print every step\n"
                         "  --shrink     look for the fewest steps of a failing game that still fail\n"
                         "  --killed-after N  end the connection to the X server after so many microseconds\n"
                         "  --kills N    play so many games whose connection ends at a random moment\n");
    return 0;
}

bool readOptions(int argc, char** argv, Options* options)
{
    int count = 1000;
    for (int i = 1; i < argc; ++i) {
        const bool hasValue = i + 1 < argc;
        if (!std::strcmp(argv[i], "--verbose"))
            options->verbose = true;
        else if (!std::strcmp(argv[i], "--shrink"))
            options->shrink = true;
        else if (!std::strcmp(argv[i], "--seed") && hasValue)
            options->seed = std::atoi(argv[++i]);
        else if (!std::strcmp(argv[i], "--steps") && hasValue)
            count = std::atoi(argv[++i]);
        else if (!std::strcmp(argv[i], "--killed-after") && hasValue)
            options->killedAfter = std::atoi(argv[++i]);
        else if (!std::strcmp(argv[i], "--kills") && hasValue)
            options->kills = std::atoi(argv[++i]);
        else if (!std::strcmp(argv[i], "--only") && hasValue && readNumbers(argv[i + 1], &options->steps))
            ++i;
        else
            return usage();
    }
    if (options->steps.empty()) {
        options->steps.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
        std::iota(options->steps.begin(), options->steps.end(), 1);
    }
    return true;
}
