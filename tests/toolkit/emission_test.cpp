// What happens while a signal is emitted: order, changes, deaths.
#include "waiting.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qguardedptr.h>
#include <qobject.h>

#include <functional>
#include <string>

namespace
{

class Sender : public QObject
{
    Q_OBJECT

public:
    explicit Sender(const char* name = "sender") : QObject(nullptr, name) {}
    void fire(int value = 0) { emit signal(value); }

signals:
    void signal(int value);
};

std::string heard;

std::string takeHeard()
{
    const std::string taken = heard;
    heard.clear();
    return taken;
}

class Receiver : public QObject
{
    Q_OBJECT

public:
    explicit Receiver(const char* name) : QObject(nullptr, name) {}
    const QObject* sender() { return QObject::sender(); }
    void listenTo(QObject* object) { connect(object, SIGNAL(signal(int)), SLOT(slot(int))); }
    std::function<void()> action;

public slots:
    void slot(int value)
    {
        heard += std::string(name()) + std::to_string(value) + " ";
        const std::function<void()> now = action; // the receiver may die
        if (now)
            now();
    }
    void gone() { heard += std::string(name()) + ":gone "; }
    void goneWith(QObject* object) { heard += std::string(name()) + ":gone(" + object->name() + ") "; }

signals:
    void signal(int value);
};

class Emission : public testing::Test
{
protected:
    void SetUp() override
    {
        heard.clear();
        for (Receiver* receiver : {&a, &b, &c})
            receiver->listenTo(&sender);
    }

    Sender sender;
    Receiver a{"a"}, b{"b"}, c{"c"};
};

} // namespace

TEST_F(Emission, ReceiversAreCalledInTheOrderOfConnection)
{
    sender.fire(1);
    EXPECT_EQ(takeHeard(), "a1 b1 c1 ");
}

TEST_F(Emission, ABlockedSenderIsSilent)
{
    sender.blockSignals(true);
    EXPECT_TRUE(sender.signalsBlocked());
    sender.fire(1);
    EXPECT_EQ(takeHeard(), "");
    sender.blockSignals(false);
    sender.fire(2);
    EXPECT_EQ(takeHeard(), "a2 b2 c2 ");
}

TEST_F(Emission, BlockingMeanwhileDoesNotStopTheRunningOne)
{
    a.action = [this] { sender.blockSignals(true); };
    sender.fire(1);
    EXPECT_EQ(takeHeard(), "a1 b1 c1 ");
}

TEST_F(Emission, WhoIsCutOffMeanwhileIsNotCalled)
{
    a.action = [this] { QObject::disconnect(&sender, nullptr, &b, nullptr); };
    sender.fire(1);
    EXPECT_EQ(takeHeard(), "a1 c1 ");
    sender.fire(2);
    EXPECT_EQ(takeHeard(), "a2 c2 ");
}

TEST_F(Emission, CuttingEverythingEndsIt)
{
    a.action = [this] { sender.disconnect(); };
    sender.fire(1);
    EXPECT_EQ(takeHeard(), "a1 ");
}

TEST_F(Emission, WhoIsConnectedMeanwhileIsCalledToo)
{
    Receiver late("late");
    a.action = [&] {
        a.action = nullptr;
        late.listenTo(&sender);
    };
    sender.fire(1);
    EXPECT_EQ(takeHeard(), "a1 b1 c1 late1 ");
}

TEST_F(Emission, AReceiverMayDieBeforeItsTurn)
{
    auto* doomed = new Receiver("doomed");
    doomed->listenTo(&sender);
    b.action = [&] { delete doomed; };
    sender.fire(1);
    EXPECT_EQ(takeHeard(), "a1 b1 c1 ");
    b.action = nullptr;
    sender.fire(2);
    EXPECT_EQ(takeHeard(), "a2 b2 c2 ");
}

TEST_F(Emission, AReceiverMayDeleteItself)
{
    auto* doomed = new Receiver("doomed");
    doomed->listenTo(&sender);
    Receiver last("last");
    last.listenTo(&sender);
    doomed->action = [&] { delete doomed; };
    sender.fire(1);
    EXPECT_EQ(takeHeard(), "a1 b1 c1 doomed1 last1 ");
}

TEST_F(Emission, TheSenderMayDie)
{
    auto* doomed = new Sender;
    a.listenTo(doomed);
    b.listenTo(doomed);
    a.action = [&] {
        delete doomed;
        EXPECT_EQ(a.sender(), nullptr);
    };
    doomed->fire(7);
    EXPECT_EQ(takeHeard(), "a7 ");
}

TEST_F(Emission, EmittingWithinAnEmissionNests)
{
    int depth = 0;
    a.action = [&] {
        if (++depth < 3)
            sender.fire(depth);
    };
    sender.fire(0);
    EXPECT_EQ(takeHeard(), "a0 a1 a2 b2 c2 b1 c1 b0 c0 ");
}

TEST_F(Emission, CuttingWithinANestedOneHoldsForTheOuterOne)
{
    int depth = 0;
    a.action = [&] {
        if (++depth == 1)
            sender.fire(1);
        else
            QObject::disconnect(&sender, nullptr, &c, nullptr);
    };
    sender.fire(0);
    EXPECT_EQ(takeHeard(), "a0 a1 b1 b0 ");
}

TEST_F(Emission, TheSenderIsKnownInTheSlotOnly)
{
    const QObject* seen = nullptr;
    a.action = [&] { seen = a.sender(); };
    sender.fire();
    EXPECT_EQ(seen, &sender);
    EXPECT_EQ(a.sender(), nullptr);
}

TEST_F(Emission, NestedCallsRememberTheOuterSender)
{
    Sender other("other");
    a.listenTo(&other);
    std::string senders;
    bool first = true;
    a.action = [&] {
        if (first) {
            first = false;
            other.fire();
        }
        senders += std::string(a.sender()->name()) + " ";
    };
    sender.fire();
    EXPECT_EQ(senders, "other sender ");
}

TEST_F(Emission, BehindASignalTheForwardingObjectIsTheSender)
{
    Receiver forwarder("forwarder"), end("end");
    QObject::connect(&sender, SIGNAL(signal(int)), &forwarder, SIGNAL(signal(int)));
    end.listenTo(&forwarder);
    const QObject* seen = nullptr;
    end.action = [&] { seen = end.sender(); };
    sender.fire(3);
    EXPECT_EQ(seen, &forwarder);
    EXPECT_EQ(takeHeard(), "a3 b3 c3 end3 ");
}

TEST_F(Emission, DeathIsToldByBothSignalsEvenWhenBlocked)
{
    auto* doomed = new Sender("doomed");
    QObject::connect(doomed, SIGNAL(destroyed()), &a, SLOT(gone()));
    QObject::connect(doomed, SIGNAL(destroyed(QObject*)), &b, SLOT(goneWith(QObject*)));
    doomed->blockSignals(true);
    delete doomed;
    EXPECT_EQ(takeHeard(), "b:gone(doomed) a:gone ");
}

TEST_F(Emission, DeletingLaterWaitsForTheLoop)
{
    auto* doomed = new Sender("doomed");
    const QGuardedPtr<Sender> guard(doomed);
    doomed->deleteLater();
    EXPECT_FALSE(guard.isNull());
    doomed->fire(1);
    EXPECT_TRUE(waitFor([&] { return guard.isNull(); }));
}

TEST_F(Emission, DeletingLaterIsASlot)
{
    auto* doomed = new Sender("doomed");
    const QGuardedPtr<Sender> guard(doomed);
    ASSERT_TRUE(QObject::connect(&sender, SIGNAL(signal(int)), doomed, SLOT(deleteLater())));
    sender.fire(1);
    sender.fire(2);
    EXPECT_FALSE(guard.isNull());
    EXPECT_TRUE(waitFor([&] { return guard.isNull(); }));
}

#include "emission_test.moc"
