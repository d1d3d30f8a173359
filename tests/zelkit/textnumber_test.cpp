// Numbers read from texts.
#include "../../src/textnumber.h"

#include <gtest/gtest.h>

TEST(TextNumber, IsWhatTheTextBeginsWith)
{
    const struct {
        const char* text;
        int number;
    } texts[] = {
        {"7", 7},
        {"07", 7},
        {"255", 255},
        {"-12", -12},
        {"+12", 12},
        {"  42 and more", 42},
        {"12-5", 12},
        {"0x10", 0},
        {"words", 0},
        {"", 0},
        {"-", 0},
        {"\t\n 3", 3},
        {"1.9", 1},
        {"- 5", 0},
        {"\xfc", 0},
        {"2147483647", INT_MAX},
        {"-2147483648", INT_MIN},
    };
    for (const auto& t : texts)
        EXPECT_EQ(leadingNumber(t.text), t.number) << t.text;
}

TEST(TextNumber, WhatIsTooLongIsTheLargestOrTheSmallest)
{
    for (const char* text : {"2147483648", "4294967297", "99999999999999999999999999"}) {
        EXPECT_EQ(leadingNumber(text), INT_MAX) << text;
        EXPECT_EQ(leadingNumber(QString("-") + text), INT_MIN) << text;
    }
    EXPECT_EQ(leadingNumber("2147483646"), INT_MAX - 1);
    EXPECT_EQ(leadingNumber("-2147483647"), INT_MIN + 1);
}

TEST(TextNumber, NoTextIsNone)
{
    EXPECT_EQ(leadingNumber(QString::null), 0);
    EXPECT_EQ(leadingNumber(QString(QChar(0x4e00))), 0);
}
