// Push buttons: mouse, keys, and the default button of a dialog.
#include "printers.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qdialog.h>
#include <qfontmetrics.h>
#include <qpushbutton.h>

#include <X11/keysym.h>

#include <string>

namespace
{

void watchAll(SignalRecorder* recorder, QButton* button)
{
    for (const char* signal : {SIGNAL(pressed()), SIGNAL(released()), SIGNAL(clicked()),
                               SIGNAL(toggled(bool)), SIGNAL(stateChanged(int))})
        recorder->watch(button, signal);
}

class PushButton : public testing::Test
{
protected:
    PushButton() : button("Push", &window), other("Other", &window)
    {
        window.setGeometry(100, 100, 220, 80);
        button.setGeometry(10, 10, 90, 30);
        other.setGeometry(110, 10, 90, 30);
        watchAll(&recorder, &button);
        showAndActivate(&window);
    }

    // The signals until nothing more is on its way.
    std::string heard()
    {
        settle();
        return recorder.take();
    }

    QWidget window;
    QPushButton button, other;
    SignalRecorder recorder;
};

// A dialog with three buttons; the last one is no auto-default button.
class ButtonDialog : public testing::Test
{
protected:
    ButtonDialog() : a("A", &dialog, "a"), b("B", &dialog, "b"), n("N", &dialog, "n"), field(&dialog, "field")
    {
        dialog.setGeometry(100, 100, 300, 80);
        field.setFocusPolicy(QWidget::StrongFocus);
        n.setAutoDefault(false);
        int x = 5;
        for (QPushButton* button : {&a, &b, &n}) {
            button->setGeometry(x, 5, 70, 30);
            x += 75;
            recorder.watch(button, SIGNAL(clicked()), button->name());
        }
        field.setGeometry(x, 5, 50, 30);
    }

    std::string defaults() const
    {
        std::string all;
        for (const QPushButton* button : {&a, &b, &n}) {
            if (button->isDefault())
                all += button->name();
        }
        return all;
    }

    std::string clickedBy(unsigned long key)
    {
        xinput::typeKey(key);
        settle();
        return recorder.take();
    }

    QDialog dialog;
    QPushButton a, b, n;
    QWidget field;
    SignalRecorder recorder;
};

} // namespace

TEST_F(PushButton, Defaults)
{
    EXPECT_EQ("Push", button.text());
    EXPECT_FALSE(button.autoDefault()) << "only in dialogs";
    EXPECT_FALSE(button.isDefault());
    EXPECT_FALSE(button.isFlat());
    EXPECT_EQ(QWidget::TabFocus, button.focusPolicy());
    EXPECT_EQ(Qt::PaletteButton, button.backgroundMode());
    EXPECT_EQ(QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed), button.sizePolicy());
}

TEST_F(PushButton, AClickPressesAndReleases)
{
    xinput::moveTo(&button, 20, 15);
    xinput::pressButton();
    EXPECT_EQ("pressed", heard());
    EXPECT_TRUE(button.isDown());
    xinput::releaseButton();
    EXPECT_EQ("released clicked", heard());
    EXPECT_FALSE(button.isDown());
    EXPECT_FALSE(button.hasFocus() && !button.isActiveWindow());
}

TEST_F(PushButton, ADoubleClickIsTwoClicks)
{
    xinput::doubleClick(&button, 20, 15);
    EXPECT_EQ("pressed released clicked pressed released clicked", heard());
}

TEST_F(PushButton, ThePointerMayLeaveAndComeBack)
{
    xinput::moveTo(&button, 20, 15);
    xinput::pressButton();
    xinput::moveTo(&other, 20, 15);
    EXPECT_EQ("pressed released", heard());
    EXPECT_FALSE(button.isDown());
    xinput::moveTo(&button, 20, 15);
    EXPECT_EQ("pressed", heard());
    EXPECT_TRUE(button.isDown());
    xinput::moveTo(&other, 20, 15);
    xinput::releaseButton();
    EXPECT_EQ("released", heard()) << "no click outside";
}

TEST_F(PushButton, OnlyTheLeftButtonClicks)
{
    xinput::click(&button, 20, 15, 2);
    xinput::click(&button, 20, 15, 3);
    EXPECT_EQ("", heard());
    xinput::moveTo(&button, 20, 15);
    xinput::pressButton(1);
    xinput::pressButton(3);
    EXPECT_EQ("pressed", heard());
    EXPECT_TRUE(button.isDown());
    xinput::releaseButton(3);
    settle();
    EXPECT_FALSE(button.isDown()) << "another button ends it";
    xinput::releaseButton(1);
    EXPECT_EQ("", heard());
}

TEST_F(PushButton, SpaceIsLikeTheMouse)
{
    button.setFocus();
    xinput::pressKey(XK_space);
    EXPECT_EQ("pressed", heard());
    EXPECT_TRUE(button.isDown());
    xinput::releaseKey(XK_space);
    EXPECT_EQ("released clicked", heard());
}

TEST_F(PushButton, EscapeAndALostFocusTakeSpaceBack)
{
    button.setFocus();
    xinput::pressKey(XK_space);
    heard();
    xinput::typeKey(XK_Escape);
    settle();
    EXPECT_FALSE(button.isDown());
    xinput::releaseKey(XK_space);
    EXPECT_EQ("", heard());
    xinput::pressKey(XK_space);
    heard();
    other.setFocus();
    EXPECT_FALSE(button.isDown());
    xinput::releaseKey(XK_space);
    EXPECT_EQ("", heard());
}

TEST_F(PushButton, ReturnMeansNothingOutsideOfDialogs)
{
    button.setFocus();
    xinput::typeKey(XK_Return);
    xinput::typeKey(XK_KP_Enter);
    EXPECT_EQ("", heard());
}

TEST_F(PushButton, ArrowsMoveTheFocus)
{
    button.setFocus();
    xinput::typeKey(XK_Right);
    EXPECT_TRUE(waitFor([this] { return other.hasFocus(); }));
    xinput::typeKey(XK_Up);
    EXPECT_TRUE(waitFor([this] { return button.hasFocus(); }));
}

TEST_F(PushButton, AToggleButtonStaysOn)
{
    button.setToggleButton(true);
    xinput::click(&button, 20, 15);
    EXPECT_EQ("pressed toggled(true) stateChanged(2) released clicked", heard());
    EXPECT_TRUE(button.isOn());
    button.setOn(false);
    EXPECT_EQ("toggled(false) stateChanged(0)", heard());
}

TEST_F(PushButton, ADisabledButtonIsDead)
{
    button.setEnabled(false);
    xinput::click(&button, 20, 15);
    EXPECT_EQ("", heard());
}

TEST_F(PushButton, WantsRoomForItsTextAndForTheDefaultFrame)
{
    const QFontMetrics metrics = button.fontMetrics();
    const QSize text = metrics.size(Qt::ShowPrefix, "Push");
    EXPECT_EQ(text + QSize(10, 10), button.sizeHint());
    const QPushButton empty(&window);
    EXPECT_EQ(metrics.size(Qt::ShowPrefix, "XXXX") + QSize(10, 10), empty.sizeHint());
    button.setDefault(true);
    EXPECT_EQ(QSize(80, text.height() + 16), button.sizeHint()) << "default buttons are at least 80 wide";
    button.setText("A much longer text on a button");
    EXPECT_EQ(metrics.size(Qt::ShowPrefix, button.text()) + QSize(16, 16), button.sizeHint());
}

TEST_F(ButtonDialog, TheFirstAutoDefaultButtonBecomesTheDefaultOne)
{
    EXPECT_TRUE(a.autoDefault());
    EXPECT_EQ("", defaults());
    showAndActivate(&dialog);
    EXPECT_EQ("a", defaults());
}

TEST_F(ButtonDialog, TheFocusLendsTheDefaultToAutoDefaultButtons)
{
    showAndActivate(&dialog);
    b.setFocus();
    EXPECT_EQ("b", defaults());
    field.setFocus();
    EXPECT_EQ("a", defaults());
    n.setFocus();
    EXPECT_EQ("a", defaults());
    b.setDefault(true);
    EXPECT_EQ("b", defaults());
    a.setFocus();
    EXPECT_EQ("a", defaults());
    field.setFocus();
    EXPECT_EQ("b", defaults());
    b.setDefault(false);
    EXPECT_EQ("", defaults());
}

TEST_F(ButtonDialog, ReturnPressesTheDefaultButton)
{
    showAndActivate(&dialog);
    field.setFocus();
    EXPECT_EQ("a", clickedBy(XK_Return));
    b.setFocus();
    EXPECT_EQ("b", clickedBy(XK_KP_Enter));
    n.setFocus();
    EXPECT_EQ("a", clickedBy(XK_Return)) << "the focused one is no auto-default button";
    EXPECT_EQ("n", clickedBy(XK_space));
    b.setDefault(true);
    field.setFocus();
    EXPECT_EQ("b", clickedBy(XK_Return));
    b.setEnabled(false);
    EXPECT_EQ("", clickedBy(XK_Return));
}
