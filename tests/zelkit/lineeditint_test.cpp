// ZelLineEditInt: what can be typed, and what the number is.
#include <zellineeditint.h>

#include "keytwins.h"
#include "sentevents.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <X11/keysym.h>
#include <gtest/gtest.h>
#include <qapplication.h>
#include <qclipboard.h>
#include <qdialog.h>
#include <qmetaobject.h>
#include <qpushbutton.h>
#include <qstrlist.h>

#include <algorithm>
#include <climits>
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

    // With Control alone.
    std::string control(int key)
    {
        sendKey(field.get(), key, key - 64, Qt::ControlButton);
        return recorder.take();
    }
    std::string paste(const QString& text)
    {
        QApplication::clipboard()->setText(text, QClipboard::Clipboard);
        return control(Qt::Key_V);
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

TEST_F(LineEditInt, HasOneSignalAndNoSlots)
{
    make(0, 255);
    const QMetaObject* meta = field->metaObject();
    EXPECT_STREQ(meta->className(), "ZelLineEditInt");
    EXPECT_STREQ(meta->superClassName(), "QLineEdit");
    ASSERT_EQ(meta->signalNames().count(), 1u);
    EXPECT_STREQ(meta->signalNames().at(0), "valueChanged(int)");
    EXPECT_EQ(meta->slotNames().count(), 0u);
}

TEST_F(LineEditInt, StartsEmptyWhateverItsRange)
{
    for (const auto& range : {std::make_pair(0, 9), std::make_pair(5, 9), std::make_pair(9, 0)}) {
        make(range.first, range.second);
        EXPECT_EQ(text(), "");
        EXPECT_EQ(recorder.take(), "");
    }
}

TEST_F(LineEditInt, TheTextIsThereBeforeTheNumberIsTold)
{
    make(0, 255);
    recorder.watch(field.get(), SIGNAL(textChanged(const QString&)));
    EXPECT_EQ(type("2"), "textChanged(2) valueChanged(2)");
    type("55");
    EXPECT_EQ(type("5"), "textChanged(2555) textChanged(255)") << "it is written back";
    EXPECT_EQ(type("^0"), "textChanged(0255)");
}

TEST_F(LineEditInt, EveryKeyIsEitherLetThroughOrDropped)
{
    make(INT_MIN, INT_MAX);
    QLineEdit plain(&window, "plain");
    EventCount keys(&window, QEvent::KeyPress);
    const int free[] = {Qt::Key_Left, Qt::Key_Right,     Qt::Key_Home,
                        Qt::Key_End,  Qt::Key_Backspace, Qt::Key_Delete};
    for (const SentKey& key : everyKey()) {
        const bool through = std::find(std::begin(free), std::end(free), key.key) != std::end(free) ||
                             key.state == Qt::ControlButton || (key.ascii >= '0' && key.ascii <= '9');
        std::string states[2];
        bool accepted[2];
        int passedOn[2];
        QLineEdit* const twins[] = {&plain, field.get()};
        for (int i = 0; i < 2; ++i) {
            QApplication::clipboard()->setText("77", QClipboard::Clipboard);
            twins[i]->setText("123456");
            twins[i]->setSelection(2, 2);
            accepted[i] = send(twins[i], key);
            passedOn[i] = keys.take();
            states[i] = stateOf(*twins[i]);
        }
        EXPECT_EQ(states[1], through ? states[0] : "\"123456\" cursor 4 marked 2 \"34\"") << key;
        EXPECT_EQ(accepted[1], through ? accepted[0] : true) << key;
        EXPECT_EQ(passedOn[1], through ? passedOn[0] : 0) << key;
    }
}

TEST_F(LineEditInt, ReturnComesThroughWithControlAlone)
{
    make(0, 255);
    recorder.watch(field.get(), SIGNAL(returnPressed()));
    EventCount keys(&window, QEvent::KeyPress);
    EXPECT_FALSE(sendKey(field.get(), Qt::Key_Return, 13, Qt::ControlButton));
    EXPECT_EQ(recorder.take(), "returnPressed");
    EXPECT_EQ(keys.take(), 1);
    for (const int state : {Qt::ControlButton | Qt::ShiftButton, Qt::ControlButton | Qt::AltButton,
                            Qt::ControlButton | Qt::LeftButton, Qt::ControlButton | Qt::Keypad})
        EXPECT_TRUE(sendKey(field.get(), Qt::Key_Return, 13, state)) << state;
    EXPECT_EQ(recorder.take(), "");
    EXPECT_EQ(keys.take(), 0);
}

TEST_F(LineEditInt, ControlBindingsEditTheNumber)
{
    make(0, 255);
    type("123");
    EXPECT_EQ(control(Qt::Key_H), "valueChanged(12)");
    EXPECT_EQ(control(Qt::Key_A), "");
    EXPECT_EQ(control(Qt::Key_D), "valueChanged(2)");
    EXPECT_EQ(control(Qt::Key_K), "valueChanged(0)");
    EXPECT_EQ(text(), "");
    EXPECT_EQ(control(Qt::Key_Z), "valueChanged(12)") << "both deletions are undone together";
    EXPECT_EQ(control(Qt::Key_U), "valueChanged(0)");
    field->setText("42");
    field->selectAll();
    EXPECT_EQ(control(Qt::Key_C), "");
    EXPECT_EQ(control(Qt::Key_X), "valueChanged(0)");
    EXPECT_EQ(control(Qt::Key_V), "valueChanged(42)");
}

TEST_F(LineEditInt, APastedSignCountsAtTheStartOnly)
{
    make(0, 255);
    field->setText("12");
    field->home(false);
    EXPECT_EQ(paste("-5"), "");
    EXPECT_EQ(text(), "12") << "-512 is out of the range";
    field->end(false);
    EXPECT_EQ(paste("-5"), "");
    EXPECT_EQ(text(), "12-5") << "it still reads as 12";
    make(-600, 255);
    field->setText("12");
    field->home(false);
    EXPECT_EQ(paste("-5"), "valueChanged(-512)");
}

TEST_F(LineEditInt, LeadingBlanksAndAPlusAreReadOver)
{
    make(0, 255);
    EXPECT_EQ(paste("  +7x9"), "valueChanged(7)");
    EXPECT_EQ(text(), "  +7x9");
    field->clear();
    EXPECT_EQ(paste("x9"), "");
    EXPECT_EQ(paste("- 9"), "");
}

TEST_F(LineEditInt, LettersOfOtherScriptsAreNoDigits)
{
    make(0, 255);
    EXPECT_EQ(paste(QString::fromUtf8("\331\243\331\244")), "") << "Arabic digits";
    EXPECT_EQ(field->text().length(), 2u);
    field->clear();
    EXPECT_EQ(paste(QString::fromUtf8("5\342\202\254")), "valueChanged(5)");
}

TEST_F(LineEditInt, AMegabyteCanBePasted)
{
    make(0, 255);
    type("3");
    QString digits;
    digits.fill('9', 1 << 20);
    EXPECT_EQ(paste(digits), "");
    EXPECT_EQ(text(), "3") << "too large a number";
    field->clear();
    QString zeros;
    zeros.fill('0', 1 << 20);
    EXPECT_EQ(paste(zeros), "");
    EXPECT_EQ(field->text().length(), 32767u) << "as much as the field takes";
    EXPECT_EQ(type("^4"), "") << "it is full";
}

TEST_F(LineEditInt, NumbersBeyondTheTypeAreWrittenBackAsItsEnds)
{
    make(0, 255);
    field->setText("99999999999999999999");
    EXPECT_EQ(type("1"), "");
    EXPECT_EQ(text(), "2147483647");
    field->setText("2147483648");
    EXPECT_EQ(type("^"), "");
    EXPECT_EQ(text(), "2147483647") << "even when it only moves the cursor";
    field->setText("-99999999999999999999");
    EXPECT_EQ(type("1"), "");
    EXPECT_EQ(text(), "-2147483648");
}

TEST_F(LineEditInt, TheWholeRangeOfTheTypeCanBeUsed)
{
    make(INT_MIN, INT_MAX);
    field->setText("-214748364");
    EXPECT_EQ(type("8"), "valueChanged(-2147483648)");
    EXPECT_EQ(type("8"), "") << "it reads as the smallest number still";
    EXPECT_EQ(text(), "-21474836488");
    field->setText("214748364");
    EXPECT_EQ(type("7"), "valueChanged(2147483647)");
}

TEST_F(LineEditInt, WithAMinimumAboveTheMaximumEveryChangeIsUndone)
{
    make(10, 5);
    EXPECT_EQ(type("7"), "");
    EXPECT_EQ(text(), "0");
    field->setText("33");
    EXPECT_EQ(type("1"), "");
    EXPECT_EQ(text(), "33");
    EXPECT_EQ(type("<"), "");
    EXPECT_EQ(text(), "33");
    EXPECT_EQ(paste("4"), "");
    EXPECT_EQ(text(), "33");
}

TEST_F(LineEditInt, TheRestoredTextIsPlain)
{
    make(5, 255);
    field->setText("07");
    EXPECT_EQ(type("<"), "");
    EXPECT_EQ(text(), "7");
    field->setText("x");
    EXPECT_EQ(type("1"), "") << "it still reads as 0";
    EXPECT_EQ(text(), "0");
}

TEST_F(LineEditInt, ChangesByTheProgramAndTheMouseAreNotChecked)
{
    make(0, 255);
    field->setText("9999");
    field->clear();
    field->insert("888");
    EXPECT_EQ(recorder.take(), "");
    EXPECT_EQ(text(), "888");
    window.setGeometry(200, 150, 200, 60);
    field->setGeometry(10, 10, 120, 30);
    field->show();
    showAndActivate(&window);
    QApplication::clipboard()->setText("77", QClipboard::Selection);
    xinput::click(field.get(), 100, 15, 2);
    EXPECT_TRUE(waitFor([this] { return text() == "88877"; })) << text();
    EXPECT_EQ(recorder.take(), "");
}

TEST_F(LineEditInt, InADialogReturnDoesNotPressTheButton)
{
    QDialog dialog(0, "dialog");
    dialog.setGeometry(200, 150, 200, 120);
    ZelLineEditInt number(&dialog, "number", 0, 255);
    number.setGeometry(10, 10, 120, 30);
    QPushButton ok("OK", &dialog, "ok");
    ok.setGeometry(10, 60, 80, 30);
    ok.setDefault(true);
    recorder.watch(&ok, SIGNAL(clicked()));
    recorder.watch(&number, SIGNAL(returnPressed()));
    recorder.watch(&number, SIGNAL(valueChanged(int)));
    showAndActivate(&dialog);
    number.setFocus();
    for (const unsigned long key : {XK_Return, XK_KP_Enter, XK_Escape, XK_Up, XK_Down, XK_minus})
        xinput::typeKey(key);
    xinput::typeText("5");
    EXPECT_TRUE(waitFor([&] { return recorder.count() >= 1; }));
    settle();
    EXPECT_EQ(recorder.take(), "valueChanged(5)");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(number.hasFocus());
    xinput::typeKey(XK_Return, XK_Control_L);
    settle();
    EXPECT_EQ(recorder.take(), "returnPressed") << "the dialog's button wants no modifier";
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
    xinput::typeKey(XK_KP_7, XK_Num_Lock);
    EXPECT_TRUE(waitFor([this] { return text() == "187"; })) << text();
    xinput::typeKey(XK_Num_Lock);
    xinput::typeKey(XK_KP_Subtract);
    xinput::typeKey(XK_BackSpace, XK_Control_L);
    EXPECT_TRUE(waitFor([this] { return text() == ""; })) << text();
}
