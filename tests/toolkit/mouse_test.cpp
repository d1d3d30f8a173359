// Clicks, drags, double clicks and grabs.
#include "inputlog.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qguardedptr.h>

#include <X11/Xlib.h>

#include <cstring>
#include <memory>

namespace
{

class Mouse : public testing::Test
{
protected:
    Mouse()
        : top(&log, nullptr, "top", 100, 100, 200, 150), outer(&log, &top, "outer", 20, 20, 100, 80),
          inner(&log, &outer, "inner", 10, 10, 40, 30), other(&log, &top, "other", 140, 20, 40, 40)
    {
        showAndActivate(&top);
        log.take();
    }
    std::string happened()
    {
        settle();
        return log.take();
    }
    void enter(QWidget* widget, int x, int y)
    {
        xinput::moveTo(widget, x, y);
        happened();
    }
    void press(int button = 1) { xinput::pressButton(button), settle(); }
    void release(int button = 1) { xinput::releaseButton(button), settle(); }

    EventLog log;
    InputWidget top, outer, inner, other;
};

// A press and a release in the middle of the widget that another program sends, at the server's time.
void sendClick(QWidget* widget, unsigned button, Time time)
{
    Display* const display = XOpenDisplay(nullptr);
    XEvent event;
    std::memset(&event, 0, sizeof event);
    event.xbutton.window = widget->winId();
    event.xbutton.root = DefaultRootWindow(display);
    event.xbutton.x = event.xbutton.y = 5;
    event.xbutton.x_root = widget->mapToGlobal(QPoint(5, 5)).x();
    event.xbutton.y_root = widget->mapToGlobal(QPoint(5, 5)).y();
    event.xbutton.same_screen = True;
    event.xbutton.button = button;
    event.xbutton.time = time;
    event.type = ButtonPress;
    XSendEvent(display, widget->winId(), False, ButtonPressMask, &event);
    event.type = ButtonRelease;
    event.xbutton.state = button >= 1 && button <= 5 ? Button1Mask << (button - 1) : 0;
    XSendEvent(display, widget->winId(), False, ButtonReleaseMask, &event);
    XCloseDisplay(display);
}

} // namespace

TEST_F(Mouse, AClickThatNobodyWantsGoesToTheParentsInTheirCoordinates)
{
    enter(&inner, 5, 5);
    press();
    EXPECT_EQ("inner press 5,5 button 1 state 0; outer press 15,15 button 1 state 0; top press 35,35 button "
              "1 state 0",
              happened());
    release();
    EXPECT_EQ("inner release 5,5 button 1 state 1; outer release 15,15 button 1 state 1; "
              "top release 35,35 button 1 state 1",
              happened());
}

TEST_F(Mouse, AClickStopsAtTheOneWhoTakesIt)
{
    outer.acceptsMouse = true;
    xinput::click(&inner, 6, 6);
    settle();
    EXPECT_NE(std::string::npos, log.take().find("outer release"));
    inner.acceptsMouse = true;
    enter(&inner, 6, 6);
    press();
    EXPECT_EQ("inner double 6,6 button 1 state 0", happened());
    release();
    EXPECT_EQ("inner release 6,6 button 1 state 1", happened());
}

TEST_F(Mouse, OnlyTheFirstReceiversEventComesFromTheUser)
{
    struct Filter : public QObject {
        std::string seen;
        bool eventFilter(QObject* object, QEvent* event) override
        {
            if (event->type() == QEvent::MouseButtonPress)
                seen += std::string(object->name()) + (event->spontaneous() ? " user " : " sent ");
            return false;
        }
    } filter;
    inner.installEventFilter(&filter);
    outer.installEventFilter(&filter);
    xinput::click(&inner, 5, 5);
    settle();
    EXPECT_EQ("inner user outer sent ", filter.seen);
    QMouseEvent sent(QEvent::MouseButtonPress, QPoint(1, 1), Qt::LeftButton, 0);
    filter.seen.clear();
    EXPECT_FALSE(QApplication::sendEvent(&inner, &sent));
    EXPECT_EQ("inner sent outer sent ", filter.seen);
    EXPECT_FALSE(sent.isAccepted());
}

TEST_F(Mouse, WhoWasPressedHearsOfTheDragWhereverItGoes)
{
    inner.acceptsMouse = true;
    enter(&inner, 5, 5);
    press();
    happened();
    xinput::moveTo(&inner, 20, 20);
    EXPECT_EQ("inner move 20,20 button 0 state 1", happened());
    xinput::moveTo(&outer, 80, 60);
    EXPECT_EQ("inner move 70,50 button 0 state 1; inner leave; outer leave; top leave; inner move 70,50 "
              "button 0 state 1",
              happened());
    xinput::moveTo(&other, 10, 10);
    EXPECT_EQ("inner move 120,0 button 0 state 1", happened());
    xinput::park();
    EXPECT_EQ("inner move 885,630 button 0 state 1", happened());
    release();
    EXPECT_EQ("inner release 885,630 button 1 state 1", happened());
}

TEST_F(Mouse, AfterADragTheWidgetUnderThePointerIsEntered)
{
    inner.logsMoves = outer.logsMoves = top.logsMoves = false;
    enter(&inner, 5, 5);
    press();
    xinput::moveTo(&other, 10, 10);
    happened();
    release();
    EXPECT_EQ("inner release 120,0 button 1 state 1; outer release 130,10 button 1 state 1; "
              "top release 150,30 button 1 state 1; top enter; other enter",
              happened());
}

TEST_F(Mouse, ADragLastsUntilTheLastButtonIsReleased)
{
    other.acceptsMouse = true;
    other.logsMoves = false;
    enter(&other, 5, 5);
    press(1);
    press(3);
    EXPECT_EQ("other press 5,5 button 1 state 0; other press 5,5 button 2 state 1; other menu at 5,5",
              happened());
    xinput::moveTo(&inner, 5, 5);
    release(1);
    happened();
    release(3);
    EXPECT_EQ("other release -105,15 button 2 state 2; top enter; outer enter; inner enter", happened());
}

TEST_F(Mouse, TheSecondClickInTimeIsADoubleClickAndAPress)
{
    other.acceptsMouse = false;
    enter(&other, 5, 5);
    press();
    release();
    happened();
    press();
    EXPECT_EQ("other double 5,5 button 1 state 0; other press 5,5 button 1 state 0; top double 145,25 button "
              "1 state 0; "
              "top press 145,25 button 1 state 0",
              happened());
    release();
    happened();
    press();
    EXPECT_EQ("other press 5,5 button 1 state 0; top press 145,25 button 1 state 0", happened())
        << "a third click";
}

TEST_F(Mouse, ClicksFarApartOrOfOtherButtonsAreNoDoubleClick)
{
    other.acceptsMouse = true;
    other.logsMoves = false;
    xinput::click(&other, 5, 5);
    happened();
    enter(&other, 30, 30);
    press();
    EXPECT_EQ("other press 30,30 button 1 state 0", happened());
    release();
    press(2);
    EXPECT_EQ("other release 30,30 button 1 state 1; other press 30,30 button 4 state 0", happened());
}

TEST_F(Mouse, ADoubleClickMayMoveALittle)
{
    other.acceptsMouse = true;
    other.logsMoves = false;
    xinput::click(&other, 20, 20);
    happened();
    xinput::moveTo(&other, 23, 23);
    press();
    EXPECT_EQ("other double 23,23 button 1 state 0", happened());
}

TEST_F(Mouse, TheTimeOfADoubleClickCanBeChosen)
{
    EXPECT_EQ(400, QApplication::doubleClickInterval());
    QApplication::setDoubleClickInterval(0);
    other.acceptsMouse = true;
    xinput::doubleClick(&other, 5, 5);
    settle();
    EXPECT_EQ(std::string::npos, log.take().find("double"));
    QApplication::setDoubleClickInterval(400);
}

TEST_F(Mouse, ADoubleClickMayLieAcrossTheEndOfTheServersTime)
{
    other.acceptsMouse = true;
    sendClick(&other, 1, 0xffffffc0);
    EXPECT_EQ("other press 5,5 button 1 state 0; other release 5,5 button 1 state 1", happened());
    sendClick(&other, 1, 0x40);
    EXPECT_EQ("other double 5,5 button 1 state 0; other release 5,5 button 1 state 1", happened());
}

TEST_F(Mouse, AButtonThatNoMouseHasIsNotHeard)
{
    other.acceptsMouse = true;
    for (const unsigned button : {0u, 8u, 9u, 255u})
        sendClick(&other, button, 1);
    EXPECT_EQ("", happened());
}

TEST_F(Mouse, MovesWithoutAButtonAreForWhoAsksForThem)
{
    enter(&other, 10, 10);
    xinput::moveTo(&other, 12, 12);
    EXPECT_EQ("", happened());
    other.setMouseTracking(true);
    EXPECT_TRUE(other.hasMouseTracking());
    xinput::moveTo(&other, 14, 14);
    EXPECT_EQ("other move 14,14 button 0 state 0", happened()) << "the parent does not track";
    top.setMouseTracking(true);
    xinput::moveTo(&other, 16, 16);
    EXPECT_EQ("other move 16,16 button 0 state 0; top move 156,36 button 0 state 0", happened());
}

TEST_F(Mouse, ModifiersAreInTheState)
{
    other.acceptsMouse = true;
    enter(&other, 5, 5);
    xinput::pressKey(0xffe1); // shift
    press();
    release();
    xinput::releaseKey(0xffe1);
    EXPECT_NE(std::string::npos,
              happened().find("other press 5,5 button 1 state 256; other release 5,5 button 1 state 257"));
}

TEST_F(Mouse, ADisabledWidgetSwallowsClicks)
{
    inner.setEnabled(false);
    enter(&inner, 5, 5);
    xinput::click(&inner, 5, 5);
    EXPECT_EQ("", happened());
    inner.setEnabled(true);
    xinput::click(&inner, 5, 5);
    EXPECT_NE("", happened());
}

TEST_F(Mouse, AGrabberGetsEverything)
{
    other.acceptsMouse = true;
    enter(&other, 5, 5);
    other.grabMouse();
    EXPECT_EQ(&other, QWidget::mouseGrabber());
    xinput::moveTo(&inner, 5, 5);
    EXPECT_EQ("other leave; top leave", happened());
    press();
    release();
    EXPECT_EQ("other press -105,15 button 1 state 0; other release -105,15 button 1 state 1", happened());
    other.releaseMouse();
    EXPECT_EQ(nullptr, QWidget::mouseGrabber());
    xinput::click(&inner, 8, 8);
    EXPECT_NE(std::string::npos, happened().find("inner press 8,8"));
}

TEST_F(Mouse, AWidgetMayDieOfItsPress)
{
    struct Mortal : public QWidget {
        explicit Mortal(QWidget* parent) : QWidget(parent) {}
        void mousePressEvent(QMouseEvent*) override { delete this; }
    };
    QGuardedPtr<QWidget> mortal(new Mortal(&other));
    mortal->setGeometry(0, 0, 40, 40);
    mortal->show();
    settle();
    enter(mortal, 5, 5);
    press();
    EXPECT_TRUE(mortal.isNull());
    happened();
    release();
    EXPECT_EQ("other release 5,5 button 1 state 1; top release 145,25 button 1 state 1", happened());
}

TEST_F(Mouse, TheRightButtonAsksForAMenu)
{
    enter(&inner, 5, 5);
    press(3);
    EXPECT_EQ("inner press 5,5 button 2 state 0; outer press 15,15 button 2 state 0; top press 35,35 button "
              "2 state 0; "
              "inner menu at 5,5; outer menu at 15,15; top menu at 35,35",
              happened());
}
