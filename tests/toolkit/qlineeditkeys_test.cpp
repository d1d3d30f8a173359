// What each key does in a line edit, and which keys it leaves to others.
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qclipboard.h>
#include <qevent.h>
#include <qlineedit.h>

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
