// ZelActiveLabel2: the outline that stays, the colours of the text, and its two signals.
#include <zelactivelabel2.h>

#include "pixels.h"
#include "sentevents.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qdrawutil.h>
#include <qpainter.h>
#include <qpixmap.h>

namespace
{

class ActiveLabel2 : public testing::Test
{
protected:
    ActiveLabel2()
        : window(0, "window"),
          label((window.setPaletteBackgroundColor(QColor(250, 240, 100)), &window), "label")
    {
        window.setGeometry(200, 150, 200, 120);
        label.setGeometry(20, 30, 90, 40);
        label.setText("Middle");
        recorder.watch(&label, SIGNAL(pressed()));
        recorder.watch(&label, SIGNAL(clicked()));
        showAndWait(&window);
    }

    Pixels model(const QColor& text)
    {
        QPixmap pixmap(90, 40);
        pixmap.fill(QColor(250, 240, 100));
        QPainter painter(&pixmap);
        painter.setFont(label.font());
        qDrawShadeRect(&painter, 0, 0, 90, 40, label.colorGroup(), true, 1, 0);
        painter.setPen(text);
        painter.drawText(QRect(2, 2, 86, 36), Qt::AlignCenter, "Middle");
        painter.end();
        return Pixels::of(pixmap);
    }

    QWidget window;
    ZelActiveLabel2 label;
    SignalRecorder recorder;
};

} // namespace

TEST_F(ActiveLabel2, AtRestTheTextIsBlueInASunkenOutline)
{
    EXPECT_EQ(Pixels::of(&label).differenceFrom(model(QColor(0, 0, 220))), "");
}

TEST_F(ActiveLabel2, ThePointerTurnsTheTextWhite)
{
    xinput::moveTo(&label, 45, 20);
    EXPECT_TRUE(waitFor([this] { return label.hasMouse(); }));
    // The white text lies on the blue one: its antialiased edges keep a trace of it.
    const Pixels hovered = Pixels::of(&label);
    EXPECT_GT(hovered.count(0xffffff), 5);
    EXPECT_EQ(hovered.count(0x0000dc), 0);
    EXPECT_EQ(hovered.at(0, 0), model(QColor(0, 0, 220)).at(0, 0));
    label.repaint(true);
    EXPECT_EQ(Pixels::of(&label).differenceFrom(model(QColor(255, 255, 255))), "");
}

TEST_F(ActiveLabel2, EnteringAndLeavingPaintOnceWithoutErasing)
{
    EventCount paints(&label, QEvent::Paint);
    enter(&label);
    EXPECT_EQ(paints.take(), 1);
    leave(&label);
    EXPECT_EQ(paints.take(), 1);
}

TEST_F(ActiveLabel2, APressIsToldAtOnceAndAClickAtTheRelease)
{
    EventCount paints(&label, QEvent::Paint);
    press(&label);
    EXPECT_EQ(recorder.take(), "pressed");
    release(&label);
    EXPECT_EQ(recorder.take(), "clicked");
    EXPECT_EQ(paints.take(), 0);
}

TEST_F(ActiveLabel2, OnlyTheLeftButtonPressesAndOnlyInsideIsAClick)
{
    press(&label, 5, 5, Qt::RightButton);
    release(&label, 5, 5, Qt::RightButton);
    EXPECT_EQ(recorder.take(), "");
    const struct {
        int x, y;
        const char* signal;
    } places[] = {{0, 0, "pressed clicked"},
                  {89, 39, "pressed clicked"},
                  {90, 5, "pressed"},
                  {5, 40, "pressed"},
                  {-1, 5, "pressed"}};
    for (const auto& place : places) {
        press(&label);
        release(&label, place.x, place.y);
        EXPECT_EQ(recorder.take(), place.signal) << place.x << "," << place.y;
    }
}

TEST_F(ActiveLabel2, ADoubleClickIsTwoClicks)
{
    xinput::doubleClick(&label, 40, 20);
    EXPECT_TRUE(waitFor([this] { return recorder.count() >= 4; }));
    EXPECT_EQ(recorder.take(), "pressed clicked pressed clicked");
}

TEST_F(ActiveLabel2, TheBackgroundIsTheParentsAtItsBirth)
{
    window.setPaletteBackgroundColor(Qt::red);
    EXPECT_EQ(label.paletteBackgroundColor(), QColor(250, 240, 100));
}
