// Showing, hiding, closing and enabling widgets.
#include "eventlog.h"
#include "messages.h"
#include "printers.h"
#include "signalrecorder.h"
#include "waiting.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qguardedptr.h>
#include <qwidget.h>

namespace
{

class Stubborn : public QWidget
{
public:
    bool refuses = true;

protected:
    void closeEvent(QCloseEvent* event) override
    {
        EXPECT_FALSE(event->isAccepted());
        if (!refuses)
            QWidget::closeEvent(event);
    }
};

class Counted : public QWidget
{
public:
    explicit Counted(QWidget* parent) : QWidget(parent) {}
    int polished = 0;
    void polish() override
    {
        ++polished;
        QWidget::polish();
    }
};

} // namespace

TEST(WidgetShow, AWindowIsHiddenUntilItIsShown)
{
    QWidget window;
    QWidget child(&window);
    EXPECT_TRUE(window.isHidden());
    EXPECT_FALSE(child.isHidden());
    EXPECT_FALSE(child.isVisible());
    EXPECT_TRUE(child.isVisibleTo(&window));
    window.show();
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(child.isVisible());
    window.hide();
    EXPECT_FALSE(child.isVisible());
    EXPECT_FALSE(child.isHidden());
}

TEST(WidgetShow, AChildOfAVisibleParentMustBeShown)
{
    QWidget window;
    window.show();
    QWidget late(&window);
    EXPECT_TRUE(late.isHidden());
    EXPECT_FALSE(late.isVisibleTo(&window));
    late.show();
    EXPECT_TRUE(late.isVisible());
}

TEST(WidgetShow, AHiddenChildStaysHiddenWhenItsParentIsShown)
{
    EventLog log;
    LoggedWidget window(&log, 0, "window");
    LoggedWidget child(&log, &window, "child");
    window.show();
    window.hide();
    log.take();
    child.show();
    EXPECT_EQ("", log.take()) << "it was not hidden itself";
    child.hide();
    EXPECT_EQ("child HideToParent", log.take());
    window.show();
    EXPECT_EQ("window Show", log.take());
    EXPECT_FALSE(child.isVisible());
    child.setShown(true);
    EXPECT_EQ("child Show", log.take());
    child.show();
    EXPECT_EQ("", log.take());
}

TEST(WidgetShow, ChildrenShowBeforeAndHideAfterTheirParent)
{
    EventLog log;
    LoggedWidget window(&log, 0, "window");
    LoggedWidget child(&log, &window, "child");
    LoggedWidget inner(&log, &child, "inner");
    window.show();
    window.hide();
    log.take();
    window.show();
    EXPECT_EQ("inner Show; child Show; window Show", log.take());
    window.hide();
    EXPECT_EQ("window Hide; inner Hide; child Hide", log.take());
}

TEST(WidgetShow, PolishHappensOnceBeforeTheFirstShow)
{
    QWidget window;
    Counted child(&window);
    EXPECT_EQ(0, child.polished);
    window.show();
    EXPECT_EQ(1, child.polished);
    window.hide();
    window.show();
    EXPECT_EQ(1, child.polished);
}

TEST(WidgetShow, ClosingHidesUnlessTheWidgetRefuses)
{
    Stubborn window;
    window.show();
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(window.isVisible());
    window.refuses = false;
    EXPECT_TRUE(window.close());
    EXPECT_FALSE(window.isVisible());
}

TEST(WidgetShow, AClosedWindowMayDeleteItself)
{
    QGuardedPtr<QWidget> later = new QWidget(0, "later", Qt::WDestructiveClose);
    later->show();
    EXPECT_TRUE(later->close());
    EXPECT_FALSE(later.isNull()) << "only in the event loop";
    EXPECT_TRUE(waitFor([&] { return later.isNull(); }));

    QGuardedPtr<QWidget> atOnce = new QWidget;
    atOnce->show();
    EXPECT_TRUE(atOnce->close(true));
    EXPECT_TRUE(atOnce.isNull());
}

TEST(WidgetShow, ClosingTheLastWindowIsTold)
{
    SignalRecorder recorder;
    recorder.watch(qApp, SIGNAL(lastWindowClosed()));
    QWidget first, second;
    QWidget child(&first);
    first.show();
    second.show();
    child.close();
    second.close();
    EXPECT_EQ("", recorder.take());
    first.close();
    EXPECT_EQ("lastWindowClosed", recorder.take());
}

TEST(WidgetShow, APopupDoesNotKeepTheProgramAliveAToolWindowDoes)
{
    SignalRecorder recorder;
    recorder.watch(qApp, SIGNAL(lastWindowClosed()));
    QWidget window;
    QWidget tool(&window, "tool", Qt::WType_TopLevel | Qt::WStyle_Tool);
    QWidget popup(0, "popup", Qt::WType_Popup);
    window.show();
    tool.show();
    popup.show();
    window.close();
    EXPECT_EQ("", recorder.take());
    tool.close();
    EXPECT_EQ("lastWindowClosed", recorder.take());
    popup.hide();
}

TEST(WidgetShow, DisablingReachesAllInside)
{
    QWidget window;
    QWidget child(&window), inner(&child);
    window.setEnabled(false);
    EXPECT_FALSE(inner.isEnabled());
    child.setEnabled(false);
    window.setEnabled(true);
    EXPECT_FALSE(child.isEnabled()) << "it was disabled itself";
    EXPECT_FALSE(inner.isEnabled());
    EXPECT_FALSE(child.isEnabledTo(&window));
    EXPECT_TRUE(inner.isEnabledTo(&child));
    child.setEnabled(true);
    EXPECT_TRUE(inner.isEnabled());
    QWidget late(&window);
    window.setDisabled(true);
    QWidget later(&window);
    EXPECT_FALSE(late.isEnabled());
    EXPECT_FALSE(later.isEnabled());
}

TEST(WidgetShow, WhoIsHiddenWhileItsWindowEndsDoesNoHarm)
{
    QWidget* window = new QWidget(nullptr, "window");
    QWidget* first = new QWidget(window, "first");
    QWidget* second = new QWidget(window, "second");
    QObject::connect(first, SIGNAL(destroyed()), second, SLOT(hide()));
    showAndWait(window);
    takeMessages();
    delete window;
    settle();
    EXPECT_EQ("", takeMessages());
}
