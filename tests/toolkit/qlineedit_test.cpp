// Line edits: text, selection, undo, mouse, limits.
#include "messages.h"
#include "printers.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qclipboard.h>
#include <qfontmetrics.h>
#include <qlineedit.h>
#include <qvalidator.h>

#include <X11/keysym.h>

#include <limits.h>
#include <string>

namespace
{

class LineEdit : public testing::Test
{
protected:
    LineEdit() : edit(&window), other(&window)
    {
        window.setGeometry(100, 100, 240, 80);
        edit.setGeometry(10, 10, 200, 24);
        other.setGeometry(10, 45, 200, 24);
        showAndActivate(&window);
        edit.setFocus();
        settle();
        recorder.watch(&edit, SIGNAL(textChanged(const QString&)));
        recorder.watch(&edit, SIGNAL(selectionChanged()));
        recorder.watch(&edit, SIGNAL(returnPressed()));
        recorder.watch(&edit, SIGNAL(lostFocus()));
    }

    std::string heard()
    {
        settle();
        return recorder.take();
    }
    int placeOf(const char* beginning) const { return 4 + QFontMetrics(edit.font()).width(beginning); }
    std::string text() const { return edit.text().latin1(); }
    std::string marked() const { return edit.hasSelectedText() ? edit.selectedText().latin1() : "-"; }
    void put(const char* text)
    {
        edit.setText(text);
        heard();
    }

    QWidget window;
    QLineEdit edit, other;
    SignalRecorder recorder;
};

} // namespace

TEST_F(LineEdit, TellsOfANewTextOnlyOnce)
{
    edit.setText("Hello");
    edit.setText("Hello");
    EXPECT_EQ(heard(), "textChanged(Hello)");
    EXPECT_EQ(edit.cursorPosition(), 5);
    EXPECT_FALSE(edit.edited());
}

TEST_F(LineEdit, ANullTextReadsAsEmpty)
{
    edit.setText(QString());
    EXPECT_FALSE(edit.text().isNull());
    EXPECT_TRUE(edit.text().isEmpty());
}

TEST_F(LineEdit, TypingChangesIt)
{
    xinput::typeText("hi");
    EXPECT_EQ(heard(), "textChanged(h) textChanged(hi)");
    EXPECT_TRUE(edit.edited());
}

TEST_F(LineEdit, WordsAreWhatBlanksSeparate)
{
    put("one two.three four");
    edit.setCursorPosition(5);
    edit.cursorWordForward(true);
    EXPECT_EQ(marked(), "wo.three ");
    edit.cursorWordBackward(false);
    EXPECT_EQ(edit.cursorPosition(), 4);
}

TEST_F(LineEdit, SelectingByCallsIsSilentButWithinLimits)
{
    put("The quick brown fox");
    edit.setSelection(10, 99);
    EXPECT_EQ(marked(), "brown fox");
    edit.setSelection(4, INT_MAX);
    EXPECT_EQ(marked(), "quick brown fox");
    EXPECT_EQ(edit.cursorPosition(), 19);
    edit.setSelection(-3, 3);
    EXPECT_EQ(marked(), "-");
    edit.setSelection(4, 5);
    EXPECT_EQ(edit.selectionStart(), 4);
    EXPECT_EQ(heard(), "");
    edit.deselect();
    EXPECT_EQ(heard(), "selectionChanged");
}

TEST_F(LineEdit, InsertingReplacesTheSelection)
{
    put("The quick fox");
    edit.setSelection(4, 5);
    edit.insert("slow");
    EXPECT_EQ(heard(), "textChanged(The slow fox) selectionChanged");
    EXPECT_EQ(edit.cursorPosition(), 8);
}

TEST_F(LineEdit, UndoesWhatWasTypedInARow)
{
    put("start");
    xinput::typeText("abc");
    settle();
    xinput::typeKey(XK_BackSpace);
    xinput::typeKey(XK_BackSpace);
    settle();
    EXPECT_EQ(text(), "starta");
    edit.undo();
    EXPECT_EQ(text(), "startabc");
    edit.undo();
    EXPECT_EQ(text(), "start");
    EXPECT_FALSE(edit.edited()) << "back at the text that was set";
    EXPECT_FALSE(edit.isUndoAvailable());
    edit.redo();
    EXPECT_EQ(text(), "startabc");
}

TEST_F(LineEdit, AMoveOfTheCursorBeginsANewStepToUndo)
{
    put("x");
    edit.home(false);
    edit.insert("p");
    edit.end(false);
    edit.insert("q");
    edit.undo();
    EXPECT_EQ(text(), "px");
    edit.undo();
    EXPECT_EQ(text(), "x");
    EXPECT_EQ(edit.cursorPosition(), 0);
}

TEST_F(LineEdit, UndoesAReplacementInOneStep)
{
    put("fresh");
    edit.selectAll();
    edit.insert("z");
    edit.undo();
    EXPECT_EQ(text(), "fresh");
    EXPECT_FALSE(edit.isUndoAvailable());
}

TEST_F(LineEdit, TakesNoMoreThanItsMaximum)
{
    edit.setMaxLength(5);
    put("1234567");
    EXPECT_EQ(text(), "12345");
    xinput::typeText("8");
    settle();
    EXPECT_EQ(text(), "12345");
    edit.setSelection(1, 2);
    xinput::typeText("xyz");
    settle();
    EXPECT_EQ(text(), "1xy45");
    edit.setMaxLength(3);
    EXPECT_EQ(text(), "1xy");
}

TEST_F(LineEdit, AReadOnlyOneCanBeReadAndSetButNotTyped)
{
    put("text");
    edit.setReadOnly(true);
    xinput::typeText("a");
    xinput::typeKey(XK_BackSpace);
    settle();
    EXPECT_EQ(text(), "text");
    xinput::typeKey(XK_Left);
    settle();
    EXPECT_EQ(edit.cursorPosition(), 3);
    edit.setText("new");
    EXPECT_EQ(text(), "new");
}

TEST_F(LineEdit, PasswordsAreNotShownOrCopied)
{
    put("secret");
    QApplication::clipboard()->setText("kept", QClipboard::Clipboard);
    edit.setEchoMode(QLineEdit::Password);
    EXPECT_EQ(edit.displayText(), QString("******"));
    edit.selectAll();
    edit.copy();
    EXPECT_EQ(QApplication::clipboard()->text(QClipboard::Clipboard), QString("kept"));
    edit.setEchoMode(QLineEdit::NoEcho);
    EXPECT_EQ(edit.displayText(), QString(""));
}

TEST_F(LineEdit, CutsAndPastes)
{
    put("alpha beta");
    edit.setSelection(0, 6);
    edit.cut();
    EXPECT_EQ(heard(), "textChanged(beta) selectionChanged");
    edit.end(false);
    edit.paste();
    EXPECT_EQ(text(), "betaalpha ");
}

TEST_F(LineEdit, AClickPlacesTheCursor)
{
    put("alpha beta gamma");
    xinput::click(&edit, placeOf("alp"), 12);
    settle();
    EXPECT_EQ(edit.cursorPosition(), 3);
}

TEST_F(LineEdit, ADoubleClickMarksTheWord)
{
    put("alpha beta gamma");
    xinput::doubleClick(&edit, placeOf("alpha b"), 12);
    EXPECT_TRUE(waitFor([&] { return marked() == "beta"; })) << marked();
}

TEST_F(LineEdit, DraggingMarksAndOffersTheTextToOthers)
{
    put("alpha beta gamma");
    edit.home(false);
    xinput::moveTo(&edit, placeOf("al"), 12);
    xinput::pressButton();
    settle();
    xinput::moveTo(&edit, placeOf("alpha be"), 12);
    settle();
    EXPECT_EQ(marked(), "pha be");
    xinput::releaseButton();
    settle();
    EXPECT_EQ(QApplication::clipboard()->text(QClipboard::Selection), QString("pha be"));
    edit.deselect();
    xinput::click(&edit, 190, 12, 2);
    settle();
    EXPECT_EQ(text(), "alpha beta gammapha be") << "the middle button inserts it";
}

TEST_F(LineEdit, TabMarksAllAndLosingTheFocusDropsIt)
{
    put("tabbed");
    other.setFocus();
    heard();
    xinput::typeKey(XK_Tab, XK_Shift_L);
    EXPECT_EQ(heard(), "selectionChanged");
    EXPECT_EQ(marked(), "tabbed");
    other.setFocus();
    EXPECT_EQ(heard(), "selectionChanged lostFocus");
}

TEST_F(LineEdit, AValidatorRefusesWhatIsTyped)
{
    const QIntValidator validator(10, 200, nullptr);
    edit.setValidator(&validator);
    xinput::typeText("1a50");
    settle();
    EXPECT_EQ(text(), "150");
    EXPECT_TRUE(edit.hasAcceptableInput());
    xinput::typeText("0");
    settle();
    EXPECT_EQ(text(), "150");
    edit.setText("999");
    EXPECT_EQ(text(), "999") << "calls may set anything";
    heard();
    xinput::typeKey(XK_Return);
    EXPECT_EQ(heard(), "") << "it is not acceptable";
    edit.setText("99");
    heard();
    xinput::typeKey(XK_Return);
    EXPECT_EQ(heard(), "returnPressed");
    edit.clearValidator();
}

TEST_F(LineEdit, WantsRoomForSeventeenLetters)
{
    const QFontMetrics metrics(edit.font());
    EXPECT_EQ(edit.sizeHint(), QSize(17 * metrics.width('x') + 4, metrics.lineSpacing() + 6));
    EXPECT_EQ(edit.minimumSizeHint().height(), metrics.height() + 6);
}

TEST_F(LineEdit, AFrameOfNegativeWidthLeavesItPaintable)
{
    edit.setLineWidth(-65536);
    edit.setText("text");
    settle();
    EXPECT_EQ("", takeMessages());
}
