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

} // namespace

// The first of the tests, since the store holds no context for bitmaps yet.
TEST(ServerErrors, AFullStoreOfContextsThatCouldNotBeMadeTakesABitmapsContext)
{
    QPixmap pixmap(20, 20);
    QApplication::syncX();
    for (int width = 1; width <= 30; ++width) {
        server.line.failCreation(0);
        QPainter painter(&pixmap);
        painter.setPen(QPen(Qt::red, static_cast<uint>(width)));
        painter.drawLine(0, 0, 9, 9);
        painter.end();
        QApplication::syncX();
        EXPECT_EQ(1, lacks()) << width << takeMessages();
        testMessages().clear();
    }
    server.line.failCreation(-1);
    QBitmap bitmap(20, 20);
    QPainter(&bitmap).drawLine(0, 0, 9, 9);
    QApplication::syncX();
    EXPECT_EQ("", takeMessages());
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
