// Colours: from parts, names and hues, and made lighter or darker.
#include "messages.h"
#include "printers.h"

#include <gtest/gtest.h>
#include <qcolor.h>
#include <qnamespace.h>

#include <limits>
#include <string>

namespace
{

// A colour of a static object is made before any QApplication.
const QColor early("steelblue");

std::string hsvOf(const QColor& color)
{
    int h, s, v;
    color.hsv(&h, &s, &v);
    return std::to_string(h) + ' ' + std::to_string(s) + ' ' + std::to_string(v);
}

struct Step {
    int percent;
    const char* light;
    const char* dark;
};

void checkSteps(const QColor& base, const std::vector<Step>& steps)
{
    for (const Step& step : steps) {
        EXPECT_STREQ(step.light, base.light(step.percent).name().latin1()) << step.percent;
        EXPECT_STREQ(step.dark, base.dark(step.percent).name().latin1()) << step.percent;
    }
}

} // namespace

TEST(Color, IsInvalidAndBlackAtFirst)
{
    const QColor color;
    EXPECT_FALSE(color.isValid());
    EXPECT_STREQ("#000000", color.name().latin1());
    EXPECT_TRUE(color == QColor());
    EXPECT_TRUE(color == QColor("no such colour"));
    EXPECT_FALSE(color == Qt::black);
}

TEST(Color, OutOfRangePartsWarnAndChangeNothing)
{
    const std::string warning = "QColor::setRgb: RGB parameter(s) out of range\n";
    EXPECT_FALSE(QColor(300, 0, 0).isValid());
    EXPECT_EQ(warning, takeMessages());
    QColor color(40, 50, 60);
    color.setRgb(256, 0, 0);
    color.setRgb(0, -5, 0);
    EXPECT_EQ(warning + warning, takeMessages());
    EXPECT_EQ(QColor(40, 50, 60), color);
    color.setHsv(10, 300, 10);
    EXPECT_EQ("QColor::setHsv: HSV parameters out of range\n", takeMessages());
    EXPECT_EQ(QColor(40, 50, 60), color);
}

TEST(Color, KeepsTheAlphaPartOfANumber)
{
    const QColor color(qRgba(1, 2, 3, 128));
    EXPECT_EQ(0x80010203u, color.rgb());
    EXPECT_EQ(2, color.green());
    EXPECT_EQ(0xff010203u, QColor(1, 2, 3).rgb());
}

TEST(Color, FindsNames)
{
    const struct {
        const char* name;
        const char* value; // null: there is none
    } cases[] = {
        {"red", "#ff0000"},
        {"Red", "#ff0000"},
        {"green", "#00ff00"},
        {"darkGreen", "#006400"},
        {"light blue", "#add8e6"},
        {"LightSteelBlue", "#b0c4de"},
        {"steelblue4", "#36648b"},
        {"grey", "#bebebe"},
        {"gray0", "#000000"},
        {"gray50", "#7f7f7f"},
        {"grey100", "#ffffff"},
        {"navy", "#000080"},
        {"goldenrod", "#daa520"},
        {"antiquewhite", "#faebd7"},
        {"yellowgreen", "#9acd32"},
        {"gray101", nullptr},
        {"gray050", nullptr},
        {"steelblue5", nullptr},
        {"steelblue0", nullptr},
        {"steelblue11", nullptr},
        {"transparent", nullptr},
        {"rgb", nullptr},
        {"4", nullptr},
        {"", nullptr},
    };
    for (const auto& each : cases) {
        const QColor color(each.name);
        EXPECT_EQ(each.value != nullptr, color.isValid()) << each.name;
        EXPECT_STREQ(each.value ? each.value : "#000000", color.name().latin1()) << each.name;
    }
    EXPECT_EQ("", takeMessages());
    EXPECT_STREQ("#4682b4", early.name().latin1());
}

TEST(Color, ReadsHexadecimalNumbers)
{
    EXPECT_EQ(QColor(255, 0, 0), QColor("#f00"));
    EXPECT_EQ(QColor(1, 2, 254), QColor("#0102Fe"));
    EXPECT_EQ(QColor(255, 0, 255), QColor("#fff000fff"));
    EXPECT_EQ(QColor(0x12, 0x56, 0x9a), QColor("#123456789abc"));
    EXPECT_EQ("", takeMessages());
    for (const char* bad : {"#12", "#1234", "#gggggg", "#"}) {
        EXPECT_FALSE(QColor(bad).isValid()) << bad;
        EXPECT_EQ(std::string("QColor::setNamedColor: could not parse color '") + bad + "'\n",
                  takeMessages());
    }
}

TEST(Color, NullNamesAreValidBlack)
{
    const QColor color((QString()));
    EXPECT_TRUE(color.isValid());
    EXPECT_STREQ("#000000", color.name().latin1());
}

TEST(Color, UnknownNamesMakeItInvalid)
{
    QColor color(1, 2, 3);
    color.setNamedColor("bogus");
    EXPECT_FALSE(color.isValid());
}

TEST(Color, TurnsIntoHueSaturationAndValue)
{
    const struct {
        QColor color;
        const char* hsv;
    } cases[] = {
        {QColor(0, 0, 0), "-1 0 0"},          {QColor(160, 160, 164), "240 6 164"},
        {QColor(200, 100, 50), "20 191 200"}, {QColor(1, 2, 3), "210 170 3"},
        {QColor(9, 8, 7), "30 57 9"},         {QColor(255, 0, 255), "300 255 255"},
        {QColor(217, 7, 3), "1 251 217"},     {QColor(248, 8, 40), "352 247 248"},
        {QColor(36, 92, 76), "163 155 92"},   {QColor(102, 218, 130), "134 136 218"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(each.hsv, hsvOf(each.color)) << each.color.name().latin1();
}

TEST(Color, ComesFromHueSaturationAndValue)
{
    EXPECT_EQ(QColor(0, 200, 0), QColor(120, 255, 200, QColor::Hsv));
    EXPECT_EQ(QColor(200, 150, 100), QColor(30, 128, 200, QColor::Hsv));
    EXPECT_EQ(QColor(77, 77, 77), QColor(-1, 255, 77, QColor::Hsv));
    EXPECT_EQ(QColor(255, 170, 0), QColor(400, 255, 255, QColor::Hsv));
    for (int hue = 0; hue < 360; hue += 60)
        EXPECT_EQ(std::to_string(hue) + " 255 255", hsvOf(QColor(hue, 255, 255, QColor::Hsv)));
}

TEST(Color, GetsLighterAndDarker)
{
    checkSteps(QColor(200, 100, 50), {{0, "#c86432", "#c86432"},
                                      {-5, "#c86432", "#c86432"},
                                      {50, "#643219", "#ffe0d1"},
                                      {100, "#c86432", "#c86432"},
                                      {110, "#dc6e37", "#b55b2d"},
                                      {150, "#ff9e6d", "#854321"},
                                      {200, "#ffe0d1", "#643219"},
                                      {1000, "#ffffff", "#140a05"}});
    checkSteps(QColor(255, 255, 255), {{110, "#ffffff", "#e7e7e7"}, {150, "#ffffff", "#aaaaaa"}});
    checkSteps(QColor(0, 0, 0), {{300, "#000000", "#000000"}});
    EXPECT_STREQ("#ff7f7f", QColor(255, 0, 0).light().name().latin1());
    EXPECT_STREQ("#7f0000", QColor(255, 0, 0).dark().name().latin1());
}

TEST(Color, TheNamedConstantsAreThere)
{
    const struct {
        const QColor& color;
        QRgb value;
    } cases[] = {
        {Qt::color0, 0x01ffffff},     {Qt::color1, 0x01000000},   {Qt::black, 0xff000000},
        {Qt::white, 0xffffffff},      {Qt::darkGray, 0xff808080}, {Qt::gray, 0xffa0a0a4},
        {Qt::lightGray, 0xffc0c0c0},  {Qt::red, 0xffff0000},      {Qt::green, 0xff00ff00},
        {Qt::blue, 0xff0000ff},       {Qt::cyan, 0xff00ffff},     {Qt::magenta, 0xffff00ff},
        {Qt::yellow, 0xffffff00},     {Qt::darkRed, 0xff800000},  {Qt::darkGreen, 0xff008000},
        {Qt::darkBlue, 0xff000080},   {Qt::darkCyan, 0xff008080}, {Qt::darkMagenta, 0xff800080},
        {Qt::darkYellow, 0xff808000},
    };
    for (const auto& each : cases)
        EXPECT_EQ(each.value, each.color.rgb());
}

TEST(Color, PartsOfNumbers)
{
    EXPECT_EQ(0x10, qRed(0x80102030));
    EXPECT_EQ(0x20, qGreen(0x80102030));
    EXPECT_EQ(0x30, qBlue(0x80102030));
    EXPECT_EQ(0x80, qAlpha(0x80102030));
    EXPECT_EQ(18, qGray(10, 20, 30));
    EXPECT_EQ(0xff000103u, qRgb(256, 257, 3));
}

TEST(Color, PixelsOfATrueColorScreen)
{
    EXPECT_EQ(0x010203u, QColor(1, 2, 3).pixel() & 0xffffff);
    EXPECT_EQ(24, QColor::numBitPlanes());
    EXPECT_NE(0, QColor::maxColors());
}

TEST(Color, LightenedWithoutLimitIsWhite)
{
    checkSteps(QColor(10, 20, 30), {{std::numeric_limits<int>::max(), "#ffffff", "#000000"}});
}
