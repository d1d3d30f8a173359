#include "messages.h"

#include <qglobal.h>

#include <cstdio>
#include <cstdlib>

static void record(QtMsgType type, const char* text)
{
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", text);
        std::abort();
    }
    testMessages().push_back(text);
}

void recordMessages()
{
    qInstallMsgHandler(record);
}

std::vector<std::string>& testMessages()
{
    static std::vector<std::string> messages;
    return messages;
}

std::string takeMessages()
{
    std::string all;
    for (const std::string& message : testMessages())
        all += message + "\n";
    testMessages().clear();
    return all;
}
