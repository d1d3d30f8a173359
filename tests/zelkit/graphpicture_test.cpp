// ZelGraph: what it shows for the samples it gets, and the read-out.
#include <zelgraph.h>

#include "faketime.h"
#include "pixels.h"
#include "sentevents.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qpainter.h>
#include <qpixmap.h>

#include <climits>
#include <vector>

namespace
{

const unsigned ground = 0x000000;
const unsigned gridGreen = 0x009600;
const unsigned curveBlue = 0x0000dc;

// The picture that a history makes, painted pixel by pixel. Values count in rows from the bottom.
struct Model {
    int width; // of the contents
    int height;
    int frame;
    int gridCount;
    int gridStep;
    bool bars;
    std::vector<int> rows; // of the samples, the oldest first
    int unfilled = -1;     // row of the slots without a sample; -1: the last one

    Pixels picture() const
    {
        Pixels pixels(width, height, ground);
        const int left = frame;
        const int right = frame + width - 1;
        const int bottom = frame + height - 1;
        if (gridCount > 0 && height / gridCount >= 1)
            for (int y = bottom - height / gridCount; y >= 0; y -= height / gridCount)
                pixels.fill(left, y, right - left + 1, 1, gridGreen);
        for (int x = left + gridStep; gridStep > 0 && x <= right; x += gridStep)
            pixels.fill(x, frame, 1, height, gridGreen);
        // The newest sample is one column before the last; the column behind a full history stays empty.
        const int shown = std::min(static_cast<int>(rows.size()), width - 1);
        const int first = static_cast<int>(rows.size()) - shown;
        for (int i = 0; i < shown; ++i) {
            const int x = right - shown + i;
            const int row = rows[static_cast<size_t>(first + i)];
            int from = bottom;
            if (!bars)
                from = i > 0                ? rows[static_cast<size_t>(first + i - 1)]
                       : shown == width - 1 ? row
                       : unfilled < 0       ? bottom
                                            : unfilled;
            pixels.fill(x, std::min(from, row), 1, std::abs(from - row) + 1, curveBlue);
        }
        return pixels;
    }
};

class Graph : public testing::Test
{
protected:
    Graph() : window(0, "window"), graph(&window, "graph", true)
    {
        window.setGeometry(100, 100, 230, 130);
        graph.setGeometry(10, 10, 202, 102);
        showAndWait(&window);
    }

    Pixels contents() { return Pixels::now(&graph).part(1, 1, 200, 100); }

    static Model empty() { return {200, 100, 1, 10, 10, false, {}}; }

    QWidget window;
    ZelGraph graph;
};

} // namespace

TEST_F(Graph, WithoutSamplesItShowsItsGrid)
{
    EXPECT_EQ(contents().differenceFrom(empty().picture()), "");
    EXPECT_EQ(graph.frameStyle(), 0x32);
    EXPECT_EQ(graph.backgroundMode(), Qt::NoBackground);
    // Ten lines across, nineteen upright ones; the first column stays free.
    EXPECT_EQ(contents().at(1, 90), gridGreen);
    EXPECT_EQ(contents().at(0, 90), ground);
    EXPECT_EQ(contents().at(11, 50), gridGreen);
    EXPECT_EQ(contents().at(191, 50), gridGreen);
}

TEST_F(Graph, SamplesComeInAtTheRight)
{
    Model model = empty();
    const int samples[] = {5, 2, 4, 4, 0, 1};
    for (const int sample : samples) {
        graph.setValue(sample);
        model.rows.push_back(100 - sample * 20);
        EXPECT_EQ(contents().differenceFrom(model.picture()), "") << "after " << sample;
    }
}

TEST_F(Graph, AFullHistoryScrolls)
{
    Model model = empty();
    for (int i = 0; i < 450; ++i) {
        const int sample = i * 7 % 6;
        graph.setValue(sample);
        model.rows.push_back(100 - sample * 20);
        if (i == 198 || i == 199 || i == 200 || i == 449) {
            EXPECT_EQ(contents().differenceFrom(model.picture()), "") << "after " << i + 1;
        }
    }
}

TEST_F(Graph, BarsStandOnTheBottom)
{
    graph.setGraphParameters(0, 5, -1, -1, true, false, false, Qt::black, QColor(0, 0, 220),
                             QColor(0, 150, 0));
    Model model = empty();
    model.gridCount = -1;
    model.gridStep = -1;
    model.bars = true;
    for (const int sample : {3, 5, 0, 1}) {
        graph.setValue(sample);
        model.rows.push_back(100 - sample * 20);
    }
    EXPECT_EQ(contents().differenceFrom(model.picture()), "");
}

TEST_F(Graph, SamplesAreClampedToTheRange)
{
    Model model = empty();
    const struct {
        int sample;
        int row;
    } samples[] = {{6, 0}, {-1, 100}, {INT_MAX, 0}, {INT_MIN, 100}};
    for (const auto& s : samples) {
        graph.setValue(s.sample);
        model.rows.push_back(s.row);
    }
    EXPECT_EQ(contents().differenceFrom(model.picture()), "");
}

TEST_F(Graph, SamplesBelowARaisedMinimumAreAtTheTop)
{
    for (const int sample : {1, 2, 5})
        graph.setValue(sample);
    graph.setMinY(3);
    Model model = empty();
    model.rows = {0, 0, 0};
    model.unfilled = 0; // they keep the old minimum
    EXPECT_EQ(contents().differenceFrom(model.picture()), "");
}

TEST_F(Graph, TheAutomaticRangeFollowsTheSamples)
{
    graph.setGraphParameters(100, 200, 10, 10, false, false, true, Qt::black, QColor(0, 0, 220),
                             QColor(0, 150, 0));
    Model model = empty();
    graph.setValue(7); // 6 to 8
    model.rows = {50};
    EXPECT_EQ(contents().differenceFrom(model.picture()), "");
    graph.setValue(10); // 6 to 10
    model.rows = {75, 0};
    EXPECT_EQ(contents().differenceFrom(model.picture()), "");
    graph.setMaxY(1000);
    graph.setMinY(-1000);
    EXPECT_EQ(contents().differenceFrom(model.picture()), "");
}

TEST_F(Graph, RatesArePerSecond)
{
    FakeTime clock(1000);
    ZelGraph rate(&window, "rate");
    rate.setGeometry(10, 10, 202, 102);
    rate.setGraphParameters(-5, 5, -1, -1, false, true, false, Qt::black, QColor(0, 0, 220),
                            QColor(0, 150, 0));
    rate.show();
    settle();
    Model model = empty();
    model.gridCount = model.gridStep = -1;
    const auto rowOf = [](double value) { return 100 - static_cast<int>((value + 5) / 10 * 100); };
    rate.setValue(10);
    model.rows.push_back(rowOf(0));
    clock.advance(2);
    rate.setValue(16);
    model.rows.push_back(rowOf(3));
    rate.setValue(10);
    model.rows.push_back(rowOf(-3));
    clock.advance(-1); // a clock that is set back
    rate.setValue(12);
    model.rows.push_back(rowOf(-2));
    EXPECT_EQ(Pixels::of(&rate).part(1, 1, 200, 100).differenceFrom(model.picture()), "");
}

TEST_F(Graph, ClearingKeepsThePlacesOfTheSamples)
{
    for (int i = 0; i < 3; ++i)
        graph.setValue(4);
    graph.clearAll();
    graph.setValue(5);
    Model model = empty();
    model.rows = {100, 100, 100, 0};
    EXPECT_EQ(contents().differenceFrom(model.picture()), "");
}

TEST_F(Graph, AResizeBeginsAnew)
{
    graph.setValue(4);
    graph.resize(202, 103);
    graph.resize(202, 102);
    settle();
    EXPECT_EQ(contents().differenceFrom(empty().picture()), "");
}

TEST_F(Graph, EverySampleIsOnePaintAndSameLimitsAreNone)
{
    EventCount paints(&graph, QEvent::Paint);
    graph.setValue(1);
    EXPECT_EQ(paints.take(), 1);
    graph.setMinY(0);
    graph.setMaxY(5);
    EXPECT_EQ(paints.take(), 0);
    graph.setMaxY(6);
    graph.setMinY(1);
    graph.clearAll();
    EXPECT_EQ(paints.take(), 3);
}

TEST_F(Graph, WiderFramesMoveThePicture)
{
    graph.setLineWidth(3);
    graph.resize(206, 106);
    settle();
    Model model = empty();
    model.frame = 3;
    graph.setValue(5);
    graph.setValue(1);
    model.rows = {102 - 100, 102 - 20};
    EXPECT_EQ(Pixels::now(&graph).part(3, 3, 200, 100).differenceFrom(model.picture()), "");
}

TEST_F(Graph, StrangeSizesAndGridsDoNotFail)
{
    for (const int size : {1, 2, 3, 4, 5}) {
        graph.resize(size, size);
        graph.setValue(3);
        graph.setValue(5);
    }
    graph.resize(3000, 20);
    graph.setGraphParameters(INT_MAX, INT_MIN, 300, 7, false, false, false, Qt::black, Qt::red, Qt::green);
    graph.setValue(INT_MAX);
    graph.setGraphParameters(INT_MIN, INT_MAX, -5, 100000, true, false, false, Qt::black, Qt::red, Qt::green);
    graph.setValue(INT_MIN);
    graph.setGraphParameters(0, 1, 0, -1, true, true, true, Qt::black, Qt::red, Qt::green);
    graph.setValue(INT_MAX);
    graph.setValue(INT_MIN);
    ZelGraph neverShown;
    neverShown.setValue(3);
    neverShown.clearAll();
    EXPECT_EQ(graph.width(), 3000);
}

TEST_F(Graph, AReadOutInvertsAndGoesAwayExactly)
{
    graph.setValue(3);
    const Pixels before = Pixels::now(&graph);
    const struct {
        int y;
        const char* text;
        int line;
    } places[] = {{50, "2.50", 50}, {0, "5.00", 0}, {100, "0.00", 100}, {101, "-0.05", 101}};
    for (const auto& place : places) {
        press(&graph, 30, place.y);
        QPixmap pixmap(202, 102);
        bitBlt(&pixmap, 0, 0, &graph);
        const Pixels shown = Pixels::now(&graph);
        EXPECT_NE(shown, before) << place.y;
        const QFontMetrics metrics(graph.font());
        const int width = metrics.width(place.text);
        const int left = 100 - width / 2;
        EXPECT_EQ(shown.at(1, place.line), before.at(1, place.line) ^ 0xffffff) << place.y;
        EXPECT_EQ(shown.at(left, place.line) != before.at(left, place.line), true) << place.y;
        EXPECT_EQ(shown.at(200, place.line), before.at(200, place.line) ^ 0xffffff) << place.y;
        release(&graph, 30, place.y);
        EXPECT_EQ(Pixels::now(&graph).differenceFrom(before), "") << place.y;
    }
}

TEST_F(Graph, TheReadOutFollowsThePointerAndSurvivesSamples)
{
    const Pixels before = Pixels::now(&graph);
    press(&graph, 30, 50);
    drag(&graph, 30, 150);
    EXPECT_EQ(Pixels::now(&graph).at(1, 100), before.at(1, 100) ^ 0xffffff);
    drag(&graph, 30, -20);
    EXPECT_EQ(Pixels::now(&graph).at(1, 0), before.at(1, 0) ^ 0xffffff);
    EXPECT_EQ(Pixels::now(&graph).at(1, 100), before.at(1, 100));
    graph.setValue(2);
    EXPECT_EQ(Pixels::now(&graph).at(1, 0), before.at(1, 0) ^ 0xffffff);
    release(&graph, 500, 500);
    Model model = empty();
    model.rows = {60};
    EXPECT_EQ(contents().differenceFrom(model.picture()), "");
}

TEST_F(Graph, OnlyTheLeftButtonShowsValues)
{
    const Pixels before = Pixels::now(&graph);
    press(&graph, 30, 50, Qt::RightButton);
    EXPECT_EQ(Pixels::now(&graph).differenceFrom(before), "");
    ZelGraph plain(&window, "plain");
    plain.setGeometry(10, 10, 202, 102);
    plain.show();
    settle();
    const Pixels rest = Pixels::now(&plain);
    press(&plain, 30, 50);
    EXPECT_EQ(Pixels::now(&plain).differenceFrom(rest), "");
}

TEST_F(Graph, EventsAreToldAndGoOn)
{
    SignalRecorder recorder;
    recorder.watch(&graph, SIGNAL(mousePress(QMouseEvent*)));
    recorder.watch(&graph, SIGNAL(mouseRelease(QMouseEvent*)));
    recorder.watch(&graph, SIGNAL(mouseDoubleClick(QMouseEvent*)));
    recorder.watch(&graph, SIGNAL(mouseMove(QMouseEvent*)));
    recorder.watch(&graph, SIGNAL(keyPress(QKeyEvent*)));
    EventCount presses(&window, QEvent::MouseButtonPress);
    EXPECT_FALSE(press(&graph));
    EXPECT_EQ(presses.take(), 1);
    drag(&graph, 9, 9);
    release(&graph);
    doubleClick(&graph);
    release(&graph);
    EXPECT_FALSE(sendKey(&graph, Qt::Key_A, 'a'));
    EXPECT_EQ(recorder.take(),
              "mousePress mouseMove mouseRelease mouseDoubleClick mousePress mouseRelease keyPress");
}
