// ZelGraph: the events that it tells and passes on.
#include "graphpair.h"
#include "inputlog.h"
#include "signalrecorder.h"
#include "xinput.h"

#include <X11/keysym.h>

#include <gtest/gtest.h>
#include <qscrollbar.h>

namespace
{

// A graph in a parent that writes down what reaches it.
class GraphEvents : public testing::Test
{
protected:
    GraphEvents() : window(&log, 0, "window", 10, 10, 300, 200), graph(&window, "graph", true)
    {
        graph.setGeometry(20, 30, 202, 102);
        for (const char* signal : {SIGNAL(mousePress(QMouseEvent*)), SIGNAL(mouseRelease(QMouseEvent*)),
                                   SIGNAL(mouseDoubleClick(QMouseEvent*)), SIGNAL(mouseMove(QMouseEvent*)),
                                   SIGNAL(keyPress(QKeyEvent*))})
            recorder.watch(&graph, signal);
        showAndWait(&window);
        log.take();
    }

    EventLog log;
    InputWidget window;
    ZelGraph graph;
    SignalRecorder recorder;
};

} // namespace

TEST_F(GraphEvents, EveryMouseEventIsToldAndGoesOnToTheParent)
{
    const int buttons[] = {Qt::LeftButton, Qt::MidButton, Qt::RightButton};
    for (const int button : buttons) {
        EXPECT_FALSE(press(&graph, 5, 6, button));
        EXPECT_EQ(recorder.take(), "mousePress");
        EXPECT_EQ(log.take(), "window press 25,36 button " + std::to_string(button) + " state 0");
        EXPECT_FALSE(release(&graph, 5, 6, button));
        EXPECT_EQ(recorder.take(), "mouseRelease");
        EXPECT_EQ(log.take(), "window release 25,36 button " + std::to_string(button) + " state " +
                                  std::to_string(button));
    }
    EXPECT_FALSE(drag(&graph, 7, 8));
    EXPECT_EQ(recorder.take(), "mouseMove");
    EXPECT_EQ(log.take(), "window move 27,38 button 0 state 1");
}

TEST_F(GraphEvents, ADoubleClickIsAPressToo)
{
    EXPECT_FALSE(doubleClick(&graph, 5, 6));
    EXPECT_EQ(recorder.take(), "mouseDoubleClick mousePress");
    EXPECT_EQ(log.take(), "window double 25,36 button 1 state 0; window press 25,36 button 1 state 0");
    xinput::doubleClick(&graph, 50, 40);
    settle();
    EXPECT_EQ(recorder.take(), "mousePress mouseRelease mouseDoubleClick mousePress mouseRelease");
}

TEST_F(GraphEvents, KeysAreToldAndGoOnToTheParent)
{
    EXPECT_FALSE(sendKey(&graph, Qt::Key_A, 'a', 0, "a"));
    EXPECT_EQ(recorder.take(), "keyPress");
    EXPECT_EQ(log.take(), "window key A state 0");
    xinput::typeKey(XK_b);
    settle();
    EXPECT_EQ(recorder.take(), "") << "it takes no focus by itself";
    showAndActivate(&window);
    graph.setFocus();
    log.take();
    xinput::typeKey(XK_b);
    EXPECT_TRUE(waitFor([this] { return recorder.count() > 0; }));
    EXPECT_EQ(recorder.take(), "keyPress");
}

TEST_F(GraphEvents, MovesComeOnlyWhileAButtonIsHeld)
{
    xinput::moveTo(&graph, 50, 40);
    xinput::moveTo(&graph, 60, 40);
    settle();
    EXPECT_EQ(recorder.take(), "");
    graph.setMouseTracking(true);
    xinput::moveTo(&graph, 70, 40);
    EXPECT_TRUE(waitFor([this] { return recorder.count() > 0; }));
    EXPECT_EQ(recorder.take(), "mouseMove");
}

TEST_F(GraphEvents, SignalsComeBeforeTheReadOutChanges)
{
    const Pixels hidden = Pixels::now(&graph);
    Pixels before = hidden;
    std::string difference = "no signal";
    recorder.whenever = [&] { difference += Pixels::now(&graph).differenceFrom(before); };
    const auto check = [&](const char* what) {
        EXPECT_EQ(difference, "") << what;
        difference = "";
        before = Pixels::now(&graph);
    };
    difference = "";
    press(&graph, 30, 50);
    check("press");
    EXPECT_NE(before, hidden);
    drag(&graph, 30, 70);
    check("move");
    release(&graph, 30, 70);
    check("release");
    EXPECT_EQ(before, hidden);
    EXPECT_EQ(recorder.take(), "mousePress mouseMove mouseRelease");
}

TEST_F(GraphEvents, TheParentGetsThemAfterTheReadOutChanged)
{
    const Pixels hidden = Pixels::now(&graph);
    class Watch : public QObject
    {
    public:
        Watch(QWidget* window, ZelGraph* graph) : m_graph(graph), seen(1, 1)
        {
            window->installEventFilter(this);
        }
        ZelGraph* m_graph;
        Pixels seen;

    protected:
        bool eventFilter(QObject*, QEvent* event) override
        {
            if (event->type() >= QEvent::MouseButtonPress && event->type() <= QEvent::MouseMove)
                seen = Pixels::now(m_graph);
            return false;
        }
    } watch(&window, &graph);
    press(&graph, 30, 50);
    EXPECT_NE(watch.seen, hidden);
    EXPECT_EQ(watch.seen, Pixels::now(&graph));
    release(&graph, 30, 50);
    EXPECT_EQ(watch.seen, hidden);
}

TEST_F(GraphEvents, AReceiverMayFeedAndChangeTheGraph)
{
    int step = 0;
    recorder.whenever = [&] {
        graph.setValue(++step % 6);
        graph.setMaxY(5 + step % 3);
        if (step % 4 == 0)
            graph.resize(202, 100 + step % 5);
    };
    for (int i = 0; i < 12; ++i) {
        press(&graph, 30, 20 + i);
        drag(&graph, 30, 40 + i);
        release(&graph, 30, 40 + i);
    }
    recorder.whenever = nullptr;
    settle();
    const Pixels at = Pixels::now(&graph);
    graph.repaint(true);
    EXPECT_EQ(Pixels::now(&graph).differenceFrom(at), "") << "nothing of a read-out is left";
}

TEST_F(GraphEvents, EveryChangeIsPaintedWholeOnceAndAtOnce)
{
    PaintLog paints(&graph);
    graph.setValue(3);
    EXPECT_EQ(paints.take(), "erased");
    graph.setMinY(-3);
    EXPECT_EQ(paints.take(), "erased");
    graph.setMaxY(30);
    EXPECT_EQ(paints.take(), "erased");
    graph.clearAll();
    EXPECT_EQ(paints.take(), "erased");
    graph.setGraphParameters(0, 5, 10, 10, false, false, false, Qt::black, Qt::blue, Qt::green);
    EXPECT_EQ(paints.take(), "erased");
    settle();
    EXPECT_EQ(paints.take(), "");
}

TEST_F(GraphEvents, SamplesComeThroughTheSlot)
{
    QScrollBar bar(0, 5, 1, 1, 0, Qt::Horizontal, &window, "bar");
    ASSERT_TRUE(QObject::connect(&bar, SIGNAL(valueChanged(int)), &graph, SLOT(setValue(int))));
    const int before = Pixels::now(&graph).count(0x0000dc);
    bar.setValue(4);
    EXPECT_GT(Pixels::now(&graph).count(0x0000dc), before);
}
