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
        const int width = label.width(), height = label.height();
        QPixmap pixmap(width, height);
        pixmap.fill(QColor(250, 240, 100));
        QPainter painter(&pixmap);
        painter.setFont(label.font());
        qDrawShadeRect(&painter, 0, 0, width, height, label.colorGroup(), true, 1, 0);
        painter.setPen(text);
        painter.drawText(2, 2, width - 4, height - 4, Qt::AlignCenter, "Middle");
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

TEST_F(ActiveLabel2, TheTextIsInTheMiddleOfEverySize)
{
    for (int more = 0; more < 4; ++more) {
        label.resize(90 + more, 40 + more / 2);
        settle();
        EXPECT_EQ(Pixels::of(&label).differenceFrom(model(QColor(0, 0, 220))), "") << more;
    }
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

// A pixel that the label does not paint itself stays until something is erased.
TEST_F(ActiveLabel2, EnteringAndLeavingPaintOnceWithoutErasing)
{
    {
        QPainter painter(&label);
        painter.fillRect(5, 5, 1, 1, QBrush(Qt::red));
    }
    PaintLog paints(&label);
    enter(&label);
    EXPECT_EQ(paints.take(), "kept");
    EXPECT_EQ(Pixels::now(&label).at(5, 5), 0xff0000U);
    EXPECT_GT(Pixels::now(&label).count(0xffffff), 5);
    leave(&label);
    EXPECT_EQ(paints.take(), "kept");
    EXPECT_EQ(Pixels::now(&label).at(5, 5), 0xff0000U);
    EXPECT_GT(Pixels::now(&label).count(0x0000dc), 5);
    settle();
    EXPECT_EQ(paints.take(), "");
}

TEST_F(ActiveLabel2, ANewTextErasesTheOldOne)
{
    PaintLog paints(&label);
    label.setText("WWWWWWW");
    EXPECT_EQ(paints.take(), "erased");
    EXPECT_NE(Pixels::now(&label), model(QColor(0, 0, 220)));
    label.setText("Middle");
    EXPECT_EQ(paints.take(), "erased");
    EXPECT_EQ(Pixels::now(&label).differenceFrom(model(QColor(0, 0, 220))), "");
    label.setText(0);
    EXPECT_EQ(Pixels::now(&label).count(0x0000dc), 0);
}

TEST_F(ActiveLabel2, TheOutlineHasTheColoursOfADisabledLabel)
{
    QPalette palette = label.palette();
    palette.setColor(QPalette::Disabled, QColorGroup::Dark, QColor(4, 5, 6));
    label.setPalette(palette);
    label.setEnabled(false);
    label.repaint(true);
    EXPECT_EQ(Pixels::now(&label).at(0, 0), 0x040506U);
}

TEST_F(ActiveLabel2, WithoutATextItIsAnOutline)
{
    ZelActiveLabel2 plain(&window, "plain");
    plain.setGeometry(120, 30, 5, 4);
    plain.show();
    settle();
    const QColorGroup& g = plain.colorGroup();
    const Pixels::Legend legend = {
        {'.', 0xfaf064}, {'#', g.dark().rgb() & 0xffffff}, {'+', g.light().rgb() & 0xffffff}};
    EXPECT_EQ(Pixels::of(&plain).picture(legend), "####+\n"
                                                  "#++#+\n"
                                                  "####+\n"
                                                  "+++++\n");
    EXPECT_STREQ(plain.name(), "plain");
}

TEST_F(ActiveLabel2, TheTextKeepsTwoPixelsFree)
{
    label.setText("WWWWWWWWWWWWWWWWWWWWWWWWWWW\nWWWWWWWWWWWWWWW\nWWWWWWWWWWWWWWWW\nWWWWWWWWWWWWWWW");
    Pixels pixels = Pixels::of(&label);
    EXPECT_GT(pixels.count(0x0000dc), 50);
    pixels.fill(2, 2, 86, 36, 0xfaf064);
    label.setText("");
    EXPECT_EQ(pixels.differenceFrom(Pixels::of(&label)), "");
}

TEST_F(ActiveLabel2, TinyOnesDrawNoTextAndDoNotFail)
{
    for (int size = 1; size <= 4; ++size) {
        label.resize(size, size);
        settle();
        EXPECT_EQ(Pixels::of(&label).count(0x0000dc), 0) << size;
        enter(&label);
        press(&label, 0, 0);
        release(&label, 0, 0);
        leave(&label);
        EXPECT_EQ(recorder.take(), "pressed clicked") << size;
    }
}

TEST_F(ActiveLabel2, AnyButtonsReleaseEndsThePress)
{
    press(&label);
    release(&label, 5, 5, Qt::RightButton);
    EXPECT_EQ(recorder.take(), "pressed clicked");
    release(&label);
    EXPECT_EQ(recorder.take(), "") << "it is no longer pressed";
    press(&label);
    release(&label, 100, 5);
    release(&label);
    EXPECT_EQ(recorder.take(), "pressed");
}

TEST_F(ActiveLabel2, LeavingAndComingBackWhileHeldKeepsThePress)
{
    xinput::moveTo(&label, 45, 20);
    xinput::pressButton();
    xinput::moveTo(&window, 190, 110);
    settle();
    EXPECT_EQ(Pixels::of(&label).count(0xffffff), model(QColor(0, 0, 220)).count(0xffffff));
    xinput::moveTo(&label, 45, 20);
    settle();
    EXPECT_EQ(recorder.take(), "pressed");
    xinput::releaseButton();
    EXPECT_TRUE(waitFor([this] { return recorder.count() > 0; }));
    EXPECT_EQ(recorder.take(), "clicked");
}

TEST_F(ActiveLabel2, KeepsItsMouseEventsFromTheParent)
{
    EventCount presses(&window, QEvent::MouseButtonPress), releases(&window, QEvent::MouseButtonRelease);
    for (const int button : {Qt::LeftButton, Qt::RightButton}) {
        EXPECT_TRUE(press(&label, 5, 5, button));
        EXPECT_TRUE(release(&label, 5, 5, button));
    }
    EXPECT_EQ(presses.take() + releases.take(), 0);
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

TEST_F(ActiveLabel2, ItIsPressedWhenThatIsToldAndNoLongerAtTheClick)
{
    int told = 0;
    recorder.whenever = [&] {
        if (++told <= 2)
            release(&label);
    };
    press(&label);
    EXPECT_EQ(recorder.take(), "pressed clicked");
    release(&label);
    EXPECT_EQ(recorder.take(), "");
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
