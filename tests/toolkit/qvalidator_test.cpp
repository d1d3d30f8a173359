// Validators of numbers: what may be typed, what is complete, what is refused.
#include <gtest/gtest.h>
#include <qvalidator.h>

#include <cmath>

namespace
{

char stateOf(const QValidator& validator, const char* text)
{
    QString input(text);
    int pos = static_cast<int>(input.length());
    switch (validator.validate(input, pos)) {
    case QValidator::Invalid:
        return '-';
    case QValidator::Intermediate:
        return '?';
    default:
        return '+';
    }
}

struct Case {
    const char* text;
    char state;
};

} // namespace

TEST(IntValidator, KnowsWhatMayBecomeANumberOfTheRange)
{
    const QIntValidator validator(10, 200, nullptr);
    const Case cases[] = {{"", '?'},    {" ", '?'},         {"5", '?'},   {"15", '+'},   {"200", '+'},
                          {"201", '-'}, {"010", '+'},       {" 15", '+'}, {"-", '-'},    {"-5", '-'},
                          {"+12", '+'}, {"+", '-'},         {"1a", '-'},  {"0x10", '-'}, {"1.5", '-'},
                          {"1 5", '-'}, {"2147483648", '-'}};
    for (const Case& each : cases)
        EXPECT_EQ(stateOf(validator, each.text), each.state) << each.text;
}

TEST(IntValidator, LetsNegativeNumbersGrowTowardsTheRange)
{
    const QIntValidator validator(-20, -10, nullptr);
    const Case cases[] = {{"-", '?'}, {"-1", '?'}, {"-10", '+'}, {"-20", '+'}, {"-21", '-'}, {"5", '-'}};
    for (const Case& each : cases)
        EXPECT_EQ(stateOf(validator, each.text), each.state) << each.text;
}

TEST(IntValidator, TakesAllNumbersWithoutARange)
{
    const QIntValidator validator(nullptr);
    EXPECT_EQ(stateOf(validator, "2147483647"), '+');
    EXPECT_EQ(stateOf(validator, "-2147483648"), '+');
    EXPECT_EQ(stateOf(validator, "-2147483649"), '-');
}

TEST(IntValidator, ChangesItsRange)
{
    QIntValidator validator(0, 9, nullptr);
    validator.setRange(3, 7);
    validator.setBottom(-4);
    validator.setTop(50);
    EXPECT_EQ(validator.bottom(), -4);
    EXPECT_EQ(validator.top(), 50);
}

TEST(DoubleValidator, LimitsRangeAndDecimals)
{
    const QDoubleValidator validator(-1.5, 2.5, 2, nullptr);
    const Case cases[] = {{"", '?'},     {"-", '?'},    {".", '?'},     {"-.", '?'},    {"0.", '+'},
                          {".5", '+'},   {"1.00", '+'}, {"1.000", '?'}, {"2.5", '+'},   {"2.55", '?'},
                          {"-1.6", '?'}, {"100", '?'},  {"1e", '+'},    {"1e1", '?'},   {"1e-1", '+'},
                          {"e5", '?'},   {"1 ", '-'},   {"1,5", '-'},   {"1.5.5", '-'}, {"a", '-'},
                          {"+1", '+'},   {"--1", '-'}};
    for (const Case& each : cases)
        EXPECT_EQ(stateOf(validator, each.text), each.state) << each.text;
}

TEST(DoubleValidator, RefusesAMinusWhereNothingIsNegative)
{
    const QDoubleValidator validator(0, 1, 0, nullptr);
    for (const char* text : {"-", "-.", "-1", "-1.5"})
        EXPECT_EQ(stateOf(validator, text), '-') << text;
    EXPECT_EQ(stateOf(validator, "0.5"), '?');
}

TEST(DoubleValidator, IsUnlimitedAtFirst)
{
    const QDoubleValidator validator(nullptr);
    EXPECT_TRUE(std::isinf(validator.bottom()));
    EXPECT_TRUE(std::isinf(validator.top()));
    EXPECT_EQ(validator.decimals(), 1000);
}
