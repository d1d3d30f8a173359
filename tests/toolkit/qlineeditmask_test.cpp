// Line edits whose text is typed into a mask.
#include "printers.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qlineedit.h>
#include <qvalidator.h>

#include <X11/keysym.h>

#include <string>

namespace
{

class LineEditMask : public testing::Test
{
protected:
    LineEditMask() : edit(&window)
    {
        window.setGeometry(100, 100, 240, 60);
        edit.setGeometry(10, 10, 200, 24);
        showAndActivate(&window);
        edit.setFocus();
        settle();
        recorder.watch(&edit, SIGNAL(textChanged(const QString&)));
        recorder.watch(&edit, SIGNAL(returnPressed()));
    }

    void use(const char* mask)
    {
        edit.setInputMask(mask);
        edit.setText("");
        edit.home(false);
        heard();
    }
    void type(const char* keys)
    {
        xinput::typeText(keys);
        settle();
    }
    void press(unsigned long key, unsigned long modifier = 0)
    {
        xinput::typeKey(key, modifier);
        settle();
    }
    std::string heard()
    {
        settle();
        return recorder.take();
    }
    std::string shown() const { return edit.displayText().latin1(); }
    std::string text() const { return edit.text().latin1(); }

    QWidget window;
    QLineEdit edit;
    SignalRecorder recorder;
};

} // namespace

TEST_F(LineEditMask, ShowsItsPlacesAndTellsTheTextWithoutThem)
{
    use("99.99;_");
    EXPECT_EQ(shown(), "__.__");
    EXPECT_EQ(text(), ".");
    type("1234");
    EXPECT_EQ(shown(), "12.34");
    EXPECT_EQ(heard(), "textChanged(1.) textChanged(12.) textChanged(12.3) textChanged(12.34)");
    type("5");
    EXPECT_EQ(shown(), "12.34") << "there is no place left";
    EXPECT_EQ(edit.maxLength(), 5);
    EXPECT_EQ(edit.inputMask(), QString("99.99;_"));
}

TEST_F(LineEditMask, EachPlaceTakesItsKindOfSign)
{
    const struct {
        const char* mask;
        const char* typed;
        const char* shown;
    } cases[] = {{"AA;_", "1b/c", "bc"},
                 {"NN;_", "-b1", "b1"},
                 {"XX;_", "-1", "-1"},
                 {"99;_", "a1+2", "12"},
                 {"DD;_", "010", "1_"},
                 {"##;_", "+5", "+5"},
                 {">AA<AA!AA;_", "abCDeF", "ABcdeF"},
                 {"\\A9;_", "7", "A7"},
                 {"aa99", "x", "x   "}};
    for (const auto& each : cases) {
        use(each.mask);
        type(each.typed);
        EXPECT_EQ(shown(), each.shown) << each.mask;
    }
}

TEST_F(LineEditMask, ASeparatorSkipsToItsPlace)
{
    use("000.000;_");
    type("1.2");
    EXPECT_EQ(shown(), "1__.2__");
    EXPECT_EQ(text(), "1.2");
    edit.setText("12.345");
    EXPECT_EQ(shown(), "12_.345");
}

TEST_F(LineEditMask, DeletingLeavesEmptyPlaces)
{
    use("99.99;_");
    type("1234");
    press(XK_BackSpace);
    press(XK_BackSpace);
    EXPECT_EQ(shown(), "12.__");
    EXPECT_EQ(edit.cursorPosition(), 3);
    press(XK_BackSpace);
    EXPECT_EQ(shown(), "1_.__") << "the separator stays";
    press(XK_Home);
    press(XK_Delete);
    EXPECT_EQ(shown(), "__.__");
    edit.setText("12.34");
    edit.setSelection(1, 3);
    EXPECT_EQ(edit.selectedText(), QString("2.3"));
    press(XK_BackSpace);
    EXPECT_EQ(shown(), "1_._4");
    type("9");
    EXPECT_EQ(shown(), "19._4");
    press(XK_Home);
    press(XK_k, XK_Control_L);
    EXPECT_EQ(shown(), "__.__");
    edit.clear();
    EXPECT_EQ(edit.cursorPosition(), 0);
}

TEST_F(LineEditMask, TheCursorStepsOverSeparators)
{
    use("9.9;_");
    EXPECT_EQ(edit.cursorPosition(), 0);
    press(XK_Right);
    EXPECT_EQ(edit.cursorPosition(), 2);
    press(XK_Left);
    EXPECT_EQ(edit.cursorPosition(), 0);
    press(XK_Left);
    EXPECT_EQ(edit.cursorPosition(), 0);
    press(XK_Right);
    press(XK_Right);
    press(XK_Right);
    EXPECT_EQ(edit.cursorPosition(), 3);
}

TEST_F(LineEditMask, TypingReplacesWhatStandsThereAndCanBeUndone)
{
    use("99;_");
    type("12");
    press(XK_Home);
    type("3");
    EXPECT_EQ(shown(), "32");
    press(XK_z, XK_Control_L);
    EXPECT_EQ(shown(), "12");
    press(XK_z, XK_Control_L);
    EXPECT_EQ(shown(), "__");
    press(XK_y, XK_Control_L);
    EXPECT_EQ(shown(), "12");
}

TEST_F(LineEditMask, ReturnWantsAllThatIsNeeded)
{
    use("90;_");
    EXPECT_FALSE(edit.hasAcceptableInput());
    press(XK_Return);
    EXPECT_EQ(heard(), "");
    type("1");
    heard();
    EXPECT_TRUE(edit.hasAcceptableInput()) << "the second place may stay empty";
    press(XK_Return);
    EXPECT_EQ(heard(), "returnPressed");
}

TEST_F(LineEditMask, AValidatorJudgesTheTextWithoutBlanks)
{
    const QIntValidator validator(0, 50, nullptr);
    edit.setValidator(&validator);
    use("99;_");
    type("61");
    EXPECT_EQ(shown(), "6_");
    edit.clearValidator();
}

TEST_F(LineEditMask, WithoutItAnyTextIsAllowedAgain)
{
    use("99;_");
    type("12");
    edit.setInputMask("");
    EXPECT_EQ(text(), "12");
    EXPECT_EQ(edit.maxLength(), 32767);
    type("ab");
    EXPECT_EQ(text(), "12ab");
}

TEST_F(LineEditMask, CanBeGivenFromTheBeginning)
{
    const QLineEdit made("1234", "99:99;-", &window, "made");
    EXPECT_EQ(made.displayText(), QString("12:34"));
    EXPECT_STREQ(made.name(), "made");
}
