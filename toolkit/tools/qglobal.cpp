// Messages and the version.
#include <qglobal.h>

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace
{

QtMsgHandler messageHandler = nullptr;

void deliver(QtMsgType type, const char* format, va_list arguments)
{
    char text[8192];
    std::vsnprintf(text, sizeof text, format, arguments);
    if (messageHandler)
        messageHandler(type, text);
    else
        std::fprintf(stderr, "%s\n", text);
}

} // namespace

const char* qVersion()
{
    return QT_VERSION_STR;
}

QtMsgHandler qInstallMsgHandler(QtMsgHandler handler)
{
    QtMsgHandler before = messageHandler;
    messageHandler = handler;
    return before;
}

void qDebug(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    deliver(QtDebugMsg, format, arguments);
    va_end(arguments);
}

void qWarning(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    deliver(QtWarningMsg, format, arguments);
    va_end(arguments);
}

void qFatal(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    deliver(QtFatalMsg, format, arguments);
    va_end(arguments);
    if (!messageHandler)
        std::exit(1);
}
