// ZelPushButton and ZelPushButton2: the swatch and the Escape key.
#include <zelpushbutton.h>
#include <zelpushbutton2.h>

#include "pixels.h"
#include "sentevents.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <X11/keysym.h>

#include <gtest/gtest.h>
#include <qdialog.h>

namespace
{

// A swatch of that size with its black outline, at (5, 5) of the button.
Pixels swatch(int width, int height, unsigned colour)
{
    Pixels pixels(width, height, 0x000000);
    pixels.fill(1, 1, width - 2, height - 2, colour);
    return pixels;
}

} // namespace

TEST(PushButton, ShowsItsColourAlsoWhilePressed)
{
    QWidget window(0, "window");
    window.setGeometry(200, 150, 120, 80);
    ZelPushButton button(QColor(10, 200, 90), &window, "button");
    button.setGeometry(10, 10, 60, 40);
    button.setText("never shown");
    SignalRecorder recorder;
    recorder.watch(&button, SIGNAL(pressed()));
    recorder.watch(&button, SIGNAL(clicked()));
    showAndWait(&window);
    EXPECT_EQ(Pixels::of(&button).part(5, 5, 50, 30).differenceFrom(swatch(50, 30, 0x0ac85a)), "");
    const unsigned raised = Pixels::of(&button).at(0, 0);
    xinput::moveTo(&button, 30, 20);
    xinput::pressButton();
    EXPECT_TRUE(waitFor([&] { return button.isDown(); }));
    EXPECT_EQ(Pixels::of(&button).part(5, 5, 50, 30).differenceFrom(swatch(50, 30, 0x0ac85a)), "");
    EXPECT_NE(Pixels::of(&button).at(0, 0), raised);
    xinput::releaseButton();
    EXPECT_TRUE(waitFor([&] { return recorder.count() == 2; }));
    EXPECT_EQ(recorder.take(), "pressed clicked");
}

TEST(PushButton, SpaceClicksItToo)
{
    QWidget window(0, "window");
    window.setGeometry(200, 150, 120, 80);
    ZelPushButton button(QColor(10, 200, 90), &window, "button");
    button.setGeometry(10, 10, 60, 40);
    SignalRecorder recorder;
    recorder.watch(&button, SIGNAL(pressed()));
    recorder.watch(&button, SIGNAL(released()));
    recorder.watch(&button, SIGNAL(clicked()));
    showAndActivate(&window);
    button.setFocus();
    xinput::pressKey(XK_space);
    EXPECT_TRUE(waitFor([&] { return button.isDown(); }));
    EXPECT_EQ(Pixels::of(&button).part(5, 5, 50, 30).differenceFrom(swatch(50, 30, 0x0ac85a)), "");
    xinput::releaseKey(XK_space);
    EXPECT_TRUE(waitFor([&] { return recorder.count() == 3; }));
    EXPECT_EQ(recorder.take(), "pressed released clicked");
}

TEST(PushButton, TheSwatchFollowsTheSizeAndTheColourIsCopied)
{
    QWidget window(0, "window");
    window.setGeometry(200, 150, 120, 80);
    QColor colour(10, 200, 90);
    ZelPushButton button(colour, &window, "button");
    colour = Qt::red;
    button.setGeometry(10, 10, 33, 27);
    button.setPaletteForegroundColor(Qt::yellow); // the outline stays black
    showAndWait(&window);
    EXPECT_EQ(Pixels::of(&button).part(5, 5, 23, 17).differenceFrom(swatch(23, 17, 0x0ac85a)), "");
    EXPECT_NE(Pixels::of(&button).at(4, 10), 0x000000U);
    EXPECT_STREQ(button.name(), "button");
    EXPECT_TRUE(button.text().isEmpty());
}

TEST(PushButton, TinyOnesDoNotFail)
{
    QWidget window(0, "window");
    ZelPushButton button(Qt::red, &window, "button");
    showAndWait(&window);
    for (int size = 1; size < 14; ++size) {
        button.resize(size, size);
        button.repaint();
    }
    EXPECT_EQ(button.size(), QSize(13, 13));
}

TEST(PushButton2, EscapeIsToldAndGoesOn)
{
    QWidget window(0, "window");
    ZelPushButton2 button("Stop", &window, "button");
    SignalRecorder recorder;
    recorder.watch(&button, SIGNAL(escapePressed()));
    recorder.watch(&button, SIGNAL(clicked()));
    EventCount keys(&window, QEvent::KeyPress);
    EXPECT_FALSE(sendKey(&button, Qt::Key_Escape, 27));
    EXPECT_EQ(recorder.take(), "escapePressed");
    EXPECT_EQ(keys.take(), 1);
    sendKey(&button, Qt::Key_A, 'a');
    EXPECT_EQ(recorder.take(), "");
    EXPECT_EQ(button.text(), QString("Stop"));
    EXPECT_TRUE(ZelPushButton2(&window, "other").text().isEmpty());
}

TEST(PushButton2, EscapeIsToldWithEveryModifierAndWhenItRepeats)
{
    QWidget window(0, "window");
    ZelPushButton2 button("Stop", &window, "button");
    SignalRecorder recorder;
    recorder.watch(&button, SIGNAL(escapePressed()));
    for (const int state : {Qt::ShiftButton, Qt::ControlButton, Qt::AltButton, Qt::LeftButton})
        EXPECT_FALSE(sendKey(&button, Qt::Key_Escape, 27, state));
    EXPECT_EQ(recorder.take(), "escapePressed escapePressed escapePressed escapePressed");
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Escape, 27, 0, QString::null, true);
    QApplication::sendEvent(&button, &repeated);
    EXPECT_EQ(recorder.take(), "escapePressed");
}

TEST(PushButton2, EscapeIsToldBeforeItIsHandled)
{
    QWidget window(0, "window");
    ZelPushButton2 button("Stop", &window, "button");
    button.setDown(true);
    SignalRecorder recorder;
    recorder.watch(&button, SIGNAL(escapePressed()));
    EventCount keys(&window, QEvent::KeyPress);
    bool wasDown = false;
    int heard = -1;
    recorder.whenever = [&] {
        wasDown = button.isDown();
        heard = keys.take();
    };
    EXPECT_TRUE(sendKey(&button, Qt::Key_Escape, 27)) << "a button that is down goes up and keeps the key";
    EXPECT_TRUE(wasDown);
    EXPECT_FALSE(button.isDown());
    EXPECT_FALSE(sendKey(&button, Qt::Key_Escape, 27));
    EXPECT_EQ(heard, 0);
    EXPECT_EQ(keys.take(), 1);
    EXPECT_EQ(recorder.take(), "escapePressed escapePressed");
}

TEST(PushButton2, InADialogEscapeIsToldAndClosesIt)
{
    QDialog dialog(0, "dialog");
    dialog.setGeometry(200, 150, 120, 80);
    ZelPushButton2 button("Stop", &dialog, "button");
    SignalRecorder recorder;
    recorder.watch(&button, SIGNAL(escapePressed()));
    showAndActivate(&dialog);
    button.setFocus();
    recorder.whenever = [&] { EXPECT_TRUE(dialog.isVisible()); };
    xinput::typeKey(XK_Escape);
    EXPECT_TRUE(waitFor([&] { return !dialog.isVisible(); }));
    EXPECT_EQ(recorder.take(), "escapePressed");
}

TEST(PushButton2, OtherKeysAreAButtons)
{
    QWidget window(0, "window");
    window.setGeometry(200, 150, 120, 80);
    ZelPushButton2 button("Stop", &window, "button");
    SignalRecorder recorder;
    recorder.watch(&button, SIGNAL(escapePressed()));
    recorder.watch(&button, SIGNAL(clicked()));
    showAndActivate(&window);
    button.setFocus();
    xinput::typeKey(XK_space);
    EXPECT_TRUE(waitFor([&] { return recorder.count() > 0; }));
    EXPECT_EQ(recorder.take(), "clicked");
    EXPECT_TRUE(sendKey(&button, Qt::Key_Space, ' ', 0, " "));
    EXPECT_FALSE(sendKey(&button, Qt::Key_F1));
    EXPECT_EQ(recorder.take(), "");
}
