// Types, small helpers and messages that every other header uses.
#ifndef QGLOBAL_H
#define QGLOBAL_H

#include <stddef.h>

#define QT_VERSION 0x030308
#define QT_VERSION_STR "3.3.8b"

#define Q_EXPORT __attribute__((visibility("default")))
// Private members of exported classes that only the library itself calls.
#define ZELTK_LOCAL __attribute__((visibility("hidden")))
#define Q_WS_X11
#define Q_OS_UNIX

typedef unsigned char uchar;
typedef unsigned short ushort;
typedef unsigned int uint;
typedef unsigned long ulong;
typedef char* pchar;
typedef uchar* puchar;
typedef const char* pcchar;

typedef signed char Q_INT8;
typedef unsigned char Q_UINT8;
typedef short Q_INT16;
typedef unsigned short Q_UINT16;
typedef int Q_INT32;
typedef unsigned int Q_UINT32;
typedef long Q_LONG;
typedef unsigned long Q_ULONG;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wlong-long"
typedef long long Q_INT64;
typedef unsigned long long Q_UINT64;
#pragma GCC diagnostic pop
typedef Q_INT64 Q_LLONG;
typedef Q_UINT64 Q_ULLONG;

#ifndef TRUE
#define TRUE true
#define FALSE false
#endif

#define QMAX(a, b) ((b) < (a) ? (a) : (b))
#define QMIN(a, b) ((a) < (b) ? (a) : (b))
#define QABS(a) ((a) >= 0 ? (a) : -(a))
#define Q_UNUSED(x) (void)(x)

//! Rounds to the nearest integer; a half goes up.
inline int qRound(double value)
{
    if (value >= 0.0)
        return int(value + 0.5); // lround() rounds a negative half down. NOLINT(bugprone-incorrect-roundings)
    const int cut = int(value);
    return value - double(cut) < -0.5 ? cut - 1 : cut;
}

//! The version of the Qt API that this library offers, as text.
Q_EXPORT const char* qVersion();

enum QtMsgType { QtDebugMsg, QtWarningMsg, QtFatalMsg };

typedef void (*QtMsgHandler)(QtMsgType type, const char* text);

//! Sends all messages to that function from now on; returns the function before it. Null restores the
//! default, which prints to the error output.
Q_EXPORT QtMsgHandler qInstallMsgHandler(QtMsgHandler handler);

//! Messages in the manner of printf. qFatal ends the program after printing.
Q_EXPORT void qDebug(const char* format, ...) __attribute__((format(printf, 1, 2)));
Q_EXPORT void qWarning(const char* format, ...) __attribute__((format(printf, 1, 2)));
Q_EXPORT void qFatal(const char* format, ...) __attribute__((format(printf, 1, 2)));

#ifndef Q_ASSERT
#ifdef QT_NO_DEBUG
#define Q_ASSERT(x)
#else
#define Q_ASSERT(x) ((x) ? (void)0 : qWarning("ASSERT: \"%s\" in %s (%d)", #x, __FILE__, __LINE__))
#endif
#endif

#endif
