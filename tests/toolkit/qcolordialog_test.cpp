// Choosing a colour, as a user does it in the standard dialog.
#include "hands.h"
#include "pixels.h"
#include "printers.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qcolordialog.h>
#include <qlabel.h>
#include <qlineedit.h>
#include <qobjectlist.h>

#include <X11/keysym.h>

#include <functional>
#include <string>

namespace
{

const QColor start(200, 100, 50);

QColor choose(const std::function<void(QWidget*)>& work, const QColor& initial = start,
              QWidget* parent = nullptr, const char* name = nullptr)
{
    Hands hands(work);
    return QColorDialog::getColor(initial, parent, name);
}

// The numbers in the fields: hue, saturation, value, red, green, blue.
std::string fields(QWidget* dialog)
{
    std::string all;
    QObjectList* edits = dialog->queryList("QLineEdit");
    for (QObject* each = edits->first(); each; each = edits->next()) {
        const QLineEdit* edit = static_cast<QLineEdit*>(each);
        if (edit->isVisible())
            all += (all.empty() ? "" : " ") + std::string(edit->text().latin1());
    }
    delete edits;
    return all;
}

void type(QWidget* dialog, const char* field, const char* text)
{
    QLineEdit* edit = static_cast<QLineEdit*>(dialog->child(field, "QLineEdit"));
    ASSERT_NE(nullptr, edit) << field;
    edit->setFocus();
    edit->selectAll();
    xinput::typeText(text);
    settle();
}

QWidget* colorGrid(QWidget* dialog)
{
    return dialog->childAt(14, 40);
}

QWidget* customGrid(QWidget* dialog)
{
    return dialog->childAt(14, childNamed(dialog, "qt_def_custcolors_lbl")->y() - 20);
}

} // namespace

TEST(ColorDialog, IsModalAndNamedAsAsked)
{
    QWidget parent(nullptr, "parent");
    choose(
        [&parent](QWidget* dialog) {
            EXPECT_EQ("Select color", dialog->caption());
            EXPECT_STREQ("Given name", dialog->name());
            EXPECT_EQ(&parent, dialog->parentWidget());
            EXPECT_TRUE(dialog->isModal());
            EXPECT_EQ("20 191 200 200 100 50", fields(dialog));
            clickButton(dialog, "Cancel");
        },
        start, &parent, "Given name");
}

// The fields may become as narrow as line edits do at least.
TEST(ColorDialog, MayBeMadeALittleNarrowerThanItIsAtFirst)
{
    choose([](QWidget* dialog) {
        EXPECT_EQ(QSize(499, 379), dialog->size());
        EXPECT_EQ(QSize(497, 379), dialog->minimumSize());
        const QWidget* field = static_cast<QWidget*>(dialog->child("qt_hue_edit"));
        EXPECT_EQ(field->width() - 1, field->minimumSizeHint().width());
        clickButton(dialog, "Cancel");
    });
}

TEST(ColorDialog, OkTakesTheColourAndCancelAndEscapeDoNot)
{
    EXPECT_EQ(start, choose([](QWidget* dialog) { clickButton(dialog, "OK"); }));
    EXPECT_FALSE(choose([](QWidget* dialog) { clickButton(dialog, "Cancel"); }).isValid());
    EXPECT_FALSE(choose([](QWidget*) { xinput::typeKey(XK_Escape); }).isValid());
}

TEST(ColorDialog, NumbersActWhileTheyAreTyped)
{
    const QColor chosen = choose([](QWidget* dialog) {
        type(dialog, "qt_red_edit", "17");
        EXPECT_EQ("144 212 100 17 100 50", fields(dialog));
        type(dialog, "qt_grn_edit", "34");
        EXPECT_EQ("209 168 50 17 34 50", fields(dialog));
        type(dialog, "qt_blue_edit", "51");
        EXPECT_EQ("210 170 51 17 34 51", fields(dialog));
        QWidget* sample = static_cast<QWidget*>(dialog->child("qt_colorshow_lbl"));
        EXPECT_TRUE(waitFor([sample] { return Pixels::of(sample).at(10, 10) == 0x112233; }));
        xinput::typeKey(XK_Return);
    });
    EXPECT_EQ(QColor(17, 34, 51), chosen);
}

TEST(ColorDialog, HueSaturationAndValueMayBeTypedToo)
{
    const QColor chosen = choose([](QWidget* dialog) {
        type(dialog, "qt_hue_edit", "240");
        EXPECT_EQ("240 191 200 50 50 200", fields(dialog));
        type(dialog, "qt_sat_edit", "255");
        type(dialog, "qt_val_edit", "100");
        EXPECT_EQ("240 255 100 0 0 100", fields(dialog));
        type(dialog, "qt_red_edit", "999");
        EXPECT_EQ("299 255 100 99 0 100", fields(dialog)) << "no number above 255";
        clickButton(dialog, "OK");
    });
    EXPECT_EQ(QColor(99, 0, 100), chosen);
}

TEST(ColorDialog, WellsAreClicked)
{
    const QColor chosen = choose([](QWidget* dialog) {
        QWidget* grid = colorGrid(dialog);
        xinput::click(grid, 14, 12);
        settle();
        EXPECT_EQ("-1 0 0 0 0 0", fields(dialog));
        xinput::click(grid, 70, 36);
        settle();
        EXPECT_EQ("200 255 127 0 85 127", fields(dialog));
        clickButton(dialog, "OK");
    });
    EXPECT_EQ(QColor(0, 85, 127), chosen);
}

TEST(ColorDialog, WellsAreReachedWithTheKeyboard)
{
    const QColor chosen = choose([](QWidget* dialog) {
        EXPECT_TRUE(colorGrid(dialog)->hasFocus());
        xinput::typeKey(XK_Right);
        xinput::typeKey(XK_Down);
        xinput::typeKey(XK_Down);
        xinput::typeKey(XK_space);
        settle();
        xinput::typeKey(XK_Return);
    });
    EXPECT_EQ(QColor(170, 0, 255), chosen);
}

TEST(ColorDialog, ThePickersChangeWhatTheyShow)
{
    const QColor chosen = choose([](QWidget* dialog) {
        QWidget* picker = static_cast<QWidget*>(dialog->child("qt_colorpicker"));
        QWidget* values = static_cast<QWidget*>(dialog->child("qt_luminance_picker"));
        ASSERT_TRUE(picker && values);
        xinput::click(picker, 1, 1);
        settle();
        EXPECT_EQ("0 255 200 200 0 0", fields(dialog)) << "the brightest red is in the corner";
        xinput::click(values, 5, 4);
        settle();
        EXPECT_EQ("0 255 255 255 0 0", fields(dialog));
        EXPECT_EQ(0xfe0000u, Pixels::of(values).at(5, 5));
        xinput::moveTo(values, 5, 4);
        xinput::pressButton();
        xinput::moveTo(values, 5, 300);
        settle();
        xinput::releaseButton();
        settle();
        EXPECT_EQ("0 255 0 0 0 0", fields(dialog)) << "dragged to the lower end";
        clickButton(dialog, "OK");
    });
    EXPECT_EQ(Qt::black, chosen);
}

TEST(ColorDialog, ProgramsChooseTheStandardColours)
{
    QColorDialog::setStandardColor(0, qRgb(17, 34, 51));
    EXPECT_EQ(QColor(17, 34, 51), choose([](QWidget* dialog) {
                  xinput::click(colorGrid(dialog), 14, 12);
                  settle();
                  clickButton(dialog, "OK");
              }));
    QColorDialog::setStandardColor(0, qRgb(0, 0, 0));
}

TEST(ColorDialog, KeepsCustomColours)
{
    ASSERT_EQ(16, QColorDialog::customCount());
    EXPECT_EQ(qRgb(255, 255, 255), QColorDialog::customColor(0));
    choose([](QWidget* dialog) {
        clickButton(dialog, "&Add to Custom Colors");
        settle();
        type(dialog, "qt_red_edit", "100");
        clickButton(dialog, "&Add to Custom Colors");
        settle();
        clickButton(dialog, "Cancel");
    });
    EXPECT_EQ(start.rgb(), QColorDialog::customColor(0));
    EXPECT_EQ(qRgb(100, 100, 50), QColorDialog::customColor(1)) << "the next one";
    QColorDialog::setCustomColor(0, qRgb(255, 255, 255));
    QColorDialog::setCustomColor(1, qRgb(255, 255, 255));
    QColorDialog::setCustomColor(3, qRgb(1, 2, 3));
    EXPECT_EQ(qRgb(1, 2, 3), QColorDialog::customColor(3));
}

TEST(ColorDialog, AClickedCustomWellTakesTheNextColour)
{
    const QRgb blue = qRgb(0, 0, 255);
    QColorDialog::setCustomColor(5, blue);
    const QColor chosen = choose([](QWidget* dialog) {
        QWidget* custom = customGrid(dialog);
        xinput::click(custom, 28 * 2 + 14, 24 + 12); // the sixth, counted down the columns
        settle();
        EXPECT_EQ("240 255 255 0 0 255", fields(dialog));
        type(dialog, "qt_grn_edit", "128");
        clickButton(dialog, "&Add to Custom Colors");
        settle();
        EXPECT_EQ(0x0080ffu, Pixels::of(custom).at(28 * 2 + 14, 24 + 12));
        clickButton(dialog, "OK");
    });
    EXPECT_EQ(QColor(0, 128, 255), chosen);
    EXPECT_EQ(qRgb(0, 128, 255), QColorDialog::customColor(5));
    QColorDialog::setCustomColor(5, qRgb(255, 255, 255));
}

TEST(ColorDialog, CustomWellsAreReachedWithTheKeyboardAndStayForTheNextTime)
{
    choose([](QWidget*) {
        xinput::typeKey(XK_a, XK_Alt_L); // "Add to Custom Colors"
        settle();
        xinput::typeKey(XK_Escape);
    });
    const QColor chosen = choose(
        [](QWidget* dialog) {
            xinput::typeKey(XK_c, XK_Alt_L);
            settle();
            EXPECT_TRUE(customGrid(dialog)->hasFocus());
            xinput::typeKey(XK_space);
            settle();
            xinput::typeKey(XK_Return);
        },
        Qt::white);
    EXPECT_EQ(start, chosen);
    QColorDialog::setCustomColor(0, qRgb(255, 255, 255));
}

TEST(ColorDialog, EveryFieldHasItsLetter)
{
    choose([](QWidget* dialog) {
        const struct {
            unsigned long letter;
            const char* field;
        } letters[] = {{XK_e, "qt_hue_edit"}, {XK_s, "qt_sat_edit"}, {XK_v, "qt_val_edit"},
                       {XK_r, "qt_red_edit"}, {XK_g, "qt_grn_edit"}, {XK_u, "qt_blue_edit"}};
        for (const auto& each : letters) {
            xinput::typeKey(each.letter, XK_Alt_L);
            settle();
            EXPECT_STREQ(each.field, dialog->focusWidget()->name());
        }
        xinput::typeKey(XK_b, XK_Alt_L);
        settle();
        EXPECT_TRUE(colorGrid(dialog)->hasFocus());
        xinput::typeKey(XK_Escape);
    });
}

TEST(ColorDialog, TabGoesThroughAllThatCanBeUsed)
{
    choose([](QWidget* dialog) {
        std::string names;
        for (int i = 0; i < 11; ++i) {
            xinput::typeKey(XK_Tab);
            settle();
            names += dialog->focusWidget()->name() + std::string(" ");
        }
        EXPECT_EQ(" qt_hue_edit qt_sat_edit qt_val_edit qt_red_edit qt_grn_edit qt_blue_edit qt_ok_btn "
                  "qt_cancel_btn qt_add_btn  ",
                  names)
            << "the wells have no names";
        xinput::typeKey(XK_Escape);
    });
}

TEST(ColorDialog, ItsContentsFollowTheSizeOfTheWindow)
{
    choose([](QWidget* dialog) {
        QWidget* sample = childNamed(dialog, "qt_colorshow_lbl");
        QWidget* red = childNamed(dialog, "qt_red_edit");
        QWidget* ok = childNamed(dialog, "qt_ok_btn");
        QWidget* custom = customGrid(dialog);
        const QSize before = dialog->size();
        const auto customTop = [=] { return custom->mapTo(dialog, QPoint(0, 0)).y(); };
        const int sampleWidth = sample->width(), redWidth = red->width(), okTop = ok->y(),
                  customBefore = customTop();
        dialog->resize(before.width() + 50, before.height() + 40);
        settle();
        EXPECT_EQ(sampleWidth + 50, sample->width());
        EXPECT_EQ(redWidth, red->width());
        EXPECT_EQ(okTop + 40, ok->y());
        EXPECT_EQ(customBefore + 40, customTop());
        dialog->resize(10, 10);
        settle();
        EXPECT_EQ(dialog->minimumSize(), dialog->size());
        EXPECT_EQ(sampleWidth, sample->width());
        EXPECT_EQ(okTop, ok->y());
        const QRect room = red->parentWidget()->rect();
        EXPECT_LT(red->geometry().right(), room.right());
        clickButton(dialog, "Cancel");
    });
}

TEST(ColorDialog, EndsWithItsParent)
{
    QWidget* parent = new QWidget;
    Hands first([&](QWidget*) { delete parent; });
    EXPECT_FALSE(QColorDialog::getColor(start, parent).isValid());

    parent = new QWidget;
    bool ok = true;
    Hands second([&](QWidget*) { delete parent; });
    EXPECT_EQ(start.rgb(), QColorDialog::getRgba(start.rgb(), &ok, parent));
    EXPECT_FALSE(ok);
    EXPECT_EQ(nullptr, QApplication::activeModalWidget());
}

TEST(ColorDialog, AsksForAnAlphaChannelIfWanted)
{
    Hands hands([](QWidget* dialog) {
        EXPECT_EQ("210 170 30 10 20 30 128", fields(dialog));
        type(dialog, "qt_aplha_edit", "64");
        clickButton(dialog, "OK");
    });
    bool ok = false;
    EXPECT_EQ(qRgba(10, 20, 30, 64), QColorDialog::getRgba(qRgba(10, 20, 30, 128), &ok));
    EXPECT_TRUE(ok);
    Hands escaping([](QWidget*) { xinput::typeKey(XK_Escape); });
    EXPECT_EQ(qRgba(10, 20, 30, 128), QColorDialog::getRgba(qRgba(10, 20, 30, 128), &ok));
    EXPECT_FALSE(ok);
}
