// Widgets that get another parent, are stacked anew, or die.
#include "eventlog.h"
#include "messages.h"
#include "pixels.h"
#include "printers.h"
#include "waiting.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qevent.h>
#include <qguardedptr.h>
#include <qobjectlist.h>
#include <qwidget.h>
#include <qwidgetlist.h>

namespace
{

const unsigned red = 0xff0000;

// Deletes somebody when a child leaves.
class Avenger : public QWidget
{
public:
    QGuardedPtr<QWidget> victim;

protected:
    void childEvent(QChildEvent* event) override
    {
        if (event->removed())
            delete static_cast<QWidget*>(victim);
    }
};

std::string names(const QObjectList* objects)
{
    std::string all;
    if (objects)
        for (QObjectListIterator it(*objects); it.current(); ++it)
            all += std::string(all.empty() ? "" : " ") + it.current()->name();
    return all;
}

} // namespace

TEST(WidgetReparent, TheWidgetMovesOverAtItsSize)
{
    EventLog log;
    LoggedWidget a(&log, 0, "a"), b(&log, 0, "b");
    LoggedWidget* child = new LoggedWidget(&log, &a, "child");
    a.setGeometry(10, 10, 50, 50);
    b.setGeometry(200, 10, 50, 50);
    child->setGeometry(1, 2, 10, 12);
    child->setPaletteBackgroundColor(Qt::red);
    showAndActivate(&a);
    showAndWait(&b);
    log.take();

    child->reparent(&b, QPoint(5, 6), true);
    EXPECT_EQ("child Move 5,6 from 0,0; child Resize 10x12 from 100x30; child Show; child Reparent",
              log.take());
    EXPECT_EQ(&b, child->parentWidget());
    EXPECT_TRUE(child->isVisible());
    EXPECT_EQ(0, Pixels::of(&a).count(red));
    EXPECT_EQ(red, Pixels::of(&b).at(5, 6));
}

TEST(WidgetReparent, WithoutShowingItIsHidden)
{
    QWidget a, b;
    QWidget* child = new QWidget(&a);
    a.show();
    b.show();
    child->reparent(&b, QPoint(7, 7));
    EXPECT_FALSE(child->isVisible());
    EXPECT_TRUE(child->isHidden());
    child->show();
    EXPECT_TRUE(child->isVisible());
}

TEST(WidgetReparent, AChildBecomesAWindowAndBack)
{
    QWidget window;
    window.setGeometry(10, 10, 60, 60);
    QWidget* child = new QWidget(&window);
    QWidget inner(child);
    inner.setGeometry(2, 2, 4, 4);
    inner.setPaletteBackgroundColor(Qt::red);
    child->resize(30, 20);
    showAndWait(&window);
    child->reparent(0, QPoint(300, 200), true);
    EXPECT_TRUE(child->isTopLevel());
    EXPECT_EQ(nullptr, child->parentWidget());
    EXPECT_EQ(QRect(300, 200, 30, 20), child->geometry());
    EXPECT_EQ(QPoint(300, 200), child->mapToGlobal(QPoint(0, 0)));
    EXPECT_EQ(16, Pixels::of(child).count(red)) << "all inside comes along";
    settle();
    EXPECT_EQ(16, Pixels::ofRoot(300, 200, 30, 20).count(red));
    child->reparent(&window, QPoint(3, 4), true);
    EXPECT_FALSE(child->isTopLevel());
    EXPECT_EQ(QRect(3, 4, 30, 20), child->geometry());
    settle();
    EXPECT_EQ(16, Pixels::ofRoot(13, 14, 30, 20).count(red));
}

TEST(WidgetReparent, NobodyIsMovedIntoItself)
{
    QWidget window;
    QWidget* child = new QWidget(&window, "child");
    QWidget* inner = new QWidget(child);
    child->reparent(inner, QPoint(0, 0));
    child->reparent(child, QPoint(0, 0));
    EXPECT_EQ("QWidget::reparent: child cannot be inside itself\n"
              "QWidget::reparent: child cannot be inside itself\n",
              takeMessages());
    EXPECT_EQ(&window, child->parentWidget());
}

TEST(WidgetReparent, WhoseNewParentDiesMeanwhileIsAHiddenWindow)
{
    Avenger old;
    QWidget* const next = new QWidget;
    QWidget* const child = new QWidget(&old);
    QWidget inner(child);
    inner.setGeometry(0, 0, 5, 5);
    inner.setPaletteBackgroundColor(Qt::red);
    showAndWait(&old);
    showAndWait(next);
    old.victim = next;
    child->reparent(next, QPoint(30, 40), true);
    EXPECT_TRUE(child->isTopLevel());
    EXPECT_EQ(nullptr, child->parentWidget());
    EXPECT_FALSE(child->isVisible());
    showAndWait(child);
    inner.move(10, 10);
    EXPECT_EQ(25, Pixels::of(child).count(red));
    EXPECT_EQ("", takeMessages()) << "the server has all windows still";
    inner.reparent(&old, QPoint(0, 0));
    delete child;
}

TEST(WidgetReparent, WhoseOldParentDiesMeanwhileGoesOn)
{
    Avenger* const old = new Avenger;
    QWidget next;
    QWidget* const child = new QWidget(old);
    child->setPaletteBackgroundColor(Qt::red);
    showAndWait(old);
    showAndWait(&next);
    old->victim = old;
    child->resize(5, 5);
    child->reparent(&next, QPoint(3, 4), true);
    EXPECT_EQ(&next, child->parentWidget());
    EXPECT_EQ(25, Pixels::of(&next).count(red));
    EXPECT_EQ("", takeMessages()) << "the server has all windows still";
}

TEST(WidgetReparent, ADisabledParentDisables)
{
    QWidget a, b;
    b.setEnabled(false);
    QWidget* child = new QWidget(&a);
    child->reparent(&b, QPoint(0, 0));
    EXPECT_FALSE(child->isEnabled());
    child->reparent(&a, QPoint(0, 0));
    EXPECT_TRUE(child->isEnabled());
}

TEST(WidgetStacking, TheHighestSiblingIsSeenAndFound)
{
    QWidget window;
    window.setGeometry(10, 10, 100, 100);
    QWidget a(&window, "a"), b(&window, "b"), c(&window, "c");
    a.setGeometry(10, 10, 40, 40);
    b.setGeometry(30, 30, 40, 40);
    c.setGeometry(20, 40, 40, 40);
    a.setPaletteBackgroundColor(Qt::red);
    b.setPaletteBackgroundColor(Qt::green);
    c.setPaletteBackgroundColor(Qt::blue);
    showAndActivate(&window);
    const auto seen = [&] { return Pixels::of(&window).at(35, 45); };
    EXPECT_EQ(&c, window.childAt(35, 45));
    EXPECT_EQ(0x0000ffu, seen());
    a.raise();
    EXPECT_EQ(&a, window.childAt(35, 45));
    EXPECT_EQ(red, seen());
    a.lower();
    c.lower();
    EXPECT_EQ(&b, window.childAt(35, 45));
    EXPECT_EQ(0x00ff00u, seen());
    b.stackUnder(&c);
    EXPECT_EQ(&a, window.childAt(35, 45));
    EXPECT_EQ(red, seen());
    EXPECT_EQ("b c a", names(window.children()));
}

TEST(WidgetDeath, AWidgetTakesItsChildrenAndItsWindowAlong)
{
    QWidget* window = new QWidget;
    const QGuardedPtr<QWidget> child = new QWidget(window), inner = new QWidget(child);
    window->show();
    settle();
    const WId id = window->winId(), innerId = inner->winId();
    EXPECT_EQ(window, QWidget::find(id));
    delete window;
    EXPECT_TRUE(child.isNull());
    EXPECT_TRUE(inner.isNull());
    EXPECT_EQ(nullptr, QWidget::find(id));
    EXPECT_EQ(nullptr, QWidget::find(innerId));
    settle();
}

TEST(WidgetDeath, VisibleChildrenAreHiddenFirst)
{
    EventLog log;
    QWidget* window = new QWidget;
    LoggedWidget* child = new LoggedWidget(&log, window, "child");
    new LoggedWidget(&log, child, "inner");
    window->show();
    settle();
    log.take();
    delete window;
    EXPECT_EQ("inner Hide; child Hide", log.take());
}

TEST(WidgetLists, KnowAllWidgetsAndAllWindows)
{
    QWidget window;
    QWidget child(&window);
    QWidgetList* all = QApplication::allWidgets();
    QWidgetList* windows = QApplication::topLevelWidgets();
    EXPECT_TRUE(all->containsRef(&window));
    EXPECT_TRUE(all->containsRef(&child));
    EXPECT_TRUE(windows->containsRef(&window));
    EXPECT_FALSE(windows->containsRef(&child));
    delete all;
    delete windows;
}
