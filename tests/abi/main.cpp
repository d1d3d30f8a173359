// Prints what programs compiled against zelkit rely on: zelkit-abi layout|virtuals|metaobjects
#include "members.h"

#include <qmetaobject.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include <cxxabi.h>
#include <dlfcn.h>
#include <elf.h>
#include <link.h>

namespace
{

// Bytes count from the end of the Qt class below: that class is the toolkit's business.
void printLayout(const Class& c)
{
    std::printf("%s : %s, %ld bytes more\n", c.name, c.base, long(c.size) - long(c.baseSize));
    for (const Member& member : c.members)
        std::printf("  %4ld %3zu %s\n", long(member.offset) - long(c.baseSize), member.size, member.name);
}

std::string demangled(const char* symbol)
{
    int status = 0;
    char* const text = abi::__cxa_demangle(symbol, nullptr, nullptr, &status);
    const std::string name = text ? text : symbol;
    std::free(text);
    return name;
}

struct Table {
    void* const* entries;
    std::size_t count;
};

// The table of the virtual functions of a class, as it lies in its library.
Table virtualTable(const char* className)
{
    const std::string symbol = "_ZTV" + std::to_string(std::strlen(className)) + className;
    void* const address = dlsym(RTLD_DEFAULT, symbol.c_str());
    Dl_info info;
    const ElfW(Sym)* entry = nullptr;
    if (!address || !dladdr1(address, &info, (void**)&entry, RTLD_DL_SYMENT) || !entry) {
        std::fprintf(stderr, "zelkit-abi: no library exports %s\n", symbol.c_str());
        std::exit(1);
    }
    return {static_cast<void* const*>(address), entry->st_size / sizeof(void*)};
}

// The class's own functions in the order of the table, and how many it has that its base has not.
void printVirtuals(const Class& c)
{
    const Table table = virtualTable(c.name);
    const long added = long(table.count) - long(virtualTable(c.base).count);
    std::printf("%s : %s, %ld new\n", c.name, c.base, added);
    for (std::size_t i = 0; i < table.count; ++i) {
        Dl_info info;
        if (!dladdr(table.entries[i], &info) || !info.dli_sname || info.dli_saddr != table.entries[i])
            continue;
        const std::string name = demangled(info.dli_sname);
        if (name.find(std::string(c.name) + "::") != std::string::npos)
            std::printf("  %s\n", name.c_str());
    }
}

void printEntry(const char* kind, int number, const QMetaData* entry)
{
    static const char* const access[] = {"private", "protected", "public"};
    std::printf("  %s %d %s %s\n", kind, number, access[entry->access], entry->name);
}

void printMetaObject(const Class& c)
{
    const QMetaObject& meta = *c.metaObject;
    std::printf("%s : %s, properties %d\n", meta.className(), meta.superClassName(), meta.numProperties());
    for (int i = 0; i < meta.numSignals(); ++i)
        printEntry("signal", i, meta.signal(i));
    for (int i = 0; i < meta.numSlots(); ++i)
        printEntry("slot", i, meta.slot(i));
}

const struct {
    const char* name;
    void (*print)(const Class& c);
} lists[] = {{"layout", printLayout}, {"virtuals", printVirtuals}, {"metaobjects", printMetaObject}};

} // namespace

int main(int argc, char** argv)
{
    for (const auto& list : lists) {
        if (argc != 2 || std::strcmp(argv[1], list.name) != 0)
            continue;
        for (const Class& c : allClasses())
            list.print(c);
        return 0;
    }
    std::fprintf(stderr, "usage: zelkit-abi layout|virtuals|metaobjects\n");
    return 2;
}
