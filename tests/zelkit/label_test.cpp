// ZelLabel: its signals, its toggle, and the hover look of active labels.
#include <zellabel.h>

#include "pixels.h"
#include "sentevents.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>

namespace
{

class Label : public testing::Test
{
protected:
    Label() : window(0, "window"), label(nullptr) { window.setGeometry(200, 150, 200, 120); }

    void show(bool active)
    {
        label = new ZelLabel(QString("Toggle"), &window, "label", active, 0);
        label->setGeometry(20, 30, 100, 40);
        recorder.watch(label, SIGNAL(mousePress(QMouseEvent*)));
        recorder.watch(label, SIGNAL(mouseRelease(QMouseEvent*)));
        recorder.watch(label, SIGNAL(mouseDoubleClick(QMouseEvent*)));
        recorder.watch(label, SIGNAL(mouseMove(QMouseEvent*)));
        recorder.watch(label, SIGNAL(clicked(ZelLabel*)));
        showAndWait(&window);
    }

    QWidget window;
    ZelLabel* label;
    SignalRecorder recorder;
};

} // namespace

TEST_F(Label, EveryMouseEventIsToldAndGoesOnToTheParent)
{
    show(false);
    EventCount presses(&window, QEvent::MouseButtonPress);
    EXPECT_FALSE(press(label));
    EXPECT_EQ(presses.take(), 1);
    drag(label, 6, 6);
    release(label);
    EXPECT_EQ(recorder.take(), "mousePress mouseMove mouseRelease clicked");
    doubleClick(label);
    EXPECT_EQ(recorder.take(), "mouseDoubleClick mousePress");
}

TEST_F(Label, ALeftReleaseInsideTogglesWithoutAPress)
{
    show(false);
    EXPECT_FALSE(label->isOn());
    release(label, 99, 39);
    EXPECT_TRUE(label->isOn());
    release(label, 0, 0);
    EXPECT_FALSE(label->isOn());
    EXPECT_EQ(recorder.take(), "mouseRelease clicked mouseRelease clicked");
    release(label, 100, 5);
    release(label, 5, 40);
    release(label, -1, 5);
    release(label, 5, 5, Qt::RightButton);
    EXPECT_FALSE(label->isOn());
    EXPECT_EQ(recorder.take(), "mouseRelease mouseRelease mouseRelease mouseRelease");
}

TEST_F(Label, SetOnTellsEveryTime)
{
    show(true);
    EventCount paints(label, QEvent::Paint);
    label->setOn(true);
    label->setOn(true);
    EXPECT_TRUE(label->isOn());
    EXPECT_EQ(recorder.take(), "clicked clicked");
    EXPECT_EQ(paints.take(), 0);
}

TEST_F(Label, AnActiveLabelTurnsBoldAndColouredUnderThePointer)
{
    show(true);
    EXPECT_GT(Pixels::of(label).count(0x000000), 5);
    xinput::moveTo(label, 50, 20);
    EXPECT_TRUE(waitFor([this] { return label->font().bold(); }));
    EXPECT_GT(Pixels::of(label).count(0x0000f0), 5);
    EXPECT_EQ(Pixels::of(label).count(0x000000), 0);
    xinput::park();
    EXPECT_TRUE(waitFor([this] { return !label->font().bold(); }));
    EXPECT_EQ(label->font().weight(), 50);
    EXPECT_GT(Pixels::of(label).count(0x000000), 5);
}

TEST_F(Label, APassiveLabelLooksTheSameUnderThePointer)
{
    show(false);
    const Pixels before = Pixels::of(label);
    xinput::moveTo(label, 50, 20);
    EXPECT_TRUE(waitFor([this] { return label->hasMouse(); }));
    EXPECT_EQ(Pixels::of(label).differenceFrom(before), "");
    EXPECT_FALSE(label->font().bold());
}

TEST_F(Label, TheTwoConstructorsHaveTwoBlues)
{
    ZelLabel other("Toggle", &window, "other", true, 0);
    other.setGeometry(20, 75, 100, 40);
    show(true);
    enter(&other);
    EXPECT_GT(Pixels::of(&other).count(0x0000c8), 5);
    enter(label);
    EXPECT_GT(Pixels::of(label).count(0x0000f0), 5);
}

TEST_F(Label, NewColoursShowAtTheNextRepaint)
{
    show(true);
    enter(label);
    const Pixels before = Pixels::of(label);
    QColor red(255, 0, 0);
    QColor green(0, 255, 0);
    label->setTextColors(red, green);
    EXPECT_EQ(Pixels::of(label).differenceFrom(before), "");
    label->repaint(true);
    EXPECT_GT(Pixels::of(label).count(0xff0000), 5);
    leave(label);
    EXPECT_GT(Pixels::of(label).count(0x00ff00), 5);
}
