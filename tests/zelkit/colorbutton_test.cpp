// ZelColorButton: its two looks and its clicks.
#include <zelcolorbutton.h>

#include "pixels.h"
#include "sentevents.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>

namespace
{

class ColorButton : public testing::Test
{
protected:
    ColorButton() : window(0, "window"), button(&window, "button")
    {
        window.setGeometry(200, 150, 100, 80);
        button.setGeometry(10, 10, 30, 20);
        recorder.watch(&button, SIGNAL(clicked()));
        showAndWait(&window);
    }

    static Pixels swatch(unsigned colour)
    {
        Pixels pixels(30, 20, 0x000000);
        pixels.fill(1, 1, 28, 18, 0xffffff);
        pixels.fill(2, 2, 26, 16, 0x000000);
        pixels.fill(3, 3, 24, 14, colour);
        return pixels;
    }

    QWidget window;
    ZelColorButton button;
    SignalRecorder recorder;
};

} // namespace

TEST_F(ColorButton, AtRestItIsASunkenPanelOfItsColour)
{
    const Pixels pixels = Pixels::of(&button);
    EXPECT_EQ(pixels.part(2, 2, 26, 16).count(0xc80000), 26 * 16);
    EXPECT_EQ(pixels.at(0, 0), 0x808080U);
    EXPECT_EQ(pixels.at(28, 0), 0x808080U);
    EXPECT_EQ(pixels.at(29, 0), pixels.at(29, 19));
    EXPECT_EQ(pixels.at(1, 18), pixels.at(29, 19));
    EXPECT_NE(pixels.at(29, 19), 0x808080U);
}

TEST_F(ColorButton, UnderThePointerItIsASwatchOnWhite)
{
    xinput::moveTo(&button, 10, 10);
    EXPECT_TRUE(waitFor([this] { return Pixels::of(&button) == swatch(0xc80000); }))
        << Pixels::of(&button).differenceFrom(swatch(0xc80000));
    button.setColor(QColor(0, 120, 40));
    EXPECT_EQ(Pixels::now(&button).differenceFrom(swatch(0x007828)), "");
}

TEST_F(ColorButton, PressAndReleaseDoNotPaint)
{
    EventCount paints(&button, QEvent::Paint);
    press(&button);
    release(&button, 29, 19);
    EXPECT_EQ(recorder.take(), "clicked");
    press(&button);
    release(&button, 30, 5);
    press(&button, 5, 5, Qt::RightButton);
    release(&button, 5, 5, Qt::RightButton);
    EXPECT_EQ(recorder.take(), "");
    EXPECT_EQ(paints.take(), 0);
}

TEST_F(ColorButton, ADoubleClickIsTwoClicks)
{
    xinput::doubleClick(&button, 10, 10);
    EXPECT_TRUE(waitFor([this] { return recorder.count() >= 2; }));
    EXPECT_EQ(recorder.take(), "clicked clicked");
}

TEST_F(ColorButton, TinyOnesDoNotFail)
{
    for (int size = 1; size < 6; ++size) {
        button.resize(size, size);
        enter(&button);
        leave(&button);
    }
    EXPECT_EQ(button.backgroundMode(), Qt::NoBackground);
}
