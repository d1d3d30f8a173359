// When widgets are painted, what is erased before, and what one sees.
#include "eventlog.h"
#include "pixels.h"
#include "waiting.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qpainter.h>
#include <qpixmap.h>

namespace
{

const unsigned red = 0xff0000;

class WidgetPainting : public testing::Test
{
protected:
    WidgetPainting() : window(&log, 0, "window"), child(&log, &window, "child")
    {
        window.setGeometry(100, 100, 100, 80);
        child.setGeometry(20, 20, 40, 30);
        showAndActivate(&window);
        settle();
        window.logsPaint = child.logsPaint = true;
        log.take();
    }

    void drawRed(const QRect& rect)
    {
        QPainter painter(&window);
        painter.fillRect(rect, Qt::red);
    }

    EventLog log;
    LoggedWidget window;
    LoggedWidget child;
};

class PaintingFlags : public testing::Test
{
protected:
    void show(Qt::WFlags flags)
    {
        delete widget;
        widget = new LoggedWidget(&log, 0, "w", flags);
        widget->setGeometry(100, 100, 40, 30);
        showAndActivate(widget);
        settle();
        widget->logsPaint = true;
        log.take();
    }

    std::string afterResize(int width, int height)
    {
        widget->resize(width, height);
        log.take();
        settle();
        return log.take();
    }

    ~PaintingFlags() override { delete widget; }

    EventLog log;
    LoggedWidget* widget = nullptr;
};

} // namespace

TEST_F(WidgetPainting, RepaintPaintsBeforeItReturns)
{
    window.repaint();
    EXPECT_EQ("window Paint erased 0,0 100x80", log.take());
    window.repaint(false);
    EXPECT_EQ("window Paint unerased 0,0 100x80", log.take());
    window.repaint(5, 6, 20, 10);
    EXPECT_EQ("window Paint erased 5,6 20x10", log.take());
    window.repaint(5, 6, -1, -1);
    EXPECT_EQ("window Paint erased 5,6 95x74", log.take());
    window.repaint(QRegion(0, 0, 10, 10) | QRegion(50, 50, 10, 10));
    EXPECT_EQ("window Paint erased 0,0 10x10 50,50 10x10", log.take());
    window.repaint(QRect(500, 500, 10, 10));
    EXPECT_EQ("", log.take()) << "outside";
    settle();
    EXPECT_EQ("", log.take()) << "nothing was left for later";
}

TEST_F(WidgetPainting, UpdatesAreCollected)
{
    window.update();
    window.update(1, 2, 3, 4);
    EXPECT_EQ("", log.take());
    settle();
    EXPECT_EQ("window Paint erased 0,0 100x80", log.take());
    window.update(0, 0, 10, 10);
    window.update(50, 50, 10, 10);
    settle();
    EXPECT_EQ("window Paint erased 0,0 10x10 50,50 10x10", log.take());
    child.update();
    window.update();
    settle();
    EXPECT_EQ("child Paint erased 0,0 40x30; window Paint erased 0,0 100x80", log.take());
}

TEST_F(WidgetPainting, ARepaintDoesNotTakeAPendingUpdateAway)
{
    window.update();
    window.repaint();
    EXPECT_EQ("window Paint erased 0,0 100x80", log.take());
    QApplication::sendPostedEvents();
    EXPECT_EQ("window Paint erased 0,0 100x80", log.take());
}

TEST_F(WidgetPainting, WhatAHiddenChildUncoversIsPainted)
{
    child.hide();
    EXPECT_EQ("child Hide", log.take());
    settle();
    EXPECT_EQ("window Paint erased 20,20 40x30", log.take());
    child.show();
    settle();
    EXPECT_EQ("child Show; child Paint erased 0,0 40x30", log.take());
}

TEST_F(WidgetPainting, NothingIsPaintedWhileUpdatesAreOffOrTheWidgetIsHidden)
{
    window.setUpdatesEnabled(false);
    window.repaint();
    window.update();
    settle();
    window.setUpdatesEnabled(true);
    settle();
    EXPECT_EQ("", log.take());
    LoggedWidget hidden(&log, 0, "hidden");
    hidden.logsPaint = true;
    hidden.repaint();
    hidden.update();
    QApplication::sendPostedEvents(&hidden, QEvent::Paint);
    EXPECT_EQ("", log.take());
}

TEST_F(WidgetPainting, EraseClearsWithoutAnEvent)
{
    drawRed(QRect(0, 0, 10, 10));
    EXPECT_EQ(100, Pixels::now(&window).count(red));
    window.erase(0, 0, 5, 10);
    EXPECT_EQ(50, Pixels::now(&window).count(red));
    window.erase();
    EXPECT_EQ(0, Pixels::now(&window).count(red));
    settle();
    EXPECT_EQ("", log.take());
}

TEST_F(WidgetPainting, RepaintErasesOnlyIfAsked)
{
    drawRed(QRect(0, 0, 10, 10));
    window.repaint(false);
    EXPECT_EQ(100, Pixels::now(&window).count(red));
    window.repaint(0, 0, 10, 5);
    EXPECT_EQ(50, Pixels::now(&window).count(red));
    window.repaint();
    EXPECT_EQ(0, Pixels::now(&window).count(red));
}

TEST_F(WidgetPainting, ErasingLeavesChildrenAlone)
{
    {
        QPainter painter(&child);
        painter.fillRect(child.rect(), Qt::red);
    }
    window.erase();
    EXPECT_EQ(40 * 30, Pixels::now(&window).count(red));
}

TEST_F(WidgetPainting, AWindowThatWentAwayUncoversWhatItCovered)
{
    {
        QWidget cover;
        cover.setGeometry(110, 105, 30, 10);
        showAndWait(&cover);
        cover.raise();
        settle();
        log.take();
    }
    EXPECT_TRUE(waitFor([&] { return log.take() == "window Paint erased 10,5 30x10"; }));
}

TEST_F(PaintingFlags, UsuallyAllIsErasedAndPaintedWhenTheSizeChanges)
{
    show(0);
    EXPECT_EQ("w Paint erased 0,0 60x50", afterResize(60, 50));
    EXPECT_EQ("w Paint erased 0,0 30x20", afterResize(30, 20));
    widget->update();
    settle();
    EXPECT_EQ("w Paint erased 0,0 30x20", log.take());
}

TEST_F(PaintingFlags, UpdatesNeedNotErase)
{
    show(Qt::WRepaintNoErase);
    widget->update();
    settle();
    EXPECT_EQ("w Paint unerased 0,0 40x30", log.take());
    EXPECT_EQ("w Paint erased 0,0 60x50", afterResize(60, 50));
}

TEST_F(PaintingFlags, ResizingNeedNotErase)
{
    show(Qt::WResizeNoErase);
    {
        QPainter painter(widget);
        painter.fillRect(widget->rect(), Qt::red);
    }
    EXPECT_EQ("w Paint unerased 0,0 60x50", afterResize(60, 50));
    EXPECT_GT(Pixels::of(widget).count(red), 0) << "the server does not erase either";
    EXPECT_EQ("w Paint unerased 0,0 30x20", afterResize(30, 20));
    widget->update();
    settle();
    EXPECT_EQ("w Paint erased 0,0 30x20", log.take());
}

TEST_F(PaintingFlags, StaticContentsPaintOnlyWhatIsNew)
{
    show(Qt::WStaticContents);
    {
        QPainter painter(widget);
        painter.fillRect(widget->rect(), Qt::red);
    }
    EXPECT_EQ("w Paint erased 40,0 20x30 0,30 60x20", afterResize(60, 50));
    EXPECT_EQ(40 * 30, Pixels::of(widget).count(red));
    EXPECT_EQ("", afterResize(30, 20));
}

TEST(WidgetBackgroundMode, WithoutABackgroundNothingIsCleared)
{
    QWidget window;
    window.setGeometry(100, 100, 30, 20);
    window.setBackgroundMode(Qt::NoBackground);
    showAndActivate(&window);
    {
        QPainter painter(&window);
        painter.fillRect(0, 0, 10, 10, Qt::red);
    }
    window.repaint(true);
    window.erase();
    EXPECT_EQ(100, Pixels::now(&window).count(red));
}

TEST(WidgetPaintingPictures, GrabbedWidgetsShowTheirChildrenWithoutBeingOnTheScreen)
{
    QWidget window;
    window.resize(40, 30);
    window.setPaletteBackgroundColor(Qt::white);
    QWidget child(&window);
    child.setGeometry(10, 5, 20, 10);
    child.setPaletteBackgroundColor(Qt::red);
    QWidget hidden(&window);
    hidden.hide();
    const QPixmap whole = QPixmap::grabWidget(&window);
    ASSERT_EQ(40, whole.width());
    const Pixels pixels = Pixels::of(whole);
    EXPECT_EQ(0xffffffu, pixels.at(9, 5));
    EXPECT_EQ(red, pixels.at(10, 5));
    EXPECT_EQ(200, pixels.count(red));
    EXPECT_EQ(50, Pixels::of(QPixmap::grabWidget(&window, 20, 10, 20, 20)).count(red));
    EXPECT_FALSE(window.isVisible());
}
