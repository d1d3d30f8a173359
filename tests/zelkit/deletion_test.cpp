// Widgets that are deleted in the middle of each of their own signals: nothing of them is used afterwards.
#include <zelactivelabel.h>
#include <zelactivelabel2.h>
#include <zelcolorbutton.h>
#include <zelcombobox.h>
#include <zeledge.h>
#include <zelframe.h>
#include <zelgraph.h>
#include <zellabel.h>
#include <zellineedit.h>
#include <zellineeditint.h>
#include <zelpushbutton.h>
#include <zelpushbutton2.h>

#include "perishable.h"
#include "sentevents.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <X11/keysym.h>

#include <gtest/gtest.h>
#include <qguardedptr.h>
#include <qlistbox.h>

#include <functional>
#include <ostream>

namespace
{

typedef QWidget* (*Creation)(QWidget* parent);

template <class Widget>
QWidget* create(QWidget* parent)
{
    return new Perishable<Widget>(parent, "widget");
}

QWidget* createLabel(QWidget* parent)
{
    return new Perishable<ZelLabel>(QString("text"), parent, "widget", true, 0);
}

QWidget* createFrame(QWidget* parent)
{
    return new Perishable<ZelFrame>(parent, "widget", 0);
}

QWidget* createGraph(QWidget* parent)
{
    return new Perishable<ZelGraph>(parent, "widget", true);
}

QWidget* createPushButton(QWidget* parent)
{
    return new Perishable<ZelPushButton>(QColor(1, 2, 3), parent, "widget");
}

template <bool editable>
QWidget* createComboBox(QWidget* parent)
{
    ZelComboBox* const box = new Perishable<ZelComboBox>(editable, parent, "widget");
    box->insertItem("one");
    box->insertItem("two");
    return box;
}

QWidget* createNumber(QWidget* parent)
{
    return new Perishable<ZelLineEditInt>(parent, "widget", 0, 255);
}

// What the user does, sent to the widget step by step until it is gone.
void handWork(const QGuardedPtr<QWidget>& widget, const std::vector<std::function<void()>>& steps)
{
    for (const auto& step : steps)
        if (widget)
            step();
}

struct Death {
    const char* widget;
    Creation creation;
    const char* signal;
};

void PrintTo(const Death& death, std::ostream* out)
{
    *out << death.widget << " " << death.signal + 1;
}

const Death deaths[] = {
    {"ZelActiveLabel", create<ZelActiveLabel>, SIGNAL(clicked())},
    {"ZelActiveLabel2", create<ZelActiveLabel2>, SIGNAL(pressed())},
    {"ZelActiveLabel2", create<ZelActiveLabel2>, SIGNAL(clicked())},
    {"ZelColorButton", create<ZelColorButton>, SIGNAL(clicked())},
    {"ZelLabel", createLabel, SIGNAL(mousePress(QMouseEvent*))},
    {"ZelLabel", createLabel, SIGNAL(mouseRelease(QMouseEvent*))},
    {"ZelLabel", createLabel, SIGNAL(mouseDoubleClick(QMouseEvent*))},
    {"ZelLabel", createLabel, SIGNAL(mouseMove(QMouseEvent*))},
    {"ZelLabel", createLabel, SIGNAL(clicked(ZelLabel*))},
    {"ZelPushButton", createPushButton, SIGNAL(pressed())},
    {"ZelPushButton", createPushButton, SIGNAL(released())},
    {"ZelPushButton", createPushButton, SIGNAL(clicked())},
    {"ZelPushButton2", create<ZelPushButton2>, SIGNAL(pressed())},
    {"ZelPushButton2", create<ZelPushButton2>, SIGNAL(clicked())},
    {"ZelPushButton2", create<ZelPushButton2>, SIGNAL(escapePressed())},
    {"ZelFrame", createFrame, SIGNAL(mousePress(QMouseEvent*))},
    {"ZelFrame", createFrame, SIGNAL(mouseRelease(QMouseEvent*))},
    {"ZelFrame", createFrame, SIGNAL(mouseDoubleClick(QMouseEvent*))},
    {"ZelFrame", createFrame, SIGNAL(mouseMove(QMouseEvent*))},
    {"ZelFrame", createFrame, SIGNAL(mousePressEx(QMouseEvent*, ZelFrame*))},
    {"ZelFrame", createFrame, SIGNAL(mouseReleaseEx(QMouseEvent*, ZelFrame*))},
    {"ZelFrame", createFrame, SIGNAL(mouseDoubleClickEx(QMouseEvent*, ZelFrame*))},
    {"ZelFrame", createFrame, SIGNAL(mouseMoveEx(QMouseEvent*, ZelFrame*))},
    {"ZelEdge", create<ZelEdge>, SIGNAL(mousePress(QMouseEvent*))},
    {"ZelEdge", create<ZelEdge>, SIGNAL(mouseRelease(QMouseEvent*))},
    {"ZelEdge", create<ZelEdge>, SIGNAL(mouseMove(QMouseEvent*))},
    {"ZelGraph", createGraph, SIGNAL(mousePress(QMouseEvent*))},
    {"ZelGraph", createGraph, SIGNAL(mouseRelease(QMouseEvent*))},
    {"ZelGraph", createGraph, SIGNAL(mouseDoubleClick(QMouseEvent*))},
    {"ZelGraph", createGraph, SIGNAL(mouseMove(QMouseEvent*))},
    {"ZelGraph", createGraph, SIGNAL(keyPress(QKeyEvent*))},
    {"ZelLineEdit", create<ZelLineEdit>, SIGNAL(leave(QEvent*))},
    {"ZelLineEdit", create<ZelLineEdit>, SIGNAL(focusOut())},
    {"ZelLineEdit", create<ZelLineEdit>, SIGNAL(lostFocus())},
    {"ZelLineEdit", create<ZelLineEdit>, SIGNAL(escapePressed())},
    {"ZelLineEdit", create<ZelLineEdit>, SIGNAL(returnPressed())},
    {"ZelLineEdit", create<ZelLineEdit>, SIGNAL(textChanged(const QString&))},
    {"ZelComboBox", createComboBox<false>, SIGNAL(leave())},
    {"ZelComboBox", createComboBox<false>, SIGNAL(focusOut())},
    {"ZelComboBox", createComboBox<false>, SIGNAL(escapePressed())},
    {"ZelComboBox", createComboBox<false>, SIGNAL(activated(int))},
    {"ZelComboBox", createComboBox<false>, SIGNAL(highlighted(int))},
    {"editable ZelComboBox", createComboBox<true>, SIGNAL(leave())},
    {"editable ZelComboBox", createComboBox<true>, SIGNAL(focusOut())},
    {"editable ZelComboBox", createComboBox<true>, SIGNAL(escapePressed())},
    {"editable ZelComboBox", createComboBox<true>, SIGNAL(activated(int))},
    {"editable ZelComboBox", createComboBox<true>, SIGNAL(highlighted(int))},
    {"ZelLineEditInt", createNumber, SIGNAL(valueChanged(int))},
    {"ZelLineEditInt", createNumber, SIGNAL(textChanged(const QString&))},
    {"ZelLineEditInt", createNumber, SIGNAL(returnPressed())},
    {"ZelLineEditInt", createNumber, SIGNAL(lostFocus())},
};

} // namespace

class DeathInSignal : public testing::TestWithParam<Death>
{
protected:
    DeathInSignal()
        : window(0, "window"), other(&window, "other"), widget(GetParam().creation(&window)), gone(widget)
    {
        window.setGeometry(200, 150, 300, 200);
        other.setGeometry(10, 100, 100, 30);
        widget->setGeometry(10, 10, 120, 60);
        recorder.watch(widget, GetParam().signal);
        recorder.whenever = [this] { delete static_cast<QWidget*>(gone); };
        showAndActivate(&window);
        widget->setFocus();
    }
    ~DeathInSignal() override { Graveyard::clear(); }

    QWidget window;
    QLineEdit other;
    QWidget* widget;
    QGuardedPtr<QWidget> gone;
    SignalRecorder recorder;
};

TEST_P(DeathInSignal, FromTheRealHand)
{
    handWork(gone, {[this] { xinput::doubleClick(widget, 20, 20); },
                    [] { settle(); },
                    [this] { xinput::moveTo(widget, 30, 30); },
                    [] { xinput::pressButton(); },
                    [] { settle(); },
                    [this] { xinput::moveTo(widget, 40, 30); },
                    [] { settle(); },
                    [] { xinput::releaseButton(); },
                    [] { settle(); },
                    [] { xinput::typeKey(XK_Return); },
                    [] { settle(); },
                    [this] { widget->setFocus(); },
                    [] { xinput::typeKey(XK_Return, XK_Control_L); },
                    [] { settle(); },
                    [] { xinput::typeText("7"); },
                    [] { settle(); },
                    [] { xinput::typeKey(XK_Escape); },
                    [] { settle(); },
                    [this] { widget->setFocus(); },
                    [] { xinput::typeKey(XK_Down); },
                    [] { settle(); },
                    [this] { other.setFocus(); },
                    [] { settle(); },
                    [] { xinput::park(); },
                    [] { settle(); }});
    EXPECT_TRUE(gone.isNull()) << "the signal never came";
    EXPECT_EQ(recorder.count(), 1);
    xinput::releaseAll();
    settle();
    // The window goes on as if nothing had happened.
    xinput::click(&other, 10, 10);
    settle();
    xinput::typeText("5");
    EXPECT_TRUE(waitFor([this] { return other.text() == "5"; }));
}

TEST_P(DeathInSignal, FromSentEvents)
{
    handWork(gone,
             {[this] { doubleClick(widget); }, [this] { release(widget); }, [this] { press(widget); },
              [this] { drag(widget, 7, 7); }, [this] { release(widget); },
              [this] { sendKey(widget, Qt::Key_Down); },
              [this] { sendKey(widget, Qt::Key_Return, '\r', Qt::ControlButton, "\r"); },
              [this] { sendKey(widget, Qt::Key_7, '7', 0, "7"); },
              [this] { sendKey(widget, Qt::Key_Escape); }, [this] { leave(widget); },
              [this] { widget->hide(); }, // closes a list
              [this] { widget->show(); }, [this] { widget->setFocus(); }, [this] { other.setFocus(); }});
    EXPECT_TRUE(gone.isNull()) << "the signal never came";
    EXPECT_EQ(recorder.count(), 1);
    settle();
}

// A combo box that goes while its list is open: `choice` is what the user does in the list.
class DeathWithOpenList : public testing::Test
{
protected:
    ~DeathWithOpenList() override { Graveyard::clear(); }

    void dieAt(const char* signal, bool editable, const std::function<void(QListBox*)>& choice)
    {
        QWidget window(0, "window");
        window.setGeometry(200, 150, 300, 200);
        QLineEdit other(&window, "other");
        other.setGeometry(10, 100, 100, 30);
        ZelComboBox* const box = new Perishable<ZelComboBox>(editable, &window, "box");
        box->setGeometry(10, 10, 120, 30);
        for (const char* text : {"one", "two", "three"})
            box->insertItem(text);
        showAndActivate(&window);
        box->setFocus();
        box->popup();
        settle();
        const QGuardedPtr<QWidget> gone(box);
        SignalRecorder recorder;
        recorder.watch(box, signal);
        recorder.whenever = [&gone] { delete static_cast<QWidget*>(gone); };
        choice(box->listBox());
        settle();
        EXPECT_TRUE(gone.isNull()) << signal << " never came";
        xinput::releaseAll();
        settle();
        xinput::click(&other, 10, 10);
        settle();
        xinput::typeText("5");
        EXPECT_TRUE(waitFor([&other] { return other.text() == "5"; })) << signal;
    }
};

TEST_F(DeathWithOpenList, AtItsSignals)
{
    const auto clickSecond = [](QListBox* list) {
        xinput::click(list, 20, list->itemHeight() + list->itemHeight() / 2);
    };
    const auto takeSecond = [](QListBox*) {
        xinput::typeKey(XK_Down);
        xinput::typeKey(XK_Return);
    };
    const char* const signals_[] = {SIGNAL(highlighted(int)), SIGNAL(highlighted(const QString&)),
                                    SIGNAL(activated(int)), SIGNAL(activated(const QString&))};
    for (const char* signal : signals_)
        for (const bool editable : {false, true}) {
            dieAt(signal, editable, clickSecond);
            dieAt(signal, editable, takeSecond);
        }
    dieAt(SIGNAL(textChanged(const QString&)), true, clickSecond);
    dieAt(SIGNAL(textChanged(const QString&)), true, takeSecond);
}

TEST_F(DeathWithOpenList, ByItsOwner)
{
    for (const bool editable : {false, true})
        dieAt(SIGNAL(activated(int)), editable, [](QListBox* list) { delete list->parentWidget(); });
}

// The focus leaves because of what happens to the field or to what it is in.
TEST(DeathOfFocus, WhenTheFieldIsHiddenOrDisabled)
{
    const std::function<void(QWidget*, QWidget*)> ways[] = {
        [](QWidget* group, QWidget*) { group->hide(); },
        [](QWidget* group, QWidget*) { group->setEnabled(false); },
        [](QWidget* group, QWidget*) { group->parentWidget()->hide(); },
        [](QWidget*, QWidget* field) { field->hide(); },
        [](QWidget*, QWidget* field) { field->setEnabled(false); },
        [](QWidget*, QWidget* field) { field->clearFocus(); },
    };
    for (const bool hasNeighbour : {false, true})
        for (const auto& way : ways) {
            QWidget window(0, "window");
            window.setGeometry(200, 150, 300, 200);
            QWidget group(&window, "group");
            group.setGeometry(0, 0, 200, 200);
            ZelLineEdit* const field = new Perishable<ZelLineEdit>(&group, "field");
            if (hasNeighbour)
                new QLineEdit(&group, "neighbour");
            showAndActivate(&window);
            field->setFocus();
            const QGuardedPtr<QWidget> gone(field);
            SignalRecorder recorder;
            recorder.watch(field, SIGNAL(focusOut()));
            recorder.whenever = [&gone] { delete static_cast<QWidget*>(gone); };
            way(&group, field);
            EXPECT_TRUE(gone.isNull()) << &way - ways;
            EXPECT_EQ(recorder.take(), "focusOut");
            settle();
            Graveyard::clear();
        }
}

TEST(DeathInSetOn, ALabelMayGoWhenItIsSet)
{
    QWidget window(0, "window");
    ZelLabel* const label = new Perishable<ZelLabel>("text", &window, "label", false, 0);
    SignalRecorder recorder;
    recorder.watch(label, SIGNAL(clicked(ZelLabel*)));
    recorder.whenever = [label] { delete label; };
    label->setOn(true);
    EXPECT_EQ(recorder.take(), "clicked");
    Graveyard::clear();
}

INSTANTIATE_TEST_SUITE_P(Signals, DeathInSignal, testing::ValuesIn(deaths));
