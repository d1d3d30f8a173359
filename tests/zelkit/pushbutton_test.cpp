// ZelPushButton and ZelPushButton2: the swatch and the Escape key.
#include <zelpushbutton.h>
#include <zelpushbutton2.h>

#include "pixels.h"
#include "sentevents.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>

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
