#include "options.h"

#include <cstdlib>

const char usageText[] =
    "usage: zelkit-monitor [--interval MS] [--for SECONDS] [--proc FOLDER]\n"
    "Shows how busy the machine is; the left mouse button tells the value at the pointer's height.\n"
    "  --interval MS   take a sample every MS milliseconds, 1 to 3600000 (default: 1000)\n"
    "  --for SECONDS   end after that many seconds, 1 to 2000000\n"
    "  --proc FOLDER   read the files of FOLDER instead of those in /proc\n"
    "  --help          print this and end\n"
    "X options such as -display NAME are understood too.\n";

namespace
{

// False unless the text is a whole number between 1 and the most.
bool readNumber(const std::string& text, int most, int& number)
{
    if (text.empty() || text.size() > 9 || text.find_first_not_of("0123456789") != std::string::npos)
        return false;
    number = std::atoi(text.c_str());
    return number >= 1 && number <= most;
}

} // namespace

std::string readOptions(const std::vector<std::string>& arguments, Options& options)
{
    for (size_t i = 0; i < arguments.size(); i += 2) {
        const std::string& name = arguments[i];
        if (name != "--interval" && name != "--for" && name != "--proc")
            return "there is no option \"" + name + "\"";
        if (i + 1 == arguments.size())
            return name + " needs a value";
        const std::string& value = arguments[i + 1];
        if (name == "--interval" && !readNumber(value, 3600000, options.interval))
            return "--interval takes a number of milliseconds from 1 to 3600000, not \"" + value + "\"";
        if (name == "--for" && !readNumber(value, 2000000, options.seconds))
            return "--for takes a number of seconds from 1 to 2000000, not \"" + value + "\"";
        if (name == "--proc")
            options.folder = value;
    }
    return std::string();
}
