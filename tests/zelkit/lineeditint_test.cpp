// ZelLineEditInt: what can be typed, and what the number is.
#include <zellineeditint.h>

#include "sentevents.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <X11/keysym.h>
#include <gtest/gtest.h>

#include <memory>

namespace
{

class LineEditInt : public testing::Test
{
protected:
    void make(int min, int max)
    {
        field.reset(new ZelLineEditInt(&window, "field", min, max));
        recorder.watch(field.get(), SIGNAL(valueChanged(int)));
    }

    // Digits; '<' is Backspace, '^' Home.
    std::string type(const std::string& keys)
    {
        for (const char key : keys) {
            if (key == '<')
                sendKey(field.get(), Qt::Key_Backspace);
            else if (key == '^')
                sendKey(field.get(), Qt::Key_Home);
            else
                sendKey(field.get(), key, key, 0, QString(QChar(key)));
        }
        return recorder.take();
    }

    std::string text() const { return field->text().latin1() ? field->text().latin1() : ""; }

    QWidget window;
    std::unique_ptr<ZelLineEditInt> field;
    SignalRecorder recorder;
};

} // namespace

TEST_F(LineEditInt, TellsEachNewNumber)
{
    make(0, 255);
    EXPECT_EQ(type("255"), "valueChanged(2) valueChanged(25) valueChanged(255)");
    EXPECT_EQ(type("5"), "");
    EXPECT_EQ(text(), "255");
    EXPECT_EQ(type("<"), "valueChanged(25)");
    EXPECT_EQ(type("<<"), "valueChanged(2) valueChanged(0)");
    EXPECT_EQ(text(), "");
}

TEST_F(LineEditInt, OnlyDigitsComeIn)
{
    make(0, 255);
    type("12");
    for (const char key : {'-', '+', 'a', ' ', '.'})
        EXPECT_EQ(type(std::string(1, key)), "");
    EXPECT_EQ(text(), "12");
}

TEST_F(LineEditInt, ANumberOutOfTheRangeIsTakenBack)
{
    make(1, 10);
    EXPECT_EQ(type("0"), "");
    EXPECT_EQ(text(), "0");
    make(0, 255);
    field->setText("07");
    EXPECT_EQ(type("99"), "valueChanged(79)");
    field->setText("026");
    EXPECT_EQ(type("9"), "");
    EXPECT_EQ(text(), "26");
    make(10, 5);
    EXPECT_EQ(type("7"), "");
    EXPECT_EQ(text(), "0");
}

TEST_F(LineEditInt, ANewTextWithTheSameNumberStays)
{
    make(0, 255);
    field->setText("12");
    EXPECT_EQ(type("^0"), "");
    EXPECT_EQ(text(), "012");
}

TEST_F(LineEditInt, TooLongNumbersAreTheLargest)
{
    make(0, 2147483647);
    field->setText("214748364");
    EXPECT_EQ(type("8"), "valueChanged(2147483647)");
    EXPECT_EQ(text(), "2147483648");
    EXPECT_EQ(type("99999999999999999999"), "");
}

TEST_F(LineEditInt, OtherKeysAreSwallowed)
{
    make(0, 255);
    EventCount keys(&window, QEvent::KeyPress);
    recorder.watch(field.get(), SIGNAL(returnPressed()));
    for (const int key :
         {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Up, Qt::Key_Down, Qt::Key_Prior, Qt::Key_F1})
        EXPECT_TRUE(sendKey(field.get(), key)) << key;
    EXPECT_EQ(keys.take(), 0);
    EXPECT_EQ(recorder.take(), "");
}

TEST_F(LineEditInt, RealKeysAndKeypadDigits)
{
    window.setGeometry(200, 150, 200, 60);
    make(0, 255);
    field->setGeometry(10, 10, 120, 30);
    field->show();
    showAndActivate(&window);
    field->setFocus();
    xinput::typeText("1");
    xinput::typeText("x7");
    EXPECT_TRUE(waitFor([this] { return text() == "17"; })) << text();
    xinput::typeKey(XK_Left, XK_Shift_L);
    xinput::typeText("8");
    EXPECT_TRUE(waitFor([this] { return text() == "18"; })) << text();
    EXPECT_EQ(recorder.take(), "valueChanged(1) valueChanged(17) valueChanged(18)");
}
