// Lists of strings.
#include "printers.h"

#include <gtest/gtest.h>
#include <qstringlist.h>
#include <qstrlist.h>

namespace
{

// "one|two"; null strings as "null".
std::string shown(const QStringList& list)
{
    std::string text;
    for (QStringList::ConstIterator it = list.begin(); it != list.end(); ++it)
        text += (it == list.begin() ? "" : "|") + std::string((*it).isNull() ? "null" : (*it).latin1());
    return text;
}

} // namespace

TEST(StringList, GrowsAndShrinks)
{
    QStringList list;
    EXPECT_TRUE(list.isEmpty());
    list << "b"
         << "a"
         << "c";
    list.append("a");
    list.prepend("z");
    EXPECT_EQ("z|b|a|c|a", shown(list));
    EXPECT_EQ(2u, list.contains("a"));
    EXPECT_EQ(3, list.findIndex("c"));
    EXPECT_EQ(-1, list.findIndex("q"));
    EXPECT_EQ("z", list.first());
    EXPECT_EQ("a", list.last());
    EXPECT_EQ("b", list[1]);
    list.sort();
    EXPECT_EQ("a|a|b|c|z", shown(list));
    EXPECT_EQ(2u, list.remove("a"));
    EXPECT_EQ("b|c|z", shown(list));
    EXPECT_EQ("only", shown(QStringList("only")));
}

TEST(StringList, Splitting)
{
    const struct {
        const char *separator, *text;
        bool allowEmpty;
        uint count;
        const char* parts;
    } cases[] = {
        {",", "a,b,,c,", false, 3, "a|b|c"},
        {",", "a,b,,c,", true, 5, "a|b|null|c|null"},
        {" ", " x  y ", false, 2, "x|y"},
        {"--", "a--b-c", false, 2, "a|b-c"},
        {",", "", false, 0, ""},
        {",", 0, false, 0, ""},
        {",", "", true, 1, "null"},
        {",", 0, true, 0, ""},
        {",", "one", false, 1, "one"},
    };
    for (const auto& each : cases) {
        const QStringList parts = QStringList::split(each.separator, QString(each.text), each.allowEmpty);
        EXPECT_EQ(each.count, parts.count());
        EXPECT_EQ(each.parts, shown(parts));
    }
    EXPECT_EQ("x|y", shown(QStringList::split(QChar(' '), "x y")));
}

TEST(StringList, Joining)
{
    EXPECT_EQ("a, b, c", QStringList::split(",", "a,b,c").join(", "));
    EXPECT_EQ("a", QStringList("a").join(", "));
    EXPECT_TRUE(QStringList().join(",").isNull());
}

TEST(StringList, ChoosingAndReplacing)
{
    QStringList list = QStringList::split(",", "one,two,three,Ten");
    EXPECT_EQ("two|three", shown(list.grep("t")));
    EXPECT_EQ("two|three|Ten", shown(list.grep("T", false)));
    EXPECT_EQ("onE|two|thrEE|TEn", shown(list.gres("e", "E")));
}

TEST(StringList, FromEightBitTexts)
{
    QStrList texts;
    texts.append("one");
    texts.append("two");
    EXPECT_EQ("one|two", shown(QStringList::fromStrList(texts)));
}
