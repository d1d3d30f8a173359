// What fonts ask for.
#include "messages.h"
#include "printers.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qfont.h>
#include <qfontmetrics.h>

#include <limits>

namespace
{

// A font of a static object is made before any QApplication.
const QFont early("DejaVu Serif", 14);
const QFont earliest;

} // namespace

TEST(Font, AsksForHelvetica12AtFirst)
{
    EXPECT_STREQ("Helvetica", earliest.family().latin1());
    EXPECT_EQ(12, earliest.pointSize());
    EXPECT_EQ(QFont::Normal, earliest.weight());
    EXPECT_EQ(QFont::AnyStyle, earliest.styleHint());
    EXPECT_EQ(14, early.pointSize());
    EXPECT_EQ(23, QFontMetrics(early).height());
}

TEST(Font, IsTheApplicationsFontWithoutArguments)
{
    EXPECT_TRUE(QFont() == QApplication::font());
    EXPECT_STREQ("DejaVu Sans", QFont().family().latin1());
    EXPECT_EQ(10, QFont().pointSize());
}

TEST(Font, SizesBelowOneBecomeTwelve)
{
    EXPECT_EQ(12, QFont("DejaVu Sans").pointSize());
    EXPECT_EQ(12, QFont("DejaVu Sans", 0).pointSize());
    EXPECT_EQ(12, QFont("DejaVu Sans", -3).pointSize());
    EXPECT_EQ(1, QFont("DejaVu Sans", 1).pointSize());
}

TEST(Font, SizesCountPointsOrPixels)
{
    QFont font("DejaVu Sans", 10);
    EXPECT_EQ(-1, font.pixelSize());
    font.setPixelSize(19);
    EXPECT_EQ(19, font.pixelSize());
    EXPECT_EQ(-1, font.pointSize());
    font.setPointSizeFloat(11.5F);
    EXPECT_EQ(12, font.pointSize());
    EXPECT_FLOAT_EQ(11.5F, font.pointSizeFloat());
    EXPECT_EQ(-1, font.pixelSize());
}

TEST(Font, WrongSizesWarnAndChangeNothing)
{
    QFont font("DejaVu Sans", 23);
    font.setPointSize(0);
    font.setPixelSize(0);
    EXPECT_EQ("QFont::setPointSize: Point size <= 0 (0)\nQFont::setPixelSize: Pixel size <= 0 (0)\n",
              takeMessages());
    EXPECT_EQ(23, font.pointSize());
    EXPECT_EQ(-1, font.pixelSize());
}

TEST(Font, WeightsAbove50AreBold)
{
    QFont font("DejaVu Sans", 10);
    font.setBold(true);
    EXPECT_EQ(QFont::Bold, font.weight());
    font.setBold(false);
    EXPECT_EQ(QFont::Normal, font.weight());
    EXPECT_FALSE(font.bold());
    font.setWeight(51);
    EXPECT_TRUE(font.bold());
    font.setWeight(QFont::Light);
    EXPECT_FALSE(font.bold());
    font.setWeight(120);
    EXPECT_EQ("QFont::setWeight: Value out of range (120)\n", takeMessages());
    EXPECT_EQ(QFont::Light, font.weight());
}

TEST(Font, KeepsItsDecorations)
{
    QFont font("DejaVu Sans", 10);
    font.setItalic(true);
    font.setUnderline(true);
    font.setStrikeOut(true);
    font.setOverline(true);
    font.setFixedPitch(true);
    font.setStyleHint(QFont::Times, QFont::NoAntialias);
    EXPECT_TRUE(font.italic());
    EXPECT_TRUE(font.underline());
    EXPECT_TRUE(font.strikeOut());
    EXPECT_TRUE(font.overline());
    EXPECT_TRUE(font.fixedPitch());
    EXPECT_EQ(QFont::Times, font.styleHint());
    EXPECT_EQ(QFont::NoAntialias, font.styleStrategy());
    font.setStyleStrategy(QFont::PreferDefault);
    EXPECT_EQ(QFont::Times, font.styleHint());
    EXPECT_EQ(QFont::PreferDefault, font.styleStrategy());
}

TEST(Font, CopiesShareUntilOneChanges)
{
    const QFont font("DejaVu Sans", 10);
    QFont copy(font);
    EXPECT_TRUE(copy.isCopyOf(font));
    copy.setItalic(true);
    EXPECT_FALSE(font.italic());
    EXPECT_FALSE(copy.isCopyOf(font));
    EXPECT_TRUE(copy != font);
    copy.setItalic(false);
    EXPECT_TRUE(copy == font);
    EXPECT_FALSE(QFont("dejavu sans", 10) == font);
}

TEST(Font, CanBeWrittenAndRead)
{
    QFont font("DejaVu Sans", 10);
    EXPECT_STREQ("DejaVu Sans,10,-1,5,50,0,0,0,0,0", font.toString().latin1());
    EXPECT_EQ(font.toString(), font.key());
    font.setPixelSize(19);
    font.setStyleHint(QFont::Courier);
    font.setItalic(true);
    font.setUnderline(true);
    font.setFixedPitch(true);
    QFont read;
    EXPECT_TRUE(read.fromString(font.toString()));
    EXPECT_TRUE(read == font);
    EXPECT_TRUE(read.fromString("DejaVu Serif,14,-1,5,75,1,0,0,0,0"));
    EXPECT_STREQ("DejaVu Serif", read.family().latin1());
    EXPECT_EQ(14, read.pointSize());
    EXPECT_EQ(75, read.weight());
    EXPECT_TRUE(read.italic());
}

TEST(Font, DoesNotReadOtherTexts)
{
    QFont font("DejaVu Sans", 10);
    EXPECT_FALSE(font.fromString("DejaVu Serif,14"));
    EXPECT_NE("", takeMessages());
    EXPECT_STREQ("DejaVu Sans", font.family().latin1());
}

TEST(Font, SubstitutesOtherFamilies)
{
    EXPECT_STREQ("absent", QFont::substitute("absent").latin1());
    EXPECT_TRUE(QFont::substitutes("absent").isEmpty());
    QStringList families;
    families << "DejaVu Sans Mono"
             << "DejaVu Serif"
             << "DejaVu Sans Mono";
    QFont::insertSubstitutions("Absent", families);
    EXPECT_STREQ("DejaVu Sans Mono", QFont::substitute("absent").latin1());
    EXPECT_EQ(2u, QFont::substitutes("ABSENT").count());
    EXPECT_TRUE(QFont::substitutions().contains("absent"));
    EXPECT_EQ(10 * 11, QFontMetrics(QFont("absent", 12)).width("Sample Text"));
    QFont::removeSubstitution("absent");
    EXPECT_TRUE(QFont::substitutes("absent").isEmpty());
    EXPECT_NE(10 * 11, QFontMetrics(QFont("absent", 12)).width("Sample Text"));
}

TEST(Font, TellsTheFamilyOfItsStyle)
{
    QFont font("absent", 12);
    EXPECT_STREQ("Helvetica", font.defaultFamily().latin1());
    font.setStyleHint(QFont::Times);
    EXPECT_STREQ("Times", font.defaultFamily().latin1());
    font.setStyleHint(QFont::Courier);
    EXPECT_STREQ("Courier", font.defaultFamily().latin1());
    EXPECT_STREQ("Helvetica", font.lastResortFamily().latin1());
}

TEST(Font, OpenPropertiesComeFromAnother)
{
    QFont open;
    open.setBold(true);
    const QFont resolved = open.resolve(QFont("DejaVu Serif", 20, QFont::Light, true));
    EXPECT_STREQ("DejaVu Serif", resolved.family().latin1());
    EXPECT_EQ(20, resolved.pointSize());
    EXPECT_EQ(QFont::Bold, resolved.weight());
    EXPECT_TRUE(resolved.italic());
}

TEST(Font, SizesThatAreNoNumbersAreRefused)
{
    QFont font("Helvetica", 12);
    for (const float size : {std::numeric_limits<float>::quiet_NaN(), -1e30F, 0.0F}) {
        font.setPointSizeFloat(size);
        EXPECT_NE("", takeMessages()) << size;
        font.setPixelSizeFloat(size);
        EXPECT_NE("", takeMessages()) << size;
    }
    EXPECT_EQ(QFont("Helvetica", 12), font);
    font.setPixelSizeFloat(1e30F);
    EXPECT_EQ(std::numeric_limits<int>::max(), font.pixelSize());
}

TEST(Font, AHintThatDoesNotExistIsNone)
{
    QFont font;
    for (const char* text : {"DejaVu Sans,12,-1,99,50,0,0,0,0,0", "DejaVu Sans,12,-1,-1,50,0,0,0,0,0"}) {
        EXPECT_TRUE(font.fromString(text));
        EXPECT_EQ(QFont::AnyStyle, font.styleHint()) << text;
    }
}
