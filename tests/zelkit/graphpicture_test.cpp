// ZelGraph: the picture that it makes of its samples.
#include "graphpair.h"

#include <gtest/gtest.h>

#include <climits>

namespace
{

const unsigned ground = 0x000000;
const unsigned gridGreen = 0x009600;
const unsigned curveBlue = 0x0000dc;

// The rows of the inside of a graph that have grid lines, seen in the second column, and the columns, seen in
// the first free row above the bottom.
std::string gridLines(const Pixels& contents)
{
    std::string lines;
    for (int y = 0; y < contents.height(); ++y)
        if (contents.at(1, y) == gridGreen)
            lines += std::to_string(y) + " ";
    lines += "|";
    for (int x = 0; x < contents.width(); ++x)
        if (contents.at(x, contents.height() - 1) == gridGreen)
            lines += " " + std::to_string(x);
    return lines;
}

// The rows between which a column shows the curve, as "first-last", or "".
std::string curveAt(const Pixels& contents, int x)
{
    int first = -1, last = -1;
    for (int y = 0; y < contents.height(); ++y)
        if (contents.at(x, y) == curveBlue) {
            first = first < 0 ? y : first;
            last = y;
        }
    return first < 0 ? "" : std::to_string(first) + "-" + std::to_string(last);
}

} // namespace

TEST(GraphPicture, WithoutSamplesItShowsItsGrid)
{
    GraphPair pair;
    EXPECT_EQ(pair.difference(), "");
    EXPECT_EQ(gridLines(pair.contents()),
              "0 10 20 30 40 50 60 70 80 90 | "
              "11 21 31 41 51 61 71 81 91 101 111 121 131 141 151 161 171 181 191");
    EXPECT_EQ(pair.contents().at(0, 90), ground) << "the first column stays free";
    EXPECT_EQ(pair.contents().at(11, 0), gridGreen) << "only where the grid's lines cross";
    EXPECT_EQ(pair.contents().at(199, 50), gridGreen);
}

TEST(GraphPicture, TheFirstRowHasNoUprightLines)
{
    GraphPair pair;
    pair.setGraphParameters(0, 5, -1, 10);
    EXPECT_EQ(pair.contents().at(11, 0), ground);
    EXPECT_EQ(pair.contents().at(11, 1), gridGreen);
    EXPECT_EQ(pair.contents().at(11, 99), gridGreen);
    EXPECT_EQ(pair.difference(), "");
}

TEST(GraphPicture, GridsOfEveryKind)
{
    GraphPair pair;
    const struct {
        int count, step;
        const char* lines;
    } grids[] = {
        {-1, -1, "|"},
        {300, -1, "|"},
        {101, -1, "|"},
        {0, -1, "|"},
        {-2, -1, "|"},
        {INT_MIN, -1, "|"},
        {INT_MAX, -1, "|"},
        {1, -1, "0 |"},
        {3, -1, "1 34 67 |"},
        {30, -1,
         "1 4 7 10 13 16 19 22 25 28 31 34 37 40 43 46 49 52 55 58 61 64 67 70 73 76 79 82 85 88 91 94 97 |"},
        {26, 150,
         "1 4 7 10 13 16 19 22 25 28 31 34 37 40 43 46 49 52 55 58 61 64 67 70 73 76 79 82 85 88 91 94 97 | "
         "151"},
        {25, -1, "0 4 8 12 16 20 24 28 32 36 40 44 48 52 56 60 64 68 72 76 80 84 88 92 96 |"},
        {-1, 198, "| 199"},
        {-1, 199, "|"},
        {-1, INT_MAX, "|"},
        {-1, 0, "|"},
        {-1, -2, "|"},
        {-1, INT_MIN, "|"},
    };
    for (const auto& grid : grids) {
        pair.setGraphParameters(0, 5, grid.count, grid.step);
        EXPECT_EQ(gridLines(pair.contents()), grid.lines) << grid.count << ", " << grid.step;
        EXPECT_EQ(pair.difference(), "") << grid.count << ", " << grid.step;
    }
}

TEST(GraphPicture, SamplesComeInAtTheRight)
{
    GraphPair pair;
    pair.setGraphParameters(0, 5, -1, -1);
    for (const int sample : {5, 2, 4}) {
        pair.setValue(sample);
        EXPECT_EQ(pair.difference(), "") << "after " << sample;
    }
    // Each column joins the row before it to its own. The place before the first sample counts as the bottom.
    EXPECT_EQ(curveAt(pair.contents(), 196), "");
    EXPECT_EQ(curveAt(pair.contents(), 197), "0-99");
    EXPECT_EQ(curveAt(pair.contents(), 198), "0-60");
    EXPECT_EQ(curveAt(pair.contents(), 199), "20-60");
    pair.setValue(4);
    EXPECT_EQ(curveAt(pair.contents(), 199), "20-20");
}

TEST(GraphPicture, ASampleAtTheMinimumIsBelowThePicture)
{
    GraphPair pair;
    pair.setGraphParameters(0, 5, -1, -1);
    pair.setValue(0);
    EXPECT_EQ(pair.contents().count(curveBlue), 0);
    pair.setGraphParameters(0, 1000, -1, -1);
    pair.setValue(9); // not a full row
    EXPECT_EQ(pair.contents().count(curveBlue), 0);
    pair.setValue(10);
    EXPECT_EQ(curveAt(pair.contents(), 199), "99-99");
    EXPECT_EQ(pair.difference(), "");
}

TEST(GraphPicture, BarsStandOnTheBottom)
{
    GraphPair pair;
    pair.setGraphParameters(0, 5, -1, -1, true);
    for (const int sample : {3, 5, 0, 1})
        pair.setValue(sample);
    EXPECT_EQ(curveAt(pair.contents(), 196), "40-99");
    EXPECT_EQ(curveAt(pair.contents(), 197), "0-99");
    EXPECT_EQ(curveAt(pair.contents(), 198), "");
    EXPECT_EQ(curveAt(pair.contents(), 199), "80-99");
    EXPECT_EQ(pair.difference(), "");
}

TEST(GraphPicture, TheCurveLiesOverTheGrid)
{
    GraphPair pair;
    for (int i = 0; i < 30; ++i)
        pair.setValue(3);
    EXPECT_EQ(pair.contents().at(191, 40), curveBlue);
    EXPECT_EQ(pair.contents().at(191, 41), gridGreen);
    EXPECT_EQ(pair.difference(), "");
}

TEST(GraphPicture, EveryColourHasItsPlace)
{
    GraphPair pair;
    pair.setGraphParameters(0, 5, 10, 10, true, false, false, QColor(1, 2, 3), QColor(4, 5, 6),
                            QColor(7, 8, 9));
    pair.setValue(5);
    EXPECT_EQ(pair.contents().at(0, 0), 0x010203U);
    EXPECT_EQ(pair.contents().at(199, 55), 0x040506U);
    EXPECT_EQ(pair.contents().at(5, 90), 0x070809U);
    EXPECT_EQ(pair.difference(), "");
}

TEST(GraphPicture, FramesOfEveryKind)
{
    const struct {
        int style, lineWidth;
    } frames[] = {
        {QFrame::NoFrame, 1},
        {QFrame::Panel | QFrame::Sunken, 3},
        {QFrame::Box | QFrame::Plain, 1},
        {QFrame::Box | QFrame::Raised, 2},
        {QFrame::WinPanel | QFrame::Sunken, 1},
        {QFrame::StyledPanel | QFrame::Raised, 2},
    };
    for (const auto& frame : frames) {
        GraphPair pair;
        pair.setFrame(frame.style, frame.lineWidth);
        pair.resize(150, 90);
        for (int i = 0; i < 400; ++i) {
            pair.setValue(i * 7 % 6);
            if (i < 3 || i > 395 || i % 97 == 0) {
                ASSERT_EQ(pair.difference(), "") << frame.style << " after " << i + 1;
            }
        }
    }
}

TEST(GraphPicture, AFrameThatGetsThinnerOrThickerKeepsTheSamples)
{
    GraphPair pair(62, 42);
    for (int i = 0; i < 60; ++i)
        pair.setValue(i % 6);
    pair.setFrame(QFrame::NoFrame, 0); // now there are more columns than samples
    EXPECT_EQ(pair.difference(), "");
    for (int i = 0; i < 61; ++i)
        pair.setValue(i % 5);
    EXPECT_EQ(pair.difference(), "");
    pair.setFrame(QFrame::Panel | QFrame::Sunken, 7);
    EXPECT_EQ(pair.difference(), "");
    pair.setValue(5);
    EXPECT_EQ(pair.difference(), "");
}

TEST(GraphPicture, TinyGraphs)
{
    for (int width = 1; width < 8; ++width)
        for (int height = 1; height < 8; ++height) {
            GraphPair pair(width, height);
            for (int i = 0; i < 9; ++i)
                pair.setValue(5 - i % 6);
            EXPECT_EQ(pair.difference(), "") << width << "x" << height;
            pair.setFrame(QFrame::NoFrame, 0);
            pair.graph.resize(width, height + 1);
            pair.resize(width, height);
            for (int i = 0; i < 9; ++i) {
                pair.setValue(5 - i % 6);
                EXPECT_EQ(pair.difference(), "") << width << "x" << height << " after " << i + 1;
            }
        }
}

TEST(GraphPicture, ItsFrameGrowsWithIt)
{
    GraphPair pair;
    pair.graph.setFrameRect(QRect(5, 6, 100, 60));
    pair.graph.resize(pair.graph.width() + 10, pair.graph.height() + 20);
    settle();
    EXPECT_EQ(pair.graph.frameRect(), QRect(5, 6, 110, 80));
}

TEST(GraphPicture, ThousandsOfColumns)
{
    GraphPair pair;
    pair.resize(5000, 20);
    pair.setGraphParameters(-1000, 1000, 4, 7);
    for (int i = 0; i < 300; ++i)
        pair.setValue(i * 37 % 2000 - 1000);
    pair.setGraphParameters(0, 10, 3, 1, true);
    for (int i = 0; i < 20; ++i)
        pair.setValue(i);
    // The part that the screen shows.
    const Pixels all = pair.model.contents();
    pair.graph.move(-4200, 0);
    settle();
    const Pixels seen = Pixels::ofRoot(pair.window.x(), pair.window.y(), 799, 19);
    EXPECT_EQ(seen.part(0, 1, 798, 18).differenceFrom(all.part(4199, 0, 798, 18)), "");
}

TEST(GraphPicture, AfterBeingCoveredItIsWholeAgain)
{
    GraphPair pair;
    for (int i = 0; i < 150; ++i)
        pair.setValue(i * 5 % 6);
    pair.press(30);
    QWidget cover(0, "cover", Qt::WStyle_Customize | Qt::WStyle_NoBorder | Qt::WX11BypassWM);
    // Two corners at once, and a part of the frame.
    for (const QRect& part : {QRect(60, 20, 70, 30), QRect(0, 0, 30, 40), QRect(190, 80, 60, 60)}) {
        cover.setGeometry(QRect(pair.graph.mapToGlobal(part.topLeft()), part.size()));
        showAndWait(&cover);
        cover.hide();
        settle();
        EXPECT_EQ(pair.difference(), "");
    }
    pair.release();
    EXPECT_EQ(pair.difference(), "") << "nothing of the read-out is left";
}

TEST(GraphPicture, ItIsAFrameThatIsNeverErased)
{
    const ZelGraph graph;
    EXPECT_EQ(graph.frameStyle(), 0x32);
    EXPECT_EQ(graph.lineWidth(), 1);
    EXPECT_EQ(graph.backgroundMode(), Qt::NoBackground);
    EXPECT_EQ(graph.parentWidget(), nullptr);
    EXPECT_EQ(graph.focusPolicy(), QWidget::NoFocus);
    EXPECT_FALSE(graph.hasMouseTracking());
    EXPECT_EQ(graph.children(), nullptr);
}

TEST(GraphPicture, FlagsAndNameGoToTheWidget)
{
    QWidget parent;
    const ZelGraph graph(&parent, "load", false, Qt::WType_TopLevel);
    EXPECT_STREQ(graph.name(), "load");
    EXPECT_TRUE(graph.isTopLevel());
    EXPECT_EQ(graph.parentWidget(), &parent);
}
