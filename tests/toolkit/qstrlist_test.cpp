// Lists of 8-bit strings.
#include <gtest/gtest.h>
#include <qstrlist.h>

TEST(StrList, KeepsCopiesUnlessToldOtherwise)
{
    char text[] = "abc";
    QStrList deep, shallow(false);
    deep.append(text);
    shallow.append(text);
    text[0] = 'X';
    EXPECT_STREQ("abc", deep.at(0));
    EXPECT_EQ(text, shallow.at(0));
    const QStrList copy(deep);
    deep.clear();
    EXPECT_STREQ("abc", copy.getFirst());
    EXPECT_EQ(1u, copy.count());
}

TEST(StrList, ComparesTexts)
{
    QStrList list;
    list.append("b");
    list.append("a");
    list.inSort("aa");
    EXPECT_STREQ("aa", list.at(0));
    EXPECT_EQ(2, list.find("a"));
    EXPECT_EQ(-1, list.find("z"));
    EXPECT_EQ(1u, list.contains("b"));
    EXPECT_TRUE(list.remove("b"));
    EXPECT_FALSE(list.remove("b"));
    list.sort();
    std::string all;
    for (QStrListIterator it(list); it.current(); ++it)
        all += std::string(it.current()) + " ";
    EXPECT_EQ("a aa ", all);
}

TEST(StrList, AssigningTakesOver)
{
    QStrList one, other;
    one.append("old");
    other.append("new");
    one = other;
    one = one;
    EXPECT_EQ(1u, one.count());
    EXPECT_STREQ("new", one.getFirst());
    EXPECT_NE(other.getFirst(), one.getFirst());
}
