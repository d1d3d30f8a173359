// Event filters of objects and of the application.
#include "perishable.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qevent.h>
#include <qobject.h>

#include <functional>
#include <string>

namespace
{

std::string seen;

std::string takeSeen()
{
    const std::string taken = seen;
    seen.clear();
    return taken;
}

class Filter : public QObject
{
public:
    explicit Filter(const char* name) : QObject(nullptr, name) {}
    bool eats = false;
    std::function<void()> action;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::User)
            return false;
        seen += std::string(name()) + ":" + watched->name() + " ";
        const std::function<void()> now = action; // the filter may die
        const bool result = eats;
        if (now)
            now();
        return result;
    }
};

class Target : public QObject
{
public:
    explicit Target(const char* name) : QObject(nullptr, name) {}

protected:
    void customEvent(QCustomEvent*) override { seen += std::string(name()) + " "; }
};

class EventFilter : public testing::Test
{
protected:
    void SetUp() override
    {
        seen.clear();
        target.installEventFilter(&a);
        target.installEventFilter(&b);
    }

    bool send()
    {
        QCustomEvent event(QEvent::User);
        return QApplication::sendEvent(&target, &event);
    }

    Target target{"target"};
    Filter a{"a"}, b{"b"};
};

} // namespace

TEST_F(EventFilter, TheLastOneIsAskedFirst)
{
    EXPECT_TRUE(send());
    EXPECT_EQ(takeSeen(), "b:target a:target target ");
}

TEST_F(EventFilter, InstallingAgainMovesToTheFront)
{
    target.installEventFilter(&a);
    send();
    EXPECT_EQ(takeSeen(), "a:target b:target target ");
}

TEST_F(EventFilter, WhatIsEatenGoesNoFurther)
{
    b.eats = true;
    EXPECT_TRUE(send());
    EXPECT_EQ(takeSeen(), "b:target ");
}

TEST_F(EventFilter, ARemovedFilterSeesNothing)
{
    target.removeEventFilter(&b);
    target.removeEventFilter(&b);
    send();
    EXPECT_EQ(takeSeen(), "a:target target ");
}

TEST_F(EventFilter, ADeadFilterSeesNothing)
{
    {
        Filter c("c");
        target.installEventFilter(&c);
        send();
        EXPECT_EQ(takeSeen(), "c:target b:target a:target target ");
    }
    send();
    EXPECT_EQ(takeSeen(), "b:target a:target target ");
}

TEST_F(EventFilter, AFilterMayOutliveItsTarget)
{
    auto* other = new Target("other");
    other->installEventFilter(&a);
    delete other;
    a.setName("still here");
    send();
    EXPECT_EQ(takeSeen(), "b:target still here:target target ");
}

TEST_F(EventFilter, FiltersMayRemoveThemselvesAndOthersMeanwhile)
{
    b.action = [this] {
        target.removeEventFilter(&b);
        target.removeEventFilter(&a);
    };
    send();
    EXPECT_EQ(takeSeen(), "b:target target ");
    send();
    EXPECT_EQ(takeSeen(), "target ");
}

TEST_F(EventFilter, AFilterMayDieMeanwhile)
{
    auto* doomed = new Filter("doomed");
    target.installEventFilter(doomed);
    doomed->action = [=] { delete doomed; };
    send();
    EXPECT_EQ(takeSeen(), "doomed:target b:target a:target target ");
}

TEST_F(EventFilter, AFilterMayDeleteTheTarget)
{
    auto* doomed = new Target("doomed");
    doomed->installEventFilter(&a);
    doomed->installEventFilter(&b);
    b.eats = true;
    b.action = [=] { delete doomed; };
    QCustomEvent event(QEvent::User);
    QApplication::sendEvent(doomed, &event);
    EXPECT_EQ(takeSeen(), "b:doomed ");
}

TEST_F(EventFilter, TheApplicationsFilterComesBeforeAll)
{
    Filter all("all");
    qApp->installEventFilter(&all);
    send();
    EXPECT_EQ(takeSeen(), "all:target b:target a:target target ");
    all.eats = true;
    EXPECT_TRUE(send());
    EXPECT_EQ(takeSeen(), "all:target ");
    qApp->removeEventFilter(&all);
    send();
    EXPECT_EQ(takeSeen(), "b:target a:target target ");
}

TEST_F(EventFilter, TheApplicationsFilterMayDeleteTheTarget)
{
    Filter all("all"), later("later");
    qApp->installEventFilter(&later);
    qApp->installEventFilter(&all);
    auto* doomed = new Perishable<Target>("doomed");
    all.action = [=] { delete doomed; };
    QCustomEvent event(QEvent::User);
    EXPECT_TRUE(QApplication::sendEvent(doomed, &event));
    EXPECT_EQ(takeSeen(), "all:doomed ");
    Graveyard::clear();
}

TEST_F(EventFilter, NullIsNoFilter)
{
    target.installEventFilter(nullptr);
    send();
    EXPECT_EQ(takeSeen(), "b:target a:target target ");
}
