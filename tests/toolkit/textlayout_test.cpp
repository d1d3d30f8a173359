// The place of text in rectangles.
#include "pixels.h"
#include "printers.h"

#include <gtest/gtest.h>
#include <qfontmetrics.h>
#include <qpainter.h>
#include <qpixmap.h>

namespace
{

const char longText[] = "Some longer text to break";
const char twoLines[] = "two\nlines";

struct Placed {
    int flags;
    const char* text;
    QRect box;
};

const Placed placed[] = {
    {0, "Text", QRect(10, 20, 33, 17)},
    {0, longText, QRect(10, 20, 187, 17)},
    {0, twoLines, QRect(10, 20, 35, 35)},
    {0, "&File &&", QRect(10, 20, 64, 17)},
    {0, "a\tb", QRect(10, 20, 24, 17)},
    {0, "", QRect(10, 20, 2, 17)},
    {Qt::AlignHCenter, "Text", QRect(23, 20, 33, 17)},
    {Qt::AlignHCenter, longText, QRect(-53, 20, 187, 17)},
    {Qt::AlignHCenter, "", QRect(10, 20, 2, 17)},
    {Qt::AlignCenter, twoLines, QRect(22, 22, 35, 35)},
    {Qt::AlignLeft | Qt::AlignBottom, "Text", QRect(10, 43, 33, 17)},
    {Qt::AlignLeft | Qt::AlignBottom, twoLines, QRect(10, 25, 35, 35)},
    {Qt::AlignCenter | Qt::SingleLine, twoLines, QRect(8, 31, 64, 17)},
    {Qt::AlignCenter | Qt::ShowPrefix, "&File &&", QRect(19, 31, 42, 17)},
    {Qt::AlignLeft | Qt::WordBreak, longText, QRect(10, 20, 52, 71)},
    {Qt::AlignLeft | Qt::WordBreak, twoLines, QRect(10, 20, 35, 35)},
    {Qt::AlignLeft | Qt::WordBreak, "&File &&", QRect(10, 20, 42, 35)},
    {Qt::AlignCenter | Qt::WordBreak, longText, QRect(14, 5, 52, 71)},
    {Qt::ExpandTabs, "a\tb", QRect(10, 20, 75, 17)},
};

QFontMetrics metrics()
{
    return QFontMetrics(QFont("DejaVu Sans", 10));
}

// What is drawn of a text into (10, 10 80x40) of a white sheet.
class Sheet
{
public:
    Sheet() : sheet(100, 60) { sheet.fill(Qt::white); }

    QRect draw(int flags, const char* text, const QColor& color = Qt::black)
    {
        QPainter painter(&sheet);
        painter.setFont(QFont("DejaVu Sans", 10));
        painter.setPen(color);
        QRect box;
        painter.drawText(QRect(10, 10, 80, 40), flags, text, -1, &box);
        return box;
    }

    // The smallest rectangle around what is not white.
    QRect inked() const
    {
        const Pixels pixels = Pixels::of(sheet);
        QRect ink;
        for (int y = 0; y < pixels.height(); ++y)
            for (int x = 0; x < pixels.width(); ++x)
                if (pixels.at(x, y) != 0xffffff)
                    ink |= QRect(x, y, 1, 1);
        return ink;
    }

    QPixmap sheet;
};

} // namespace

TEST(TextLayout, AlignsAndBreaksLines)
{
    for (const Placed& each : placed)
        EXPECT_EQ(each.box, metrics().boundingRect(10, 20, 60, 40, each.flags, each.text))
            << each.flags << ' ' << each.text;
}

TEST(TextLayout, SizesAreThoseOfNoRoom)
{
    EXPECT_EQ(QSize(33, 17), metrics().size(0, "Text"));
    EXPECT_EQ(QSize(35, 35), metrics().size(0, twoLines));
    EXPECT_EQ(QSize(42, 17), metrics().size(Qt::ShowPrefix, "&File &&"));
    EXPECT_EQ(QSize(52, 89), metrics().size(Qt::WordBreak, longText));
    EXPECT_EQ(QSize(2, 17), metrics().size(0, ""));
    EXPECT_EQ(QSize(2, 17), metrics().size(0, "Text", 0));
}

TEST(TextLayout, TabStopsAreWhereTheProgramWants)
{
    const int b = metrics().width('b') + 2;
    EXPECT_EQ(40 + b, metrics().size(Qt::ExpandTabs, "a\tb", -1, 40).width());
    EXPECT_EQ(80 + b, metrics().size(Qt::ExpandTabs, "aaaaaa\tb", -1, 40).width());
    int stops[] = {30, 70, 0};
    EXPECT_EQ(30 + b, metrics().size(Qt::ExpandTabs, "a\tb", -1, 0, stops).width());
    EXPECT_EQ(70 + b, metrics().size(Qt::ExpandTabs, "a\t\tb", -1, 0, stops).width());
}

TEST(TextLayout, PaintersPlaceTextAlike)
{
    Sheet sheet;
    EXPECT_EQ(QRect(33, 21, 33, 17), sheet.draw(Qt::AlignCenter, "Text"));
    EXPECT_EQ(QRect(57, 33, 33, 17), sheet.draw(Qt::AlignRight | Qt::AlignBottom, "Text"));
    QPainter painter(&sheet.sheet);
    painter.setFont(QFont("DejaVu Sans", 10));
    EXPECT_EQ(QRect(57, 33, 33, 17),
              painter.boundingRect(QRect(10, 10, 80, 40), Qt::AlignRight | Qt::AlignBottom, "Text"));
}

TEST(TextLayout, StaysInsideTheRectangle)
{
    Sheet clipped;
    clipped.draw(Qt::AlignCenter, "A long text that is much wider than it");
    EXPECT_TRUE(QRect(10, 10, 80, 40).contains(clipped.inked()));
    Sheet free;
    free.draw(Qt::AlignCenter | Qt::DontClip, "A long text that is much wider than it");
    EXPECT_FALSE(QRect(10, 10, 80, 40).contains(free.inked()));
}

TEST(TextLayout, PrefixUnderlinesOneLetter)
{
    Sheet plain, marked, quiet;
    plain.draw(Qt::AlignLeft | Qt::AlignTop, "File");
    marked.draw(Qt::AlignLeft | Qt::AlignTop | Qt::ShowPrefix, "&File");
    quiet.draw(Qt::AlignLeft | Qt::AlignTop | Qt::ShowPrefix | Qt::NoAccel, "&File");
    EXPECT_EQ("", Pixels::of(plain.sheet).differenceFrom(Pixels::of(quiet.sheet)));
    const int row = 10 + metrics().ascent() + metrics().underlinePos();
    const Pixels before = Pixels::of(plain.sheet);
    const Pixels pixels = Pixels::of(marked.sheet);
    int changed = 0;
    for (int y = 0; y < pixels.height(); ++y)
        for (int x = 0; x < pixels.width(); ++x)
            if (pixels.at(x, y) != before.at(x, y)) {
                ++changed;
                EXPECT_EQ(row, y);
            }
    EXPECT_EQ(metrics().width('F'), changed);
}

TEST(TextLayout, DontPrintOnlyMeasures)
{
    Sheet sheet;
    EXPECT_EQ(QRect(33, 21, 33, 17), sheet.draw(Qt::AlignCenter | Qt::DontPrint, "Text"));
    EXPECT_TRUE(sheet.inked().isEmpty());
}
