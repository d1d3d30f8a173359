// ZelComboBox: leaving, losing the focus, and the keys that stay in the box.
#include <zelcombobox.h>

#include "keytwins.h"
#include "pixels.h"
#include "sentevents.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "windowmanager.h"
#include "xinput.h"

#include <X11/keysym.h>
#include <gtest/gtest.h>
#include <qapplication.h>
#include <qdialog.h>
#include <qmetaobject.h>
#include <qlineedit.h>
#include <qlistbox.h>
#include <qpushbutton.h>
#include <qstrlist.h>

#include <memory>

namespace
{

enum class Kind { TwoArguments, Plain, Editable };

class ComboBox : public testing::TestWithParam<Kind>
{
protected:
    ComboBox() : window(nullptr, "window"), button("other", &window, "button")
    {
        window.setGeometry(200, 150, 240, 120);
        button.setGeometry(10, 60, 80, 30);
        if (GetParam() == Kind::TwoArguments)
            box.reset(new ZelComboBox(&window, "box"));
        else
            box.reset(new ZelComboBox(GetParam() == Kind::Editable, &window, "box"));
        box->setGeometry(10, 10, 120, 30);
        fill(box.get());
        for (const char* signal : {SIGNAL(leave()), SIGNAL(focusOut()), SIGNAL(escapePressed())})
            recorder.watch(box.get(), signal);
    }
    static void fill(QComboBox* combo)
    {
        for (const char* text : {"One", "Two", "Three"})
            combo->insertItem(text);
    }
    // Who gets the keys.
    static QWidget* field(QComboBox* combo)
    {
        return combo->lineEdit() ? static_cast<QWidget*>(combo->lineEdit()) : static_cast<QWidget*>(combo);
    }
    std::string heard()
    {
        settle();
        return recorder.take();
    }
    bool isOpen() const { return QApplication::activePopupWidget() != nullptr; }
    // Gives the box the focus and forgets what it said meanwhile.
    void focus()
    {
        showAndActivate(&window);
        box->setFocus();
        heard();
    }

    QWidget window;
    QPushButton button;
    std::unique_ptr<ZelComboBox> box;
    SignalRecorder recorder;
};

INSTANTIATE_TEST_SUITE_P(Kinds, ComboBox, testing::Values(Kind::TwoArguments, Kind::Plain, Kind::Editable));

const int keptKeys[] = {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter};

} // namespace

TEST_P(ComboBox, HasThreeSignalsAndNoSlots)
{
    const QMetaObject* meta = box->metaObject();
    EXPECT_STREQ(meta->className(), "ZelComboBox");
    EXPECT_STREQ(meta->superClassName(), "QComboBox");
    std::string names;
    QStrList signalNames = meta->signalNames();
    for (const char* name = signalNames.first(); name; name = signalNames.next())
        names += std::string(name) + ' ';
    EXPECT_EQ(names, "leave() focusOut() escapePressed() ");
    EXPECT_EQ(meta->slotNames().count(), 0u);
}

TEST_P(ComboBox, TheConstructorsChooseWhetherItCanBeEdited)
{
    EXPECT_EQ(box->editable(), GetParam() == Kind::Editable);
    EXPECT_EQ(box->listBox() == nullptr, GetParam() == Kind::TwoArguments);
    EXPECT_STREQ(box->name(), "box");
    EXPECT_EQ(box->parentWidget(), &window);
}

TEST_P(ComboBox, KeepsReturnEnterAndEscapeWithAnyModifier)
{
    EventCount keys(&window, QEvent::KeyPress);
    for (const int state : {0, static_cast<int>(Qt::ShiftButton), static_cast<int>(Qt::ControlButton),
                            static_cast<int>(Qt::AltButton), static_cast<int>(Qt::Keypad)}) {
        for (const int key : keptKeys)
            EXPECT_TRUE(sendKey(field(box.get()), key, 0, state)) << key << " with " << state;
        EXPECT_EQ(recorder.take(), "escapePressed") << state;
    }
    EXPECT_EQ(keys.take(), 0);
}

TEST_P(ComboBox, EscapeIsAcceptedBeforeItIsTold)
{
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, 27, 0);
    recorder.whenever = [&] { EXPECT_TRUE(escape.isAccepted()); };
    QApplication::sendEvent(box.get(), &escape);
    EXPECT_EQ(recorder.take(), "escapePressed");
}

TEST_P(ComboBox, AllOtherKeysDoWhatTheyDoInAPlainOne)
{
    std::unique_ptr<QComboBox> plain(GetParam() == Kind::TwoArguments
                                         ? new QComboBox(&window, "plain")
                                         : new QComboBox(GetParam() == Kind::Editable, &window, "plain"));
    fill(plain.get());
    EventCount keys(&window, QEvent::KeyPress);
    for (const SentKey& key : everyKey()) {
        if (key.key == Qt::Key_Escape || key.key == Qt::Key_Return || key.key == Qt::Key_Enter)
            continue;
        QComboBox* const twins[] = {plain.get(), box.get()};
        std::string states[2];
        bool accepted[2];
        int passedOn[2];
        for (int i = 0; i < 2; ++i) {
            twins[i]->setCurrentItem(1);
            if (twins[i]->editable())
                twins[i]->setEditText("Two");
            accepted[i] = send(field(twins[i]), key);
            passedOn[i] = keys.take();
            if (isOpen())
                states[i] = "open ";
            while (QWidget* popup = QApplication::activePopupWidget())
                popup->hide();
            states[i] += std::to_string(twins[i]->currentItem()) + ' ' + twins[i]->currentText().latin1();
        }
        EXPECT_EQ(states[0], states[1]) << key;
        EXPECT_EQ(accepted[0], accepted[1]) << key;
        EXPECT_EQ(passedOn[0], passedOn[1]) << key;
    }
}

TEST_P(ComboBox, LosingTheFocusIsTold)
{
    focus();
    button.setFocus();
    EXPECT_EQ(heard(), "focusOut");
    box->setFocus();
    heard();
    xinput::typeKey(XK_Tab);
    EXPECT_EQ(heard(), "focusOut");
    EXPECT_TRUE(button.hasFocus());
}

TEST_P(ComboBox, LosingTheFocusIsToldBeforeItIsHandled)
{
    focus();
    PaintLog paints(box.get());
    std::string painted = "not told";
    recorder.whenever = [&] { painted = paints.take(); };
    QFocusEvent event(QEvent::FocusOut);
    QApplication::sendEvent(box.get(), &event);
    EXPECT_EQ(painted, "");
    EXPECT_EQ(paints.take(), "kept");
    box->listBox() ? box->listBox()->setFocus() : button.setFocus();
    recorder.whenever = nullptr;
    recorder.take();
    paints.take();
    QApplication::sendEvent(box.get(), &event);
    EXPECT_EQ(recorder.take(), box->listBox() ? "" : "focusOut");
    EXPECT_EQ(paints.take(), "kept") << "handled also when it is not told";
}

TEST_P(ComboBox, TheFocusFrameGoesWithTheFocus)
{
    showAndActivate(&window);
    button.setFocus();
    settle();
    const Pixels without = Pixels::now(box.get());
    box->setFocus();
    settle();
    const Pixels with = Pixels::now(box.get());
    if (GetParam() != Kind::Editable) {
        EXPECT_NE(with, without);
    }
    button.setFocus();
    EXPECT_EQ(Pixels::now(box.get()).differenceFrom(without), "");
}

TEST_P(ComboBox, LosingTheFocusToItsOwnListIsNoLeaving)
{
    focus();
    xinput::typeKey(XK_F4);
    ASSERT_TRUE(waitFor([&] { return isOpen(); }));
    EXPECT_EQ(heard(), GetParam() == Kind::TwoArguments ? "focusOut" : "")
        << "of two arguments it knows no list box";
    xinput::typeKey(XK_Down);
    xinput::typeKey(XK_Return);
    ASSERT_TRUE(waitFor([&] { return !isOpen(); }));
    EXPECT_EQ(heard(), "");
    EXPECT_EQ(box->currentItem(), 1);
    EXPECT_TRUE(field(box.get())->hasFocus());
}

TEST_P(ComboBox, WhenNobodyHasTheFocusOneWithoutAListSaysNothing)
{
    WindowManager manager;
    focus();
    manager.iconify(window);
    EXPECT_TRUE(waitFor([] { return !qApp->focusWidget(); }));
    EXPECT_EQ(heard(), GetParam() == Kind::TwoArguments ? "" : "focusOut");
}

TEST_P(ComboBox, EscapeInTheOpenListOnlyClosesIt)
{
    focus();
    box->popup();
    heard();
    xinput::typeKey(XK_Escape);
    ASSERT_TRUE(waitFor([&] { return !isOpen(); }));
    EXPECT_EQ(heard(), "");
    xinput::typeKey(XK_Escape);
    EXPECT_EQ(heard(), "escapePressed");
}

TEST_P(ComboBox, TellsOnceThatThePointerLeft)
{
    focus();
    for (const int x : {100, 40}) { // the arrow, the text
        xinput::moveTo(box.get(), x, 15);
        EXPECT_TRUE(waitFor([&] { return box->hasMouse() || field(box.get())->hasMouse(); }));
        xinput::moveTo(box.get(), x + 3, 15);
        EXPECT_EQ(heard(), "");
        xinput::park();
        EXPECT_TRUE(waitFor([&] { return recorder.count() >= 1; }));
        EXPECT_EQ(heard(), "leave");
    }
}

TEST_P(ComboBox, InADialogItsKeysDoNotReachTheButtons)
{
    for (const bool managed : {false, true}) {
        std::unique_ptr<WindowManager> manager(managed ? new WindowManager : nullptr);
        QDialog dialog(0, "dialog");
        dialog.setGeometry(200, 150, 200, 120);
        QPushButton ok("OK", &dialog, "ok");
        ok.setGeometry(10, 60, 80, 30);
        ok.setDefault(true);
        box->reparent(&dialog, QPoint(10, 10), true);
        recorder.watch(&ok, SIGNAL(clicked()));
        showAndActivate(&dialog);
        box->setFocus();
        heard();
        for (const unsigned long key : {XK_Return, XK_KP_Enter, XK_Escape})
            xinput::typeKey(key);
        EXPECT_TRUE(waitFor([&] { return recorder.count() >= 1; }));
        EXPECT_EQ(heard(), "escapePressed");
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(box->count(), 3);
        box->reparent(&window, QPoint(10, 10), true);
        heard();
    }
}

TEST(EditableComboBox, ReturnIsKeptFromItsFieldToo)
{
    QWidget window(nullptr, "window");
    ZelComboBox box(true, &window, "box");
    SignalRecorder recorder;
    recorder.watch(box.lineEdit(), SIGNAL(returnPressed()));
    recorder.watch(&box, SIGNAL(activated(int)));
    box.setEditText("typed");
    EXPECT_TRUE(sendKey(box.lineEdit(), Qt::Key_Return, 13));
    EXPECT_EQ(recorder.take(), "");
    EXPECT_EQ(box.count(), 0);
    EXPECT_EQ(box.currentText(), QString("typed"));
}
