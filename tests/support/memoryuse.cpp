#include "memoryuse.h"

#include <fstream>
#include <malloc.h>
#include <string>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes(void); // gcc installs no header with it
#endif

std::size_t heapInUse()
{
#if defined(__SANITIZE_ADDRESS__)
    return __sanitizer_get_current_allocated_bytes();
#else
    return mallinfo2().uordblks;
#endif
}

std::size_t residentMemory(const char* process)
{
    std::ifstream file(std::string("/proc/") + (process ? process : "none") + "/statm");
    std::size_t all = 0, resident = 0;
    file >> all >> resident;
    return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE)) / 1024;
}
