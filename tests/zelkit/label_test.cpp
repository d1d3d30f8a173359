// ZelLabel: its signals, its toggle, and the hover look of active labels.
#include <zellabel.h>

#include "inputlog.h"
#include "pixels.h"
#include "sentevents.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qpainter.h>
#include <qpixmap.h>

namespace
{

class Label : public testing::Test
{
protected:
    Label() : window(0, "window"), label(nullptr) { window.setGeometry(200, 150, 200, 120); }

    void show(bool active)
    {
        label = new ZelLabel(QString("Toggle"), &window, "label", active, 0);
        label->setGeometry(20, 30, 100, 40);
        recorder.watch(label, SIGNAL(mousePress(QMouseEvent*)));
        recorder.watch(label, SIGNAL(mouseRelease(QMouseEvent*)));
        recorder.watch(label, SIGNAL(mouseDoubleClick(QMouseEvent*)));
        recorder.watch(label, SIGNAL(mouseMove(QMouseEvent*)));
        recorder.watch(label, SIGNAL(clicked(ZelLabel*)));
        showAndWait(&window);
    }

    // The text in the middle of a label without a frame.
    Pixels centred(int weight, const QColor& colour)
    {
        QPixmap pixmap(label->width(), label->height());
        pixmap.fill(label->paletteBackgroundColor());
        QPainter painter(&pixmap);
        QFont font = label->font();
        font.setWeight(weight);
        painter.setFont(font);
        painter.setPen(colour);
        painter.drawText(label->rect(), Qt::AlignCenter, "Toggle");
        painter.end();
        return Pixels::of(pixmap);
    }

    QWidget window;
    ZelLabel* label;
    SignalRecorder recorder;
};

} // namespace

TEST_F(Label, EveryMouseEventIsToldAndGoesOnToTheParent)
{
    show(false);
    EventCount presses(&window, QEvent::MouseButtonPress);
    EXPECT_FALSE(press(label));
    EXPECT_EQ(presses.take(), 1);
    drag(label, 6, 6);
    release(label);
    EXPECT_EQ(recorder.take(), "mousePress mouseMove mouseRelease clicked");
    doubleClick(label);
    EXPECT_EQ(recorder.take(), "mouseDoubleClick mousePress");
}

TEST_F(Label, EveryKindOfMouseEventReachesTheParentInItsCoordinates)
{
    EventLog log;
    InputWidget parent(&log, 0, "parent", 200, 150, 200, 120);
    ZelLabel child("Toggle", &parent, "child", true, 0);
    child.setGeometry(20, 30, 100, 40);
    showAndWait(&parent);
    log.take();
    for (const int button : {Qt::LeftButton, Qt::MidButton, Qt::RightButton}) {
        const std::string number = std::to_string(button);
        press(&child, 1, 2, button);
        EXPECT_EQ(log.take(), "parent press 21,32 button " + number + " state 0");
        release(&child, 1, 2, button);
        EXPECT_EQ(log.take(), "parent release 21,32 button " + number + " state " + number);
    }
    drag(&child, 3, 4);
    EXPECT_EQ(log.take(), "parent move 23,34 button 0 state 1");
    doubleClick(&child, 1, 2);
    EXPECT_EQ(log.take(), "parent double 21,32 button 1 state 0; parent press 21,32 button 1 state 0");
}

TEST_F(Label, ARealDoubleClickTogglesTwice)
{
    show(true);
    xinput::doubleClick(label, 20, 10);
    EXPECT_TRUE(waitFor([this] { return recorder.count() >= 7; }));
    EXPECT_EQ(recorder.take(), "mousePress mouseRelease clicked "
                               "mouseDoubleClick mousePress mouseRelease clicked");
    EXPECT_FALSE(label->isOn());
}

TEST_F(Label, ItTogglesBeforeItTells)
{
    show(false);
    bool on = false;
    recorder.whenever = [&] { on = label->isOn(); };
    release(label);
    EXPECT_TRUE(on);
    label->setOn(false);
    EXPECT_FALSE(on);
    label->setOn(false);
    EXPECT_EQ(recorder.take(), "mouseRelease clicked clicked clicked");
}

TEST_F(Label, ALeftReleaseInsideTogglesWithoutAPress)
{
    show(false);
    EXPECT_FALSE(label->isOn());
    release(label, 99, 39);
    EXPECT_TRUE(label->isOn());
    release(label, 0, 0);
    EXPECT_FALSE(label->isOn());
    EXPECT_EQ(recorder.take(), "mouseRelease clicked mouseRelease clicked");
    release(label, 100, 5);
    release(label, 5, 40);
    release(label, -1, 5);
    release(label, 5, 5, Qt::RightButton);
    EXPECT_FALSE(label->isOn());
    EXPECT_EQ(recorder.take(), "mouseRelease mouseRelease mouseRelease mouseRelease");
}

TEST_F(Label, SetOnTellsEveryTime)
{
    show(true);
    EventCount paints(label, QEvent::Paint);
    label->setOn(true);
    label->setOn(true);
    EXPECT_TRUE(label->isOn());
    EXPECT_EQ(recorder.take(), "clicked clicked");
    release(label);
    EXPECT_FALSE(label->isOn());
    EXPECT_EQ(recorder.take(), "mouseRelease clicked");
    settle();
    EXPECT_EQ(paints.take(), 0) << "the toggle has no look";
}

TEST_F(Label, AnActiveLabelTurnsBoldAndColouredUnderThePointer)
{
    show(true);
    EXPECT_EQ(Pixels::of(label).differenceFrom(centred(QFont::Normal, Qt::black)), "");
    xinput::moveTo(label, 50, 20);
    EXPECT_TRUE(waitFor([this] { return label->font().bold(); }));
    EXPECT_EQ(label->font().weight(), 75);
    EXPECT_EQ(Pixels::of(label).differenceFrom(centred(QFont::Bold, QColor(0, 0, 240))), "");
    EXPECT_GT(Pixels::of(label).count(0x0000f0), 5);
    xinput::park();
    EXPECT_TRUE(waitFor([this] { return !label->font().bold(); }));
    EXPECT_EQ(label->font().weight(), 50);
    EXPECT_EQ(Pixels::of(label).differenceFrom(centred(QFont::Normal, Qt::black)), "");
}

TEST_F(Label, TheNewLookIsPaintedAtOnce)
{
    show(true);
    EventCount paints(label, QEvent::Paint);
    enter(label);
    EXPECT_EQ(Pixels::now(label).differenceFrom(centred(QFont::Bold, QColor(0, 0, 240))), "");
    EXPECT_GE(paints.take(), 1);
    leave(label);
    EXPECT_EQ(Pixels::now(label).differenceFrom(centred(QFont::Normal, Qt::black)), "");
    EXPECT_GE(paints.take(), 1);
}

TEST_F(Label, OnlyTheWeightOfTheFontChanges)
{
    show(true);
    QFont font("DejaVu Sans", 17, QFont::DemiBold, true);
    font.setUnderline(true);
    label->setFont(font);
    enter(label);
    font.setWeight(QFont::Bold);
    EXPECT_EQ(label->font(), font);
    leave(label);
    font.setWeight(QFont::Normal);
    EXPECT_EQ(label->font(), font);
}

TEST_F(Label, AnActiveLabelDrawsItsTextInTheMiddleWhateverIsSet)
{
    show(true);
    label->setAlignment(Qt::AlignRight | Qt::AlignBottom);
    label->setText("<b>Toggle</b>");
    label->setFrameStyle(QFrame::Panel | QFrame::Raised);
    label->setLineWidth(3);
    label->resize(160, 40);
    settle();
    const QRect inside = label->contentsRect();
    EXPECT_EQ(inside, QRect(3, 3, 154, 34));
    QPixmap pixmap(inside.width(), inside.height());
    pixmap.fill(label->paletteBackgroundColor());
    {
        QPainter painter(&pixmap);
        painter.setFont(label->font());
        painter.setPen(Qt::black);
        painter.drawText(QRect(0, 0, 154, 34), Qt::AlignCenter, "<b>Toggle</b>");
    }
    EXPECT_EQ(Pixels::of(label).part(3, 3, 154, 34).differenceFrom(Pixels::of(pixmap)), "");
}

TEST_F(Label, APassiveLabelLooksAsAQLabel)
{
    show(false);
    QLabel plain("Toggle", &window, "plain");
    plain.setGeometry(20, 75, 100, 40);
    plain.show();
    settle();
    for (QLabel* each : {static_cast<QLabel*>(label), &plain}) {
        each->setAlignment(Qt::AlignRight | Qt::AlignBottom);
        each->setFrameStyle(QFrame::Box | QFrame::Sunken);
        each->setLineWidth(2);
    }
    settle();
    EXPECT_EQ(Pixels::of(label).differenceFrom(Pixels::of(&plain)), "");
    EXPECT_GT(Pixels::of(label).count(0x000000), 5);
}

TEST_F(Label, APassiveLabelLooksTheSameUnderThePointer)
{
    show(false);
    const Pixels before = Pixels::of(label);
    xinput::moveTo(label, 50, 20);
    EXPECT_TRUE(waitFor([this] { return label->hasMouse(); }));
    EXPECT_EQ(Pixels::of(label).differenceFrom(before), "");
    EXPECT_FALSE(label->font().bold());
}

TEST_F(Label, TheTwoConstructorsHaveTwoBlues)
{
    ZelLabel other("Toggle", &window, "other", true, 0);
    other.setGeometry(20, 75, 100, 40);
    show(true);
    EXPECT_EQ(Pixels::of(&other).differenceFrom(centred(QFont::Normal, QColor(0, 0, 0))), "");
    enter(&other);
    EXPECT_EQ(Pixels::of(&other).differenceFrom(centred(QFont::Bold, QColor(0, 0, 200))), "");
    EXPECT_GT(Pixels::of(&other).count(0x0000c8), 5);
    enter(label);
    EXPECT_GT(Pixels::of(label).count(0x0000f0), 5);
}

TEST_F(Label, NewColoursShowAtTheNextRepaint)
{
    show(true);
    enter(label);
    const Pixels before = Pixels::of(label);
    QColor red(255, 0, 0);
    QColor green(0, 255, 0);
    label->setTextColors(red, green);
    EXPECT_EQ(Pixels::of(label).differenceFrom(before), "");
    red = Qt::yellow; // copies were taken
    label->repaint(true);
    EXPECT_GT(Pixels::of(label).count(0xff0000), 5);
    leave(label);
    EXPECT_GT(Pixels::of(label).count(0x00ff00), 5);
}

TEST_F(Label, TheConstructorsTakeNameFlagsAndText)
{
    ZelLabel first(QString("one"), &window, "first", false, Qt::WType_TopLevel);
    EXPECT_EQ(first.text(), QString("one"));
    EXPECT_STREQ(first.name(), "first");
    EXPECT_TRUE(first.isTopLevel());
    ZelLabel second("two", &window, "second", false, Qt::WType_TopLevel);
    EXPECT_EQ(second.text(), QString("two"));
    EXPECT_STREQ(second.name(), "second");
    EXPECT_TRUE(second.isTopLevel());
    EXPECT_FALSE(first.isOn());
    EXPECT_FALSE(second.isOn());
}
