// Window managers that do not what windows ask for, do what nobody asked for, or die: programs neither crash
// nor hang, and come back to sense when the window manager does.
#include "messages.h"
#include "printers.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qdialog.h>
#include <qpushbutton.h>

#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <climits>
#include <cstring>
#include <memory>
#include <random>
#include <vector>

namespace
{

int ignoreErrors(Display*, XErrorEvent*)
{
    return 0;
}

// A window manager on a connection of its own, which does only what a test tells it.
class Manager
{
public:
    Manager() : m_display(XOpenDisplay(nullptr)), m_root(DefaultRootWindow(m_display))
    {
        XSelectInput(m_display, m_root, SubstructureRedirectMask | SubstructureNotifyMask);
        XSync(m_display, False);
        m_before = XSetErrorHandler(ignoreErrors);
    }
    ~Manager()
    {
        if (m_display)
            die();
        XSetErrorHandler(m_before);
        settle();
    }

    // The windows that want to be shown since the last call.
    std::vector<Window> takeWishes()
    {
        std::vector<Window> wishes;
        settle();
        XSync(m_display, False);
        while (XPending(m_display)) {
            XEvent event;
            XNextEvent(m_display, &event);
            if (event.type == MapRequest)
                wishes.push_back(event.xmaprequest.window);
        }
        return wishes;
    }
    bool isAsked(const QWidget& window)
    {
        for (const Window each : takeWishes())
            if (each == window.winId())
                return true;
        return false;
    }
    void map(const QWidget& window)
    {
        settle(); // what the program has asked for comes first
        XMapWindow(m_display, window.winId());
        done();
    }
    void unmap(const QWidget& window)
    {
        settle();
        XUnmapWindow(m_display, window.winId());
        done();
    }
    void place(const QWidget& window, int x, int y, unsigned width, unsigned height)
    {
        settle();
        XMoveResizeWindow(m_display, window.winId(), x, y, width, height);
        done();
    }
    Window frame(const QWidget& window, int border)
    {
        settle();
        const Window around = XCreateSimpleWindow(m_display, m_root, 50, 50, 400, 300, 0, 0, 0);
        XSelectInput(m_display, around, SubstructureRedirectMask | SubstructureNotifyMask);
        XAddToSaveSet(m_display, window.winId());
        XReparentWindow(m_display, window.winId(), around, border, border);
        XMapWindow(m_display, around);
        XMapWindow(m_display, window.winId());
        done();
        return around;
    }
    void unframe(const QWidget& window)
    {
        XReparentWindow(m_display, window.winId(), m_root, 20, 20);
        done();
    }
    // The program hears of the frame when both are gone.
    void destroyInFrame(const QWidget& window)
    {
        settle();
        const Window around = XCreateSimpleWindow(m_display, m_root, 50, 50, 400, 300, 0, 0, 0);
        XReparentWindow(m_display, window.winId(), around, 5, 5);
        XDestroyWindow(m_display, around);
        done();
    }
    void takeFocus()
    {
        settle();
        XSetInputFocus(m_display, PointerRoot, RevertToNone, CurrentTime);
        done();
    }
    void giveFocus(const QWidget& window)
    {
        XSetInputFocus(m_display, window.winId(), RevertToPointerRoot, CurrentTime);
        done();
    }
    void message(Window window, const char* type, const char* first, int format = 32)
    {
        XEvent event;
        std::memset(&event, 0, sizeof event);
        event.xclient.type = ClientMessage;
        event.xclient.window = window;
        event.xclient.message_type = XInternAtom(m_display, type, False);
        event.xclient.format = format;
        event.xclient.data.l[0] = static_cast<long>(XInternAtom(m_display, first, False));
        XSendEvent(m_display, window, False, NoEventMask, &event);
        XFlush(m_display);
    }
    // Says that the window is somewhere.
    void lie(const QWidget& window, int x, int y, int width, int height)
    {
        XEvent event;
        std::memset(&event, 0, sizeof event);
        event.xconfigure.type = ConfigureNotify;
        event.xconfigure.event = event.xconfigure.window = window.winId();
        event.xconfigure.x = x;
        event.xconfigure.y = y;
        event.xconfigure.width = width;
        event.xconfigure.height = height;
        XSendEvent(m_display, window.winId(), False, StructureNotifyMask, &event);
        XSync(m_display, False);
    }
    void done()
    {
        XSync(m_display, False);
        settle();
    }
    void die()
    {
        XCloseDisplay(m_display);
        m_display = nullptr;
        settle();
    }

private:
    Display* m_display;
    const Window m_root;
    XErrorHandler m_before;
};

// The window works: it can be shown, has the size that it believes to have, and its button hears a click.
class HostileManager : public testing::Test
{
protected:
    HostileManager() : window(new QWidget(nullptr, "window"))
    {
        window->setGeometry(100, 100, 200, 100);
        button = new QPushButton("Press", window.get());
        button->setGeometry(20, 20, 100, 40);
    }

    void expectSane(Manager* manager)
    {
        if (manager)
            manager->map(*window);
        settle();
        window->setGeometry(100, 100, 200, 100);
        if (manager)
            manager->place(*window, 100, 100, 200, 100);
        EXPECT_TRUE(waitFor([this] { return window->size() == QSize(200, 100); })) << window->width();
        SignalRecorder recorder;
        recorder.watch(button, SIGNAL(clicked()));
        xinput::click(button, 10, 10);
        EXPECT_TRUE(waitFor([&] { return recorder.count() == 1; })) << recorder.take();
        xinput::park();
    }

    std::unique_ptr<QWidget> window;
    QPushButton* button;
};

} // namespace

TEST_F(HostileManager, NeverShowsTheWindow)
{
    Manager manager;
    window->show();
    EXPECT_TRUE(manager.isAsked(*window));
    button->setText("Another text");
    window->resize(300, 200);
    window->raise();
    window->setActiveWindow();
    settle();
    window->hide();
    window->show();
    expectSane(&manager);
}

TEST_F(HostileManager, ShowsTheWindowWhenItIsGone)
{
    Manager manager;
    window->show();
    settle();
    window->hide();
    manager.map(*window);
    window->show();
    manager.takeWishes();
    expectSane(&manager);
    const Window id = window->winId();
    window.reset();
    manager.message(id, "WM_PROTOCOLS", "WM_DELETE_WINDOW");
    manager.done();
    EXPECT_EQ("", takeMessages());
}

TEST_F(HostileManager, GivesSizesThatNobodyAskedFor)
{
    Manager manager;
    window->show();
    manager.map(*window);
    const unsigned sizes[][2] = {{1, 1}, {1, 4000}, {4000, 1}, {199, 101}, {32767, 1}, {1, 32767}};
    for (const auto& size : sizes) {
        manager.place(*window, 0, 0, size[0], size[1]);
        EXPECT_TRUE(waitFor([&] { return window->size() == QSize(int(size[0]), int(size[1])); }))
            << size[0] << ' ' << size[1];
    }
    expectSane(&manager);
    EXPECT_EQ("", takeMessages());
}

TEST_F(HostileManager, MovesTheWindowAllTheTime)
{
    Manager manager;
    window->show();
    manager.map(*window);
    std::mt19937 random(1);
    for (int i = 0; i < 100; ++i) {
        manager.place(*window, int(random() % 60000) - 30000, int(random() % 60000) - 30000,
                      1 + random() % 500, 1 + random() % 300);
        window->move(int(random() % 500), int(random() % 500));
    }
    expectSane(&manager);
    EXPECT_EQ("", takeMessages());
}

TEST_F(HostileManager, LiesAboutPlacesAndSizes)
{
    Manager manager;
    window->show();
    manager.map(*window);
    const int numbers[] = {0, -1, 1, 32767, -32768, 65535, INT_MAX, INT_MIN};
    for (const int place : numbers)
        for (const int size : numbers)
            manager.lie(*window, place, size, size, place);
    manager.done();
    expectSane(&manager);
}

TEST_F(HostileManager, PutsTheWindowIntoFramesAndOutAgain)
{
    Manager manager;
    window->show();
    for (int i = 0; i < 20; ++i) {
        manager.frame(*window, i);
        if (i % 3 == 0)
            manager.unframe(*window);
        window->frameGeometry();
    }
    manager.unframe(*window);
    expectSane(&manager);
    EXPECT_EQ("", takeMessages());
}

TEST_F(HostileManager, TakesTheFocusAndGivesItBack)
{
    Manager manager;
    window->show();
    manager.map(*window);
    button->setFocus();
    for (int i = 0; i < 50; ++i) {
        window->setActiveWindow();
        manager.takeFocus();
        manager.message(window->winId(), "WM_PROTOCOLS", "WM_TAKE_FOCUS");
    }
    EXPECT_FALSE(window->isActiveWindow());
    manager.giveFocus(*window);
    EXPECT_TRUE(waitFor([this] { return window->isActiveWindow() && button->hasFocus(); }));
    expectSane(&manager);
}

TEST_F(HostileManager, HidesTheWindowBehindTheProgramsBack)
{
    Manager manager;
    window->show();
    for (int i = 0; i < 50; ++i) {
        manager.unmap(*window);
        if (i % 2)
            window->resize(200 + i, 100);
        manager.map(*window);
    }
    expectSane(&manager);
    EXPECT_EQ("", takeMessages());
}

// Popups and children have no close button; a dying window has been closed already.
TEST_F(HostileManager, ClosesWhateverThereIs)
{
    Manager manager;
    window->show();
    manager.map(*window);
    QWidget* const popup = new QWidget(window.get(), "popup", Qt::WType_Popup);
    popup->setGeometry(150, 150, 50, 50);
    popup->show();
    settle();
    manager.message(popup->winId(), "WM_PROTOCOLS", "WM_DELETE_WINDOW");
    manager.done();
    EXPECT_FALSE(popup->isVisible());
    manager.message(button->winId(), "WM_PROTOCOLS", "WM_DELETE_WINDOW");
    manager.done();
    std::unique_ptr<QDialog> dialog(new QDialog(window.get(), "dialog", true));
    dialog->show();
    manager.map(*dialog);
    for (int i = 0; i < 5; ++i)
        manager.message(dialog->winId(), "WM_PROTOCOLS", "WM_DELETE_WINDOW");
    EXPECT_TRUE(waitFor([&] { return !dialog->isVisible(); }));
    manager.message(dialog->winId(), "WM_PROTOCOLS", "WM_DELETE_WINDOW");
    dialog.reset();
    manager.done();
    window->show();
    button->show();
    expectSane(&manager);
}

TEST_F(HostileManager, SendsMessagesWithoutSense)
{
    Manager manager;
    window->show();
    manager.map(*window);
    for (const char* type : {"WM_PROTOCOLS", "_NET_WM_STATE", "WM_CHANGE_STATE", "_XEMBED", "XdndEnter", "x"})
        for (const char* first : {"WM_DELETE", "WM_SAVE_YOURSELF", "_NET_WM_PING", "_NET_WM_SYNC_REQUEST"})
            for (const int format : {8, 16, 32})
                manager.message(window->winId(), type, first, format);
    manager.message(window->winId(), "WM_PROTOCOLS", "WM_DELETE_WINDOW", 8);
    manager.done();
    EXPECT_TRUE(window->isVisible());
    expectSane(&manager);
}

// Another window of the program goes on; the one that is gone can be used and destroyed as ever.
TEST_F(HostileManager, DestroysTheWindowWithItsFrame)
{
    Manager manager;
    QWidget lost(nullptr, "lost");
    lost.setGeometry(50, 50, 200, 100);
    QPushButton inside("Inside", &lost);
    lost.show();
    manager.map(lost);
    inside.setFocus();
    manager.destroyInFrame(lost);
    inside.setText("Another");
    lost.setCaption("caption");
    lost.resize(300, 200);
    lost.frameGeometry();
    lost.setActiveWindow();
    inside.setFocus();
    lost.hide();
    settle();
    lost.show();
    lost.showMaximized();
    settle();
    manager.takeWishes();
    window->show();
    expectSane(&manager);
}

TEST_F(HostileManager, DiesInTheMidstOfItsWork)
{
    for (int i = 0; i < 5; ++i) {
        std::unique_ptr<Manager> manager(new Manager);
        window->show();
        manager->frame(*window, 5);
        window->resize(300, 200 + i);
        manager->die();
    }
    expectSane(nullptr);
    EXPECT_EQ("", takeMessages());
}
