// Lists of values.
#include <gtest/gtest.h>
#include <qvaluelist.h>

namespace
{

typedef QValueList<int> Numbers;

std::string shown(const Numbers& numbers)
{
    std::string text;
    for (Numbers::ConstIterator it = numbers.begin(); it != numbers.end(); ++it)
        text += (text.empty() ? "" : " ") + std::to_string(*it);
    return text;
}

} // namespace

TEST(ValueList, CopiesChangeOnTheirOwn)
{
    Numbers one;
    one << 1 << 2;
    Numbers other = one;
    other += 3;
    EXPECT_EQ("1 2", shown(one));
    EXPECT_EQ("1 2 3", shown(other));
    one = other;
    one.clear();
    EXPECT_EQ("1 2 3", shown(other));
    EXPECT_TRUE(one.isEmpty());
    Numbers third = other;
    *third.begin() = 9;
    EXPECT_EQ("1 2 3", shown(other));
    EXPECT_TRUE(third != other);
    other = other;
    EXPECT_EQ("1 2 3", shown(other));
}

TEST(ValueList, Adding)
{
    Numbers numbers;
    numbers.append(2);
    numbers.prepend(1);
    numbers.push_back(3);
    numbers.push_front(0);
    numbers.insert(numbers.at(2), 7);
    EXPECT_EQ("0 1 7 2 3", shown(numbers));
    EXPECT_EQ("0 1 7 2 3 0 1 7 2 3", shown(numbers + numbers));
    numbers += numbers;
    EXPECT_EQ(10u, numbers.count());
}

TEST(ValueList, IteratorsSurviveTheRemovalOfOthers)
{
    Numbers numbers;
    numbers << 1 << 2 << 3 << 2;
    Numbers::Iterator last = numbers.at(3), it = numbers.begin();
    ++it;
    it = numbers.remove(it);
    EXPECT_EQ(3, *it);
    EXPECT_EQ(2, *last);
    EXPECT_EQ(1u, numbers.remove(2));
    EXPECT_EQ(0u, numbers.remove(5));
    EXPECT_EQ("1 3", shown(numbers));
    EXPECT_EQ(0u, numbers.remove(numbers.first()) - 1) << "an element of its own as the argument";
    EXPECT_EQ("3", shown(numbers));
    numbers.pop_front();
    EXPECT_TRUE(numbers.empty());
}

TEST(ValueList, Looking)
{
    Numbers numbers;
    numbers << 5 << 6 << 5;
    EXPECT_EQ(5, numbers.first());
    EXPECT_EQ(6, numbers[1]);
    EXPECT_EQ(5, numbers.last());
    EXPECT_EQ(2u, numbers.contains(5));
    EXPECT_EQ(1, numbers.findIndex(6));
    EXPECT_EQ(-1, numbers.findIndex(7));
    EXPECT_TRUE(numbers.find(7) == numbers.end());
    EXPECT_EQ(6, *numbers.find(6));
    Numbers same;
    same << 5 << 6 << 5;
    EXPECT_TRUE(numbers == same);
}
