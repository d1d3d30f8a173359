// Combo boxes: entries, keys, the open list, editing.
#include "messages.h"
#include "printers.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qcombobox.h>
#include <qevent.h>
#include <qfontmetrics.h>
#include <qlineedit.h>
#include <qlistbox.h>
#include <qstringlist.h>
#include <qvalidator.h>

#include <X11/keysym.h>

#include <string>

namespace
{

class ComboBox : public testing::TestWithParam<bool>
{
protected:
    ComboBox() : combo(GetParam(), &window, "combo"), other(&window)
    {
        window.setGeometry(100, 100, 240, 100);
        combo.setGeometry(10, 10, 130, 28);
        other.setGeometry(10, 60, 130, 24);
        fill();
        showAndActivate(&window);
        combo.setFocus();
        settle();
        recorder.watch(&combo, SIGNAL(activated(int)));
        recorder.watch(&combo, SIGNAL(activated(const QString&)), "chosen");
        recorder.watch(&combo, SIGNAL(highlighted(int)));
        recorder.watch(&combo, SIGNAL(textChanged(const QString&)));
    }

    void fill()
    {
        const char* texts[] = {"One", "Two", "Three", "Four", nullptr};
        combo.clear();
        combo.insertStrList(texts);
    }
    std::string heard()
    {
        settle();
        return recorder.take();
    }
    std::string texts() const
    {
        std::string all;
        for (int i = 0; i < combo.count(); ++i)
            all += std::string(i ? " " : "") + combo.text(i).latin1();
        return all;
    }
    bool isOpen() const { return QApplication::activePopupWidget() == combo.listBox(); }

    QWidget window;
    QComboBox combo;
    QLineEdit other;
    SignalRecorder recorder;
};

class PlainComboBox : public ComboBox
{
};
class EditableComboBox : public ComboBox
{
};

INSTANTIATE_TEST_SUITE_P(Kinds, ComboBox, testing::Bool());
INSTANTIATE_TEST_SUITE_P(Kind, PlainComboBox, testing::Values(false));
INSTANTIATE_TEST_SUITE_P(Kind, EditableComboBox, testing::Values(true));

} // namespace

TEST_P(ComboBox, StartsWithTheFirstEntry)
{
    EXPECT_EQ(combo.currentItem(), 0);
    EXPECT_EQ(combo.currentText(), QString("One"));
    EXPECT_EQ(combo.editable(), GetParam());
    EXPECT_EQ(combo.lineEdit() != nullptr, GetParam());
    EXPECT_EQ(combo.sizeLimit(), 10);
    EXPECT_EQ(combo.insertionPolicy(), QComboBox::AtBottom);
}

TEST_P(ComboBox, InsertsAndRemovesEntries)
{
    combo.insertItem("Zero", 0);
    combo.insertItem("Five");
    EXPECT_EQ(texts(), "Zero One Two Three Four Five");
    combo.removeItem(1);
    combo.changeItem("2", 1);
    EXPECT_EQ(texts(), "Zero 2 Three Four Five");
    combo.clear();
    EXPECT_EQ(combo.count(), 0);
    EXPECT_TRUE(combo.currentText().isEmpty());
}

TEST_P(ComboBox, TheCurrentEntryIsNeverBehindTheEnd)
{
    combo.setCurrentItem(combo.count() - 1);
    combo.setMaxCount(1);
    EXPECT_LE(combo.currentItem(), combo.count());
    combo.setMaxCount(-1);
    EXPECT_EQ(combo.count(), 0);
    EXPECT_EQ(combo.currentItem(), 0);
}

TEST_P(ComboBox, ArrowKeysChoose)
{
    xinput::typeKey(XK_Down);
    EXPECT_EQ(heard(), GetParam() ? "textChanged(Two) highlighted(1) chosen(Two) activated(1)"
                                  : "highlighted(1) chosen(Two) activated(1)");
    xinput::typeKey(XK_Up);
    xinput::typeKey(XK_Up);
    settle();
    EXPECT_EQ(combo.currentItem(), 0);
}

TEST_P(ComboBox, TheWheelChooses)
{
    xinput::moveTo(&combo, 120, 14);
    xinput::pressButton(5);
    xinput::releaseButton(5);
    EXPECT_EQ(heard(), GetParam() ? "textChanged(Two) highlighted(1) activated(1) chosen(Two)"
                                  : "highlighted(1) activated(1) chosen(Two)");
    for (int i = 0; i < 3; ++i) {
        xinput::pressButton(4);
        xinput::releaseButton(4);
    }
    settle();
    EXPECT_EQ(combo.currentItem(), 0);
}

TEST_P(ComboBox, F4OpensTheListBelowAndReturnChooses)
{
    xinput::typeKey(XK_F4);
    ASSERT_TRUE(waitFor([&] { return isOpen(); }));
    EXPECT_EQ(combo.listBox()->pos(), combo.mapToGlobal(QPoint(0, 28)));
    EXPECT_EQ(combo.listBox()->height(), 4 * combo.listBox()->itemHeight() + 2);
    EXPECT_TRUE(combo.listBox()->hasFocus());
    heard();
    xinput::typeKey(XK_Down);
    EXPECT_EQ(heard(), "highlighted(1)");
    EXPECT_EQ(combo.currentItem(), 0) << "not chosen yet";
    xinput::typeKey(XK_Return);
    EXPECT_EQ(heard(), GetParam() ? "textChanged(Two) activated(1) chosen(Two)" : "activated(1) chosen(Two)");
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(combo.hasFocus());
}

TEST_P(ComboBox, EscapeClosesTheListWithoutAChoice)
{
    combo.popup();
    xinput::typeKey(XK_Down);
    xinput::typeKey(XK_Escape);
    EXPECT_EQ(heard(), "highlighted(1) highlighted(0)");
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(combo.currentItem(), 0);
}

TEST_P(ComboBox, ClicksOpenTheListAndChooseFromIt)
{
    xinput::click(&combo, 115, 14);
    ASSERT_TRUE(waitFor([&] { return isOpen(); }));
    heard();
    xinput::click(combo.listBox()->viewport(), 20, 50);
    EXPECT_EQ(heard(), GetParam() ? "highlighted(2) textChanged(Three) activated(2) chosen(Three)"
                                  : "highlighted(2) activated(2) chosen(Three)");
    EXPECT_FALSE(isOpen());
}

TEST_P(ComboBox, OnePressDragsIntoTheList)
{
    xinput::moveTo(&combo, 115, 14);
    xinput::pressButton();
    ASSERT_TRUE(waitFor([&] { return isOpen(); }));
    settle();
    xinput::moveTo(combo.listBox()->viewport(), 20, 70);
    settle();
    xinput::releaseButton();
    settle();
    EXPECT_EQ(combo.currentItem(), 3);
    EXPECT_FALSE(isOpen());
}

TEST_P(ComboBox, AClickElsewhereClosesTheList)
{
    combo.popup();
    settle();
    xinput::moveToRoot(700, 600);
    xinput::pressButton();
    xinput::releaseButton();
    EXPECT_TRUE(waitFor([&] { return !isOpen(); }));
    EXPECT_EQ(combo.currentItem(), 0);
}

TEST_P(PlainComboBox, LettersFindEntries)
{
    xinput::typeKey(XK_t);
    EXPECT_EQ(heard(), "highlighted(1) chosen(Two) activated(1)");
    xinput::typeKey(XK_Right);
    EXPECT_EQ(heard(), "");
}

TEST_P(PlainComboBox, AnUnknownTextReplacesTheCurrentEntry)
{
    combo.setCurrentText("Three");
    EXPECT_EQ(combo.currentItem(), 2);
    combo.setCurrentText("new");
    EXPECT_EQ(texts(), "One Two new Four");
}

TEST_P(PlainComboBox, OfTwoArgumentsKeepsItsListToItself)
{
    QComboBox bare(&window);
    EXPECT_EQ(bare.listBox(), static_cast<QListBox*>(nullptr));
}

TEST_P(EditableComboBox, TheFieldHasTheFocus)
{
    EXPECT_EQ(combo.focusProxy(), combo.lineEdit());
    EXPECT_TRUE(combo.lineEdit()->hasFocus());
}

TEST_P(EditableComboBox, ReturnInsertsTheText)
{
    combo.lineEdit()->selectAll();
    xinput::typeText("x");
    EXPECT_EQ(heard(), "textChanged(x)");
    xinput::typeKey(XK_Return);
    EXPECT_EQ(heard(), "highlighted(4) activated(4) chosen(x)");
    EXPECT_EQ(texts(), "One Two Three Four x");
}

TEST_P(EditableComboBox, PoliciesSayWhere)
{
    const struct {
        QComboBox::Policy policy;
        const char* texts;
        int current;
    } cases[] = {{QComboBox::NoInsertion, "One Two Three Four", 1},
                 {QComboBox::AtTop, "new One Two Three Four", 0},
                 {QComboBox::AtCurrent, "One new Three Four", 1},
                 {QComboBox::AtBottom, "One Two Three Four new", 4},
                 {QComboBox::AfterCurrent, "One Two new Three Four", 2},
                 {QComboBox::BeforeCurrent, "One new Two Three Four", 1}};
    for (const auto& each : cases) {
        fill();
        combo.setCurrentItem(1);
        combo.setInsertionPolicy(each.policy);
        combo.setEditText("new");
        xinput::typeKey(XK_Return);
        settle();
        EXPECT_EQ(texts(), each.texts);
        EXPECT_EQ(combo.currentItem(), each.current) << each.texts;
    }
}

TEST_P(EditableComboBox, DuplicatesAreChosenInsteadOfInserted)
{
    combo.setDuplicatesEnabled(false);
    combo.setEditText("Three");
    heard();
    xinput::typeKey(XK_Return);
    EXPECT_EQ(heard(), "highlighted(2) activated(2) chosen(Three)");
    EXPECT_EQ(combo.count(), 4);
}

TEST_P(EditableComboBox, SettingTheTextLeavesTheEntriesAlone)
{
    combo.setCurrentItem(2);
    heard();
    combo.setEditText("free");
    EXPECT_EQ(heard(), "textChanged(free)");
    EXPECT_EQ(combo.currentItem(), 2);
    EXPECT_EQ(combo.currentText(), QString("free"));
    EXPECT_EQ(combo.count(), 4);
}

TEST_P(EditableComboBox, TypingIsCompletedOnWish)
{
    combo.setAutoCompletion(true);
    combo.clearEdit();
    xinput::typeText("t");
    settle();
    EXPECT_EQ(combo.currentText(), QString("Two"));
    EXPECT_EQ(combo.lineEdit()->selectedText(), QString("wo"));
    xinput::typeText("h");
    settle();
    EXPECT_EQ(combo.lineEdit()->selectedText(), QString("ree"));
}

TEST_P(ComboBox, OtherKeysAreLeftToOthers)
{
    combo.setInsertionPolicy(QComboBox::NoInsertion); // else Return adds the text
    QWidget* receiver =
        combo.lineEdit() ? static_cast<QWidget*>(combo.lineEdit()) : static_cast<QWidget*>(&combo);
    for (const int key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter, Qt::Key_F1, Qt::Key_F5,
                          Qt::Key_Prior, Qt::Key_Next, Qt::Key_Insert}) {
        QKeyEvent event(QEvent::KeyPress, key, 0, 0);
        QApplication::sendEvent(receiver, &event);
        EXPECT_FALSE(event.isAccepted()) << key;
    }
    EXPECT_EQ(combo.currentItem(), 0);
}

TEST_P(ComboBox, ADisabledOneIsDeaf)
{
    combo.setEnabled(false);
    xinput::click(&combo, 115, 14);
    xinput::pressButton(5);
    xinput::releaseButton(5);
    EXPECT_EQ(heard(), "");
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(combo.currentItem(), 0);
}

TEST_P(ComboBox, AnEmptyOneDoesNotOpenOrChoose)
{
    combo.clear();
    heard();
    xinput::click(&combo, 115, 14);
    xinput::typeKey(XK_Down);
    xinput::pressButton(5);
    xinput::releaseButton(5);
    EXPECT_EQ(heard(), "");
    EXPECT_FALSE(isOpen());
}

TEST_P(ComboBox, MayBecomeEditableAndBack)
{
    for (int i = 0; i < 2; ++i) {
        combo.setEditable(!combo.editable());
        settle();
        EXPECT_EQ(combo.lineEdit() != nullptr, combo.editable());
        EXPECT_EQ(combo.currentText(), QString("One"));
        combo.setFocus();
        xinput::typeKey(XK_Down);
        settle();
        EXPECT_EQ(combo.currentText(), QString("Two"));
        combo.setCurrentItem(0);
    }
}

TEST_P(EditableComboBox, TheUserMayAddUpToItsMaximum)
{
    combo.setMaxCount(5);
    for (const char* text : {"five", "six"}) {
        combo.setEditText(text);
        xinput::typeKey(XK_Return);
        settle();
        EXPECT_EQ(combo.count(), 5);
        EXPECT_EQ(combo.text(4), QString(text)) << "the last one makes room";
    }
}

TEST_P(EditableComboBox, AValidatorKeepsTextsOut)
{
    const QIntValidator validator(0, 99, nullptr);
    combo.setValidator(&validator);
    combo.clearEdit();
    xinput::typeText("a4b2c7");
    settle();
    EXPECT_EQ(combo.currentText(), QString("42"));
    combo.clearValidator();
}

TEST_P(ComboBox, WantsRoomForItsWidestEntry)
{
    const QFontMetrics metrics(combo.font());
    combo.insertItem("An entry that is wider than all the others");
    const int text = metrics.width("An entry that is wider than all the others");
    EXPECT_EQ(combo.sizeHint(), QSize(text + 31, metrics.lineSpacing() + 6));
    combo.clear();
    EXPECT_EQ(combo.sizeHint().width(), 7 * metrics.width('x') + 43);
}
