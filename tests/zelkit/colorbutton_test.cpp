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

    // Two rings around the colour; the corners at the upper right and the lower left belong to the lower
    // right.
    Pixels panel(unsigned colour) const
    {
        const unsigned dark = button.colorGroup().dark().rgb() & 0xffffff;
        const unsigned light = button.colorGroup().light().rgb() & 0xffffff;
        Pixels pixels(30, 20, colour);
        for (int ring = 0; ring < 2; ++ring) {
            pixels.fill(ring, ring, 30 - 2 * ring, 1, dark);
            pixels.fill(ring, ring, 1, 20 - 2 * ring, dark);
            pixels.fill(ring, 19 - ring, 30 - 2 * ring, 1, light);
            pixels.fill(29 - ring, ring, 1, 20 - 2 * ring, light);
        }
        return pixels;
    }

    QWidget window;
    ZelColorButton button;
    SignalRecorder recorder;
};

} // namespace

TEST_F(ColorButton, AtRestItIsASunkenPanelOfItsColour)
{
    EXPECT_EQ(Pixels::of(&button).differenceFrom(panel(0xc80000)), "");
    EXPECT_EQ(panel(0).at(0, 0), 0x808080U);
    button.setColor(QColor(0, 120, 40));
    EXPECT_EQ(Pixels::now(&button).differenceFrom(panel(0x007828)), "");
}

TEST_F(ColorButton, ThePointerAndNewColoursPaintOnceAndAtOnce)
{
    PaintLog paints(&button);
    enter(&button);
    EXPECT_EQ(paints.take(), "erased");
    EXPECT_EQ(Pixels::now(&button).differenceFrom(swatch(0xc80000)), "");
    leave(&button);
    EXPECT_EQ(paints.take(), "erased");
    EXPECT_EQ(Pixels::now(&button).differenceFrom(panel(0xc80000)), "");
    button.setColor(Qt::blue);
    EXPECT_EQ(paints.take(), "erased");
    settle();
    EXPECT_EQ(paints.take(), "");
}

TEST_F(ColorButton, ThePanelHasTheColoursOfADisabledButton)
{
    QPalette palette = button.palette();
    palette.setColor(QPalette::Disabled, QColorGroup::Dark, QColor(4, 5, 6));
    button.setPalette(palette);
    button.setEnabled(false);
    button.repaint(true);
    EXPECT_EQ(Pixels::now(&button).at(0, 0), 0x040506U);
    EXPECT_EQ(Pixels::now(&button).at(15, 10), 0xc80000U);
}

TEST_F(ColorButton, OnlyTheHoverBitShows)
{
    button.setPaletteForegroundColor(Qt::yellow); // the outlines stay black
    press(&button);
    EXPECT_EQ(Pixels::of(&button).differenceFrom(panel(0xc80000)), "");
    enter(&button);
    EXPECT_EQ(Pixels::of(&button).differenceFrom(swatch(0xc80000)), "");
    leave(&button);
    EXPECT_EQ(Pixels::of(&button).differenceFrom(panel(0xc80000)), "");
    release(&button);
    EXPECT_EQ(recorder.take(), "clicked") << "leaving does not end the press";
}

TEST_F(ColorButton, OnlyReleasesInsideTheEdgesClick)
{
    const struct {
        int x, y;
        const char* signalled;
    } places[] = {{0, 0, "clicked"}, {29, 19, "clicked"}, {30, 19, ""}, {29, 20, ""},
                  {-1, 0, ""},       {0, -1, ""},         {5, 1000, ""}};
    for (const auto& place : places) {
        press(&button);
        release(&button, place.x, place.y);
        EXPECT_EQ(recorder.take(), place.signalled) << place.x << "," << place.y;
        release(&button);
        EXPECT_EQ(recorder.take(), "") << "one press, one release";
    }
}

TEST_F(ColorButton, ThePressIsOverWhenItIsTold)
{
    int told = 0;
    recorder.whenever = [&] {
        if (++told == 1)
            release(&button);
    };
    press(&button);
    release(&button);
    EXPECT_EQ(told, 1);
}

TEST_F(ColorButton, AnyButtonsReleaseEndsThePress)
{
    press(&button);
    release(&button, 5, 5, Qt::RightButton);
    EXPECT_EQ(recorder.take(), "clicked");
    release(&button);
    press(&button, 5, 5, Qt::MidButton);
    release(&button);
    EXPECT_EQ(recorder.take(), "");
}

TEST_F(ColorButton, KeepsItsMouseEventsFromTheParent)
{
    EventCount presses(&window, QEvent::MouseButtonPress), releases(&window, QEvent::MouseButtonRelease);
    for (const int mouseButton : {Qt::LeftButton, Qt::RightButton}) {
        EXPECT_TRUE(press(&button, 5, 5, mouseButton));
        EXPECT_TRUE(release(&button, 5, 5, mouseButton));
    }
    EXPECT_EQ(presses.take() + releases.take(), 0);
    EXPECT_STREQ(button.name(), "button");
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
