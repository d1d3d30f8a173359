// ZelFrame: each mouse event as two signals, and then on to the parent.
#include <zelframe.h>

#include "inputlog.h"
#include "pixels.h"
#include "sentevents.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>

namespace
{

class Frame : public testing::Test
{
protected:
    Frame() : window(&log, 0, "window", 200, 150, 200, 120), frame(&window, "frame", 0)
    {
        frame.setGeometry(20, 30, 100, 60);
        const char* const signals_[] = {SIGNAL(mousePress(QMouseEvent*)),
                                        SIGNAL(mouseRelease(QMouseEvent*)),
                                        SIGNAL(mouseDoubleClick(QMouseEvent*)),
                                        SIGNAL(mouseMove(QMouseEvent*)),
                                        SIGNAL(mousePressEx(QMouseEvent*, ZelFrame*)),
                                        SIGNAL(mouseReleaseEx(QMouseEvent*, ZelFrame*)),
                                        SIGNAL(mouseDoubleClickEx(QMouseEvent*, ZelFrame*)),
                                        SIGNAL(mouseMoveEx(QMouseEvent*, ZelFrame*))};
        for (const char* signal : signals_)
            recorder.watch(&frame, signal);
        showAndWait(&window);
        log.take();
    }

    EventLog log;
    InputWidget window;
    ZelFrame frame;
    SignalRecorder recorder;
};

} // namespace

TEST_F(Frame, TellsEachEventTwiceAndPassesItOn)
{
    for (const int button : {Qt::LeftButton, Qt::MidButton, Qt::RightButton}) {
        const std::string number = std::to_string(button);
        EXPECT_FALSE(press(&frame, 5, 6, button));
        EXPECT_EQ(recorder.take(), "mousePress mousePressEx");
        EXPECT_EQ(log.take(), "window press 25,36 button " + number + " state 0");
        EXPECT_FALSE(release(&frame, 500, 6, button));
        EXPECT_EQ(recorder.take(), "mouseRelease mouseReleaseEx");
        EXPECT_EQ(log.take(), "window release 520,36 button " + number + " state " + number);
    }
    EXPECT_FALSE(drag(&frame, 7, 8));
    EXPECT_EQ(recorder.take(), "mouseMove mouseMoveEx");
    EXPECT_EQ(log.take(), "window move 27,38 button 0 state 1");
    EXPECT_FALSE(doubleClick(&frame, 5, 6));
    EXPECT_EQ(recorder.take(), "mouseDoubleClick mouseDoubleClickEx mousePress mousePressEx");
    EXPECT_EQ(log.take(), "window double 25,36 button 1 state 0; window press 25,36 button 1 state 0");
}

TEST_F(Frame, TellsBeforeTheParentHears)
{
    std::string heard;
    recorder.whenever = [&] { heard += log.take(); };
    press(&frame);
    drag(&frame, 6, 6);
    release(&frame);
    // Only what was told before: the press at the move, the move at the release.
    EXPECT_EQ(heard, "window press 25,35 button 1 state 0window move 26,36 button 0 state 1");
}

TEST_F(Frame, ARealDoubleClick)
{
    xinput::doubleClick(&frame, 50, 30);
    EXPECT_TRUE(waitFor([this] { return recorder.count() >= 10; }));
    settle();
    EXPECT_EQ(recorder.take(), "mousePress mousePressEx mouseRelease mouseReleaseEx "
                               "mouseDoubleClick mouseDoubleClickEx mousePress mousePressEx "
                               "mouseRelease mouseReleaseEx");
}

TEST_F(Frame, MovesComeWhileAButtonIsHeldOrWithMouseTracking)
{
    xinput::moveTo(&frame, 20, 20);
    xinput::moveTo(&frame, 30, 20);
    settle();
    EXPECT_EQ(recorder.take(), "");
    frame.setMouseTracking(true);
    xinput::moveTo(&frame, 40, 20);
    EXPECT_TRUE(waitFor([this] { return recorder.count() >= 2; }));
    EXPECT_EQ(recorder.take().find("mouseMove mouseMoveEx"), 0U);
}

TEST_F(Frame, LooksAsAQFrame)
{
    EXPECT_EQ(frame.frameStyle(), QFrame::NoFrame | QFrame::Plain);
    EXPECT_STREQ(frame.name(), "frame");
    QFrame plain(&window, "plain");
    plain.setGeometry(20, 30, 100, 60);
    for (QFrame* each : {static_cast<QFrame*>(&frame), &plain}) {
        each->setFrameStyle(QFrame::Box | QFrame::Raised);
        each->setLineWidth(3);
    }
    const Pixels ours = Pixels::of(&frame);
    frame.hide();
    plain.show();
    settle();
    EXPECT_EQ(ours.differenceFrom(Pixels::of(&plain)), "");
    EXPECT_TRUE(ZelFrame(&window, "window", Qt::WType_TopLevel).isTopLevel());
}
