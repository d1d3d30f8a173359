// The wheel.
#include "inputlog.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>

namespace
{

class Wheel : public testing::Test
{
protected:
    Wheel()
        : top(&log, nullptr, "top", 100, 100, 200, 150), inner(&log, &top, "inner", 20, 20, 100, 80),
          other(&log, &top, "other", 140, 20, 40, 40)
    {
        showAndActivate(&top);
        xinput::moveTo(&inner, 5, 5);
        settle();
        log.take();
    }
    std::string turn(int button)
    {
        xinput::pressButton(button);
        xinput::releaseButton(button);
        settle();
        return log.take();
    }

    EventLog log;
    InputWidget top, inner, other;
};

} // namespace

TEST_F(Wheel, AStepIs120UpOrDown)
{
    inner.acceptsMouse = true;
    EXPECT_EQ("inner wheel 120 at 5,5 state 0 vertical", turn(4));
    EXPECT_EQ("inner wheel -120 at 5,5 state 0 vertical", turn(5));
}

TEST_F(Wheel, WithAltItGoesSideways)
{
    inner.acceptsMouse = true;
    xinput::pressKey(0xffe9); // Alt
    settle();
    log.take();
    EXPECT_EQ("inner wheel -120 at 5,5 state 1024 horizontal", turn(5));
}

TEST_F(Wheel, WhoDoesNotWantItLeavesItToTheParent)
{
    EXPECT_EQ("inner wheel 120 at 5,5 state 0 vertical; top wheel 120 at 25,25 state 0 vertical", turn(4));
}

TEST_F(Wheel, ADisabledWidgetDoesNotHearIt)
{
    inner.setEnabled(false);
    EXPECT_EQ("", turn(4));
}

TEST_F(Wheel, WhatNobodyThereWantsIsOfferedToTheFocus)
{
    other.setFocusPolicy(QWidget::StrongFocus);
    other.setFocus();
    log.take();
    EXPECT_EQ("inner wheel 120 at 5,5 state 0 vertical; top wheel 120 at 25,25 state 0 vertical; "
              "other wheel 120 at -115,5 state 0 vertical; top wheel 120 at 25,25 state 0 vertical",
              turn(4));
    inner.acceptsMouse = true;
    EXPECT_EQ("inner wheel 120 at 5,5 state 0 vertical", turn(4));
}
