// Letters that need more than a plain key: accents typed before their letter, keys of other layouts.
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qcstring.h>
#include <qlineedit.h>

#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

#include <map>
#include <string>
#include <vector>

namespace
{

// Keys that the keyboard does not have, put on codes that nothing lies on.
class ExtraKeys
{
public:
    ~ExtraKeys()
    {
        for (const auto& each : m_codes)
            lay(each.second, NoSymbol);
    }
    void type(KeySym symbol)
    {
        if (!m_codes.count(symbol)) {
            m_codes[symbol] = freeCode();
            lay(m_codes[symbol], symbol);
            settle();
        }
        XTestFakeKeyEvent(xinput::display(), m_codes[symbol], True, CurrentTime);
        XTestFakeKeyEvent(xinput::display(), m_codes[symbol], False, CurrentTime);
        xinput::sync();
        settle();
    }

private:
    void lay(KeyCode code, KeySym symbol)
    {
        KeySym symbols[] = {symbol, symbol};
        XChangeKeyboardMapping(xinput::display(), code, 2, symbols, 1);
        xinput::sync();
    }
    KeyCode freeCode()
    {
        int first, last, width;
        XDisplayKeycodes(xinput::display(), &first, &last);
        KeySym* all =
            XGetKeyboardMapping(xinput::display(), static_cast<KeyCode>(first), last - first + 1, &width);
        KeyCode found = 0;
        for (int code = last; code >= first && !found; --code) {
            bool empty = true;
            for (int i = 0; i < width; ++i)
                empty = empty && all[(code - first) * width + i] == NoSymbol;
            if (empty)
                found = static_cast<KeyCode>(code);
        }
        XFree(all);
        EXPECT_NE(found, 0) << "the keyboard is full";
        return found;
    }

    std::map<KeySym, KeyCode> m_codes;
};

class ComposedKeys : public testing::Test
{
protected:
    ComposedKeys() : edit(&window)
    {
        window.setGeometry(100, 100, 240, 60);
        edit.setGeometry(10, 10, 200, 24);
        showAndActivate(&window);
        edit.setFocus();
        settle();
    }
    std::string typed(const std::vector<KeySym>& symbols)
    {
        edit.setText("");
        for (const KeySym symbol : symbols)
            keys.type(symbol);
        return edit.text().utf8().data();
    }

    QWidget window;
    QLineEdit edit;
    ExtraKeys keys;
};

} // namespace

TEST_F(ComposedKeys, AnAccentWaitsForItsLetter)
{
    EXPECT_EQ(typed({XK_dead_acute}), "");
    keys.type(XK_e);
    EXPECT_EQ(edit.text(), QString::fromUtf8("\303\251"));
    EXPECT_EQ(edit.cursorPosition(), 1);
    EXPECT_EQ(typed({XK_dead_diaeresis, XK_u, XK_dead_circumflex, XK_o, XK_dead_caron, XK_s}),
              "\303\274\303\264\305\241");
    EXPECT_EQ(typed({XK_dead_acute, XK_space}), "'");
    EXPECT_EQ(typed({XK_dead_acute, XK_dead_acute}), "\302\264") << "twice it is the sign itself";
}

TEST_F(ComposedKeys, AnAccentThatDoesNotFitIsLost)
{
    EXPECT_EQ(typed({XK_dead_acute, XK_7}), "");
    keys.type(XK_a);
    EXPECT_EQ(edit.text(), QString("a"));
}

TEST_F(ComposedKeys, TheComposeKeyMakesOneLetterOfTwo)
{
    EXPECT_EQ(typed({XK_Multi_key, XK_a, XK_e}), "\303\246");
    EXPECT_EQ(typed({XK_Multi_key, XK_equal, XK_e}), "\342\202\254");
}

TEST_F(ComposedKeys, KeysOfOtherLayoutsGiveTheirLetters)
{
    EXPECT_EQ(typed({XK_adiaeresis, XK_ssharp, XK_EuroSign}), "\303\244\303\237\342\202\254");
    EXPECT_EQ(typed({XK_Cyrillic_zhe, XK_Greek_alpha, XK_hebrew_aleph}), "\320\266\316\261\327\220");
    EXPECT_EQ(typed({0x1000000 | 0x4e2d}), "\344\270\255") << "a sign by its number";
}

TEST_F(ComposedKeys, TheAccentIsForTheFieldThatHasTheFocus)
{
    QLineEdit other(&window);
    other.setGeometry(10, 34, 200, 24);
    other.show();
    keys.type(XK_dead_acute);
    other.setFocus();
    keys.type(XK_a);
    EXPECT_EQ(edit.text(), QString(""));
    EXPECT_EQ(other.text(), QString::fromUtf8("\303\241"));
}

TEST_F(ComposedKeys, TheDigitsOfTheKeypadAreDigits)
{
    EXPECT_EQ(typed({XK_KP_0, XK_KP_5, XK_KP_9, XK_KP_Decimal, XK_KP_Add, XK_KP_Divide}), "059.+/");
    edit.setText("12");
    keys.type(XK_KP_Left);
    keys.type(XK_KP_3);
    EXPECT_EQ(edit.text(), QString("132")) << "without Num Lock they move the cursor";
    keys.type(XK_KP_Delete);
    EXPECT_EQ(edit.text(), QString("13"));
}
