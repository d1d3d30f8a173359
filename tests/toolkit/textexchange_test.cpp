// Line edits and a second process give each other texts: long ones, strange ones, by copying and by marking.
#include "printers.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qclipboard.h>
#include <qcstring.h>
#include <qlineedit.h>

#include <X11/keysym.h>

#include <csignal>
#include <fcntl.h>
#include <memory>
#include <poll.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace
{

// Runs the other program; our own events are handled while we read or write.
class Peer
{
public:
    explicit Peer(std::vector<std::string> arguments)
    {
        int in[2], out[2];
        if (pipe(in) != 0 || pipe(out) != 0)
            std::abort();
        m_pid = fork();
        if (m_pid == 0) {
            dup2(in[0], 0);
            dup2(out[1], 1);
            for (const int end : {in[0], in[1], out[0], out[1]})
                close(end);
            arguments.insert(arguments.begin(), TEXTPEER);
            std::vector<char*> argv;
            for (std::string& argument : arguments)
                argv.push_back(&argument[0]);
            argv.push_back(nullptr);
            execv(argv[0], argv.data());
            _exit(99);
        }
        close(in[0]);
        close(out[1]);
        m_in = in[1];
        m_out = out[0];
        fcntl(m_out, F_SETFL, O_NONBLOCK);
    }
    ~Peer()
    {
        if (m_in >= 0)
            close(m_in);
        close(m_out);
        kill(m_pid, SIGKILL);
        waitpid(m_pid, nullptr, 0);
    }

    void give(const std::string& bytes)
    {
        for (size_t sent = 0; sent < bytes.size();) {
            const ssize_t count = write(m_in, bytes.data() + sent, bytes.size() - sent);
            if (count <= 0)
                break;
            sent += static_cast<size_t>(count);
        }
        close(m_in);
        m_in = -1;
    }
    // What it prints, up to the end or, if given, up to that many bytes.
    std::string output(size_t wanted = std::string::npos)
    {
        std::string all;
        const bool finished = waitFor(
            [&] {
                char buffer[65536];
                for (;;) {
                    const ssize_t count = read(m_out, buffer, sizeof buffer);
                    if (count <= 0)
                        return count == 0 || all.size() >= wanted;
                    all.append(buffer, static_cast<size_t>(count));
                }
            },
            30000);
        EXPECT_TRUE(finished) << "the other program does not answer";
        return all;
    }

private:
    pid_t m_pid;
    int m_in, m_out;
};

std::string bytesOf(const QString& text)
{
    const QCString utf8 = text.utf8();
    return utf8.isNull() ? std::string() : std::string(utf8.data());
}

class TextExchange : public testing::Test
{
protected:
    TextExchange() : edit(&window)
    {
        QApplication::setCursorFlashTime(0);
        window.setGeometry(100, 100, 240, 60);
        edit.setGeometry(10, 10, 200, 24);
        edit.setMaxLength(1 << 22);
        showAndActivate(&window);
        edit.setFocus();
        settle();
    }

    // The other program has the text from now on.
    void offer(const char* selection, const std::string& bytes, size_t pieceSize = 0,
               const char* target = "UTF8_STRING")
    {
        owner.reset(new Peer({"own", selection, target, std::to_string(pieceSize)}));
        owner->give(bytes);
        EXPECT_EQ(owner->output(6), "owner\n");
    }
    std::string readByTheOther(const char* selection, const char* target = "UTF8_STRING")
    {
        return Peer({"read", selection, target}).output();
    }
    void pasteByKey()
    {
        xinput::typeKey(XK_v, XK_Control_L);
        settle();
    }
    void copyByKey()
    {
        edit.selectAll();
        xinput::typeKey(XK_c, XK_Control_L);
        settle();
    }

    QWidget window;
    QLineEdit edit;
    std::unique_ptr<Peer> owner;
};

std::string megabyte()
{
    std::string text;
    for (int line = 0; text.size() < (1u << 20); ++line)
        text += "line " + std::to_string(line) + ' ';
    return text;
}

// Greek, Cyrillic, Hebrew, Chinese, a sign of three bytes and letters with accents.
const std::string scripts =
    "\316\261\316\262\316\263 \320\266\321\217 \327\220\327\221 \344\270\255\346\226\207 "
    "\342\202\254 \303\244\303\251\305\202";

} // namespace

TEST_F(TextExchange, AMegabyteIsPasted)
{
    offer("CLIPBOARD", megabyte());
    pasteByKey();
    EXPECT_TRUE(bytesOf(edit.text()) == megabyte());
}

TEST_F(TextExchange, AMegabyteInPiecesIsPasted)
{
    offer("CLIPBOARD", megabyte(), 30000);
    pasteByKey();
    EXPECT_TRUE(bytesOf(edit.text()) == megabyte());
    xinput::typeKey(XK_Home);
    xinput::click(&edit, 100, 12);
    settle();
    EXPECT_GT(edit.cursorPosition(), 3);
    EXPECT_LT(edit.cursorPosition(), 40) << "the pointer finds its place among all these letters";
}

TEST_F(TextExchange, AMegabyteIsCopied)
{
    edit.setText(megabyte().c_str());
    copyByKey();
    EXPECT_TRUE(readByTheOther("CLIPBOARD") == megabyte());
    EXPECT_TRUE(readByTheOther("CLIPBOARD", "STRING") == megabyte());
}

TEST_F(TextExchange, OfATooLongTextTheBeginningIsPasted)
{
    QLineEdit usual(&window);
    usual.setGeometry(10, 34, 200, 24);
    usual.show();
    usual.setFocus();
    offer("CLIPBOARD", megabyte(), 65536);
    pasteByKey();
    EXPECT_EQ(usual.text().length(), 32767u);
    EXPECT_TRUE(megabyte().compare(0, 32767, usual.text().latin1()) == 0);
}

TEST_F(TextExchange, LettersOfAllScriptsGoBothWays)
{
    offer("CLIPBOARD", scripts);
    pasteByKey();
    EXPECT_EQ(bytesOf(edit.text()), scripts);
    edit.setText(QString::fromUtf8((scripts + scripts).c_str()));
    copyByKey();
    EXPECT_EQ(readByTheOther("CLIPBOARD"), scripts + scripts);
}

TEST_F(TextExchange, OldProgramsExchangeLatinLetters)
{
    offer("CLIPBOARD", "caf\351 \374", 0, "STRING");
    pasteByKey();
    EXPECT_EQ(bytesOf(edit.text()), "caf\303\251 \303\274");
    copyByKey();
    EXPECT_EQ(readByTheOther("CLIPBOARD", "STRING"), "caf\351 \374");
}

TEST_F(TextExchange, AnyBytesCanBePasted)
{
    std::string binary;
    for (int i = 0; i < 1 << 20; ++i)
        binary += static_cast<char>((i * 7 + i / 256) % 255 + 1);
    offer("CLIPBOARD", binary, 65536);
    pasteByKey();
    const QString pasted = edit.text();
    EXPECT_GT(pasted.length(), 0u);
    copyByKey();
    EXPECT_TRUE(readByTheOther("CLIPBOARD") == bytesOf(pasted)) << "what it shows can be copied";
    xinput::typeText("x");
    settle();
    EXPECT_EQ(edit.text(), QString("x")) << "the field can be used";
}

TEST_F(TextExchange, AZeroByteEndsTheText)
{
    offer("CLIPBOARD", std::string("ab\0cd", 5));
    pasteByKey();
    EXPECT_EQ(edit.text(), QString("ab"));
}

TEST_F(TextExchange, ControlCharactersStayInTheTextAndTakeARoomInTheLine)
{
    offer("CLIPBOARD", "a\nb\tc");
    pasteByKey();
    EXPECT_EQ(edit.text(), QString("a\nb\tc"));
    EXPECT_EQ(edit.cursorPosition(), 5);
}

TEST_F(TextExchange, MarkedTextIsOfferedToTheOther)
{
    edit.setText("alpha beta");
    xinput::doubleClick(&edit, 10, 12);
    settle();
    EXPECT_EQ(edit.selectedText(), QString("alpha"));
    EXPECT_EQ(readByTheOther("PRIMARY"), "alpha");
    EXPECT_TRUE(QApplication::clipboard()->ownsSelection());
}

TEST_F(TextExchange, TextMarkedInTheOtherIsInsertedByTheMiddleButton)
{
    edit.setText("one");
    offer("PRIMARY", " two");
    xinput::click(&edit, 150, 12, 2);
    EXPECT_TRUE(waitFor([&] { return edit.text() == "one two"; }));
    offer("PRIMARY", "x");
    xinput::click(&edit, 6, 12, 2);
    EXPECT_TRUE(waitFor([&] { return edit.text() == "xone two"; })) << "where the pointer is";
}

TEST_F(TextExchange, WhatTheOtherTakesIsOursNoMore)
{
    SignalRecorder recorder;
    recorder.watch(QApplication::clipboard(), SIGNAL(dataChanged()));
    QApplication::clipboard()->setText("ours", QClipboard::Clipboard);
    offer("CLIPBOARD", "theirs");
    EXPECT_TRUE(waitFor([] { return !QApplication::clipboard()->ownsClipboard(); }));
    EXPECT_EQ(recorder.take(), "dataChanged dataChanged");
    EXPECT_EQ(QApplication::clipboard()->text(QClipboard::Clipboard), QString("theirs"));
    owner.reset();
    EXPECT_TRUE(waitFor([] { return QApplication::clipboard()->text(QClipboard::Clipboard).isNull(); }))
        << "it took its text along";
    pasteByKey();
    EXPECT_EQ(edit.text(), QString(""));
}

TEST_F(TextExchange, PasswordsAreNotGivenAway)
{
    offer("CLIPBOARD", "before");
    edit.setText("secret");
    edit.setEchoMode(QLineEdit::Password);
    copyByKey();
    EXPECT_FALSE(QApplication::clipboard()->ownsClipboard());
    xinput::doubleClick(&edit, 10, 12);
    settle();
    EXPECT_EQ(edit.selectedText(), QString("secret"));
    EXPECT_FALSE(QApplication::clipboard()->ownsSelection());
    edit.end(false);
    pasteByKey();
    EXPECT_EQ(edit.text(), QString("secretbefore")) << "but texts come in";
}
