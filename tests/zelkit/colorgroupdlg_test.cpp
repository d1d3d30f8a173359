// ZelColorGroupDlg: ten swatches, and the colour group that they make.
#include <colorgroupdlg.h>
#include <zelframe.h>

#include "dialogs.h"
#include "pixels.h"

#include <qlabel.h>
#include <qpalette.h>

#include <X11/keysym.h>

#include <memory>
#include <vector>

namespace
{

struct Row {
    const char* caption;
    const char* text;
    QColorGroup::ColorRole initial;
    QColorGroup::ColorRole loaded;
};

// The left column, then the right one, each from top to bottom.
const Row rows[] = {
    {"ForegroundColorlabel", "Foreground", QColorGroup::Foreground, QColorGroup::Text},
    {"BackgroundColorlabel", "Background", QColorGroup::Background, QColorGroup::Background},
    {"LightColorlabel", "Light", QColorGroup::Light, QColorGroup::Light},
    {"DarkColorlabel", "Dark", QColorGroup::Dark, QColorGroup::Dark},
    {"MidColorlabel", "Mid", QColorGroup::Mid, QColorGroup::Mid},
    {"TextColorlabel", "Text", QColorGroup::Text, QColorGroup::Text},
    {"BaseColorlabel", "Base", QColorGroup::Midlight, QColorGroup::Base},
    {"ShadowColorlabel", "Shadow", QColorGroup::Shadow, QColorGroup::Shadow},
    {"HighlightColorlabel", "Highlight", QColorGroup::Highlight, QColorGroup::Highlight},
    {"HighlightedTextColorlabel", "HighlightedText", QColorGroup::HighlightedText,
     QColorGroup::HighlightedText},
};

enum { Foreground, Background, Light, Dark, Mid, Text, Base, Shadow, Highlight, HighlightedText, rowCount };

// A colour of its own for every role.
QColor roleColor(int role)
{
    return QColor(10 + role, 100 + 5 * role, 250 - 7 * role);
}

QColorGroup colorful()
{
    QColorGroup group;
    for (int role = 0; role < QColorGroup::NColorRoles; ++role)
        group.setColor(static_cast<QColorGroup::ColorRole>(role), roleColor(role));
    return group;
}

class ColorGroupDlg : public testing::Test
{
protected:
    ColorGroupDlg() { make(); }

    void make()
    {
        dialog.reset(new ZelColorGroupDlg(nullptr, "dialog"));
        swatches.clear();
        QObjectList* const frames = dialog->queryList("ZelFrame");
        for (QObject* each = frames->first(); each; each = frames->next())
            swatches.push_back(static_cast<ZelFrame*>(each));
        delete frames;
        ASSERT_EQ(swatches.size(), size_t(rowCount)); // created in the order of the rows
    }

    void show()
    {
        dialog->move(30, 30);
        showAndActivate(dialog.get());
    }

    QColor color(int row) const { return swatches[static_cast<size_t>(row)]->paletteBackgroundColor(); }
    std::vector<QColor> colors() const
    {
        std::vector<QColor> all;
        for (int row = 0; row < rowCount; ++row)
            all.push_back(color(row));
        return all;
    }

    // Presses a button on a swatch and lets go when what that caused is over.
    void press(int row, int button = 1)
    {
        ZelFrame* const swatch = swatches[static_cast<size_t>(row)];
        xinput::moveTo(swatch, swatch->width() / 2, swatch->height() / 2);
        xinput::pressButton(button);
        settle();
        xinput::releaseButton(button);
        settle();
    }

    // Chooses a colour for a swatch.
    void choose(int row, const QColor& color)
    {
        bool chosen = false;
        Hands hands([&](QWidget* window) {
            xinput::releaseButton();
            typeColor(window, color);
            chosen = true;
            clickButton(window, "OK");
        });
        press(row);
        EXPECT_TRUE(chosen) << rows[row].text;
    }

    std::unique_ptr<ZelColorGroupDlg> dialog;
    std::vector<ZelFrame*> swatches;
};

} // namespace

TEST_F(ColorGroupDlg, TakesItsArgumentsAsADialogDoes)
{
    expectTakesDialogArguments<ZelColorGroupDlg>();
    EXPECT_EQ(dialog->caption(), "A colors palette");
}

TEST_F(ColorGroupDlg, HasItsChildrenInThisOrder)
{
    EXPECT_EQ(childrenOf(dialog.get()),
              "QLabel ForegroundColorlabel; QLabel BackgroundColorlabel; QLabel LightColorlabel; "
              "QLabel DarkColorlabel; ZelFrame ForegroundColorEdit; ZelFrame BackgroundColorEdit; "
              "ZelFrame LightColorEdit; ZelFrame DarkColorEdit; QLabel MidColorlabel; QLabel TextColorlabel; "
              "QLabel BaseColorlabel; QLabel ShadowColorlabel; QLabel HighlightColorlabel; "
              "QLabel HighlightedTextColorlabel; ZelFrame MidColorEdit; ZelFrame TextColorEdit; "
              "ZelFrame BaseColorEdit; ZelFrame ShadowColorEdit; ZelFrame HighlightColorEdit; "
              "ZelFrame ShadowColorEdit; QPushButton ok; QPushButton cancel");
    for (const Row& row : rows)
        EXPECT_EQ(static_cast<QLabel*>(childNamed(dialog.get(), row.caption))->text(), row.text);
    for (const ZelFrame* swatch : swatches)
        EXPECT_EQ(swatch->frameStyle(), 50);
}

TEST_F(ColorGroupDlg, IsLaidOutByItsFont)
{
    for (int i = 0; i < 3; ++i) {
        const QFont font = dialogFont(i);
        const ApplicationFont applied(font);
        make();
        const QFontMetrics metrics(font);
        const int line = metrics.height() + 8;
        const int left = std::max(100, metrics.width("Foreground"));
        const int right = std::max(100, metrics.width("Text"));
        const int leftSwatch = 10 + left + 8;
        const int rightCaption = leftSwatch + line + 24;
        const int rightSwatch = rightCaption + right + 8;
        for (int row = 0; row < rowCount; ++row) {
            const int y = 10 + row % 5 * (line + 8);
            const bool isLeft = row < 5;
            EXPECT_EQ(place(dialog.get(), rows[row].caption),
                      QRect(isLeft ? 10 : rightCaption, y, isLeft ? left : right, line))
                << row;
            EXPECT_EQ(swatches[static_cast<size_t>(row)]->geometry(),
                      QRect(isLeft ? leftSwatch : rightSwatch, y, line, line))
                << row;
        }
        const int width = rightSwatch + line + 8;
        const int top = 10 + 4 * (line + 8) + line + 16;
        const int height = 2 * metrics.height();
        EXPECT_EQ(place(dialog.get(), "ok"), QRect(10, top, width / 3, height));
        EXPECT_EQ(place(dialog.get(), "cancel"), QRect(width - width / 3 - 10, top, width / 3, height));
        EXPECT_EQ(dialog->minimumSize(), QSize(width, top + height + 8));
        EXPECT_EQ(dialog->maximumSize(), QSize(width, top + height + 8));
    }
}

TEST_F(ColorGroupDlg, AtALineHeightOf13ItIs300By197)
{
    const ApplicationFont applied(dialogFont(0));
    make();
    EXPECT_EQ(dialog->size(), QSize(300, 197));
    EXPECT_EQ(place(dialog.get(), "TextColorlabel"), QRect(163, 10, 100, 21));
    EXPECT_EQ(swatches[HighlightedText]->geometry(), QRect(271, 126, 21, 21));
    EXPECT_EQ(place(dialog.get(), "ok"), QRect(10, 163, 100, 26));
    EXPECT_EQ(place(dialog.get(), "cancel"), QRect(190, 163, 100, 26));
}

TEST_F(ColorGroupDlg, CaptionsWiderThanForegroundNeedAreClippedNotWidened)
{
    QFont font("DejaVu Sans");
    font.setPixelSize(30);
    const ApplicationFont applied(font);
    make();
    const QFontMetrics metrics(font);
    ASSERT_GT(metrics.width("Foreground"), 100);
    EXPECT_EQ(place(dialog.get(), "LightColorlabel").width(), metrics.width("Foreground"));
    EXPECT_EQ(place(dialog.get(), "HighlightedTextColorlabel").width(), std::max(100, metrics.width("Text")));
    EXPECT_LT(place(dialog.get(), "HighlightedTextColorlabel").width(), metrics.width("HighlightedText"));
}

TEST_F(ColorGroupDlg, StartsWithItsOwnPalette)
{
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(colorful(), before.disabled(), before.inactive()));
    make();
    for (int row = 0; row < rowCount; ++row)
        EXPECT_EQ(color(row), dialog->palette().active().color(rows[row].initial)) << rows[row].text;
    EXPECT_EQ(color(Base), roleColor(QColorGroup::Midlight));
    EXPECT_EQ(color(Dark), roleColor(QColorGroup::Dark));
    QApplication::setPalette(before);
}

TEST_F(ColorGroupDlg, ShowsAColourGroup)
{
    dialog->setColorGroup(colorful());
    for (int row = 0; row < rowCount; ++row)
        EXPECT_EQ(color(row), roleColor(rows[row].loaded)) << rows[row].text;
    show();
    for (int row = 0; row < rowCount; ++row) {
        const Pixels pixels = Pixels::of(swatches[static_cast<size_t>(row)]);
        const int inside = pixels.width() - 2;
        EXPECT_EQ(pixels.part(1, 1, inside, inside).count(roleColor(rows[row].loaded).rgb() & 0xffffff),
                  inside * inside)
            << rows[row].text;
    }
}

TEST_F(ColorGroupDlg, ForegroundIsLoadedFromTheText)
{
    QColorGroup group = colorful();
    group.setColor(QColorGroup::Foreground, Qt::black);
    group.setColor(QColorGroup::Text, Qt::white);
    dialog->setColorGroup(group);
    EXPECT_EQ(color(Foreground), Qt::white);
    EXPECT_EQ(color(Text), Qt::white);
}

TEST_F(ColorGroupDlg, MakesAColourGroup)
{
    dialog->setColorGroup(colorful());
    swatches[Foreground]->setPaletteBackgroundColor(QColor(1, 2, 3)); // not the text's
    const QColorGroup& made = dialog->getColorGroup();
    const struct {
        QColorGroup::ColorRole role;
        int row;
    } sources[] = {
        {QColorGroup::Foreground, Foreground},
        {QColorGroup::Button, Background},
        {QColorGroup::Light, Light},
        {QColorGroup::Dark, Dark},
        {QColorGroup::Mid, Mid},
        {QColorGroup::Text, Text},
        {QColorGroup::BrightText, Text},
        {QColorGroup::Base, Base},
        {QColorGroup::Background, Background},
        {QColorGroup::Shadow, Shadow},
        {QColorGroup::Highlight, Highlight},
        {QColorGroup::HighlightedText, HighlightedText},
    };
    for (const auto& each : sources) {
        EXPECT_EQ(made.color(each.role), color(each.row)) << each.role;
        EXPECT_EQ(made.brush(each.role).style(), Qt::SolidPattern) << each.role;
    }
    const QBrush button(color(Background)), text(color(Text));
    const QColorGroup derived(QBrush(color(Foreground)), button, QBrush(color(Light)), QBrush(color(Dark)),
                              QBrush(color(Mid)), text, text, QBrush(color(Base)), button);
    for (const QColorGroup::ColorRole role :
         {QColorGroup::Midlight, QColorGroup::ButtonText, QColorGroup::Link, QColorGroup::LinkVisited})
        EXPECT_EQ(made.color(role), derived.color(role)) << role;
}

TEST_F(ColorGroupDlg, TheColourGroupIsMadeAnewAtEachCall)
{
    const QColorGroup& made = dialog->getColorGroup();
    dialog->setColorGroup(colorful());
    EXPECT_NE(made.light(), color(Light)) << "not before it is asked";
    EXPECT_EQ(&dialog->getColorGroup(), &made);
    EXPECT_EQ(made.light(), color(Light));
    dialog->setColorGroup(made);
    EXPECT_EQ(color(Base), roleColor(QColorGroup::Base));
}

TEST_F(ColorGroupDlg, EachSwatchTakesTheColourChosenForIt)
{
    dialog->setColorGroup(colorful());
    show();
    for (int row = 0; row < rowCount; ++row) {
        std::vector<QColor> expected = colors();
        const QColor chosen(200 - row, 20 + row, 3 * row);
        expected[static_cast<size_t>(row)] = chosen;
        if (row == Foreground || row == Text)
            expected[Foreground] = expected[Text] = chosen;
        choose(row, chosen);
        EXPECT_EQ(colors(), expected) << rows[row].text;
    }
}

TEST_F(ColorGroupDlg, RedForegroundIsRedTextToo)
{
    dialog->setColorGroup(colorful());
    show();
    choose(Foreground, Qt::red);
    EXPECT_EQ(color(Text), Qt::red);
    const QColorGroup made = dialog->getColorGroup();
    EXPECT_EQ(made.foreground(), Qt::red);
    EXPECT_EQ(made.text(), Qt::red);
    EXPECT_EQ(made.brightText(), Qt::red);
}

TEST_F(ColorGroupDlg, TheStandardDialogBelongsToItAndStartsWithTheSwatch)
{
    dialog->setColorGroup(colorful());
    show();
    const std::vector<QColor> before = colors();
    Hands hands([&](QWidget* window) {
        xinput::releaseButton();
        EXPECT_EQ(window->parentWidget(), dialog.get());
        EXPECT_STREQ(window->name(), "Internal color dialog");
        const QColor start = color(Highlight);
        EXPECT_EQ(static_cast<QLineEdit*>(childNamed(window, "qt_red_edit"))->text(),
                  QString::number(start.red()));
        EXPECT_EQ(static_cast<QLineEdit*>(childNamed(window, "qt_blue_edit"))->text(),
                  QString::number(start.blue()));
        QObject* const hidden = dialog->child("dlg", "ZelColorDlg");
        ASSERT_NE(hidden, nullptr);
        EXPECT_FALSE(static_cast<QWidget*>(hidden)->isVisible());
        typeColor(window, Qt::red);
        clickButton(window, "Cancel");
    });
    press(Highlight);
    EXPECT_EQ(colors(), before);
    EXPECT_EQ(dialog->child("dlg"), static_cast<QObject*>(nullptr)) << "gone afterwards";
}

TEST_F(ColorGroupDlg, AClosedStandardDialogChangesNothing)
{
    dialog->setColorGroup(colorful());
    show();
    const std::vector<QColor> before = colors();
    Hands hands([](QWidget* window) {
        xinput::releaseButton();
        typeColor(window, Qt::red);
        xinput::closeWindow(window);
    });
    press(Mid);
    EXPECT_EQ(colors(), before);
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(ColorGroupDlg, OtherButtonsOpenNothing)
{
    show();
    bool opened = false;
    for (int row = 0; row < rowCount; ++row)
        for (const int button : {2, 3}) {
            ZelFrame* const swatch = swatches[static_cast<size_t>(row)];
            xinput::moveTo(swatch, 5, 5);
            xinput::pressButton(button);
            settle();
            opened = opened || QApplication::activeModalWidget();
            xinput::releaseButton(button);
            settle();
        }
    EXPECT_FALSE(opened);
}

TEST_F(ColorGroupDlg, CaptionsAreNotClickable)
{
    show();
    QWidget* const caption = childNamed(dialog.get(), "MidColorlabel");
    xinput::click(caption, 5, 5);
    settle();
    EXPECT_EQ(QApplication::activeModalWidget(), static_cast<QWidget*>(nullptr));
}

TEST_F(ColorGroupDlg, OkAcceptsCancelAndAWindowManagerReject)
{
    dialog->setColorGroup(colorful());
    const std::vector<QColor> before = colors();
    Hands accepting([](QWidget* window) { clickButton(window, "OK"); });
    EXPECT_EQ(dialog->exec(), QDialog::Accepted);
    Hands rejecting([](QWidget* window) { clickButton(window, "Cancel"); });
    EXPECT_EQ(dialog->exec(), QDialog::Rejected);
    Hands closing([](QWidget* window) { xinput::closeWindow(window); });
    EXPECT_EQ(dialog->exec(), QDialog::Rejected);
    Hands typing([](QWidget*) { xinput::typeKey(XK_Return); });
    EXPECT_EQ(dialog->exec(), QDialog::Accepted) << "OK is the default button";
    EXPECT_EQ(colors(), before);
}

TEST_F(ColorGroupDlg, ColoursMayBeChosenWhileItRuns)
{
    dialog->setColorGroup(colorful());
    Hands hands([this](QWidget*) {
        choose(Base, QColor(9, 8, 7));
        clickButton(dialog.get(), "OK");
    });
    EXPECT_EQ(dialog->exec(), QDialog::Accepted);
    EXPECT_EQ(dialog->getColorGroup().base(), QColor(9, 8, 7));
}

TEST_F(ColorGroupDlg, MetaObjectHasTheSlotsInOrder)
{
    const QMetaObject* const meta = ZelColorGroupDlg::staticMetaObject();
    EXPECT_STREQ(meta->className(), "ZelColorGroupDlg");
    EXPECT_STREQ(meta->superClassName(), "QDialog");
    EXPECT_EQ(joined(meta->slotNames()),
              "foregroundColorClick(QMouseEvent*) backgroundColorClick(QMouseEvent*) "
              "lightColorClick(QMouseEvent*) darkColorClick(QMouseEvent*) midColorClick(QMouseEvent*) "
              "textColorClick(QMouseEvent*) baseColorClick(QMouseEvent*) shadowColorClick(QMouseEvent*) "
              "highlightColorClick(QMouseEvent*) highlightedTextColorClick(QMouseEvent*)");
    EXPECT_EQ(meta->numSignals(), 0);
    EXPECT_EQ(sizeof(ZelColorGroupDlg), sizeof(QDialog) + 10 * sizeof(void*) + sizeof(QColorGroup));
}

TEST_F(ColorGroupDlg, MayBeDeletedWhileItIsOpen)
{
    show();
    dialog.reset();
    settle();
    ZelColorGroupDlg* const other = new ZelColorGroupDlg;
    Hands deleting([](QWidget* window) { window->deleteLater(); });
    EXPECT_EQ(other->exec(), QDialog::Rejected);
    EXPECT_EQ(QApplication::activeModalWidget(), static_cast<QWidget*>(nullptr));
}

TEST_F(ColorGroupDlg, MayBeDeletedWhileAColourIsChosen)
{
    for (const int row : {Foreground, Base}) {
        make();
        show();
        Hands deleting([this](QWidget*) {
            dialog.reset();
            xinput::releaseButton();
        });
        press(row);
        EXPECT_EQ(QApplication::activeModalWidget(), static_cast<QWidget*>(nullptr));
    }
}

TEST_F(ColorGroupDlg, TwoDoNotDisturbEachOther)
{
    show();
    ZelColorGroupDlg other;
    other.move(30, 500);
    other.setColorGroup(colorful());
    showAndWait(&other);
    choose(Light, QColor(1, 2, 3));
    EXPECT_EQ(color(Light), QColor(1, 2, 3));
    EXPECT_EQ(other.getColorGroup().light(), roleColor(QColorGroup::Light));
}
