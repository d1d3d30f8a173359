// Windows that a window manager iconifies, brings back, places into frames and closes.
#include "printers.h"
#include "waiting.h"
#include "windowmanager.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qevent.h>
#include <qwidget.h>

#include <X11/Xlib.h>

#include <string>

namespace
{

class Watched : public QWidget
{
public:
    Watched(std::string* log, QWidget* parent, const char* name) : QWidget(parent, name), m_log(log) {}

protected:
    void showEvent(QShowEvent* event) override { write("show", event->spontaneous()); }
    void hideEvent(QHideEvent* event) override { write("hide", event->spontaneous()); }
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::WindowStateChange)
            write(isMinimized() ? "small" : "normal", false);
        return QWidget::event(event);
    }

private:
    void write(const char* what, bool outside)
    {
        *m_log += std::string(name()) + ' ' + what + (outside ? "! " : " ");
    }

    std::string* m_log;
};

class WindowState : public testing::Test
{
protected:
    WindowState()
        : window(&log, nullptr, "window"), child(&log, &window, "child"), hidden(&log, &window, "hidden")
    {
        window.setGeometry(100, 100, 200, 100);
        child.setGeometry(10, 10, 50, 50);
    }

    void show()
    {
        hidden.hide();
        showAndWait(&window);
        log.clear();
    }
    std::string heard()
    {
        settle();
        const std::string all = log;
        log.clear();
        return all;
    }

    std::string log;
    Watched window, child, hidden;
};

} // namespace

TEST_F(WindowState, TakenAwayByOthersItHearsOfIt)
{
    show();
    XUnmapWindow(xinput::display(), window.winId());
    EXPECT_EQ(heard(), "window hide! child hide! ");
    EXPECT_TRUE(window.isVisible()) << "the program wants it so";
    EXPECT_FALSE(window.isMinimized());
    XMapWindow(xinput::display(), window.winId());
    EXPECT_EQ(heard(), "window show! child show! ");
}

TEST_F(WindowState, HidingByTheProgramIsHeardOnce)
{
    show();
    window.hide();
    EXPECT_EQ(heard(), "window hide child hide ");
    EXPECT_FALSE(window.isVisible());
}

TEST_F(WindowState, IconifiedByTheUserItIsMinimized)
{
    WindowManager manager;
    show();
    manager.iconify(window);
    EXPECT_TRUE(waitFor([&] { return window.isMinimized(); }));
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(heard(), "window hide! child hide! window small ");
    manager.restore(window);
    EXPECT_TRUE(waitFor([&] { return !window.isMinimized(); }));
    EXPECT_EQ(heard(), "window show! child show! window normal ");
}

TEST_F(WindowState, IconifiedByTheProgramItComesBackWithShowNormal)
{
    WindowManager manager;
    show();
    window.showMinimized();
    EXPECT_TRUE(window.isMinimized());
    EXPECT_TRUE(waitFor([&] { return !xinput::isViewable(window.winId()); }));
    window.showNormal();
    EXPECT_TRUE(waitFor([&] { return xinput::isViewable(window.winId()); }));
    settle();
    EXPECT_FALSE(window.isMinimized());
}

TEST_F(WindowState, AFrameStandsAroundIt)
{
    WindowManager manager;
    show();
    EXPECT_EQ(window.geometry().size(), QSize(200, 100));
    EXPECT_TRUE(waitFor([&] { return window.frameGeometry().height() > 100; }));
    EXPECT_TRUE(window.frameGeometry().contains(window.geometry()));
    EXPECT_EQ(window.pos(), window.frameGeometry().topLeft());
    EXPECT_EQ(window.mapToGlobal(QPoint(0, 0)), window.geometry().topLeft());
}

TEST_F(WindowState, ClosedByTheUserItIsHidden)
{
    WindowManager manager;
    show();
    manager.close(window);
    EXPECT_TRUE(waitFor([&] { return !window.isVisible(); }));
    EXPECT_EQ(heard(), "window hide child hide ");
}
