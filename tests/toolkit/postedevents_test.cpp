// Events that wait for the event loop.
#include "eventlog.h"
#include "waiting.h"

#include <gtest/gtest.h>
#include <qapplication.h>

#include <functional>
#include <memory>

namespace
{

// Writes the events it gets, and may do something at the first of them.
class Box : public QObject
{
public:
    Box(EventLog* log, const char* name) : QObject(nullptr, name), m_log(log) {}
    std::function<void()> once;

protected:
    void customEvent(QCustomEvent* event) override
    {
        m_log->write(name() + std::to_string(event->type() - QEvent::User));
        const std::function<void()> now = once;
        once = nullptr;
        if (now)
            now();
    }

private:
    EventLog* m_log;
};

class PostedEvents : public testing::Test
{
protected:
    PostedEvents() : a(&log, "a"), b(&log, "b") { settle(); }
    static void post(QObject* receiver, int number)
    {
        QApplication::postEvent(receiver, new QCustomEvent(QEvent::User + number));
    }

    EventLog log;
    Box a, b;
};

} // namespace

TEST_F(PostedEvents, ComeInTheirOrder)
{
    post(&a, 1);
    post(&b, 2);
    post(&a, 3);
    EXPECT_TRUE(qApp->hasPendingEvents());
    EXPECT_EQ("", log.take());
    qApp->processEvents();
    EXPECT_EQ("a1; b2; a3", log.take());
}

TEST_F(PostedEvents, CanBeSentForOneReceiverOrOfOneType)
{
    post(&a, 1);
    post(&b, 2);
    post(&a, 3);
    QApplication::sendPostedEvents(&b, 0);
    EXPECT_EQ("b2", log.take());
    QApplication::sendPostedEvents(&a, QEvent::User + 3);
    EXPECT_EQ("a3", log.take());
    QApplication::sendPostedEvents();
    EXPECT_EQ("a1", log.take());
}

TEST_F(PostedEvents, CanBeRemoved)
{
    post(&a, 1);
    post(&b, 2);
    QApplication::removePostedEvents(&a);
    QApplication::sendPostedEvents();
    EXPECT_EQ("b2", log.take());
}

TEST_F(PostedEvents, OfAHandlerComeInTheSameRoundUnlessItWasTheLast)
{
    a.once = [this] { post(&a, 9); };
    post(&a, 1);
    post(&b, 2);
    QApplication::sendPostedEvents();
    EXPECT_EQ("a1; b2; a9", log.take());
    a.once = [this] { post(&a, 8); };
    post(&a, 1);
    QApplication::sendPostedEvents();
    EXPECT_EQ("a1", log.take());
    QApplication::sendPostedEvents();
    EXPECT_EQ("a8", log.take());
}

TEST_F(PostedEvents, OfADeadReceiverAreForgotten)
{
    Box* mortal = new Box(&log, "m");
    a.once = [mortal] { delete mortal; };
    post(&a, 1);
    post(mortal, 2);
    post(&b, 3);
    QApplication::sendPostedEvents();
    EXPECT_EQ("a1; b3", log.take());
}

TEST_F(PostedEvents, ForNobodyAreRefused)
{
    QApplication::postEvent(nullptr, new QCustomEvent(QEvent::User));
    EXPECT_FALSE(qApp->hasPendingEvents());
}

TEST_F(PostedEvents, MayBeSentInsideOfAnother)
{
    a.once = [] { QApplication::sendPostedEvents(); };
    post(&a, 1);
    post(&b, 2);
    post(&a, 3);
    QApplication::sendPostedEvents();
    EXPECT_EQ("a1; b2; a3", log.take());
}

TEST_F(PostedEvents, UpdatesOfAWidgetBecomeOnePaintEvent)
{
    LoggedWidget widget(&log, nullptr, "w");
    widget.setGeometry(100, 100, 50, 50);
    widget.logsPaint = true;
    showAndWait(&widget);
    log.take();
    widget.update(0, 0, 10, 10);
    widget.update(20, 0, 10, 10);
    qApp->processEvents();
    EXPECT_EQ("w Paint erased 0,0 10x10 20,0 10x10", log.take());
}

TEST_F(PostedEvents, AWidgetThatUpdatesItselfWheneverItPaintsDoesNotStopTheRest)
{
    struct Restless : public QWidget {
        int painted = 0;
        void paintEvent(QPaintEvent*) override
        {
            ++painted;
            update();
        }
    } one, two;
    showAndWait(&one);
    showAndWait(&two);
    post(&a, 1);
    QApplication::sendPostedEvents();
    EXPECT_EQ("a1", log.take());
    EXPECT_GT(one.painted, 1);
}
