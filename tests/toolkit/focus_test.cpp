// Who has the keyboard focus in a window.
#include "inputlog.h"
#include "messages.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>

#include <X11/keysym.h>

#include <memory>

namespace
{

class Focus : public testing::Test
{
protected:
    Focus()
        : top(&log, nullptr, "top", 100, 100, 200, 150), a(&log, &top, "a", 5, 5, 30, 30),
          b(&log, &top, "b", 40, 5, 30, 30), c(&log, &top, "c", 80, 5, 30, 30),
          inner(&log, &b, "inner", 5, 5, 10, 10)
    {
        a.setFocusPolicy(QWidget::StrongFocus);
        b.setFocusPolicy(QWidget::TabFocus);
        c.setFocusPolicy(QWidget::ClickFocus);
        inner.setFocusPolicy(QWidget::WheelFocus);
        for (InputWidget* widget : {&top, &a, &b, &c, &inner})
            widget->acceptsMouse = true;
        showAndActivate(&top);
        log.take();
    }
    QWidget* afterClick(QWidget* widget, int x, int y, int button = 1)
    {
        xinput::click(widget, x, y, button);
        settle();
        return qApp->focusWidget();
    }

    EventLog log;
    InputWidget top, a, b, c, inner;
};

} // namespace

TEST_F(Focus, TheFirstOfTheTabOrderHasItAtFirst)
{
    EXPECT_EQ(&a, qApp->focusWidget());
    EXPECT_TRUE(a.hasFocus());
    EXPECT_EQ(&a, top.focusWidget());
}

TEST_F(Focus, TheOldOneHearsFirst)
{
    c.setFocus();
    EXPECT_EQ("a focus out reason 6; c focus in reason 6", log.take());
    c.setFocus();
    EXPECT_EQ("", log.take()) << "it had it already";
    c.clearFocus();
    EXPECT_EQ("c focus out reason 6", log.take());
    EXPECT_EQ(nullptr, qApp->focusWidget());
}

TEST_F(Focus, TheReasonCanBeSaid)
{
    QFocusEvent::setReason(QFocusEvent::Shortcut);
    c.setFocus();
    QFocusEvent::resetReason();
    EXPECT_EQ("a focus out reason 5; c focus in reason 5", log.take());
    EXPECT_EQ(QFocusEvent::Other, QFocusEvent::reason());
}

TEST_F(Focus, AClickGivesItToWhoTakesClicks)
{
    EXPECT_EQ(&c, afterClick(&c, 5, 5));
    EXPECT_NE(std::string::npos, log.take().find("a focus out reason 0; c focus in reason 0"));
    EXPECT_EQ(&c, afterClick(&b, 25, 25)) << "only for Tab";
    EXPECT_EQ(&inner, afterClick(&inner, 5, 5));
    EXPECT_EQ(&inner, afterClick(&top, 5, 120));
    EXPECT_EQ(&a, afterClick(&a, 5, 5, 3)) << "any button";
}

TEST_F(Focus, TheWheelGivesItToWhoTakesTheWheel)
{
    inner.acceptsMouse = c.acceptsMouse = true;
    EXPECT_EQ(&a, afterClick(&c, 5, 5, 4));
    EXPECT_EQ(&inner, afterClick(&inner, 5, 5, 4));
}

TEST_F(Focus, AHiddenOneGivesItToTheNext)
{
    a.hide();
    EXPECT_EQ("a focus out reason 6; b focus in reason 6", log.take());
}

TEST_F(Focus, ADisabledOneGivesItToTheNext)
{
    inner.setFocus();
    log.take();
    inner.setEnabled(false);
    EXPECT_EQ("inner focus out reason 6; a focus in reason 6", log.take());
    inner.setFocus();
    EXPECT_EQ(&a, qApp->focusWidget()) << "a disabled widget cannot get it";
}

TEST_F(Focus, InADisabledParentNobodyKeepsIt)
{
    b.setFocus();
    log.take();
    b.setEnabled(false);
    EXPECT_EQ("b focus out reason 6; inner focus in reason 6; inner focus out reason 6", log.take());
    EXPECT_EQ(nullptr, qApp->focusWidget());
}

TEST_F(Focus, AWindowThatHasItItselfLosesItWhenDisabled)
{
    top.setFocus();
    ASSERT_TRUE(top.hasFocus());
    top.setEnabled(false);
    EXPECT_EQ(nullptr, qApp->focusWidget());
}

TEST_F(Focus, WithoutPolicyItStaysWhereItIs)
{
    a.setFocusPolicy(QWidget::NoFocus);
    EXPECT_FALSE(a.isFocusEnabled());
    EXPECT_TRUE(a.hasFocus());
    top.setFocus();
    EXPECT_EQ(&top, qApp->focusWidget()) << "the program may give it to anybody";
}

TEST_F(Focus, ADeletedWidgetLeavesIt)
{
    std::unique_ptr<QWidget> mortal(new QWidget(&top));
    mortal->show();
    mortal->setFocus();
    EXPECT_EQ(mortal.get(), qApp->focusWidget());
    mortal.reset();
    EXPECT_EQ(nullptr, qApp->focusWidget());
    EXPECT_EQ(nullptr, top.focusWidget());
}

TEST_F(Focus, AWidgetThatMovesInItsWindowKeepsItAndItsPlaceInTheTabOrder)
{
    a.setFocus();
    log.take();
    a.reparent(&b, QPoint(0, 0), true);
    EXPECT_EQ(&a, qApp->focusWidget());
    EXPECT_EQ(&a, top.focusWidget());
    EXPECT_EQ(std::string::npos, log.take().find("focus"));
    xinput::typeKey(XK_Tab);
    settle();
    EXPECT_EQ(&b, qApp->focusWidget());
    a.reparent(&top, QPoint(5, 5));
}

TEST_F(Focus, AWidgetThatMovesToAnotherWindowLeavesItBehind)
{
    InputWidget other(&log, nullptr, "other", 400, 100, 100, 100);
    inner.setFocus();
    log.take();
    b.reparent(&other, QPoint(0, 0));
    EXPECT_EQ(nullptr, qApp->focusWidget());
    EXPECT_EQ(nullptr, top.focusWidget());
    EXPECT_EQ(nullptr, other.focusWidget());
    EXPECT_EQ(0U, log.take().find("inner focus out"));
    inner.setEnabled(false);
    EXPECT_EQ(nullptr, qApp->focusWidget());
    b.reparent(&top, QPoint(40, 5));
}

TEST_F(Focus, AProxyGetsItInstead)
{
    c.setFocus();
    std::unique_ptr<QWidget> front(new QWidget(&top));
    front->setFocusProxy(&a);
    front->show();
    log.take();
    front->setFocus();
    EXPECT_EQ("c focus out reason 6; a focus in reason 6", log.take());
    EXPECT_TRUE(front->hasFocus());
    EXPECT_EQ(&a, front->focusProxy());
    front.reset();
    EXPECT_EQ("a focus out reason 6", log.take());
}

TEST_F(Focus, AProxyThatDiesIsForgotten)
{
    std::unique_ptr<QWidget> proxy(new QWidget(&top));
    QWidget front(&top);
    front.setFocusProxy(proxy.get());
    proxy.reset();
    EXPECT_EQ(nullptr, front.focusProxy());
}

TEST_F(Focus, AWindowThatIsNotActiveRemembersWhoWillHaveIt)
{
    QWidget other(nullptr, "other");
    QWidget child(&other);
    other.setGeometry(400, 100, 50, 50);
    child.setFocusPolicy(QWidget::StrongFocus);
    child.setFocus();
    EXPECT_EQ(&a, qApp->focusWidget());
    EXPECT_EQ(&child, other.focusWidget());
    showAndActivate(&other);
    EXPECT_EQ(&child, qApp->focusWidget());
}

TEST_F(Focus, AProxyThatDiesTakesItsOwnOutOfTheTabOrder)
{
    QWidget* proxy = new QWidget(&b);
    QWidget* within = new QWidget(proxy);
    within->setFocusPolicy(QWidget::TabFocus);
    b.setFocusProxy(proxy);
    within->show();
    proxy->show();
    delete proxy;
    a.setFocus();
    for (int i = 0; i < 3; ++i) {
        xinput::typeKey(XK_Tab);
        settle();
        EXPECT_TRUE(qApp->focusWidget() == &a || qApp->focusWidget() == &b || qApp->focusWidget() == &inner);
    }
}

TEST_F(Focus, TwoWithTheSameProxyHaveNoOrder)
{
    a.setFocusProxy(&inner);
    b.setFocusProxy(&inner);
    QWidget::setTabOrder(&a, &b);
    inner.setFocus();
    xinput::typeKey(XK_Tab);
    settle();
    EXPECT_EQ(&inner, qApp->focusWidget()) << "the only one that takes Tab";
}

TEST_F(Focus, NobodyIsAProxyOfItself)
{
    a.setFocusProxy(&b);
    b.setFocusProxy(&c);
    takeMessages();
    c.setFocusProxy(&a);
    EXPECT_EQ("QWidget::setFocusProxy: c would be its own focus proxy\n", takeMessages());
    EXPECT_EQ(nullptr, c.focusProxy());
    a.setFocus();
    EXPECT_EQ(&c, qApp->focusWidget());
}
