// ZelLineEdit and ZelComboBox: leaving, losing the focus, and the keys that stay in the field.
#include <zelcombobox.h>
#include <zellineedit.h>

#include "sentevents.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <X11/keysym.h>
#include <gtest/gtest.h>
#include <qdialog.h>
#include <qlistbox.h>
#include <qpushbutton.h>

namespace
{

const int keptKeys[] = {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter};

} // namespace

TEST(LineEdit, KeepsReturnEnterAndEscapeFromTheParent)
{
    QWidget window(0, "window");
    ZelLineEdit edit(&window, "edit");
    SignalRecorder recorder;
    recorder.watch(&edit, SIGNAL(escapePressed()));
    recorder.watch(&edit, SIGNAL(returnPressed()));
    EventCount keys(&window, QEvent::KeyPress);
    for (const int key : keptKeys)
        EXPECT_TRUE(sendKey(&edit, key)) << key;
    EXPECT_EQ(keys.take(), 0);
    EXPECT_EQ(recorder.take(), "escapePressed returnPressed returnPressed");
    EXPECT_TRUE(sendKey(&edit, Qt::Key_Escape, 0, Qt::ShiftButton));
    EXPECT_EQ(recorder.take(), "escapePressed");
    EXPECT_FALSE(sendKey(&edit, Qt::Key_Up));
    EXPECT_EQ(keys.take(), 1);
    sendKey(&edit, Qt::Key_A, 'a', 0, "a");
    EXPECT_EQ(edit.text(), QString("a"));
}

TEST(LineEdit, InADialogItsKeysDoNotReachTheButtons)
{
    QDialog dialog(0, "dialog");
    dialog.setGeometry(200, 150, 200, 120);
    ZelLineEdit edit(&dialog, "edit");
    edit.setGeometry(10, 10, 120, 30);
    QPushButton ok("OK", &dialog, "ok");
    ok.setGeometry(10, 60, 80, 30);
    ok.setDefault(true);
    SignalRecorder recorder;
    recorder.watch(&ok, SIGNAL(clicked()));
    recorder.watch(&edit, SIGNAL(returnPressed()));
    recorder.watch(&edit, SIGNAL(escapePressed()));
    showAndActivate(&dialog);
    edit.setFocus();
    xinput::typeKey(XK_Return);
    xinput::typeKey(XK_Escape);
    EXPECT_TRUE(waitFor([&] { return recorder.count() >= 2; }));
    EXPECT_EQ(recorder.take(), "returnPressed escapePressed");
    EXPECT_TRUE(dialog.isVisible());
}

TEST(LineEdit, TellsThatThePointerAndTheFocusLeave)
{
    QWidget window(0, "window");
    window.setGeometry(200, 150, 200, 120);
    ZelLineEdit edit(&window, "edit");
    edit.setGeometry(10, 10, 120, 30);
    ZelLineEdit other(&window, "other");
    other.setGeometry(10, 60, 120, 30);
    SignalRecorder recorder;
    recorder.watch(&edit, SIGNAL(leave(QEvent*)));
    recorder.watch(&edit, SIGNAL(focusOut()));
    showAndActivate(&window);
    edit.setFocus();
    other.setFocus();
    EXPECT_EQ(recorder.take(), "focusOut");
    xinput::moveTo(&edit, 20, 10);
    EXPECT_TRUE(waitFor([&] { return edit.hasMouse(); }));
    xinput::park();
    EXPECT_TRUE(waitFor([&] { return recorder.count() >= 1; }));
    EXPECT_EQ(recorder.take(), "leave");
}

TEST(ComboBox, KeepsReturnEnterAndEscapeFromTheParent)
{
    QWidget window(0, "window");
    ZelComboBox box(&window, "box");
    box.insertItem("one");
    SignalRecorder recorder;
    recorder.watch(&box, SIGNAL(escapePressed()));
    EventCount keys(&window, QEvent::KeyPress);
    for (const int key : keptKeys)
        EXPECT_TRUE(sendKey(&box, key)) << key;
    EXPECT_EQ(keys.take(), 0);
    EXPECT_EQ(recorder.take(), "escapePressed");
}

TEST(ComboBox, TheConstructorsChooseWhetherItCanBeEdited)
{
    QWidget window(0, "window");
    EXPECT_FALSE(ZelComboBox(&window, "a").editable());
    EXPECT_FALSE(ZelComboBox(false, &window, "b").editable());
    EXPECT_TRUE(ZelComboBox(true, &window, "c").editable());
}

TEST(ComboBox, LosingTheFocusToItsOwnListIsNoLeaving)
{
    QWidget window(0, "window");
    window.setGeometry(200, 150, 200, 120);
    ZelComboBox box(false, &window, "box");
    box.setGeometry(10, 10, 120, 30);
    QPushButton button("other", &window, "button");
    button.setGeometry(10, 60, 80, 30);
    SignalRecorder recorder;
    recorder.watch(&box, SIGNAL(focusOut()));
    recorder.watch(&box, SIGNAL(leave()));
    showAndActivate(&window);
    box.setFocus();
    button.setFocus();
    EXPECT_EQ(recorder.take(), "focusOut");
    leave(&box);
    EXPECT_EQ(recorder.take(), "leave");
}
