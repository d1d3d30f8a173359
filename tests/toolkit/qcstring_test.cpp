// 8-bit strings, byte arrays, and the C string functions.
#include "printers.h"

#include <climits>
#include <gtest/gtest.h>
#include <qcstring.h>
#include <qstring.h>

TEST(CString, NullAndEmptyDiffer)
{
    const QCString null, empty(""), text("abc");
    EXPECT_TRUE(null.isNull());
    EXPECT_TRUE(QCString(static_cast<const char*>(0)).isNull());
    EXPECT_FALSE(empty.isNull());
    EXPECT_TRUE(null.isEmpty());
    EXPECT_TRUE(empty.isEmpty());
    EXPECT_TRUE(null == static_cast<const char*>(0));
    EXPECT_FALSE(null == "");
    EXPECT_FALSE(null == empty);
    EXPECT_TRUE(null < empty);
}

TEST(CString, SizeCountsTheZeroAtTheEnd)
{
    EXPECT_EQ(0u, QCString().size());
    EXPECT_EQ(1u, QCString("").size());
    EXPECT_EQ(4u, QCString("abc").size());
    EXPECT_EQ(3u, QCString("abc").length());
    QCString text("R_ll!");
    EXPECT_TRUE(text.resize(3));
    EXPECT_STREQ("R_", text);
    EXPECT_TRUE(text.truncate(1));
    EXPECT_STREQ("R", text);
    EXPECT_STREQ("abc", QCString("abcdef", 4));
    EXPECT_STREQ("ab", QCString("ab", 40));
    const QCString zeros(5);
    EXPECT_EQ(5u, zeros.size());
    EXPECT_EQ(0u, zeros.length());
}

TEST(CString, CopiesChangeTogetherUntilOneIsAssigned)
{
    QCString one("abcdef");
    QCString other = one;
    other[0] = 'X';
    EXPECT_STREQ("Xbcdef", one) << "explicitly shared";
    QCString own = one.copy();
    own[0] = 'a';
    EXPECT_STREQ("Xbcdef", one);
    QCString shorter = one;
    shorter.truncate(2);
    EXPECT_STREQ("Xb", shorter);
    EXPECT_STREQ("Xbcdef", one) << "a new size is the copy's own";
    other += "g";
    EXPECT_STREQ("Xbcdef", one) << "appending makes a text of its own";
    EXPECT_STREQ("Xbcdefg", other);
}

TEST(CString, Parts)
{
    const QCString text("Hello World");
    EXPECT_STREQ("Hello", text.left(5));
    EXPECT_STREQ("Hello World", text.left(99));
    EXPECT_STREQ("World", text.right(5));
    EXPECT_STREQ("World", text.mid(6));
    EXPECT_STREQ("Wo", text.mid(6, 2));
    EXPECT_STREQ("", text.mid(99));
    EXPECT_TRUE(QCString().left(1).isNull());
    EXPECT_STREQ("ab..", QCString("ab").leftJustify(4, '.'));
    EXPECT_STREQ("..ab", QCString("ab").rightJustify(4, '.'));
    EXPECT_STREQ("He", text.leftJustify(2, '.', true));
}

TEST(CString, Searching)
{
    const QCString text("Hello World");
    EXPECT_EQ(4, text.find('o'));
    EXPECT_EQ(7, text.find('o', 5));
    EXPECT_EQ(6, text.find("World"));
    EXPECT_EQ(-1, text.find("world"));
    EXPECT_EQ(6, text.find("world", 0, false));
    EXPECT_EQ(7, text.findRev('o'));
    EXPECT_EQ(4, text.findRev('o', 6));
    EXPECT_EQ(3, text.contains('l'));
    EXPECT_EQ(2, text.contains("o"));
    EXPECT_EQ(0, QCString().contains('l'));
    EXPECT_EQ(-1, text.find('x', 99));
}

TEST(CString, Changing)
{
    QCString text("Hell");
    EXPECT_STREQ("He__ll", text.insert(2, "__"));
    EXPECT_STREQ("He__ll!", text.append("!"));
    EXPECT_STREQ("!He__ll!", text.prepend("!"));
    EXPECT_STREQ("__ll!", text.remove(0, 3));
    EXPECT_STREQ("R_ll!", text.replace(0, 1, "R"));
    EXPECT_STREQ("R_LL!", text.replace('l', 'L'));
    EXPECT_STREQ("R_<><>!", text.replace('L', "<>"));
    EXPECT_STREQ("R_!", text.replace("<>", ""));
    EXPECT_STREQ("R__!", text.replace('_', "__"));
    EXPECT_STREQ("xxx", (text.fill('x', 3), text));
    EXPECT_STREQ("HELLO", QCString("hello").upper());
    EXPECT_STREQ("hello", QCString("HELLO").lower());
    EXPECT_STREQ("x y", QCString("  x y ").stripWhiteSpace());
    EXPECT_STREQ("a b", QCString(" a   b ").simplifyWhiteSpace());
    EXPECT_STREQ("5-x", text.sprintf("%d-%s", 5, "x"));
}

TEST(CString, NumbersAndOtherStrings)
{
    bool good;
    EXPECT_EQ(12, QCString("12").toInt());
    EXPECT_EQ(0, QCString("12x").toInt(&good));
    EXPECT_FALSE(good);
    EXPECT_EQ(12u, QCString("12").toUInt(&good));
    EXPECT_TRUE(good);
    EXPECT_DOUBLE_EQ(1.5, QCString("1.5").toDouble());
    EXPECT_STREQ("42", QCString().setNum(42));
    EXPECT_STREQ("-1.5", QCString().setNum(-1.5));
    EXPECT_EQ("u\xfc", QString(QCString("u\xfc")));
    EXPECT_STREQ("abcdef", QCString("abc") + "def");
    EXPECT_STREQ("xabc", "x" + QCString("abc"));
    EXPECT_STREQ("abcq", QCString("abc") + 'q');
}

TEST(ByteArray, KnowsItsSizeAndSharesIt)
{
    QByteArray bytes(3);
    EXPECT_EQ(3u, bytes.size());
    bytes.fill('x');
    QByteArray other = bytes;
    EXPECT_EQ(2u, bytes.nrefs());
    other[1] = 'y';
    EXPECT_EQ('y', bytes[1]);
    other.detach();
    other[1] = 'z';
    EXPECT_EQ('y', bytes[1]);
    EXPECT_EQ(1, bytes.find('y'));
    EXPECT_EQ(2, bytes.contains('x'));
    EXPECT_TRUE(bytes == bytes.copy());
    EXPECT_TRUE(bytes != other);
    other.resize(0);
    EXPECT_TRUE(other.isNull());
    EXPECT_EQ(3u, bytes.size());
}

TEST(CStringFunctions, StandNullPointers)
{
    EXPECT_EQ(0u, qstrlen(0));
    EXPECT_EQ(3u, qstrlen("abc"));
    EXPECT_EQ(0, qstrcmp(0, 0));
    EXPECT_LT(qstrcmp(0, "a"), 0);
    EXPECT_GT(qstrcmp("a", 0), 0);
    EXPECT_EQ(0, qstricmp("ABC", "abc"));
    EXPECT_LT(qstricmp("ABC", "abd"), 0);
    EXPECT_EQ(0, qstrncmp("abcd", "abxx", 2));
    EXPECT_EQ(0, qstrnicmp("ABcd", "abxx", 2));
    EXPECT_NE(0, qstrnicmp("ABcd", "abxx", 3));
    EXPECT_EQ(0, qstrdup(0));
    char* copy = qstrdup("dup");
    EXPECT_STREQ("dup", copy);
    delete[] copy;
    char room[] = "zzzzzzzzz";
    EXPECT_EQ(0, qstrcpy(room, 0));
    EXPECT_STREQ("abcd", qstrncpy(room, "abcdefghijkl", 5)) << "always ends with a zero";
}

TEST(Rounding, HalvesGoUp)
{
    const struct {
        double value;
        int rounded;
    } cases[] = {{2.5, 3},
                 {-2.5, -2},
                 {2.4, 2},
                 {-2.6, -3},
                 {-2.4, -2},
                 {0.5, 1},
                 {-0.5, 0},
                 {0, 0},
                 {-2147483648.0, INT_MIN},
                 {-2147483648.4, INT_MIN}};
    for (const auto& each : cases)
        EXPECT_EQ(each.rounded, qRound(each.value)) << each.value;
}

TEST(CString, MayChangeByPartsOfItself)
{
    const char longText[] = "the beginning of a text and its end";
    QCString text(longText);
    EXPECT_STREQ("beginning of a text and its end beginning of a text and its end",
                 text.replace(0, 3, text.data() + 4));
    text = longText;
    EXPECT_STREQ("its endthe beginning of a text and its end", text.insert(0, text.data() + 28));
    text = longText;
    EXPECT_STREQ("the beginning of a text and its endits end", text += text.data() + 28);
    text = text.data() + 28;
    EXPECT_STREQ("its endits end", text);
}
