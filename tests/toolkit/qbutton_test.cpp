// What all buttons have in common: states, shortcuts, repeated clicks.
#include "pixels.h"
#include "printers.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qbutton.h>
#include <qpainter.h>
#include <qpixmap.h>

#include <X11/keysym.h>

namespace
{

// A button that may be switched, hit in its left half only, and is red, or blue while it is down.
class HalfButton : public QButton
{
public:
    explicit HalfButton(QWidget* parent) : QButton(parent, "half") {}
    using QButton::setOn;
    using QButton::setState;
    using QButton::setToggleButton;
    using QButton::setToggleType;

protected:
    bool hitButton(const QPoint& pos) const override { return pos.x() < width() / 2; }
    void drawButton(QPainter* p) override
    {
        p->fillRect(rect(), isDown() ? Qt::blue : Qt::red);
        drawButtonLabel(p);
    }
    void drawButtonLabel(QPainter* p) override { p->fillRect(0, 0, 2, 2, Qt::green); }
};

class Button : public testing::Test
{
protected:
    Button() : button(&window)
    {
        window.setGeometry(100, 100, 120, 80);
        button.setGeometry(10, 10, 40, 20);
        for (const char* signal : {SIGNAL(pressed()), SIGNAL(released()), SIGNAL(clicked()),
                                   SIGNAL(toggled(bool)), SIGNAL(stateChanged(int))})
            recorder.watch(&button, signal);
    }

    QWidget window;
    HalfButton button;
    SignalRecorder recorder;
};

} // namespace

TEST_F(Button, IsUpAndOffAtFirst)
{
    EXPECT_FALSE(button.isDown());
    EXPECT_FALSE(button.isOn());
    EXPECT_FALSE(button.isToggleButton());
    EXPECT_EQ(QButton::SingleShot, button.toggleType());
    EXPECT_EQ(QButton::Off, button.state());
    EXPECT_FALSE(button.autoRepeat());
    EXPECT_EQ(nullptr, button.pixmap());
    EXPECT_TRUE(button.accel().isEmpty());
    EXPECT_EQ(QWidget::TabFocus, button.focusPolicy());
}

TEST_F(Button, OnlyToggleButtonsAreSwitched)
{
    button.setOn(true);
    button.toggle();
    EXPECT_FALSE(button.isOn());
    EXPECT_EQ("", recorder.take());
    button.setToggleButton(true);
    button.setOn(true);
    EXPECT_EQ("toggled(true) stateChanged(2)", recorder.take());
    button.setOn(true);
    EXPECT_EQ("", recorder.take());
    button.toggle();
    EXPECT_EQ("toggled(false) stateChanged(0)", recorder.take());
}

TEST_F(Button, TheStateInBetweenCountsAsOn)
{
    button.setToggleType(QButton::Tristate);
    button.setState(QButton::NoChange);
    EXPECT_TRUE(button.isOn());
    EXPECT_EQ("toggled(true) stateChanged(1)", recorder.take());
    button.setState(QButton::On);
    EXPECT_EQ("stateChanged(2)", recorder.take());
}

TEST_F(Button, IsShownDownAtOnceAndSilently)
{
    showAndWait(&window);
    EXPECT_EQ(0xff0000u, Pixels::now(&button).at(20, 10));
    button.setDown(true);
    EXPECT_EQ(0x0000ffu, Pixels::now(&button).at(20, 10));
    EXPECT_EQ(0x00ff00u, Pixels::now(&button).at(1, 1)) << "the label";
    button.setDown(false);
    EXPECT_EQ(0xff0000u, Pixels::now(&button).at(20, 10));
    EXPECT_EQ("", recorder.take());
}

TEST_F(Button, ClicksCountWhereTheSubclassSaysSo)
{
    showAndWait(&window);
    xinput::click(&button, 35, 10);
    settle();
    EXPECT_EQ("", recorder.take());
    xinput::click(&button, 5, 10);
    EXPECT_TRUE(waitFor([this] { return recorder.count() == 3; }));
    EXPECT_EQ("pressed released clicked", recorder.take());
}

TEST_F(Button, ALetterAfterASignIsTheShortcut)
{
    const int control = Qt::ALT | Qt::UNICODE_ACCEL;
    const struct {
        const char* text;
        int key;
    } cases[] = {{"&Push", control | 'P'},
                 {"A&b", control | 'B'},
                 {"A && b", 0},
                 {"x", 0},
                 {"A && &b", control | 'B'}};
    for (const auto& each : cases) {
        button.setText(each.text);
        EXPECT_EQ(each.key, static_cast<int>(button.accel())) << each.text;
    }
    button.setText("&x");
    button.setPixmap(QPixmap(4, 4));
    EXPECT_TRUE(button.accel().isEmpty());
    EXPECT_TRUE(button.text().isNull());
    ASSERT_NE(nullptr, button.pixmap());
    button.setText("y");
    EXPECT_EQ(nullptr, button.pixmap());
}

TEST_F(Button, TheShortcutClicksButDoesNotTakeTheFocus)
{
    QWidget other(&window);
    other.setFocusPolicy(QWidget::StrongFocus);
    button.setText("&Go");
    showAndActivate(&window);
    other.setFocus();
    xinput::typeKey(XK_g);
    settle();
    EXPECT_EQ("", recorder.take()) << "without Alt";
    xinput::typeKey(XK_g, XK_Alt_L);
    EXPECT_TRUE(waitFor([this] { return recorder.count() == 3; }));
    EXPECT_EQ("pressed released clicked", recorder.take());
    EXPECT_TRUE(other.hasFocus());
    button.setAccel(Qt::CTRL + Qt::Key_K);
    xinput::typeKey(XK_g, XK_Alt_L);
    xinput::typeKey(XK_k, XK_Control_L);
    EXPECT_TRUE(waitFor([this] { return recorder.count() == 3; }));
    button.setEnabled(false);
    recorder.take();
    xinput::typeKey(XK_k, XK_Control_L);
    settle();
    EXPECT_EQ("", recorder.take());
}

TEST_F(Button, AnAnimatedClickIsSeenForAMoment)
{
    showAndWait(&window);
    button.animateClick();
    EXPECT_EQ("pressed", recorder.take());
    EXPECT_TRUE(button.isDown());
    button.animateClick();
    EXPECT_EQ("", recorder.take()) << "one at a time";
    EXPECT_TRUE(waitFor([this] { return recorder.count() == 2; }));
    EXPECT_EQ("released clicked", recorder.take());
    EXPECT_FALSE(button.isDown());
    button.setEnabled(false);
    button.animateClick();
    EXPECT_EQ("", recorder.take());
}

TEST_F(Button, ClicksAreRepeatedWhileItIsHeld)
{
    button.setAutoRepeat(true);
    showAndWait(&window);
    xinput::moveTo(&button, 5, 5);
    xinput::pressButton();
    EXPECT_TRUE(waitFor([this] { return recorder.count() >= 7; }));
    EXPECT_EQ(0u, recorder.take().find("pressed released clicked pressed released clicked pressed"));
    xinput::moveTo(&button, 35, 5);
    EXPECT_TRUE(waitFor([this] { return !button.isDown(); }));
    recorder.take();
    EXPECT_FALSE(waitFor([this] { return recorder.count() > 0; }, 250)) << "not while the pointer is outside";
    xinput::releaseButton();
    settle();
    EXPECT_EQ("", recorder.take());
}

TEST_F(Button, MayBeDeletedByWhoHearsOfTheClick)
{
    HalfButton* doomed = new HalfButton(&window);
    doomed->setGeometry(60, 10, 40, 20);
    SignalRecorder last;
    last.watch(doomed, SIGNAL(released()));
    last.watch(doomed, SIGNAL(clicked()));
    last.whenever = [doomed] { delete doomed; };
    showAndWait(&window);
    xinput::click(doomed, 5, 5);
    EXPECT_TRUE(waitFor([&last] { return last.count() == 1; }));
    settle();
    EXPECT_EQ("released", last.take());
}

TEST_F(Button, GoesUpWhenItIsDisabled)
{
    showAndWait(&window);
    xinput::moveTo(&button, 5, 5);
    xinput::pressButton();
    EXPECT_TRUE(waitFor([this] { return button.isDown(); }));
    recorder.take();
    button.setEnabled(false);
    EXPECT_FALSE(button.isDown());
    xinput::releaseButton();
    settle();
    EXPECT_EQ("", recorder.take());
}
