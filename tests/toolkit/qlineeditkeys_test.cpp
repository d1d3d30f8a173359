// What each key does in a line edit, and which keys it leaves to others.
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qclipboard.h>
#include <qevent.h>
#include <qkeysequence.h>
#include <qlineedit.h>
#include <qpushbutton.h>

#include <X11/keysym.h>

#include <string>

namespace
{

struct KeyCase {
    const char* name;
    unsigned long key, modifier, second;
    const char* text;
    int cursor;
    const char* marked; // "-": nothing
};

class LineEditKeys : public testing::Test
{
protected:
    LineEditKeys() : edit(&window)
    {
        window.setGeometry(100, 100, 240, 60);
        edit.setGeometry(10, 10, 200, 24);
        showAndActivate(&window);
        edit.setFocus();
        settle();
    }

    std::string marked() const { return edit.hasSelectedText() ? edit.selectedText().latin1() : "-"; }
    void expect(const KeyCase& each)
    {
        settle();
        EXPECT_STREQ(edit.text().latin1(), each.text) << each.name;
        EXPECT_EQ(edit.cursorPosition(), each.cursor) << each.name;
        EXPECT_EQ(marked(), each.marked) << each.name;
    }
    bool accepts(int key, int ascii, const char* text, int state = 0)
    {
        QKeyEvent event(QEvent::KeyPress, key, ascii, state, text ? QString(text) : QString());
        QApplication::sendEvent(&edit, &event);
        return event.isAccepted();
    }

    QWidget window;
    QLineEdit edit;
};

} // namespace

TEST_F(LineEditKeys, EditingKeys)
{
    const char* const all = "one two.three";
    const KeyCase cases[] = {{"Left", XK_Left, 0, 0, all, 4, "-"},
                             {"Right", XK_Right, 0, 0, all, 6, "-"},
                             {"Shift+Left", XK_Left, XK_Shift_L, 0, all, 4, "t"},
                             {"Shift+Right", XK_Right, XK_Shift_L, 0, all, 6, "w"},
                             {"Ctrl+Left", XK_Left, XK_Control_L, 0, all, 4, "-"},
                             {"Ctrl+Right", XK_Right, XK_Control_L, 0, all, 13, "-"},
                             {"Ctrl+Shift+Left", XK_Left, XK_Control_L, XK_Shift_L, all, 4, "t"},
                             {"Ctrl+Shift+Right", XK_Right, XK_Control_L, XK_Shift_L, all, 13, "wo.three"},
                             {"Home", XK_Home, 0, 0, all, 0, "-"},
                             {"End", XK_End, 0, 0, all, 13, "-"},
                             {"Shift+Home", XK_Home, XK_Shift_L, 0, all, 0, "one t"},
                             {"Shift+End", XK_End, XK_Shift_L, 0, all, 13, "wo.three"},
                             {"Ctrl+Home", XK_Home, XK_Control_L, 0, all, 5, "-"},
                             {"BackSpace", XK_BackSpace, 0, 0, "one wo.three", 4, "-"},
                             {"Ctrl+BackSpace", XK_BackSpace, XK_Control_L, 0, "one wo.three", 4, "-"},
                             {"Alt+BackSpace", XK_BackSpace, XK_Alt_L, 0, "one wo.three", 4, "-"},
                             {"Delete", XK_Delete, 0, 0, "one to.three", 5, "-"},
                             {"Ctrl+Delete", XK_Delete, XK_Control_L, 0, "one t", 5, "-"},
                             {"Shift+Delete", XK_Delete, XK_Shift_L, 0, "one to.three", 5, "-"},
                             {"Insert", XK_Insert, 0, 0, all, 5, "-"},
                             {"Up", XK_Up, 0, 0, all, 5, "-"},
                             {"Alt+x", XK_x, XK_Alt_L, 0, "one txwo.three", 6, "-"}};
    for (const KeyCase& each : cases) {
        edit.setText(all);
        edit.setCursorPosition(5);
        xinput::typeKey(each.key, each.modifier, each.second);
        expect(each);
        edit.deselect();
    }
}

TEST_F(LineEditKeys, ControlLettersWithoutASelection)
{
    const char* const all = "one two.three";
    const KeyCase cases[] = {{"A", XK_a, 0, 0, all, 0, "-"},
                             {"B", XK_b, 0, 0, all, 4, "-"},
                             {"C", XK_c, 0, 0, all, 5, "-"},
                             {"D", XK_d, 0, 0, "one to.three", 5, "-"},
                             {"E", XK_e, 0, 0, all, 13, "-"},
                             {"F", XK_f, 0, 0, all, 6, "-"},
                             {"H", XK_h, 0, 0, "one wo.three", 4, "-"},
                             {"K", XK_k, 0, 0, "one t", 5, "-"},
                             {"U", XK_u, 0, 0, "", 0, "-"},
                             {"V", XK_v, 0, 0, "one tclipwo.three", 9, "-"},
                             {"W", XK_w, 0, 0, all, 5, "-"},
                             {"X", XK_x, 0, 0, all, 5, "-"}};
    for (const KeyCase& each : cases) {
        QApplication::clipboard()->setText("clip", QClipboard::Clipboard);
        edit.setText(all);
        edit.setCursorPosition(5);
        xinput::typeKey(each.key, XK_Control_L);
        expect(each);
    }
}

TEST_F(LineEditKeys, ControlLettersWithASelection)
{
    const char* const all = "one two.three";
    const KeyCase cases[] = {{"A", XK_a, 0, 0, all, 0, "-"},         {"B", XK_b, 0, 0, all, 5, "-"},
                             {"C", XK_c, 0, 0, all, 6, "e tw"},      {"D", XK_d, 0, 0, "ono.three", 2, "-"},
                             {"F", XK_f, 0, 0, all, 7, "-"},         {"H", XK_h, 0, 0, "ono.three", 2, "-"},
                             {"X", XK_x, 0, 0, "ono.three", 2, "-"}, {"W", XK_w, 0, 0, all, 6, "e tw"}};
    for (const KeyCase& each : cases) {
        edit.setText(all);
        edit.setSelection(2, 4);
        xinput::typeKey(each.key, XK_Control_L);
        expect(each);
        edit.deselect();
    }
    EXPECT_STREQ(QApplication::clipboard()->text(QClipboard::Clipboard).latin1(), "e tw");
}

TEST_F(LineEditKeys, KeysThatItLeavesToOthers)
{
    edit.setText("abcdef");
    const int ignored[] = {Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Prior,  Qt::Key_Next,
                           Qt::Key_F1,    Qt::Key_Insert, Qt::Key_Escape, Qt::Key_Return,
                           Qt::Key_Enter, Qt::Key_Menu,   Qt::Key_Control};
    for (const int key : ignored)
        EXPECT_FALSE(accepts(key, 0, nullptr)) << key;
    EXPECT_FALSE(accepts(Qt::Key_W, 23, "\x17", Qt::ControlButton));
    EXPECT_STREQ(edit.text().latin1(), "abcdef");
}

TEST_F(LineEditKeys, KeysThatItTakesEvenWhenNothingHappens)
{
    edit.setText("");
    for (const int key : {Qt::Key_Left, Qt::Key_Home, Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Shift})
        EXPECT_TRUE(accepts(key, 0, nullptr)) << key;
    EXPECT_TRUE(accepts(Qt::Key_Z, 26, "\x1a", Qt::ControlButton));
}

TEST_F(LineEditKeys, TextOfAKeyIsInserted)
{
    edit.setText("");
    EXPECT_TRUE(accepts(0, 0, "multi"));
    EXPECT_TRUE(accepts(Qt::Key_A, 'a', "@", Qt::ControlButton | Qt::AltButton));
    EXPECT_STREQ(edit.text().latin1(), "multi@");
}

TEST_F(LineEditKeys, EveryControlLetterIsTakenOrLeft)
{
    const std::string taken = "ABCDEFHKUVXYZ";
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        edit.setText("one two.three");
        edit.setCursorPosition(5);
        const char sign[] = {static_cast<char>(letter - 64), 0};
        const bool known = taken.find(letter) != std::string::npos;
        EXPECT_EQ(accepts(letter, letter - 64, sign, Qt::ControlButton), known) << letter;
        if (!known) {
            EXPECT_STREQ(edit.text().latin1(), "one two.three") << letter;
            EXPECT_EQ(edit.cursorPosition(), 5) << letter;
        }
    }
}

TEST_F(LineEditKeys, ControlAndShiftMark)
{
    const char* const all = "one two.three";
    const KeyCase cases[] = {{"A", XK_a, XK_Control_L, XK_Shift_L, all, 0, "one t"},
                             {"B", XK_b, XK_Control_L, XK_Shift_L, all, 4, "t"},
                             {"E", XK_e, XK_Control_L, XK_Shift_L, all, 13, "wo.three"},
                             {"F", XK_f, XK_Control_L, XK_Shift_L, all, 6, "w"}};
    for (const KeyCase& each : cases) {
        edit.setText(all);
        edit.setCursorPosition(5);
        xinput::typeKey(each.key, each.modifier, each.second);
        expect(each);
    }
}

TEST_F(LineEditKeys, InsertDoesNothingWithAnyModifier)
{
    QApplication::clipboard()->setText("clip", QClipboard::Clipboard);
    edit.setText("text");
    edit.selectAll();
    for (const int state : {0, static_cast<int>(Qt::ShiftButton), static_cast<int>(Qt::ControlButton)})
        EXPECT_FALSE(accepts(Qt::Key_Insert, 0, nullptr, state)) << state;
    EXPECT_STREQ(edit.text().latin1(), "text");
    EXPECT_STREQ(QApplication::clipboard()->text(QClipboard::Clipboard).latin1(), "clip");
}

TEST_F(LineEditKeys, TheEditingKeysOfWorkstations)
{
    edit.setText("start");
    xinput::typeText("x");
    settle();
    EXPECT_TRUE(accepts(Qt::Key_F14, 0, nullptr)) << "undo";
    EXPECT_STREQ(edit.text().latin1(), "start");
    edit.selectAll();
    EXPECT_TRUE(accepts(Qt::Key_F20, 0, nullptr)) << "cut";
    EXPECT_STREQ(edit.text().latin1(), "");
    EXPECT_TRUE(accepts(Qt::Key_F18, 0, nullptr)) << "paste";
    EXPECT_TRUE(accepts(Qt::Key_F18, 0, nullptr));
    EXPECT_STREQ(edit.text().latin1(), "startstart");
    edit.setSelection(0, 2);
    EXPECT_TRUE(accepts(Qt::Key_F16, 0, nullptr)) << "copy";
    EXPECT_STREQ(QApplication::clipboard()->text(QClipboard::Clipboard).latin1(), "st");
    for (const int key : {Qt::Key_F13, Qt::Key_F15, Qt::Key_F17, Qt::Key_F19})
        EXPECT_FALSE(accepts(key, 0, nullptr)) << key;
}

TEST_F(LineEditKeys, AReadOnlyOneMovesMarksAndCopiesOnly)
{
    edit.setText("one two");
    edit.setReadOnly(true);
    const KeyCase cases[] = {{"Left", XK_Left, 0, 0, "one two", 3, "-"},
                             {"Ctrl+Right", XK_Right, XK_Control_L, 0, "one two", 7, "-"},
                             {"Shift+Home", XK_Home, XK_Shift_L, 0, "one two", 0, "one "},
                             {"BackSpace", XK_BackSpace, 0, 0, "one two", 4, "-"},
                             {"Delete", XK_Delete, 0, 0, "one two", 4, "-"},
                             {"Ctrl+D", XK_d, XK_Control_L, 0, "one two", 4, "-"},
                             {"Ctrl+K", XK_k, XK_Control_L, 0, "one two", 4, "-"},
                             {"Ctrl+U", XK_u, XK_Control_L, 0, "one two", 4, "-"},
                             {"Ctrl+V", XK_v, XK_Control_L, 0, "one two", 4, "-"},
                             {"Ctrl+X", XK_x, XK_Control_L, 0, "one two", 4, "-"},
                             {"a", XK_a, 0, 0, "one two", 4, "-"}};
    for (const KeyCase& each : cases) {
        edit.setCursorPosition(4);
        xinput::typeKey(each.key, each.modifier, each.second);
        expect(each);
    }
    edit.setSelection(0, 3);
    xinput::typeKey(XK_c, XK_Control_L);
    settle();
    EXPECT_STREQ(QApplication::clipboard()->text(QClipboard::Clipboard).latin1(), "one");
    EXPECT_FALSE(accepts(Qt::Key_A, 'a', "a")) << "letters are left to others";
}

TEST_F(LineEditKeys, WordsOfPasswordsAreNotGivenAway)
{
    edit.setEchoMode(QLineEdit::Password);
    edit.setText("one two.three");
    const KeyCase cases[] = {
        {"Ctrl+Left", XK_Left, XK_Control_L, 0, "one two.three", 0, "-"},
        {"Ctrl+Right", XK_Right, XK_Control_L, 0, "one two.three", 13, "-"},
        {"Ctrl+Shift+Left", XK_Left, XK_Control_L, XK_Shift_L, "one two.three", 0, "one t"}};
    for (const KeyCase& each : cases) {
        edit.setCursorPosition(5);
        xinput::typeKey(each.key, each.modifier, each.second);
        expect(each);
    }
    edit.setText("one two.three");
    edit.setCursorPosition(5);
    xinput::typeKey(XK_BackSpace, XK_Control_L);
    settle();
    EXPECT_STREQ(edit.text().latin1(), "wo.three") << "all before the cursor";
}

TEST_F(LineEditKeys, WithoutEchoItCanBeTypedIn)
{
    edit.setEchoMode(QLineEdit::NoEcho);
    xinput::typeText("ab");
    xinput::typeKey(XK_BackSpace);
    xinput::typeText("c");
    settle();
    EXPECT_STREQ(edit.text().latin1(), "ac");
    EXPECT_STREQ(edit.displayText().latin1(), "");
}

TEST_F(LineEditKeys, EditingKeysAreNoShortcutsOfOthers)
{
    const auto wanted = [this](int key, int state) {
        QKeyEvent event(QEvent::AccelOverride, key, 0, state);
        event.ignore();
        QApplication::sendEvent(&edit, &event);
        return event.isAccepted();
    };
    for (const int key :
         {static_cast<int>(Qt::Key_A), static_cast<int>(Qt::Key_1), static_cast<int>(Qt::Key_Space),
          static_cast<int>(Qt::Key_Left), static_cast<int>(Qt::Key_Home), static_cast<int>(Qt::Key_Delete)})
        EXPECT_TRUE(wanted(key, 0)) << key;
    for (const int key : {Qt::Key_C, Qt::Key_V, Qt::Key_X, Qt::Key_Z, Qt::Key_Y, Qt::Key_U})
        EXPECT_TRUE(wanted(key, Qt::ControlButton)) << key;
    EXPECT_FALSE(wanted(Qt::Key_S, Qt::ControlButton));
    EXPECT_FALSE(wanted(Qt::Key_A, Qt::AltButton));
    EXPECT_FALSE(wanted(Qt::Key_F1, 0));
    EXPECT_FALSE(wanted(Qt::Key_Escape, 0));

    QPushButton button("x", &window);
    button.setToggleButton(true);
    button.setAccel(QKeySequence(Qt::CTRL + Qt::Key_U));
    button.show();
    edit.setText("text");
    xinput::typeKey(XK_u, XK_Control_L);
    settle();
    EXPECT_FALSE(button.isOn());
    EXPECT_STREQ(edit.text().latin1(), "");
    button.setAccel(QKeySequence(Qt::CTRL + Qt::Key_S));
    xinput::typeKey(XK_s, XK_Control_L);
    EXPECT_TRUE(waitFor([&] { return button.isOn(); }));
}

TEST_F(LineEditKeys, UndoAndRedoByKeys)
{
    edit.setText("");
    xinput::typeText("ab");
    settle();
    xinput::typeKey(XK_Home);
    xinput::typeText("c");
    settle();
    edit.setSelection(0, 3);
    xinput::typeKey(XK_x, XK_Control_L);
    settle();
    EXPECT_STREQ(edit.text().latin1(), "");
    const char* const back[] = {"cab", "ab", "", ""};
    for (const char* text : back) {
        xinput::typeKey(XK_z, XK_Control_L);
        settle();
        EXPECT_STREQ(edit.text().latin1(), text);
    }
    const char* const forth[] = {"ab", "cab", "", ""};
    for (const char* text : forth) {
        xinput::typeKey(XK_y, XK_Control_L);
        settle();
        EXPECT_STREQ(edit.text().latin1(), text);
    }
    xinput::typeKey(XK_z, XK_Control_L);
    xinput::typeText("d");
    settle();
    EXPECT_FALSE(edit.isRedoAvailable()) << "typing forgets what was undone";
}
