// Entries of list boxes and combo boxes that show pictures, and entries from lists.
#include "pixels.h"
#include "waiting.h"

#include <gtest/gtest.h>
#include <qcombobox.h>
#include <qlineedit.h>
#include <qlistbox.h>
#include <qpixmap.h>
#include <qstringlist.h>
#include <qstrlist.h>
#include <qvalidator.h>

#include <string>

namespace
{

QPixmap picture(int width, int height)
{
    QPixmap pixmap(width, height);
    pixmap.fill(Qt::red);
    return pixmap;
}

// The texts of all entries, with a + before those that have a picture.
template <class Box>
std::string entries(const Box& box)
{
    std::string all;
    for (int i = 0; i < static_cast<int>(box.count()); ++i)
        all += std::string(all.empty() ? "" : " ") + (box.pixmap(i) ? "+" : "") +
               (box.text(i).isNull() ? "" : box.text(i).latin1());
    return all;
}

} // namespace

TEST(ListBoxItems, ArePlacedWhenTheyAreMade)
{
    QListBox box(nullptr, "box");
    QListBoxText* first = new QListBoxText(&box, "first");
    new QListBoxText(&box, "third");
    new QListBoxText(&box, "second", first);
    new QListBoxPixmap(&box, picture(5, 5), "fourth");
    QListBoxItem* plain = new QListBoxPixmap(&box, picture(5, 5));
    new QListBoxPixmap(&box, picture(5, 5), plain);
    new QListBoxPixmap(&box, picture(5, 5), "last", box.item(5));
    EXPECT_EQ("first second third +fourth + + +last", entries(box));
    EXPECT_EQ(box.item(1), box.item(2)->prev());
    EXPECT_FALSE(box.item(0)->prev());
    EXPECT_EQ(box.item(2), box.item(1)->next());
    EXPECT_FALSE(box.item(6)->next());
    EXPECT_EQ(first, box.firstItem());
}

TEST(ListBoxItems, ShowTheirPicturesBesideTheirTexts)
{
    QListBox box(nullptr, "box");
    box.setGeometry(100, 100, 200, 200);
    box.insertItem(picture(20, 30));
    box.insertItem(picture(20, 30), "text");
    showAndWait(&box);
    const Pixels shown = Pixels::of(box.viewport());
    EXPECT_EQ(2u * 20 * 30, static_cast<unsigned>(shown.count(0xff0000)));
    const int height = box.itemHeight();
    EXPECT_GE(height, 30);
    const int beside = shown.width() - 30;
    const unsigned paper = 0xffffff;
    EXPECT_EQ(beside * height, shown.part(30, 0, beside, height).count(paper));
    EXPECT_LT(shown.part(30, height, beside, height).count(paper), beside * height) << "the text";
}

TEST(ListBoxItems, WantRoomForThreeToTenOfThem)
{
    QListBox box(nullptr, "box");
    const int frame = 2 * box.frameWidth();
    box.insertItem("one");
    const int height = box.itemHeight();
    EXPECT_EQ(3 * height + frame, box.sizeHint().height());
    for (int i = 0; i < 4; ++i)
        box.insertItem("more");
    EXPECT_EQ(5 * height + frame, box.sizeHint().height());
    for (int i = 0; i < 40; ++i)
        box.insertItem("A text that is much longer than ten letters");
    EXPECT_EQ(10 * height + frame, box.sizeHint().height());
    EXPECT_GT(box.sizeHint().width(), box.fontMetrics().width("A text that is much longer"));
}

TEST(ListBoxItems, AreMadeFirstAndInsertedLater)
{
    QListBox box(nullptr, "box");
    box.insertItem(new QListBoxText("text"));
    box.insertItem(new QListBoxPixmap(picture(4, 4)), 0);
    box.insertItem(new QListBoxPixmap(picture(4, 4), "both"), box.item(0));
    box.insertItem(picture(3, 3), -1);
    box.insertItem(picture(3, 3), "pair", 0);
    EXPECT_EQ("+pair + +both text +", entries(box));
    box.changeItem(new QListBoxText("new"), 1);
    box.changeItem(picture(2, 2), 3);
    box.changeItem(picture(2, 2), "changed", 0);
    EXPECT_EQ("+changed new +both + +", entries(box));
    EXPECT_EQ(QListBoxText::RTTI, box.item(1)->rtti());
    EXPECT_EQ(QListBoxPixmap::RTTI, box.item(0)->rtti());
    EXPECT_NE(QListBoxPixmap::RTTI, QListBoxText::RTTI);
}

TEST(ListBoxItems, ComeFromListsOfTexts)
{
    QStrList bytes;
    bytes.append("b1");
    bytes.append("b2");
    QStringList texts;
    texts << "t1"
          << "t2";
    const char* plain[] = {"p1", "p2", "p3", nullptr};
    QListBox box(nullptr, "box");
    box.insertStrList(bytes);
    box.insertStringList(texts, 0);
    box.insertStrList(plain, 2, 1);
    box.insertStrList(&bytes);
    EXPECT_EQ("t1 p1 p2 t2 b1 b2 b1 b2", entries(box));
    QComboBox combo(false, nullptr, "combo");
    combo.insertStrList(bytes);
    combo.insertStringList(texts, 0);
    combo.insertStrList(&bytes, 2);
    EXPECT_EQ("t1 t2 b1 b2 b1 b2", entries(combo));
}

TEST(ListBoxItems, MaySayThatTheyCannotBeSelected)
{
    QListBox box(nullptr, "box");
    box.setSelectionMode(QListBox::Multi);
    EXPECT_EQ(QListBox::Multi, box.selectionMode());
    box.insertItem("no");
    box.insertItem("yes");
    box.item(0)->setSelectable(false);
    EXPECT_FALSE(box.item(0)->isSelectable());
    EXPECT_TRUE(box.item(1)->isSelectable());
    box.setSelected(0, true);
    box.setSelected(1, true);
    EXPECT_FALSE(box.item(0)->isSelected());
    EXPECT_TRUE(box.item(1)->isSelected());
    EXPECT_TRUE(box.item(1)->selected());
    box.setCurrentItem(1);
    EXPECT_TRUE(box.item(1)->isCurrent());
    EXPECT_FALSE(box.item(0)->isCurrent());
    box.setMultiSelection(false);
    EXPECT_FALSE(box.isMultiSelection());
    EXPECT_EQ(QListBox::Single, box.selectionMode());
}

TEST(ListBoxItems, AreBroughtIntoSight)
{
    QListBox box(nullptr, "box");
    for (int i = 0; i < 50; ++i)
        box.insertItem(QString::number(i));
    box.insertItem(picture(400, 10));
    box.resize(150, 120);
    showAndWait(&box);
    EXPECT_GT(box.numItemsVisible(), 3);
    EXPECT_LT(box.numItemsVisible(), 12);
    EXPECT_GE(box.maxItemWidth(), 400);
    EXPECT_TRUE(box.itemVisible(0));
    EXPECT_FALSE(box.itemVisible(30));
    box.setCurrentItem(30);
    box.setContentsPos(0, 0);
    box.ensureCurrentVisible();
    EXPECT_TRUE(box.itemVisible(box.item(30)));
    box.setContentsPos(0, 0);
    box.centerCurrentItem();
    EXPECT_TRUE(box.itemVisible(30));
    EXPECT_EQ(box.item(box.topItem()), box.itemAt(QPoint(5, 5)));
    EXPECT_FALSE(box.itemAt(QPoint(5, 5000)));
    box.triggerUpdate(true);
    EXPECT_TRUE(box.itemVisible(30));
}

TEST(ComboBoxForms, Pictures)
{
    QComboBox box(false, nullptr, "box");
    box.insertItem(picture(4, 4));
    box.insertItem(picture(4, 4), "both", 0);
    EXPECT_EQ("+both +", entries(box));
    box.insertItem("text");
    box.changeItem(picture(2, 2), 2);
    box.changeItem(picture(2, 2), "changed", 1);
    EXPECT_EQ("+both +changed +", entries(box));
}

TEST(ComboBoxForms, SettingsAreKept)
{
    QComboBox box(true, nullptr, "box");
    EXPECT_FALSE(box.autoCompletion());
    box.setAutoCompletion(true);
    EXPECT_TRUE(box.autoCompletion());
    EXPECT_FALSE(box.autoResize());
    box.setAutoResize(true);
    EXPECT_TRUE(box.autoResize());
    EXPECT_TRUE(box.duplicatesEnabled());
    box.setDuplicatesEnabled(false);
    EXPECT_FALSE(box.duplicatesEnabled());
    box.setMaxCount(7);
    EXPECT_EQ(7, box.maxCount());
    QIntValidator numbers(0, 9, &box);
    box.setValidator(&numbers);
    EXPECT_EQ(&numbers, box.validator());
}

TEST(ComboBoxForms, MayBecomeEditableAndHaveOtherParts)
{
    QComboBox box(false, nullptr, "box");
    box.insertItem("one");
    EXPECT_FALSE(box.editable());
    box.setEditable(true);
    EXPECT_TRUE(box.editable());
    ASSERT_TRUE(box.lineEdit());
    QLineEdit* own = new QLineEdit(&box, "own");
    box.setLineEdit(own);
    EXPECT_EQ(own, box.lineEdit());
    QListBox* list = new QListBox(&box, "list");
    list->insertItem("other");
    box.setListBox(list);
    EXPECT_EQ(list, box.listBox());
    EXPECT_EQ("other", entries(box));
    box.setEditable(false);
    EXPECT_FALSE(box.editable());
}
