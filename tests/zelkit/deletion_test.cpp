// Widgets that are deleted by who listens to their signals: nothing of them is used afterwards.
#include <zelcombobox.h>
#include <zelframe.h>
#include <zelgraph.h>
#include <zellabel.h>
#include <zellineedit.h>
#include <zellineeditint.h>
#include <zelpushbutton2.h>

#include "perishable.h"
#include "sentevents.h"
#include "signalrecorder.h"
#include "waiting.h"

#include <gtest/gtest.h>

#include <functional>

namespace
{

class Deletion : public testing::Test
{
protected:
    Deletion() : window(nullptr, "window") { window.setGeometry(200, 150, 200, 120); }
    ~Deletion() override { Graveyard::clear(); }

    // Does it to a new widget that is deleted at that signal; true if it was, and heard of nothing more.
    bool survives(QWidget* widget, const char* signal, const std::function<void(QWidget*)>& doIt)
    {
        SignalRecorder recorder;
        QWidget* victim = widget;
        recorder.watch(widget, signal);
        recorder.whenever = [&victim] {
            delete victim;
            victim = nullptr;
        };
        widget->setGeometry(20, 20, 100, 40);
        showAndWait(&window);
        doIt(widget);
        settle();
        return recorder.count() == 1 && !victim;
    }

    QWidget window;
};

void doubleClickIt(QWidget* widget)
{
    doubleClick(widget);
}

void pressIt(QWidget* widget)
{
    press(widget);
}

void releaseIt(QWidget* widget)
{
    release(widget);
}

void dragIt(QWidget* widget)
{
    drag(widget, 6, 6);
}

void escape(QWidget* widget)
{
    sendKey(widget, Qt::Key_Escape);
}

void returnKey(QWidget* widget)
{
    sendKey(widget, Qt::Key_Return);
}

void typeDigit(QWidget* widget)
{
    sendKey(widget, Qt::Key_3, '3', 0, "3");
}

void leaveFocus(QWidget* widget)
{
    QFocusEvent event(QEvent::FocusOut);
    QApplication::sendEvent(widget, &event);
}

} // namespace

TEST_F(Deletion, OfAFrame)
{
    const struct {
        const char* signal;
        void (*doIt)(QWidget*);
    } cases[] = {{SIGNAL(mousePress(QMouseEvent*)), pressIt},
                 {SIGNAL(mousePressEx(QMouseEvent*, ZelFrame*)), pressIt},
                 {SIGNAL(mouseRelease(QMouseEvent*)), releaseIt},
                 {SIGNAL(mouseReleaseEx(QMouseEvent*, ZelFrame*)), releaseIt},
                 {SIGNAL(mouseMove(QMouseEvent*)), dragIt},
                 {SIGNAL(mouseMoveEx(QMouseEvent*, ZelFrame*)), dragIt},
                 {SIGNAL(mouseDoubleClick(QMouseEvent*)), doubleClickIt},
                 {SIGNAL(mouseDoubleClickEx(QMouseEvent*, ZelFrame*)), doubleClickIt}};
    for (const auto& c : cases)
        EXPECT_TRUE(survives(new Perishable<ZelFrame>(&window, "frame", 0), c.signal, c.doIt)) << c.signal;
}

TEST_F(Deletion, OfALabel)
{
    const struct {
        const char* signal;
        void (*doIt)(QWidget*);
    } cases[] = {{SIGNAL(mousePress(QMouseEvent*)), pressIt},
                 {SIGNAL(mouseRelease(QMouseEvent*)), releaseIt},
                 {SIGNAL(clicked(ZelLabel*)), releaseIt},
                 {SIGNAL(mouseMove(QMouseEvent*)), dragIt},
                 {SIGNAL(mouseDoubleClick(QMouseEvent*)), doubleClickIt}};
    for (const auto& c : cases)
        EXPECT_TRUE(survives(new Perishable<ZelLabel>("text", &window, "label", true, 0), c.signal, c.doIt))
            << c.signal;
}

TEST_F(Deletion, OfAGraph)
{
    const struct {
        const char* signal;
        std::function<void(QWidget*)> doIt;
    } cases[] = {{SIGNAL(mousePress(QMouseEvent*)), pressIt},
                 {SIGNAL(mouseRelease(QMouseEvent*)), releaseIt},
                 {SIGNAL(mouseMove(QMouseEvent*)), dragIt},
                 {SIGNAL(mouseRelease(QMouseEvent*)), [](QWidget* w) { press(w), release(w); }},
                 {SIGNAL(mouseMove(QMouseEvent*)), [](QWidget* w) { press(w), drag(w, 7, 7); }},
                 {SIGNAL(mouseDoubleClick(QMouseEvent*)), doubleClickIt},
                 {SIGNAL(keyPress(QKeyEvent*)), typeDigit}};
    for (const auto& c : cases)
        EXPECT_TRUE(survives(new Perishable<ZelGraph>(&window, "graph", true, 0), c.signal, c.doIt))
            << c.signal;
}

TEST_F(Deletion, OfALineEdit)
{
    const struct {
        const char* signal;
        std::function<void(QWidget*)> doIt;
    } cases[] = {{SIGNAL(escapePressed()), escape},
                 {SIGNAL(returnPressed()), returnKey},
                 {SIGNAL(textChanged(const QString&)), typeDigit},
                 {SIGNAL(focusOut()), leaveFocus},
                 {SIGNAL(lostFocus()), leaveFocus},
                 {SIGNAL(leave(QEvent*)), static_cast<void (*)(QWidget*)>(::leave)}};
    for (const auto& c : cases)
        EXPECT_TRUE(survives(new Perishable<ZelLineEdit>(&window, "edit"), c.signal, c.doIt)) << c.signal;
}

TEST_F(Deletion, OfAComboBox)
{
    const struct {
        const char* signal;
        std::function<void(QWidget*)> doIt;
    } cases[] = {{SIGNAL(escapePressed()), escape},
                 {SIGNAL(focusOut()), leaveFocus},
                 {SIGNAL(leave()), static_cast<void (*)(QWidget*)>(::leave)}};
    for (const auto& c : cases)
        EXPECT_TRUE(survives(new Perishable<ZelComboBox>(true, &window, "combo"), c.signal, c.doIt))
            << c.signal;
}

TEST_F(Deletion, OfANumberField)
{
    EXPECT_TRUE(survives(new Perishable<ZelLineEditInt>(&window, "number", 0, 9),
                         SIGNAL(textChanged(const QString&)), typeDigit));
    EXPECT_TRUE(survives(new Perishable<ZelLineEditInt>(&window, "number", 0, 9), SIGNAL(valueChanged(int)),
                         typeDigit));
}

TEST_F(Deletion, OfAPushButton)
{
    EXPECT_TRUE(
        survives(new Perishable<ZelPushButton2>("text", &window, "button"), SIGNAL(escapePressed()), escape));
}
