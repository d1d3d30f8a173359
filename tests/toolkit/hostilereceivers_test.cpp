// Programs that ask for long texts and do not keep to what is agreed: they die, give up, ask twice, or ask in
// the name of others.
#include "fastclock.h"
#include "memoryuse.h"
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

#include <cstring>
#include <map>
#include <string>

namespace
{

// Asks for the clipboard, piece by piece.
class Receiver
{
public:
    Receiver() : m_display(XOpenDisplay(nullptr))
    {
        m_window = XCreateSimpleWindow(m_display, DefaultRootWindow(m_display), 0, 0, 1, 1, 0, 0, 0);
        XSelectInput(m_display, m_window, PropertyChangeMask);
    }
    ~Receiver() { XCloseDisplay(m_display); }

    void ask(const char* property)
    {
        XConvertSelection(m_display, atom("CLIPBOARD"), atom("UTF8_STRING"), atom(property), m_window,
                          CurrentTime);
        XEvent event;
        XFlush(m_display);
        EXPECT_TRUE(waitFor([&] { return XCheckTypedEvent(m_display, SelectionNotify, &event); }));
        readNews();
        m_news[atom(property)] = 0; // what comes with the answer itself
        take(atom(property));
    }
    // The next piece of the answer in that property; empty at its end, or if there is none.
    std::string piece(const char* property)
    {
        const Atom name = atom(property);
        waitFor([&] {
            readNews();
            return m_news[name] > 0;
        });
        if (m_news[name] > 0)
            --m_news[name];
        return take(name);
    }
    std::string rest(const char* property)
    {
        std::string all;
        for (std::string next = piece(property); !next.empty(); next = piece(property))
            all += next;
        return all;
    }

private:
    Atom atom(const char* name) { return XInternAtom(m_display, name, False); }
    void readNews()
    {
        XEvent event;
        while (XCheckTypedEvent(m_display, PropertyNotify, &event))
            if (event.xproperty.state == PropertyNewValue)
                ++m_news[event.xproperty.atom];
    }
    std::string take(Atom property)
    {
        Atom type;
        int format;
        unsigned long count, left;
        unsigned char* data = nullptr;
        XGetWindowProperty(m_display, m_window, property, 0, 1 << 24, True, AnyPropertyType, &type, &format,
                           &count, &left, &data);
        const std::string bytes = format == 8 ? std::string(reinterpret_cast<char*>(data), count) : "";
        if (data)
            XFree(data);
        XFlush(m_display);
        return bytes;
    }

    Display* m_display;
    Window m_window;
    std::map<Atom, int> m_news; // pieces that have come
};

class HostileReceiver : public testing::Test
{
protected:
    HostileReceiver()
    {
        for (int i = 0; text.size() < 1000000; ++i)
            text += "line " + std::to_string(i) + " ";
        QApplication::clipboard()->setText(text.c_str(), QClipboard::Clipboard);
    }
    ~HostileReceiver() override { QApplication::clipboard()->clear(QClipboard::Clipboard); }

    std::string text;
};

} // namespace

TEST_F(HostileReceiver, WhoGivesUpAndAsksAgainGetsTheWholeText)
{
    Receiver receiver;
    receiver.ask("A");
    EXPECT_TRUE(text.compare(0, 1000, receiver.piece("A"), 0, 1000) == 0);
    receiver.piece("A");
    receiver.ask("A");
    EXPECT_TRUE(receiver.rest("A") == text);
}

TEST_F(HostileReceiver, WhoAsksTwiceAtATimeGetsBothTexts)
{
    Receiver receiver;
    receiver.ask("A");
    receiver.ask("B");
    EXPECT_TRUE(receiver.rest("A") == text);
    EXPECT_TRUE(receiver.rest("B") == text);
}

TEST_F(HostileReceiver, TheDeadAreForgotten)
{
    const std::size_t before = heapInUse();
    for (int i = 0; i < 50; ++i) {
        Receiver receiver;
        receiver.ask("A");
        receiver.piece("A");
        skipSeconds(6);
    }
    EXPECT_LT(heapInUse(), before + 10 * text.size());
}

TEST_F(HostileReceiver, WhoAsksInTheNameOfOurWindowDoesNotMakeItDeaf)
{
    QPushButton button("Press", nullptr);
    button.setGeometry(100, 100, 100, 40);
    showAndWait(&button);
    Display* display = XOpenDisplay(nullptr);
    XEvent event;
    std::memset(&event, 0, sizeof event);
    event.xselectionrequest.type = SelectionRequest;
    event.xselectionrequest.owner = button.winId();
    event.xselectionrequest.requestor = button.winId();
    event.xselectionrequest.selection = XInternAtom(display, "CLIPBOARD", False);
    event.xselectionrequest.target = XInternAtom(display, "UTF8_STRING", False);
    event.xselectionrequest.property = XA_CUT_BUFFER0;
    XSendEvent(display, button.winId(), False, 0, &event);
    XSync(display, False);
    settle();
    XDeleteProperty(display, button.winId(), XA_CUT_BUFFER0);
    XSync(display, False);
    XCloseDisplay(display);
    settle();
    SignalRecorder recorder;
    recorder.watch(&button, SIGNAL(clicked()));
    xinput::click(&button, 10, 10);
    EXPECT_TRUE(waitFor([&] { return recorder.count() > 0; }));
}
