// Text at points and in rectangles.
#include "sheet.h"

#include <gtest/gtest.h>
#include <qfontmetrics.h>

namespace
{

// The smallest rectangle with all that is not white.
QRect inkOf(const Pixels& pixels)
{
    QRect box;
    for (int y = 0; y < pixels.height(); ++y)
        for (int x = 0; x < pixels.width(); ++x)
            if (pixels.at(x, y) != 0xffffff)
                box |= QRect(x, y, 1, 1);
    return box;
}

QRect inkOfText(const QRect& rect, int flags, const QString& text)
{
    Sheet sheet(100, 60);
    sheet.painter.drawText(rect, flags, text);
    return inkOf(sheet.pixels());
}

const QRect place(10, 10, 80, 40);

} // namespace

TEST(PainterText, StandsOnItsBaseLine)
{
    Sheet sheet(60, 30);
    sheet.painter.drawText(5, 20, "HH");
    const QRect ink = inkOf(sheet.pixels());
    EXPECT_EQ(19, ink.bottom());
    EXPECT_GE(ink.left(), 5);
    EXPECT_LE(ink.left(), 7);
}

TEST(PainterText, HasThePensColour)
{
    Sheet sheet(60, 30);
    sheet.painter.setPen(Qt::red);
    sheet.painter.drawText(QPoint(5, 20), "HH");
    const Pixels pixels = sheet.pixels();
    EXPECT_GT(pixels.count(0xff0000), 5);
    for (int x = 0; x < 60; ++x)
        for (int y = 0; y < 30; ++y)
            EXPECT_EQ(0xff0000u, pixels.at(x, y) & 0xff0000);
}

TEST(PainterText, MayBeTheFirstLettersOnly)
{
    Sheet part(60, 30);
    Sheet whole(60, 30);
    part.painter.drawText(5, 20, "Hello", 2);
    whole.painter.drawText(5, 20, "He");
    EXPECT_EQ(whole.pixels(), part.pixels());
    Sheet middle(60, 30);
    Sheet wanted(60, 30);
    middle.painter.drawText(5, 20, "Hello", 1, 3);
    wanted.painter.drawText(5, 20, "ell");
    EXPECT_EQ(wanted.pixels(), middle.pixels());
}

TEST(PainterText, IsAlignedInItsRectangle)
{
    const QRect left = inkOfText(place, Qt::AlignLeft | Qt::AlignTop, "Text");
    const QRect right = inkOfText(place, Qt::AlignRight | Qt::AlignTop, "Text");
    const QRect centre = inkOfText(place, Qt::AlignCenter, "Text");
    const QRect bottom = inkOfText(place, Qt::AlignLeft | Qt::AlignBottom, "Text");
    EXPECT_LE(left.left(), 13);
    EXPECT_GE(right.right(), 86);
    EXPECT_EQ(left.y(), right.y());
    EXPECT_EQ(left.x(), bottom.x());
    EXPECT_EQ(left.size(), centre.size());
    EXPECT_NEAR(place.center().x(), centre.center().x(), 1);
    EXPECT_GT(bottom.top(), centre.top());
    EXPECT_GT(centre.top(), left.top());
}

TEST(PainterText, TellsWhatItTakesUp)
{
    Sheet sheet(100, 60);
    const QFontMetrics metrics = sheet.painter.fontMetrics();
    QRect taken;
    sheet.painter.drawText(place, Qt::AlignCenter, "Text", -1, &taken);
    EXPECT_EQ(taken, sheet.painter.boundingRect(place, Qt::AlignCenter, "Text"));
    EXPECT_EQ(metrics.height(), taken.height());
    EXPECT_GE(taken.width(), metrics.width("Text"));
    EXPECT_TRUE(taken.contains(inkOf(sheet.pixels())));
}

TEST(PainterText, IsCutOffAtItsRectangle)
{
    const QRect narrow(30, 10, 20, 40);
    EXPECT_TRUE(narrow.contains(inkOfText(narrow, Qt::AlignCenter, "Very wide text")));
    const QRect free = inkOfText(narrow, Qt::AlignCenter | Qt::DontClip, "Very wide text");
    EXPECT_LT(free.left(), narrow.left());
    EXPECT_GT(free.right(), narrow.right());
}

TEST(PainterText, InEmptyOrInvertedRectanglesIsNotDrawn)
{
    const QRect rects[] = {QRect(20, 20, 0, 0), QRect(60, 40, 0, 10), QRect(20, 40, 40, 0),
                           QRect(80, 40, -60, -30), QRect(QPoint(80, 50), QPoint(20, 5))};
    for (const QRect& rect : rects)
        EXPECT_TRUE(inkOfText(rect, Qt::AlignCenter, "Text").isNull());
}

TEST(PainterText, BreaksLines)
{
    const int height = Sheet(1, 1).painter.fontMetrics().height();
    EXPECT_LT(inkOfText(place, Qt::AlignLeft, "two lines of words").height(), height);
    EXPECT_GT(inkOfText(place, Qt::AlignLeft | Qt::WordBreak, "two lines of words").height(), height);
    EXPECT_GT(inkOfText(place, Qt::AlignLeft, "two\nlines").height(), height);
    EXPECT_LT(inkOfText(place, Qt::AlignLeft | Qt::SingleLine, "two\nlines").height(), height);
}

TEST(PainterText, UnderlinesShortcuts)
{
    Sheet plain(100, 60);
    Sheet marked(100, 60);
    plain.painter.drawText(place, Qt::AlignLeft, "HH");
    marked.painter.drawText(place, Qt::AlignLeft | Qt::ShowPrefix, "&HH");
    const QRect plainInk = inkOf(plain.pixels());
    const QRect markedInk = inkOf(marked.pixels());
    EXPECT_EQ(plainInk.top(), markedInk.top());
    EXPECT_GT(markedInk.bottom(), plainInk.bottom());
}

TEST(PainterText, HasLines)
{
    QFont font("DejaVu Sans", 12);
    Sheet plain(60, 40);
    plain.painter.setFont(font);
    plain.painter.drawText(5, 25, "HH");
    const QRect ink = inkOf(plain.pixels());
    font.setUnderline(true);
    Sheet under(60, 40);
    under.painter.setFont(font);
    under.painter.drawText(5, 25, "HH");
    EXPECT_GT(inkOf(under.pixels()).bottom(), ink.bottom());
    font.setUnderline(false);
    font.setOverline(true);
    Sheet over(60, 40);
    over.painter.setFont(font);
    over.painter.drawText(5, 25, "HH");
    EXPECT_LT(inkOf(over.pixels()).top(), ink.top());
}

TEST(PainterText, LiesOnItsBackgroundInOpaqueMode)
{
    Sheet sheet(60, 40);
    sheet.painter.setBackgroundColor(Qt::yellow);
    sheet.painter.setBackgroundMode(Qt::OpaqueMode);
    sheet.painter.drawText(5, 25, "HH");
    const QFontMetrics metrics(sheet.painter.font());
    EXPECT_EQ(QRect(5, 25 - metrics.ascent(), metrics.width("HH"), metrics.height()), inkOf(sheet.pixels()));
}

TEST(PainterText, GoesToTabStops)
{
    Sheet sheet(100, 60);
    sheet.painter.setTabStops(50);
    sheet.painter.drawText(QRect(0, 0, 100, 60), Qt::AlignLeft | Qt::ExpandTabs, "\tH");
    EXPECT_GE(inkOf(sheet.pixels()).left(), 50);
    EXPECT_LE(inkOf(sheet.pixels()).left(), 54);
    Sheet other(100, 60);
    int places[] = {30, 70, 0};
    other.painter.setTabArray(places);
    places[0] = 1; // a copy was taken
    other.painter.drawText(QRect(0, 0, 100, 60), Qt::AlignLeft | Qt::ExpandTabs, "\tH");
    EXPECT_GE(inkOf(other.pixels()).left(), 30);
    EXPECT_LE(inkOf(other.pixels()).left(), 34);
}

TEST(PainterText, OfAMegabyteTheBeginningIsSeen)
{
    QString text;
    text.fill('x', 1 << 20);
    Sheet all(100, 40), beginning(100, 40);
    all.painter.drawText(5, 25, text);
    beginning.painter.drawText(5, 25, text.left(50));
    EXPECT_EQ(beginning.pixels().differenceFrom(all.pixels()), "");
}
