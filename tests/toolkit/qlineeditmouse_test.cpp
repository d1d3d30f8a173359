// Line edits under the pointer: clicks, drags, the marked text, what is seen of it, with a window manager
// too.
#include "pixels.h"
#include "printers.h"
#include "waiting.h"
#include "windowmanager.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qclipboard.h>
#include <qfontmetrics.h>
#include <qlineedit.h>

#include <X11/keysym.h>

#include <memory>
#include <string>

namespace
{

class LineEditMouse : public testing::TestWithParam<bool>
{
protected:
    LineEditMouse() : manager(GetParam() ? new WindowManager : nullptr), edit(&window)
    {
        QApplication::setCursorFlashTime(0);
        QApplication::setDoubleClickInterval(3000); // the window manager may be slow
        window.setGeometry(100, 100, 240, 60);
        edit.setGeometry(10, 10, 200, 24);
        edit.setText("alpha beta gamma");
        showAndActivate(&window);
        edit.setFocus();
        QApplication::clipboard()->clear(QClipboard::Selection);
        settle();
    }

    ~LineEditMouse() override { QApplication::setDoubleClickInterval(usualInterval); }

    int placeOf(const char* beginning) const { return 4 + QFontMetrics(edit.font()).width(beginning); }
    std::string marked() const { return edit.hasSelectedText() ? edit.selectedText().latin1() : "-"; }
    std::string offered() const
    {
        const QString text = QApplication::clipboard()->text(QClipboard::Selection);
        return text.isNull() ? "-" : text.latin1();
    }
    bool becomes(const char* selected)
    {
        return waitFor([&] { return marked() == selected; });
    }
    void dragTo(int x)
    {
        xinput::moveTo(&edit, x, 12);
        settle();
    }

    const int usualInterval = QApplication::doubleClickInterval();
    std::unique_ptr<WindowManager> manager;
    QWidget window;
    QLineEdit edit;
};

INSTANTIATE_TEST_SUITE_P(Managed, LineEditMouse, testing::Bool());

} // namespace

TEST_P(LineEditMouse, ShiftClickStretchesTheMark)
{
    xinput::click(&edit, placeOf("al"), 12);
    EXPECT_TRUE(waitFor([&] { return edit.cursorPosition() == 2; }));
    xinput::pressKey(XK_Shift_L);
    xinput::click(&edit, placeOf("alpha beta"), 12);
    EXPECT_TRUE(becomes("pha beta"));
    xinput::click(&edit, placeOf("a"), 12);
    EXPECT_TRUE(becomes("l")) << "to the other side of where it began";
    xinput::releaseKey(XK_Shift_L);
    EXPECT_EQ(offered(), "l");
}

TEST_P(LineEditMouse, TwoClicksMarkAWordThreeMarkAll)
{
    xinput::doubleClick(&edit, placeOf("alpha b"), 12);
    EXPECT_TRUE(becomes("beta"));
    xinput::pressButton();
    xinput::releaseButton();
    EXPECT_TRUE(becomes("alpha beta gamma"));
    EXPECT_TRUE(waitFor([&] { return offered() == "alpha beta gamma"; }));
}

TEST_P(LineEditMouse, AMarkStretchedBeyondTheFieldScrollsIt)
{
    edit.setText("a text that is a good deal longer than the field that shows it, so that it scrolls");
    edit.home(false);
    settle();
    xinput::moveTo(&edit, 30, 12);
    xinput::pressButton();
    settle();
    const int from = edit.cursorPosition();
    dragTo(230);
    EXPECT_GT(edit.cursorPosition(), from);
    EXPECT_LT(edit.cursorPosition(), static_cast<int>(edit.text().length()));
    int before = edit.cursorPosition();
    dragTo(235);
    EXPECT_GT(edit.cursorPosition(), before) << "each move goes on";
    before = edit.cursorPosition();
    dragTo(-5);
    EXPECT_LT(edit.cursorPosition(), before);
    xinput::releaseButton();
    settle();
    EXPECT_EQ(offered(), marked());
}

TEST_P(LineEditMouse, AClickInAScrolledTextFindsItsLetter)
{
    edit.setText("0123456789012345678901234567890123456789012345678901234567890123456789");
    settle();
    EXPECT_EQ(edit.cursorPosition(), 70);
    const int digit = QFontMetrics(edit.font()).width("0");
    xinput::click(&edit, 196 - 10 * digit, 12);
    EXPECT_TRUE(waitFor([&] { return edit.cursorPosition() < 62; }));
    EXPECT_NEAR(edit.cursorPosition(), 60, 1);
    xinput::typeKey(XK_Home);
    settle();
    xinput::click(&edit, 4 + 10 * digit, 12);
    EXPECT_TRUE(waitFor([&] { return edit.cursorPosition() == 10; }));
}

TEST_P(LineEditMouse, APressOnTheMarkLeavesItUntilTheRelease)
{
    edit.setSelection(0, 10);
    settle();
    xinput::moveTo(&edit, placeOf("alph"), 12);
    xinput::pressButton();
    settle();
    EXPECT_EQ(marked(), "alpha beta");
    xinput::releaseButton();
    EXPECT_TRUE(becomes("-"));
    EXPECT_EQ(edit.cursorPosition(), 4);
    edit.setDragEnabled(false);
    edit.setSelection(0, 10);
    xinput::moveTo(&edit, placeOf("al"), 12);
    xinput::pressButton();
    EXPECT_TRUE(becomes("-")) << "at once when it cannot be dragged";
    xinput::releaseButton();
    settle();
}

TEST_P(LineEditMouse, OtherButtonsDoNotMark)
{
    xinput::click(&edit, placeOf("al"), 12);
    EXPECT_TRUE(waitFor([&] { return edit.cursorPosition() == 2; }));
    xinput::moveTo(&edit, placeOf("al"), 12);
    xinput::pressButton(3);
    dragTo(placeOf("alpha"));
    xinput::releaseButton(3);
    settle();
    EXPECT_EQ(marked(), "-");
    EXPECT_EQ(edit.cursorPosition(), 2);
}

TEST_P(LineEditMouse, TheMiddleButtonInsertsWhatIsMarkedWhereItPoints)
{
    QApplication::clipboard()->setText("+", QClipboard::Selection);
    xinput::click(&edit, placeOf("alpha"), 12, 2);
    EXPECT_TRUE(waitFor([&] { return edit.text() == "alpha+ beta gamma"; }));
    edit.setReadOnly(true);
    xinput::click(&edit, placeOf("al"), 12, 2);
    settle();
    EXPECT_EQ(edit.text(), QString("alpha+ beta gamma"));
}

TEST_P(LineEditMouse, AReadOnlyTextCanBeMarkedAndTaken)
{
    edit.setReadOnly(true);
    xinput::doubleClick(&edit, placeOf("alpha b"), 12);
    EXPECT_TRUE(becomes("beta"));
    EXPECT_TRUE(waitFor([&] { return offered() == "beta"; }));
}

TEST_P(LineEditMouse, TheMarkIsBlackAndTheCursorALine)
{
    const QFontMetrics metrics(edit.font());
    const int top = 2 + (20 - metrics.height() + 1) / 2;
    edit.setText("");
    settle();
    const Pixels empty = Pixels::of(&edit);
    int x = 3;
    while (x < 8 && empty.at(x, top) != 0x000000)
        ++x;
    for (int y = top; y < top + metrics.height(); ++y)
        EXPECT_EQ(empty.at(x, y), 0x000000u) << y;
    EXPECT_EQ(empty.at(x, top - 1), 0xffffffu);
    EXPECT_EQ(empty.at(x + 1, top + 3), 0xffffffu);

    edit.setText("alpha beta gamma");
    edit.setSelection(6, 4);
    settle();
    const Pixels shown = Pixels::of(&edit);
    const int from = x + metrics.width("alpha ");
    const int to = x + metrics.width("alpha beta");
    EXPECT_EQ(shown.at(from - 1, top), 0xffffffu);
    for (int column = from; column <= to; ++column)
        EXPECT_EQ(shown.at(column, top), 0x000000u) << "the cursor stands behind it";
    EXPECT_EQ(shown.at(to + 1, top), 0xffffffu);

    edit.clearFocus();
    settle();
    EXPECT_EQ(Pixels::of(&edit).at(to, top), 0xffffffu) << "only the one with the focus has a cursor";
}

TEST_P(LineEditMouse, TheCursorBlinks)
{
    edit.setText("");
    edit.clearFocus();
    QApplication::setCursorFlashTime(60);
    edit.setFocus();
    const auto seen = [&] {
        const Pixels shown = Pixels::of(&edit);
        return shown.part(3, 12, 6, 1).count(0x000000) == 1;
    };
    EXPECT_TRUE(waitFor([&] { return !seen(); }));
    EXPECT_TRUE(waitFor(seen));
    EXPECT_TRUE(waitFor([&] { return !seen(); }));
}

TEST_P(LineEditMouse, TextMayStandAtTheRightOrInTheMiddle)
{
    edit.setText("ab");
    edit.clearFocus();
    const QFontMetrics metrics(edit.font());
    const auto firstInk = [&] {
        settle();
        const Pixels shown = Pixels::of(&edit).part(2, 2, 196, 20);
        for (int x = 0; x < shown.width(); ++x)
            for (int y = 0; y < shown.height(); ++y)
                if (shown.at(x, y) != 0xffffff)
                    return x;
        return -1;
    };
    const int left = firstInk();
    edit.setAlignment(Qt::AlignRight);
    const int right = firstInk();
    edit.setAlignment(Qt::AlignHCenter);
    const int centre = firstInk();
    EXPECT_LT(left, 4);
    EXPECT_GT(right, 190 - metrics.width("ab"));
    EXPECT_NEAR(centre, (left + right) / 2, 2);
    xinput::click(&edit, 190, 12);
    EXPECT_TRUE(waitFor([&] { return edit.cursorPosition() == 2; }));
    xinput::click(&edit, 5, 12);
    EXPECT_TRUE(waitFor([&] { return edit.cursorPosition() == 0; }));
}

TEST_P(LineEditMouse, ADisabledOneIsDeaf)
{
    edit.setEnabled(false);
    xinput::doubleClick(&edit, placeOf("alpha b"), 12);
    xinput::typeText("x");
    settle();
    EXPECT_EQ(marked(), "-");
    EXPECT_EQ(edit.text(), QString("alpha beta gamma"));
}
