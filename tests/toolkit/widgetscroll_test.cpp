// Contents that are scrolled, and widgets that are no rectangles.
#include "eventlog.h"
#include "pixels.h"
#include "printers.h"
#include "waiting.h"

#include <gtest/gtest.h>
#include <qpainter.h>
#include <qpixmap.h>

#include <limits>

namespace
{

const unsigned red = 0xff0000;
const unsigned blue = 0x0000ff;

class WidgetScroll : public testing::Test
{
protected:
    WidgetScroll() : window(&log, 0, "w")
    {
        window.setGeometry(100, 100, 60, 40);
        showAndActivate(&window);
        window.logsPaint = true;
        QPainter painter(&window);
        painter.fillRect(10, 10, 10, 10, Qt::red);
        log.take();
    }

    EventLog log;
    LoggedWidget window;
};

} // namespace

TEST_F(WidgetScroll, MovesThePictureAndPaintsWhatComesIntoSight)
{
    window.scroll(20, 0);
    EXPECT_EQ("w Paint erased 0,0 20x40", log.take());
    const Pixels pixels = Pixels::of(&window);
    EXPECT_EQ(100, pixels.count(red));
    EXPECT_EQ(red, pixels.at(30, 10));
    EXPECT_EQ("", log.take());
}

TEST_F(WidgetScroll, TakesTheChildrenAlong)
{
    LoggedWidget child(&log, &window, "child");
    child.setGeometry(0, 30, 5, 5);
    child.show();
    settle();
    log.take();
    window.scroll(4, -10);
    EXPECT_EQ(QPoint(4, 20), child.pos());
    EXPECT_EQ(red, Pixels::of(&window).at(14, 0));
}

TEST_F(WidgetScroll, APartMovesAlone)
{
    LoggedWidget child(&log, &window, "child");
    child.setGeometry(0, 30, 5, 5);
    child.show();
    settle();
    log.take();
    window.scroll(0, 5, QRect(0, 0, 60, 20));
    EXPECT_EQ("w Paint erased 0,0 60x5", log.take());
    EXPECT_EQ(QPoint(0, 30), child.pos());
    const Pixels pixels = Pixels::of(&window);
    EXPECT_EQ(red, pixels.at(10, 15));
    EXPECT_EQ(50, pixels.count(red)) << "the rest is cut off";
}

TEST_F(WidgetScroll, WhatLiesUnderAnotherWindowIsPainted)
{
    QWidget cover;
    cover.setGeometry(105, 105, 20, 20);
    showAndWait(&cover);
    cover.raise();
    settle();
    log.take();
    window.scroll(30, 0);
    EXPECT_EQ("w Paint erased 0,0 30x40", log.take());
    settle();
    EXPECT_EQ("w Paint erased 35,5 20x20", log.take()) << "it could not be copied";
}

TEST_F(WidgetScroll, NumbersOutOfAllMeasureDoNoHarm)
{
    const int least = std::numeric_limits<int>::min();
    const int most = std::numeric_limits<int>::max();
    for (const int far : {least, -most, most}) {
        window.scroll(far, far);
        window.scroll(far, 0, QRect(5, 5, 10, 10));
        window.update(far, far, -1, -1);
        window.repaint(far, far, -1, -1);
        QPixmap::grabWidget(&window, far, far);
    }
    EXPECT_EQ(0, Pixels::of(&window).count(red)) << "all was scrolled away";
}

TEST(WidgetMask, ShowsAPartOnly)
{
    QWidget below, above;
    below.setGeometry(100, 100, 40, 40);
    below.setPaletteBackgroundColor(Qt::blue);
    above.setGeometry(100, 100, 40, 40);
    above.setPaletteBackgroundColor(Qt::red);
    above.setMask(QRegion(10, 10, 20, 20));
    showAndWait(&below);
    showAndWait(&above);
    above.raise();
    settle();
    const Pixels masked = Pixels::ofRoot(100, 100, 40, 40);
    EXPECT_EQ(400, masked.count(red));
    EXPECT_EQ(1200, masked.count(blue));
    above.clearMask();
    settle();
    EXPECT_EQ(1600, Pixels::ofRoot(100, 100, 40, 40).count(red));
}
