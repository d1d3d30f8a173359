// Numbers in strings: written, read, and put into places of a text.
#include "messages.h"
#include "printers.h"

#include <gtest/gtest.h>
#include <qstring.h>

#include <climits>
#include <clocale>
#include <limits>

TEST(StringNumbers, AreWritten)
{
    const std::string allOnes(2 * sizeof(long), 'f');
    QString text;
    const struct {
        QString result;
        std::string expected;
    } cases[] = {
        {QString::number(42), "42"},
        {QString::number(-7), "-7"},
        {QString::number(255, 16), "ff"},
        {QString::number(5, 2), "101"},
        {QString::number(35, 36), "z"},
        {QString::number(4000000000u), "4000000000"},
        {QString::number(0), "0"},
        {QString::number(Q_LLONG(LLONG_MIN)), "-9223372036854775808"},
        {QString::number(Q_ULLONG(ULLONG_MAX)), "18446744073709551615"},
        {QString::number(1.5), "1.5"},
        {QString::number(1e10), "1e+10"},
        {QString::number(3.14159265, 'f', 3), "3.142"},
        {QString::number(0.00001234, 'e', 2), "1.23e-05"},
        {QString::number(100000.0, 'g', 3), "1e+05"},
        {QString::number(1234567L), "1234567"},
        {text.setNum(-1, 16), allOnes},
        {text.setNum(2.5, 'f', 1), "2.5"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(each.expected, each.result.latin1());
}

TEST(StringNumbers, AreRead)
{
    // What cannot be read is 0; `good` tells of toInt, toUInt and toDouble in turn.
    const struct {
        const char* text;
        int number;
        uint positive;
        double real;
        const char* good;
    } cases[] = {
        {"12", 12, 12, 12, "iud"},
        {" 12", 12, 12, 12, "iud"},
        {"12 ", 12, 12, 12, "iu"},
        {"-5", -5, 0, -5, "id"},
        {"+5", 5, 5, 5, "iud"},
        {"12a", 0, 0, 0, ""},
        {"a", 0, 0, 0, ""},
        {"", 0, 0, 0, ""},
        {" ", 0, 0, 0, ""},
        {"-", 0, 0, 0, ""},
        {"0x1f", 0, 0, 0, ""},
        {"2147483647", 2147483647, 2147483647u, 2147483647.0, "iud"},
        {"2147483648", 0, 2147483648u, 2147483648.0, "ud"},
        {"4294967295", 0, 4294967295u, 4294967295.0, "ud"},
        {"4294967296", 0, 0, 4294967296.0, "d"},
        {"-2147483648", INT_MIN, 0, -2147483648.0, "id"},
        {"99999999999999999999", 0, 0, 1e20, "d"},
        {"1.5", 0, 0, 1.5, "d"},
        {"1e3", 0, 0, 1000, "d"},
        {".5", 0, 0, 0.5, "d"},
        {"1,5", 0, 0, 0, ""},
        {"007", 7, 7, 7, "iud"},
        {"- 5", 0, 0, 0, ""},
        {"--5", 0, 0, 0, ""},
        {"inf", 0, 0, std::numeric_limits<double>::infinity(), "d"},
        {"-inf", 0, 0, -std::numeric_limits<double>::infinity(), "d"},
        {"-154E364", 0, 0, -std::numeric_limits<double>::infinity(), "d"},
    };
    for (const auto& each : cases) {
        const QString text(each.text);
        bool number, positive, real;
        EXPECT_EQ(each.number, text.toInt(&number)) << each.text;
        EXPECT_EQ(each.positive, text.toUInt(&positive)) << each.text;
        EXPECT_DOUBLE_EQ(each.real, text.toDouble(&real)) << each.text;
        EXPECT_EQ(std::string(each.good),
                  std::string(number ? "i" : "") + (positive ? "u" : "") + (real ? "d" : ""))
            << each.text;
    }
    EXPECT_EQ(0, QString::null.toInt());
}

TEST(StringNumbers, AreReadInOtherBasesAndTypes)
{
    bool good;
    EXPECT_EQ(31, QString("1f").toLong(&good, 16));
    EXPECT_EQ(31, QString("0x1F").toInt(0, 16));
    EXPECT_EQ(-5, QString("-5").toLong(0, 16));
    EXPECT_EQ(5, QString("101").toInt(0, 2));
    EXPECT_EQ(1295, QString("zz").toInt(0, 36));
    EXPECT_EQ(0, QString("12").toInt(&good, 2));
    EXPECT_FALSE(good);
    EXPECT_EQ(123, QString("123").toShort());
    EXPECT_EQ(0, QString("40000").toShort(&good));
    EXPECT_FALSE(good);
    EXPECT_EQ(0, QString("70000").toUShort());
    EXPECT_EQ(99ul, QString("99").toULong());
    EXPECT_FLOAT_EQ(2.5f, QString("2.5").toFloat());
    EXPECT_EQ(LLONG_MIN, QString("-9223372036854775808").toLongLong());
    EXPECT_EQ(ULLONG_MAX, QString("18446744073709551615").toULongLong());
    QString("2147483648").toLong(&good);
    EXPECT_EQ(sizeof(long) > 4, good);
}

TEST(StringNumbers, ArgumentsGoToTheLowestPlace)
{
    const struct {
        QString result;
        const char* expected;
    } cases[] = {
        {QString("%1 of %2").arg(3).arg("x"), "3 of x"},
        {QString("%2 %1").arg("a").arg("b"), "b a"},
        {QString("%1%1 %3").arg("a"), "a%1 %3"},
        {QString("%9 %3").arg(1).arg(2), "2 1"},
        {QString("%10 %1").arg("a"), "a0 %1"},
        {QString("%1 %2").arg("%2").arg("z"), "z %2"},
        {QString("%1").arg(5, 4), "   5"},
        {QString("%1").arg(-3, 5), "   -3"},
        {QString("%1|").arg("ab", -5), "ab   |"},
        {QString("%1").arg(255, 6, 16), "    ff"},
        {QString("%1").arg(1.25, 8, 'f', 1), "     1.2"},
        {QString("%1").arg('c'), "c"},
        {QString("%1").arg(QChar('d')), "d"},
        {QString("100% %1 %").arg(1), "100% 1 %"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(each.expected, each.result);
    EXPECT_EQ("", takeMessages());
}

TEST(StringNumbers, SeveralArgumentsAtOnceDoNotDisturbEachOther)
{
    EXPECT_EQ("x-y", QString("%1-%2").arg("x", "y"));
    EXPECT_EQ("%2-%1", QString("%1-%2").arg("%2", "%1"));
    EXPECT_EQ("c b a", QString("%3 %2 %1").arg("a", "b", "c"));
    EXPECT_EQ("abcd", QString("%1%2%3%4").arg("a", "b", "c", "d"));
    EXPECT_EQ("", takeMessages());
}

TEST(StringNumbers, AnArgumentWithoutPlaceWarns)
{
    EXPECT_EQ("nothing", QString("nothing").arg(1));
    EXPECT_EQ("QString::arg(): Argument missing: nothing, 1\n", takeMessages());
}

TEST(StringNumbers, Formatting)
{
    QString text("old");
    EXPECT_EQ(&text, &text.sprintf("new"));
    EXPECT_EQ("new", text);
    EXPECT_EQ("5 abc z  3.14 ff %", text.sprintf("%d %s %c %5.2f %x %%", 5, "abc", 'z', 3.14159, 255));
    EXPECT_EQ("007|ab    |    cd|+9", text.sprintf("%03d|%-6s|%6s|%+d", 7, "ab", "cd", 9));
    EXPECT_EQ("abc|    q|0xab|    42", text.sprintf("%.3s|%5c|%#x|%*d", "abcdef", 'q', 171, 6, 42));
    EXPECT_EQ("\xfc", text.sprintf("%s", "\xc3\xbc")) << "texts are UTF-8";
    text.sprintf("%s", "");
    EXPECT_FALSE(text.isNull());
    const std::string big(10000, 'x');
    EXPECT_EQ(big, std::string(text.sprintf("%s", big.c_str())));
}

TEST(StringNumbers, DoNotFollowTheLocale)
{
    const std::string before = setlocale(LC_NUMERIC, 0);
    setlocale(LC_NUMERIC, "de_DE.UTF-8"); // where it is installed
    EXPECT_EQ("1.5", QString::number(1.5));
    EXPECT_DOUBLE_EQ(1.5, QString("1.5").toDouble());
    setlocale(LC_NUMERIC, before.c_str());
}

TEST(StringNumbers, OfBasesAndFormatsThatDoNotExistAreTextAllTheSame)
{
    for (const int base : {-10, 0, 1, 37, 99}) {
        EXPECT_EQ("5", QString::number(5, base)) << base;
        EXPECT_EQ("4000000000", QString::number(4000000000u, base)) << base;
        bool good = true;
        EXPECT_EQ(0, QString("x").toInt(&good, base)) << base;
        EXPECT_FALSE(good) << base;
    }
    for (const char format : {'s', 'n', 'd', 'x', '%', '\0'})
        EXPECT_EQ("1.5", QString::number(1.5, format)) << format;
    EXPECT_EQ(1002u, QString::number(1.5, 'f', 1000).length());
    EXPECT_EQ(10002u, QString::number(1.5, 'f', std::numeric_limits<int>::max()).length());
}
