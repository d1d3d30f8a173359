// Everything else that lists, arrays and their iterators do.
#include "printers.h"

#include <gtest/gtest.h>
#include <qguardedptr.h>
#include <qmemarray.h>
#include <qobject.h>
#include <qptrlist.h>
#include <qstring.h>
#include <qvaluelist.h>

#include <vector>

namespace
{

int numbers[] = {0, 1, 2, 3, 4};

template <class List>
std::vector<int> contents(const List& list)
{
    std::vector<int> result;
    QPtrListIterator<int> each(list);
    for (; each.current(); ++each)
        result.push_back(*each.current());
    return result;
}

QPtrList<int> listOf(std::initializer_list<int> items)
{
    QPtrList<int> list;
    for (const int item : items)
        list.append(&numbers[item]);
    return list;
}

} // namespace

TEST(PtrList, TakesItemsAnywhere)
{
    QPtrList<int> list;
    EXPECT_TRUE(list.isEmpty());
    list.append(&numbers[2]);
    list.prepend(&numbers[0]);
    EXPECT_TRUE(list.insert(1, &numbers[1]));
    EXPECT_FALSE(list.insert(9, &numbers[4]));
    EXPECT_EQ((std::vector<int>{0, 1, 2}), contents(list));
    EXPECT_TRUE(list.replace(1, &numbers[3]));
    EXPECT_EQ((std::vector<int>{0, 3, 2}), contents(list));
    EXPECT_FALSE(list.isEmpty());
}

TEST(PtrList, GoesThroughItsItems)
{
    QPtrList<int> list = listOf({0, 1, 2});
    EXPECT_EQ(&numbers[2], list.last());
    EXPECT_EQ(&numbers[2], list.current());
    EXPECT_EQ(&numbers[1], list.prev());
    EXPECT_EQ(&numbers[1], list.current());
    EXPECT_EQ(&numbers[2], list.getLast());
    EXPECT_EQ(&numbers[1], list.current()) << "looking at the last one does not go there";
}

TEST(PtrList, FindsTheSameItemAgain)
{
    QPtrList<int> list = listOf({1, 2, 1, 2, 1});
    EXPECT_EQ(1, list.find(&numbers[2]));
    EXPECT_EQ(3, list.findNext(&numbers[2]));
    EXPECT_EQ(0, list.findRef(&numbers[1]));
    EXPECT_EQ(2, list.findNextRef(&numbers[1]));
    EXPECT_EQ(-1, list.findRef(&numbers[4]));
}

TEST(PtrList, GivesItemsAway)
{
    QPtrList<int> list = listOf({0, 1, 2, 3, 4});
    EXPECT_EQ(&numbers[1], list.take(1));
    EXPECT_TRUE(list.removeFirst());
    EXPECT_TRUE(list.removeLast());
    EXPECT_TRUE(list.removeRef(&numbers[3]));
    EXPECT_FALSE(list.removeRef(&numbers[3]));
    EXPECT_EQ((std::vector<int>{2}), contents(list));
}

TEST(PtrList, EqualsAnotherWithTheSameItems)
{
    QPtrList<int> list = listOf({0, 1});
    QPtrList<int> other;
    EXPECT_TRUE(list != other);
    other = list;
    EXPECT_TRUE(list == other);
    EXPECT_EQ((std::vector<int>{0, 1}), contents(other));
}

TEST(PtrListIterator, GoesBothWaysAndByMoreThanOne)
{
    const QPtrList<int> list = listOf({0, 1, 2, 3, 4});
    QPtrListIterator<int> each(list);
    EXPECT_FALSE(each.isEmpty());
    EXPECT_TRUE(each.atFirst());
    EXPECT_EQ(&numbers[0], *each);
    EXPECT_EQ(&numbers[0], each()) << "returns the item before it goes on";
    EXPECT_EQ(&numbers[1], static_cast<int*>(each));
    EXPECT_EQ(&numbers[3], each += 2);
    EXPECT_EQ(&numbers[2], --each);
    EXPECT_EQ(&numbers[0], each -= 2);
    EXPECT_EQ(&numbers[4], each.toLast());
    EXPECT_TRUE(each.atLast());
    EXPECT_FALSE(each.atFirst());
    EXPECT_EQ(&numbers[0], each.toFirst());
}

TEST(PtrListIterator, EndsWhenItGoesTooFar)
{
    QPtrList<int> list;
    int one = 1, two = 2;
    list.append(&one);
    list.append(&two);
    for (const uint steps : {2u, 0x7fffffffu, 0x80000000u, 0xffffffffu}) {
        QPtrListIterator<int> iterator(list);
        ++iterator;
        EXPECT_FALSE(iterator += steps) << steps;
        EXPECT_FALSE(iterator -= 1) << "and stays there";
        iterator.toLast();
        EXPECT_FALSE(iterator -= steps) << steps;
    }
    list.clear();
    QPtrListIterator<int> nothing(list);
    EXPECT_FALSE(nothing += 1);
    EXPECT_FALSE(nothing -= 0);
    EXPECT_FALSE(++nothing);
    EXPECT_FALSE(nothing.toLast());
    EXPECT_FALSE(nothing());
}

TEST(MemArray, IsSharedUntilDuplicated)
{
    QMemArray<int> array(3);
    array.fill(7);
    QMemArray<int> same;
    same = array;
    QMemArray<int> assigned;
    assigned.assign(array);
    array[1] = 8;
    EXPECT_EQ(8, same[1]);
    EXPECT_EQ(8, assigned[1]);
    EXPECT_EQ(3u, array.count());
    EXPECT_EQ(array.data(), static_cast<const int*>(array));
    EXPECT_TRUE(array.truncate(2));
    int sum = 0;
    for (QMemArray<int>::Iterator it = array.begin(); it != array.end(); ++it)
        sum += *it;
    EXPECT_EQ(15, sum);
}

TEST(MemArray, IsFilledWithAnElementOfItsOwn)
{
    QMemArray<int> array(2);
    array[1] = 7;
    EXPECT_TRUE(array.fill(array[1], 100000));
    EXPECT_EQ(100000, array.contains(7));
}

// So many that their bytes cannot be counted.
TEST(MemArray, CannotHaveTooManyElements)
{
    QMemArray<double> array(2);
    array[1] = 1.5;
    EXPECT_FALSE(array.resize(0x20000001u));
    EXPECT_FALSE(array.fill(2.5, 0x7fffffff));
    EXPECT_EQ(2u, array.size());
    EXPECT_EQ(1.5, array[1]);
    EXPECT_EQ(0u, QMemArray<double>(-1).size());
}

TEST(ValueList, HasTheNamesOfTheStandardLibraryToo)
{
    QValueList<int> list;
    list << 1 << 2 << 3 << 4;
    EXPECT_EQ(1, list.front());
    EXPECT_EQ(4, list.back());
    list.pop_back();
    EXPECT_EQ(3, list.back());
    list.erase(list.begin());
    int sum = 0;
    for (QValueList<int>::ConstIterator it = list.constBegin(); it != list.constEnd(); ++it)
        sum += *it;
    EXPECT_EQ(5, sum);
}

TEST(GuardedPtr, IsUsedAsAPointer)
{
    QObject* object = new QObject(nullptr, "one");
    const QGuardedPtr<QObject> guard(object);
    QObject* plain = guard;
    EXPECT_EQ(object, plain);
    EXPECT_STREQ("one", guard->name());
    delete object;
    EXPECT_FALSE(static_cast<QObject*>(guard));
}
