// Keyboard shortcuts of buttons and labels.
#include "inputlog.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qkeysequence.h>
#include <qlabel.h>
#include <qpushbutton.h>

#include <X11/keysym.h>

#include <memory>

namespace
{

// Wants some key for itself, or not.
class Editor : public InputWidget
{
public:
    Editor(EventLog* log, QWidget* parent) : InputWidget(log, parent, "editor", 0, 100, 50, 20)
    {
        setFocusPolicy(StrongFocus);
        acceptsKeys = true;
    }
    bool wantsAll = false;

protected:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::AccelOverride && wantsAll) {
            static_cast<QKeyEvent*>(event)->accept();
            return true;
        }
        return InputWidget::event(event);
    }
};

class Accelerators : public testing::Test
{
protected:
    Accelerators() : button(new QPushButton("&Open", &top)), editor(&log, &top)
    {
        top.setGeometry(100, 100, 200, 150);
        button->setGeometry(0, 0, 80, 30);
        signals_.watch(button.get(), SIGNAL(clicked()));
        showAndActivate(&top);
        editor.setFocus();
        log.take();
    }
    std::string type(unsigned long key, unsigned long modifier = 0)
    {
        xinput::typeKey(key, modifier);
        waitFor([&] { return signals_.count() > 0; }, 200);
        settle();
        return signals_.take();
    }

    EventLog log;
    QWidget top;
    std::unique_ptr<QPushButton> button;
    Editor editor;
    SignalRecorder signals_;
};

} // namespace

TEST_F(Accelerators, AltAndTheMarkedLetterPressTheButton)
{
    EXPECT_EQ("clicked", type('o', XK_Alt_L));
    EXPECT_EQ(std::string::npos, log.take().find("key O")) << "the focus does not see the key";
    EXPECT_EQ("", type('o'));
    EXPECT_EQ("", type('p', XK_Alt_L));
}

TEST_F(Accelerators, AnyKeyCanBeChosen)
{
    button->setAccel(Qt::Key_F5);
    EXPECT_EQ("clicked", type(XK_F5));
    EXPECT_EQ("", type(XK_F5, XK_Control_L));
    button->setAccel(Qt::CTRL + Qt::Key_B);
    EXPECT_EQ("clicked", type('b', XK_Control_L));
    EXPECT_EQ("", type(XK_F5)) << "the new one replaces the old one";
}

TEST_F(Accelerators, ShiftIsNoPartOfASignThatNeedsIt)
{
    button->setAccel(Qt::Key_Question);
    EXPECT_EQ("clicked", type('/', XK_Shift_L));
    button->setAccel(Qt::Key_K);
    EXPECT_EQ("", type('k', XK_Shift_L));
}

TEST_F(Accelerators, WhoHasTheFocusMayWantTheKeyForItself)
{
    editor.wantsAll = true;
    EXPECT_EQ("", type('o', XK_Alt_L));
    EXPECT_NE(std::string::npos, log.take().find("editor key O state 1024"));
}

TEST_F(Accelerators, DisabledAndHiddenOnesDoNotAct)
{
    button->setEnabled(false);
    EXPECT_EQ("", type('o', XK_Alt_L));
    button->setEnabled(true);
    button->hide();
    EXPECT_EQ("", type('o', XK_Alt_L));
    button->show();
    EXPECT_EQ("clicked", type('o', XK_Alt_L));
}

TEST_F(Accelerators, OnlyTheActiveWindowCounts)
{
    Editor other(&log, nullptr);
    other.move(400, 100);
    showAndActivate(&other);
    EXPECT_EQ("", type('o', XK_Alt_L));
}

TEST_F(Accelerators, ADeadButtonIsForgotten)
{
    button.reset();
    log.take();
    EXPECT_EQ("", type('o', XK_Alt_L));
    EXPECT_NE(std::string::npos, log.take().find("editor key O"));
}

TEST_F(Accelerators, ALabelGivesTheFocusToItsBuddy)
{
    QLabel label("&Name", &top);
    label.setBuddy(button.get());
    label.show();
    type('n', XK_Alt_L);
    EXPECT_EQ(button.get(), qApp->focusWidget());
}
