// Lists of pointers.
#include <gtest/gtest.h>
#include <qptrlist.h>

namespace
{

struct Thing {
    explicit Thing(int v) : value(v) { ++alive; }
    ~Thing() { --alive; }
    int value;
    static int alive;
};
int Thing::alive = 0;

// Compares by value.
class Things : public QPtrList<Thing>
{
public:
    ~Things() { clear(); }
    std::string shown() const
    {
        std::string text;
        for (QPtrListIterator<Thing> it(*this); it.current(); ++it)
            text += (text.empty() ? "" : " ") + std::to_string(it.current()->value);
        return text;
    }

protected:
    int compareItems(Item a, Item b) { return static_cast<Thing*>(a)->value - static_cast<Thing*>(b)->value; }
};

struct PointerList : testing::Test {
    Thing one{1}, two{2}, three{3};
    Things things;
    void fill()
    {
        things.append(&one);
        things.append(&two);
        things.append(&three);
    }
};

} // namespace

TEST_F(PointerList, TheLastAddedItemIsCurrent)
{
    EXPECT_EQ(0, things.current());
    EXPECT_EQ(-1, things.at());
    fill();
    EXPECT_EQ(&three, things.current());
    EXPECT_TRUE(things.insert(1, &one));
    EXPECT_EQ(1, things.at());
    EXPECT_FALSE(things.insert(9, &one));
    things.prepend(&two);
    EXPECT_EQ("2 1 1 2 3", things.shown());
}

TEST_F(PointerList, WalkingAlong)
{
    fill();
    EXPECT_EQ(&one, things.first());
    EXPECT_EQ(&two, things.next());
    EXPECT_EQ(&three, things.next());
    EXPECT_EQ(0, things.next());
    EXPECT_EQ(0, things.next()) << "there is no way back from the end";
    EXPECT_EQ(0, things.prev());
    EXPECT_EQ(&three, things.last());
    EXPECT_EQ(&two, things.prev());
    EXPECT_EQ(&two, things.at(1));
    EXPECT_EQ(0, things.at(7));
    EXPECT_EQ(&one, things.getFirst());
    EXPECT_EQ(&three, things.getLast());
}

TEST_F(PointerList, AfterARemovalTheNextItemIsCurrentOrTheLast)
{
    fill();
    things.at(1);
    EXPECT_TRUE(things.remove());
    EXPECT_EQ(&three, things.current());
    EXPECT_EQ(&three, things.take());
    EXPECT_EQ(&one, things.current());
    EXPECT_FALSE(things.removeRef(&two));
    EXPECT_TRUE(things.removeFirst());
    EXPECT_FALSE(things.removeLast());
    EXPECT_EQ(0, things.current());
}

TEST_F(PointerList, FindingComparesItemsOrPointers)
{
    fill();
    Thing equal(2);
    EXPECT_EQ(1, things.find(&equal));
    EXPECT_EQ(&two, things.current());
    EXPECT_EQ(-1, things.findRef(&equal));
    EXPECT_EQ(0, things.current());
    EXPECT_EQ(1u, things.contains(&equal));
    EXPECT_EQ(0u, things.containsRef(&equal));
    things.append(&equal);
    things.find(&two);
    EXPECT_EQ(3, things.findNext(&two));
    EXPECT_EQ(-1, things.findNext(&two));
    EXPECT_TRUE(things.remove(&equal)) << "the first equal one goes";
    EXPECT_EQ("1 3 2", things.shown());
}

TEST_F(PointerList, Sorting)
{
    things.append(&three);
    things.append(&one);
    things.sort();
    things.inSort(&two);
    EXPECT_EQ("1 2 3", things.shown());
}

TEST_F(PointerList, DeletesItsItemsIfToldSo)
{
    const int before = Thing::alive;
    {
        QPtrList<Thing> owner;
        owner.setAutoDelete(true);
        owner.append(new Thing(1));
        owner.append(new Thing(2));
        owner.append(new Thing(3));
        QPtrList<Thing> guest(owner);
        EXPECT_FALSE(guest.autoDelete()) << "copies never delete";
        EXPECT_TRUE(guest == owner);
        owner.removeFirst();
        EXPECT_EQ(before + 2, Thing::alive);
        Thing* taken = owner.take(0);
        EXPECT_EQ(before + 2, Thing::alive);
        delete taken;
        owner.replace(0, new Thing(4));
        EXPECT_EQ(before + 1, Thing::alive);
        EXPECT_EQ(3u, guest.count());
    }
    EXPECT_EQ(before, Thing::alive);
}

TEST_F(PointerList, IteratorsGoOnWhenItemsGo)
{
    fill();
    QPtrListIterator<Thing> it(things), copy(it), last(things);
    EXPECT_EQ(&one, it());
    EXPECT_EQ(&two, *it);
    EXPECT_EQ(&three, last.toLast());
    EXPECT_TRUE(last.atLast());
    things.remove(1u);
    EXPECT_EQ(&three, it.current()) << "the next one takes the place";
    things.remove(1u);
    EXPECT_EQ(&one, it.current()) << "or the last one";
    EXPECT_EQ(&one, last.current());
    things.prepend(&two);
    EXPECT_EQ(&one, copy.current()) << "stays at its item";
    EXPECT_FALSE(copy.atFirst());
    EXPECT_EQ(&two, --copy);
    EXPECT_EQ(0, copy += 5);
    copy = last;
    EXPECT_EQ(&one, copy.current());
    things.clear();
    EXPECT_EQ(0, it.current());
    EXPECT_EQ(0, ++it);
}

TEST_F(PointerList, IteratorsMayOutliveTheList)
{
    QPtrList<Thing>* list = new QPtrList<Thing>;
    list->append(&one);
    QPtrListIterator<Thing> it(*list);
    EXPECT_EQ(1u, it.count());
    delete list;
    EXPECT_EQ(0, it.current());
    EXPECT_EQ(0, it.toFirst());
    EXPECT_EQ(0u, it.count());
}
