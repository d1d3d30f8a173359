// ZelFontDlg: its tables and how it is built, laid out and ended.
#include <fontdlg.h>

#include "dialogs.h"
#include "perishable.h"
#include "pixels.h"
#include "signalrecorder.h"

#include <qcheckbox.h>
#include <qcombobox.h>
#include <qguardedptr.h>
#include <qlabel.h>

#include <X11/keysym.h>

#include <memory>
#include <vector>

namespace
{

std::vector<std::string> entries(const char** table)
{
    std::vector<std::string> all;
    for (; *table; ++table)
        all.push_back(*table);
    return all;
}

class FontDlg : public testing::Test
{
protected:
    void make() { dialog.reset(new ZelFontDlg(nullptr, "dialog")); }

    QComboBox* box(const char* name) const { return static_cast<QComboBox*>(childNamed(dialog.get(), name)); }
    std::vector<std::string> listed(const char* name) const
    {
        std::vector<std::string> all;
        for (int i = 0; i < box(name)->count(); ++i)
            all.push_back(box(name)->text(i).latin1());
        return all;
    }

    std::unique_ptr<ZelFontDlg> dialog;
};

} // namespace

TEST_F(FontDlg, OffersTheseFamiliesSizesAndWeights)
{
    const std::vector<std::string> families = {"Charter",
                                               "Clean",
                                               "Courier",
                                               "Fixed",
                                               "Gothic",
                                               "Helvetica",
                                               "Lucida",
                                               "Lucidabright",
                                               "Lucidatypewriter",
                                               "Mincho",
                                               "New century schoolbook",
                                               "Symbol",
                                               "Terminal",
                                               "Times",
                                               "Utopia"};
    const std::vector<std::string> sizes = {"8", "10", "12", "14", "18", "24", "36", "48", "72", "96"};
    const std::vector<std::string> weights = {"Light", "Normal", "DemiBold", "Bold", "Black"};
    EXPECT_EQ(entries(Families), families);
    EXPECT_EQ(entries(Sizes), sizes);
    EXPECT_EQ(entries(Weights), weights);
    make();
    EXPECT_EQ(listed("FamilyEdit"), families);
    EXPECT_EQ(listed("SizeEdit"), sizes);
    EXPECT_EQ(listed("WeightEdit"), weights);
}

TEST_F(FontDlg, AProgramMayChangeTheTables)
{
    const char* const family = Families[0];
    const char* const weight = Weights[4];
    Families[0] = "Something else";
    Weights[4] = nullptr;
    make();
    EXPECT_EQ(box("FamilyEdit")->text(0), "Something else");
    EXPECT_EQ(box("WeightEdit")->count(), 4);
    Families[0] = family;
    Weights[4] = weight;
}

TEST_F(FontDlg, TakesItsArgumentsAsADialogDoes)
{
    expectTakesDialogArguments<ZelFontDlg>();
    make();
    EXPECT_EQ(dialog->caption(), "Choose font");
    EXPECT_EQ(dialog->minimumSize(), QSize(500, 200));
    EXPECT_EQ(dialog->maximumSize(), QSize(500, 200));
}

TEST_F(FontDlg, HasItsChildrenInThisOrder)
{
    make();
    EXPECT_EQ(childrenOf(dialog.get()),
              "QPushButton ok; QPushButton cancel; QLabel FamilyLabel; QComboBox FamilyEdit; "
              "QLabel SizeLabel; QComboBox SizeEdit; QLabel WeightLabel; QComboBox WeightEdit; "
              "QCheckBox ItalicEdit; QCheckBox UnderlineEdit; QCheckBox StrikeOutEdit; QLabel Panel");
    EXPECT_TRUE(box("FamilyEdit")->editable());
    EXPECT_TRUE(box("SizeEdit")->editable());
    EXPECT_FALSE(box("WeightEdit")->editable());
    const QLabel* const panel = static_cast<QLabel*>(childNamed(dialog.get(), "Panel"));
    EXPECT_EQ(panel->text(), "This is a choosed font");
    EXPECT_EQ(panel->frameStyle(), 50);
    EXPECT_EQ(panel->alignment(), 68);
    EXPECT_EQ(panel->font(), dialog->font());
    for (const char* each : {"ItalicEdit", "UnderlineEdit", "StrikeOutEdit"})
        EXPECT_FALSE(static_cast<QCheckBox*>(childNamed(dialog.get(), each))->isChecked()) << each;
}

TEST_F(FontDlg, IsLaidOutByItsFont)
{
    for (int i = 0; i < 3; ++i) {
        const QFont font = dialogFont(i);
        const ApplicationFont applied(font);
        make();
        const QFontMetrics metrics(font);
        const int line = metrics.height();
        const int top = 200 - line * 5 / 2;
        EXPECT_EQ(place(dialog.get(), "ok"), QRect(10, top, 166, 2 * line));
        EXPECT_EQ(place(dialog.get(), "cancel"), QRect(324, top, 166, 2 * line));

        int x = 10;
        for (const auto& each :
             {std::vector<std::string>{"Family", "New century schoolbook"},
              std::vector<std::string>{"Size", "1000"}, std::vector<std::string>{"Weight", "DemiBold"}}) {
            const int captionWidth = metrics.width(each[0].c_str());
            const int boxWidth = metrics.width(each[1].c_str()) + 32;
            EXPECT_EQ(place(dialog.get(), (each[0] + "Label").c_str()), QRect(x, 10, captionWidth, line));
            x += captionWidth + 8;
            EXPECT_EQ(place(dialog.get(), (each[0] + "Edit").c_str()), QRect(x, 2, boxWidth, line + 8));
            x += boxWidth + 8;
        }

        // Check boxes are as large as every new child.
        const int first = 2 + line + 8 + 8;
        EXPECT_EQ(place(dialog.get(), "ItalicEdit"), QRect(10, first, 100, 30));
        EXPECT_EQ(place(dialog.get(), "UnderlineEdit"), QRect(10, first + 38, 100, 30));
        EXPECT_EQ(place(dialog.get(), "StrikeOutEdit"), QRect(10, first + 76, 100, 30));
        EXPECT_EQ(place(dialog.get(), "Panel"), QRect(118, first, 372, 106));
    }
}

TEST_F(FontDlg, KeepsItsPlacesWhenItIsShown)
{
    make();
    const QRect italic = place(dialog.get(), "ItalicEdit");
    const QRect panel = place(dialog.get(), "Panel");
    showAndWait(dialog.get());
    EXPECT_EQ(place(dialog.get(), "ItalicEdit"), italic);
    EXPECT_EQ(place(dialog.get(), "Panel"), panel);
    EXPECT_EQ(dialog->size(), QSize(500, 200));
}

TEST_F(FontDlg, TheSampleIsOnTheScreenInItsFont)
{
    make();
    showAndWait(dialog.get());
    QWidget* const panel = childNamed(dialog.get(), "Panel");
    const auto ink = [panel] { return Pixels::of(panel).part(4, 4, 364, 98).count(0x000000); };
    dialog->setFontParameters("DejaVu Sans", 10, 50, false, false, false);
    const int small = ink();
    EXPECT_GT(small, 0);
    dialog->setFontParameters("DejaVu Sans", 18, 75, false, false, false);
    EXPECT_GT(ink(), 2 * small);
}

TEST_F(FontDlg, OkAcceptsCancelAndAWindowManagerReject)
{
    make();
    dialog->setFontParameters("Utopia", 24, 63, true, false, true);
    Hands accepting([](QWidget* window) { clickButton(window, "OK"); });
    EXPECT_EQ(dialog->exec(), QDialog::Accepted);
    Hands rejecting([](QWidget* window) { clickButton(window, "Cancel"); });
    EXPECT_EQ(dialog->exec(), QDialog::Rejected);
    Hands closing([](QWidget* window) { xinput::closeWindow(window); });
    EXPECT_EQ(dialog->exec(), QDialog::Rejected);
    Hands escaping([](QWidget*) { xinput::typeKey(XK_Escape); });
    EXPECT_EQ(dialog->exec(), QDialog::Rejected);
    EXPECT_STREQ(dialog->getFontFamily(), "Utopia");
    EXPECT_EQ(dialog->getFontSize(), 24);
    EXPECT_EQ(dialog->getFontWeight(), 63);
    EXPECT_TRUE(dialog->beFontItalic());
    EXPECT_FALSE(dialog->beFontUnderline());
    EXPECT_TRUE(dialog->beFontStrikeOut());
}

TEST_F(FontDlg, TabGoesThroughTheControlsInOrder)
{
    make();
    showAndActivate(dialog.get());
    const std::vector<std::string> order = {"ok",         "cancel",     "FamilyEdit",    "SizeEdit",
                                            "WeightEdit", "ItalicEdit", "UnderlineEdit", "StrikeOutEdit",
                                            "ok"};
    for (const std::string& expected : order) {
        // The field of an editable combo box has the focus for it.
        QWidget* focus = dialog->focusWidget();
        while (focus && focus->parentWidget() != dialog.get())
            focus = focus->parentWidget();
        EXPECT_EQ(focus ? focus->name() : "", expected);
        xinput::typeKey(XK_Tab);
        settle();
    }
}

TEST_F(FontDlg, MetaObjectHasTheSlotsInOrder)
{
    const QMetaObject* const meta = ZelFontDlg::staticMetaObject();
    EXPECT_STREQ(meta->className(), "ZelFontDlg");
    EXPECT_STREQ(meta->superClassName(), "QDialog");
    EXPECT_EQ(joined(meta->slotNames()), "familyActivated(int) sizeActivated(int) weightActivated(int) "
                                         "italicClicked() underlineClicked() strikeoutClicked()");
    EXPECT_EQ(meta->numSignals(), 0);
    EXPECT_EQ(sizeof(ZelFontDlg), sizeof(QDialog) + 7 * sizeof(void*));
}

TEST_F(FontDlg, MayBeDeletedWhileItIsOpen)
{
    make();
    showAndActivate(dialog.get());
    box("WeightEdit")->popup();
    settle();
    dialog.reset();
    settle();
    EXPECT_EQ(QApplication::activePopupWidget(), static_cast<QWidget*>(nullptr));
    ZelFontDlg* const other = new ZelFontDlg;
    Hands deleting([](QWidget* window) { window->deleteLater(); });
    EXPECT_EQ(other->exec(), QDialog::Rejected);
    EXPECT_EQ(QApplication::activeModalWidget(), static_cast<QWidget*>(nullptr));
}

TEST_F(FontDlg, MayBeDeletedByWhoHearsOfAChange)
{
    const struct {
        const char* part;
        const char* signal;
    } changes[] = {{"FamilyEdit", SIGNAL(textChanged(const QString&))},
                   {"SizeEdit", SIGNAL(textChanged(const QString&))},
                   {"ItalicEdit", SIGNAL(toggled(bool))},
                   {"UnderlineEdit", SIGNAL(toggled(bool))},
                   {"StrikeOutEdit", SIGNAL(toggled(bool))}};
    for (const auto& change : changes) {
        const QGuardedPtr<ZelFontDlg> chooser = new Perishable<ZelFontDlg>;
        SignalRecorder recorder;
        recorder.watch(childNamed(chooser, change.part), change.signal);
        recorder.whenever = [&] { delete static_cast<ZelFontDlg*>(chooser); };
        chooser->setFontParameters("Times", 24, QFont::Bold, true, true, true);
        EXPECT_TRUE(chooser.isNull()) << change.part;
        Graveyard::clear();
    }
}
