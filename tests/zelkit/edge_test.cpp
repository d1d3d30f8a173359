// ZelEdge: its two colours, and mouse events as signals.
#include <zeledge.h>

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
    EventCount presses(&window, QEvent::MouseButtonPress), releases(&window, QEvent::MouseButtonRelease),
        moves(&window, QEvent::MouseMove);
    EXPECT_TRUE(press(&edge, 2, 2, Qt::RightButton));
    EXPECT_TRUE(drag(&edge, 3, 3));
    EXPECT_TRUE(release(&edge, 2, 2, Qt::RightButton));
    EXPECT_EQ(presses.take() + releases.take() + moves.take(), 0);
    EXPECT_EQ(recorder.take(), "mousePress mouseMove mouseRelease");
}

TEST_F(Edge, TheFirstReleaseEndsTheHeldLook)
{
    edge.colours.clear();
    press(&edge);
    press(&edge, 5, 5, Qt::RightButton);
    drag(&edge, 6, 6);
    release(&edge, 5, 5, Qt::RightButton);
    EXPECT_EQ(edge.colours, "#00f000 #00f000 #000000 ");
    EXPECT_EQ(recorder.take(), "mousePress mousePress mouseMove mouseRelease");
    EXPECT_EQ(Pixels::of(&edge).count(0x000000), 8 * 60);
}

TEST_F(Edge, TheColourIsSetBeforeTheSignal)
{
    std::string colours;
    recorder.whenever = [&] { colours += std::string(edge.paletteBackgroundColor().name().latin1()) + " "; };
    press(&edge);
    drag(&edge, 6, 6);
    release(&edge);
    EXPECT_EQ(colours, "#00f000 #00f000 #000000 ");
}

TEST_F(Edge, EveryButtonCounts)
{
    for (const int button : {Qt::LeftButton, Qt::MidButton, Qt::RightButton}) {
        EXPECT_TRUE(press(&edge, 2, 2, button));
        EXPECT_EQ(edge.paletteBackgroundColor(), QColor(0, 240, 0)) << button;
        EXPECT_TRUE(release(&edge, 2, 2, button));
        EXPECT_EQ(edge.paletteBackgroundColor(), QColor(0, 0, 0)) << button;
    }
}

TEST_F(Edge, ItIsAPlainWidget)
{
    EXPECT_STREQ(edge.name(), "edge");
    EXPECT_EQ(edge.parentWidget(), &window);
    EXPECT_FALSE(edge.isTopLevel());
    edge.colours = "";
    edge.setColor(QColor(1, 2, 3), QColor(4, 5, 6));
    EXPECT_EQ(edge.colours, "#010203 ");
    EXPECT_EQ(Pixels::of(&edge).count(0x010203), 8 * 60);
    EXPECT_EQ(recorder.take(), "");
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
