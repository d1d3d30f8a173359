#include "childprogram.h"

#include <cstdlib>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

ChildProgram::ChildProgram(const std::string& file, const char* display, std::vector<std::string> arguments)
{
    int input[2], output[2];
    if (pipe2(input, O_CLOEXEC) != 0 || pipe2(output, O_CLOEXEC) != 0)
        std::abort();
    arguments.insert(arguments.begin(), file);
    std::vector<char*> argv;
    for (std::string& argument : arguments)
        argv.push_back(&argument[0]);
    argv.push_back(nullptr);
    m_process = fork();
    if (m_process == 0) {
        dup2(input[0], 0);
        dup2(output[1], 1);
        dup2(output[1], 2);
        if (display)
            setenv("DISPLAY", display, 1);
        else
            unsetenv("DISPLAY");
        execv(argv[0], argv.data());
        _exit(99);
    }
    close(input[0]);
    close(output[1]);
    m_input = input[1];
    m_output = fdopen(output[0], "r");
}

ChildProgram::~ChildProgram()
{
    endInput();
    std::fclose(m_output);
}

std::string ChildProgram::line()
{
    char text[1000];
    return std::fgets(text, sizeof text, m_output) ? text : "";
}

std::string ChildProgram::rest()
{
    std::string all;
    for (std::string next = line(); !next.empty(); next = line())
        all += next;
    return all;
}

void ChildProgram::endInput()
{
    if (m_input >= 0)
        close(m_input);
    m_input = -1;
}

int ChildProgram::exitStatus()
{
    int status = 0;
    waitpid(m_process, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}
