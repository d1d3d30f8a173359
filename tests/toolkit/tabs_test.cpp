// The Tab key goes from widget to widget.
#include "inputlog.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>

#include <X11/keysym.h>

namespace
{

class Tabs : public testing::Test
{
protected:
    Tabs() : top(nullptr, "top"), a(&top, "a"), b(&top, "b"), c(&top, "c"), inner(&b, "inner")
    {
        top.setGeometry(100, 100, 200, 150);
        a.setFocusPolicy(QWidget::StrongFocus);
        b.setFocusPolicy(QWidget::TabFocus);
        c.setFocusPolicy(QWidget::ClickFocus);
        inner.setFocusPolicy(QWidget::WheelFocus);
        showAndActivate(&top);
    }
    // The names of those who have the focus after each of so many keys.
    std::string tabs(int count, unsigned long modifier = 0)
    {
        std::string names;
        for (int i = 0; i < count; ++i) {
            xinput::typeKey(XK_Tab, modifier);
            settle();
            names += std::string(i ? " " : "") + (qApp->focusWidget() ? qApp->focusWidget()->name() : "0");
        }
        return names;
    }

    QWidget top, a, b, c, inner;
};

} // namespace

TEST_F(Tabs, GoInTheOrderOfCreationToThoseWhoTakeThem)
{
    EXPECT_EQ("b inner a b", tabs(4));
}

TEST_F(Tabs, GoBackWithShift)
{
    EXPECT_EQ("inner b a", tabs(3, XK_Shift_L));
}

TEST_F(Tabs, TheOrderCanBeChosen)
{
    QWidget::setTabOrder(&inner, &a);
    QWidget::setTabOrder(&a, &b);
    inner.setFocus();
    EXPECT_EQ("a b inner", tabs(3));
}

TEST_F(Tabs, SkipWhatIsDisabledOrHidden)
{
    b.setEnabled(false);
    EXPECT_EQ("a a", tabs(2)) << "also what is inside of it";
    b.setEnabled(true);
    b.hide();
    EXPECT_EQ("a", tabs(1));
    b.show();
    inner.hide();
    EXPECT_EQ("b a", tabs(2));
}

TEST_F(Tabs, SkipWhoHasAProxy)
{
    QWidget front(&top, "front");
    front.setFocusPolicy(QWidget::StrongFocus);
    front.setFocusProxy(&b);
    front.show();
    EXPECT_EQ("b inner a", tabs(3));
}

TEST_F(Tabs, TheReasonIsKnown)
{
    EventLog log;
    InputWidget last(&log, &top, "last", 0, 0, 10, 10);
    last.setFocusPolicy(QWidget::TabFocus);
    last.show();
    tabs(1, XK_Shift_L);
    EXPECT_EQ("last focus in reason 2", log.take().substr(0, 22));
    tabs(1);
    EXPECT_NE(std::string::npos, log.take().find("last focus out reason 1"));
}

TEST_F(Tabs, ANextOneCanBeAskedFor)
{
    class Next : public QWidget
    {
    public:
        explicit Next(QWidget* parent) : QWidget(parent) {}
        using QWidget::focusNextPrevChild;
    } next(&top);
    next.setFocusPolicy(QWidget::TabFocus);
    next.show();
    next.setFocus();
    EXPECT_TRUE(next.focusNextPrevChild(true));
    EXPECT_EQ(&a, qApp->focusWidget());
    EXPECT_TRUE(next.focusNextPrevChild(false));
    EXPECT_EQ(&next, qApp->focusWidget());
}
