// ZelLineEdit: leaving, losing the focus, and the keys that stay in the field.
#include <zellineedit.h>

#include "keytwins.h"
#include "sentevents.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "windowmanager.h"
#include "xinput.h"

#include <X11/keysym.h>
#include <gtest/gtest.h>
#include <qapplication.h>
#include <qclipboard.h>
#include <qdialog.h>
#include <qmetaobject.h>
#include <qpushbutton.h>
#include <qstrlist.h>

namespace
{

const int keptKeys[] = {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter};
const int everyModifier[] = {
    0, Qt::ShiftButton, Qt::ControlButton, Qt::AltButton, Qt::ControlButton | Qt::ShiftButton, Qt::Keypad};

class LineEdit : public testing::Test
{
protected:
    LineEdit() : window(nullptr, "window"), edit(&window, "edit"), other(&window, "other")
    {
        window.setGeometry(200, 150, 200, 120);
        edit.setGeometry(10, 10, 120, 30);
        other.setGeometry(10, 60, 120, 30);
    }
    void watchAll()
    {
        for (const char* signal : {SIGNAL(leave(QEvent*)), SIGNAL(focusOut()), SIGNAL(escapePressed()),
                                   SIGNAL(returnPressed()), SIGNAL(lostFocus()), SIGNAL(selectionChanged())})
            recorder.watch(&edit, signal);
    }
    std::string heard()
    {
        settle();
        return recorder.take();
    }

    QWidget window;
    ZelLineEdit edit, other;
    SignalRecorder recorder;
};

// Remembers the leave event that it was given.
class Leaver : public QObject
{
    Q_OBJECT

public:
    const QEvent* seen = nullptr;
    QEvent::Type type = QEvent::None;

public slots:
    void left(QEvent* event)
    {
        seen = event;
        type = event->type();
    }
};

// A dialog with a default button and one of our fields.
class FieldDialog : public QDialog
{
public:
    FieldDialog() : QDialog(0, "dialog"), edit(this, "edit"), ok("OK", this, "ok")
    {
        setGeometry(200, 150, 200, 120);
        edit.setGeometry(10, 10, 120, 30);
        ok.setGeometry(10, 60, 80, 30);
        ok.setDefault(true);
        recorder.watch(&ok, SIGNAL(clicked()));
        recorder.watch(&edit, SIGNAL(returnPressed()));
        recorder.watch(&edit, SIGNAL(escapePressed()));
    }
    void typeTheKeptKeys()
    {
        showAndActivate(this);
        edit.setFocus();
        for (const unsigned long key : {XK_Return, XK_KP_Enter, XK_Escape})
            xinput::typeKey(key);
        EXPECT_TRUE(waitFor([&] { return recorder.count() >= 3; }));
        settle();
        EXPECT_EQ(recorder.take(), "returnPressed returnPressed escapePressed");
        EXPECT_TRUE(isVisible());
        xinput::typeKey(XK_Tab);
        settle();
        EXPECT_TRUE(ok.hasFocus());
        xinput::typeKey(XK_Return);
        settle();
        EXPECT_EQ(recorder.take(), "clicked") << "elsewhere Return presses the button";
        xinput::typeKey(XK_Escape);
        EXPECT_TRUE(waitFor([&] { return !isVisible(); })) << "elsewhere Escape closes the dialog";
    }

    ZelLineEdit edit;
    QPushButton ok;
    SignalRecorder recorder;
};

} // namespace

TEST_F(LineEdit, HasThreeSignalsAndNoSlots)
{
    const QMetaObject* meta = edit.metaObject();
    EXPECT_STREQ(meta->className(), "ZelLineEdit");
    EXPECT_STREQ(meta->superClassName(), "QLineEdit");
    std::string names;
    QStrList signalNames = meta->signalNames();
    for (const char* name = signalNames.first(); name; name = signalNames.next())
        names += std::string(name) + ' ';
    EXPECT_EQ(names, "leave(QEvent*) focusOut() escapePressed() ");
    EXPECT_EQ(meta->slotNames().count(), 0u);
}

TEST_F(LineEdit, IsALineEditInEverythingElse)
{
    EXPECT_EQ(edit.text(), QString(""));
    EXPECT_EQ(edit.parentWidget(), &window);
    EXPECT_STREQ(edit.name(), "edit");
    const QLineEdit plain(&window, "plain");
    EXPECT_EQ(edit.focusPolicy(), plain.focusPolicy());
    EXPECT_EQ(edit.sizeHint(), plain.sizeHint());
    const ZelLineEdit alone;
    EXPECT_TRUE(alone.isTopLevel());
}

TEST_F(LineEdit, KeepsReturnEnterAndEscapeWithAnyModifier)
{
    EventCount keys(&window, QEvent::KeyPress);
    recorder.watch(&edit, SIGNAL(escapePressed()));
    recorder.watch(&edit, SIGNAL(returnPressed()));
    for (const int state : everyModifier) {
        for (const int key : keptKeys)
            EXPECT_TRUE(sendKey(&edit, key, 0, state)) << key << " with " << state;
        EXPECT_EQ(recorder.take(), "escapePressed returnPressed returnPressed") << state;
    }
    EXPECT_EQ(keys.take(), 0);
}

TEST_F(LineEdit, EscapeIsAcceptedBeforeItIsTold)
{
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, 27, 0);
    escape.ignore();
    recorder.watch(&edit, SIGNAL(escapePressed()));
    recorder.whenever = [&] { EXPECT_TRUE(escape.isAccepted()); };
    QApplication::sendEvent(&edit, &escape);
    EXPECT_EQ(recorder.take(), "escapePressed");
}

TEST_F(LineEdit, AllOtherKeysDoWhatTheyDoInAPlainOne)
{
    QLineEdit plain(&window, "plain");
    EventCount keys(&window, QEvent::KeyPress);
    recorder.watch(&edit, SIGNAL(escapePressed()));
    for (const SentKey& key : everyKey()) {
        if (key.key == Qt::Key_Escape || key.key == Qt::Key_Return || key.key == Qt::Key_Enter)
            continue;
        std::string states[2];
        bool accepted[2];
        int passedOn[2];
        QLineEdit* const twins[] = {&plain, &edit};
        for (int i = 0; i < 2; ++i) {
            QApplication::clipboard()->setText("clip", QClipboard::Clipboard);
            twins[i]->setText("one two.three");
            twins[i]->setSelection(2, 4);
            accepted[i] = send(twins[i], key);
            passedOn[i] = keys.take();
            states[i] = stateOf(*twins[i]) + QApplication::clipboard()->text(QClipboard::Clipboard).latin1();
        }
        EXPECT_EQ(states[0], states[1]) << key;
        EXPECT_EQ(accepted[0], accepted[1]) << key;
        EXPECT_EQ(passedOn[0], passedOn[1]) << key;
    }
    EXPECT_EQ(recorder.take(), "");
}

TEST_F(LineEdit, ReadOnlyItKeepsTheKeysToo)
{
    edit.setReadOnly(true);
    recorder.watch(&edit, SIGNAL(escapePressed()));
    for (const int key : keptKeys)
        EXPECT_TRUE(sendKey(&edit, key)) << key;
    EXPECT_EQ(recorder.take(), "escapePressed");
}

TEST_F(LineEdit, ReleasedKeysAreNotKept)
{
    recorder.watch(&edit, SIGNAL(escapePressed()));
    QKeyEvent up(QEvent::KeyRelease, Qt::Key_Escape, 27, 0);
    QApplication::sendEvent(&edit, &up);
    EXPECT_FALSE(up.isAccepted());
    EXPECT_EQ(recorder.take(), "");
}

TEST_F(LineEdit, TellsOfTheFocusBeforeItHandlesIt)
{
    watchAll();
    edit.setText("text");
    showAndActivate(&window);
    edit.setFocus();
    edit.selectAll();
    heard();
    recorder.whenever = [&] {
        const bool first = recorder.count() == 1;
        EXPECT_EQ(edit.hasSelectedText(), first);
    };
    other.setFocus();
    EXPECT_EQ(heard(), "focusOut selectionChanged lostFocus");
}

TEST_F(LineEdit, TellsOfEveryFocusEventWhateverItsReason)
{
    recorder.watch(&edit, SIGNAL(focusOut()));
    for (const QFocusEvent::Reason reason :
         {QFocusEvent::Mouse, QFocusEvent::Tab, QFocusEvent::Backtab, QFocusEvent::ActiveWindow,
          QFocusEvent::Popup, QFocusEvent::Shortcut, QFocusEvent::Other}) {
        QFocusEvent::setReason(reason);
        QFocusEvent out(QEvent::FocusOut);
        QApplication::sendEvent(&edit, &out);
        QFocusEvent::resetReason();
        EXPECT_EQ(recorder.take(), "focusOut") << reason;
    }
    QFocusEvent in(QEvent::FocusIn);
    QApplication::sendEvent(&edit, &in);
    EXPECT_EQ(recorder.take(), "");
}

TEST_F(LineEdit, TellsWhenTheUserGoesOnByTabOrClick)
{
    watchAll();
    showAndActivate(&window);
    edit.setFocus();
    heard();
    xinput::typeKey(XK_Tab);
    EXPECT_EQ(heard(), "focusOut lostFocus");
    xinput::click(&edit, 50, 15);
    settle();
    xinput::click(&other, 50, 15);
    EXPECT_EQ(heard(), "leave focusOut lostFocus");
}

TEST_F(LineEdit, CarriesTheLeaveEventItself)
{
    Leaver leaver;
    QObject::connect(&edit, SIGNAL(leave(QEvent*)), &leaver, SLOT(left(QEvent*)));
    QEvent event(QEvent::Leave);
    QApplication::sendEvent(&edit, &event);
    EXPECT_EQ(leaver.seen, &event);
    EXPECT_EQ(leaver.type, QEvent::Leave);
}

TEST_F(LineEdit, TellsOnceThatThePointerLeft)
{
    watchAll();
    showAndActivate(&window);
    edit.setFocus();
    heard();
    for (int i = 0; i < 2; ++i) {
        xinput::moveTo(&edit, 20, 10);
        EXPECT_TRUE(waitFor([&] { return edit.hasMouse(); }));
        xinput::moveTo(&edit, 60, 20);
        EXPECT_EQ(heard(), "") << "still inside";
        xinput::park();
        EXPECT_TRUE(waitFor([&] { return recorder.count() >= 1; }));
        EXPECT_EQ(heard(), "leave");
    }
}

TEST_F(LineEdit, InADialogItsKeysDoNotReachTheButtons)
{
    FieldDialog dialog;
    dialog.typeTheKeptKeys();
}

TEST_F(LineEdit, InAManagedDialogItsKeysDoNotReachTheButtons)
{
    WindowManager manager;
    FieldDialog dialog;
    dialog.typeTheKeptKeys();
}

TEST_F(LineEdit, ChangingTheWindowLosesTheFocusOnce)
{
    WindowManager manager;
    watchAll();
    edit.setText("text");
    showAndActivate(&window);
    edit.setFocus();
    edit.selectAll();
    heard();
    QWidget second(nullptr, "second");
    second.setGeometry(500, 150, 100, 60);
    showAndActivate(&second);
    EXPECT_EQ(heard(), "focusOut lostFocus");
    EXPECT_TRUE(edit.hasSelectedText()) << "it is kept while another window is active";
}

#include "lineedit_test.moc"
