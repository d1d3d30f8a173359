// ZelColorDlg: fields, scroll bars and panel keep in step, and the standard dialog in its place.
#include <colordlg.h>

#include "dialogs.h"
#include "perishable.h"
#include "pixels.h"
#include "sentevents.h"
#include "signalrecorder.h"

#include <qguardedptr.h>
#include <qlabel.h>
#include <qpushbutton.h>
#include <qscrollbar.h>
#include <qtranslator.h>

#include <X11/keysym.h>

#include <memory>

namespace
{

class ColorDlg : public testing::Test
{
protected:
    void show(const QColor& color)
    {
        dialog.reset(new ZelColorDlg(color, nullptr, "dialog"));
        dialog->move(300, 200);
        showAndActivate(dialog.get());
    }

    QLineEdit* edit(char channel) const { return child<QLineEdit>(channel, "Edit"); }
    QScrollBar* scroll(char channel) const { return child<QScrollBar>(channel, "Scroll"); }
    QWidget* panel() const { return childNamed(dialog.get(), "Panel"); }

    // "red green blue": what the fields show, where the scroll bars stand, what the dialog gives.
    std::string edits() const
    {
        return std::string(edit('R')->text().latin1()) + " " + edit('G')->text().latin1() + " " +
               edit('B')->text().latin1();
    }
    std::string scrolls() const
    {
        return std::to_string(scroll('R')->value()) + " " + std::to_string(scroll('G')->value()) + " " +
               std::to_string(scroll('B')->value());
    }
    std::string color() const { return text(dialog->getColor()); }
    static std::string text(const QColor& color)
    {
        return std::to_string(color.red()) + " " + std::to_string(color.green()) + " " +
               std::to_string(color.blue());
    }
    void expectAll(const std::string& channels) const
    {
        EXPECT_EQ(edits(), channels);
        EXPECT_EQ(scrolls(), channels);
        EXPECT_EQ(color(), channels);
    }

    void typeInto(char channel, const std::string& keys)
    {
        edit(channel)->setFocus();
        edit(channel)->setText("");
        xinput::typeText(keys);
        settle();
    }

    std::unique_ptr<ZelColorDlg> dialog;

private:
    template <class Widget>
    Widget* child(char channel, const char* kind) const
    {
        return static_cast<Widget*>(childNamed(dialog.get(), (channel + std::string(kind)).c_str()));
    }
};

} // namespace

TEST_F(ColorDlg, StartsWithABlueOrWithTheColourThatItIsGiven)
{
    dialog.reset(new ZelColorDlg);
    expectAll("0 0 239");
    dialog.reset(new ZelColorDlg(QColor(10, 200, 255)));
    expectAll("10 200 255");
    dialog.reset(new ZelColorDlg(Qt::black));
    expectAll("0 0 0");
}

TEST_F(ColorDlg, IsAModalDialogOfAFixedSize)
{
    QWidget parent;
    dialog.reset(new ZelColorDlg(Qt::red, &parent, "some name"));
    EXPECT_STREQ(dialog->name(), "some name");
    EXPECT_EQ(dialog->parentWidget(), &parent);
    EXPECT_TRUE(dialog->isModal());
    EXPECT_EQ(dialog->caption(), "Choose color");
    EXPECT_EQ(dialog->minimumSize(), QSize(300, 200));
    EXPECT_EQ(dialog->maximumSize(), QSize(300, 200));
    dialog.reset(new ZelColorDlg(&parent, "another"));
    EXPECT_STREQ(dialog->name(), "another");
    EXPECT_TRUE(dialog->isModal());
    dialog.reset();
}

TEST_F(ColorDlg, HasItsChildrenInThisOrder)
{
    dialog.reset(new ZelColorDlg);
    EXPECT_EQ(childrenOf(dialog.get()),
              "QPushButton ok; QPushButton cancel; QLabel RLabel; QLabel GLabel; QLabel BLabel; "
              "ZelLineEditInt REdit; ZelLineEditInt GEdit; ZelLineEditInt BEdit; "
              "QScrollBar RScroll; QScrollBar GScroll; QScrollBar BScroll; QFrame Panel");
    EXPECT_EQ(static_cast<QLabel*>(childNamed(dialog.get(), "GLabel"))->text(), "Green");
    EXPECT_EQ(static_cast<QFrame*>(panel())->frameStyle(), 50);
    EXPECT_EQ(edit('B')->maxLength(), 3);
    const QScrollBar* const bar = scroll('B');
    EXPECT_EQ(bar->orientation(), Qt::Vertical);
    EXPECT_EQ(bar->minValue(), 0);
    EXPECT_EQ(bar->maxValue(), 255);
    EXPECT_EQ(bar->lineStep(), 1);
    EXPECT_EQ(bar->pageStep(), 10);
}

TEST_F(ColorDlg, IsLaidOutByItsFont)
{
    for (int i = 0; i < 3; ++i) {
        const QFont font = dialogFont(i);
        const ApplicationFont applied(font);
        dialog.reset(new ZelColorDlg);
        const QFontMetrics metrics(font);
        const int line = metrics.height();
        const int column = std::max({metrics.width("Red"), metrics.width("Green"), metrics.width("Blue")});
        const int top = 200 - line * 5 / 2;
        EXPECT_EQ(place(dialog.get(), "ok"), QRect(10, top, 100, 2 * line));
        EXPECT_EQ(place(dialog.get(), "cancel"), QRect(190, top, 100, 2 * line));
        const int editTop = 10 + line + 8;
        const int scrollTop = editTop + line + 8 + 8;
        int x = 10;
        for (const std::string channel : {"R", "G", "B"}) {
            EXPECT_EQ(place(dialog.get(), (channel + "Label").c_str()), QRect(x, 10, column, line))
                << channel;
            EXPECT_EQ(place(dialog.get(), (channel + "Edit").c_str()), QRect(x, editTop, column, line + 8))
                << channel;
            EXPECT_EQ(place(dialog.get(), (channel + "Scroll").c_str()),
                      QRect(x + column / 3, scrollTop, column / 2, top - 8 - scrollTop))
                << channel;
            x += column + 8;
        }
        EXPECT_EQ(place(dialog.get(), "Panel"), QRect(x + 8, editTop, 300 - 10 - x - 8, top - 8 - editTop));
    }
}

TEST_F(ColorDlg, AtALineHeightOf13TheButtonsAreHere)
{
    const ApplicationFont applied(dialogFont(0));
    dialog.reset(new ZelColorDlg);
    EXPECT_EQ(place(dialog.get(), "ok"), QRect(10, 168, 100, 26));
    EXPECT_EQ(place(dialog.get(), "cancel"), QRect(190, 168, 100, 26));
}

TEST_F(ColorDlg, ShowsTheColourOnASunkenPanel)
{
    show(QColor(200, 100, 30));
    const Pixels pixels = Pixels::of(panel());
    const int width = pixels.width(), height = pixels.height();
    EXPECT_EQ(pixels.part(1, 1, width - 2, height - 2).count(0xc8641e), (width - 2) * (height - 2));
    EXPECT_NE(pixels.at(0, 0), pixels.at(width - 1, height - 1)) << "dark above, light below";
}

TEST_F(ColorDlg, TypedNumbersMoveTheScrollBarAndThePanel)
{
    show(QColor(10, 20, 30));
    typeInto('R', "255");
    expectAll("255 20 30");
    typeInto('G', "7");
    expectAll("255 7 30");
    xinput::typeKey(XK_BackSpace);
    settle();
    expectAll("255 0 30");
    typeInto('B', "128");
    xinput::typeKey(XK_Home);
    xinput::typeKey(XK_Delete);
    settle();
    expectAll("255 0 28");
    EXPECT_EQ(Pixels::of(panel()).at(20, 20), 0xff001cU) << "on the screen too";
}

TEST_F(ColorDlg, ATypedNumberIsWrittenWithoutLeadingZeros)
{
    show(QColor(200, 210, 220));
    for (const char channel : {'R', 'G', 'B'}) {
        edit(channel)->setFocus();
        edit(channel)->setText("02");
        xinput::typeKey(XK_End);
        xinput::typeText("5");
        settle();
        EXPECT_EQ(edit(channel)->text(), "25") << channel;
    }
    expectAll("25 25 25");
}

TEST_F(ColorDlg, NumbersAbove255AndLettersAreRefused)
{
    show(QColor(10, 20, 30));
    typeInto('G', "256");
    expectAll("10 25 30");
    typeInto('G', "1x-2");
    expectAll("10 12 30");
}

TEST_F(ColorDlg, AClearedFieldIsZero)
{
    show(QColor(10, 20, 30));
    edit('B')->setFocus();
    xinput::typeKey(XK_End);
    xinput::typeKey(XK_BackSpace);
    xinput::typeKey(XK_BackSpace);
    settle();
    expectAll("10 20 0");
}

TEST_F(ColorDlg, DraggedScrollBarsRewriteTheirFields)
{
    for (const char channel : {'R', 'G', 'B'}) {
        show(QColor(10, 20, 30));
        const QRect slider = scroll(channel)->sliderRect();
        xinput::moveTo(scroll(channel), slider.center().x(), slider.center().y());
        xinput::pressButton();
        xinput::moveTo(scroll(channel), slider.center().x(), slider.center().y() + 20);
        settle();
        const int value = scroll(channel)->value();
        EXPECT_GT(value, 30) << "follows while it is dragged";
        const std::string shown = std::to_string(value);
        expectAll((channel == 'R' ? shown : "10") + " " + (channel == 'G' ? shown : "20") + " " +
                  (channel == 'B' ? shown : "30"));
        xinput::moveTo(scroll(channel), slider.center().x(), scroll(channel)->height() + 40);
        settle();
        EXPECT_EQ(scroll(channel)->value(), 255);
        xinput::releaseButton();
        settle();
        expectAll(std::string(channel == 'R' ? "255" : "10") + " " + (channel == 'G' ? "255" : "20") + " " +
                  (channel == 'B' ? "255" : "30"));
    }
}

TEST_F(ColorDlg, ScrollBarsStepByOneAndByTen)
{
    show(QColor(100, 20, 30));
    QScrollBar* const bar = scroll('R');
    const int middle = bar->width() / 2;
    xinput::click(bar, middle, 4);
    settle();
    expectAll("99 20 30");
    xinput::click(bar, middle, bar->height() - 4);
    settle();
    expectAll("100 20 30");
    xinput::click(bar, middle, bar->sliderRect().bottom() + 4);
    settle();
    expectAll("110 20 30");
    xinput::click(bar, middle, bar->sliderRect().top() - 4);
    settle();
    expectAll("100 20 30");
}

TEST_F(ColorDlg, ASignalIsEnoughForEachChange)
{
    show(QColor(10, 20, 30));
    SignalRecorder recorder;
    recorder.watch(scroll('R'), SIGNAL(valueChanged(int)), "scroll");
    recorder.watch(edit('R'), SIGNAL(valueChanged(int)), "edit");
    recorder.watch(edit('R'), SIGNAL(textChanged(const QString&)), "text");
    typeInto('R', "5");
    EXPECT_EQ(recorder.take(), "text() text(5) scroll(5) edit(5)");
    scroll('R')->setValue(6);
    EXPECT_EQ(recorder.take(), "text(6) scroll(6)");
    scroll('R')->setValue(6);
    EXPECT_EQ(recorder.take(), "");
}

TEST_F(ColorDlg, ItsSlotsMayBeCalled)
{
    dialog.reset(new ZelColorDlg(QColor(10, 20, 30)));
    dialog->gScrollChanged(128);
    EXPECT_EQ(color(), "10 128 30");
    EXPECT_EQ(edits(), "10 128 30");
    EXPECT_EQ(scrolls(), "10 20 30") << "only what a scroll bar would move";
    dialog->rScrollChanged(1);
    dialog->bScrollChanged(2);
    EXPECT_EQ(color(), "1 128 2");
    dialog->rEditChanged(40);
    dialog->gEditChanged(50);
    dialog->bEditChanged(60);
    expectAll("40 50 60");
    dialog->bEditChanged(1000);
    expectAll("40 50 255");
}

TEST_F(ColorDlg, MetaObjectHasTheSlotsInOrder)
{
    const QMetaObject* const meta = ZelColorDlg::staticMetaObject();
    EXPECT_STREQ(meta->className(), "ZelColorDlg");
    EXPECT_STREQ(meta->superClassName(), "QDialog");
    EXPECT_EQ(joined(meta->slotNames()), "rEditChanged(int) gEditChanged(int) bEditChanged(int) "
                                         "rScrollChanged(int) gScrollChanged(int) bScrollChanged(int)");
    EXPECT_EQ(meta->numSignals(), 0);
    EXPECT_EQ(sizeof(ZelColorDlg), sizeof(QDialog) + 7 * sizeof(void*));
}

TEST_F(ColorDlg, OkAcceptsAndCancelRejects)
{
    ZelColorDlg chooser(QColor(1, 2, 3));
    Hands accepting([&](QWidget* window) {
        EXPECT_EQ(window, &chooser);
        clickButton(window, "OK");
    });
    EXPECT_EQ(chooser.exec(), QDialog::Accepted);
    EXPECT_EQ(text(chooser.getColor()), "1 2 3");
    Hands rejecting([](QWidget* window) { clickButton(window, "Cancel"); });
    EXPECT_EQ(chooser.exec(), QDialog::Rejected);
}

TEST_F(ColorDlg, AWindowManagerMayCloseIt)
{
    ZelColorDlg chooser(QColor(1, 2, 3));
    Hands closing([](QWidget* window) { xinput::closeWindow(window); });
    EXPECT_EQ(chooser.exec(), QDialog::Rejected);
    EXPECT_EQ(text(chooser.getColor()), "1 2 3");
}

TEST_F(ColorDlg, ReturnAndEscapeEndItExceptInAField)
{
    ZelColorDlg chooser;
    Hands accepting([&](QWidget* window) {
        childNamed(window, "REdit")->setFocus();
        xinput::typeKey(XK_Return);
        xinput::typeKey(XK_Escape);
        settle();
        EXPECT_TRUE(window->isVisible()) << "the fields keep these keys";
        childNamed(window, "ok")->setFocus();
        xinput::typeKey(XK_Return);
    });
    EXPECT_EQ(chooser.exec(), QDialog::Accepted);
    Hands escaping([](QWidget* window) {
        childNamed(window, "ok")->setFocus();
        xinput::typeKey(XK_Escape);
    });
    EXPECT_EQ(chooser.exec(), QDialog::Rejected);
}

TEST_F(ColorDlg, TabGoesFromTheButtonsToTheFields)
{
    show(Qt::black);
    std::string names = dialog->focusWidget()->name();
    for (int i = 0; i < 5; ++i) {
        xinput::typeKey(XK_Tab);
        settle();
        names += std::string(" ") + dialog->focusWidget()->name();
    }
    EXPECT_EQ(names, "ok cancel REdit GEdit BEdit ok");
}

TEST_F(ColorDlg, ModalTakesTheColourChosenInTheStandardDialog)
{
    QWidget parent;
    ZelColorDlg chooser(QColor(10, 20, 30), &parent, "chooser");
    Hands choosing([&](QWidget* window) {
        EXPECT_EQ(window->caption(), "Select color");
        EXPECT_STREQ(window->name(), "Internal color dialog");
        EXPECT_EQ(window->parentWidget(), &parent);
        EXPECT_FALSE(chooser.isVisible());
        EXPECT_EQ(static_cast<QLineEdit*>(childNamed(window, "qt_grn_edit"))->text(), "20");
        typeColor(window, QColor(1, 2, 3));
        clickButton(window, "OK");
    });
    EXPECT_TRUE(chooser.modal());
    EXPECT_EQ(text(chooser.getColor()), "1 2 3");
    EXPECT_FALSE(chooser.isVisible());
    EXPECT_EQ(static_cast<QLineEdit*>(childNamed(&chooser, "REdit"))->text(), "10") << "keeps its value";
    QScrollBar* const green = static_cast<QScrollBar*>(childNamed(&chooser, "GScroll"));
    EXPECT_EQ(green->value(), 20);
    green->setValue(21);
    EXPECT_EQ(text(chooser.getColor()), "1 21 3") << "one channel of the new colour";
}

TEST_F(ColorDlg, ModalChangesNothingWhenItIsLeft)
{
    ZelColorDlg chooser(QColor(10, 20, 30));
    Hands cancelling([](QWidget* window) {
        typeColor(window, QColor(1, 2, 3));
        clickButton(window, "Cancel");
    });
    EXPECT_FALSE(chooser.modal());
    Hands escaping([](QWidget*) { xinput::typeKey(XK_Escape); });
    EXPECT_FALSE(chooser.modal());
    Hands closing([](QWidget* window) { xinput::closeWindow(window); });
    EXPECT_FALSE(chooser.modal());
    EXPECT_EQ(text(chooser.getColor()), "10 20 30");
}

TEST_F(ColorDlg, MayBeDeletedWhileItIsOpen)
{
    show(QColor(10, 20, 30));
    edit('R')->setFocus();
    dialog.reset();
    settle();

    ZelColorDlg* const chooser = new ZelColorDlg;
    Hands deleting([&](QWidget* window) { window->deleteLater(); });
    EXPECT_EQ(chooser->exec(), QDialog::Rejected);
    settle();
    EXPECT_EQ(QApplication::activeModalWidget(), static_cast<QWidget*>(nullptr));
}

TEST_F(ColorDlg, MayBeDeletedByWhoHearsOfAChange)
{
    const struct {
        const char* part;
        const char* signal;
    } changes[] = {{"Edit", SIGNAL(textChanged(const QString&))},
                   {"Edit", SIGNAL(valueChanged(int))},
                   {"Scroll", SIGNAL(valueChanged(int))}};
    for (const auto& change : changes)
        for (const std::string channel : {"R", "G", "B"})
            for (const bool typed : {true, false}) {
                if (!typed && change.signal == changes[1].signal)
                    continue;
                QGuardedPtr<QDialog> chooser = new Perishable<ZelColorDlg>(QColor(10, 20, 30));
                QWidget* const edit = childNamed(chooser, (channel + "Edit").c_str());
                QWidget* const bar = childNamed(chooser, (channel + "Scroll").c_str());
                SignalRecorder recorder;
                recorder.watch(childNamed(chooser, (channel + change.part).c_str()), change.signal);
                recorder.whenever = [&] { delete static_cast<QDialog*>(chooser); };
                if (typed)
                    sendKey(edit, Qt::Key_Home), sendKey(edit, Qt::Key_1, '1', 0, "1");
                else
                    static_cast<QScrollBar*>(bar)->setValue(99);
                EXPECT_TRUE(chooser.isNull()) << channel << change.part << " " << typed;
                Graveyard::clear();
            }
}

TEST_F(ColorDlg, MayBeDeletedWhileTheStandardDialogIsOpen)
{
    ZelColorDlg* chooser = new ZelColorDlg(QColor(10, 20, 30));
    Hands deleting([&](QWidget* window) {
        delete chooser;
        typeColor(window, QColor(1, 2, 3));
        clickButton(window, "OK");
    });
    EXPECT_FALSE(chooser->modal()) << "nobody is left to take the colour";

    QWidget* const parent = new QWidget;
    chooser = new ZelColorDlg(parent, "chooser");
    Hands deletingAll([&](QWidget*) { delete parent; });
    EXPECT_FALSE(chooser->modal());
    EXPECT_EQ(QApplication::activeModalWidget(), static_cast<QWidget*>(nullptr));
}

TEST_F(ColorDlg, TwoDoNotDisturbEachOther)
{
    show(QColor(10, 20, 30));
    ZelColorDlg second(QColor(100, 110, 120));
    second.move(100, 500);
    showAndActivate(&second);
    childNamed(&second, "GEdit")->setFocus();
    xinput::typeKey(XK_End);
    xinput::typeKey(XK_BackSpace);
    settle();
    EXPECT_EQ(text(second.getColor()), "100 11 120");
    expectAll("10 20 30");
    second.hide();
    dialog->setActiveWindow();
    EXPECT_TRUE(waitFor([this] { return dialog->isActiveWindow(); }));
    typeInto('R', "99");
    expectAll("99 20 30");
    EXPECT_EQ(text(second.getColor()), "100 11 120");
}

TEST_F(ColorDlg, ItsTextsAreNotTranslated)
{
    QTranslator translator;
    translator.insert(QTranslatorMessage("ZelColorDlg", "Red", "", "Rot"));
    translator.insert(QTranslatorMessage("ZelColorDlg", "Choose color", "", "Farbe"));
    qApp->installTranslator(&translator);
    dialog.reset(new ZelColorDlg);
    EXPECT_EQ(ZelColorDlg::tr("Red"), "Rot");
    EXPECT_EQ(static_cast<QLabel*>(childNamed(dialog.get(), "RLabel"))->text(), "Red");
    EXPECT_EQ(dialog->caption(), "Choose color");
    qApp->removeTranslator(&translator);
}
