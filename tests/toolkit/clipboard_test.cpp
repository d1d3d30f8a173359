// Text exchange with other programs. The other program is a connection of the test's own.
#include "printers.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qclipboard.h>
#include <qcstring.h>

#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <atomic>
#include <cstring>
#include <thread>

namespace
{

// Another program with selections.
class OtherProgram
{
public:
    OtherProgram() : m_display(XOpenDisplay(nullptr))
    {
        m_window = XCreateSimpleWindow(m_display, DefaultRootWindow(m_display), 0, 0, 1, 1, 0, 0, 0);
        XSelectInput(m_display, m_window, PropertyChangeMask);
    }
    ~OtherProgram() { XCloseDisplay(m_display); }

    Atom atom(const char* name) { return XInternAtom(m_display, name, False); }

    // Asks for a selection while our own program handles its events. Null and empty if it is refused.
    std::string ask(const char* selection, const char* target)
    {
        XConvertSelection(m_display, atom(selection), atom(target), atom("ANSWER"), m_window, CurrentTime);
        XEvent event;
        if (!next(SelectionNotify, &event) || event.xselection.property == 0)
            return "refused";
        while (XCheckTypedEvent(m_display, PropertyNotify, &event))
            ; // of what comes with the answer itself
        std::string all = take();
        if (m_type != atom("INCR"))
            return all;
        for (all.clear();;) {
            const bool came = waitFor([&] { return XCheckTypedEvent(m_display, PropertyNotify, &event); });
            if (!came)
                return "incomplete";
            if (event.xproperty.state != PropertyNewValue)
                continue;
            const std::string piece = take();
            if (piece.empty())
                return all;
            all += piece;
            ++pieces;
        }
    }

    void own(const char* selection)
    {
        XSetSelectionOwner(m_display, atom(selection), m_window, CurrentTime);
        XSync(m_display, False);
    }

    // Answers one request for that target with the text, in pieces if it is asked to; all others are refused.
    void answer(const char* target, const std::string& text, size_t pieceSize)
    {
        XEvent event;
        for (;;) {
            XNextEvent(m_display, &event);
            if (event.type != SelectionRequest)
                continue;
            const XSelectionRequestEvent request = event.xselectionrequest;
            const bool wanted = request.target == atom(target);
            if (wanted && pieceSize) {
                const long size = static_cast<long>(text.size());
                XSelectInput(m_display, request.requestor, PropertyChangeMask);
                XChangeProperty(m_display, request.requestor, request.property, atom("INCR"), 32,
                                PropModeReplace, reinterpret_cast<const unsigned char*>(&size), 1);
            } else if (wanted) {
                set(request, text);
            }
            notify(request, wanted);
            if (!wanted)
                continue;
            if (pieceSize)
                sendPieces(request, text, pieceSize);
            return;
        }
    }

    int pieces = 0;

private:
    bool next(int type, XEvent* event)
    {
        XFlush(m_display);
        return waitFor([&] { return XCheckTypedEvent(m_display, type, event); });
    }
    std::string take()
    {
        int format;
        unsigned long count, rest;
        unsigned char* data = nullptr;
        XGetWindowProperty(m_display, m_window, atom("ANSWER"), 0, 1 << 24, True, AnyPropertyType, &m_type,
                           &format, &count, &rest, &data);
        // Lists of atoms are given by name.
        std::string text;
        if (m_type == XA_ATOM) {
            for (unsigned long i = 0; i < count; ++i) {
                char* name = XGetAtomName(m_display, reinterpret_cast<Atom*>(data)[i]);
                text += std::string(name) + ' ';
                XFree(name);
            }
        } else if (format == 8) {
            text.assign(reinterpret_cast<char*>(data), count);
        }
        if (data)
            XFree(data);
        XFlush(m_display);
        return text;
    }
    void set(const XSelectionRequestEvent& request, const std::string& text)
    {
        XChangeProperty(m_display, request.requestor, request.property, request.target, 8, PropModeReplace,
                        reinterpret_cast<const unsigned char*>(text.data()), static_cast<int>(text.size()));
    }
    void notify(const XSelectionRequestEvent& request, bool given)
    {
        XEvent reply;
        std::memset(&reply, 0, sizeof reply);
        reply.xselection.type = SelectionNotify;
        reply.xselection.requestor = request.requestor;
        reply.xselection.selection = request.selection;
        reply.xselection.target = request.target;
        reply.xselection.property = given ? request.property : 0;
        reply.xselection.time = request.time;
        XSendEvent(m_display, request.requestor, False, 0, &reply);
        XFlush(m_display);
    }
    void sendPieces(const XSelectionRequestEvent& request, const std::string& text, size_t size)
    {
        size_t sent = 0;
        for (bool last = false; !last;) {
            XEvent event;
            XNextEvent(m_display, &event);
            if (event.type != PropertyNotify || event.xproperty.window != request.requestor ||
                event.xproperty.state != PropertyDelete)
                continue;
            const std::string piece = text.substr(sent, size);
            last = piece.empty();
            sent += piece.size();
            set(request, piece);
            XFlush(m_display);
        }
    }

    Display* m_display;
    Window m_window;
    Atom m_type = 0;
};

const QString umlauts = QString::fromUtf8("\303\274ber \342\202\254");

class Clipboard : public testing::Test
{
protected:
    Clipboard() : clipboard(QApplication::clipboard())
    {
        clipboard->clear(QClipboard::Clipboard);
        clipboard->clear(QClipboard::Selection);
        settle();
    }
    QString receive(const char* target, const std::string& text, size_t pieceSize)
    {
        other.own("CLIPBOARD");
        settle();
        std::thread owner([&] { other.answer(target, text, pieceSize); });
        const QString result = clipboard->text(QClipboard::Clipboard);
        owner.join();
        return result;
    }

    QClipboard* clipboard;
    OtherProgram other;
};

} // namespace

TEST_F(Clipboard, GivesBackWhatWasSet)
{
    EXPECT_TRUE(clipboard->text().isNull());
    clipboard->setText(umlauts, QClipboard::Clipboard);
    EXPECT_EQ(umlauts, clipboard->text(QClipboard::Clipboard));
    EXPECT_TRUE(clipboard->text(QClipboard::Selection).isNull());
    EXPECT_TRUE(clipboard->ownsClipboard());
    EXPECT_FALSE(clipboard->ownsSelection());
    clipboard->clear(QClipboard::Clipboard);
    EXPECT_FALSE(clipboard->ownsClipboard());
    EXPECT_TRUE(clipboard->text(QClipboard::Clipboard).isNull());
}

TEST_F(Clipboard, WithoutAModeTheChosenOneCounts)
{
    EXPECT_TRUE(clipboard->supportsSelection());
    clipboard->setText("one");
    clipboard->setSelectionMode(true);
    EXPECT_TRUE(clipboard->selectionModeEnabled());
    clipboard->setText("two");
    EXPECT_EQ(QString("two"), clipboard->text());
    clipboard->setSelectionMode(false);
    EXPECT_EQ(QString("one"), clipboard->text());
    EXPECT_EQ(QString("two"), clipboard->text(QClipboard::Selection));
}

TEST_F(Clipboard, OnlyPlainTextIsThere)
{
    clipboard->setText("text");
    QCString any, html("html");
    EXPECT_EQ(QString("text"), clipboard->text(any));
    EXPECT_EQ(QCString("plain"), any);
    EXPECT_TRUE(clipboard->text(html).isNull());
}

TEST_F(Clipboard, OtherProgramsCanReadIt)
{
    clipboard->setText(umlauts);
    clipboard->setText("marked", QClipboard::Selection);
    EXPECT_EQ("\303\274ber \342\202\254", other.ask("CLIPBOARD", "UTF8_STRING"));
    EXPECT_EQ("\374ber ?", other.ask("CLIPBOARD", "STRING"))
        << "what Latin-1 does not have is a question mark";
    EXPECT_EQ("marked", other.ask("PRIMARY", "UTF8_STRING"));
    EXPECT_EQ("TARGETS TIMESTAMP UTF8_STRING TEXT STRING ", other.ask("CLIPBOARD", "TARGETS"));
    EXPECT_EQ("refused", other.ask("CLIPBOARD", "PIXMAP"));
    clipboard->clear();
    EXPECT_EQ("refused", other.ask("CLIPBOARD", "UTF8_STRING"));
}

TEST_F(Clipboard, OtherProgramsReadLongTextsInPieces)
{
    std::string text;
    for (int i = 0; i < 100000; ++i)
        text += "line " + std::to_string(i) + "\n";
    clipboard->setText(text.c_str());
    EXPECT_TRUE(text == other.ask("CLIPBOARD", "UTF8_STRING"));
    EXPECT_GT(other.pieces, 1);
}

TEST_F(Clipboard, TextsOfOtherProgramsCanBeRead)
{
    EXPECT_EQ(umlauts, receive("UTF8_STRING", "\303\274ber \342\202\254", 0));
    EXPECT_EQ(QString::fromUtf8("\303\274ber"), receive("STRING", "\374ber", 0))
        << "old programs know Latin-1 only";
}

TEST_F(Clipboard, LongTextsOfOtherProgramsComeInPieces)
{
    const std::string text(300000, 'x');
    EXPECT_TRUE(QString(text.c_str()) == receive("UTF8_STRING", text, 65536));
}

TEST_F(Clipboard, NewsAreSignalled)
{
    SignalRecorder signals_;
    signals_.watch(clipboard, SIGNAL(dataChanged()));
    signals_.watch(clipboard, SIGNAL(selectionChanged()));
    clipboard->setText("one");
    EXPECT_EQ("dataChanged", signals_.take());
    clipboard->setText("two", QClipboard::Selection);
    EXPECT_EQ("selectionChanged", signals_.take());
    other.own("PRIMARY");
    settle();
    EXPECT_EQ("selectionChanged", signals_.take()) << "another program has it now";
    EXPECT_FALSE(clipboard->ownsSelection());
}
