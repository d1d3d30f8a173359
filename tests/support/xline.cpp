#include "xline.h"

#include <X11/Xlib.h>
#include <X11/Xproto.h>
#include <X11/extensions/renderproto.h>
#include <csignal>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <stdexcept>

namespace
{

using Clock = std::chrono::steady_clock;

template <class Number>
Number read(const char* data, size_t at)
{
    Number number;
    std::memcpy(&number, data + at, sizeof number);
    return number;
}

template <class Number>
void write(char* data, size_t at, Number number)
{
    std::memcpy(data + at, &number, sizeof number);
}

size_t padded(size_t length)
{
    return (length + 3) / 4 * 4;
}

sockaddr_un addressOf(const std::string& path)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    std::snprintf(address.sun_path, sizeof address.sun_path, "%s", path.c_str());
    return address;
}

std::string pathOf(const std::string& display)
{
    return "/tmp/.X11-unix/X" + std::to_string(std::atoi(display.c_str() + 1));
}

// What has come, is on its way, and waits to be written.
struct Direction {
    int from, to;
    std::string incomplete;
    std::deque<std::pair<Clock::time_point, std::string>> underWay;
    std::string arrived;

    bool receive()
    {
        char buffer[65536];
        const ssize_t got = recv(from, buffer, sizeof buffer, MSG_DONTWAIT);
        if (got > 0)
            incomplete.append(buffer, static_cast<size_t>(got));
        return got > 0 || (got < 0 && (errno == EAGAIN || errno == EINTR));
    }
    void send(const std::string& message, Clock::time_point due)
    {
        if (!underWay.empty() && underWay.back().first == due)
            underWay.back().second += message;
        else
            underWay.emplace_back(due, message);
    }
    bool deliver()
    {
        for (; !underWay.empty() && underWay.front().first <= Clock::now(); underWay.pop_front())
            arrived += underWay.front().second;
        if (arrived.empty())
            return true;
        const ssize_t sent = ::send(to, arrived.data(), arrived.size(), MSG_DONTWAIT | MSG_NOSIGNAL);
        if (sent > 0)
            arrived.erase(0, static_cast<size_t>(sent));
        return sent > 0 || errno == EAGAIN || errno == EINTR;
    }
    bool isEmpty() const { return underWay.empty() && arrived.empty(); }
};

} // namespace

// One connection over the line.
class XLineEnd
{
public:
    XLineEnd(XLine* line, int program, int server)
        : m_line(line), m_up{program, server, {}, {}, {}}, m_down{server, program, {}, {}, {}},
          m_left(line->m_mostMessages)
    {
    }
    ~XLineEnd()
    {
        close(m_up.from);
        close(m_up.to);
    }

    int program() const { return m_up.from; }
    int server() const { return m_up.to; }
    bool waitsToWrite(bool toServer) const { return !(toServer ? m_up : m_down).arrived.empty(); }

    Clock::time_point nextDue() const
    {
        Clock::time_point next = Clock::time_point::max();
        for (const Direction* each : {&m_up, &m_down})
            if (!each->underWay.empty())
                next = std::min(next, each->underWay.front().first);
        return next;
    }

    // False at the end of the connection.
    bool work()
    {
        const Clock::time_point due = Clock::now() + std::chrono::milliseconds(m_line->m_delay);
        const bool open = m_up.receive() && m_down.receive();
        for (std::string part; !m_ended && !(part = takeRequest()).empty();)
            m_up.send(passing(part), due);
        for (std::string part; !m_ended && !(part = takeAnswer()).empty();)
            m_down.send(passing(part), due);
        const bool delivered = m_up.deliver() && m_down.deliver();
        if (m_stopped)
            goOn();
        return delivered && open && !(m_cut && m_down.isEmpty());
    }

private:
    // The first whole message of that length, or nothing as long as it is not whole.
    static std::string take(std::string* data, size_t length)
    {
        if (length == 0 || data->size() < length)
            return std::string();
        const std::string message = data->substr(0, length);
        data->erase(0, length);
        return message;
    }

    std::string takeRequest()
    {
        const std::string& data = m_up.incomplete;
        if (!m_greeted) {
            if (data.size() < 12)
                return std::string();
            const std::string greeting = take(&m_up.incomplete, 12 + padded(read<CARD16>(data.data(), 6)) +
                                                                    padded(read<CARD16>(data.data(), 8)));
            m_greeted = !greeting.empty();
            return greeting;
        }
        if (data.size() < 8 && (data.size() < 4 || read<CARD16>(data.data(), 2) != 1))
            return std::string();
        const size_t units = read<CARD16>(data.data(), 2);
        std::string request =
            take(&m_up.incomplete, 4 * (units ? units : size_t(read<CARD32>(data.data(), 4))));
        if (!request.empty())
            look(&request);
        return request;
    }

    // A request that shall fail gets an impossible name for what it makes; the server's complaint becomes
    // BadAlloc on its way back.
    void look(std::string* request)
    {
        ++m_requests;
        ++m_line->m_requests;
        if (!m_line->m_shown && (*request)[0] == X_MapWindow) {
            m_line->m_answersAtFirst = m_line->m_answers.load();
            m_line->m_shown = true;
        }
        if (!m_line->failsNow(request->data()))
            return;
        m_failed[static_cast<CARD16>(m_requests)] = read<CARD32>(request->data(), 4);
        write<CARD32>(&(*request)[0], 4, 0);
    }

    std::string takeAnswer()
    {
        const std::string& data = m_down.incomplete;
        if (!m_greetedBack) {
            if (data.size() < 8)
                return std::string();
            const std::string greeting = take(&m_down.incomplete, 8 + 4 * read<CARD16>(data.data(), 6));
            m_greetedBack = !greeting.empty();
            return greeting;
        }
        if (data.size() < 32)
            return std::string();
        const int type = data[0] & 0x7f;
        const bool longer = type == X_Reply || type == GenericEvent;
        std::string answer =
            take(&m_down.incomplete, 32 + (longer ? 4 * size_t(read<CARD32>(data.data(), 4)) : 0));
        if (answer.empty())
            return answer;
        if (type == X_Reply) {
            countAnswer(read<CARD16>(answer.data(), 2));
            stop(m_line->m_answered.exchange(0));
        }
        if (type == X_Error)
            disguise(&answer[0]);
        return answer;
    }

    // Who asks for several things together waits once: for the first answer. All that was asked by then comes
    // with it.
    void countAnswer(CARD16 number)
    {
        const unsigned long asked = m_requests - static_cast<CARD16>(m_requests - number);
        if (asked <= m_waited)
            return;
        m_waited = m_requests;
        ++m_line->m_answers;
    }

    void disguise(char* error)
    {
        const auto failed = m_failed.find(read<CARD16>(error, 2));
        if (failed == m_failed.end())
            return;
        error[1] = BadAlloc;
        write<CARD32>(error, 4, failed->second);
        m_failed.erase(failed);
    }

    std::string passing(const std::string& message)
    {
        if (m_left < 0 || m_left-- > 0)
            return message;
        m_ended = m_cut = true;
        return message.substr(0, message.size() / 2);
    }

    void stop(pid_t program)
    {
        if (!program)
            return;
        kill(program, SIGSTOP);
        int status;
        waitpid(program, &status, WUNTRACED);
        m_stopped = program;
        m_ended = true;
    }
    // The server says no more, but the program can still write: so a line over TCP ends.
    void goOn()
    {
        shutdown(program(), SHUT_WR);
        kill(m_stopped, SIGCONT);
        m_stopped = 0;
    }

    XLine* const m_line;
    Direction m_up, m_down;
    int m_left; // messages; without limit if negative
    bool m_ended = false, m_cut = false;
    pid_t m_stopped = 0;
    bool m_greeted = false, m_greetedBack = false;
    unsigned long m_requests = 0;
    unsigned long m_waited = 0;        // of the requests, those whose answers the program has waited for
    std::map<CARD16, CARD32> m_failed; // what they would have made, by the number of the request
};

XLine::XLine(int delay)
    : m_delay(delay), m_listener(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)), m_render(-1)
{
    const char* const display = std::getenv("DISPLAY");
    m_server = pathOf(display ? display : ":0");
    if (Display* asked = XOpenDisplay(nullptr)) {
        int event, error;
        XQueryExtension(asked, "RENDER", &m_render, &event, &error);
        XCloseDisplay(asked);
    }
    for (int number = 5000; m_path.empty() && number < 6000; ++number) {
        const sockaddr_un address = addressOf(pathOf(":" + std::to_string(number)));
        if (bind(m_listener, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) {
            m_name = ":" + std::to_string(number);
            m_path = address.sun_path;
        }
    }
    if (m_path.empty() || listen(m_listener, 8) != 0)
        throw std::runtime_error("no line to the X server can be made");
    m_thread = std::thread([this] { run(); });
}

XLine::~XLine()
{
    m_end = true;
    m_thread.join();
    close(m_listener);
    unlink(m_path.c_str());
}

void XLine::failCreation(int n)
{
    m_failing = -1;
    m_creations = 0;
    m_failing = n;
}

bool XLine::failsNow(const char* request)
{
    const int type = static_cast<unsigned char>(request[0]);
    const int minor = static_cast<unsigned char>(request[1]);
    static const int core[] = {X_CreateWindow, X_CreatePixmap,      X_CreateGC,      X_OpenFont,
                               X_CreateCursor, X_CreateGlyphCursor, X_CreateColormap};
    static const int render[] = {X_RenderCreatePicture, X_RenderCreateGlyphSet, X_RenderCreateCursor,
                                 X_RenderCreateSolidFill};
    const bool creates = type == m_render
                             ? std::find(std::begin(render), std::end(render), minor) != std::end(render)
                             : std::find(std::begin(core), std::end(core), type) != std::end(core);
    return creates && m_creations++ == m_failing;
}

void XLine::accept()
{
    const int program = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
    const int server = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const sockaddr_un address = addressOf(m_server);
    m_ends.emplace_back(new XLineEnd(this, program, server));
    if (connect(server, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
        m_ends.pop_back();
}

void XLine::run()
{
    while (!m_end) {
        std::vector<pollfd> watched = {{m_listener, POLLIN, 0}};
        Clock::time_point due = Clock::now() + std::chrono::milliseconds(50); // to see the end
        for (const auto& end : m_ends) {
            const auto events = [&](bool toServer) {
                return static_cast<short>(end->waitsToWrite(toServer) ? POLLIN | POLLOUT : POLLIN);
            };
            watched.push_back({end->program(), events(false), 0});
            watched.push_back({end->server(), events(true), 0});
            due = std::min(due, end->nextDue());
        }
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(due - Clock::now()).count();
        poll(watched.data(), watched.size(), static_cast<int>(std::max<long long>(left + 1, 0)));
        if (watched[0].revents & POLLIN)
            accept();
        m_ends.erase(std::remove_if(m_ends.begin(), m_ends.end(),
                                    [](const std::unique_ptr<XLineEnd>& end) { return !end->work(); }),
                     m_ends.end());
    }
}
