// What the monitor's user chooses: the colours of the graphs and the font of their captions.
#include "examplemachine.h"
#include "faketime.h"
#include "hands.h"
#include "monitorwindow.h"
#include "pixels.h"
#include "printers.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qcombobox.h>
#include <qlabel.h>
#include <qlineedit.h>

#include <X11/keysym.h>

namespace
{

const char* const captions[] = {"Processor (%)", "Memory (%)", "Network (KiB/s)", "Disks (% busy)"};

class MonitorChoices : public testing::Test
{
protected:
    MonitorChoices() : clock(1000000), window(machine.folder()) { showAndActivate(&window); }

    void pass(int seconds)
    {
        for (int i = 0; i < seconds; ++i) {
            machine.pass(1000, 0.5, 0.5, 0, 0);
            clock.advance(1);
            window.sampleAt(now += 1000);
        }
    }
    QWidget* part(const char* panel, const char* name)
    {
        return childNamed(childNamed(&window, panel), name);
    }
    Pixels graph(const char* panel) { return Pixels::of(part(panel, "graph")); }

    // Clicks a colour button, types a red, and answers.
    void chooseRed(const char* panel, const char* button, const char* expectedQuestion, const char* answer)
    {
        Hands hands([&](QWidget* dialog) {
            EXPECT_EQ(dialog->caption(), expectedQuestion);
            QLineEdit* const red = static_cast<QLineEdit*>(childNamed(dialog, "REdit"));
            red->setFocus();
            red->selectAll();
            xinput::typeText("123");
            settle();
            clickButton(dialog, answer);
        });
        xinput::click(part(panel, button), 10, 7);
        settle();
    }
    QFont captionFont(const char* panel) { return part(panel, "caption")->font(); }

    ExampleMachine machine;
    FakeTime clock;
    MonitorWindow window;
    long long now = 1LL << 50;
};

TEST_F(MonitorChoices, EachColourOfAGraphHasItsButton)
{
    const struct {
        const char* button;
        const char* question;
        unsigned before, after;
    } colours[] = {{"curve", "Colour of the curve", 0x50dc50, 0x7bdc50},
                   {"grid", "Colour of the grid", 0x004600, 0x7b4600},
                   {"background", "Colour of the background", 0x000000, 0x7b0000}};
    for (const auto& each : colours) {
        pass(5);
        EXPECT_GT(graph("Processor (%)").count(each.before), 0) << each.button;
        EXPECT_EQ(graph("Processor (%)").count(each.after), 0) << each.button;
        chooseRed("Processor (%)", each.button, each.question, "OK");
        pass(5);
        EXPECT_EQ(graph("Processor (%)").part(2, 2, 100, 40).count(each.before), 0) << each.button;
        EXPECT_GT(graph("Processor (%)").count(each.after), 0) << each.button;
        xinput::park();
        settle();
        EXPECT_EQ(Pixels::of(part("Processor (%)", each.button)).at(10, 7), each.after);
    }
}

TEST_F(MonitorChoices, TheOtherGraphsKeepTheirColours)
{
    pass(5);
    const Pixels before = graph("Memory (%)");
    chooseRed("Processor (%)", "background", "Colour of the background", "OK");
    EXPECT_EQ(graph("Memory (%)"), before);
}

TEST_F(MonitorChoices, ACancelledColourChangesNothing)
{
    pass(5);
    const Pixels before = graph("Processor (%)");
    chooseRed("Processor (%)", "curve", "Colour of the curve", "Cancel");
    EXPECT_EQ(graph("Processor (%)"), before) << "the curve goes on, too";
}

TEST_F(MonitorChoices, AColourIsOfferedAgainTheNextTime)
{
    chooseRed("Memory (%)", "grid", "Colour of the grid", "OK");
    Hands hands([](QWidget* dialog) {
        EXPECT_EQ(static_cast<QLineEdit*>(childNamed(dialog, "REdit"))->text(), "123");
        EXPECT_EQ(static_cast<QLineEdit*>(childNamed(dialog, "GEdit"))->text(), "70");
        clickButton(dialog, "Cancel");
    });
    xinput::click(part("Memory (%)", "grid"), 10, 7);
    settle();
}

TEST_F(MonitorChoices, ChosenColoursStayWhenTheGraphsBecomeBars)
{
    chooseRed("Processor (%)", "curve", "Colour of the curve", "OK");
    window.setBars(true);
    pass(5);
    EXPECT_GT(graph("Processor (%)").count(0x7bdc50), 5 * 10);
}

TEST_F(MonitorChoices, AllCaptionsTakeTheChosenFont)
{
    const QFont before = captionFont("Memory (%)");
    const int height = part("Memory (%)", "caption")->height();
    Hands hands([&](QWidget* dialog) {
        QComboBox* const size = static_cast<QComboBox*>(childNamed(dialog, "SizeEdit"));
        EXPECT_EQ(size->currentText(), QString::number(before.pointSize()));
        EXPECT_EQ(static_cast<QComboBox*>(childNamed(dialog, "FamilyEdit"))->currentText(), before.family());
        size->lineEdit()->setFocus();
        size->lineEdit()->selectAll();
        xinput::typeText("18");
        xinput::click(childNamed(dialog, "ItalicEdit"), 8, 15);
        xinput::click(childNamed(dialog, "StrikeOutEdit"), 8, 15);
        settle();
        clickButton(dialog, "OK");
    });
    xinput::typeKey(XK_f, XK_Alt_L);
    settle();
    QFont expected(before.family(), 18, before.weight(), true);
    expected.setStrikeOut(true);
    for (const char* caption : captions)
        EXPECT_EQ(captionFont(caption), expected) << caption;
    EXPECT_GT(part("Memory (%)", "caption")->height(), height);
    EXPECT_TRUE(window.rect().contains(childNamed(&window, "Disks (% busy)")->geometry()));
}

TEST_F(MonitorChoices, ACancelledFontChangesNothing)
{
    const QFont before = captionFont("Memory (%)");
    Hands hands([&](QWidget* dialog) {
        xinput::click(childNamed(dialog, "ItalicEdit"), 8, 15);
        settle();
        xinput::typeKey(XK_Escape);
    });
    QWidget* const button = childNamed(&window, "font");
    xinput::click(button, 20, button->height() / 2);
    settle();
    EXPECT_EQ(captionFont("Memory (%)"), before);
}

} // namespace
