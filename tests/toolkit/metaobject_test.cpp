// What programs can ask of classes while they run.
#include <gtest/gtest.h>
#include <qlabel.h>
#include <qmetaobject.h>
#include <qobject.h>
#include <qtimer.h>

#include <string>

namespace
{

class Base : public QObject
{
    Q_OBJECT

public:
    QString hello() { return tr("Hello"); }

signals:
    void plain();
    void number(int value);
    void two(const QString& text, int v);

public slots:
    void doIt() { ++done; }
    void withDefault(int a, int b = 3) { sum = a + b; }
    virtual void spaced(const char* text, unsigned int x)
    {
        lastText = text;
        lastNumber = x;
    }

protected slots:
    void guarded(QWidget*) {}

private slots:
    void hidden(bool) {}

public:
    int done = 0;
    int sum = 0;
    std::string lastText;
    unsigned lastNumber = 0;
};

class Derived : public Base
{
    Q_OBJECT

signals:
    void extra(double);

public slots:
    void more(const QColor&) {}
    void doIt() { done += 100; }
};

class WithoutMacro : public Derived
{
};

struct Plain {
    virtual ~Plain() {}
    int number = 7;
};

class Mixed : public QObject, public Plain
{
    Q_OBJECT
};

std::string joined(const QStrList& list)
{
    std::string text;
    for (QStrListIterator it(list); it.current(); ++it)
        text += std::string(text.empty() ? "" : " ") + it.current();
    return text;
}

} // namespace

TEST(MetaObject, AClassWithoutTheMacroHasTheNameOfItsBase)
{
    Base base;
    Derived derived;
    WithoutMacro other;
    EXPECT_STREQ(base.className(), "Base");
    EXPECT_STREQ(derived.className(), "Derived");
    EXPECT_STREQ(other.className(), "Derived");
    EXPECT_STREQ(derived.metaObject()->superClassName(), "Base");
    EXPECT_EQ(derived.metaObject()->superClass(), base.metaObject());
    EXPECT_EQ(derived.metaObject(), Derived::staticMetaObject());
}

TEST(MetaObject, KinshipReachesUpToQt)
{
    Derived derived;
    EXPECT_TRUE(derived.isA("Derived"));
    EXPECT_FALSE(derived.isA("Base"));
    for (const char* name : {"Derived", "Base", "QObject", "Qt"})
        EXPECT_TRUE(derived.inherits(name)) << name;
    EXPECT_FALSE(derived.inherits("QWidget"));
    QLabel label(nullptr);
    EXPECT_TRUE(label.inherits("QFrame"));
    EXPECT_TRUE(label.metaObject()->inherits("QWidget"));
}

TEST(MetaObject, CastingByNameFindsBasesOnly)
{
    Derived derived;
    EXPECT_EQ(derived.qt_cast("Base"), &derived);
    EXPECT_EQ(derived.qt_cast("QObject"), &derived);
    EXPECT_EQ(derived.qt_cast("QWidget"), nullptr);
    Mixed mixed;
    EXPECT_EQ(static_cast<Plain*>(mixed.qt_cast("Plain"))->number, 7);
}

TEST(MetaObject, SignalsAndSlotsAreListedInTheOrderOfTheirDeclaration)
{
    const QMetaObject* base = Base::staticMetaObject();
    EXPECT_EQ(joined(base->signalNames()), "plain() number(int) two(const QString&,int)");
    EXPECT_EQ(joined(base->slotNames()), "doIt() withDefault(int) withDefault(int,int) "
                                         "spaced(const char*,unsigned int) guarded(QWidget*) hidden(bool)");
    const QMetaObject* derived = Derived::staticMetaObject();
    EXPECT_EQ(joined(derived->slotNames()), "more(const QColor&) doIt()");
    EXPECT_EQ(joined(derived->signalNames(true)),
              "destroyed() destroyed(QObject*) plain() number(int) two(const QString&,int) extra(double)");
}

TEST(MetaObject, NumbersGoOnFromClassToClass)
{
    const QMetaObject* base = Base::staticMetaObject();
    const QMetaObject* derived = Derived::staticMetaObject();
    EXPECT_EQ(base->slotOffset(), 2);
    EXPECT_EQ(base->signalOffset(), 2);
    EXPECT_EQ(base->numSlots(), 6);
    EXPECT_EQ(base->numSlots(true), 8);
    EXPECT_EQ(derived->slotOffset(), 8);
    EXPECT_EQ(derived->signalOffset(), 5);
    EXPECT_EQ(derived->numSignals(), 1);
    EXPECT_EQ(derived->numSignals(true), 6);
}

TEST(MetaObject, LookingUpBySignature)
{
    const QMetaObject* derived = Derived::staticMetaObject();
    EXPECT_EQ(derived->findSignal("extra(double)"), 5);
    EXPECT_EQ(derived->findSignal("number(int)"), -1);
    EXPECT_EQ(derived->findSignal("number(int)", true), 3);
    EXPECT_EQ(derived->findSlot("doIt()", true), 9);
    EXPECT_EQ(derived->findSlot("deleteLater()", true), 0);
    EXPECT_EQ(derived->findSlot("nothing()", true), -1);
}

TEST(MetaObject, EverySlotKnowsItsAccess)
{
    const QMetaObject* base = Base::staticMetaObject();
    EXPECT_EQ(base->slot(0)->access, QMetaData::Public);
    EXPECT_EQ(base->slot(4)->access, QMetaData::Protected);
    EXPECT_EQ(base->slot(5)->access, QMetaData::Private);
    EXPECT_STREQ(base->slot(0, true)->name, "deleteLater()");
    EXPECT_EQ(base->signal(0)->access, QMetaData::Public);
    EXPECT_EQ(base->slot(99, true), nullptr);
    EXPECT_EQ(base->signal(-1, true), nullptr);
}

TEST(MetaObject, SlotsAreCalledByNumberWithTheirDefaults)
{
    Derived derived;
    const int two = 2, five = 5;
    QUObject arguments[] = {{&two}, {&five}};
    EXPECT_TRUE(derived.qt_invoke(derived.metaObject()->findSlot("withDefault(int)", true), arguments));
    EXPECT_EQ(derived.sum, 5);
    EXPECT_TRUE(derived.qt_invoke(derived.metaObject()->findSlot("withDefault(int,int)", true), arguments));
    EXPECT_EQ(derived.sum, 7);
    EXPECT_TRUE(derived.qt_invoke(derived.metaObject()->findSlot("doIt()", true), nullptr));
    EXPECT_EQ(derived.done, 100);
    EXPECT_FALSE(derived.qt_invoke(derived.metaObject()->numSlots(true), nullptr));
}

TEST(MetaObject, ClassesAreFoundByName)
{
    EXPECT_EQ(QMetaObject::metaObject("Derived"), Derived::staticMetaObject());
    EXPECT_TRUE(QMetaObject::hasMetaObject("QTimer"));
    EXPECT_FALSE(QMetaObject::hasMetaObject("Nobody"));
    EXPECT_EQ(QMetaObject::metaObject("Nobody"), nullptr);
}

TEST(MetaObject, NothingIsNoName)
{
    EXPECT_EQ(QMetaObject::metaObject(nullptr), nullptr);
    EXPECT_FALSE(QMetaObject::hasMetaObject(nullptr));
    QMetaObject* const meta = QObject::staticMetaObject();
    EXPECT_EQ(meta->findSlot(nullptr), -1);
    EXPECT_EQ(meta->findSignal(nullptr), -1);
    EXPECT_FALSE(meta->inherits(nullptr));
}

TEST(MetaObject, TheNameIsTheOneProperty)
{
    EXPECT_EQ(Base::staticMetaObject()->numProperties(), 0);
    EXPECT_EQ(Base::staticMetaObject()->numProperties(true), 1);
    EXPECT_EQ(Base::staticMetaObject()->numClassInfo(), 0);
}

TEST(MetaObject, TextsWithoutTranslatorStayAsTheyAre)
{
    Base base;
    EXPECT_STREQ(base.hello().latin1(), "Hello");
    EXPECT_EQ(Base::trUtf8("\xc3\xa9"), QString(QChar(0xe9)));
}

#include "metaobject_test.moc"
