// A folder like /proc of a machine that does what a test says.
#ifndef TEST_EXAMPLEMACHINE_H
#define TEST_EXAMPLEMACHINE_H

#include <filesystem>
#include <string>

class ExampleMachine
{
public:
    // A machine that has done nothing yet.
    ExampleMachine();
    ~ExampleMachine();

    std::string folder() const { return m_folder.string(); }

    // Writes one file as it is, "net/dev" for example.
    void write(const std::string& file, const std::string& text) const;
    void remove(const std::string& file) const;

    // A time passes. The shares are from 0 to 1; `bytes` went over the network.
    void pass(int milliseconds, double processor, double memory, long long bytes, double disk);

private:
    void writeAll() const;

    std::filesystem::path m_folder;
    long long m_busy = 1000, m_idle = 9000, m_bytes = 5000, m_diskWork = 300;
    int m_memory = 0;
};

#endif
