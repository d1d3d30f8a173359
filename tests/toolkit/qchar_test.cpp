// Single characters: their classes, their case, their codes.
#include <gtest/gtest.h>
#include <qstring.h>

TEST(Char, Classes)
{
    // L letter, D digit, N number, P punctuation, S symbol, B blank, M mark, X printable
    const struct {
        int code;
        const char* classes;
    } cases[] = {
        {'a', "LX"},  {'Z', "LX"},     {0xe4, "LX"}, {0x0416, "LX"}, {0x05d0, "LX"},
        {'5', "DNX"}, {0x0663, "DNX"}, {0xb2, "NX"}, {'.', "PX"},    {'_', "PX"},
        {'(', "PX"},  {'+', "SX"},     {'<', "SX"},  {0x20ac, "SX"}, {' ', "BX"},
        {'\t', "B"},  {'\n', "B"},     {7, ""},      {0, ""},        {0x0301, "MX"},
    };
    for (const auto& each : cases) {
        const QChar c(each.code);
        const std::string classes = std::string(c.isLetter() ? "L" : "") + (c.isDigit() ? "D" : "") +
                                    (c.isNumber() ? "N" : "") + (c.isMark() ? "M" : "");
        SCOPED_TRACE(each.code);
        const std::string expected(each.classes);
        const auto expects = [&](char kind) { return expected.find(kind) != std::string::npos; };
        EXPECT_EQ(expects('L'), c.isLetter());
        EXPECT_EQ(expects('D'), c.isDigit());
        EXPECT_EQ(expects('N'), c.isNumber());
        EXPECT_EQ(expects('L') || expects('N'), c.isLetterOrNumber());
        EXPECT_EQ(expects('B'), c.isSpace());
        EXPECT_EQ(expects('M'), c.isMark());
        EXPECT_EQ(expects('X'), c.isPrint());
        if (each.code < 0x80) {
            EXPECT_EQ(expects('P'), c.isPunct());
            EXPECT_EQ(expects('S'), c.isSymbol());
        }
    }
    EXPECT_TRUE(QChar(0xa0).isSpace());
}

TEST(Char, DigitsHaveValues)
{
    EXPECT_EQ(5, QChar('5').digitValue());
    EXPECT_EQ(3, QChar(0x0663).digitValue());
    EXPECT_EQ(-1, QChar('a').digitValue());
}

TEST(Char, Case)
{
    EXPECT_EQ('A', QChar('a').upper().latin1());
    EXPECT_EQ('q', QChar('Q').lower().latin1());
    EXPECT_EQ(0x0436, QChar(0x0416).lower().unicode());
    EXPECT_EQ(0xdf, QChar(0xdf).upper().unicode()) << "no single capital";
    EXPECT_EQ('1', QChar('1').upper().latin1());
}

TEST(Char, Codes)
{
    const QChar euro(0x20ac);
    EXPECT_EQ(0, euro.latin1());
    EXPECT_EQ(0xac, euro.cell());
    EXPECT_EQ(0x20, euro.row());
    EXPECT_EQ(0x20ac, QChar(uchar(0xac), uchar(0x20)).unicode());
    EXPECT_TRUE(QChar().isNull());
    EXPECT_TRUE(QChar::null.isNull());
    EXPECT_EQ(0xfffd, QChar::replacement.unicode());
    EXPECT_EQ(0xe4, QChar('\xe4').unicode()) << "a char is Latin-1";
    QChar changed('a');
    changed.setRow(1);
    changed.setCell(2);
    EXPECT_EQ(0x0102, changed.unicode());
}

TEST(Char, Comparing)
{
    const QChar c('a');
    EXPECT_TRUE(c == 'a' && 'a' == c && c != 'b' && c < QChar('b') && c <= 'a' && 'b' > c && c >= 'a');
    EXPECT_FALSE(QChar(0x0161) == 'a');
}
