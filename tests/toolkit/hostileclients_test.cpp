// Other programs that are dead, slow, or lie: nothing that they send does harm.
#include "messages.h"
#include "printers.h"
#include "selectionowner.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qlineedit.h>
#include <qpushbutton.h>

#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <atomic>
#include <cstring>
#include <random>
#include <string>

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
                    owner.announcePieces(r);
                    owner.close();
                }).isNull());
}

TEST(HostileOwner, WhoDiesAfterAPieceHasNoText)
{
    EXPECT_TRUE(textFrom([](Owner& owner, const XSelectionRequestEvent& r) {
                    owner.announcePieces(r);
                    owner.awaitTaking(r);
                    owner.set(r, owner.atom("UTF8_STRING"), 8, "a piece");
                    owner.awaitTaking(r);
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

// Larger than any request can be.
TEST(HostileOwner, APropertyThatGrewIsReadWhole)
{
    const std::string part(3000000, 'x');
    EXPECT_EQ(8 * part.size(), textFrom([&](Owner& owner, const XSelectionRequestEvent& r) {
                                   for (int i = 0; i < 8; ++i)
                                       owner.set(r, owner.atom("UTF8_STRING"), 8, part, PropModeAppend);
                                   owner.notify(r);
                               }).length());
}

// Whatever another program sends to a window, about whichever window, and whatever it writes into the
// properties there, the window goes on working.
TEST(HostileSender, EventsAndPropertiesOfAnyKindDoNoHarm)
{
    QWidget window(nullptr, "window");
    window.setGeometry(100, 100, 200, 100);
    QPushButton button("Press", &window);
    button.setGeometry(20, 20, 100, 40);
    QLineEdit edit("text", &window);
    edit.setGeometry(20, 70, 100, 24);
    edit.setFocus();
    showAndWait(&window);
    SignalRecorder recorder;
    recorder.watch(&button, SIGNAL(clicked()));
    Display* display = XOpenDisplay(nullptr);
    std::mt19937 random(1);
    static const char* const names[] = {"WM_PROTOCOLS",       "WM_STATE",        "_NET_WM_STATE",
                                        "_NET_FRAME_EXTENTS", "WM_HINTS",        "WM_NORMAL_HINTS",
                                        "XdndAware",          "WM_CLIENT_LEADER"};
    const Window windows[] = {window.winId(), button.winId(), edit.winId(), DefaultRootWindow(display),
                              None,           0x1fffffff};
    for (int i = 0; i < 3000; ++i) {
        const Atom name = XInternAtom(display, names[random() % 8], False);
        long numbers[20];
        for (long& number : numbers)
            number = random() % 3 ? static_cast<int>(random()) : static_cast<int>(random() % 4);
        XEvent event;
        std::memset(&event, 0, sizeof event);
        std::memcpy(&event, numbers, sizeof numbers);
        event.type = KeyPress + static_cast<int>(random() % (MappingNotify - KeyPress + 1));
        event.xany.display = display;
        event.xany.window = windows[random() % 6];
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

// The input method has such keys for what it composed.
TEST(HostileSender, AKeyWithoutACodeIsNoKey)
{
    QLineEdit edit("text", nullptr);
    showAndActivate(&edit);
    edit.setFocus();
    XEvent event;
    std::memset(&event, 0, sizeof event);
    event.xkey.type = KeyPress;
    event.xkey.window = edit.winId();
    Display* display = XOpenDisplay(nullptr);
    for (int i = 0; i < 2; ++i)
        XSendEvent(display, edit.winId(), False, 0, &event);
    XSync(display, False);
    XCloseDisplay(display);
    settle();
    EXPECT_EQ(QString("text"), edit.text());
    xinput::typeText("x");
    EXPECT_TRUE(waitFor([&] { return edit.text() == "textx"; }));
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
