// Keys: codes, texts, and who gets them.
#include "inputlog.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>

#include <X11/keysym.h>

namespace
{

class Keyboard : public testing::Test
{
protected:
    Keyboard()
        : top(&log, nullptr, "top", 100, 100, 200, 150), outer(&log, &top, "outer", 20, 20, 100, 80),
          inner(&log, &outer, "inner", 10, 10, 40, 30)
    {
        inner.setFocusPolicy(QWidget::StrongFocus);
        showAndActivate(&top);
        log.take();
    }
    std::string happened()
    {
        settle();
        return log.take();
    }

    EventLog log;
    InputWidget top, outer, inner;
};

// Remembers the presses it sees.
class Presses : public QObject
{
public:
    explicit Presses(QWidget* watched) { watched->installEventFilter(this); }
    struct Press {
        int key, ascii, state;
        std::string text;
        bool repeated;
    };
    std::vector<Press> seen;
    std::vector<Press> released;

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
            return false;
        const QKeyEvent* key = static_cast<QKeyEvent*>(event);
        const Press press = {key->key(), key->ascii(), key->state(),
                             key->text().utf8().data() ? key->text().utf8().data() : "", key->isAutoRepeat()};
        (event->type() == QEvent::KeyPress ? seen : released).push_back(press);
        return true;
    }
};

} // namespace

TEST_F(Keyboard, AKeyThatNobodyWantsGoesToTheParents)
{
    xinput::typeKey('a');
    EXPECT_EQ("inner key A state 0; outer key A state 0; top key A state 0; "
              "inner key up A state 0; outer key up A state 0; top key up A state 0",
              happened());
    outer.acceptsKeys = true;
    xinput::typeKey('b');
    EXPECT_EQ("inner key B state 0; outer key B state 0; inner key up B state 0; outer key up B state 0",
              happened());
}

TEST_F(Keyboard, KeysHaveCodesSignsAndTexts)
{
    const struct {
        unsigned long keysym, modifier;
        int key, ascii, state;
        const char* text;
    } keys[] = {
        {'a', 0, Qt::Key_A, 'a', 0, "a"},
        {'a', XK_Shift_L, Qt::Key_A, 'A', Qt::ShiftButton, "A"},
        {'a', XK_Control_L, Qt::Key_A, 1, Qt::ControlButton, "\001"},
        {'a', XK_Alt_L, Qt::Key_A, 'a', Qt::AltButton, "a"},
        {'1', 0, Qt::Key_1, '1', 0, "1"},
        {XK_space, 0, Qt::Key_Space, ' ', 0, " "},
        {XK_Return, 0, Qt::Key_Return, 13, 0, "\r"},
        {XK_KP_Enter, 0, Qt::Key_Enter, 13, Qt::Keypad, "\r"},
        {XK_KP_Add, 0, Qt::Key_Plus, '+', Qt::Keypad, "+"},
        {XK_Escape, 0, Qt::Key_Escape, 27, 0, "\033"},
        {XK_BackSpace, 0, Qt::Key_BackSpace, 8, 0, "\b"},
        {XK_Delete, 0, Qt::Key_Delete, 127, 0, "\177"},
        {XK_Home, 0, Qt::Key_Home, 0, 0, ""},
        {XK_Prior, 0, Qt::Key_Prior, 0, 0, ""},
        {XK_F1, 0, Qt::Key_F1, 0, 0, ""},
        {XK_F12, 0, Qt::Key_F12, 0, 0, ""},
        {XK_minus, 0, Qt::Key_Minus, '-', 0, "-"},
        {'2', XK_Control_L, Qt::Key_2, 0, Qt::ControlButton, ""},
    };
    Presses presses(&inner);
    for (const auto& k : keys) {
        presses.seen.clear();
        xinput::typeKey(k.keysym, k.modifier);
        settle();
        ASSERT_FALSE(presses.seen.empty()) << k.keysym;
        const Presses::Press& press = presses.seen.back();
        EXPECT_EQ(k.key, press.key) << k.keysym;
        EXPECT_EQ(k.ascii, press.ascii) << k.keysym;
        EXPECT_EQ(k.state, press.state) << k.keysym;
        EXPECT_EQ(k.text, press.text) << k.keysym;
    }
}

TEST_F(Keyboard, ReleasedKeysHaveNoText)
{
    Presses presses(&inner);
    xinput::typeKey('a');
    settle();
    ASSERT_EQ(1u, presses.released.size());
    EXPECT_EQ("", presses.released[0].text);
    EXPECT_EQ('a', presses.released[0].ascii);
}

TEST_F(Keyboard, AHeldKeyRepeats)
{
    Presses presses(&inner);
    xinput::pressKey('x');
    EXPECT_TRUE(waitFor([&] { return presses.seen.size() >= 3; }));
    xinput::releaseKey('x');
    settle();
    EXPECT_FALSE(presses.seen[0].repeated);
    EXPECT_TRUE(presses.seen[1].repeated);
    ASSERT_GE(presses.released.size(), 3u);
    EXPECT_TRUE(presses.released[0].repeated);
    EXPECT_FALSE(presses.released.back().repeated);
}

TEST_F(Keyboard, AGrabberGetsTheKeys)
{
    QWidget* grabber = &outer;
    grabber->grabKeyboard();
    EXPECT_EQ(grabber, QWidget::keyboardGrabber());
    xinput::typeKey('g');
    EXPECT_EQ("outer key G state 0; top key G state 0; outer key up G state 0; top key up G state 0",
              happened());
    grabber->releaseKeyboard();
    EXPECT_EQ(nullptr, QWidget::keyboardGrabber());
    inner.acceptsKeys = true;
    xinput::typeKey('h');
    EXPECT_EQ("inner key H state 0; inner key up H state 0", happened());
}

TEST_F(Keyboard, SentKeysSayWhetherSomebodyTookThem)
{
    QKeyEvent refused(QEvent::KeyPress, Qt::Key_X, 'x', 0, "x");
    EXPECT_FALSE(QApplication::sendEvent(&inner, &refused));
    EXPECT_FALSE(refused.isAccepted());
    top.acceptsKeys = true;
    QKeyEvent taken(QEvent::KeyPress, Qt::Key_X, 'x', 0, "x");
    EXPECT_TRUE(QApplication::sendEvent(&inner, &taken));
    EXPECT_TRUE(taken.isAccepted());
}

TEST_F(Keyboard, ADisabledWidgetGetsNoKeys)
{
    inner.setEnabled(false);
    settle();
    log.take();
    QKeyEvent key(QEvent::KeyPress, Qt::Key_X, 'x', 0, "x");
    QApplication::sendEvent(&inner, &key);
    EXPECT_EQ(std::string::npos, log.take().find("inner"));
}
