// ZelActiveLabel as its user meets it: looks, clicks, and what an application can set.
#include <zelactivelabel.h>

#include "pixels.h"
#include "sentevents.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qmetaobject.h>
#include <qpainter.h>
#include <qpixmap.h>
#include <qstrlist.h>

#include <algorithm>
#include <new>

namespace
{

const unsigned white = 0xffffff;
const unsigned blue = 0x0000dc;

unsigned rgb(const QColor& colour)
{
    return colour.rgb() & 0xffffff;
}

// Counts the paint events and mouse events that reach a widget.
class EventCounter : public QObject
{
public:
    explicit EventCounter(QObject* watched) : paints(0), presses(0) { watched->installEventFilter(this); }
    int takePaints()
    {
        const int count = paints;
        paints = 0;
        return count;
    }
    int paints, presses;

protected:
    bool eventFilter(QObject*, QEvent* event)
    {
        paints += event->type() == QEvent::Paint;
        presses += event->type() == QEvent::MouseButtonPress;
        return false;
    }
};

// A yellow window with one label at (20, 30).
class ActiveLabel : public testing::Test
{
protected:
    ActiveLabel() : window(0, "window"), label(nullptr) {}

    void SetUp() override { show("Mxg", 80, 40); }

    void show(const char* text, int width, int height)
    {
        delete label;
        window.setPaletteBackgroundColor(QColor(250, 240, 100));
        window.setGeometry(200, 150, 200, 160);
        label = new ZelActiveLabel(text, &window, "label");
        label->setGeometry(20, 30, width, height);
        label->show();
        recorder.take();
        recorder.watch(label, SIGNAL(clicked()));
        showAndWait(&window);
    }

    unsigned background() const { return 0xfaf064; }

    // The label's documented picture, drawn into a pixmap: panel and text apart, each in its own way.
    Pixels model(bool hover, bool sunken, int textTop, int alignment, const QString& text) const;

    QWidget window;
    ZelActiveLabel* label;
    SignalRecorder recorder;
};

// Light from the upper left: the corners at the upper right and the lower left belong to the lower right.
void paintPanel(Pixels& pixels, unsigned upperLeft, unsigned lowerRight)
{
    const int width = pixels.width(), height = pixels.height();
    for (int ring = 0; ring < 2; ++ring) {
        pixels.fill(ring, ring, width - 2 * ring, 1, upperLeft);
        pixels.fill(ring, ring, 1, height - 2 * ring, upperLeft);
        pixels.fill(ring, height - 1 - ring, width - 2 * ring, 1, lowerRight);
        pixels.fill(width - 1 - ring, ring, 1, height - 2 * ring, lowerRight);
    }
}

Pixels ActiveLabel::model(bool hover, bool sunken, int textTop, int alignment, const QString& text) const
{
    QPixmap pixmap(label->width(), label->height());
    pixmap.fill(QColor(250, 240, 100));
    {
        QPainter painter(&pixmap);
        painter.setFont(label->font());
        painter.setPen(hover ? QColor(255, 255, 255) : QColor(0, 0, 220));
        const bool sideways = textTop == 1 || textTop == 3;
        const int across = sideways ? label->height() : label->width();
        const int down = sideways ? label->width() : label->height();
        // The corner of the label in which the turned text begins.
        if (textTop == 1)
            painter.translate(0, label->height());
        if (textTop == 2)
            painter.translate(label->width(), label->height());
        if (textTop == 3)
            painter.translate(label->width(), 0);
        if (textTop >= 1 && textTop <= 3)
            painter.rotate(textTop == 1 ? -90 : textTop == 2 ? 180 : 90);
        painter.drawText(2, 2, across - 4, down - 4, alignment, text);
    }
    Pixels pixels = Pixels::of(pixmap);
    if (hover) {
        const unsigned light = rgb(label->colorGroup().light()), dark = rgb(label->colorGroup().dark());
        paintPanel(pixels, sunken ? dark : light, sunken ? light : dark);
    }
    return pixels;
}

// The smallest rectangle around everything that is not background, as "x y width height".
std::string inkBox(const Pixels& pixels, unsigned background)
{
    int left = pixels.width(), top = pixels.height(), right = -1, bottom = -1;
    for (int y = 0; y < pixels.height(); ++y)
        for (int x = 0; x < pixels.width(); ++x)
            if (pixels.at(x, y) != background) {
                left = std::min(left, x);
                right = std::max(right, x);
                top = std::min(top, y);
                bottom = std::max(bottom, y);
            }
    if (right < 0)
        return "empty";
    return std::to_string(left) + " " + std::to_string(top) + " " + std::to_string(right - left + 1) + " " +
           std::to_string(bottom - top + 1);
}

} // namespace

TEST_F(ActiveLabel, TellsItsClassAndItsOneSignal)
{
    EXPECT_STREQ(label->className(), "ZelActiveLabel");
    EXPECT_TRUE(label->inherits("QWidget"));
    QMetaObject* const meta = ZelActiveLabel::staticMetaObject();
    EXPECT_EQ(meta, label->metaObject());
    EXPECT_EQ(meta->superClass(), QWidget::staticMetaObject());
    ASSERT_EQ(meta->numSignals(), 1);
    EXPECT_STREQ(meta->signal(0)->name, "clicked()");
    EXPECT_EQ(meta->numSlots(), 0);
}

TEST_F(ActiveLabel, TranslationsUseItsOwnContext)
{
    EXPECT_STREQ(ZelActiveLabel::tr("Text").latin1(), "Text");
    EXPECT_STREQ(ZelActiveLabel::trUtf8("\xc3\xbc").latin1(), "\xfc");
}

TEST_F(ActiveLabel, AtRestItIsBlueTextOnTheParentsBackground)
{
    const Pixels pixels = Pixels::of(label);
    EXPECT_EQ(pixels.differenceFrom(model(false, false, 0, Qt::AlignLeft | Qt::AlignVCenter, "Mxg")), "");
    EXPECT_GT(pixels.count(blue), 0);
    EXPECT_EQ(pixels.count(white), 0);
}

TEST_F(ActiveLabel, UnderThePointerItIsWhiteInARaisedPanel)
{
    xinput::moveTo(label, 40, 20);
    const Pixels raised = model(true, false, 0, Qt::AlignLeft | Qt::AlignVCenter, "Mxg");
    EXPECT_TRUE(waitFor([&] { return Pixels::now(label) == raised; }));
    EXPECT_EQ(Pixels::of(label).differenceFrom(raised), "");
    EXPECT_EQ(raised.count(blue), 0);
}

TEST_F(ActiveLabel, HeldDownThePanelIsSunken)
{
    xinput::moveTo(label, 40, 20);
    xinput::pressButton();
    EXPECT_EQ(Pixels::of(label).differenceFrom(model(true, true, 0, Qt::AlignLeft | Qt::AlignVCenter, "Mxg")),
              "");
    xinput::releaseButton();
    EXPECT_EQ(
        Pixels::of(label).differenceFrom(model(true, false, 0, Qt::AlignLeft | Qt::AlignVCenter, "Mxg")), "");
}

TEST_F(ActiveLabel, ThePanelHasTwoPixelsAndItsCornersGoToTheLowerRight)
{
    show("", 8, 6);
    enter(label);
    const Pixels::Legend legend = {
        {'.', background()}, {'+', rgb(label->colorGroup().light())}, {'#', rgb(label->colorGroup().dark())}};
    EXPECT_EQ(Pixels::of(label).picture(legend), "+++++++#\n"
                                                 "++++++##\n"
                                                 "++....##\n"
                                                 "++....##\n"
                                                 "+#######\n"
                                                 "########\n");
    press(label);
    EXPECT_EQ(Pixels::of(label).picture(legend), "#######+\n"
                                                 "######++\n"
                                                 "##....++\n"
                                                 "##....++\n"
                                                 "#+++++++\n"
                                                 "++++++++\n");
}

TEST_F(ActiveLabel, LeavingWhileHeldShowsThePlainText)
{
    const Pixels atRest = Pixels::of(label);
    xinput::moveTo(label, 40, 20);
    xinput::pressButton();
    xinput::moveTo(&window, 150, 120);
    EXPECT_TRUE(waitFor([&] { return Pixels::now(label) == atRest; }));
    xinput::releaseButton();
    settle();
    EXPECT_EQ(recorder.take(), "");
    EXPECT_EQ(Pixels::of(label).differenceFrom(atRest), "");
}

TEST_F(ActiveLabel, AClickInsideIsOneSignal)
{
    xinput::click(label, 40, 20);
    EXPECT_TRUE(waitFor([&] { return recorder.count() > 0; }));
    settle();
    EXPECT_EQ(recorder.take(), "clicked");
}

TEST_F(ActiveLabel, DraggingOutAndBackInStillClicks)
{
    xinput::moveTo(label, 40, 20);
    xinput::pressButton();
    xinput::moveTo(&window, 150, 120);
    settle();
    xinput::moveTo(label, 3, 3);
    settle();
    xinput::releaseButton();
    settle();
    EXPECT_EQ(recorder.take(), "clicked");
}

TEST_F(ActiveLabel, ADoubleClickIsTwoSignals)
{
    xinput::doubleClick(label, 40, 20);
    EXPECT_TRUE(waitFor([&] { return recorder.count() == 2; }));
    settle();
    EXPECT_EQ(recorder.take(), "clicked clicked");
}

TEST_F(ActiveLabel, OtherButtonsNeitherPressNorClick)
{
    enter(label);
    const Pixels hovered = Pixels::of(label);
    EventCounter counter(label);
    const int others[] = {Qt::RightButton, Qt::MidButton};
    for (const int button : others) {
        press(label, 5, 5, button);
        EXPECT_EQ(Pixels::of(label).differenceFrom(hovered), "");
        release(label, 5, 5, button);
    }
    EXPECT_EQ(recorder.take(), "");
    EXPECT_EQ(counter.takePaints(), 0);
}

TEST_F(ActiveLabel, AnyButtonsReleaseEndsThePress)
{
    press(label);
    release(label, 5, 5, Qt::RightButton);
    EXPECT_EQ(recorder.take(), "clicked");
    release(label, 5, 5, Qt::LeftButton);
    EXPECT_EQ(recorder.take(), "");
}

TEST_F(ActiveLabel, AReleaseWithoutAPressIsNothing)
{
    EventCounter counter(label);
    release(label);
    EXPECT_EQ(recorder.take(), "");
    EXPECT_EQ(counter.takePaints(), 0);
}

TEST_F(ActiveLabel, ThePressIsOverWhenItIsTold)
{
    int told = 0;
    recorder.whenever = [&] {
        if (++told == 1)
            release(label);
    };
    press(label);
    release(label);
    EXPECT_EQ(told, 1);
}

TEST_F(ActiveLabel, OnlyReleasesInsideTheEdgesClick)
{
    const struct {
        int x, y;
        const char* signalled;
    } places[] = {
        {0, 0, "clicked"}, {79, 39, "clicked"}, {79, 0, "clicked"}, {0, 39, "clicked"},
        {-1, 0, ""},       {0, -1, ""},         {80, 39, ""},       {79, 40, ""},
        {80, 40, ""},      {-1, -1, ""},        {1000, 5, ""},
    };
    for (const auto& place : places) {
        press(label);
        release(label, place.x, place.y);
        EXPECT_EQ(recorder.take(), place.signalled) << place.x << "," << place.y;
    }
}

TEST_F(ActiveLabel, TheSizeAtTheReleaseDecides)
{
    press(label, 70, 35);
    label->resize(60, 30);
    release(label, 70, 35);
    EXPECT_EQ(recorder.take(), "");
}

TEST_F(ActiveLabel, ItIsRepaintedBeforeItTells)
{
    enter(label);
    const Pixels hovered = Pixels::of(label);
    press(label);
    std::string difference = "not called";
    recorder.whenever = [&] { difference = Pixels::now(label).differenceFrom(hovered); };
    release(label);
    EXPECT_EQ(difference, "");
}

TEST_F(ActiveLabel, EveryChangeIsPaintedOnceAndAtOnce)
{
    EventCounter counter(label);
    enter(label);
    EXPECT_EQ(counter.takePaints(), 1);
    press(label);
    EXPECT_EQ(counter.takePaints(), 1);
    leave(label);
    EXPECT_EQ(counter.takePaints(), 1);
    release(label);
    EXPECT_EQ(counter.takePaints(), 1);
    label->setText("other");
    EXPECT_EQ(counter.takePaints(), 1);
    label->setAlignment(Qt::AlignRight);
    EXPECT_EQ(counter.takePaints(), 1);
    label->setTextTop(2);
    EXPECT_EQ(counter.takePaints(), 1);
    settle();
    EXPECT_EQ(counter.takePaints(), 0);
}

TEST_F(ActiveLabel, TheSameOnceMoreIsPaintedOnceMore)
{
    EventCounter counter(label);
    for (int i = 0; i < 2; ++i) {
        label->setText("same");
        label->setAlignment(Qt::AlignRight);
        label->setTextTop(2);
        EXPECT_EQ(counter.takePaints(), 3);
    }
    enter(label);
    enter(label);
    EXPECT_EQ(counter.takePaints(), 2);
    leave(label);
    leave(label);
    EXPECT_EQ(counter.takePaints(), 2);
}

TEST_F(ActiveLabel, EnteringTwiceAndLeavingTwiceIsHarmless)
{
    const Pixels atRest = Pixels::of(label);
    enter(label);
    enter(label);
    leave(label);
    EXPECT_EQ(Pixels::of(label).differenceFrom(atRest), "");
    leave(label);
    EXPECT_EQ(Pixels::of(label).differenceFrom(atRest), "");
}

TEST_F(ActiveLabel, PressedWithoutHoverLooksAtRest)
{
    const Pixels atRest = Pixels::of(label);
    press(label);
    EXPECT_EQ(Pixels::of(label).differenceFrom(atRest), "");
    release(label);
    EXPECT_EQ(recorder.take(), "clicked");
}

TEST_F(ActiveLabel, KeepsItsMouseEventsFromTheParent)
{
    EventCounter counter(&window);
    EXPECT_TRUE(sendMouse(label, QEvent::MouseButtonPress, 5, 5));
    EXPECT_TRUE(sendMouse(label, QEvent::MouseButtonRelease, 5, 5));
    EXPECT_TRUE(sendMouse(label, QEvent::MouseButtonRelease, 5, 5)) << "without a press";
    EXPECT_TRUE(sendMouse(label, QEvent::MouseButtonPress, 5, 5, Qt::RightButton));
    EXPECT_TRUE(sendMouse(label, QEvent::MouseButtonRelease, 5, 5, Qt::RightButton));
    EXPECT_EQ(counter.presses, 0);
}

TEST_F(ActiveLabel, ThePanelHasTheColoursOfADisabledLabel)
{
    enter(label);
    QPalette palette = label->palette();
    palette.setColor(QPalette::Disabled, QColorGroup::Light, QColor(1, 2, 3));
    palette.setColor(QPalette::Disabled, QColorGroup::Dark, QColor(4, 5, 6));
    label->setPalette(palette);
    label->setEnabled(false);
    label->repaint(true);
    const Pixels pixels = Pixels::now(label);
    EXPECT_EQ(pixels.at(0, 0), 0x010203U);
    EXPECT_EQ(pixels.at(79, 39), 0x040506U);
}

TEST_F(ActiveLabel, DisabledItDoesNotClick)
{
    label->setEnabled(false);
    EventCounter counter(&window);
    xinput::click(label, 40, 20);
    settle();
    EXPECT_EQ(recorder.take(), "");
    EXPECT_EQ(counter.presses, 0);
    const Pixels hovered = Pixels::of(label);
    xinput::pressButton();
    EXPECT_EQ(Pixels::of(label).differenceFrom(hovered), "");
    xinput::releaseButton();
    settle();
    EXPECT_EQ(recorder.take(), "");
}

TEST_F(ActiveLabel, TheFourOrientations)
{
    // Where the ink begins, told by the edge of the label that the first letter stands at.
    show("LLLL", 60, 60);
    const int alignment = Qt::AlignLeft | Qt::AlignTop;
    label->setAlignment(alignment);
    for (int textTop = 0; textTop < 4; ++textTop) {
        label->setTextTop(textTop);
        EXPECT_EQ(Pixels::of(label).differenceFrom(model(false, false, textTop, alignment, "LLLL")), "")
            << "orientation " << textTop;
    }
}

// Not square, and the text at the far edges: width and height have their places.
TEST_F(ActiveLabel, TheFourOrientationsOfLongLabels)
{
    const int alignments[] = {Qt::AlignRight | Qt::AlignBottom, Qt::AlignCenter};
    for (const QSize& size : {QSize(90, 31), QSize(31, 90), QSize(91, 40)}) {
        show("Long", size.width(), size.height());
        for (const int alignment : alignments) {
            label->setAlignment(alignment);
            for (int textTop = 0; textTop < 4; ++textTop) {
                label->setTextTop(textTop);
                EXPECT_EQ(Pixels::of(label).differenceFrom(model(false, false, textTop, alignment, "Long")),
                          "")
                    << "orientation " << textTop << " of " << size.width() << "x" << size.height();
            }
        }
    }
}

TEST_F(ActiveLabel, ANewLabelIsUprightWhateverWasInItsMemory)
{
    alignas(ZelActiveLabel) static unsigned memory[(sizeof(ZelActiveLabel) + 3) / 4];
    for (const bool withText : {true, false}) {
        for (const unsigned rest : {1U, 2U, 3U}) {
            std::fill(std::begin(memory), std::end(memory), rest);
            ZelActiveLabel* const fresh = withText ? new (memory) ZelActiveLabel("Mxg", &window, "fresh")
                                                   : new (memory) ZelActiveLabel(&window, "fresh");
            fresh->setGeometry(20, 80, 80, 40);
            fresh->setText("Mxg");
            fresh->show();
            EXPECT_EQ(Pixels::of(fresh).differenceFrom(
                          model(false, false, 0, Qt::AlignLeft | Qt::AlignVCenter, "Mxg")),
                      "");
            fresh->~ZelActiveLabel();
        }
    }
}

TEST_F(ActiveLabel, TurnedTextStandsInTheTurnedPlace)
{
    show("I", 60, 60);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // Turning the picture back by as many quarter turns brings the ink to the same corner. Hinting may move
    // its edges by a pixel.
    const int quartersBack[] = {0, 1, 2, 3};
    label->setTextTop(0);
    int x0, y0, w0, h0;
    ASSERT_EQ(std::sscanf(inkBox(Pixels::of(label), background()).c_str(), "%d %d %d %d", &x0, &y0, &w0, &h0),
              4);
    for (int textTop = 1; textTop < 4; ++textTop) {
        label->setTextTop(textTop);
        int x, y, w, h;
        const Pixels back = Pixels::of(label).turned(quartersBack[textTop]);
        ASSERT_EQ(std::sscanf(inkBox(back, background()).c_str(), "%d %d %d %d", &x, &y, &w, &h), 4);
        EXPECT_NEAR(x, x0, 1) << "orientation " << textTop;
        EXPECT_NEAR(y, y0, 1) << "orientation " << textTop;
        EXPECT_NEAR(w, w0, 2) << "orientation " << textTop;
        EXPECT_NEAR(h, h0, 2) << "orientation " << textTop;
    }
}

TEST_F(ActiveLabel, UnknownOrientationsShowTheTextUpright)
{
    const Pixels upright = Pixels::of(label);
    const int unknown[] = {4, 7, -1, 2147483647, -2147483647 - 1};
    for (const int textTop : unknown) {
        label->setTextTop(2);
        EXPECT_NE(Pixels::of(label), upright);
        label->setTextTop(textTop);
        EXPECT_EQ(Pixels::of(label).differenceFrom(upright), "") << "orientation " << textTop;
    }
}

TEST_F(ActiveLabel, TheAlignmentPlacesTheText)
{
    const int alignments[] = {Qt::AlignLeft | Qt::AlignTop,      Qt::AlignCenter,
                              Qt::AlignRight | Qt::AlignBottom,  Qt::AlignHCenter | Qt::AlignTop,
                              Qt::AlignRight | Qt::AlignVCenter, 0};
    for (const int alignment : alignments) {
        label->setAlignment(alignment);
        EXPECT_EQ(Pixels::of(label).differenceFrom(model(false, false, 0, alignment, "Mxg")), "")
            << "alignment " << alignment;
    }
}

TEST_F(ActiveLabel, TheEdgesStayFree)
{
    show("WWWWWWWWWWWWWWWWWWWW\nWWWWWWWWWWWWWWWWW\nWWWWWWWWWWWW\nWWWWWWWW", 50, 30);
    for (int textTop = 0; textTop < 4; ++textTop) {
        label->setTextTop(textTop);
        Pixels pixels = Pixels::of(label);
        // A turned pixel grid lies one pixel further: what is 2 pixels on one side is 1 on the other.
        const int free = textTop == 0 ? 2 : 1;
        pixels.fill(free, free, 50 - 2 * free, 30 - 2 * free, background());
        EXPECT_EQ(inkBox(pixels, background()), "empty") << "orientation " << textTop;
    }
}

TEST_F(ActiveLabel, TinyLabelsDrawNoTextAndDoNotFail)
{
    const int sizes[] = {1, 2, 3, 4};
    for (const int size : sizes) {
        for (int textTop = 0; textTop < 4; ++textTop) {
            show("Mxg", size, 40);
            label->setTextTop(textTop);
            EXPECT_EQ(inkBox(Pixels::of(label), background()), "empty") << size << " wide";
            enter(label);
            press(label, 0, 0);
            release(label, 0, 0);
            EXPECT_EQ(recorder.take(), "clicked");
        }
    }
}

TEST_F(ActiveLabel, SetTextShowsTheNewTextAtOnce)
{
    label->setText("Other");
    QApplication::flushX();
    EXPECT_EQ(
        Pixels::now(label).differenceFrom(model(false, false, 0, Qt::AlignLeft | Qt::AlignVCenter, "Other")),
        "");
    label->setText("");
    EXPECT_EQ(inkBox(Pixels::of(label), background()), "empty");
    label->setText(0);
    EXPECT_EQ(inkBox(Pixels::of(label), background()), "empty");
}

TEST_F(ActiveLabel, WithoutATextItIsEmpty)
{
    delete label;
    label = new ZelActiveLabel(&window, "textless");
    label->show();
    EXPECT_STREQ(label->name(), "textless");
    EXPECT_EQ(label->parent(), &window);
    EXPECT_EQ(inkBox(Pixels::of(label), background()), "empty");
    label->setText("Mxg");
    EXPECT_NE(inkBox(Pixels::of(label), background()), "empty");
}

TEST_F(ActiveLabel, TheTextIsCopied)
{
    char text[] = "Mxg";
    delete label;
    label = new ZelActiveLabel(text, &window, "copy");
    label->setGeometry(20, 30, 80, 40);
    label->show();
    text[0] = 'i';
    EXPECT_EQ(
        Pixels::of(label).differenceFrom(model(false, false, 0, Qt::AlignLeft | Qt::AlignVCenter, "Mxg")),
        "");
}

TEST_F(ActiveLabel, TheBackgroundIsTheParentsAtConstruction)
{
    window.setPaletteBackgroundColor(QColor(10, 200, 30));
    settle();
    EXPECT_EQ(rgb(label->paletteBackgroundColor()), background());
    EXPECT_EQ(Pixels::of(label).at(0, 0), background());
}

TEST_F(ActiveLabel, TheFontIsInherited)
{
    const Pixels small = Pixels::of(label);
    window.setFont(QFont("DejaVu Sans", 16));
    settle();
    EXPECT_NE(Pixels::of(label), small);
    EXPECT_EQ(
        Pixels::of(label).differenceFrom(model(false, false, 0, Qt::AlignLeft | Qt::AlignVCenter, "Mxg")),
        "");
}

TEST_F(ActiveLabel, BeforeItIsShownSettersAndEventsAreKept)
{
    ZelActiveLabel early("Early", &window, "early");
    SignalRecorder clicks;
    clicks.watch(&early, SIGNAL(clicked()));
    early.setText("Later");
    early.setTextTop(3);
    enter(&early);
    press(&early);
    release(&early);
    EXPECT_EQ(clicks.take(), "clicked");
}

TEST_F(ActiveLabel, ItMayDieInItsOwnSignal)
{
    recorder.whenever = [&] {
        delete label;
        label = nullptr;
    };
    xinput::click(label, 40, 20);
    EXPECT_TRUE(waitFor([&] { return label == nullptr; }));
    settle();
    EXPECT_EQ(recorder.take(), "clicked");
}

TEST_F(ActiveLabel, ItIsDestroyedWithItsParent)
{
    QWidget* const parent = new QWidget(0, "parent");
    ZelActiveLabel* const child = new ZelActiveLabel("child", parent, "child");
    SignalRecorder recorder;
    recorder.watch(child, SIGNAL(destroyed()));
    delete parent;
    EXPECT_EQ(recorder.take(), "destroyed");
}
