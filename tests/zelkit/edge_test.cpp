// ZelEdge and ZelFrame: mouse events as signals.
#include <zeledge.h>
#include <zelframe.h>

#include "pixels.h"
#include "sentevents.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>

namespace
{

// Notes the colour that is set when a signal comes.
class WatchedEdge : public ZelEdge
{
public:
    explicit WatchedEdge(QWidget* parent) : ZelEdge(parent, "edge") {}
    std::string colours;
    void setPaletteBackgroundColor(const QColor& color) override
    {
        colours += std::string(color.name().latin1()) + " ";
        ZelEdge::setPaletteBackgroundColor(color);
    }
};

class Edge : public testing::Test
{
protected:
    Edge() : window(0, "window"), edge(&window)
    {
        window.setGeometry(200, 150, 100, 80);
        edge.setGeometry(10, 10, 8, 60);
        recorder.watch(&edge, SIGNAL(mousePress(QMouseEvent*)));
        recorder.watch(&edge, SIGNAL(mouseRelease(QMouseEvent*)));
        recorder.watch(&edge, SIGNAL(mouseMove(QMouseEvent*)));
        showAndWait(&window);
    }

    QWidget window;
    WatchedEdge edge;
    SignalRecorder recorder;
};

} // namespace

TEST_F(Edge, IsBlackAndGreenWhileHeld)
{
    EXPECT_EQ(Pixels::of(&edge).count(0x000000), 8 * 60);
    xinput::moveTo(&edge, 4, 30);
    xinput::pressButton();
    EXPECT_TRUE(waitFor([this] { return Pixels::of(&edge).count(0x00f000) == 8 * 60; }));
    xinput::moveTo(&edge, 50, 30);
    xinput::releaseButton();
    EXPECT_TRUE(waitFor([this] { return Pixels::of(&edge).count(0x000000) == 8 * 60; }));
    const std::string all = recorder.take();
    EXPECT_EQ(all.find("mousePress mouseMove"), 0U) << all;
    EXPECT_EQ(all.find("mouseRelease"), all.size() - 12) << all;
}

TEST_F(Edge, KeepsItsEventsFromTheParent)
{
    EventCount presses(&window, QEvent::MouseButtonPress);
    EXPECT_TRUE(press(&edge, 2, 2, Qt::RightButton));
    EXPECT_TRUE(drag(&edge, 3, 3));
    EXPECT_TRUE(release(&edge, 2, 2, Qt::RightButton));
    EXPECT_EQ(presses.take(), 0);
    EXPECT_EQ(recorder.take(), "mousePress mouseMove mouseRelease");
}

TEST_F(Edge, TheFirstReleaseEndsTheHeldLook)
{
    edge.colours.clear();
    press(&edge);
    press(&edge, 5, 5, Qt::RightButton);
    release(&edge, 5, 5, Qt::RightButton);
    EXPECT_EQ(edge.colours, "#00f000 #00f000 #000000 ");
}

TEST_F(Edge, NewColoursShowAtOnce)
{
    press(&edge);
    edge.setColor(QColor(1, 2, 3), QColor(4, 5, 6));
    EXPECT_EQ(edge.paletteBackgroundColor(), QColor(1, 2, 3));
    release(&edge);
    press(&edge);
    EXPECT_EQ(edge.paletteBackgroundColor(), QColor(4, 5, 6));
}

TEST_F(Edge, ADoubleClickPressesTwice)
{
    xinput::doubleClick(&edge, 4, 30);
    EXPECT_TRUE(waitFor([this] { return recorder.count() >= 4; }));
    EXPECT_EQ(recorder.take(), "mousePress mouseRelease mousePress mouseRelease");
    EXPECT_EQ(edge.paletteBackgroundColor(), QColor(0, 0, 0));
}

TEST(Frame, TellsEachEventTwiceAndPassesItOn)
{
    QWidget window(0, "window");
    ZelFrame frame(&window, "frame", 0);
    SignalRecorder recorder;
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
    EventCount presses(&window, QEvent::MouseButtonPress);
    EXPECT_FALSE(press(&frame));
    EXPECT_EQ(presses.take(), 1);
    EXPECT_EQ(recorder.take(), "mousePress mousePressEx");
    EXPECT_FALSE(drag(&frame, 7, 7));
    EXPECT_FALSE(release(&frame, 5, 5, Qt::RightButton));
    EXPECT_EQ(recorder.take(), "mouseMove mouseMoveEx mouseRelease mouseReleaseEx");
    doubleClick(&frame);
    EXPECT_EQ(recorder.take(), "mouseDoubleClick mouseDoubleClickEx mousePress mousePressEx");
}
