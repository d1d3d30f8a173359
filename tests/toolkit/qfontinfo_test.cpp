// What was found for fonts.
#include "printers.h"

#include <gtest/gtest.h>
#include <qfontinfo.h>

#include <string>

namespace
{

std::string found(const QFont& font)
{
    const QFontInfo info(font);
    return std::string(info.family().latin1()) + ' ' + std::to_string(info.weight()) +
           (info.italic() ? " italic" : "") + (info.fixedPitch() ? " fixed" : "") +
           (info.exactMatch() ? " exact" : "");
}

} // namespace

// A family that was asked for comes with its foundry, a stand-in without.
TEST(FontInfo, TellsTheFamilyThatWasFound)
{
    EXPECT_EQ("DejaVu Sans [PfEd] 50 exact", found(QFont("DejaVu Sans", 8)));
    EXPECT_EQ("DejaVu Sans [PfEd] 50", found(QFont("dejavu sans", 8)));
    EXPECT_EQ("DejaVu Serif [PfEd] 75 italic exact", found(QFont("DejaVu Serif", 8, QFont::Bold, true)));
    EXPECT_EQ("DejaVu Sans Mono [PfEd] 50 fixed exact", found(QFont("DejaVu Sans Mono", 8)));
    EXPECT_EQ("DejaVu Sans 75", found(QFont("no such family", 8, QFont::Bold)));
    EXPECT_EQ("DejaVu Sans 50", found(QFont("Helvetica", 8)));
    EXPECT_EQ("DejaVu Sans Mono 50 fixed", found(QFont("monospace", 8)));
}

TEST(FontInfo, WeightsAreNormalOrBold)
{
    for (const int weight : {0, 25, 50, 55, 61, 63, 66, 75, 87, 99})
        EXPECT_EQ(weight < QFont::DemiBold ? 50 : 75, QFontInfo(QFont("DejaVu Sans", 12, weight)).weight())
            << weight;
}

TEST(FontInfo, AWeightBetweenTheFacesIsNoExactMatch)
{
    for (const int weight : {0, 25, 49, 50, 51, 63, 75, 76, 99}) {
        const QFont font("DejaVu Sans", 12, weight);
        EXPECT_EQ(weight == 50 || weight == 75, font.exactMatch()) << weight;
        EXPECT_EQ(font.exactMatch(), QFontInfo(font).exactMatch()) << weight;
    }
}

TEST(FontInfo, SizesAreWhatWasAskedFor)
{
    EXPECT_EQ(10, QFontInfo(QFont("DejaVu Sans", 10)).pointSize());
    EXPECT_EQ(14, QFontInfo(QFont("DejaVu Sans", 10)).pixelSize());
    QFont font("DejaVu Sans");
    font.setPixelSize(19);
    EXPECT_EQ(19, QFontInfo(font).pixelSize());
}

TEST(FontInfo, TellsDecorations)
{
    QFont font("DejaVu Sans");
    EXPECT_FALSE(QFontInfo(font).underline());
    font.setUnderline(true);
    font.setStrikeOut(true);
    font.setOverline(true);
    const QFontInfo info(font);
    EXPECT_TRUE(info.underline());
    EXPECT_TRUE(info.strikeOut());
    EXPECT_TRUE(info.overline());
    EXPECT_FALSE(info.bold());
}
