// List boxes: entries, the current one, keys, mouse, scrolling.
#include "pixels.h"
#include "printers.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qlistbox.h>

#include <X11/keysym.h>

#include <string>

namespace
{

class ListBox : public testing::Test
{
protected:
    ListBox() : list(&window)
    {
        window.setGeometry(100, 100, 200, 130);
        list.setGeometry(5, 5, 150, 110);
        for (int i = 0; i < 12; ++i)
            list.insertItem(QString("Entry %1").arg(i));
        showAndActivate(&window);
        list.setFocus();
        settle();
        recorder.watch(&list, SIGNAL(highlighted(int)));
        recorder.watch(&list, SIGNAL(selected(const QString&)));
        recorder.watch(&list, SIGNAL(selectionChanged()));
    }

    std::string heard()
    {
        settle();
        return recorder.take();
    }
    std::string texts() const
    {
        std::string all;
        for (uint i = 0; i < list.count(); ++i)
            all += std::string(i ? " " : "") + list.text(static_cast<int>(i)).latin1();
        return all;
    }

    QWidget window;
    QListBox list;
    SignalRecorder recorder;
};

} // namespace

TEST_F(ListBox, KeepsItsEntriesInOrder)
{
    list.clear();
    list.insertItem("b");
    list.insertItem("a", 0);
    list.insertItem("z", 99);
    list.insertItem("m", 2);
    EXPECT_EQ(texts(), "a b m z");
    list.removeItem(1);
    list.changeItem("y", 1);
    EXPECT_EQ(texts(), "a y z");
    list.sort(false);
    EXPECT_EQ(texts(), "z y a");
    EXPECT_TRUE(list.text(7).isNull());
}

TEST_F(ListBox, FindsEntries)
{
    EXPECT_EQ(list.index(list.findItem("entry 7")), 7);
    EXPECT_EQ(list.findItem("entry 7", Qt::CaseSensitive | Qt::BeginsWith),
              static_cast<QListBoxItem*>(nullptr));
    EXPECT_EQ(list.index(list.findItem("11", Qt::EndsWith)), 11);
}

TEST_F(ListBox, TheCurrentEntryIsTheSelectedOne)
{
    list.setCurrentItem(2);
    EXPECT_EQ(heard(), "selectionChanged highlighted(2)");
    EXPECT_TRUE(list.isSelected(2));
    list.setSelected(5, true);
    EXPECT_EQ(list.currentItem(), 5);
    EXPECT_FALSE(list.isSelected(2));
    list.setCurrentItem(5);
    list.setCurrentItem(99);
    heard();
    EXPECT_EQ(list.currentItem(), 5);
}

TEST_F(ListBox, ARemovedCurrentEntryHandsOver)
{
    list.setCurrentItem(11);
    heard();
    list.removeItem(11);
    EXPECT_EQ(heard(), "highlighted(10)");
    list.setCurrentItem(0);
    heard();
    list.removeItem(0);
    EXPECT_EQ(heard(), "highlighted(0)");
    EXPECT_EQ(list.currentText(), QString("Entry 1"));
}

TEST_F(ListBox, KeysMoveAndChoose)
{
    list.setCurrentItem(0);
    heard();
    xinput::typeKey(XK_Down);
    xinput::typeKey(XK_Down);
    EXPECT_EQ(heard(), "selectionChanged highlighted(1) selectionChanged highlighted(2)");
    xinput::typeKey(XK_End);
    EXPECT_EQ(heard(), "selectionChanged highlighted(11)");
    EXPECT_GT(list.topItem(), 0) << "it scrolls to the entry";
    xinput::typeKey(XK_Return);
    EXPECT_EQ(heard(), "selected(Entry 11)");
    xinput::typeKey(XK_Home);
    heard();
    EXPECT_EQ(list.topItem(), 0);
}

TEST_F(ListBox, TypingLooksForAnEntry)
{
    list.insertItem("Quite another");
    xinput::typeText("qu");
    settle();
    EXPECT_EQ(list.currentText(), QString("Quite another"));
}

TEST_F(ListBox, TheMouseChooses)
{
    xinput::click(list.viewport(), 20, 50);
    EXPECT_EQ(heard(), "selectionChanged highlighted(2)");
    xinput::doubleClick(list.viewport(), 20, 10);
    EXPECT_EQ(heard(), "selectionChanged highlighted(0) selected(Entry 0)");
}

TEST_F(ListBox, DraggingMovesTheChoice)
{
    xinput::moveTo(list.viewport(), 20, 10);
    xinput::pressButton();
    settle();
    xinput::moveTo(list.viewport(), 20, 70);
    settle();
    EXPECT_EQ(list.currentItem(), 3);
    xinput::releaseButton();
    settle();
}

TEST_F(ListBox, TheScrollBarStandsBesideTheFrame)
{
    QScrollBar* bar = list.verticalScrollBar();
    EXPECT_TRUE(bar->isVisible());
    EXPECT_EQ(bar->geometry(), QRect(134, 0, 16, 110));
    EXPECT_EQ(list.frameRect(), QRect(0, 0, 134, 110));
    EXPECT_EQ(bar->maxValue(), 12 * list.itemHeight() - list.visibleHeight());
    bar->setValue(2 * list.itemHeight());
    EXPECT_EQ(list.topItem(), 2);
    while (list.count() > 3)
        list.removeItem(3);
    EXPECT_FALSE(bar->isVisible());
}

TEST_F(ListBox, SeveralEntriesMayBeSelected)
{
    list.setSelectionMode(QListBox::Multi);
    list.setSelected(1, true);
    list.setSelected(3, true);
    EXPECT_TRUE(list.isSelected(1) && list.isSelected(3));
    list.invertSelection();
    EXPECT_TRUE(list.isSelected(0) && !list.isSelected(3));
    list.clearSelection();
    EXPECT_FALSE(list.isSelected(0));
    EXPECT_FALSE(list.selectedItem());
}

TEST_F(ListBox, TheSelectedEntryIsBlackWithAFrameInside)
{
    list.setCurrentItem(1);
    const Pixels shown = Pixels::of(list.viewport());
    const int y = list.itemHeight();
    EXPECT_EQ(shown.at(100, y), 0x000000u);
    EXPECT_EQ(shown.at(100, y + 1), 0xffffffu);
    EXPECT_EQ(shown.at(100, y + 2), 0x000000u);
    EXPECT_EQ(shown.at(100, 2 * y), 0xffffffu) << "the next one is not selected";
}

TEST_F(ListBox, PagesMoveByWhatIsSeen)
{
    list.setCurrentItem(0);
    heard();
    const int page = list.numItemsVisible();
    ASSERT_GT(page, 1);
    xinput::typeKey(XK_Next);
    settle();
    EXPECT_EQ(list.currentItem(), page);
    xinput::typeKey(XK_Prior);
    settle();
    EXPECT_EQ(list.currentItem(), 0);
    xinput::typeKey(XK_Up);
    EXPECT_EQ(heard(),
              "selectionChanged highlighted(" + std::to_string(page) + ") selectionChanged highlighted(0)")
        << "above the first there is none";
}

TEST_F(ListBox, TheWheelScrollsWithoutChoosing)
{
    list.setCurrentItem(1);
    heard();
    xinput::moveTo(list.viewport(), 20, 20);
    xinput::pressButton(5);
    xinput::releaseButton(5);
    EXPECT_EQ(heard(), "");
    EXPECT_GT(list.topItem(), 0);
    EXPECT_EQ(list.currentItem(), 1);
    xinput::pressButton(4);
    xinput::releaseButton(4);
    settle();
    EXPECT_EQ(list.topItem(), 0);
}

TEST_F(ListBox, ADragBelowItScrolls)
{
    xinput::moveTo(list.viewport(), 20, 10);
    xinput::pressButton();
    settle();
    for (int y = 115; y < 140; y += 3) {
        xinput::moveTo(list.viewport(), 20, y);
        settle();
    }
    xinput::releaseButton();
    settle();
    EXPECT_GT(list.currentItem(), 5);
    EXPECT_GT(list.topItem(), 0);
    EXPECT_TRUE(list.itemVisible(list.currentItem()));
}

TEST_F(ListBox, InMultiModeClicksAndSpaceToggle)
{
    list.setSelectionMode(QListBox::Multi);
    const int height = list.itemHeight();
    for (const int entry : {1, 3})
        xinput::click(list.viewport(), 20, entry * height + 5);
    settle();
    EXPECT_TRUE(list.isSelected(1) && list.isSelected(3) && !list.isSelected(2));
    xinput::click(list.viewport(), 30, height + 5);
    settle();
    EXPECT_FALSE(list.isSelected(1));
    xinput::typeKey(XK_Down);
    xinput::typeKey(XK_space);
    settle();
    EXPECT_TRUE(list.isSelected(2));
    EXPECT_TRUE(list.isSelected(3)) << "the others stay";
}

TEST_F(ListBox, WithoutASelectionEntriesAreOnlyCurrent)
{
    list.setSelectionMode(QListBox::NoSelection);
    xinput::click(list.viewport(), 20, 2 * list.itemHeight() + 5);
    EXPECT_EQ(heard(), "highlighted(2)");
    EXPECT_FALSE(list.isSelected(2));
}

TEST_F(ListBox, ADisabledOneIsDeaf)
{
    list.setCurrentItem(0);
    heard();
    list.setEnabled(false);
    xinput::click(list.viewport(), 20, 50);
    EXPECT_EQ(heard(), "");
    EXPECT_EQ(list.currentItem(), 0);
}

TEST(ListBoxItems, BelongToOneListAtATime)
{
    QListBox first, second;
    QListBoxText* item = new QListBoxText(&first, "text");
    EXPECT_EQ(item->listBox(), &first);
    first.takeItem(item);
    EXPECT_EQ(first.count(), 0u);
    second.insertItem(item);
    EXPECT_EQ(second.item(0), item);
    delete item;
    EXPECT_EQ(second.count(), 0u);
}
