// Which connections can be made and broken, and what is said of the others.
#include "messages.h"

#include <gtest/gtest.h>
#include <qobject.h>
#include <qstringlist.h>

#include <string>

namespace
{

class Sender : public QObject
{
    Q_OBJECT

public:
    explicit Sender(const char* name = "sender") : QObject(nullptr, name) {}
    std::string takeNotes()
    {
        const std::string taken = notes;
        notes.clear();
        return taken;
    }
    bool hasReceivers(const char* signal) const { return receivers(signal) != nullptr; }
    void emitNone() { emit none(); }
    void emitNumber(int value) { emit number(value); }
    void emitTwo(int value, const QString& text) { emit two(value, text); }

signals:
    void none();
    void number(int);
    void two(int, const QString&);
    void words(QStringList);

protected:
    void connectNotify(const char* signal) override { notes += std::string("+") + signal + " "; }
    void disconnectNotify(const char* signal) override
    {
        notes += std::string("-") + (signal ? signal : "all") + " ";
    }

private:
    std::string notes;
};

class Receiver : public QObject
{
    Q_OBJECT

public:
    explicit Receiver(const char* name = "receiver") : QObject(nullptr, name) {}
    std::string takeHeard()
    {
        const std::string taken = heard;
        heard.clear();
        return taken;
    }

public slots:
    void none() { heard += "none "; }
    void number(int value) { heard += "number " + std::to_string(value) + " "; }
    void flag(bool) { heard += "flag "; }
    void word(QString) { heard += "word "; }
    void text(const QString& value) { heard += std::string("text ") + value.latin1() + " "; }
    void two(int value, const QString& text)
    {
        heard += "two " + std::to_string(value) + " " + text.latin1() + " ";
    }

signals:
    void again(int value);
    void plain();

private:
    std::string heard;
};

const char names[] = "QObject::connect:  (sender name:   'sender')\n"
                     "QObject::connect:  (receiver name: 'receiver')\n";

} // namespace

TEST(Connect, ASlotMayTakeFewerArguments)
{
    Sender sender;
    Receiver receiver;
    EXPECT_TRUE(QObject::connect(&sender, SIGNAL(two(int, const QString&)), &receiver,
                                 SLOT(two(int, const QString&))));
    EXPECT_TRUE(QObject::connect(&sender, SIGNAL(two(int, const QString&)), &receiver, SLOT(number(int))));
    EXPECT_TRUE(QObject::connect(&sender, SIGNAL(two(int, const QString&)), &receiver, SLOT(none())));
    EXPECT_EQ(sender.takeNotes(),
              "+2two(int,const QString&) +2two(int,const QString&) +2two(int,const QString&) ");
    sender.emitTwo(4, "words");
    EXPECT_EQ(receiver.takeHeard(), "two 4 words number 4 none ");
    EXPECT_EQ(takeMessages(), "");
}

TEST(Connect, OtherArgumentsDoNotFit)
{
    const struct {
        const char* signal;
        const char* slot;
    } cases[] = {
        {"none()", "number(int)"},
        {"number(int)", "flag(bool)"},
        {"two(int,const QString&)", "text(const QString&)"},
        {"words(QStringList)", "word(QString)"},
        {"number(int)", "two(int,const QString&)"},
    };
    Sender sender;
    Receiver receiver;
    for (const auto& c : cases) {
        EXPECT_FALSE(QObject::connect(&sender, (std::string("2") + c.signal).c_str(), &receiver,
                                      (std::string("1") + c.slot).c_str()));
        EXPECT_EQ(takeMessages(), std::string("QObject::connect: Incompatible sender/receiver arguments\n"
                                              "\tSender::") +
                                      c.signal + " --> Receiver::" + c.slot + "\n");
    }
    EXPECT_EQ(sender.takeNotes(), "");
}

TEST(Connect, WhatDoesNotExistIsNamed)
{
    const struct {
        const char* signal;
        const char* member;
        const char* message;
        bool withNames;
    } cases[] = {
        {"2nosuch()", "1none()", "No such signal Sender::nosuch()", true},
        {"2none()", "1nosuch()", "No such slot Receiver::nosuch()", true},
        {"2none()", "2nosuch()", "No such signal Receiver::nosuch()", true},
        {"2number(long)", "1none()", "No such signal Sender::number(long)", true},
        {"2none()", "1again(int)", "No such slot Receiver::again(int)", true},
        {"2none", "1none()", "Parentheses expected, signal Sender::none", true},
        {"2none()", "1none", "Parentheses expected, slot Receiver::none", true},
        {"1none()", "1none()", "Attempt to bind non-signal Sender::none()", false},
        {"none()", "1none()", "Use the SIGNAL macro to bind Sender::none()", false},
        {"", "1none()", "Use the SIGNAL macro to bind Sender::", false},
        {"2none()", "none()", "Use the SLOT or SIGNAL macro to connect Receiver::none()", false},
        {"2none()", "3none()", "Use the SLOT or SIGNAL macro to connect Receiver::3none()", false},
    };
    Sender sender;
    Receiver receiver;
    for (const auto& c : cases) {
        EXPECT_FALSE(QObject::connect(&sender, c.signal, &receiver, c.member));
        EXPECT_EQ(takeMessages(),
                  std::string("QObject::connect: ") + c.message + "\n" + (c.withNames ? names : ""));
    }
}

TEST(Connect, NullIsAWarning)
{
    Sender sender;
    Receiver receiver;
    EXPECT_FALSE(QObject::connect(nullptr, SIGNAL(none()), &receiver, SLOT(none())));
    EXPECT_EQ(takeMessages(), "QObject::connect: Cannot connect (null)::none() to Receiver::none()\n");
    EXPECT_FALSE(QObject::connect(&sender, SIGNAL(none()), nullptr, SLOT(none())));
    EXPECT_EQ(takeMessages(), "QObject::connect: Cannot connect Sender::none() to (null)::none()\n");
    EXPECT_FALSE(QObject::connect(&sender, nullptr, &receiver, nullptr));
    EXPECT_EQ(takeMessages(), "QObject::connect: Cannot connect Sender::(null) to Receiver::(null)\n");
}

TEST(Connect, NothingIsNoSignal)
{
    Sender sender;
    EXPECT_FALSE(sender.hasReceivers(nullptr));
    EXPECT_FALSE(QObject::connect(&sender, "", nullptr, ""));
    EXPECT_FALSE(QObject::connect(&sender, "", &sender, ""));
    EXPECT_EQ(takeMessages(), "QObject::connect: Cannot connect Sender:: to (null)::\n"
                              "QObject::connect: Use the SIGNAL macro to bind Sender::\n");
}

TEST(Connect, BlanksInSignaturesDoNotCount)
{
    Sender sender;
    Receiver receiver;
    EXPECT_TRUE(
        QObject::connect(&sender, "2two( int , const   QString & )", &receiver, "1two(int,const QString&) "));
    EXPECT_TRUE(QObject::connect(&sender, SIGNAL(number(int)), &receiver, "1number ( int )"));
    EXPECT_EQ(sender.takeNotes(), "+2two(int,const QString&) +2number(int) ");
    EXPECT_EQ(takeMessages(), "");
}

TEST(Connect, ASignalMayCallASignal)
{
    Sender sender;
    Receiver middle, end;
    QObject::connect(&sender, SIGNAL(number(int)), &middle, SIGNAL(again(int)));
    QObject::connect(&sender, SIGNAL(number(int)), &middle, SIGNAL(plain()));
    QObject::connect(&middle, SIGNAL(again(int)), &end, SLOT(number(int)));
    QObject::connect(&middle, SIGNAL(plain()), &end, SLOT(none()));
    sender.emitNumber(5);
    EXPECT_EQ(end.takeHeard(), "number 5 none ");
}

TEST(Connect, DuplicatesCountAndAreCutTogether)
{
    Sender sender;
    Receiver receiver;
    for (int i = 0; i < 3; ++i)
        QObject::connect(&sender, SIGNAL(number(int)), &receiver, SLOT(number(int)));
    sender.emitNumber(1);
    EXPECT_EQ(receiver.takeHeard(), "number 1 number 1 number 1 ");
    sender.takeNotes();
    EXPECT_TRUE(QObject::disconnect(&sender, SIGNAL(number(int)), &receiver, SLOT(number(int))));
    EXPECT_FALSE(QObject::disconnect(&sender, SIGNAL(number(int)), &receiver, SLOT(number(int))));
    EXPECT_EQ(sender.takeNotes(), "-2number(int) ");
    EXPECT_FALSE(sender.hasReceivers("number(int)"));
}

TEST(Connect, NullStandsForAllWhenDisconnecting)
{
    const struct {
        const char* signal;
        int receiver; // 0 stands for all
        const char* slot;
        const char* firstHears;
        const char* secondHears;
        const char* note;
    } cases[] = {
        {"2number(int)", 1, nullptr, "none ", "none number 1 ", "-2number(int) "},
        {"2number(int)", 0, nullptr, "none ", "none ", "-2number(int) "},
        {nullptr, 1, nullptr, "", "none number 1 ", "-all "},
        {nullptr, 1, "1none()", "number 1 ", "none number 1 ", "-all "},
        {nullptr, 0, nullptr, "", "", "-all "},
    };
    for (const auto& c : cases) {
        Sender sender;
        Receiver first, second;
        for (Receiver* receiver : {&first, &second}) {
            QObject::connect(&sender, SIGNAL(none()), receiver, SLOT(none()));
            QObject::connect(&sender, SIGNAL(number(int)), receiver, SLOT(number(int)));
        }
        sender.takeNotes();
        EXPECT_TRUE(QObject::disconnect(&sender, c.signal, c.receiver ? &first : nullptr, c.slot));
        EXPECT_EQ(sender.takeNotes(), c.note);
        sender.emitNone();
        sender.emitNumber(1);
        EXPECT_EQ(first.takeHeard(), c.firstHears);
        EXPECT_EQ(second.takeHeard(), c.secondHears);
        EXPECT_FALSE(QObject::disconnect(&sender, c.signal, c.receiver ? &first : nullptr, c.slot));
    }
}

TEST(Connect, DisconnectingWhatDoesNotExistIsAWarning)
{
    Sender sender;
    Receiver receiver;
    EXPECT_FALSE(QObject::disconnect(&sender, SIGNAL(nosuch()), &receiver, nullptr));
    EXPECT_EQ(takeMessages(), "QObject::disconnect: No such signal Sender::nosuch()\n");
    EXPECT_FALSE(QObject::disconnect(&sender, SIGNAL(none()), &receiver, SLOT(nosuch())));
    EXPECT_EQ(takeMessages(), "QObject::disconnect: No such slot Receiver::nosuch()\n"
                              "QObject::disconnect:  (sender name:   'sender')\n"
                              "QObject::disconnect:  (receiver name: 'receiver')\n");
    EXPECT_FALSE(QObject::disconnect(nullptr, SIGNAL(none()), &receiver, nullptr));
    EXPECT_FALSE(QObject::disconnect(&sender, SIGNAL(none()), nullptr, SLOT(none())));
    EXPECT_EQ(takeMessages(), "QObject::disconnect: Unexpected null parameter\n"
                              "QObject::disconnect: Unexpected null parameter\n");
}

TEST(Connect, ADeadReceiverIsNoReceiver)
{
    Sender sender;
    {
        Receiver receiver;
        QObject::connect(&sender, SIGNAL(none()), &receiver, SLOT(none()));
        EXPECT_TRUE(sender.hasReceivers("none()"));
        sender.takeNotes();
    }
    EXPECT_FALSE(sender.hasReceivers("none()"));
    EXPECT_EQ(sender.takeNotes(), "-all ");
    sender.emitNone();
}

#include "connect_test.moc"
