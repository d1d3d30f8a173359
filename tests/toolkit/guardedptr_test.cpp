// Pointers that become null when their object dies.
#include <gtest/gtest.h>
#include <qguardedptr.h>
#include <qtimer.h>

#include <vector>

TEST(GuardedPtr, BecomesNullWithTheObject)
{
    auto* timer = new QTimer;
    const QGuardedPtr<QTimer> guard(timer);
    EXPECT_FALSE(guard.isNull());
    EXPECT_EQ(static_cast<QTimer*>(guard), timer);
    EXPECT_FALSE(guard->isActive());
    EXPECT_EQ(&*guard, timer);
    delete timer;
    EXPECT_TRUE(guard.isNull());
    EXPECT_EQ(static_cast<QTimer*>(guard), nullptr);
}

TEST(GuardedPtr, ManyMayGuardOneObject)
{
    auto* object = new QObject;
    std::vector<QGuardedPtr<QObject>> guards(5, QGuardedPtr<QObject>(object));
    guards.erase(guards.begin() + 1);
    guards[0] = nullptr;
    EXPECT_TRUE(guards[0].isNull());
    EXPECT_FALSE(guards[1].isNull());
    delete object;
    for (const QGuardedPtr<QObject>& guard : guards)
        EXPECT_TRUE(guard.isNull());
}

TEST(GuardedPtr, MayPointElsewhere)
{
    QObject survivor;
    auto* object = new QObject;
    QGuardedPtr<QObject> guard(object), other(&survivor);
    EXPECT_TRUE(guard != other);
    guard = &survivor;
    EXPECT_TRUE(guard == other);
    delete object;
    EXPECT_FALSE(guard.isNull());
    other = QGuardedPtr<QObject>();
    EXPECT_TRUE(other.isNull());
}

TEST(GuardedPtr, AChildDiesWithItsParent)
{
    auto* parent = new QObject;
    const QGuardedPtr<QObject> guard(new QObject(parent));
    delete parent;
    EXPECT_TRUE(guard.isNull());
}
