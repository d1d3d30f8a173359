// The active window has the keyboard.
#include "inputlog.h"
#include "waiting.h"

#include <gtest/gtest.h>
#include <qapplication.h>

namespace
{

class Window : public InputWidget
{
public:
    Window(EventLog* log, QWidget* parent, const char* name, int x)
        : InputWidget(log, parent, name, x, 100, 50, 50), m_notes(log)
    {
    }

protected:
    void windowActivationChange(bool wasActive) override
    {
        m_notes->write(std::string(name()) + (isActiveWindow() ? " active" : " inactive"));
        EXPECT_NE(wasActive, isActiveWindow());
    }

private:
    EventLog* m_notes;
};

class Activation : public testing::Test
{
protected:
    Activation()
        : one(&log, nullptr, "one", 100), child(&log, &one, "child", 0), two(&log, nullptr, "two", 400)
    {
        child.setFocusPolicy(QWidget::StrongFocus);
    }

    EventLog log;
    Window one, child, two;
};

} // namespace

TEST_F(Activation, AShownWindowIsNotYetActive)
{
    QWidget* before = qApp->activeWindow();
    showAndWait(&one);
    EXPECT_EQ(before, qApp->activeWindow());
    EXPECT_FALSE(one.isActiveWindow());
}

TEST_F(Activation, TheWindowAndAllInsideHearBeforeTheFocus)
{
    showAndActivate(&one);
    EXPECT_EQ("one active; child active; child focus in reason 3", log.take());
    EXPECT_EQ(&one, qApp->activeWindow());
    EXPECT_TRUE(child.isActiveWindow());
}

TEST_F(Activation, TheOldOneHearsFirst)
{
    showAndActivate(&one);
    showAndWait(&two);
    log.take();
    two.setActiveWindow();
    EXPECT_TRUE(waitFor([&] { return two.isActiveWindow(); }));
    EXPECT_EQ("one inactive; child inactive; child focus out reason 3; two active", log.take());
    EXPECT_EQ(nullptr, qApp->focusWidget());
    one.setActiveWindow();
    EXPECT_TRUE(waitFor([&] { return one.isActiveWindow(); }));
    EXPECT_EQ(&child, qApp->focusWidget()) << "the window remembers";
}

TEST_F(Activation, NoWindowIsActiveAfterItIsHidden)
{
    showAndActivate(&one);
    log.take();
    one.hide();
    settle();
    EXPECT_EQ(nullptr, qApp->activeWindow());
    EXPECT_EQ(nullptr, qApp->focusWidget());
    EXPECT_NE(std::string::npos, log.take().find("one inactive"));
}

TEST_F(Activation, ADeletedWindowIsNotActive)
{
    QWidget* third = new QWidget;
    third->setGeometry(600, 100, 50, 50);
    showAndActivate(third);
    EXPECT_EQ(third, qApp->activeWindow());
    delete third;
    EXPECT_EQ(nullptr, qApp->activeWindow());
}

TEST_F(Activation, AHiddenWindowCannotBecomeActive)
{
    showAndActivate(&one);
    two.setActiveWindow();
    settle();
    EXPECT_TRUE(one.isActiveWindow());
}
