// A scroll view in the hands of its program.
#include "printers.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qevent.h>
#include <qpainter.h>
#include <qscrollbar.h>
#include <qscrollview.h>

#include <string>

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

// Writes down what the pointer does, in the places of the contents.
class ClickedView : public View
{
public:
    std::string heard;

protected:
    void contentsMousePressEvent(QMouseEvent* event) override { note("press", event); }
    void contentsMouseReleaseEvent(QMouseEvent* event) override { note("release", event); }
    void contentsMouseDoubleClickEvent(QMouseEvent* event) override { note("double", event); }
    void contentsMouseMoveEvent(QMouseEvent* event) override { note("move", event); }

private:
    void note(const char* what, QMouseEvent* event)
    {
        heard +=
            std::string(what) + " " + std::to_string(event->x()) + "," + std::to_string(event->y()) + "; ";
    }
};

// Notes what its children do not want.
class Parent : public QWidget
{
public:
    std::string heard;

protected:
    void mousePressEvent(QMouseEvent*) override { heard += "press "; }
    void mouseReleaseEvent(QMouseEvent*) override { heard += "release "; }
    void mouseDoubleClickEvent(QMouseEvent*) override { heard += "double "; }
    void mouseMoveEvent(QMouseEvent*) override { heard += "move "; }
};

} // namespace

TEST(ScrollViewCalls, ThePointerIsToldInPlacesOfTheContents)
{
    ClickedView view;
    view.setContentsPos(30, 40);
    xinput::doubleClick(view.viewport(), 5, 6);
    settle();
    EXPECT_EQ("press 35,46; release 35,46; double 35,46; release 35,46; ", view.heard);
    view.heard.clear();
    xinput::pressButton();
    xinput::moveTo(view.viewport(), 8, 7);
    xinput::releaseButton();
    settle();
    EXPECT_NE(std::string::npos, view.heard.find("move 38,47; release 38,47; ")) << view.heard;
}

TEST(ScrollViewCalls, WhatThePointerDoesGoesOnToTheParent)
{
    Parent window;
    window.setGeometry(100, 100, 200, 200);
    QScrollView view(&window);
    view.setGeometry(0, 0, 150, 150);
    showAndWait(&window);
    xinput::doubleClick(view.viewport(), 50, 50);
    settle();
    EXPECT_EQ("press release double release ", window.heard);
    window.heard.clear();
    xinput::pressButton();
    xinput::moveTo(view.viewport(), 60, 50);
    xinput::releaseButton();
    settle();
    EXPECT_NE(std::string::npos, window.heard.find("move release ")) << window.heard;
}

TEST(ScrollViewCalls, WantRoomForTheContentsWithinLimits)
{
    QScrollView view;
    view.setFrameStyle(QFrame::NoFrame);
    const int line = view.fontMetrics().height();
    EXPECT_EQ(QSize(12 * line, 8 * line), view.sizeHint());
    view.resizeContents(20 * line, 10 * line);
    EXPECT_EQ(QSize(20 * line, 10 * line), view.sizeHint());
    view.setFrameStyle(QFrame::Box | QFrame::Plain);
    view.setLineWidth(3);
    EXPECT_EQ(QSize(20 * line + 6, 10 * line + 6), view.sizeHint());
    view.resizeContents(500 * line, 500 * line);
    EXPECT_EQ(QSize(36 * line, 24 * line), view.sizeHint());
}

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
