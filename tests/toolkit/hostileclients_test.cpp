// Other programs that are dead, slow, or lie: nothing that they send does harm.
#include "messages.h"
#include "printers.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qclipboard.h>
#include <qpushbutton.h>

#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <atomic>
#include <cstring>
#include <functional>
#include <poll.h>
#include <random>
#include <string>
#include <thread>
#include <vector>

namespace
{

// Owns the clipboard and answers the first question for UTF-8 in its own way, in a thread of its own.
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

    Atom atom(const char* name) { return XInternAtom(m_display, name, False); }
    void set(const XSelectionRequestEvent& r, Atom type, int format, const std::string& bytes)
    {
        XChangeProperty(m_display, r.requestor, r.property, type, format, PropModeReplace,
                        reinterpret_cast<const unsigned char*>(bytes.data()),
                        static_cast<int>(bytes.size()) / (format == 32 ? static_cast<int>(sizeof(long)) : 1));
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

QString textFrom(const Owner::Answer& answer)
{
    Owner owner(answer);
    settle();
    return QApplication::clipboard()->text(QClipboard::Clipboard);
}

} // namespace

TEST(HostileOwner, WhoNeverAnswersIsAskedOnceOnly)
{
    std::atomic<int> questions{0};
    EXPECT_TRUE(textFrom([&](Owner&, const XSelectionRequestEvent&) { ++questions; }).isNull());
    EXPECT_EQ(1, questions);
}

TEST(HostileOwner, WhoRefusesOneKindOfTextIsAskedForTheOther)
{
    EXPECT_EQ(QString("old"), textFrom([](Owner& owner, XSelectionRequestEvent r) {
                  if (r.target == XA_STRING)
                      owner.set(r, XA_STRING, 8, "old");
                  else
                      r.property = None;
                  owner.notify(r);
              }));
}

TEST(HostileOwner, WhoDiesWhenAskedHasNoText)
{
    EXPECT_TRUE(textFrom([](Owner& owner, const XSelectionRequestEvent&) { owner.close(); }).isNull());
}

TEST(HostileOwner, WhoAnnouncesPiecesAndDiesHasNoText)
{
    EXPECT_TRUE(textFrom([](Owner& owner, const XSelectionRequestEvent& r) {
                    const long size = -1;
                    owner.set(r, owner.atom("INCR"), 32,
                              std::string(reinterpret_cast<const char*>(&size), sizeof size));
                    owner.notify(r);
                    owner.close();
                }).isNull());
}

TEST(HostileOwner, WhoSaysToHaveAnsweredAndHasNotHasNoText)
{
    EXPECT_TRUE(textFrom([](Owner& owner, const XSelectionRequestEvent& r) { owner.notify(r); }).isNull());
}

TEST(HostileOwner, WhatIsNoTextIsNotTaken)
{
    const std::string numbers(8 * sizeof(long), '\xff');
    EXPECT_TRUE(textFrom([&](Owner& owner, const XSelectionRequestEvent& r) {
                    owner.set(r, XA_ATOM, 32, numbers);
                    owner.notify(r);
                }).isNull());
    EXPECT_TRUE(textFrom([&](Owner& owner, const XSelectionRequestEvent& r) {
                    owner.set(r, XA_PIXMAP, 8, numbers);
                    owner.notify(r);
                }).isNull());
}

TEST(HostileOwner, MalformedTextIsTakenAsFarAsItGoes)
{
    const QString text = textFrom([](Owner& owner, const XSelectionRequestEvent& r) {
        owner.set(r, owner.atom("UTF8_STRING"), 8, std::string("ab\xff\xc0\x80\xed\xa0\x80 z", 10));
        owner.notify(r);
    });
    EXPECT_EQ(QString("ab"), text.left(2));
}

TEST(HostileOwner, AHugePropertyIsReadWhole)
{
    const std::string huge(3000000, 'x');
    EXPECT_EQ(huge.size(), textFrom([&](Owner& owner, const XSelectionRequestEvent& r) {
                               owner.set(r, owner.atom("UTF8_STRING"), 8, huge);
                               owner.notify(r);
                           }).length());
}

// Whatever another program sends to a window, and whatever it writes into the properties there, the window
// goes on working.
TEST(HostileSender, EventsAndPropertiesOfAnyKindDoNoHarm)
{
    QWidget window(nullptr, "window");
    window.setGeometry(100, 100, 200, 100);
    QPushButton button("Press", &window);
    button.setGeometry(20, 20, 100, 40);
    showAndWait(&window);
    SignalRecorder recorder;
    recorder.watch(&button, SIGNAL(clicked()));
    Display* display = XOpenDisplay(nullptr);
    std::mt19937 random(1);
    static const char* const names[] = {"WM_PROTOCOLS",       "WM_STATE",        "_NET_WM_STATE",
                                        "_NET_FRAME_EXTENTS", "WM_HINTS",        "WM_NORMAL_HINTS",
                                        "XdndAware",          "WM_CLIENT_LEADER"};
    static const int types[] = {ConfigureNotify, ReparentNotify,  ClientMessage,    PropertyNotify,
                                SelectionNotify, SelectionClear,  SelectionRequest, MappingNotify,
                                GraphicsExpose,  NoExpose,        VisibilityNotify, KeymapNotify,
                                GravityNotify,   CirculateNotify, ColormapNotify};
    for (int i = 0; i < 3000; ++i) {
        const Atom name = XInternAtom(display, names[random() % 8], False);
        long numbers[20];
        for (long& number : numbers)
            number = random() % 3 ? static_cast<int>(random()) : static_cast<int>(random() % 4);
        XEvent event;
        std::memset(&event, 0, sizeof event);
        std::memcpy(&event, numbers, sizeof numbers);
        event.type = types[random() % 15];
        event.xany.display = display;
        event.xany.window = window.winId();
        event.xany.send_event = True;
        if (event.type == ClientMessage) {
            event.xclient.message_type = name;
            event.xclient.format = 32;
            event.xclient.data.l[0] = static_cast<long>(XInternAtom(display, "_NET_WM_PING", False));
        }
        if (random() % 4 == 0) {
            const int format = 8 << (random() % 3);
            XChangeProperty(display, window.winId(), name, random() % 2 ? XA_STRING : XA_CARDINAL, format,
                            PropModeReplace, reinterpret_cast<const unsigned char*>(numbers),
                            static_cast<int>(random() % 10));
        } else {
            XSendEvent(display, window.winId(), False, 0, &event);
        }
        if (i % 100 == 0) {
            XSync(display, False);
            settle();
        }
    }
    XCloseDisplay(display);
    settle();
    takeMessages();
    window.setGeometry(100, 100, 200, 100);
    window.show();
    settle();
    xinput::click(&button, 10, 10);
    EXPECT_TRUE(waitFor([&] { return recorder.count() > 0; }));
}

// Writing to the lost connection comes before anything is read from it.
TEST(LostConnectionDeathTest, WhoOnlyWritesIsToldToo)
{
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(
        {
            QWidget window(nullptr, "window");
            settle();
            XKillClient(xinput::display(), window.winId());
            XSync(xinput::display(), False);
            for (int i = 0; i < 100000; ++i) {
                window.move(i % 100, 0);
                QApplication::flushX();
            }
        },
        testing::ExitedWithCode(1), "^The connection to the X server :[0-9]+ is lost\\.\n$");
}
