// Where widgets are, how large, and when they hear of it.
#include "eventlog.h"
#include "perishable.h"
#include "pixels.h"
#include "printers.h"
#include "waiting.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qdesktopwidget.h>
#include <qguardedptr.h>
#include <qwidget.h>

#include <functional>
#include <vector>

TEST(WidgetGeometry, ANewChildHasAFixedPlaceAndSizeAndKeepsThemWhenShown)
{
    QWidget window;
    QWidget child(&window);
    EXPECT_EQ(QRect(0, 0, 100, 30), child.geometry());
    showAndWait(&window);
    EXPECT_EQ(QRect(0, 0, 100, 30), child.geometry());
    EXPECT_EQ(child.geometry(), child.frameGeometry());
}

TEST(WidgetGeometry, ANewWindowLiesInTheMiddleOfTheScreen)
{
    const int width = QApplication::desktop()->width(), height = QApplication::desktop()->height();
    const QWidget window;
    EXPECT_EQ(width / 2, window.width());
    EXPECT_EQ(height * 4 / 10, window.height());
    EXPECT_EQ((width - window.width()) / 2, window.x());
    EXPECT_EQ((height - window.height()) / 2, window.y());
}

TEST(WidgetGeometry, NoWidgetIsSmallerThanAPixel)
{
    QWidget window;
    QWidget child(&window);
    child.resize(0, 0);
    EXPECT_EQ(QSize(1, 1), child.size());
    child.resize(-5, 10);
    EXPECT_EQ(QSize(1, 10), child.size());
}

TEST(WidgetGeometry, LimitsHoldAtOnceAndLater)
{
    QWidget window;
    QWidget child(&window);
    child.resize(10, 10);
    child.setMinimumSize(20, 25);
    EXPECT_EQ(QSize(20, 25), child.size());
    child.resize(5, 5);
    EXPECT_EQ(QSize(20, 25), child.size());
    child.setMaximumSize(60, 70);
    child.resize(500, 500);
    EXPECT_EQ(QSize(60, 70), child.size());
    child.setMaximumSize(40, 40);
    EXPECT_EQ(QSize(40, 40), child.size());
}

TEST(WidgetGeometry, AFixedSizeStays)
{
    QWidget window;
    QWidget child(&window);
    child.setFixedSize(33, 44);
    child.resize(10, 100);
    EXPECT_EQ(QSize(33, 44), child.size());
    EXPECT_EQ(child.minimumSize(), child.maximumSize());
    child.setMinimumSize(0, 0);
    child.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    EXPECT_EQ(QSize(33, 44), child.size());
    child.setFixedWidth(12);
    child.setFixedHeight(13);
    EXPECT_EQ(QSize(12, 13), child.size());
    EXPECT_EQ(13, child.maximumHeight());
}

TEST(WidgetGeometry, AMinimumBeatsASmallerMaximum)
{
    QWidget window;
    QWidget child(&window);
    child.setMaximumSize(40, 40);
    child.setMinimumSize(30, 60);
    EXPECT_EQ(60, child.height());
    EXPECT_EQ(40, child.width());
}

TEST(WidgetGeometry, HiddenWidgetsHearOfPlaceAndSizeBeforeTheyShowParentsFirst)
{
    EventLog log;
    LoggedWidget window(&log, 0, "window");
    const QPoint start = window.pos();
    const QSize startSize = window.size();
    window.setGeometry(50, 60, 200, 150);
    LoggedWidget child(&log, &window, "child");
    child.setGeometry(10, 20, 30, 40);
    window.show();
    const std::string from = std::to_string(start.x()) + ',' + std::to_string(start.y());
    const std::string fromSize = std::to_string(startSize.width()) + 'x' + std::to_string(startSize.height());
    EXPECT_EQ("window Move 50,60 from " + from + "; window Resize 200x150 from " + fromSize +
                  "; child Move 10,20 from 0,0; child Resize 30x40 from 100x30; child Show; window Show",
              log.take());
    settle();
    EXPECT_EQ("", log.take());
}

TEST(WidgetGeometry, VisibleWidgetsHearOfItAtOnceAndOnlyOfChanges)
{
    EventLog log;
    LoggedWidget window(&log, 0, "window");
    LoggedWidget child(&log, &window, "child");
    window.setGeometry(50, 60, 200, 150);
    child.setGeometry(10, 20, 30, 40);
    showAndWait(&window);
    log.take();
    child.resize(50, 60);
    EXPECT_EQ("child Resize 50x60 from 30x40", log.take());
    child.resize(50, 60);
    child.move(10, 20);
    EXPECT_EQ("", log.take());
    child.setGeometry(1, 2, 70, 80);
    EXPECT_EQ("child Move 1,2 from 10,20; child Resize 70x80 from 50x60", log.take());
    window.setGeometry(30, 40, 100, 110);
    EXPECT_EQ("window Move 30,40 from 50,60; window Resize 100x110 from 200x150", log.take());
    settle();
    EXPECT_EQ("", log.take()) << "the server's answer is no news";
}

TEST(WidgetGeometry, ManyResizesInARowEndWithTheLast)
{
    EventLog log;
    LoggedWidget window(&log, 0, "window");
    showAndWait(&window);
    for (int size = 100; size <= 200; size += 10)
        window.resize(size, size);
    log.take();
    settle();
    EXPECT_EQ(QSize(200, 200), window.size());
    EXPECT_EQ("", log.take()) << "older answers of the server must not bring older sizes back";
}

TEST(WidgetGeometry, ALateAnswerToAnOlderWishIsNoNews)
{
    EventLog log;
    LoggedWidget window(&log, 0, "window");
    showAndWait(&window);
    window.resize(150, 150);
    QApplication::syncX(); // the answer is here now, but not read yet
    window.resize(200, 200);
    log.take();
    qApp->processEvents();
    EXPECT_EQ("", log.take());
    EXPECT_EQ(QSize(200, 200), window.size());
}

TEST(WidgetGeometry, HidingAndShowingResizesNothing)
{
    EventLog log;
    LoggedWidget window(&log, 0, "window");
    LoggedWidget child(&log, &window, "child");
    showAndWait(&window);
    log.take();
    window.hide();
    settle();
    window.show();
    settle();
    EXPECT_EQ("window Hide; child Hide; child Show; window Show", log.take());
}

TEST(WidgetGeometry, CoordinatesGoUpAndDownTheTree)
{
    QWidget window;
    QWidget child(&window), inner(&child);
    window.setGeometry(100, 120, 80, 80);
    child.setGeometry(10, 15, 30, 30);
    inner.setGeometry(3, 4, 5, 5);
    showAndWait(&window);
    EXPECT_EQ(QPoint(114, 140), inner.mapToGlobal(QPoint(1, 1)));
    EXPECT_EQ(QPoint(1, 1), inner.mapFromGlobal(QPoint(114, 140)));
    EXPECT_EQ(QPoint(4, 5), inner.mapToParent(QPoint(1, 1)));
    EXPECT_EQ(QPoint(1, 1), inner.mapFromParent(QPoint(4, 5)));
    EXPECT_EQ(QPoint(13, 19), inner.mapTo(&window, QPoint(0, 0)));
    EXPECT_EQ(QPoint(0, 0), inner.mapFrom(&window, QPoint(13, 19)));
    EXPECT_EQ(&window, inner.topLevelWidget());
}

TEST(WidgetGeometry, ChildAtFindsTheInnermostVisibleChild)
{
    QWidget window;
    QWidget child(&window), inner(&child), hidden(&window);
    window.setGeometry(100, 120, 80, 80);
    child.setGeometry(10, 15, 30, 30);
    inner.setGeometry(3, 4, 5, 5);
    hidden.setGeometry(0, 0, 80, 80);
    hidden.hide();
    showAndWait(&window);
    EXPECT_EQ(&inner, window.childAt(14, 20));
    EXPECT_EQ(&child, window.childAt(12, 17));
    EXPECT_EQ(nullptr, window.childAt(70, 70));
    EXPECT_EQ(&window, window.childAt(70, 70, true));
    EXPECT_EQ(nullptr, window.childAt(80, 80, true)) << "outside";
}

TEST(WidgetGeometry, ParentsClipWhatIsSeen)
{
    QWidget window;
    QWidget child(&window), inner(&child);
    window.setGeometry(100, 120, 80, 80);
    child.setGeometry(60, 60, 100, 100);
    inner.setGeometry(10, 5, 50, 50);
    showAndWait(&window);
    EXPECT_EQ(QRect(0, 0, 20, 20), child.visibleRect());
    EXPECT_EQ(QRect(0, 0, 10, 15), inner.visibleRect());
    EXPECT_EQ(QRect(60, 60, 100, 100), window.childrenRect());
    inner.hide();
    EXPECT_TRUE(inner.visibleRect().isEmpty());
}

TEST(WidgetGeometry, AdjustSizeEnclosesTheChildren)
{
    QWidget window;
    QWidget a(&window), b(&window);
    a.setGeometry(20, 30, 150, 40);
    b.setGeometry(30, 40, 10, 10);
    window.adjustSize();
    EXPECT_EQ(QSize(190, 100), window.size());
}

TEST(WidgetGeometry, WhatIsFarOutsideDoesNotComeRound)
{
    QWidget window(nullptr, "window");
    window.setGeometry(100, 100, 200, 100);
    window.setPaletteBackgroundColor(QColor(255, 255, 255));
    QWidget child(&window, "child");
    child.setPaletteBackgroundColor(QColor(255, 0, 0));
    child.resize(50, 50);
    showAndWait(&window);
    EXPECT_EQ(2500, Pixels::of(&window).count(0xff0000));
    for (const int far : {65536, 65546, 1 << 30, -65536, -2147483647 - 1}) {
        child.move(far, 10);
        EXPECT_EQ(far, child.x());
        EXPECT_EQ(0, Pixels::of(&window).count(0xff0000)) << far;
    }
}

namespace
{

// Gone as soon as it gets another size.
class Mayfly : public QWidget
{
public:
    explicit Mayfly(QWidget* parent) : QWidget(parent) {}

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        if (event->oldSize() == QSize(50, 50))
            delete this;
    }
};

} // namespace

TEST(WidgetGeometry, AWidgetMayBeDeletedWhileItsLimitsChange)
{
    const std::vector<std::function<void(QWidget*)>> changes = {
        [](QWidget* w) { w->setMinimumSize(60, 60); }, [](QWidget* w) { w->setMaximumSize(40, 40); },
        [](QWidget* w) { w->setFixedSize(60, 40); },   [](QWidget* w) { w->setFixedWidth(60); },
        [](QWidget* w) { w->setFixedHeight(60); },
    };
    for (std::size_t i = 0; i < changes.size(); ++i) {
        QWidget window;
        QWidget* const child = new Perishable<Mayfly>(&window);
        const QGuardedPtr<QWidget> alive(child);
        child->resize(50, 50);
        showAndWait(&window);
        changes[i](child);
        EXPECT_FALSE(alive) << i;
    }
    Graveyard::clear();
}
