// The X server has no memory left for what the program wants to make: the n-th window, pixmap, GC, font,
// cursor, picture or set of glyphs, for all n. Each is told once, and the program goes on.
#include "allclasses.h"
#include "messages.h"
#include "sentevents.h"
#include "xinput.h"
#include "xline.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qbitmap.h>
#include <qpainter.h>

#include <algorithm>
#include <cstdlib>
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

void handleEverything()
{
    for (int round = 0; round < 2; ++round) {
        QApplication::syncX();
        qApp->processEvents();
    }
}

// A life with everything in it that a user does; in a window of its own.
void live(const NamedClass& type)
{
    QWidget window(nullptr, "window");
    window.setGeometry(100, 100, 300, 200);
    QWidget* widget = type.make(&window);
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

// One drawing, of which the n-th creation fails; what is said of it.
std::string drawLine(QPaintDevice* device, const QPen& pen, int failing)
{
    server.line.failCreation(failing);
    QPainter painter(device);
    painter.setPen(pen);
    painter.drawLine(0, 0, 9, 9);
    painter.end();
    QApplication::syncX();
    const long count = lacks();
    return std::to_string(count) + " lacks\n" + takeMessages();
}

} // namespace

// The first of the tests, since the store holds no context for bitmaps yet.
TEST(ServerErrors, ContextsThatCouldNotBeMadeGiveWayToABitmapsContext)
{
    QPixmap pixmap(20, 20);
    QBitmap bitmap(20, 20);
    QApplication::syncX();
    const int storeSize = 24;
    for (int width = 1; width <= storeSize; ++width)
        EXPECT_EQ("1 lacks", drawLine(&pixmap, QPen(Qt::red, static_cast<uint>(width)), 0).substr(0, 7));
    for (int failing = 0; failing < 2; ++failing) {
        const std::string said = drawLine(&bitmap, Qt::color1, failing);
        EXPECT_EQ("1 lacks", said.substr(0, 7));
        const char* const freeing = "Major opcode:  60\n";
        EXPECT_EQ(std::string::npos, said.find(freeing)) << said;
    }
    EXPECT_EQ("0 lacks\n", drawLine(&bitmap, Qt::color1, -1));
}

TEST(ServerErrors, EveryCreationMayFailOnceAndIsTold)
{
    int failed = 0;
    for (const NamedClass& each : allClasses()) {
        SCOPED_TRACE(each.name);
        live(each);
        handleEverything();
        takeMessages();
        server.line.failCreation(-1);
        live(each);
        handleEverything();
        const int count = server.line.creations();
        EXPECT_GT(count, 1);
        EXPECT_EQ("", takeMessages());
        for (int n = 0; n < count; ++n) {
            server.line.failCreation(n);
            live(each);
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
    for (const NamedClass& each : allClasses())
        live(each);
    handleEverything();
    takeMessages();
    for (const NamedClass& each : allClasses()) {
        live(each);
        handleEverything();
        EXPECT_EQ("", takeMessages()) << each.name;
    }
}
