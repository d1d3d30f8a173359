// A scroll view in the hands of its program.
#include "printers.h"
#include "waiting.h"

#include <gtest/gtest.h>
#include <qpainter.h>
#include <qscrollbar.h>
#include <qscrollview.h>

namespace
{

class View : public QScrollView
{
public:
    View() : QScrollView(nullptr, "view")
    {
        resizeContents(500, 400);
        resize(120, 100);
        showAndWait(this);
        repaints = 0;
    }

    int repaints = 0;
    QRect drawn;

protected:
    void drawContents(QPainter*, int x, int y, int w, int h) override
    {
        ++repaints;
        drawn = QRect(x, y, w, h);
    }
};

} // namespace

TEST(ScrollViewCalls, TellAndChangeThePlace)
{
    View view;
    EXPECT_EQ(500, view.contentsWidth());
    EXPECT_EQ(400, view.contentsHeight());
    view.setContentsPos(30, 40);
    EXPECT_EQ(QPoint(30, 40), QPoint(view.contentsX(), view.contentsY()));
    view.scrollBy(5, -10);
    EXPECT_EQ(QPoint(35, 30), QPoint(view.contentsX(), view.contentsY()));
    EXPECT_EQ(35, view.horizontalScrollBar()->value());
    EXPECT_EQ(QPoint(5, 10), view.contentsToViewport(QPoint(40, 40)));
    EXPECT_EQ(QPoint(40, 40), view.viewportToContents(QPoint(5, 10)));
    view.ensureVisible(400, 300);
    EXPECT_EQ(450 - view.visibleWidth(), view.contentsX());
    view.ensureVisible(0, 0, 0, 0);
    EXPECT_EQ(QPoint(0, 0), QPoint(view.contentsX(), view.contentsY()));
}

TEST(ScrollViewCalls, ShowAndHideScrollBars)
{
    View view;
    EXPECT_EQ(QScrollView::Auto, view.hScrollBarMode());
    const int narrow = view.visibleWidth();
    view.setVScrollBarMode(QScrollView::AlwaysOff);
    view.setHScrollBarMode(QScrollView::AlwaysOn);
    EXPECT_EQ(QScrollView::AlwaysOff, view.vScrollBarMode());
    EXPECT_EQ(QScrollView::AlwaysOn, view.hScrollBarMode());
    view.updateScrollBars();
    EXPECT_FALSE(view.verticalScrollBar()->isVisible());
    EXPECT_GT(view.visibleWidth(), narrow);
}

TEST(ScrollViewCalls, RepaintAtOnceOrLater)
{
    View view;
    view.setContentsPos(10, 20);
    settle();
    view.repaints = 0;
    view.repaintContents(15, 25, 8, 9);
    EXPECT_EQ(1, view.repaints);
    EXPECT_EQ(QRect(15, 25, 8, 9), view.drawn);
    view.repaintContents();
    EXPECT_EQ(2, view.repaints);
    view.updateContents(12, 22, 5, 6);
    EXPECT_EQ(2, view.repaints);
    EXPECT_TRUE(waitFor([&view] { return view.repaints == 3; }));
    EXPECT_EQ(QRect(12, 22, 5, 6), view.drawn);
    view.updateContents();
    EXPECT_TRUE(waitFor([&view] { return view.repaints == 4; }));
}

TEST(ScrollViewCalls, WithAHugeFrameLeaveNoRoom)
{
    View view;
    view.setLineWidth(1200000000);
    view.updateScrollBars();
    EXPECT_EQ(QSize(1, 1), view.viewport()->size());
}
