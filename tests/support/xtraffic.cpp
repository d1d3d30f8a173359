#include "xtraffic.h"

#include <X11/Xproto.h>
#include <dlfcn.h>
#include <sys/socket.h>
#include <sys/uio.h>

#include <algorithm>
#include <cstring>
#include <map>

namespace
{

XTraffic total = {0, 0, 0};

// What goes over a connection: first a greeting, then requests; each tells its length near its beginning.
class Stream
{
public:
    void take(const char* data, size_t length)
    {
        while (length > 0) {
            const size_t part = std::min(length, left > 0 ? left : headLength() - got);
            if (left == 0)
                takeHead(data, part);
            else
                left -= part;
            data += part;
            length -= part;
        }
    }

private:
    char head[12] = {};
    size_t got = 0;  // of the head
    size_t left = 0; // of a greeting or request whose head is there
    bool greeted = false;

    // A request beginning with a length of 0 is a long one and tells its length further on.
    size_t headLength() const { return !greeted ? 12 : got < 4 || units() > 0 ? 4 : 8; }
    size_t units() const { return read<unsigned short>(2); }

    void takeHead(const char* data, size_t length)
    {
        std::memcpy(head + got, data, length);
        got += length;
        if (got < headLength())
            return;
        total.requests += greeted;
        total.bytes += size();
        if (greeted)
            total.pixmaps += head[0] == X_CreatePixmap ? 1 : head[0] == X_FreePixmap ? -1 : 0;
        left = size() - got;
        got = 0;
        greeted = true;
    }

    // All of it, in units of four bytes.
    size_t size() const
    {
        if (!greeted)
            return 12 + padded(read<unsigned short>(6)) + padded(read<unsigned short>(8));
        return 4 * (units() > 0 ? units() : size_t(read<unsigned>(4)));
    }

    template <class Number>
    Number read(size_t at) const
    {
        Number number;
        std::memcpy(&number, head + at, sizeof number);
        return number;
    }

    static size_t padded(size_t length) { return (length + 3) / 4 * 4; }
};

std::map<int, Stream>& streams()
{
    static std::map<int, Stream> byDescriptor;
    return byDescriptor;
}

template <class Function>
Function* original(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace

XTraffic sentToX()
{
    return total;
}

// These two stand in front of the C library's functions, through which libX11 reaches its server.
extern "C" int connect(int fd, const sockaddr* address, socklen_t length)
{
    static auto* const really = original<int(int, const sockaddr*, socklen_t)>("connect");
    streams()[fd] = Stream();
    return really(fd, address, length);
}

extern "C" ssize_t writev(int fd, const iovec* parts, int count)
{
    static auto* const really = original<ssize_t(int, const iovec*, int)>("writev");
    const ssize_t written = really(fd, parts, count);
    const auto stream = streams().find(fd);
    if (written <= 0 || stream == streams().end())
        return written;
    size_t left = static_cast<size_t>(written);
    for (int i = 0; i < count && left > 0; ++i) {
        const size_t length = std::min(left, parts[i].iov_len);
        stream->second.take(static_cast<const char*>(parts[i].iov_base), length);
        left -= length;
    }
    return written;
}
