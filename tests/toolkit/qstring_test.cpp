// Strings: null and empty, their parts, searching, changing, comparing, and what encodings make of them.
#include "messages.h"
#include "printers.h"

#include <gtest/gtest.h>
#include <qstring.h>

#include <algorithm>
#include <limits>
#include <vector>

namespace
{

// Null and empty strings differ; texts as UTF-8.
std::string shown(const QString& text)
{
    return text.isNull() ? "null" : '"' + std::string(text.utf8().data()) + '"';
}

std::string codes(const QString& text)
{
    QString all;
    for (uint i = 0; i < text.length(); ++i)
        all += QString::number(text.at(i).unicode(), 16) + " ";
    return all.stripWhiteSpace().latin1();
}

const QString null;
const QString empty("");

} // namespace

TEST(String, NullIsEmptyButNotTheEmptyString)
{
    EXPECT_TRUE(null.isNull());
    EXPECT_TRUE(QString(static_cast<const char*>(0)).isNull());
    EXPECT_FALSE(empty.isNull());
    EXPECT_TRUE(null.isEmpty());
    EXPECT_TRUE(empty.isEmpty());
    EXPECT_FALSE(null == empty);
    EXPECT_TRUE(null == QString::null);
    EXPECT_TRUE(null == "");
    EXPECT_TRUE(empty == "");
    EXPECT_TRUE(null == static_cast<const char*>(0));
    EXPECT_TRUE(!null);
    EXPECT_FALSE(!empty);
    EXPECT_EQ(0, null.latin1());
    EXPECT_STREQ("", empty.latin1());
    EXPECT_FALSE(null.utf8().isNull()) << "only latin1() and ascii() tell null";
    EXPECT_FALSE(null.local8Bit().isNull());
}

TEST(String, NullStaysNullWhereNothingIsAdded)
{
    const struct {
        const char* what;
        QString result;
        const char* expected;
    } cases[] = {
        {"null + null", null + null, "null"},
        {"null + empty", null + empty, "\"\""},
        {"null + text", null + "a", "\"a\""},
        {"part of null", null.mid(0, 3), "null"},
        {"left of null", null.left(0), "null"},
        {"nothing at the left", QString("abc").left(0), "\"\""},
        {"nothing at the right", QString("abc").right(0), "\"\""},
        {"beyond the end", QString("abc").mid(9), "null"},
        {"at the end", QString("abc").mid(3), "null"},
        {"lower", null.lower(), "null"},
        {"stripWhiteSpace", null.stripWhiteSpace(), "null"},
        {"simplifyWhiteSpace", null.simplifyWhiteSpace(), "null"},
        {"fromLatin1", QString::fromLatin1(0), "null"},
        {"fromUtf8", QString::fromUtf8(0), "null"},
        {"fromUtf8 of nothing", QString::fromUtf8(""), "\"\""},
    };
    for (const auto& each : cases)
        EXPECT_EQ(each.expected, shown(each.result)) << each.what;
}

TEST(String, CopiesChangeOnTheirOwn)
{
    QString one("same");
    QString other = one;
    EXPECT_EQ(one.ascii(), other.ascii()) << "shared until one of them changes";
    EXPECT_EQ(one.ascii(), one.latin1()) << "the pointer stays while the string does";
    other += "x";
    other[0] = 'l';
    EXPECT_EQ("same", one);
    EXPECT_EQ("lamex", other);
    one = one;
    EXPECT_EQ("same", one);
    one.replace(one, one + one);
    EXPECT_EQ("samesame", one);
    one += one;
    EXPECT_EQ("samesamesamesame", one);
    one = "aba";
    EXPECT_EQ("abababa", one.replace("a", one));
    EXPECT_STREQ("abababa", one.latin1());
    one[1] = 'x';
    EXPECT_STREQ("axababa", one.latin1()) << "the 8-bit text follows";
    QString wasNull;
    wasNull.setLength(0);
    EXPECT_FALSE(wasNull.isNull());
}

TEST(String, ComesFromManyThings)
{
    const QChar codes[3] = {QChar('a'), QChar(0x20ac), QChar('b')};
    QString filled;
    const struct {
        QString result;
        const char* expected;
    } cases[] = {
        {QString(QChar('x')), "\"x\""},
        {QString("Gr\xfc\xdf"), "\"Gr\xc3\xbc\xc3\x9f\""},
        {QString::fromUtf8("\xe2\x82\xac\xc3\xbc"), "\"\xe2\x82\xac\xc3\xbc\""},
        {QString::fromLatin1("abcdef", 3), "\"abc\""},
        {QString::fromLatin1("ab", 9), "\"ab\""},
        {QString::fromUtf8("abcdef", 2), "\"ab\""},
        {QString::fromLocal8Bit("\xc3\xa4"), "\"\xc3\xa4\""},
        {QString(codes, 3), "\"a\xe2\x82\xac"
                            "b\""},
        {QString(QByteArray().duplicate("xyz\0w", 5)), "\"xyz\""},
        {QString(std::string("old friend")), "\"old friend\""},
        {filled.fill('z', 4), "\"zzzz\""},
        {filled.fill('q'), "\"qqqq\""},
        {filled.fill('q', 0), "\"\""},
    };
    for (const auto& each : cases)
        EXPECT_EQ(each.expected, shown(each.result));
}

TEST(String, EightBitTextsLoseWhatTheyCannotHold)
{
    const QString text = QString::fromUtf8("\xc3\xa4\xe2\x82\xacz");
    EXPECT_STREQ("\xe4?z", text.latin1());
    EXPECT_STREQ("\xe4?z", text.ascii());
    EXPECT_STREQ("\xe4?z", text);
    EXPECT_STREQ("\xc3\xa4\xe2\x82\xacz", text.utf8());
    EXPECT_STREQ("\xc3\xa4\xe2\x82\xacz", text.local8Bit()) << "the tests run in a UTF-8 locale";
    EXPECT_EQ("\xe4?z", std::string(text));
}

TEST(String, BytesThatAreNoUtf8SurviveTheWayThereAndBack)
{
    const char* const broken[] = {"a\xff\xc3"
                                  "b",
                                  "\xc3",
                                  "\xe2\x82",
                                  "\x80",
                                  "\xc0\x80",
                                  "\xf8\x88\x80\x80\x80"};
    for (const char* bytes : broken)
        EXPECT_STREQ(bytes, QString::fromUtf8(bytes).utf8());
    EXPECT_EQ("61 dbff deff dbff dec3 62", codes(QString::fromUtf8(broken[0])));
    EXPECT_EQ("d83d de00", codes(QString::fromUtf8("\xf0\x9f\x98\x80")));
    EXPECT_STREQ("\xf0\x9f\x98\x80", QString::fromUtf8("\xf0\x9f\x98\x80").utf8());
}

TEST(String, Parts)
{
    const QString text("The quick fox");
    const uint all = static_cast<uint>(-1);
    const struct {
        QString result;
        const char* expected;
    } cases[] = {
        {text.left(3), "\"The\""},
        {text.left(99), "\"The quick fox\""},
        {text.left(all), "\"The quick fox\""},
        {text.right(3), "\"fox\""},
        {text.right(99), "\"The quick fox\""},
        {text.mid(4, 5), "\"quick\""},
        {text.mid(4), "\"quick fox\""},
        {text.mid(4, all), "\"quick fox\""},
        {text.mid(12), "\"x\""},
    };
    for (const auto& each : cases)
        EXPECT_EQ(each.expected, shown(each.result));
}

TEST(String, SectionsLieBetweenSeparators)
{
    const struct {
        const char *text, *separator;
        int start, end, flags;
        const char* expected;
    } cases[] = {
        {"a:b:c", ":", 1, 1, QString::SectionDefault, "b"},
        {"a:b:c", ":", -1, -1, QString::SectionDefault, "c"},
        {"a:b:c", ":", 1, -1, QString::SectionDefault, "b:c"},
        {"a:b:c", ":", 0, 1, QString::SectionDefault, "a:b"},
        {"a:b:c", ":", 7, 9, QString::SectionDefault, ""},
        {"a:b:c", ":", 2, 1, QString::SectionDefault, ""},
        {"a::c", ":", 1, 1, QString::SectionDefault, ""},
        {"a::c", ":", 1, 1, QString::SectionSkipEmpty, "c"},
        {"a:b:c", ":", 1, 1, QString::SectionIncludeLeadingSep, ":b"},
        {"a:b:c", ":", 1, 1, QString::SectionIncludeTrailingSep, "b:"},
        {"aXbxc", "x", 1, 1, QString::SectionDefault, "c"},
        {"aXbxc", "x", 1, 1, QString::SectionCaseInsensitiveSeps, "b"},
        {"a--b--c", "--", -2, -2, QString::SectionDefault, "b"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(each.expected, QString(each.text).section(each.separator, each.start, each.end, each.flags))
            << each.text << ' ' << each.start << ' ' << each.end << ' ' << each.flags;
}

TEST(String, SingleCharactersCanBeReadAndAssigned)
{
    QString text("The quick fox");
    EXPECT_EQ('q', text.at(4).latin1());
    EXPECT_TRUE(text.at(99).isNull());
    text[0] = 't';
    EXPECT_EQ('t', text[0].latin1());
    text.truncate(9);
    text.truncate(99);
    EXPECT_EQ("the quick", text);
    text.setLength(4);
    EXPECT_EQ("the ", text);
    text.ref(5) = 'x';
    EXPECT_EQ("the  x", text) << "grows as needed";
}

TEST(String, Searching)
{
    const QString text("abcabcABC");
    EXPECT_EQ(1, text.find('b'));
    EXPECT_EQ(1, text.find("bc"));
    EXPECT_EQ(4, text.find('b', 2));
    EXPECT_EQ(1, text.find("BC", 0, false));
    EXPECT_EQ(-1, text.find("zz"));
    EXPECT_EQ(4, text.find("bc", -5)) << "a negative place counts from the end";
    EXPECT_EQ(-1, text.find("a", -99));
    EXPECT_EQ(4, text.findRev('b'));
    EXPECT_EQ(1, text.findRev('b', 3));
    EXPECT_EQ(6, text.findRev("abc", -1, false));
    EXPECT_EQ(-1, text.findRev("abc", 99));
    EXPECT_EQ(0, text.find(""));
    EXPECT_EQ(3, text.find("", 3));
    EXPECT_EQ(-1, null.find("a"));
    EXPECT_EQ(0, null.find(""));
    EXPECT_TRUE(text.startsWith("ab"));
    EXPECT_FALSE(text.startsWith("bc"));
    EXPECT_TRUE(text.startsWith(QString::null));
    EXPECT_TRUE(text.startsWith("AB", false));
    EXPECT_TRUE(text.endsWith("BC"));
    EXPECT_FALSE(text.endsWith("bc"));
    EXPECT_FALSE(QString("c").endsWith("bc"));
}

TEST(String, NothingIsFoundBehindTheEnd)
{
    constexpr int most = std::numeric_limits<int>::max();
    EXPECT_EQ(-1, QString("abc").find("c", most));
    EXPECT_EQ(-1, QString("abc").find('c', 4));
    EXPECT_EQ(-1, QString("abc").findRev("c", most));
    EXPECT_EQ(2, QString("abc").find("c", -1));
    EXPECT_EQ(-1, QString("abc").find("c", -most - 1));
}

TEST(String, CountingWhatItContains)
{
    const QString text("abcabcABC");
    EXPECT_EQ(2, text.contains('a'));
    EXPECT_EQ(2, text.contains("abc"));
    EXPECT_EQ(3, text.contains("abc", false));
    EXPECT_EQ(2, QString("aaa").contains("aa")) << "overlapping ones count";
    EXPECT_EQ(10, text.contains("")) << "before each character and at the end";
    EXPECT_EQ(0, QString("ab").contains("abc"));
}

TEST(String, Changing)
{
    QString text("abc");
    const auto& self = text;
    const struct {
        QString result;
        const char* expected;
    } steps[] = {
        {text.insert(1, "XY"), "aXYbc"},    {text.insert(9, "Z"), "aXYbc    Z"},
        {text.append("!"), "aXYbc    Z!"},  {text.prepend("?"), "?aXYbc    Z!"},
        {text.remove(0, 2), "XYbc    Z!"},  {text.remove(3, 99), "XYb"},
        {text.replace(0, 1, "qq"), "qqYb"}, {text.replace("q", "rr"), "rrrrYb"},
        {text.replace('r', 'x'), "xxxxYb"}, {text.replace("X", "-", false), "----Yb"},
        {text.remove('-'), "Yb"},           {text.replace("none", "z"), "Yb"},
    };
    for (const auto& step : steps)
        EXPECT_EQ(step.expected, step.result);
    EXPECT_EQ("Yb", self);
}

TEST(String, BlanksAndCase)
{
    EXPECT_EQ("a  b \t c", QString("  a  b \t c ").stripWhiteSpace());
    EXPECT_EQ("a b c", QString("  a  b \t c ").simplifyWhiteSpace());
    EXPECT_EQ("", QString(" \n").simplifyWhiteSpace());
    EXPECT_EQ("ABC\xc4", QString("aBc\xe4").upper());
    EXPECT_EQ("abc\xe4", QString("AbC\xc4").lower());
    EXPECT_EQ("abcde...", QString("abcde").leftJustify(8, '.'));
    EXPECT_EQ("abcde", QString("abcde").leftJustify(3, '.'));
    EXPECT_EQ("abc", QString("abcde").leftJustify(3, '.', true));
    EXPECT_EQ("   abcde", QString("abcde").rightJustify(8));
}

TEST(String, Comparing)
{
    EXPECT_LT(QString::compare("a", "b"), 0);
    EXPECT_GT(QString::compare("b", "a"), 0);
    EXPECT_EQ(0, QString::compare("a", "a"));
    EXPECT_LT(QString("abc").compare("abcd"), 0);
    EXPECT_TRUE(QString("B") < "a") << "by codes";
    EXPECT_TRUE(QString("a") <= "a");
    EXPECT_TRUE("b" > QString("a"));
    EXPECT_TRUE(QString("a") != "ab");
    EXPECT_LT(QString::localeAwareCompare("a", "b"), 0);
    EXPECT_FALSE(null < empty);
    EXPECT_TRUE(empty < "a");
    EXPECT_FALSE(null < "a") << "null stands behind all others";
    std::vector<QString> texts = {null, "b", "", "a"};
    std::sort(texts.begin(), texts.end());
    EXPECT_EQ(null, texts.back());
    EXPECT_EQ("", texts.front());
}

TEST(String, Adding)
{
    EXPECT_EQ("xy", "x" + QString("y"));
    EXPECT_EQ("xy", QString("x") + 'y');
    EXPECT_EQ("xy", 'x' + QString("y"));
    EXPECT_EQ("abc", QString("a") + QChar('b') + "c");
    EXPECT_EQ("ab", QString("a") + std::string("b"));
    QString text("a");
    text += 'b';
    text += QChar('c');
    text += "d";
    text += QString("e");
    EXPECT_EQ("abcde", text);
    text += static_cast<const char*>(0);
    EXPECT_EQ("abcde", text);
}
