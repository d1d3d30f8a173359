// A line between a program and its X server: slow if wanted, it counts what the program waits for, lets
// requests fail as they do in a server that has no memory left, and ends at a chosen moment.
#ifndef TEST_XLINE_H
#define TEST_XLINE_H

#include <atomic>
#include <map>
#include <memory>
#include <string>
#include <sys/types.h>
#include <thread>
#include <vector>

class XLineEnd;

class XLine
{
public:
    // Listens as a display of its own and leads to the server of $DISPLAY. What goes over it takes so many
    // milliseconds, each way.
    explicit XLine(int delay);
    ~XLine();

    // Of the display, as ":5000".
    const std::string& name() const { return m_name; }

    // How often a program waited for the server so far; and before the first window was shown.
    unsigned answers() const { return m_answers; }
    unsigned answersAtFirst() const { return m_answersAtFirst; }
    unsigned requests() const { return m_requests; }

    // From now on the requests are counted that make a window, pixmap, GC, font, cursor, map of colours,
    // picture or set of glyphs; the n-th of them, from 0, fails with BadAlloc. None does if n is -1.
    void failCreation(int n);
    int creations() const { return m_creations; }

    // From now on each new connection ends after so many messages, requests, answers and the greetings of
    // both sides together, and half of the next one.
    void endAfter(int messages) { m_mostMessages = messages; }
    // The connection ends with the next answer. The program, a child of this one, gets both at once: it is
    // stopped meanwhile.
    void endWithAnswerTo(pid_t program) { m_answered = program; }

private:
    friend class XLineEnd;
    XLine(const XLine&);
    XLine& operator=(const XLine&);

    void run();
    void accept();
    bool failsNow(const char* request);

    const int m_delay;
    int m_listener;
    int m_render; // first byte of Render's requests
    std::string m_server, m_name, m_path;
    std::vector<std::unique_ptr<XLineEnd>> m_ends;
    std::atomic<unsigned> m_answers{0}, m_answersAtFirst{0}, m_requests{0};
    std::atomic<int> m_creations{0}, m_failing{-1};
    std::atomic<int> m_mostMessages{-1};
    std::atomic<pid_t> m_answered{0};
    std::atomic<bool> m_shown{false}, m_end{false};
    std::thread m_thread;
};

#endif
