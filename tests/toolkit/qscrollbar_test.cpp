// Scroll bars: places, mouse, wheel, keys and the signals they cause.
#include "perishable.h"
#include "pixels.h"
#include "printers.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qguardedptr.h>
#include <qscrollbar.h>

#include <X11/keysym.h>

#include <string>

namespace
{

class ScrollBar : public testing::Test
{
protected:
    ScrollBar() : bar(0, 100, 5, 20, 30, Qt::Horizontal, &window)
    {
        window.setGeometry(100, 100, 220, 60);
        bar.setGeometry(10, 20, 200, 16);
        bar.setFocusPolicy(QWidget::StrongFocus);
        for (const char* signal : {SIGNAL(valueChanged(int)), SIGNAL(sliderPressed()),
                                   SIGNAL(sliderMoved(int)), SIGNAL(sliderReleased()), SIGNAL(nextLine()),
                                   SIGNAL(prevLine()), SIGNAL(nextPage()), SIGNAL(prevPage())})
            recorder.watch(&bar, signal);
        showAndActivate(&window);
    }

    std::string heard()
    {
        settle();
        return recorder.take();
    }
    int middle() const { return bar.sliderRect().center().x(); }

    QWidget window;
    QScrollBar bar;
    SignalRecorder recorder;
};

// Deletes the scroll bar that is painted next.
class PaintEnds : public QObject
{
public:
    explicit PaintEnds(QScrollBar* watched) : bar(watched) { bar->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::Paint)
            return false;
        delete bar;
        return true;
    }
    QGuardedPtr<QScrollBar> bar;
};

} // namespace

TEST_F(ScrollBar, SliderShowsValueAndPage)
{
    EXPECT_EQ(bar.sliderRect(), QRect(57, 2, 28, 12));
    bar.setValue(100);
    EXPECT_EQ(bar.sliderRect(), QRect(158, 2, 28, 12));
    bar.setRange(0, 255);
    bar.setLineStep(1);
    bar.setPageStep(10);
    bar.setValue(0);
    EXPECT_EQ(bar.sliderRect(), QRect(14, 2, 9, 12)) << "never shorter than that";
    bar.setRange(0, 0);
    EXPECT_EQ(bar.sliderRect(), QRect(14, 2, 172, 12)) << "nothing to scroll";
}

TEST_F(ScrollBar, ArrowsStepALine)
{
    xinput::click(&bar, 8, 8);
    EXPECT_EQ(heard(), "valueChanged(25) prevLine");
    xinput::click(&bar, 192, 8);
    EXPECT_EQ(heard(), "valueChanged(30) nextLine");
}

TEST_F(ScrollBar, AHeldArrowRepeats)
{
    xinput::moveTo(&bar, 192, 8);
    xinput::pressButton();
    EXPECT_TRUE(waitFor([&] { return bar.value() >= 45; }));
    xinput::releaseButton();
}

TEST_F(ScrollBar, AHeldArrowRestsWhileThePointerIsBesideIt)
{
    xinput::moveTo(&bar, 192, 8);
    xinput::pressButton();
    EXPECT_TRUE(waitFor([&] { return bar.value() >= 45; }));
    xinput::moveTo(&bar, 192, -10);
    settle();
    const int value = bar.value();
    EXPECT_FALSE(waitFor([&] { return bar.value() != value; }, 200));
    xinput::moveTo(&bar, 192, 8);
    EXPECT_TRUE(waitFor([&] { return bar.value() == 100; })) << "and goes on to the end";
    xinput::releaseButton();
}

TEST_F(ScrollBar, HeldPagesStopAtThePointer)
{
    bar.setRange(0, 1000);
    xinput::moveTo(&bar, 100, 8);
    xinput::pressButton();
    EXPECT_TRUE(waitFor([&] { return bar.sliderRect().right() >= 100; }));
    EXPECT_TRUE(bar.sliderRect().contains(100, 8));
    const int value = bar.value();
    EXPECT_FALSE(waitFor([&] { return bar.value() != value; }, 200));
    xinput::releaseButton();
    settle();
    EXPECT_EQ(bar.value(), value);
}

// The button goes up while nobody sees the bar.
TEST_F(ScrollBar, HidingLetsGoOfTheArrow)
{
    const Pixels atRest = Pixels::of(&bar).part(186, 0, 14, 16);
    xinput::moveTo(&bar, 192, 8);
    xinput::pressButton();
    EXPECT_TRUE(waitFor([&] { return bar.value() >= 45; }));
    EXPECT_NE(atRest, Pixels::of(&bar).part(186, 0, 14, 16));
    bar.hide();
    const int value = bar.value();
    EXPECT_FALSE(waitFor([&] { return bar.value() != value; }, 200));
    xinput::releaseButton();
    settle();
    bar.show();
    EXPECT_EQ(atRest, Pixels::of(&bar).part(186, 0, 14, 16));
    EXPECT_EQ(bar.value(), value);
    heard();
    xinput::click(&bar, 8, 8);
    EXPECT_EQ(heard(), "valueChanged(" + std::to_string(value - 5) + ") prevLine");
}

TEST_F(ScrollBar, HidingLetsGoOfTheSlider)
{
    xinput::moveTo(&bar, middle(), 8);
    xinput::pressButton();
    EXPECT_EQ(heard(), "sliderPressed");
    EXPECT_TRUE(bar.draggingSlider());
    bar.hide();
    EXPECT_FALSE(bar.draggingSlider());
    bar.show();
    settle();
    xinput::moveTo(&bar, middle() + 40, 8);
    xinput::releaseButton();
    EXPECT_EQ(heard(), "");
    EXPECT_EQ(bar.value(), 30);
}

TEST_F(ScrollBar, AClickBesideTheSliderTurnsAPage)
{
    bar.setValue(50);
    heard();
    xinput::click(&bar, bar.sliderRect().left() - 10, 8);
    EXPECT_EQ(heard(), "valueChanged(30) prevPage");
    xinput::click(&bar, bar.sliderRect().right() + 10, 8);
    EXPECT_EQ(heard(), "valueChanged(50) nextPage");
}

TEST_F(ScrollBar, TheMiddleButtonBringsTheSliderToThePointer)
{
    xinput::click(&bar, 160, 8, 2);
    EXPECT_EQ(heard(), "valueChanged(92) sliderPressed sliderReleased");
    xinput::click(&bar, 60, 8, 3);
    EXPECT_EQ(heard(), "") << "the right button does nothing";
}

TEST_F(ScrollBar, TheSliderIsDragged)
{
    bar.setValue(50);
    heard();
    xinput::moveTo(&bar, middle(), 8);
    xinput::pressButton();
    EXPECT_EQ(heard(), "sliderPressed");
    EXPECT_TRUE(bar.draggingSlider());
    xinput::moveTo(&bar, middle() + 10, 8);
    EXPECT_EQ(heard(), "sliderMoved(57) valueChanged(57)");
    xinput::moveTo(&bar, 199, 8);
    EXPECT_EQ(heard(), "sliderMoved(100) valueChanged(100)");
    xinput::releaseButton();
    EXPECT_EQ(heard(), "sliderReleased");
    EXPECT_FALSE(bar.draggingSlider());
}

TEST_F(ScrollBar, WithoutTrackingTheValueFollowsAtTheEnd)
{
    bar.setTracking(false);
    bar.setValue(50);
    heard();
    xinput::moveTo(&bar, middle(), 8);
    xinput::pressButton();
    settle();
    xinput::moveTo(&bar, middle() + 20, 8);
    EXPECT_EQ(heard(), "sliderPressed sliderMoved(64)");
    EXPECT_EQ(bar.value(), 50);
    xinput::releaseButton();
    EXPECT_EQ(heard(), "sliderReleased valueChanged(64)");
}

TEST_F(ScrollBar, KeysMoveAlongTheBarOnly)
{
    bar.setFocus();
    bar.setValue(50);
    heard();
    const struct {
        unsigned long key;
        const char* signal;
    } keys[] = {{XK_Left, "valueChanged(45)"},
                {XK_Right, "valueChanged(50)"},
                {XK_Up, ""},
                {XK_Down, ""},
                {XK_Prior, "valueChanged(30)"},
                {XK_Next, "valueChanged(50)"},
                {XK_Home, "valueChanged(0)"},
                {XK_End, "valueChanged(100)"},
                {XK_space, ""}};
    for (const auto& each : keys) {
        xinput::typeKey(each.key);
        EXPECT_EQ(heard(), each.signal) << each.key;
    }
}

TEST_F(ScrollBar, TheWheelScrollsThreeLinesOrAPage)
{
    bar.setValue(50);
    xinput::moveTo(&bar, 100, 8);
    heard();
    xinput::pressButton(4);
    xinput::releaseButton(4);
    EXPECT_EQ(heard(), "valueChanged(35)");
    xinput::pressKey(XK_Control_L);
    xinput::pressButton(5);
    xinput::releaseButton(5);
    xinput::releaseKey(XK_Control_L);
    EXPECT_EQ(heard(), "valueChanged(55)");
}

TEST_F(ScrollBar, ADisabledOneDoesNotReact)
{
    bar.setEnabled(false);
    xinput::click(&bar, 8, 8);
    EXPECT_EQ(heard(), "");
}

TEST_F(ScrollBar, ArrowsAreDrawnWithLightFromAbove)
{
    const Pixels::Legend legend = {{'.', 0xa0a0a4}, {'l', 0xececec}, {'d', 0x808080}, {' ', 0xc0c0c0}};
    EXPECT_EQ(Pixels::of(&bar).part(2, 2, 12, 12).picture(legend), "..........ld\n"
                                                                   "........llld\n"
                                                                   "......lllldd\n"
                                                                   "....llll  dd\n"
                                                                   "..llll    dd\n"
                                                                   "llll      dd\n"
                                                                   "dddd      dd\n"
                                                                   "..dddd    dd\n"
                                                                   "....dddd  dd\n"
                                                                   "......dddddd\n"
                                                                   "........dddd\n"
                                                                   "..........dd\n");
}

TEST_F(ScrollBar, ArrowsOfAShortBarMeetInTheirMiddleRow)
{
    const Pixels::Legend legend = {{'.', 0xa0a0a4}, {'l', 0xececec}, {'d', 0x808080}, {' ', 0xc0c0c0}};
    bar.resize(30, 16);
    const Pixels shown = Pixels::of(&bar);
    EXPECT_EQ(shown.part(2, 2, 9, 12).picture(legend), ".........\n"
                                                       ".......ll\n"
                                                       ".....llll\n"
                                                       "...llll  \n"
                                                       ".llll    \n"
                                                       "lll      \n"
                                                       ".dddd    \n"
                                                       "...dddd  \n"
                                                       ".....dddd\n"
                                                       ".......dd\n"
                                                       ".........\n"
                                                       ".........\n");
    EXPECT_EQ(shown.part(19, 2, 9, 12).picture(legend), ".........\n"
                                                        "ll.......\n"
                                                        "llll.....\n"
                                                        "  llll...\n"
                                                        "    llll.\n"
                                                        "      ddd\n"
                                                        "    dddd.\n"
                                                        "  dddd...\n"
                                                        "dddd.....\n"
                                                        "dd.......\n"
                                                        ".........\n"
                                                        ".........\n");
}

TEST(ScrollBarDeletion, MayBeDeletedByTheReceiverOfAnySignal)
{
    const struct {
        const char* signal;
        int button, from, to; // pressed, dragged and let go there
    } cases[] = {
        {SIGNAL(valueChanged(int)), 1, 8, 8},     {SIGNAL(prevLine()), 1, 8, 8},
        {SIGNAL(nextLine()), 1, 192, 192},        {SIGNAL(prevPage()), 1, 20, 20},
        {SIGNAL(nextPage()), 1, 180, 180},        {SIGNAL(valueChanged(int)), 1, 180, 180},
        {SIGNAL(valueChanged(int)), 2, 180, 180}, {SIGNAL(sliderPressed()), 1, 70, 70},
        {SIGNAL(sliderMoved(int)), 1, 70, 120},   {SIGNAL(valueChanged(int)), 1, 70, 120},
        {SIGNAL(sliderReleased()), 1, 70, 120},
    };
    QWidget window;
    window.setGeometry(100, 100, 220, 60);
    showAndActivate(&window);
    for (const auto& each : cases) {
        QScrollBar* bar = new QScrollBar(0, 100, 5, 20, 30, Qt::Horizontal, &window);
        bar->setGeometry(10, 20, 200, 16);
        bar->show();
        settle();
        SignalRecorder recorder;
        recorder.watch(bar, each.signal);
        recorder.whenever = [&] {
            delete bar;
            bar = nullptr;
        };
        xinput::moveTo(&window, 10 + each.from, 28);
        xinput::pressButton(each.button);
        settle();
        xinput::moveTo(&window, 10 + each.to, 28);
        settle();
        xinput::releaseButton(each.button);
        settle();
        EXPECT_EQ(bar, nullptr) << each.signal;
        EXPECT_EQ(recorder.count(), 1) << each.signal;
        delete bar;
    }
}

TEST(ScrollBarDeletion, MayBeDeletedByAFilterThatHearsItPaint)
{
    QWidget window;
    window.setGeometry(100, 100, 220, 60);
    QScrollBar* bar = new Perishable<QScrollBar>(0, 100, 5, 20, 30, Qt::Horizontal, &window);
    bar->setGeometry(10, 20, 200, 16);
    showAndActivate(&window);
    settle();
    SignalRecorder recorder;
    recorder.watch(bar, SIGNAL(valueChanged(int)));
    const PaintEnds ends(bar);
    bar->setValue(40);
    EXPECT_TRUE(ends.bar.isNull());
    EXPECT_EQ(recorder.count(), 0);
    Graveyard::clear();
}

TEST_F(ScrollBar, MayBeTurned)
{
    bar.setOrientation(Qt::Vertical);
    EXPECT_EQ(Qt::Vertical, bar.orientation());
    bar.setGeometry(10, 0, 16, 60);
    EXPECT_EQ(QSizePolicy::Fixed, bar.sizePolicy().horData());
    EXPECT_LT(bar.sizeHint().width(), bar.sizeHint().height() + 1);
    settle();
    xinput::click(&bar, 8, 55);
    EXPECT_EQ(heard(), "valueChanged(35) nextLine");
}

TEST(ScrollBarSize, IsSixteenAcross)
{
    EXPECT_EQ(QScrollBar(Qt::Horizontal, nullptr).sizeHint(), QSize(30, 16));
    EXPECT_EQ(QScrollBar(Qt::Vertical, nullptr).sizeHint(), QSize(16, 30));
}
