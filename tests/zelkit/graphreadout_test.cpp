// ZelGraph: the value that it shows at the pointer's height while the left button is held.
#include "graphpair.h"

#include "xinput.h"

#include <gtest/gtest.h>

#include <climits>

namespace
{

// Where a picture differs from another one, as "x y width height".
std::string changedBox(const Pixels& now, const Pixels& before)
{
    QRect box;
    for (int y = 0; y < now.height(); ++y)
        for (int x = 0; x < now.width(); ++x)
            if (now.at(x, y) != before.at(x, y))
                box |= QRect(x, y, 1, 1);
    return std::to_string(box.x()) + " " + std::to_string(box.y()) + " " + std::to_string(box.width()) + " " +
           std::to_string(box.height());
}

// A graph of 200 by 100 pixels for 0 to 5 without a grid, so that all that is seen is the read-out.
class GraphReadout : public testing::Test
{
protected:
    GraphReadout() { pair.setGraphParameters(0, 5, -1, -1); }

    int textHeight() { return QFontMetrics(pair.graph.font()).height(); }
    int textWidth(const char* text) { return QFontMetrics(pair.graph.font()).width(text); }

    GraphPair pair;
};

} // namespace

TEST_F(GraphReadout, TellsTheValueAtThePointer)
{
    const struct {
        int y;
        const char* text;
    } places[] = {
        {50, "2.50"}, {0, "5.00"}, {100, "0.00"}, {101, "-0.05"}, {1, "4.95"}, {99, "0.05"}, {33, "3.35"},
    };
    const Pixels before = Pixels::now(&pair.graph);
    for (const auto& place : places) {
        pair.press(place.y);
        EXPECT_EQ(pair.model.readout(), place.text);
        EXPECT_EQ(pair.difference(), "") << place.text;
        pair.release();
        EXPECT_EQ(Pixels::now(&pair.graph).differenceFrom(before), "") << place.text;
    }
}

TEST_F(GraphReadout, HasTwoDecimalsAndASign)
{
    const struct {
        int minimum, maximum, y;
        const char* text;
    } values[] = {
        {-10, 10, 75, "-5.00"},           {0, 1, 33, "0.67"}, {INT_MIN, INT_MAX, 100, "-2147483648.00"},
        {0, INT_MAX, 0, "2147483647.00"}, {10, 5, 0, "6.00"}, {6, 5, 77, "6.00"},
    };
    for (const auto& value : values) {
        pair.setGraphParameters(value.minimum, value.maximum, -1, -1);
        pair.press(value.y);
        EXPECT_EQ(pair.model.readout(), value.text);
        EXPECT_EQ(pair.difference(), "") << value.text;
        pair.release();
    }
    EXPECT_EQ(pair.difference(), "");
}

TEST_F(GraphReadout, TheLineReachesFromEdgeToEdgeAndIsBrokenByTheText)
{
    const Pixels before = Pixels::now(&pair.graph);
    pair.press(50);
    const Pixels shown = Pixels::now(&pair.graph);
    const int left = 100 - textWidth("2.50") / 2;
    const int right = left + textWidth("2.50") - 1;
    for (int x = 0; x < 202; ++x) {
        if (x > left && x < right)
            continue;
        const bool inLine = x >= 1 && x <= 200;
        EXPECT_EQ(shown.at(x, 50), inLine ? before.at(x, 50) ^ 0xffffff : before.at(x, 50)) << x;
    }
    int inked = 0;
    for (int x = left + 1; x < right; ++x)
        inked += shown.at(x, 50) != before.at(x, 50);
    EXPECT_LT(inked, right - left - 1) << "no line through the text";
}

TEST_F(GraphReadout, TheTextStaysInside)
{
    const int height = textHeight();
    const struct {
        int y, top;
    } places[] = {
        {0, 0},
        {height / 2, 0},
        {height / 2 + 1, 1},
        {50, 50 - height / 2},
        {100 - (height - 1) + height / 2, 100 - (height - 1)},
        {100, 100 - (height - 1)},
        {101, 100 - (height - 1)},
    };
    for (const auto& place : places) {
        pair.press(place.y);
        EXPECT_EQ(pair.model.readoutPlace().top(), place.top) << place.y;
        EXPECT_EQ(pair.model.readoutPlace().height(), height);
        EXPECT_EQ(pair.difference(), "") << place.y;
        pair.release();
    }
}

TEST_F(GraphReadout, FollowsThePointer)
{
    pair.press(50);
    for (const int y : {51, 30, 0, 100, 99, 64}) {
        pair.drag(y);
        EXPECT_EQ(pair.difference(), "") << y;
    }
    pair.release();
    EXPECT_EQ(pair.difference(), "");
}

TEST_F(GraphReadout, SticksToTheEdgesWhenThePointerLeaves)
{
    const Pixels before = Pixels::now(&pair.graph);
    pair.press(50);
    pair.drag(150);
    EXPECT_EQ(pair.model.readout(), "0.00");
    EXPECT_EQ(Pixels::now(&pair.graph).at(1, 100), before.at(1, 100) ^ 0xffffff);
    EXPECT_EQ(pair.difference(), "");
    pair.drag(101);
    EXPECT_EQ(pair.model.readout(), "0.00") << "a press there shows -0.05";
    pair.drag(-20);
    EXPECT_EQ(pair.model.readout(), "5.00");
    EXPECT_EQ(Pixels::now(&pair.graph).at(1, 0), before.at(1, 0) ^ 0xffffff);
    EXPECT_EQ(pair.difference(), "");
    for (const int y : {INT_MAX, INT_MIN, -1, 100})
        pair.drag(y);
    EXPECT_EQ(pair.difference(), "");
    pair.release();
    EXPECT_EQ(Pixels::now(&pair.graph).differenceFrom(before), "");
}

TEST_F(GraphReadout, APressFarOutsideIsHarmless)
{
    const Pixels before = Pixels::now(&pair.graph);
    for (const int y : {INT_MAX, INT_MIN, 5000, -5000}) {
        press(&pair.graph, 30, y);
        release(&pair.graph, 30, y);
        EXPECT_EQ(Pixels::now(&pair.graph).differenceFrom(before), "") << y;
    }
}

TEST_F(GraphReadout, KeepsItsTextWhileSamplesScrollUnderneath)
{
    pair.setGraphParameters(0, 5, 10, 10);
    pair.press(40);
    for (int i = 0; i < 250; ++i) {
        pair.setValue(i * 7 % 6);
        if (i % 40 == 0) {
            EXPECT_EQ(pair.difference(), "") << i;
        }
    }
    pair.setMaxY(50);
    EXPECT_EQ(pair.model.readout(), "3.00") << "until the pointer moves";
    EXPECT_EQ(pair.difference(), "");
    pair.drag(40);
    EXPECT_EQ(pair.model.readout(), "30.00");
    EXPECT_EQ(pair.difference(), "");
    pair.clearAll();
    pair.setGraphParameters(0, 10, 5, 5, true);
    EXPECT_EQ(pair.difference(), "");
    pair.release();
    EXPECT_EQ(pair.difference(), "");
    pair.setValue(3);
    EXPECT_EQ(pair.difference(), "");
}

TEST_F(GraphReadout, ShowingAndHidingPaintNothingElse)
{
    EventCount paints(&pair.graph, QEvent::Paint);
    pair.press(40);
    pair.drag(50);
    pair.release();
    settle();
    EXPECT_EQ(paints.take(), 0);
}

TEST_F(GraphReadout, OnlyTheLeftButtonShowsAndEndsIt)
{
    const Pixels before = Pixels::now(&pair.graph);
    for (const int button : {Qt::RightButton, Qt::MidButton}) {
        press(&pair.graph, 30, 50, button);
        drag(&pair.graph, 30, 60);
        release(&pair.graph, 30, 50, button);
        EXPECT_EQ(Pixels::now(&pair.graph).differenceFrom(before), "") << button;
    }
    pair.press(50);
    for (const int button : {Qt::RightButton, Qt::MidButton}) {
        press(&pair.graph, 30, 70, button);
        release(&pair.graph, 30, 70, button);
        doubleClick(&pair.graph, 30, 70, button);
        EXPECT_EQ(pair.difference(), "") << button;
    }
    pair.release();
    EXPECT_EQ(Pixels::now(&pair.graph).differenceFrom(before), "");
    pair.drag(40);
    release(&pair.graph, 30, 50);
    EXPECT_EQ(Pixels::now(&pair.graph).differenceFrom(before), "") << "hidden it stays hidden";
}

TEST_F(GraphReadout, ASecondPressIsDrawnOverTheFirst)
{
    pair.press(50);
    pair.press(70);
    EXPECT_EQ(pair.difference(), "");
    pair.setValue(1); // a repaint leaves the later one
    EXPECT_EQ(pair.difference(), "");
    pair.release();
    EXPECT_EQ(pair.difference(), "");
}

TEST_F(GraphReadout, ADoubleClickShowsItUntilTheRelease)
{
    const Pixels before = Pixels::now(&pair.graph);
    doubleClick(&pair.graph, 30, 60);
    pair.model.press(60, pair.graph.font());
    EXPECT_EQ(pair.difference(), "");
    pair.release();
    EXPECT_EQ(Pixels::now(&pair.graph).differenceFrom(before), "");
}

TEST_F(GraphReadout, WithoutItNothingIsEverShown)
{
    ZelGraph plain(&pair.window, "plain");
    plain.setGeometry(300, 10, 202, 102);
    plain.show();
    plain.setValue(2);
    plain.setValue(2);
    EXPECT_EQ(Pixels::now(&plain).part(200, 1, 1, 100).count(0x0000dc), 1) << "a curve, no bars";
    settle();
    const Pixels before = Pixels::now(&plain);
    press(&plain, 30, 50);
    drag(&plain, 30, 60);
    EXPECT_EQ(Pixels::now(&plain).differenceFrom(before), "");
    doubleClick(&plain, 30, 50);
    plain.repaint(true);
    EXPECT_EQ(Pixels::now(&plain).differenceFrom(before), "");
    release(&plain, 30, 50);
    EXPECT_EQ(Pixels::now(&plain).differenceFrom(before), "");
}

TEST_F(GraphReadout, ATextWiderThanTheGraphBeginsOutsideOfIt)
{
    pair.resize(40, 60);
    pair.setGraphParameters(INT_MIN, INT_MAX, 5, 5);
    const Pixels before = Pixels::now(&pair.graph);
    pair.press(20);
    EXPECT_LT(pair.model.readoutPlace().left(), 0);
    EXPECT_EQ(pair.difference(), "");
    pair.drag(30);
    EXPECT_EQ(pair.difference(), "");
    pair.release();
    EXPECT_EQ(Pixels::now(&pair.graph).differenceFrom(before), "");
}

TEST_F(GraphReadout, AGraphLowerThanItsTextShowsItFromTheTop)
{
    for (const int height : {1, 2, 3, 8, 12}) {
        pair.resize(120, height);
        pair.press(height / 2);
        EXPECT_EQ(pair.difference(), "") << height;
        pair.drag(height + 5);
        EXPECT_EQ(pair.difference(), "") << height;
        pair.release();
        EXPECT_EQ(pair.difference(), "") << height;
    }
}

TEST_F(GraphReadout, UsesTheFontOfTheMoment)
{
    for (const int size : {7, 18}) {
        pair.graph.setFont(QFont("DejaVu Sans", size));
        settle();
        pair.press(4);
        EXPECT_EQ(pair.difference(), "") << size;
        pair.drag(98);
        EXPECT_EQ(pair.difference(), "") << size;
        pair.release();
        EXPECT_EQ(pair.difference(), "") << size;
    }
}

TEST_F(GraphReadout, AResizeKeepsTheTextAndThePlace)
{
    pair.press(40);
    pair.resize(150, 80);
    EXPECT_EQ(pair.model.readout(), "3.00");
    EXPECT_EQ(pair.difference(), "");
    pair.setFrame(QFrame::Box | QFrame::Raised, 3);
    EXPECT_EQ(pair.difference(), "");
    pair.drag(41);
    EXPECT_EQ(pair.difference(), "");
    pair.release();
    EXPECT_EQ(pair.difference(), "");
}

TEST_F(GraphReadout, BarsAreInvertedToo)
{
    pair.setGraphParameters(0, 5, 10, 10, true, false, false, QColor(10, 20, 30), QColor(200, 100, 50),
                            QColor(1, 255, 128));
    for (int i = 0; i < 220; ++i)
        pair.setValue(i % 6);
    pair.press(55);
    EXPECT_EQ(pair.difference(), "");
    pair.release();
    EXPECT_EQ(pair.difference(), "");
}

TEST_F(GraphReadout, WorksUnderARealHand)
{
    const Pixels before = Pixels::now(&pair.graph);
    xinput::moveTo(&pair.graph, 60, 20);
    settle();
    EXPECT_EQ(Pixels::now(&pair.graph).differenceFrom(before), "") << "hovering shows nothing";
    xinput::pressButton();
    settle();
    pair.model.press(20, pair.graph.font());
    EXPECT_EQ(pair.difference(), "");
    xinput::moveTo(&pair.window, 500, 80); // out, at the side
    settle();
    pair.model.drag(80, pair.graph.font());
    EXPECT_EQ(pair.difference(), "");
    xinput::moveTo(&pair.window, 500, 400);
    settle();
    pair.model.drag(400, pair.graph.font());
    EXPECT_EQ(pair.model.readout(), "0.00");
    EXPECT_EQ(pair.difference(), "");
    xinput::releaseButton();
    settle();
    EXPECT_EQ(Pixels::now(&pair.graph).differenceFrom(before), "");
    EXPECT_EQ(changedBox(Pixels::now(&pair.graph), before), "0 0 0 0");
}
