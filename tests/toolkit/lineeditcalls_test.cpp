// A line edit in the hands of its program.
#include "waiting.h"

#include <gtest/gtest.h>
#include <qlineedit.h>
#include <qvalidator.h>

namespace
{

class LineEditCalls : public testing::Test
{
protected:
    LineEditCalls() : edit("some words", nullptr, "edit") {}

    std::string text() { return edit.text().latin1(); }

    QLineEdit edit;
};

} // namespace

TEST_F(LineEditCalls, MoveTheCursor)
{
    edit.setCursorPosition(5);
    edit.cursorForward(false);
    EXPECT_EQ(6, edit.cursorPosition());
    edit.cursorBackward(false, 3);
    EXPECT_EQ(3, edit.cursorPosition());
    edit.cursorRight(true, 2);
    EXPECT_EQ("e ", edit.markedText());
    EXPECT_TRUE(edit.hasMarkedText());
    int from = 0;
    int to = 0;
    EXPECT_TRUE(edit.getSelection(&from, &to));
    EXPECT_EQ(3, from);
    EXPECT_EQ(5, to);
    edit.cursorLeft(false);
    EXPECT_FALSE(edit.hasMarkedText());
}

TEST_F(LineEditCalls, DeleteAtTheCursor)
{
    edit.setCursorPosition(4);
    edit.backspace();
    EXPECT_EQ("som words", text());
    edit.del();
    EXPECT_EQ("somwords", text());
    edit.setSelection(0, 3);
    edit.del();
    EXPECT_EQ("words", text());
    EXPECT_FALSE(edit.isRedoAvailable());
    edit.undo();
    EXPECT_TRUE(edit.isRedoAvailable());
}

TEST_F(LineEditCalls, SettingsAreKept)
{
    EXPECT_TRUE(edit.frame());
    EXPECT_EQ(QLineEdit::Normal, edit.echoMode());
    edit.setEchoMode(QLineEdit::Password);
    EXPECT_EQ(QLineEdit::Password, edit.echoMode());
    EXPECT_EQ(Qt::AlignAuto, edit.alignment());
    edit.setAlignment(Qt::AlignRight);
    EXPECT_EQ(Qt::AlignRight, edit.alignment());
    EXPECT_FALSE(edit.isReadOnly());
    edit.setReadOnly(true);
    EXPECT_TRUE(edit.isReadOnly());
    EXPECT_TRUE(edit.dragEnabled());
    edit.setDragEnabled(false);
    EXPECT_FALSE(edit.dragEnabled());
    QDoubleValidator numbers(0, 10, 2, &edit);
    edit.setValidator(&numbers);
    EXPECT_EQ(&numbers, edit.validator());
}

TEST_F(LineEditCalls, RememberWhetherTheUserEdited)
{
    edit.setEdited(true);
    EXPECT_TRUE(edit.isModified());
    edit.clearModified();
    EXPECT_FALSE(edit.isModified());
}

TEST(DoubleValidator, HasItsLimitsSetOneByOne)
{
    QDoubleValidator numbers(0, 10, 1, nullptr, "numbers");
    numbers.setBottom(-1.5);
    numbers.setTop(2.5);
    numbers.setDecimals(3);
    EXPECT_EQ(-1.5, numbers.bottom());
    EXPECT_EQ(2.5, numbers.top());
    EXPECT_EQ(3, numbers.decimals());
    QString text = "2.125";
    int position = 0;
    EXPECT_EQ(QValidator::Acceptable, numbers.validate(text, position));
    numbers.fixup(text);
    EXPECT_EQ("2.125", text);
}
