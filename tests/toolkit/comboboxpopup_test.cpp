// The open list of a combo box: its grab, its place, its size, and what ends it.
#include "perishable.h"
#include "printers.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "windowmanager.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qcombobox.h>
#include <qdesktopwidget.h>
#include <qevent.h>
#include <qguardedptr.h>
#include <qlineedit.h>
#include <qlistbox.h>
#include <qpushbutton.h>
#include <qscrollbar.h>

#include <X11/Xlib.h>
#include <X11/keysym.h>
#undef Bool
#undef FocusOut

#include <functional>
#include <memory>
#include <string>

namespace
{

// Deletes a widget at an event of another one inside it.
class DeletesAt : public QObject
{
public:
    DeletesAt(QEvent::Type type, QWidget* watched, QWidget* victim) : m_type(type), m_victim(victim)
    {
        watched->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != m_type)
            return false;
        delete m_victim;
        return true;
    }

private:
    QEvent::Type m_type;
    QWidget* m_victim;
};

// Both kinds, alone and under a window manager.
class ComboBoxPopup : public testing::TestWithParam<std::tuple<bool, bool>>
{
protected:
    ComboBoxPopup()
    {
        if (std::get<1>(GetParam()))
            manager.reset(new WindowManager);
        window.reset(new QWidget(nullptr, "window"));
        window->setGeometry(100, 100, 240, 160);
        button = new QPushButton("button", window.get());
        button->setGeometry(10, 120, 80, 30);
        recorder.watch(button, SIGNAL(clicked()));
        addCombo();
        showAndActivate(window.get());
        combo->setFocus();
        settle();
    }
    ~ComboBoxPopup() override
    {
        window.reset();
        Graveyard::clear();
    }

    void addCombo()
    {
        combo = new Perishable<QComboBox>(std::get<0>(GetParam()), window.get(), "combo");
        combo->setGeometry(10, 10, 130, 28);
        for (const char* text : {"One", "Two", "Three", "Four"})
            combo->insertItem(text);
        recorder.watch(combo, SIGNAL(activated(int)));
    }
    void open()
    {
        xinput::click(combo, 115, 14);
        ASSERT_TRUE(waitFor([&] { return isOpen(); }));
        settle();
        EXPECT_TRUE(pointerIsGrabbed());
        EXPECT_TRUE(keyboardIsGrabbed());
    }
    // Nothing of it is left: no popup, no grab, and the program can be used.
    void expectAllIsOver()
    {
        EXPECT_TRUE(waitFor([] { return !QApplication::activePopupWidget(); }));
        settle();
        EXPECT_FALSE(pointerIsGrabbed());
        EXPECT_FALSE(keyboardIsGrabbed());
    }
    static bool isOpen() { return QApplication::activePopupWidget() != nullptr; }
    // Another program tries.
    static bool pointerIsGrabbed()
    {
        Display* display = xinput::display();
        const int result = XGrabPointer(display, DefaultRootWindow(display), False, 0, GrabModeAsync,
                                        GrabModeAsync, 0, 0, CurrentTime);
        XUngrabPointer(display, CurrentTime);
        xinput::sync();
        return result == AlreadyGrabbed;
    }
    static bool keyboardIsGrabbed()
    {
        Display* display = xinput::display();
        const int result = XGrabKeyboard(display, DefaultRootWindow(display), False, GrabModeAsync,
                                         GrabModeAsync, CurrentTime);
        XUngrabKeyboard(display, CurrentTime);
        xinput::sync();
        return result == AlreadyGrabbed;
    }
    // The signals since the last call; at least one is waited for unless none is expected.
    std::string heard(bool something = true)
    {
        if (something)
            waitFor([&] { return recorder.count() > 0; });
        settle();
        return recorder.take();
    }

    std::unique_ptr<WindowManager> manager;
    std::unique_ptr<QWidget> window;
    QPushButton* button;
    QComboBox* combo;
    SignalRecorder recorder;
};

INSTANTIATE_TEST_SUITE_P(Kinds, ComboBoxPopup, testing::Combine(testing::Bool(), testing::Bool()));

} // namespace

TEST_P(ComboBoxPopup, HoldsPointerAndKeyboardWhileItIsOpen)
{
    open();
    QListBox* list = combo->listBox();
    EXPECT_TRUE(list->isPopup());
    XWindowAttributes attributes;
    XGetWindowAttributes(xinput::display(), list->winId(), &attributes);
    EXPECT_TRUE(attributes.override_redirect);
    EXPECT_TRUE(window->isActiveWindow()) << "the window keeps its looks";
    xinput::typeKey(XK_Escape);
    expectAllIsOver();
    EXPECT_EQ(heard(false), "");
}

TEST_P(ComboBoxPopup, EveryWayToChooseEndsIt)
{
    open();
    xinput::typeKey(XK_Down);
    xinput::typeKey(XK_KP_Enter);
    EXPECT_EQ(heard(), "activated(1)");
    expectAllIsOver();
    open();
    xinput::click(combo->listBox()->viewport(), 20, 2 * combo->listBox()->itemHeight() + 3);
    EXPECT_EQ(heard(), "activated(2)");
    expectAllIsOver();
    open();
    xinput::click(combo->listBox()->viewport(), 20, 2 * combo->listBox()->itemHeight() + 3);
    EXPECT_EQ(heard(), "activated(2)") << "the same once more is told too";
    expectAllIsOver();
}

TEST_P(ComboBoxPopup, F4AndAltArrowsEndItWithoutAChoice)
{
    const struct {
        unsigned long key, modifier;
    } keys[] = {{XK_F4, 0}, {XK_Up, XK_Alt_L}, {XK_Down, XK_Alt_L}, {XK_Escape, 0}};
    for (const auto& each : keys) {
        open();
        xinput::typeKey(XK_Down);
        xinput::typeKey(each.key, each.modifier);
        expectAllIsOver();
        EXPECT_EQ(heard(false), "") << each.key;
        EXPECT_EQ(combo->currentItem(), 0);
    }
}

TEST_P(ComboBoxPopup, AClickOnAButtonBesideItEndsItAndPressesTheButton)
{
    window->resize(340, 160);
    button->move(240, 10);
    // A window manager takes its time.
    ASSERT_TRUE(waitFor([this] {
        XWindowAttributes now;
        return XGetWindowAttributes(xinput::display(), window->winId(), &now) && now.width == 340;
    }));
    settle();
    open();
    xinput::click(button, 20, 15);
    expectAllIsOver();
    EXPECT_EQ(heard(), "clicked");
}

TEST_P(ComboBoxPopup, AClickOnTheComboBoxItselfEndsIt)
{
    open();
    xinput::click(combo, 115, 14);
    settle();
    xinput::typeKey(XK_Escape);
    expectAllIsOver();
    EXPECT_EQ(heard(false), "");
}

TEST_P(ComboBoxPopup, IsOverWhenItsOwnerIsDeleted)
{
    open();
    delete combo;
    expectAllIsOver();
    xinput::click(button, 20, 15);
    EXPECT_EQ(heard(), "clicked");
}

TEST_P(ComboBoxPopup, ItsOwnerMayDieAsItOpens)
{
    QWidget* focused = combo->lineEdit() ? static_cast<QWidget*>(combo->lineEdit()) : combo;
    ASSERT_TRUE(focused->hasFocus());
    const QGuardedPtr<QWidget> gone(combo);
    const DeletesAt filter(QEvent::FocusOut, focused, combo);
    combo->popup();
    EXPECT_TRUE(gone.isNull());
    expectAllIsOver();
}

TEST_P(ComboBoxPopup, ItsOwnerMayDieAsItCloses)
{
    const std::function<void()> ways[] = {
        [] { xinput::typeKey(XK_Escape); }, [] { xinput::typeKey(XK_Return); },
        [this] { xinput::click(combo->listBox()->viewport(), 20, 5); },
        [this] { xinput::click(button, 20, 15); }, [this] { combo->hide(); }};
    for (const auto& way : ways) {
        open();
        const QGuardedPtr<QWidget> gone(combo);
        const DeletesAt filter(QEvent::Hide, combo->listBox(), combo);
        way();
        EXPECT_TRUE(waitFor([&] { return gone.isNull(); })) << &way - ways;
        expectAllIsOver();
        recorder.take();
        addCombo();
        combo->show();
    }
}

TEST_P(ComboBoxPopup, IsOverWhenItsWindowIsDeleted)
{
    open();
    window.reset();
    expectAllIsOver();
}

TEST_P(ComboBoxPopup, IsOverWhenItsOwnerIsHidden)
{
    open();
    combo->hide();
    expectAllIsOver();
    EXPECT_EQ(heard(false), "");
    combo->show();
    open();
    xinput::typeKey(XK_Escape);
    expectAllIsOver();
}

TEST_P(ComboBoxPopup, IsOverWhenItsWindowIsClosed)
{
    open();
    if (manager)
        manager->close(*window);
    else
        window->close();
    EXPECT_TRUE(waitFor([&] { return !window->isVisible(); }));
    expectAllIsOver();
}

TEST_P(ComboBoxPopup, IsOverWhenItsOwnerIsDisabled)
{
    open();
    combo->setEnabled(false);
    settle();
    xinput::typeKey(XK_Escape);
    expectAllIsOver();
}

TEST_P(ComboBoxPopup, ItsListMayBeEmptiedWhileItIsOpen)
{
    open();
    combo->clear();
    settle();
    xinput::typeKey(XK_Return);
    xinput::typeKey(XK_Escape);
    expectAllIsOver();
    EXPECT_EQ(heard(false), "");
    xinput::click(combo, 115, 14);
    settle();
    EXPECT_FALSE(isOpen()) << "there is nothing to choose from";
}

TEST_P(ComboBoxPopup, ThePressThatOpensItMayChoose)
{
    xinput::moveTo(combo, 115, 14);
    xinput::pressButton();
    ASSERT_TRUE(waitFor([&] { return isOpen(); }));
    settle();
    xinput::moveTo(combo->listBox()->viewport(), 20, combo->listBox()->itemHeight() + 3);
    settle();
    EXPECT_EQ(combo->listBox()->currentItem(), 1);
    xinput::moveToRoot(700, 700);
    settle();
    xinput::releaseButton();
    expectAllIsOver();
    EXPECT_EQ(heard(false), "") << "released beside the list";
}

TEST_P(ComboBoxPopup, ShowsNoMoreEntriesThanItsLimitAndScrolls)
{
    for (int i = 0; i < 30; ++i)
        combo->insertItem("More " + QString::number(i));
    combo->setSizeLimit(5);
    open();
    QListBox* list = combo->listBox();
    EXPECT_EQ(list->height(), 5 * list->itemHeight() + 2);
    EXPECT_TRUE(list->verticalScrollBar()->isVisible());
    xinput::moveTo(list->viewport(), 20, 10);
    xinput::pressButton(5);
    xinput::releaseButton(5);
    settle();
    EXPECT_GT(list->topItem(), 0) << "the wheel scrolls the list";
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(combo->currentItem(), 0);
    xinput::typeKey(XK_End);
    xinput::typeKey(XK_Return);
    EXPECT_EQ(heard(), "activated(33)");
    expectAllIsOver();
    open();
    EXPECT_EQ(list->currentItem(), 33);
    EXPECT_GT(list->topItem(), 20) << "it opens where the chosen entry is";
    xinput::typeKey(XK_Escape);
}

TEST_P(ComboBoxPopup, ItsScrollBarCanBeDragged)
{
    for (int i = 0; i < 30; ++i)
        combo->insertItem("More");
    open();
    QScrollBar* bar = combo->listBox()->verticalScrollBar();
    const QRect slider = bar->sliderRect();
    xinput::moveTo(bar, slider.center().x(), slider.center().y());
    xinput::pressButton();
    settle();
    xinput::moveTo(bar, slider.center().x(), slider.center().y() + 40);
    EXPECT_TRUE(waitFor([&] { return combo->listBox()->topItem() > 3; }));
    xinput::releaseButton();
    settle();
    EXPECT_TRUE(isOpen()) << "letting the slider go chooses nothing";
    xinput::typeKey(XK_Escape);
    expectAllIsOver();
}

TEST_P(ComboBoxPopup, OpensAboveWhenThereIsNoRoomBelow)
{
    const int bottom = QApplication::desktop()->height();
    window->move(100, bottom - 160);
    combo->move(10, 100);
    settle();
    open();
    const QListBox* list = combo->listBox();
    EXPECT_EQ(list->y() + list->height(), combo->mapToGlobal(QPoint(0, 0)).y());
    xinput::typeKey(XK_Escape);
    expectAllIsOver();
}

TEST_P(ComboBoxPopup, IsAsWideAsItsEntriesButStaysOnTheScreen)
{
    combo->insertItem("An entry that is much wider than the combo box is, so that it needs more room");
    window->move(QApplication::desktop()->width() - 180, 100);
    settle();
    open();
    const QListBox* list = combo->listBox();
    EXPECT_GT(list->width(), combo->width());
    EXPECT_EQ(list->x() + list->width(), QApplication::desktop()->width());
    xinput::typeKey(XK_Escape);
    expectAllIsOver();
}
