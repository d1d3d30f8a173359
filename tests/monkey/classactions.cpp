// What the classes' own setters take.
#include "world.h"

#include "colordlg.h"
#include "colorgroupdlg.h"
#include "fontdlg.h"
#include "zelactivelabel.h"
#include "zelactivelabel2.h"
#include "zelcolorbutton.h"
#include "zelcombobox.h"
#include "zeledge.h"
#include "zelgraph.h"
#include "zellabel.h"
#include "zellineeditint.h"

#include <qcheckbox.h>
#include <qlabel.h>
#include <qlistbox.h>
#include <qpixmap.h>
#include <qpushbutton.h>
#include <qscrollbar.h>

namespace
{

QColor anyColor(Random& r)
{
    return r.chance(5) ? QColor() : QColor(r.below(256), r.below(256), r.below(256));
}

QPixmap anyPixmap(Random& r)
{
    QPixmap pixmap(r.between(1, 60), r.between(1, 60));
    pixmap.fill(anyColor(r));
    return pixmap;
}

// The texts of C strings may be null.
const char* chars(Random& r, QCString& kept)
{
    kept = r.text().utf8();
    return r.chance(10) ? nullptr : kept.data();
}

void graphParameters(World& world, QWidget* target)
{
    Random& r = world.random;
    const int minY = r.anyInt();
    const int maxY = r.anyInt();
    const int divisions = r.anyInt();
    const int step = r.anyInt();
    static_cast<ZelGraph*>(target)->setGraphParameters(minY, maxY, divisions, step, r.chance(40),
                                                       r.chance(30), r.chance(30), anyColor(r), anyColor(r),
                                                       anyColor(r));
}

void graphValues(World& world, QWidget* target)
{
    const QGuardedPtr<QWidget> alive(target);
    for (int i = world.random.below(30); i >= 0 && alive; --i)
        static_cast<ZelGraph*>(target)->setValue(world.random.anyInt());
}

template <typename List>
void listItems(World& world, List* list)
{
    Random& r = world.random;
    const int index = r.anyInt();
    switch (r.below(9)) {
    case 0:
    case 1:
    case 2:
        list->insertItem(r.text(), index);
        break;
    case 3:
        list->insertItem(anyPixmap(r), r.text(), index);
        break;
    case 4:
        if (index >= 0 && index < static_cast<int>(list->count()))
            list->removeItem(index);
        break;
    case 5:
        if (index >= 0 && index < static_cast<int>(list->count()))
            list->changeItem(r.text(), index);
        break;
    case 6:
        list->text(index);
        list->pixmap(index);
        break;
    case 7:
        if (r.chance(20))
            list->clear();
        break;
    default:
        if (index >= 0 && index < static_cast<int>(list->count()))
            list->setCurrentItem(index);
    }
}

void comboItems(World& world, QWidget* target)
{
    listItems(world, static_cast<QComboBox*>(target));
}

void boxItems(World& world, QWidget* target)
{
    listItems(world, static_cast<QListBox*>(target));
}

void boxState(World& world, QWidget* target)
{
    Random& r = world.random;
    QListBox* box = static_cast<QListBox*>(target);
    const int index = r.anyInt();
    switch (r.below(9)) {
    case 0:
        box->setTopItem(index);
        break;
    case 1:
        box->setBottomItem(index);
        break;
    case 2:
        box->setSelectionMode(static_cast<QListBox::SelectionMode>(r.below(4)));
        break;
    case 3:
        box->setSelected(index, r.chance(60));
        break;
    case 4:
        box->selectAll(r.chance(50));
        break;
    case 5:
        box->invertSelection();
        break;
    case 6:
        box->sort(r.chance(50));
        break;
    case 7:
        box->findItem(r.text());
        break;
    default:
        box->itemAt(QPoint(index, r.anyInt()));
    }
}

void comboState(World& world, QWidget* target)
{
    Random& r = world.random;
    QComboBox* box = static_cast<QComboBox*>(target);
    switch (r.below(9)) {
    case 0:
        box->setSizeLimit(r.anyInt());
        break;
    case 1:
        box->setMaxCount(r.anyInt());
        break;
    case 2:
        box->setInsertionPolicy(static_cast<QComboBox::Policy>(r.below(6)));
        break;
    case 3:
        box->setAutoCompletion(r.chance(50));
        break;
    case 4:
        box->setDuplicatesEnabled(r.chance(50));
        break;
    case 5:
        box->setEditable(r.chance(50));
        break;
    case 6:
        box->setEditText(r.text());
        break;
    default:
        box->popup();
    }
}

void editText(World& world, QWidget* target)
{
    Random& r = world.random;
    QLineEdit* edit = static_cast<QLineEdit*>(target);
    switch (r.below(7)) {
    case 0:
    case 1:
        edit->setText(r.text());
        break;
    case 2:
        edit->insert(r.text());
        break;
    case 3:
        edit->clear();
        break;
    case 4:
        edit->setMaxLength(r.anyInt());
        break;
    case 5:
        r.chance(50) ? edit->undo() : edit->redo();
        break;
    default:
        r.chance(50) ? edit->paste() : edit->cut();
    }
}

void editState(World& world, QWidget* target)
{
    Random& r = world.random;
    QLineEdit* edit = static_cast<QLineEdit*>(target);
    const int number = r.anyInt();
    switch (r.below(9)) {
    case 0:
        edit->setEchoMode(static_cast<QLineEdit::EchoMode>(r.below(3)));
        break;
    case 1:
        edit->setReadOnly(r.chance(40));
        break;
    case 2:
        edit->setFrame(r.chance(50));
        break;
    case 3:
        edit->setSelection(number, r.anyInt());
        break;
    case 4:
        edit->setCursorPosition(number);
        break;
    case 5:
        edit->setAlignment(number);
        break;
    case 6:
        edit->cursorForward(r.chance(50), number);
        break;
    case 7:
        edit->cursorBackward(r.chance(50), number);
        break;
    default:
        edit->selectAll();
    }
}

void scrollRange(World& world, QWidget* target)
{
    Random& r = world.random;
    QScrollBar* bar = static_cast<QScrollBar*>(target);
    const int number = r.anyInt();
    switch (r.below(7)) {
    case 0:
        bar->setRange(number, r.anyInt());
        break;
    case 1:
        bar->setSteps(number, r.anyInt());
        break;
    case 2:
        bar->setMinValue(number);
        break;
    case 3:
        bar->setMaxValue(number);
        break;
    case 4:
        bar->setOrientation(r.chance(50) ? Qt::Horizontal : Qt::Vertical);
        break;
    case 5:
        bar->setTracking(r.chance(50));
        break;
    default:
        bar->setValue(number);
    }
}

void frameLook(World& world, QWidget* target)
{
    Random& r = world.random;
    QFrame* frame = static_cast<QFrame*>(target);
    // A graph keeps a sample for each column inside of its frame; gigabytes of them are not asked for.
    const bool isGraph = target->inherits("ZelGraph");
    const int number = isGraph ? r.below(300) : r.anyInt();
    switch (r.below(5)) {
    case 0:
        frame->setFrameStyle(number);
        break;
    case 1:
        frame->setLineWidth(number);
        break;
    case 2:
        frame->setMidLineWidth(number);
        break;
    case 3:
        frame->setMargin(number);
        break;
    case 4:
        if (!isGraph)
            frame->setFrameRect(QRect(number, r.anyInt(), r.anyInt(), r.anyInt()));
    }
}

void labelContents(World& world, QWidget* target)
{
    Random& r = world.random;
    QLabel* label = static_cast<QLabel*>(target);
    switch (r.below(8)) {
    case 0:
        label->setText(r.text());
        break;
    case 1:
        label->setPixmap(anyPixmap(r));
        break;
    case 2:
        label->setNum(r.anyInt());
        break;
    case 3:
        label->setNum(r.anyInt() * 1e300 * 1e9);
        break;
    case 4:
        label->setAlignment(r.anyInt());
        break;
    case 5:
        label->setIndent(r.anyInt());
        break;
    case 6:
        label->setScaledContents(r.chance(50));
        break;
    default:
        label->setBuddy(world.pick());
    }
}

void buttonState(World& world, QWidget* target)
{
    Random& r = world.random;
    QButton* button = static_cast<QButton*>(target);
    switch (r.below(8)) {
    case 0:
        button->setText(r.text());
        break;
    case 1:
        button->setPixmap(anyPixmap(r));
        break;
    case 2:
        button->setDown(r.chance(50));
        break;
    case 3:
        button->setAutoRepeat(r.chance(50));
        break;
    case 4:
        button->setAccel(QKeySequence(r.anyInt()));
        break;
    case 5:
        button->animateClick();
        break;
    default:
        button->toggle();
    }
}

void pushButtonState(World& world, QWidget* target)
{
    Random& r = world.random;
    QPushButton* button = static_cast<QPushButton*>(target);
    switch (r.below(4)) {
    case 0:
        button->setAutoDefault(r.chance(50));
        break;
    case 1:
        button->setDefault(r.chance(50));
        break;
    case 2:
        button->setFlat(r.chance(50));
        break;
    default:
        button->setToggleButton(r.chance(50));
    }
}

// The dialogs take any number and give back what they show.
void colorDialog(World& world, QWidget* target)
{
    Random& r = world.random;
    ZelColorDlg* dialog = static_cast<ZelColorDlg*>(target);
    const int value = r.anyInt();
    switch (r.below(8)) {
    case 0:
        dialog->rEditChanged(value);
        break;
    case 1:
        dialog->gEditChanged(value);
        break;
    case 2:
        dialog->bEditChanged(value);
        break;
    case 3:
        dialog->rScrollChanged(value);
        break;
    case 4:
        dialog->gScrollChanged(value);
        break;
    case 5:
        dialog->bScrollChanged(value);
        break;
    case 6:
        if (world.depth <= 2)
            dialog->modal();
        break;
    default:
        dialog->getColor();
    }
}

void colorGroup(World& world, QWidget* target)
{
    ZelColorGroupDlg* dialog = static_cast<ZelColorGroupDlg*>(target);
    if (world.random.chance(50))
        dialog->setColorGroup(QPalette(anyColor(world.random)).active());
    else
        dialog->getColorGroup();
}

void choose(ZelFontDlg* dialog, int index, int list)
{
    switch (list) {
    case 0:
        dialog->familyActivated(index);
        break;
    case 1:
        dialog->sizeActivated(index);
        break;
    case 2:
        dialog->weightActivated(index);
        break;
    case 3:
        dialog->italicClicked();
        break;
    case 4:
        dialog->underlineClicked();
        break;
    default:
        dialog->strikeoutClicked();
    }
}

void fontDialog(World& world, QWidget* target)
{
    Random& r = world.random;
    ZelFontDlg* dialog = static_cast<ZelFontDlg*>(target);
    const int number = r.anyInt();
    QCString kept;
    switch (r.below(9)) {
    case 0:
        dialog->setFontParameters(dialog->getFontFamily(), number, r.anyInt(), r.chance(50), r.chance(50),
                                  r.chance(50));
        break;
    case 1:
        dialog->setFontFamily(chars(r, kept));
        break;
    case 2:
        dialog->setFontSize(number);
        break;
    case 3:
        dialog->setFontWeight(number);
        break;
    case 4:
        dialog->setFontItalic(r.chance(50));
        break;
    case 5:
        dialog->setFontUnderline(r.chance(50));
        break;
    case 6:
        dialog->setFontStrikeOut(r.chance(50));
        break;
    case 7:
        dialog->getFontSize();
        dialog->getFontWeight();
        dialog->beFontItalic();
        dialog->beFontUnderline();
        dialog->beFontStrikeOut();
        break;
    default:
        choose(dialog, number, r.below(6));
    }
}

} // namespace

#define ON(Class, expression)                                                                                \
#Class, [](World& world, QWidget* target) {                                                                        \
        Random& r = world.random;                                                                                      \
        Class* it = static_cast<Class*>(target);                                                                       \
        expression;                                                                                                    \
    }

const std::vector<Action> classActions = {
    {"parameters", 30, "ZelGraph", graphParameters},
    {"values", 60, "ZelGraph", graphValues},
    {"maximum", 8, ON(ZelGraph, it->setMaxY(r.anyInt()))},
    {"minimum", 8, ON(ZelGraph, it->setMinY(r.anyInt()))},
    {"clear all", 6, ON(ZelGraph, (void)r; it->clearAll())},
    {"text", 8, ON(ZelActiveLabel, QCString kept; it->setText(chars(r, kept)))},
    {"alignment", 6, ON(ZelActiveLabel, it->setAlignment(r.anyInt()))},
    {"orientation", 8, ON(ZelActiveLabel, it->setTextTop(r.chance(60) ? r.below(4) : r.anyInt()))},
    {"text", 6, ON(ZelActiveLabel2, QCString kept; it->setText(chars(r, kept)))},
    {"on", 8, ON(ZelLabel, it->setOn(r.chance(50)))},
    {"text colours", 6, ON(ZelLabel, QColor a(anyColor(r)); QColor b(anyColor(r)); it->setTextColors(a, b))},
    {"colour", 6, ON(ZelColorButton, it->setColor(anyColor(r)))},
    {"colours", 6, ON(ZelEdge, it->setColor(anyColor(r), anyColor(r)))},
    {"items", 40, "QComboBox", comboItems},
    {"combo state", 30, "QComboBox", comboState},
    {"items", 20, "QListBox", boxItems},
    {"box state", 20, "QListBox", boxState},
    {"edit text", 40, "QLineEdit", editText},
    {"edit state", 30, "QLineEdit", editState},
    {"scroll range", 20, "QScrollBar", scrollRange},
    {"frame", 30, "QFrame", frameLook},
    {"label", 30, "QLabel", labelContents},
    {"button", 30, "QButton", buttonState},
    {"push button", 12, "QPushButton", pushButtonState},
    {"colour dialog", 12, "ZelColorDlg", colorDialog},
    {"colour group", 12, "ZelColorGroupDlg", colorGroup},
    {"font dialog", 12, "ZelFontDlg", fontDialog},
};
