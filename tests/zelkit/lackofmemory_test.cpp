// What the widgets do in operation when one of the library's own allocations fails.
#include "allclasses.h"
#include "failedcreation.h"
#include "messages.h"
#include "pixels.h"
#include "sentevents.h"
#include "waiting.h"

#include <gtest/gtest.h>
#include <qobjectlist.h>
#include <qtimer.h>

#include <functional>
#include <memory>
#include <string>

namespace
{

class LackOfMemory : public testing::Test
{
protected:
    LackOfMemory() : window(nullptr, "window") { window.setGeometry(200, 150, 300, 200); }

    // Lets every allocation that the library itself makes meanwhile fail once. What a class makes only the
    // first time, its meta object, is there by then.
    int failEach(const std::function<void()>& work)
    {
        int count = 0;
        work();
        {
            FailedCreation none("libzelkit.so", FailedCreation::none);
            work();
            count = none.count();
        }
        for (int i = 0; i < count; ++i) {
            FailedCreation one("libzelkit.so", i);
            work();
            EXPECT_EQ("", takeMessages()) << i;
        }
        return count;
    }

    QWidget window;
};

// Everything that a user does with a widget.
void use(QWidget* widget)
{
    widget->resize(widget->width() + 1, widget->height());
    enter(widget);
    doubleClick(widget);
    drag(widget, 7, 7);
    release(widget);
    sendKey(widget, Qt::Key_3, '3', 0, "3");
    sendKey(widget, Qt::Key_Escape);
    leave(widget);
    settle();
}

} // namespace

// The children of the dialogs are all that is.
TEST_F(LackOfMemory, ConstructorsOfWidgetsAllocateNothing)
{
    for (const NamedClass& each : allClasses()) {
        const std::unique_ptr<QWidget> made(each.make(&window));
        if (made->inherits("QDialog"))
            continue;
        EXPECT_EQ(0, failEach([&] { delete each.make(&window); })) << each.name;
    }
}

TEST_F(LackOfMemory, WidgetsInUseAllocateNothingButHistories)
{
    QWidget* const widgets[] = {new ZelActiveLabel("text", &window, "a"),
                                new ZelActiveLabel2(&window, "b"),
                                new ZelLabel("text", &window, "c", true, 0),
                                new ZelColorButton(&window, "d"),
                                new ZelPushButton(Qt::red, &window, "e"),
                                new ZelPushButton2("text", &window, "f"),
                                new ZelFrame(&window, "g", 0),
                                new ZelEdge(&window, "h"),
                                new ZelLineEdit(&window, "i"),
                                new ZelComboBox(true, &window, "j"),
                                new ZelLineEditInt(&window, "k", 0, 99),
                                new ZelComboBox(&window, "l")};
    showAndWait(&window);
    for (QWidget* widget : widgets)
        EXPECT_EQ(0, failEach([widget] { use(widget); })) << widget->className();
}

TEST_F(LackOfMemory, DialogsInUseAllocateNothing)
{
    ZelColorDlg color(QColor(1, 2, 3), &window);
    ZelFontDlg font(&window, "font", false, 0);
    ZelColorGroupDlg group(&window, "group", false, 0);
    EXPECT_EQ(0, failEach([&] {
                  color.show();
                  color.rEditChanged(7);
                  color.gScrollChanged(8);
                  color.getColor();
                  font.show();
                  font.setFontParameters("Helvetica", 12, 75, true, false, true);
                  font.italicClicked();
                  font.getFontFamily();
                  group.show();
                  group.setColorGroup(window.colorGroup());
                  group.getColorGroup();
                  settle();
                  color.hide();
                  font.hide();
                  group.hide();
              }));
}

TEST_F(LackOfMemory, AGraphGoesOnWithoutItsHistory)
{
    ZelGraph graph(&window, "graph", true, 0);
    const QColor back(10, 20, 30), line(200, 100, 50), grid(1, 2, 3);
    graph.setGraphParameters(0, 100, -1, -1, true, false, false, back, line, grid);
    showAndWait(&window);
    EXPECT_GE(failEach([&graph] {
                  graph.resize(100, 60);
                  graph.resize(101, 60);
                  graph.setValue(50);
                  graph.clearAll();
                  use(&graph);
              }),
              2);
    {
        FailedCreation first("libzelkit.so", 0);
        graph.resize(80, 40);
    }
    graph.setValue(50);
    EXPECT_EQ(0, Pixels::of(&graph).count(0xc86432)) << "nothing to draw";
    graph.resize(90, 40);
    graph.setValue(50);
    EXPECT_GT(Pixels::of(&graph).count(0xc86432), 0) << "the next size brings a history again";
}

TEST_F(LackOfMemory, WithoutADialogNoColourIsChosen)
{
    ZelColorGroupDlg dialog(nullptr, "dialog", false, 0);
    QObject* swatch = dialog.child("BackgroundColorEdit");
    ASSERT_TRUE(swatch);
    QWidget* frame = static_cast<QWidget*>(swatch);
    showAndWait(&dialog);
    const QColor before = frame->paletteBackgroundColor();
    FailedCreation first("libzelkit.so", 0);
    press(frame);
    EXPECT_EQ(1, first.count());
    EXPECT_EQ(nullptr, QApplication::activeModalWidget());
    EXPECT_EQ(before, frame->paletteBackgroundColor());
}
