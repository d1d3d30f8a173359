// The gallery: everything fits, and what the dialogs chose is to be seen.
#include "gallerywindow.h"
#include "hands.h"
#include "pixels.h"
#include "printers.h"
#include "rows.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qlabel.h>
#include <qobjectlist.h>
#include <qpushbutton.h>

namespace
{

class Gallery : public testing::Test
{
protected:
    Gallery()
    {
        for (const AddRow addRow : galleryRows)
            addRow(window);
        window.finish();
        showAndActivate(&window);
    }

    void click(const char* button)
    {
        QWidget* const widget = childNamed(&window, button);
        ASSERT_TRUE(widget);
        xinput::click(widget, widget->width() / 2, widget->height() / 2);
        settle();
    }

    QString status() { return static_cast<QLabel*>(childNamed(&window, "status"))->text(); }

    GalleryWindow window;
};

TEST_F(Gallery, fitsOnASmallScreenAndNothingOverlaps)
{
    EXPECT_LE(window.width(), 1024);
    EXPECT_LE(window.height(), 768);
    QRegion taken;
    const QObjectList rows = *window.children();
    for (QObjectListIt row(rows); row.current(); ++row) {
        QWidget* const widget = static_cast<QWidget*>(row.current());
        EXPECT_TRUE(window.rect().contains(widget->geometry())) << widget->name();
        EXPECT_TRUE(taken.intersect(widget->geometry()).isEmpty()) << widget->name();
        taken += widget->geometry();
        if (!widget->children())
            continue;
        for (QObjectListIt part(*widget->children()); part.current(); ++part)
            if (part.current()->isWidgetType()) {
                EXPECT_TRUE(widget->rect().contains(static_cast<QWidget*>(part.current())->geometry()))
                    << part.current()->name();
            }
    }
}

TEST_F(Gallery, isInTheMiddleOrWhereItBeginsWhenItIsTooLarge)
{
    EXPECT_EQ(window.pos(), QPoint((1024 - window.width()) / 2, (768 - window.height()) / 2));
    const QFont before = QApplication::font();
    QApplication::setFont(QFont("DejaVu Sans", 30));
    GalleryWindow large;
    for (const AddRow addRow : galleryRows)
        addRow(large);
    large.finish();
    EXPECT_GT(large.width(), 1024);
    EXPECT_GT(large.height(), 768);
    EXPECT_EQ(large.pos(), QPoint(0, 0));
    QApplication::setFont(before);
}

TEST_F(Gallery, tellsASignalOnItsLastLine)
{
    click("Copy");
    EXPECT_EQ(status(), "ZelActiveLabel2 \"Copy\": clicked()");
}

TEST_F(Gallery, theColourButtonShowsTheChosenColour)
{
    Hands hands([](QWidget* dialog) {
        QWidget* const red = childNamed(dialog, "REdit");
        xinput::doubleClick(red, 10, red->height() / 2);
        xinput::typeText("12");
        settle();
        clickButton(dialog, "OK");
    });
    click("Choose colour");
    EXPECT_EQ(status(), "Chosen: the colour #0ca0ff");
    QWidget* const swatch = childNamed(&window, "Chosen colour");
    xinput::park();
    settle();
    EXPECT_EQ(Pixels::now(swatch).at(swatch->width() / 2, swatch->height() / 2), 0x0ca0ffu);
}

TEST_F(Gallery, theWholeWindowTakesTheChosenColours)
{
    Hands hands([](QWidget* dialog) {
        childNamed(dialog, "BackgroundColorEdit")->setPaletteBackgroundColor(QColor(1, 90, 60));
        clickButton(dialog, "OK");
    });
    click("Choose colours");
    EXPECT_EQ(window.paletteBackgroundColor(), QColor(1, 90, 60));
    EXPECT_EQ(childNamed(&window, "Chosen font")->paletteBackgroundColor(), QColor(1, 90, 60));
}

TEST_F(Gallery, theLabelShowsTheChosenFont)
{
    Hands hands([](QWidget* dialog) {
        xinput::click(childNamed(dialog, "ItalicEdit"), 6, 12);
        xinput::click(childNamed(dialog, "StrikeOutEdit"), 6, 12);
        settle();
        clickButton(dialog, "OK");
    });
    const int size = window.font().pointSize();
    click("Choose font");
    const QFont font = childNamed(&window, "Chosen font")->font();
    EXPECT_TRUE(font.italic());
    EXPECT_TRUE(font.strikeOut());
    EXPECT_FALSE(font.underline());
    EXPECT_EQ(font.pointSize(), size);
}

TEST_F(Gallery, whatIsCancelledChangesNothing)
{
    const QPalette palette = window.palette();
    for (const char* button : {"Choose colour", "Choose colours", "Choose font"}) {
        window.tellChoice("nothing");
        Hands hands([](QWidget* dialog) { clickButton(dialog, "Cancel"); });
        click(button);
        EXPECT_NE(status().left(7), "Chosen:") << button;
    }
    EXPECT_TRUE(window.palette() == palette);
}

} // namespace
