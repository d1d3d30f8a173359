// ZelFontDlg: which call and which choice of the user moves the controls, and which the sample.
#include <fontdlg.h>

#include "dialogs.h"
#include "messages.h"
#include "signalrecorder.h"

#include <qcheckbox.h>
#include <qcombobox.h>
#include <qlabel.h>
#include <qlistbox.h>

#include <X11/keysym.h>

#include <climits>

namespace
{

// A font as text: "Times 12 75 i-s", with a letter for italic, underline and strike-out.
std::string description(const QFont& font)
{
    return std::string(font.family().latin1()) + " " + std::to_string(font.pointSize()) + " " +
           std::to_string(font.weight()) + " " + (font.italic() ? "i" : "-") +
           (font.underline() ? "u" : "-") + (font.strikeOut() ? "s" : "-");
}

class FontParameters : public testing::Test
{
protected:
    FontParameters()
        : family(child<QComboBox>("FamilyEdit")), size(child<QComboBox>("SizeEdit")),
          weight(child<QComboBox>("WeightEdit")), italic(child<QCheckBox>("ItalicEdit")),
          underline(child<QCheckBox>("UnderlineEdit")), strikeOut(child<QCheckBox>("StrikeOutEdit")),
          panel(child<QLabel>("Panel"))
    {
        dialog.setFontParameters("Courier", 14, 50, false, false, false);
    }

    void show()
    {
        dialog.move(30, 30);
        showAndActivate(&dialog);
    }

    std::string sample() const { return description(panel->font()); }
    // What the controls show.
    std::string controls() const
    {
        return std::string(family->currentText().latin1()) + " " + size->currentText().latin1() + " " +
               weight->currentText().latin1() + " " + (italic->isChecked() ? "i" : "-") +
               (underline->isChecked() ? "u" : "-") + (strikeOut->isChecked() ? "s" : "-");
    }
    // What the getters give.
    std::string values()
    {
        return std::string(dialog.getFontFamily()) + " " + std::to_string(dialog.getFontSize()) + " " +
               std::to_string(dialog.getFontWeight()) + " " + (dialog.beFontItalic() ? "i" : "-") +
               (dialog.beFontUnderline() ? "u" : "-") + (dialog.beFontStrikeOut() ? "s" : "-");
    }

    // Opens the list with the pointer and clicks an entry. The weight box may reach beyond the dialog, so it
    // is clicked at its left; the others have their field there.
    void pick(QComboBox* box, int index)
    {
        xinput::click(box, box->editable() ? box->width() - 8 : 8, box->height() / 2);
        QListBox* const list = box->listBox();
        ASSERT_TRUE(waitFor([list] { return list->isVisible(); }));
        settle();
        const auto inView = [=] {
            const QRect entry = list->itemRect(list->item(index));
            return entry.y() >= 0 && entry.bottom() < list->visibleHeight();
        };
        for (int i = 0; i < box->count() && !inView(); ++i) {
            xinput::typeKey(XK_Down);
            settle();
        }
        xinput::click(list->viewport(), 10, list->itemRect(list->item(index)).center().y());
        EXPECT_TRUE(waitFor([list] { return !list->isVisible(); }));
        settle();
    }

    void typeInto(QComboBox* box, const char* text)
    {
        box->lineEdit()->setFocus();
        box->lineEdit()->selectAll();
        xinput::typeText(text);
        settle();
    }

    void click(QCheckBox* box)
    {
        xinput::click(box, 8, box->height() / 2);
        settle();
    }

    ZelFontDlg dialog;
    QComboBox* const family;
    QComboBox* const size;
    QComboBox* const weight;
    QCheckBox* const italic;
    QCheckBox* const underline;
    QCheckBox* const strikeOut;
    QLabel* const panel;

private:
    template <class Widget>
    Widget* child(const char* name)
    {
        return static_cast<Widget*>(childNamed(&dialog, name));
    }
};

} // namespace

TEST_F(FontParameters, AllAtOnceSetControlsAndSample)
{
    dialog.setFontParameters("Times", 12, 75, true, false, true);
    EXPECT_EQ(controls(), "Times 12 Bold i-s");
    EXPECT_EQ(sample(), "Times 12 75 i-s");
    EXPECT_EQ(values(), "Times 12 75 i-s");
    dialog.setFontParameters("Utopia", 96, 87, false, true, false);
    EXPECT_EQ(controls(), "Utopia 96 Black -u-");
    EXPECT_EQ(sample(), "Utopia 96 87 -u-");
    EXPECT_EQ(values(), "Utopia 96 87 -u-");
}

TEST_F(FontParameters, TheControlsAreSetOneByOneAndThenTheSample)
{
    SignalRecorder recorder;
    recorder.watch(family, SIGNAL(textChanged(const QString&)), "family");
    recorder.watch(size, SIGNAL(textChanged(const QString&)), "size");
    recorder.watch(italic, SIGNAL(toggled(bool)), "italic");
    recorder.watch(underline, SIGNAL(toggled(bool)), "underline");
    recorder.watch(strikeOut, SIGNAL(toggled(bool)), "strikeOut");
    std::string weights;
    recorder.whenever = [&] {
        weights += std::string(weight->currentText().latin1()) + " ";
        EXPECT_EQ(sample(), "Courier 14 50 ---");
    };
    dialog.setFontParameters("Times", 12, 75, true, true, true);
    EXPECT_EQ(recorder.take(), "family(Times) size(12) italic(true) underline(true) strikeOut(true)");
    EXPECT_EQ(weights, "Normal Normal Bold Bold Bold ");
    EXPECT_EQ(sample(), "Times 12 75 ius");
}

TEST_F(FontParameters, EveryWeightHasItsName)
{
    const struct {
        int weight;
        const char* name;
        int given;
    } weights[] = {
        {25, "Light", 25}, {50, "Normal", 50},  {63, "DemiBold", 63},   {75, "Bold", 75},
        {87, "Black", 87}, {-25, "Light", 25},  {-50, "Normal", 50},    {-75, "Bold", 75},
        {0, "Light", 25},  {60, "Light", 25},   {70, "Light", 25},      {51, "Light", 25},
        {99, "Light", 25}, {1000, "Light", 25}, {INT_MIN, "Light", 25},
    };
    for (const auto& each : weights) {
        dialog.setFontWeight(63);
        dialog.setFontWeight(each.weight);
        EXPECT_EQ(weight->currentText(), each.name) << each.weight;
        EXPECT_EQ(dialog.getFontWeight(), each.given) << each.weight;
    }
    EXPECT_EQ(sample(), "Courier 14 50 ---");
}

TEST_F(FontParameters, AWeightInBetweenIsShownButNotSelected)
{
    dialog.setFontParameters("Times", 12, 30, false, false, false);
    EXPECT_EQ(sample(), "Times 12 30 ---");
    EXPECT_EQ(values(), "Times 12 25 ---");
    dialog.setFontParameters("Times", 12, -60, false, false, false);
    EXPECT_EQ(sample(), "Times 12 60 ---");
    EXPECT_EQ(controls(), "Times 12 Light ---");
}

TEST_F(FontParameters, SizesBelowOneAreEight)
{
    for (const int none : {0, -5, INT_MIN}) {
        dialog.setFontParameters("Times", none, 50, false, false, false);
        EXPECT_EQ(controls(), "Times 8 Normal ---") << none;
        EXPECT_EQ(sample(), "Times 8 50 ---") << none;
        dialog.setFontSize(20);
        dialog.setFontSize(none);
        EXPECT_EQ(size->currentText(), "8") << none;
    }
    dialog.setFontSize(1);
    EXPECT_EQ(dialog.getFontSize(), 1);
    dialog.setFontSize(INT_MAX);
    EXPECT_EQ(size->currentText(), "2147483647");
    EXPECT_EQ(dialog.getFontSize(), INT_MAX);
}

TEST_F(FontParameters, UnlistedFamiliesAndSizesAreShownAsTheyAre)
{
    dialog.setFontParameters("Some Family", 13, 50, false, false, false);
    EXPECT_EQ(controls(), "Some Family 13 Normal ---");
    EXPECT_EQ(sample(), "Some Family 13 50 ---");
    EXPECT_EQ(family->count(), 15);
    EXPECT_EQ(size->count(), 10);
}

TEST_F(FontParameters, SingleSettersLeaveTheSampleAlone)
{
    dialog.setFontFamily("Times");
    EXPECT_EQ(controls(), "Times 14 Normal ---");
    dialog.setFontSize(24);
    EXPECT_EQ(controls(), "Times 24 Normal ---");
    dialog.setFontWeight(75);
    EXPECT_EQ(controls(), "Times 24 Bold ---");
    dialog.setFontItalic(true);
    EXPECT_EQ(controls(), "Times 24 Bold i--");
    dialog.setFontUnderline(true);
    EXPECT_EQ(controls(), "Times 24 Bold iu-");
    dialog.setFontStrikeOut(true);
    EXPECT_EQ(controls(), "Times 24 Bold ius");
    dialog.setFontUnderline(false);
    EXPECT_EQ(controls(), "Times 24 Bold i-s");
    EXPECT_EQ(values(), "Times 24 75 i-s");
    EXPECT_EQ(sample(), "Courier 14 50 ---");
}

TEST_F(FontParameters, TheSampleForgetsWhatTheSixValuesDoNotSay)
{
    QFont odd("Times", 30);
    odd.setFixedPitch(true);
    odd.setOverline(true);
    panel->setFont(odd);
    dialog.setFontParameters("Times", 12, 50, false, false, false);
    EXPECT_FALSE(panel->font().overline());
    EXPECT_FALSE(panel->font().fixedPitch());
}

TEST_F(FontParameters, TheFamilyMayBeTheOneThatTheDialogGave)
{
    dialog.setFontFamily("A family that is not in the list at all");
    dialog.setFontParameters(dialog.getFontFamily(), 12, 50, false, false, false);
    EXPECT_EQ(sample(), "A family that is not in the list at all 12 50 ---");
    dialog.setFontFamily(dialog.getFontFamily());
    EXPECT_STREQ(dialog.getFontFamily(), "A family that is not in the list at all");
}

TEST_F(FontParameters, TheFamilyStaysReadableUntilItChanges)
{
    dialog.setFontFamily("Lucida");
    const char* const name = dialog.getFontFamily();
    dialog.setFontSize(48);
    dialog.setFontItalic(true);
    show();
    EXPECT_STREQ(name, "Lucida");
    EXPECT_EQ(dialog.getFontFamily(), name);
    dialog.setFontFamily("");
    EXPECT_STREQ(dialog.getFontFamily(), "");
}

TEST_F(FontParameters, ChoicesInTheListsChangeTheirOwnPartOfTheSample)
{
    show();
    pick(family, 13);
    EXPECT_EQ(sample(), "Times 14 50 ---");
    pick(size, 5);
    EXPECT_EQ(sample(), "Times 24 50 ---");
    pick(weight, 3);
    EXPECT_EQ(sample(), "Times 24 75 ---");
    pick(weight, 1);
    EXPECT_EQ(sample(), "Times 24 50 ---");
    EXPECT_EQ(controls(), "Times 24 Normal ---");
    EXPECT_EQ(values(), "Times 24 50 ---");
}

TEST_F(FontParameters, EveryWeightCanBeChosen)
{
    const int numbers[] = {25, 50, 63, 75, 87};
    show();
    for (int i = 0; i < 5; ++i) {
        pick(weight, i);
        EXPECT_EQ(panel->font().weight(), numbers[i]);
        EXPECT_EQ(dialog.getFontWeight(), numbers[i]);
    }
}

TEST_F(FontParameters, ClicksOnTheBoxesChangeTheirOwnPartOfTheSample)
{
    show();
    click(italic);
    EXPECT_EQ(sample(), "Courier 14 50 i--");
    click(underline);
    EXPECT_EQ(sample(), "Courier 14 50 iu-");
    click(strikeOut);
    EXPECT_EQ(sample(), "Courier 14 50 ius");
    click(italic);
    EXPECT_EQ(sample(), "Courier 14 50 -us");
    strikeOut->setFocus();
    xinput::typeKey(XK_space);
    settle();
    EXPECT_EQ(sample(), "Courier 14 50 -u-");
    EXPECT_EQ(values(), "Courier 14 50 -u-");
}

TEST_F(FontParameters, AControlSetAloneIsNotInStepUntilItIsUsed)
{
    show();
    dialog.setFontItalic(true);
    click(underline);
    EXPECT_EQ(sample(), "Courier 14 50 -u-");
    click(italic);
    EXPECT_EQ(sample(), "Courier 14 50 -u-") << "unchecked by the click";
    EXPECT_FALSE(dialog.beFontItalic());
}

TEST_F(FontParameters, TypedTextsCountOnReturn)
{
    show();
    typeInto(size, "17");
    EXPECT_EQ(sample(), "Courier 14 50 ---");
    EXPECT_EQ(dialog.getFontSize(), 17) << "the getters read what is typed";
    size->lineEdit()->setFocus();
    // Return goes on to the dialog, where OK is the default button.
    xinput::typeKey(XK_Return);
    EXPECT_TRUE(waitFor([this] { return !dialog.isVisible(); }));
    EXPECT_EQ(sample(), "Courier 17 50 ---");
    EXPECT_EQ(dialog.result(), QDialog::Accepted);

    show();
    typeInto(family, "Fixed");
    xinput::typeKey(XK_Return);
    EXPECT_TRUE(waitFor([this] { return !dialog.isVisible(); }));
    EXPECT_EQ(sample(), "Fixed 17 50 ---");
    EXPECT_STREQ(dialog.getFontFamily(), "Fixed");
}

TEST_F(FontParameters, SizesAreReadUpToTheFirstOtherCharacter)
{
    const struct {
        const char* text;
        int given;
        int shown; // 14 is the size before
    } sizes[] = {
        {"12pt", 12, 12},
        {"-14", -14, 14},
        {"-20", -20, 20},
        {" 18", 18, 18},
        {"+9", 9, 9},
        {"big", 0, 14},
        {"", 0, 14},
        {"3.7", 3, 3},
        {"0", 0, 14},
        {"x12", 0, 14},
        {"99999999999", INT_MAX, INT_MAX / 10 + 1},
        {"-99999999999", INT_MIN, 14},
    };
    for (const auto& each : sizes) {
        dialog.setFontParameters("Courier", 14, 50, false, false, false);
        size->setEditText(each.text);
        EXPECT_EQ(dialog.getFontSize(), each.given) << each.text;
        size->changeItem(each.text, 0);
        testMessages().clear();
        dialog.sizeActivated(0);
        EXPECT_EQ(panel->font().pointSize(), each.shown) << each.text;
        // The toolkit refuses such sizes itself.
        EXPECT_EQ(!testMessages().empty(), each.given == 0 || each.given == INT_MIN) << each.text;
    }
}

TEST_F(FontParameters, HugeSizesDoNoHarm)
{
    show();
    for (const char* huge : {"1000", "5000", "50000", "9999999", "99999999999"}) {
        size->changeItem(huge, 0);
        dialog.sizeActivated(0);
        settle();
        EXPECT_GT(panel->font().pointSize(), 999) << huge;
        EXPECT_GT(panel->fontMetrics().height(), 999) << huge;
        EXPECT_GT(panel->fontMetrics().width("A"), 499) << huge;
        EXPECT_GT(panel->sizeHint().height(), 999) << huge;
    }
    EXPECT_TRUE(testMessages().empty());
}

TEST_F(FontParameters, SlotsReadTheEntryNotTheTypedText)
{
    family->setEditText("typed");
    size->setEditText("77");
    dialog.familyActivated(14);
    dialog.sizeActivated(0);
    dialog.weightActivated(4);
    EXPECT_EQ(sample(), "Utopia 8 87 ---");
    EXPECT_EQ(controls(), "typed 77 Normal ---");
}

TEST_F(FontParameters, SlotsReadTheStateOfTheBoxes)
{
    italic->setChecked(true);
    strikeOut->setChecked(true);
    EXPECT_EQ(sample(), "Courier 14 50 ---") << "not by themselves";
    dialog.italicClicked();
    EXPECT_EQ(sample(), "Courier 14 50 i--");
    dialog.underlineClicked();
    EXPECT_EQ(sample(), "Courier 14 50 i--");
    dialog.strikeoutClicked();
    EXPECT_EQ(sample(), "Courier 14 50 i-s");
    dialog.setFontItalic(false);
    dialog.italicClicked();
    EXPECT_EQ(sample(), "Courier 14 50 --s");
    strikeOut->setChecked(false);
    dialog.strikeoutClicked();
    EXPECT_EQ(sample(), "Courier 14 50 ---");
    for (QCheckBox* box : {italic, underline, strikeOut})
        box->setNoChange(); // anything but off counts
    dialog.italicClicked();
    EXPECT_EQ(sample(), "Courier 14 50 i--");
    dialog.underlineClicked();
    EXPECT_EQ(sample(), "Courier 14 50 iu-");
    dialog.strikeoutClicked();
    EXPECT_EQ(sample(), "Courier 14 50 ius");
    EXPECT_EQ(values(), "Courier 14 50 ius");
}

TEST_F(FontParameters, AnEntryThatIsNotThereHasNoSize)
{
    for (const int none : {-1, 100, INT_MIN, INT_MAX}) {
        testMessages().clear();
        dialog.sizeActivated(none);
        EXPECT_EQ(sample(), "Courier 14 50 ---") << none;
        EXPECT_FALSE(testMessages().empty()) << "The toolkit refuses a size of 0";
    }
    testMessages().clear();
}

TEST_F(FontParameters, AnUnknownWeightNameChangesNothing)
{
    weight->changeItem("bold", 3);
    dialog.weightActivated(3);
    EXPECT_EQ(sample(), "Courier 14 50 ---") << "case counts";
    weight->setCurrentItem(3);
    EXPECT_EQ(dialog.getFontWeight(), 25);
    for (const int none : {-1, 5, INT_MIN, INT_MAX}) {
        dialog.weightActivated(none);
        EXPECT_EQ(sample(), "Courier 14 50 ---") << none;
    }
}

TEST_F(FontParameters, AnUnknownWeightNameLeavesAnOddWeightAlone)
{
    dialog.setFontParameters("Courier", 14, 200, false, false, false);
    const int odd = panel->font().weight();
    testMessages().clear();
    dialog.weightActivated(-1);
    EXPECT_EQ(panel->font().weight(), odd);
    EXPECT_TRUE(testMessages().empty());
}

TEST_F(FontParameters, OnlyWhatWasChosenKeepsTheSampleFromFollowingTheDialog)
{
    ZelFontDlg fresh;
    const QLabel* const label = static_cast<QLabel*>(childNamed(&fresh, "Panel"));
    fresh.sizeActivated(3);
    fresh.weightActivated(-1);
    QFont bold = fresh.font();
    bold.setPointSize(30);
    bold.setWeight(QFont::Bold);
    bold.setItalic(true);
    fresh.setFont(bold);
    EXPECT_EQ(label->font().pointSize(), 14);
    EXPECT_EQ(label->font().weight(), 75);
    EXPECT_TRUE(label->font().italic());
    fresh.weightActivated(1);
    bold.setWeight(QFont::Black);
    fresh.setFont(bold);
    EXPECT_EQ(label->font().weight(), 50);
}

TEST_F(FontParameters, TwoDialogsDoNotDisturbEachOther)
{
    ZelFontDlg other;
    other.setFontParameters("Times", 96, 25, true, true, true);
    other.move(30, 400);
    showAndWait(&other);
    show();
    pick(size, 2);
    click(underline);
    EXPECT_EQ(sample(), "Courier 12 50 -u-");
    EXPECT_EQ(description(static_cast<QLabel*>(childNamed(&other, "Panel"))->font()), "Times 96 25 ius");
}
