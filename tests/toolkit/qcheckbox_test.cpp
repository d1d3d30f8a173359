// Check boxes: clicking, switching, three states.
#include "printers.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qcheckbox.h>
#include <qfontmetrics.h>
#include <qpixmap.h>

#include <X11/keysym.h>

#include <string>

namespace
{

class CheckBox : public testing::Test
{
protected:
    CheckBox() : box("Check", &window)
    {
        window.setGeometry(100, 100, 200, 80);
        box.setGeometry(10, 10, 150, 30);
        for (const char* signal : {SIGNAL(pressed()), SIGNAL(released()), SIGNAL(clicked()),
                                   SIGNAL(toggled(bool)), SIGNAL(stateChanged(int))})
            recorder.watch(&box, signal);
        showAndActivate(&window);
    }

    std::string clickAt(int x, int y)
    {
        xinput::click(&box, x, y);
        settle();
        return recorder.take();
    }

    QWidget window;
    QCheckBox box;
    SignalRecorder recorder;
};

} // namespace

TEST_F(CheckBox, Defaults)
{
    EXPECT_FALSE(box.isChecked());
    EXPECT_FALSE(box.isTristate());
    EXPECT_TRUE(box.isToggleButton());
    EXPECT_EQ(QWidget::TabFocus, box.focusPolicy());
    EXPECT_EQ(QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed), box.sizePolicy());
}

TEST_F(CheckBox, AClickOnIndicatorOrTextSwitches)
{
    EXPECT_EQ("pressed toggled(true) stateChanged(2) released clicked", clickAt(6, 15));
    EXPECT_TRUE(box.isChecked());
    EXPECT_EQ("pressed toggled(false) stateChanged(0) released clicked", clickAt(40, 15));
    EXPECT_EQ("", clickAt(148, 28)) << "far from the text";
}

TEST_F(CheckBox, ThePointerMayLeave)
{
    xinput::moveTo(&box, 6, 15);
    xinput::pressButton();
    xinput::moveTo(&window, 5, 70);
    settle();
    EXPECT_EQ("pressed released", recorder.take());
    EXPECT_FALSE(box.isDown());
    xinput::releaseButton();
    settle();
    EXPECT_EQ("", recorder.take());
    EXPECT_FALSE(box.isChecked());
}

TEST_F(CheckBox, SpaceSwitchesAndReturnDoesNot)
{
    box.setFocus();
    xinput::typeKey(XK_space);
    settle();
    EXPECT_EQ("toggled(true) stateChanged(2) released clicked", recorder.take());
    xinput::typeKey(XK_Return);
    settle();
    EXPECT_EQ("", recorder.take());
}

TEST_F(CheckBox, IsSwitchedByTheProgram)
{
    box.setChecked(true);
    EXPECT_EQ("toggled(true) stateChanged(2)", recorder.take());
    box.setChecked(true);
    EXPECT_EQ("", recorder.take());
    box.setEnabled(false);
    EXPECT_EQ("", clickAt(6, 15));
    box.setChecked(false);
    EXPECT_EQ("toggled(false) stateChanged(0)", recorder.take());
}

TEST_F(CheckBox, ThreeStatesFollowEachOther)
{
    box.setTristate();
    EXPECT_TRUE(box.isTristate());
    EXPECT_EQ("pressed toggled(true) stateChanged(1) released clicked", clickAt(6, 15));
    EXPECT_EQ(QButton::NoChange, box.state());
    EXPECT_EQ("pressed stateChanged(2) released clicked", clickAt(6, 15));
    EXPECT_EQ("pressed toggled(false) stateChanged(0) released clicked", clickAt(6, 15));
    box.setTristate(false);
    EXPECT_EQ("pressed toggled(true) stateChanged(2) released clicked", clickAt(6, 15));
    box.setNoChange();
    EXPECT_EQ("stateChanged(1)", recorder.take());
    EXPECT_TRUE(box.isTristate());
    EXPECT_TRUE(box.isChecked());
}

TEST_F(CheckBox, WantsRoomForIndicatorAndLabel)
{
    const QSize text = box.fontMetrics().size(Qt::ShowPrefix, "Check");
    EXPECT_EQ(QSize(text.width() + 22, text.height() + 4), box.sizeHint());
    EXPECT_EQ(QSize(13, 13), QCheckBox(&window).sizeHint());
    box.setPixmap(QPixmap(30, 40));
    EXPECT_EQ(QSize(52, 44), box.sizeHint());
}
