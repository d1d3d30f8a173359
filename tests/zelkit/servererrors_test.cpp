// The X server has no memory left for what the program wants to make: the n-th window, pixmap, GC, font,
// cursor, picture or set of glyphs, for all n. Each is told once, and the program goes on.
#include <colordlg.h>
#include <colorgroupdlg.h>
#include <fontdlg.h>
#include <zelactivelabel.h>
#include <zelactivelabel2.h>
#include <zelcolorbutton.h>
#include <zelcombobox.h>
#include <zeledge.h>
#include <zelframe.h>
#include <zelgraph.h>
#include <zellabel.h>
#include <zellineedit.h>
#include <zellineeditint.h>
#include <zelpushbutton.h>
#include <zelpushbutton2.h>

#include "messages.h"
#include "sentevents.h"
#include "xinput.h"
#include "xline.h"

#include <gtest/gtest.h>
#include <qapplication.h>

#include <algorithm>
#include <cstdlib>
#include <set>
#include <string>

namespace
{

// From before main(), so that the program knows no other way to the server.
struct FullServer {
    FullServer() : line(0)
    {
        xinput::display();
        setenv("DISPLAY", line.name().c_str(), 1);
    }
    XLine line;
};
FullServer server;

typedef QWidget* (*Maker)(QWidget* parent);
const struct {
    const char* name;
    Maker make;
} classes[] = {
    {"ZelActiveLabel", [](QWidget* p) -> QWidget* { return new ZelActiveLabel("text", p, "w"); }},
    {"ZelActiveLabel2", [](QWidget* p) -> QWidget* { return new ZelActiveLabel2(p, "w"); }},
    {"ZelLabel", [](QWidget* p) -> QWidget* { return new ZelLabel("text", p, "w", true, 0); }},
    {"ZelColorButton", [](QWidget* p) -> QWidget* { return new ZelColorButton(p, "w"); }},
    {"ZelPushButton", [](QWidget* p) -> QWidget* { return new ZelPushButton(Qt::red, p, "w"); }},
    {"ZelPushButton2", [](QWidget* p) -> QWidget* { return new ZelPushButton2("text", p, "w"); }},
    {"ZelFrame", [](QWidget* p) -> QWidget* { return new ZelFrame(p, "w", 0); }},
    {"ZelEdge", [](QWidget* p) -> QWidget* { return new ZelEdge(p, "w"); }},
    {"ZelLineEdit", [](QWidget* p) -> QWidget* { return new ZelLineEdit(p, "w"); }},
    {"ZelComboBox", [](QWidget* p) -> QWidget* { return new ZelComboBox(true, p, "w"); }},
    {"ZelLineEditInt", [](QWidget* p) -> QWidget* { return new ZelLineEditInt(p, "w", 0, 9); }},
    {"ZelGraph", [](QWidget* p) -> QWidget* { return new ZelGraph(p, "w", true, 0); }},
    {"ZelColorDlg", [](QWidget* p) -> QWidget* { return new ZelColorDlg(Qt::red, p, "w"); }},
    {"ZelColorGroupDlg", [](QWidget* p) -> QWidget* { return new ZelColorGroupDlg(p, "w", false, 0); }},
    {"ZelFontDlg", [](QWidget* p) -> QWidget* { return new ZelFontDlg(p, "w", false, 0); }},
};

void handleEverything()
{
    for (int round = 0; round < 2; ++round) {
        QApplication::syncX();
        qApp->processEvents();
    }
}

// A life with everything in it that a user does; in a window of its own.
void live(Maker make)
{
    QWidget window(nullptr, "window");
    window.setGeometry(100, 100, 300, 200);
    QWidget* widget = make(&window);
    window.show();
    widget->show();
    handleEverything();
    widget->setCursor(Qt::WaitCursor);
    widget->setFont(QFont("DejaVu Sans", 17));
    widget->resize(widget->width() + 10, widget->height() + 5);
    enter(widget);
    press(widget);
    drag(widget, 7, 7);
    release(widget);
    sendKey(widget, Qt::Key_3, '3', 0, "3");
    handleEverything();
    leave(widget);
    window.hide();
}

// The messages of the toolkit about a lack of memory.
long lacks()
{
    const auto& all = testMessages();
    return std::count_if(all.begin(), all.end(), [](const std::string& message) {
        return message.find("BadAlloc") != std::string::npos;
    });
}

} // namespace

TEST(ServerErrors, EveryCreationMayFailOnceAndIsTold)
{
    int failed = 0;
    for (const auto& each : classes) {
        SCOPED_TRACE(each.name);
        live(each.make);
        handleEverything();
        takeMessages();
        server.line.failCreation(-1);
        live(each.make);
        handleEverything();
        const int count = server.line.creations();
        EXPECT_GT(count, 1);
        EXPECT_EQ("", takeMessages());
        for (int n = 0; n < count; ++n) {
            server.line.failCreation(n);
            live(each.make);
            handleEverything();
            if (server.line.creations() > n) {
                EXPECT_EQ(1, lacks()) << n << "\n" << takeMessages();
                ++failed;
            }
            testMessages().clear();
        }
    }
    EXPECT_GT(failed, 50);
    // Once there is memory again, nothing is left of it: a second life of each is like any other.
    server.line.failCreation(-1);
    for (const auto& each : classes)
        live(each.make);
    handleEverything();
    takeMessages();
    for (const auto& each : classes) {
        live(each.make);
        handleEverything();
        EXPECT_EQ("", takeMessages()) << each.name;
    }
}
