#include "examplemachine.h"

#include <cstdlib>
#include <fstream>
#include <sstream>

ExampleMachine::ExampleMachine()
{
    std::string name = (std::filesystem::temp_directory_path() / "zelkit-machine-XXXXXX").string();
    if (!mkdtemp(&name[0]))
        std::abort();
    m_folder = name;
    std::filesystem::create_directory(m_folder / "net");
    writeAll();
}

ExampleMachine::~ExampleMachine()
{
    std::filesystem::remove_all(m_folder);
}

void ExampleMachine::write(const std::string& file, const std::string& text) const
{
    std::ofstream(m_folder / file) << text;
}

void ExampleMachine::remove(const std::string& file) const
{
    std::filesystem::remove(m_folder / file);
}

void ExampleMachine::pass(int milliseconds, double processor, double memory, long long bytes, double disk)
{
    const long long ticks = static_cast<long long>(milliseconds * processor + 0.5);
    m_busy += ticks;
    m_idle += milliseconds - ticks;
    m_memory = static_cast<int>(1000000 * memory + 0.5);
    m_bytes += bytes;
    m_diskWork += static_cast<long long>(milliseconds * disk + 0.5);
    writeAll();
}

void ExampleMachine::writeAll() const
{
    std::ostringstream stat, meminfo, net, disks;
    stat << "cpu  " << m_busy - 100 << " 40 50 " << m_idle - 200 << " 200 4 6 0 0 0\n"
         << "cpu0 1 2 3 4 5 6 7 0 0 0\nintr 12345 6 7\nctxt 99\n";
    meminfo << "MemTotal:        1000000 kB\nMemFree:          120000 kB\n"
            << "MemAvailable:  " << 1000000 - m_memory << " kB\nBuffers:           10000 kB\n";
    net << "Inter-|   Receive                            |  Transmit\n"
        << " face |bytes    packets errs drop fifo frame compressed multicast|bytes    packets\n"
        << "    lo: 777777 139 0 0 0 0 0 0 777777 139 0 0 0 0 0 0\n"
        << "  eth0: " << m_bytes - 1000 << " 154 0 0 0 0 0 0 1000 93 0 0 0 0 0 0\n";
    disks << "   7       0 loop0 0 0 0 0 0 0 0 0 0 0 0\n"
          << " 254       0 vda 45 74 26 47 43 24 10 65 0 " << m_diskWork << " 118 15 92 80 64 53 19\n"
          << " 254       1 vda1 45 74 26 47 43 24 10 65 0 " << m_diskWork / 2 << " 118 15 92 80 64 53 19\n";
    write("stat", stat.str());
    write("meminfo", meminfo.str());
    write("net/dev", net.str());
    write("diskstats", disks.str());
}
