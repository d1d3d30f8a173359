// A program that owns the clipboard and answers as a test wants it to.
#ifndef TEST_SELECTIONOWNER_H
#define TEST_SELECTIONOWNER_H

#include "waiting.h"

#include <gtest/gtest.h> // before Xlib, which has names of its own
#include <qapplication.h>
#include <qclipboard.h>

#include <X11/Xlib.h>

#include <atomic>
#include <cstring>
#include <functional>
#include <poll.h>
#include <string>
#include <thread>

// Owns the clipboard and answers each question in its own way, in a thread of its own.
class Owner
{
public:
    typedef std::function<void(Owner&, const XSelectionRequestEvent&)> Answer;

    explicit Owner(const Answer& answer) : m_display(XOpenDisplay(nullptr)), m_answer(answer)
    {
        m_window = XCreateSimpleWindow(m_display, DefaultRootWindow(m_display), 0, 0, 1, 1, 0, 0, 0);
        XSetSelectionOwner(m_display, atom("CLIPBOARD"), m_window, CurrentTime);
        XSync(m_display, False);
        m_thread = std::thread([this] { run(); });
    }
    ~Owner()
    {
        m_end = true;
        m_thread.join();
        close();
    }

    Display* display() { return m_display; }
    Atom atom(const char* name) { return XInternAtom(m_display, name, False); }
    void set(const XSelectionRequestEvent& r, Atom type, int format, const std::string& bytes,
             int mode = PropModeReplace)
    {
        XChangeProperty(m_display, r.requestor, r.property, type, format, mode,
                        reinterpret_cast<const unsigned char*>(bytes.data()),
                        static_cast<int>(bytes.size()) / (format == 32 ? static_cast<int>(sizeof(long)) : 1));
    }
    // Says that the answer comes in pieces, of a size that no text has.
    void announcePieces(const XSelectionRequestEvent& r)
    {
        const long size = -1;
        XSelectInput(m_display, r.requestor, PropertyChangeMask);
        set(r, atom("INCR"), 32, std::string(reinterpret_cast<const char*>(&size), sizeof size));
        notify(r);
    }
    // Until the announcement, or a piece, is taken; false if it is not within some seconds.
    bool awaitTaking(const XSelectionRequestEvent& r)
    {
        for (int waits = 0; waits < 2000; ++waits) {
            XEvent event;
            while (XCheckTypedEvent(m_display, PropertyNotify, &event))
                if (event.xproperty.window == r.requestor && event.xproperty.state == PropertyDelete)
                    return true;
            pollfd server = {ConnectionNumber(m_display), POLLIN, 0};
            poll(&server, 1, 10);
        }
        return false;
    }
    void notify(const XSelectionRequestEvent& r)
    {
        XEvent reply;
        std::memset(&reply, 0, sizeof reply);
        reply.xselection.type = SelectionNotify;
        reply.xselection.requestor = r.requestor;
        reply.xselection.selection = r.selection;
        reply.xselection.target = r.target;
        reply.xselection.property = r.property;
        reply.xselection.time = r.time;
        XSendEvent(m_display, r.requestor, False, 0, &reply);
        XFlush(m_display);
    }
    void close()
    {
        if (m_display)
            XCloseDisplay(m_display);
        m_display = nullptr;
    }

private:
    void run()
    {
        while (!m_end && m_display) {
            pollfd server = {ConnectionNumber(m_display), POLLIN, 0};
            poll(&server, 1, 10);
            while (m_display && XPending(m_display)) {
                XEvent event;
                XNextEvent(m_display, &event);
                if (event.type == SelectionRequest)
                    m_answer(*this, event.xselectionrequest);
            }
        }
    }

    Display* m_display;
    Window m_window;
    Answer m_answer;
    std::atomic<bool> m_end{false};
    std::thread m_thread;
};

// What the program reads of the clipboard then.
inline QString textFrom(const Owner::Answer& answer)
{
    Owner owner(answer);
    settle();
    return QApplication::clipboard()->text(QClipboard::Clipboard);
}

#endif
