// Windows in the frames of a window manager: a small one that the test plays itself.
#include "eventlog.h"
#include "printers.h"
#include "waiting.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qwidget.h>

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#undef None
#undef Bool

#include <map>

namespace
{

const int left = 5, top = 20, right = 5, bottom = 5;

// Puts every window into a frame whose corner lies where the window wished to be.
class Manager
{
public:
    Manager() : m_display(XOpenDisplay(nullptr))
    {
        XSelectInput(m_display, DefaultRootWindow(m_display),
                     SubstructureRedirectMask | SubstructureNotifyMask);
        XSync(m_display, False);
    }
    ~Manager() { XCloseDisplay(m_display); }

    // Handles events of the manager and of the program until the condition holds.
    template <typename Condition>
    bool work(Condition condition)
    {
        return waitFor([&] {
            XSync(m_display, False);
            while (XPending(m_display)) {
                XEvent event;
                XNextEvent(m_display, &event);
                handle(event);
            }
            return condition();
        });
    }

    bool manages(const QWidget& window) { return m_frames.count(window.winId()) != 0; }

    // What a user does with the mouse at the frame.
    void drag(const QWidget& window, int x, int y, int width, int height)
    {
        place(window.winId(), x, y, width, height);
    }

    void iconify(const QWidget& window)
    {
        XUnmapWindow(m_display, window.winId());
        XUnmapWindow(m_display, m_frames[window.winId()]);
        noteState(window.winId(), IconicState);
        XSync(m_display, False);
    }

private:
    void handle(const XEvent& event)
    {
        if (event.type == MapRequest)
            map(event.xmaprequest.window);
        else if (event.type == ConfigureRequest)
            configure(event.xconfigurerequest);
        else if (event.type == UnmapNotify && event.xunmap.send_event)
            m_frames.erase(event.xunmap.window);
    }

    void map(Window client)
    {
        if (!m_frames.count(client)) {
            Window root = 0;
            int x = 0, y = 0;
            unsigned width = 0, height = 0, border = 0, depth = 0;
            XGetGeometry(m_display, client, &root, &x, &y, &width, &height, &border, &depth);
            const Window frame = XCreateSimpleWindow(m_display, root, x, y, width + left + right,
                                                     height + top + bottom, 0, 0, 0xff8080);
            XSelectInput(m_display, frame, SubstructureRedirectMask);
            XReparentWindow(m_display, client, frame, left, top);
            m_frames[client] = frame;
            tell(client, x, y, static_cast<int>(width), static_cast<int>(height));
        }
        XMapWindow(m_display, client);
        XMapWindow(m_display, m_frames[client]);
        noteState(client, NormalState);
    }

    void noteState(Window client, long state)
    {
        const Atom property = XInternAtom(m_display, "WM_STATE", False);
        const long value[] = {state, 0};
        XChangeProperty(m_display, client, property, property, 32, PropModeReplace,
                        reinterpret_cast<const unsigned char*>(value), 2);
    }

    void configure(const XConfigureRequestEvent& wish)
    {
        if (!m_frames.count(wish.window)) {
            XWindowChanges changes = XWindowChanges();
            changes.x = wish.x;
            changes.y = wish.y;
            changes.width = wish.width;
            changes.height = wish.height;
            XConfigureWindow(m_display, wish.window,
                             wish.value_mask & static_cast<unsigned long>(CWX | CWY | CWWidth | CWHeight),
                             &changes);
            return;
        }
        Window root = 0;
        int x = 0, y = 0, ignored = 0;
        unsigned width = 0, height = 0, border = 0, depth = 0;
        XGetGeometry(m_display, m_frames[wish.window], &root, &x, &y, &width, &height, &border, &depth);
        XGetGeometry(m_display, wish.window, &root, &ignored, &ignored, &width, &height, &border, &depth);
        place(wish.window, wish.value_mask & CWX ? wish.x : x, wish.value_mask & CWY ? wish.y : y,
              wish.value_mask & CWWidth ? wish.width : static_cast<int>(width),
              wish.value_mask & CWHeight ? wish.height : static_cast<int>(height));
    }

    // The frame's corner and the client's size.
    void place(Window client, int x, int y, int width, int height)
    {
        XMoveResizeWindow(m_display, m_frames[client], x, y, static_cast<unsigned>(width + left + right),
                          static_cast<unsigned>(height + top + bottom));
        XResizeWindow(m_display, client, static_cast<unsigned>(width), static_cast<unsigned>(height));
        tell(client, x, y, width, height);
    }

    // As window managers do after each change: where the client is on the screen.
    void tell(Window client, int x, int y, int width, int height)
    {
        XEvent event = XEvent();
        event.xconfigure.type = ConfigureNotify;
        event.xconfigure.event = event.xconfigure.window = client;
        event.xconfigure.x = x + left;
        event.xconfigure.y = y + top;
        event.xconfigure.width = width;
        event.xconfigure.height = height;
        XSendEvent(m_display, client, False, StructureNotifyMask, &event);
        XSync(m_display, False);
    }

    Display* m_display;
    std::map<Window, Window> m_frames; // of clients
};

class WidgetFrame : public testing::Test
{
protected:
    WidgetFrame() : window(&log, 0, "window")
    {
        window.setGeometry(100, 110, 80, 60);
        window.show();
        shown = manager.work([&] { return manager.manages(window) && window.geometry().x() == 105; });
        log.take();
    }

    Manager manager;
    EventLog log;
    LoggedWidget window;
    bool shown;
};

} // namespace

TEST_F(WidgetFrame, SurroundsTheWindow)
{
    ASSERT_TRUE(shown);
    EXPECT_EQ(QRect(100, 110, 90, 85), window.frameGeometry());
    EXPECT_EQ(QRect(105, 130, 80, 60), window.geometry());
    EXPECT_EQ(QPoint(100, 110), window.pos());
    EXPECT_EQ(QSize(90, 85), window.frameSize());
    EXPECT_EQ(QPoint(105, 130), window.mapToGlobal(QPoint(0, 0)));
}

TEST_F(WidgetFrame, MovesAlong)
{
    ASSERT_TRUE(shown);
    window.move(200, 150);
    EXPECT_EQ("window Move 200,150 from 100,110", log.take());
    EXPECT_EQ(QRect(205, 170, 80, 60), window.geometry());
    window.resize(50, 40);
    EXPECT_EQ("window Resize 50x40 from 80x60", log.take());
    manager.work([] { return true; });
    settle();
    EXPECT_EQ("", log.take()) << "the window manager did as it was told";
    EXPECT_EQ(QRect(200, 150, 60, 65), window.frameGeometry());
}

TEST_F(WidgetFrame, TheUserMovesAndResizesIt)
{
    ASSERT_TRUE(shown);
    manager.drag(window, 300, 200, 120, 70);
    ASSERT_TRUE(manager.work([&] { return window.width() == 120; }));
    EXPECT_EQ("window Move 300,200 from 100,110; window Resize 120x70 from 80x60", log.take());
    EXPECT_EQ(QRect(305, 220, 120, 70), window.geometry());
    EXPECT_EQ(QRect(300, 200, 130, 95), window.frameGeometry());
}

TEST_F(WidgetFrame, AnIconifiedWindowIsMinimizedButNotHidden)
{
    ASSERT_TRUE(shown);
    EXPECT_FALSE(window.isMinimized());
    manager.iconify(window);
    EXPECT_TRUE(manager.work([&] { return window.isMinimized(); }));
    EXPECT_TRUE(window.isVisible());
    window.showNormal();
    EXPECT_TRUE(manager.work([&] { return !window.isMinimized(); }));
}
