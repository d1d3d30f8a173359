// A program whose X server is far away: a line that takes 50 ms each way and counts the answers that the
// program waits for. The tests' own hands and eyes are close to the server.
#include "signalrecorder.h"
#include "xinput.h"
#include "xline.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qlayout.h>
#include <zelactivelabel.h>
#include <zelgraph.h>
#include <zellineedit.h>

#include <cstdlib>
#include <functional>
#include <poll.h>

namespace
{

// From before main(), so that the program knows no other server.
struct FarAway {
    FarAway() : line(50)
    {
        xinput::display();
        setenv("DISPLAY", line.name().c_str(), 1);
    }
    XLine line;
};
FarAway farAway;

class Window : public QWidget
{
public:
    Window() : QWidget(nullptr, "window")
    {
        QVBoxLayout* layout = new QVBoxLayout(this, 8, 6);
        layout->addWidget(label = new ZelActiveLabel("A label", this, "label"));
        label->setMinimumSize(60, 20); // it asks for no room by itself
        layout->addWidget(edit = new ZelLineEdit(this));
        layout->addWidget(graph = new ZelGraph(this));
        graph->setMinimumSize(300, 100);
        graph->setGraphParameters(0, 100, 4, 10, false, false, false, Qt::black, Qt::blue, Qt::green);
    }
    ~Window() override { QApplication::syncX(); }

    int painted = 0;
    ZelActiveLabel* label;
    ZelLineEdit* edit;
    ZelGraph* graph;

protected:
    void paintEvent(QPaintEvent*) override { ++painted; }
};

// Without asking the server, which waitFor() does.
bool handleEventsUntil(const std::function<bool()>& condition)
{
    for (int tries = 0; tries < 5000 && !condition(); ++tries) {
        qApp->processEvents();
        QApplication::flushX();
        poll(nullptr, 0, 2);
    }
    return condition();
}

// What a program needs once, such as its fonts and colours, it has asked for by then.
class SlowLine : public testing::Test
{
protected:
    SlowLine()
    {
        Window first;
        first.show();
        first.setActiveWindow();
        first.edit->setFocus();
        EXPECT_TRUE(handleEventsUntil([&] { return first.painted > 0 && first.isActiveWindow(); }));
        xinput::typeText("a");
        EXPECT_TRUE(handleEventsUntil([&] { return first.edit->text() == "a"; }));
        for (int i = 0; i < 10; ++i)
            first.graph->setValue(i);
        QApplication::syncX();
        qApp->processEvents();
    }

    // Everything sent so far has been carried out, at the cost of one answer.
    unsigned answersNow()
    {
        QApplication::syncX();
        return farAway.line.answers();
    }
};

} // namespace

TEST_F(SlowLine, CountsWhatIsWaitedFor)
{
    const unsigned before = farAway.line.answers();
    QApplication::syncX();
    EXPECT_EQ(before + 1, farAway.line.answers());
}

TEST_F(SlowLine, AWindowIsShownWithoutWaiting)
{
    const unsigned before = answersNow();
    Window window;
    window.show();
    EXPECT_TRUE(handleEventsUntil([&] { return window.painted > 0; }));
    EXPECT_TRUE(xinput::isViewable(window.winId()));
    EXPECT_EQ(before + 1, answersNow());
}

TEST_F(SlowLine, SamplesAreDrawnWithoutWaiting)
{
    Window window;
    window.show();
    EXPECT_TRUE(handleEventsUntil([&] { return window.painted > 0; }));
    const unsigned before = answersNow();
    const unsigned requests = farAway.line.requests();
    for (int i = 0; i < 200; ++i) {
        window.graph->setValue(i);
        qApp->processEvents();
    }
    EXPECT_EQ(before + 1, answersNow());
    EXPECT_GT(farAway.line.requests(), requests + 200) << "all are drawn";
}

TEST_F(SlowLine, KeysAreTypedWithoutWaiting)
{
    Window window;
    window.show();
    window.setActiveWindow();
    window.edit->setFocus();
    EXPECT_TRUE(handleEventsUntil([&] { return window.painted > 0 && window.isActiveWindow(); }));
    const unsigned before = answersNow();
    const unsigned byHands = 2 * 8; // which let the program finish before each press and each release
    xinput::typeText("patience");
    EXPECT_TRUE(handleEventsUntil([&] { return window.edit->text() == "patience"; }));
    EXPECT_EQ(before + byHands + 1, answersNow());
}

TEST_F(SlowLine, AClickArrives)
{
    Window window;
    window.show();
    EXPECT_TRUE(handleEventsUntil([&] { return window.painted > 0; }));
    SignalRecorder clicks;
    clicks.watch(window.label, SIGNAL(clicked()));
    const unsigned before = answersNow();
    const unsigned byHands = 4; // to find the place, and before each motion, press and release
    xinput::click(window.label, 5, 5);
    EXPECT_TRUE(handleEventsUntil([&] { return clicks.count() == 1; }));
    EXPECT_EQ(before + byHands + 1, answersNow());
}
