// The many forms in which strings, bytes and characters are given.
#include "printers.h"

#include <gtest/gtest.h>
#include <qcstring.h>
#include <qstring.h>
#include <qstringlist.h>

namespace
{

std::string text(const QString& string)
{
    return string.utf8().data();
}

} // namespace

TEST(StringForms, ArgumentsOfEveryNumberType)
{
    const QString place("<%1>");
    EXPECT_EQ("<-5>", text(place.arg(static_cast<short>(-5))));
    EXPECT_EQ("<5>", text(place.arg(static_cast<ushort>(5))));
    EXPECT_EQ("<4000000000>", text(place.arg(4000000000u)));
    EXPECT_EQ("<4000000000>", text(place.arg(4000000000ul)));
    EXPECT_EQ("<-9000000000>", text(place.arg(Q_LLONG(-9000000000LL))));
    EXPECT_EQ("<9000000000>", text(place.arg(Q_ULLONG(9000000000ULL))));
    EXPECT_EQ("<   ff>", text(place.arg(255u, 5, 16)));
    EXPECT_EQ("ff", text(QString::number(255ul, 16)));
}

TEST(StringForms, AppendedAndPrependedOfEveryKind)
{
    QString string("b");
    string.append(QChar('c')).append('d').append(QString("e"));
    string.prepend(QChar('a')).prepend('-').prepend(QString("+"));
    EXPECT_EQ("+-abcde", text(string));
    EXPECT_EQ("xab", text(QChar('x') + QString("ab")));
}

TEST(StringForms, RemovedOfEveryKind)
{
    QString string("one Two one two");
    string.remove('o');
    EXPECT_EQ("ne Tw ne tw", text(string));
    string.remove(QChar('n'));
    EXPECT_EQ("e Tw e tw", text(string));
    string.remove("e ");
    EXPECT_EQ("Tw tw", text(string));
    string.remove(QString("tw"));
    EXPECT_EQ("Tw ", text(string));
    string.remove(QString("tW"), false);
    EXPECT_EQ(" ", text(string));
}

TEST(StringForms, ReplacedOfEveryKind)
{
    EXPECT_EQ("a-c", text(QString("abc").replace(1, 1, '-')));
    EXPECT_EQ("a+c", text(QString("abc").replace(1, 1, QChar('+'))));
    EXPECT_EQ("a12c", text(QString("abc").replace('b', QString("12"))));
    EXPECT_EQ("a12c", text(QString("abc").replace('B', QString("12"), false)));
    EXPECT_EQ("a12c", text(QString("abc").replace(QChar('B'), QString("12"), false)));
}

TEST(StringForms, SectionsBetweenSingleCharacters)
{
    EXPECT_EQ("b", text(QString("a,b,c").section(',', 1, 1)));
    EXPECT_EQ("b,c", text(QString("a,b,c").section(QChar(','), 1)));
}

TEST(StringForms, AssignedOfEveryKind)
{
    QString string;
    string = 'c';
    EXPECT_EQ("c", text(string));
    string = QChar('d');
    EXPECT_EQ("d", text(string));
    string = QCString("bytes");
    EXPECT_EQ("bytes", text(string));
    string.setAscii("ascii only", 5);
    EXPECT_EQ("ascii", text(string));
    EXPECT_EQ("asc", text(QString::fromAscii("ascii", 3)));
    const QChar letters[] = {'x', 'y', 'z'};
    string.setUnicode(letters, 2);
    EXPECT_EQ("xy", text(string));
    EXPECT_TRUE(string.unicode()[1] == QChar('y'));
    EXPECT_TRUE(string.constref(0) == QChar('x'));
    const QString constant("abc");
    EXPECT_TRUE(constant[2] == QChar('c'));
}

TEST(StringForms, AreComparedWithTextsOnBothSides)
{
    const QString a("a");
    const QString b("b");
    EXPECT_TRUE(a != b);
    EXPECT_TRUE("a" != b);
    EXPECT_TRUE(b > a);
    EXPECT_TRUE(b > "a");
    EXPECT_TRUE(b >= a);
    EXPECT_TRUE(b >= "b");
    EXPECT_TRUE("b" >= a);
    EXPECT_FALSE(a >= b);
    EXPECT_LT(a.localeAwareCompare(b), 0);
    EXPECT_EQ(0, a.localeAwareCompare(a));
}

TEST(StringForms, CharactersAreCompared)
{
    const QChar a('a');
    const QChar b('b');
    EXPECT_TRUE(a == a);
    EXPECT_TRUE(a != b);
    EXPECT_TRUE('a' != b);
    EXPECT_TRUE(b > a);
    EXPECT_TRUE(b > 'a');
    EXPECT_TRUE(b >= a);
    EXPECT_TRUE('b' >= a);
    EXPECT_FALSE(a > b);
    EXPECT_EQ(0x41, QChar(static_cast<short>(0x41)).unicode());
    EXPECT_EQ(0xe4, QChar(static_cast<uchar>(0xe4)).unicode());
    EXPECT_EQ(0x263a, QChar(0x263au).unicode());
}

TEST(CharRefs, ChangeAndTellTheirString)
{
    QString string("      ");
    string[0] = 0x41;
    string[1] = static_cast<short>(0x42);
    string[2] = static_cast<uchar>(0x43);
    string[3] = 0x44u;
    string[4] = static_cast<ushort>(0x45);
    string[5] = string[0];
    EXPECT_EQ("ABCDEA", text(string));
    const QChar letter = string[1];
    EXPECT_EQ(QChar('B'), letter);

    QString kinds("7a ,");
    kinds += QChar(0x0301);
    EXPECT_TRUE(kinds[0].isDigit());
    EXPECT_TRUE(kinds[0].isNumber());
    EXPECT_EQ(7, kinds[0].digitValue());
    EXPECT_TRUE(kinds[1].isLetter());
    EXPECT_TRUE(kinds[1].isLetterOrNumber());
    EXPECT_TRUE(kinds[1].isPrint());
    EXPECT_EQ(QChar('A'), kinds[1].upper());
    EXPECT_TRUE(kinds[2].isSpace());
    EXPECT_FALSE(kinds[2].isLetter());
    EXPECT_TRUE(kinds[3].isPunct());
    EXPECT_TRUE(kinds[4].isMark());
    EXPECT_EQ(0x01, kinds[4].cell());
    EXPECT_EQ(0x03, kinds[4].row());
}

TEST(ByteStrings, AreComparedWithTextsOnBothSides)
{
    const QCString a("a");
    const QCString b("b");
    EXPECT_TRUE(a != b);
    EXPECT_TRUE("a" != b);
    EXPECT_TRUE("a" == a);
    EXPECT_TRUE(b > a);
    EXPECT_TRUE(b > "a");
    EXPECT_TRUE("b" > a);
    EXPECT_TRUE(b >= a);
    EXPECT_TRUE(b >= "b");
    EXPECT_TRUE("b" >= b);
    EXPECT_FALSE(a > b);
    EXPECT_STREQ("ab", (a + b).data());
    EXPECT_STREQ("xb", ('x' + b).data());
}

TEST(ByteStrings, AreAssignedAndReadAsNumbers)
{
    QCString bytes;
    bytes = "12";
    QCString other;
    other = bytes;
    EXPECT_STREQ("12", other.data());
    other.setStr("-7");
    EXPECT_STREQ("12", bytes.data());
    EXPECT_EQ(-7, other.toShort());
    EXPECT_EQ(-7, other.toLong());
    EXPECT_EQ(12, bytes.toUShort());
    EXPECT_EQ(12u, bytes.toULong());
    EXPECT_EQ(1.5f, QCString("1.5").toFloat());
    bool ok = true;
    QCString("x").toShort(&ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(3, QCString("ab ab").findRev("ab"));
    EXPECT_EQ(0, QCString("ab ab").findRev("AB", 2, false));
}

TEST(StringLists, AreMadeFromOneStringAndAssigned)
{
    const QStringList one(QString("single"));
    QStringList other;
    other = one;
    ASSERT_EQ(1u, other.count());
    EXPECT_EQ("single", text(other.first()));
}
