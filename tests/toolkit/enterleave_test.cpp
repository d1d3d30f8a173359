// The pointer comes and goes.
#include "inputlog.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>

namespace
{

class EnterLeave : public testing::Test
{
protected:
    EnterLeave()
        : top(&log, nullptr, "top", 100, 100, 200, 150), outer(&log, &top, "outer", 20, 20, 100, 80),
          inner(&log, &outer, "inner", 10, 10, 40, 30), other(&log, &top, "other", 140, 20, 40, 40)
    {
        showAndActivate(&top);
        log.take();
    }
    std::string into(QWidget* widget, int x, int y)
    {
        xinput::moveTo(widget, x, y);
        settle();
        return log.take();
    }
    std::string away()
    {
        xinput::park();
        settle();
        return log.take();
    }

    EventLog log;
    InputWidget top, outer, inner, other;
};

} // namespace

TEST_F(EnterLeave, StepByStepOnlyTheNextOneHears)
{
    EXPECT_EQ("top enter", into(&top, 5, 5));
    EXPECT_EQ("outer enter", into(&outer, 60, 50));
    EXPECT_EQ("inner enter", into(&inner, 5, 5));
    EXPECT_EQ("inner leave; outer leave", into(&top, 5, 120));
    EXPECT_EQ("top leave", away());
}

TEST_F(EnterLeave, FromOutsideTheOutermostHearsFirst)
{
    EXPECT_EQ("top enter; outer enter; inner enter", into(&inner, 3, 3));
    EXPECT_EQ("inner leave; outer leave; top leave", away());
}

TEST_F(EnterLeave, CommonAncestorsHearNothing)
{
    into(&inner, 5, 5);
    EXPECT_EQ("inner leave; outer leave; other enter", into(&other, 5, 5));
    EXPECT_EQ("other leave; outer enter; inner enter", into(&inner, 5, 5));
}

TEST_F(EnterLeave, HasMouseIsTrueForAllAround)
{
    into(&inner, 5, 5);
    EXPECT_TRUE(top.hasMouse());
    EXPECT_TRUE(outer.hasMouse());
    EXPECT_TRUE(inner.hasMouse());
    EXPECT_FALSE(other.hasMouse());
    away();
    EXPECT_FALSE(top.hasMouse());
    EXPECT_FALSE(inner.hasMouse());
}

TEST_F(EnterLeave, AWidgetThatAppearsUnderThePointerIsEntered)
{
    into(&other, 5, 5);
    other.hide();
    settle();
    EXPECT_EQ("other leave", log.take());
    other.show();
    settle();
    EXPECT_EQ("other enter", log.take());
}

TEST_F(EnterLeave, ATrackerSeesWhereThePointerWentBeforeItHearsThatItIsGone)
{
    into(&inner, 5, 5);
    inner.setMouseTracking(true);
    EXPECT_EQ("inner move 60,50 button 0 state 0; inner leave", into(&outer, 70, 60));
}

TEST_F(EnterLeave, AWindowUnderAModalOneIsNotEntered)
{
    QWidget modal(nullptr, "modal", Qt::WType_Dialog | Qt::WShowModal);
    modal.setGeometry(500, 300, 50, 50);
    showAndActivate(&modal);
    log.take();
    EXPECT_EQ("", into(&inner, 5, 5));
    modal.hide();
    settle();
    log.take();
    away();
    EXPECT_EQ("top enter; outer enter; inner enter", into(&inner, 6, 6));
}
