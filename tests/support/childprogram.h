// A program of its own, whose output a test reads line by line.
#ifndef TEST_CHILDPROGRAM_H
#define TEST_CHILDPROGRAM_H

#include <cstdio>
#include <string>
#include <sys/types.h>
#include <vector>

class ChildProgram
{
public:
    // The file of the program; its $DISPLAY, none if null; its arguments.
    ChildProgram(const std::string& file, const char* display, std::vector<std::string> arguments);
    ~ChildProgram();

    pid_t process() const { return m_process; }
    // Output and messages of errors together; empty at the end.
    std::string line();
    std::string rest();
    // The end of its input, which it may wait for.
    void endInput();
    // -1 if it did not end by itself. Waits for it.
    int exitStatus();

private:
    ChildProgram(const ChildProgram&);
    ChildProgram& operator=(const ChildProgram&);

    pid_t m_process;
    int m_input;
    std::FILE* m_output;
};

#endif
