// zeltk-moc: the compiler for signals, slots and class names.
#include "classes.h"
#include "generator.h"

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

namespace
{

const char usage[] = "usage: zeltk-moc [options] file\n"
                     "Writes the code behind Q_OBJECT, signals and slots of a C++ file.\n"
                     "  -o FILE    write to FILE instead of the standard output\n"
                     "  -i         do not include the file in the code; usual for all but headers\n"
                     "  -f[HEADER] include HEADER, or the file itself\n"
                     "  -p PATH    put PATH/ before the name of the included file\n"
                     "  -v         show the version\n";

struct Options {
    std::string input;
    std::string output;
    std::string include;
    std::string path;
    bool noInclude = false;
    bool forceInclude = false;
};

int fail(const std::string& text)
{
    std::cerr << "zeltk-moc: " << text << "\n";
    return 1;
}

// The value of an option stands in the same word or in the next one.
bool takeValue(int argc, char** argv, int* index, std::string* value)
{
    if (std::strlen(argv[*index]) > 2) {
        *value = argv[*index] + 2;
        return true;
    }
    if (*index + 1 >= argc)
        return false;
    *value = argv[++*index];
    return true;
}

bool readOptions(int argc, char** argv, Options* options)
{
    for (int i = 1; i < argc; ++i) {
        const std::string word = argv[i];
        if (word == "-i") {
            options->noInclude = true;
        } else if (word.compare(0, 2, "-f") == 0) {
            options->forceInclude = true;
            options->include = word.substr(2);
        } else if (word.compare(0, 2, "-o") == 0) {
            if (!takeValue(argc, argv, &i, &options->output))
                return false;
        } else if (word.compare(0, 2, "-p") == 0) {
            if (!takeValue(argc, argv, &i, &options->path))
                return false;
        } else if (word.size() > 1 && word[0] == '-') {
            return false;
        } else if (options->input.empty()) {
            options->input = word;
        } else {
            return false;
        }
    }
    return !options->input.empty();
}

bool isHeader(const std::string& name)
{
    const std::string extension = std::filesystem::path(name).extension().string();
    return extension.compare(0, 2, ".h") == 0 || extension.compare(0, 2, ".H") == 0;
}

// The file is looked for from the folder of the code that includes it.
std::string includeName(const Options& options)
{
    if (options.noInclude || (!options.forceInclude && !isHeader(options.input)))
        return "";
    if (!options.include.empty())
        return options.include;
    if (!options.path.empty())
        return options.path + "/" + options.input;
    const std::filesystem::path input(options.input);
    const std::filesystem::path folder = std::filesystem::path(options.output).parent_path();
    if (input.is_absolute() || folder.empty())
        return options.input;
    std::error_code error;
    const std::filesystem::path near = std::filesystem::proximate(input, folder, error);
    return error ? options.input : near.string();
}

int run(const Options& options)
{
    std::ifstream file(options.input, std::ios::binary);
    std::ostringstream source;
    if (file.peek() != std::ifstream::traits_type::eof())
        source << file.rdbuf();
    if (!file.is_open() || file.bad() || !source)
        return fail(options.input + ": cannot be read");
    try {
        const moc::Contents contents = moc::parse(source.str());
        for (const moc::Warning& warning : contents.warnings)
            std::cerr << options.input << ":" << warning.line << ": warning: " << warning.text << "\n";
        if (contents.classes.empty())
            std::cerr << options.input << ":1: warning: no class has Q_OBJECT\n";
        std::ostringstream code;
        const size_t slash = options.input.rfind('/');
        moc::generate(code, options.input.substr(slash == std::string::npos ? 0 : slash + 1),
                      includeName(options), contents.classes);
        if (options.output.empty()) {
            std::cout << code.str();
            return std::cout.flush() ? 0 : fail("cannot write to the standard output");
        }
        std::ofstream out(options.output, std::ios::binary);
        out << code.str();
        out.close();
        return out ? 0 : fail(options.output + ": cannot be written");
    } catch (const moc::Error& error) {
        std::cerr << options.input << ":" << error.line << ": error: " << error.what() << "\n";
        return 1;
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 2 && !std::strcmp(argv[1], "-v")) {
        std::cout << "zeltk-moc, for the Qt 3.3 meta-object language\n";
        return 0;
    }
    Options options;
    if (!readOptions(argc, argv, &options)) {
        std::cerr << usage;
        return 1;
    }
    return run(options);
}
