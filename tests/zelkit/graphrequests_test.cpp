// ZelGraph: what a sample asks of the X server.
#include <zelgraph.h>

#include "waiting.h"
#include "xtraffic.h"

#include <gtest/gtest.h>
#include <qapplication.h>

#include <functional>

namespace
{

unsigned long requestsOf(const std::function<void()>& action)
{
    QApplication::flushX();
    const XTraffic before = sentToX();
    action();
    QApplication::flushX();
    return (sentToX() - before).requests;
}

// A frame like the graph's.
unsigned long requestsOfFrame()
{
    QFrame frame;
    frame.setFrameStyle(QFrame::Panel | QFrame::Sunken);
    frame.setGeometry(100, 100, 802, 202);
    showAndWait(&frame);
    frame.repaint(false);
    return requestsOf([&] { frame.repaint(false); });
}

class GraphRequests : public testing::TestWithParam<bool>
{
};

TEST_P(GraphRequests, ASampleNeedsFew)
{
    ZelGraph graph;
    graph.setGraphParameters(0, 100, 10, 10, GetParam(), false, false, QColor(0, 0, 0), QColor(0, 0, 220),
                             QColor(0, 150, 0));
    graph.setGeometry(100, 100, 802, 202);
    showAndWait(&graph);
    for (int i = 0; i < 900; ++i)
        graph.setValue(i * 37 % 101);
    const unsigned long first = requestsOf([&] { graph.setValue(17); });
    EXPECT_GT(first, 4u); // frame, fill, grid, curve and copy are there
    const unsigned long frame = requestsOfFrame();
    EXPECT_LE(frame, 4u);
    EXPECT_LE(first, 8 + frame);
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(requestsOf([&] { graph.setValue(i); }), first);
}

INSTANTIATE_TEST_SUITE_P(CurveAndBars, GraphRequests, testing::Bool());

} // namespace
