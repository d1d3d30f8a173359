// How much room text takes, with the fonts of these tests on a screen of 100 dots per inch.
#include "printers.h"

#include <gtest/gtest.h>
#include <qfontmetrics.h>
#include <qwidget.h>

#include <string>

namespace
{

QFontMetrics sans10()
{
    return QFontMetrics(QFont("DejaVu Sans", 10));
}

// height ascent descent leading | widths | bearings | lines
std::string measures(const QFontMetrics& m)
{
    const int all[] = {
        m.height(),      m.ascent(),       m.descent(),        m.leading(),         m.width("Hello, World!"),
        m.width('i'),    m.maxWidth(),     m.minLeftBearing(), m.minRightBearing(), m.underlinePos(),
        m.overlinePos(), m.strikeOutPos(), m.lineWidth()};
    std::string text;
    for (const int each : all)
        text += (text.empty() ? "" : " ") + std::to_string(each);
    return text;
}

} // namespace

TEST(FontMetrics, FollowFamilySizeWeightAndSlant)
{
    const struct {
        const char* family;
        int size, weight;
        bool italic;
        const char* expected;
    } cases[] = {
        {"DejaVu Sans", 8, 50, false, "14 11 2 1 73 3 21 -1 -1 1 12 3 1"},
        {"DejaVu Sans", 8, 50, true, "14 11 2 1 73 3 21 0 -2 1 12 3 1"},
        {"DejaVu Sans", 8, 75, false, "14 11 2 1 82 4 22 -1 -1 1 12 3 1"},
        {"DejaVu Sans", 10, 25, false, "17 13 3 1 93 4 26 -1 -1 1 14 4 1"},
        {"DejaVu Sans", 10, 75, true, "17 13 3 1 105 5 28 0 -3 1 14 4 2"},
        {"DejaVu Sans", 18, 75, false, "30 24 5 1 187 9 50 -1 -2 1 25 8 2"},
        {"DejaVu Sans", 36, 50, false, "59 47 11 1 327 14 94 -1 -1 1 48 15 3"},
        {"DejaVu Sans", 96, 87, false, "156 124 31 1 987 46 268 -2 -5 5 125 41 14"},
        {"DejaVu Serif", 10, 50, false, "17 13 3 1 92 4 30 -1 -2 1 14 4 1"},
        {"DejaVu Serif", 10, 63, false, "18 14 3 1 104 5 27 -1 -1 1 15 4 2"},
        {"DejaVu Serif", 36, 75, true, "59 47 11 1 375 19 95 0 -10 2 48 15 5"},
        {"DejaVu Sans Mono", 8, 50, false, "14 11 2 1 91 7 7 0 0 1 12 3 1"},
        {"DejaVu Sans Mono", 18, 75, true, "30 24 5 1 195 15 15 0 -4 1 25 8 2"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(each.expected, measures(QFont(each.family, each.size, each.weight, each.italic)))
            << each.family << ' ' << each.size << ' ' << each.weight << ' ' << each.italic;
}

// Faces get the exact resolution, so that some letters of great sizes are a pixel wider.
TEST(FontMetrics, WidthsOfGreatSizes)
{
    EXPECT_EQ(171, QFontMetrics(QFont("DejaVu Sans", 36)).width("Cancel"));
    EXPECT_EQ(187, QFontMetrics(QFont("DejaVu Sans", 72)).width("Abc"));
    EXPECT_EQ(464, QFontMetrics(QFont("DejaVu Serif", 96)).width("Cancel"));
    const QFontMetrics huge(QFont("DejaVu Sans", 200));
    EXPECT_EQ(324, huge.height());
    EXPECT_EQ(258, huge.ascent());
    EXPECT_EQ(1746, huge.width("Sample Text"));
}

TEST(FontMetrics, PixelSizesAreWhole)
{
    const struct {
        int size, height, ascent, width;
    } cases[] = {{6, 8, 6, 24}, {11, 14, 11, 42}, {16, 19, 15, 60}, {26, 32, 25, 98}, {36, 43, 34, 135}};
    for (const auto& each : cases) {
        QFont font("DejaVu Sans");
        font.setPixelSize(each.size);
        const QFontMetrics metrics(font);
        EXPECT_EQ(each.height, metrics.height()) << each.size;
        EXPECT_EQ(each.ascent, metrics.ascent()) << each.size;
        EXPECT_EQ(each.width, metrics.width("Sample")) << each.size;
    }
}

TEST(FontMetrics, StandInsForFamiliesThatAreMissing)
{
    const struct {
        const char* family;
        int width;
    } cases[] = {{"Helvetica", 106}, {"Courier", 106},   {"sans-serif", 106},  {"", 106},
                 {"serif", 107},     {"monospace", 110}, {"DEJAVU SERIF", 107}};
    for (const auto& each : cases)
        EXPECT_EQ(each.width, QFontMetrics(QFont(each.family, 12)).width("Sample Text")) << each.family;
    QFont hinted("no such family", 12);
    hinted.setStyleHint(QFont::Times);
    EXPECT_EQ(107, QFontMetrics(hinted).width("Sample Text"));
    hinted.setStyleHint(QFont::Courier);
    EXPECT_EQ(110, QFontMetrics(hinted).width("Sample Text"));
}

TEST(FontMetrics, WidthsAddUp)
{
    const QFontMetrics metrics = sans10();
    EXPECT_EQ(0, metrics.width(""));
    EXPECT_EQ(0, metrics.width(QString::null));
    EXPECT_EQ(18, metrics.width("ab"));
    EXPECT_EQ(9, metrics.width("ab", 1));
    EXPECT_EQ(0, metrics.width("ab", 0));
    EXPECT_EQ(20, metrics.width("AV"));
    EXPECT_EQ(10, metrics.charWidth("AVA", 1));
    EXPECT_EQ(0, metrics.charWidth("AVA", 3));
    EXPECT_EQ(316, metrics.width("The quick brown fox jumps over the lazy dog"));
}

TEST(FontMetrics, LettersHaveBearingsAndBoxes)
{
    const struct {
        char letter;
        int width, left, right;
        QRect box;
    } cases[] = {
        {' ', 4, 0, 4, QRect(0, 0, 0, 0)},       {'!', 6, 2, 2, QRect(2, -10, 2, 10)},
        {'J', 4, -1, 1, QRect(-1, -10, 4, 13)},  {'K', 9, 1, -1, QRect(1, -10, 9, 10)},
        {'T', 9, -1, 0, QRect(-1, -10, 10, 10)}, {'_', 7, -1, -1, QRect(-1, 2, 9, 1)},
        {'a', 9, 0, 1, QRect(0, -8, 8, 8)},      {'f', 5, 0, -1, QRect(0, -11, 6, 11)},
    };
    const QFontMetrics metrics = sans10();
    for (const auto& each : cases) {
        EXPECT_EQ(each.width, metrics.width(each.letter)) << each.letter;
        EXPECT_EQ(each.left, metrics.leftBearing(each.letter)) << each.letter;
        EXPECT_EQ(each.right, metrics.rightBearing(each.letter)) << each.letter;
        EXPECT_EQ(each.box, metrics.boundingRect(QChar(each.letter))) << each.letter;
    }
}

TEST(FontMetrics, TextHasABox)
{
    const QFontMetrics metrics = sans10();
    EXPECT_EQ(QRect(0, 0, 0, 0), metrics.boundingRect(""));
    EXPECT_EQ(QRect(0, -11, 18, 11), metrics.boundingRect("ab"));
    EXPECT_EQ(QRect(1, -10, 74, 10), metrics.boundingRect("Demo text"));
    EXPECT_EQ(QRect(0, -10, 44, 13), metrics.boundingRect("&Amp"));
}

TEST(FontMetrics, MissingCharactersAreSquares)
{
    const QFontMetrics metrics = sans10();
    EXPECT_TRUE(metrics.inFont('a'));
    EXPECT_FALSE(metrics.inFont(QChar(ushort(0x4e2d))));
    EXPECT_EQ(14, metrics.width(QChar(ushort(0x4e2d))));
    EXPECT_EQ(9, metrics.width(QChar(ushort(0x20ac))));
}

TEST(FontMetrics, WidgetsHaveTheirFonts)
{
    QWidget widget;
    widget.setFont(QFont("DejaVu Serif", 14));
    EXPECT_EQ(23, widget.fontMetrics().height());
    EXPECT_EQ(69, widget.fontMetrics().width("Widget"));
}
