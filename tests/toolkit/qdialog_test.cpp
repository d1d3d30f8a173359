// Dialogs: how they end, where they stand, which keys they know.
#include "messages.h"
#include "perishable.h"
#include "printers.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qdialog.h>
#include <qevent.h>
#include <qlineedit.h>
#include <qpushbutton.h>
#include <qtimer.h>

#include <X11/keysym.h>

#include <functional>
#include <string>

namespace
{

class Dialog : public QDialog
{
public:
    explicit Dialog(QWidget* parent = nullptr, bool modal = false) : QDialog(parent, "dialog", modal) {}
    using QDialog::accept;
    using QDialog::showExtension;

    // Runs soon after the dialog came up.
    void soon(const std::function<void()>& action)
    {
        m_action = action;
        m_timer = startTimer(0);
    }
    std::string log;

    void reject() override
    {
        log += "reject ";
        QDialog::reject();
    }

    void done(int result) override
    {
        log += "done ";
        QDialog::done(result);
    }

protected:
    void hideEvent(QHideEvent*) override { log += "hide "; }
    void timerEvent(QTimerEvent*) override
    {
        killTimer(m_timer);
        m_action();
    }

private:
    std::function<void()> m_action;
    int m_timer = 0;
};

} // namespace

TEST(DialogEnd, WhoHearsOfTheLastWindowMayDeleteTheDialog)
{
    auto* const dialog = new Perishable<Dialog>;
    SignalRecorder recorder;
    recorder.watch(qApp, SIGNAL(lastWindowClosed()));
    recorder.whenever = [&] { delete dialog; };
    dialog->show();
    settle();
    dialog->accept();
    EXPECT_EQ(recorder.take(), "lastWindowClosed");
    settle();
    Graveyard::clear();
}

TEST(DialogExec, ReturnsTheResultAfterHiding)
{
    Dialog dialog;
    dialog.soon([&] {
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
        dialog.accept();
    });
    EXPECT_EQ(dialog.exec(), QDialog::Accepted);
    EXPECT_EQ(dialog.log, "done hide ");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_FALSE(dialog.isModal()) << "only while it runs";
    EXPECT_EQ(QApplication::activeModalWidget(), static_cast<QWidget*>(nullptr));
}

TEST(DialogExec, EndsWithAnyNumber)
{
    Dialog dialog;
    dialog.soon([&] { dialog.done(77); });
    EXPECT_EQ(dialog.exec(), 77);
    EXPECT_EQ(dialog.result(), 77);
}

TEST(DialogExec, ClosingRejects)
{
    const LoopDeadline deadline;
    Dialog dialog;
    dialog.soon([&] { EXPECT_TRUE(dialog.close()); });
    EXPECT_EQ(dialog.exec(), QDialog::Rejected);
    EXPECT_EQ(dialog.log, "reject done hide ");
}

TEST(DialogExec, HidingEndsItToo)
{
    const LoopDeadline deadline;
    Dialog dialog;
    dialog.soon([&] { dialog.hide(); });
    EXPECT_EQ(dialog.exec(), 0);
    EXPECT_EQ(dialog.log, "hide ");
}

TEST(DialogExec, DeletionEndsItToo)
{
    const LoopDeadline deadline;
    for (const bool hidden : {false, true}) {
        Dialog* dialog = new Dialog;
        dialog->soon([=] {
            if (hidden)
                dialog->QWidget::hide();
            dialog->deleteLater();
        });
        EXPECT_EQ(dialog->exec(), QDialog::Rejected) << hidden;
    }
}

TEST(DialogExec, MayBeNestedAndRepeated)
{
    Dialog outer, inner(&outer);
    int innerResult = 0;
    outer.soon([&] {
        inner.soon([&] { inner.done(5); });
        innerResult = inner.exec();
        EXPECT_TRUE(outer.isVisible());
        outer.done(6);
    });
    EXPECT_EQ(outer.exec(), 6);
    EXPECT_EQ(innerResult, 5);
    outer.soon([&] { outer.done(7); });
    EXPECT_EQ(outer.exec(), 7);
}

TEST(DialogExec, OfADialogThatRunsOnlyWarns)
{
    const LoopDeadline deadline;
    Dialog dialog;
    dialog.soon([&] {
        EXPECT_EQ(dialog.exec(), -1);
        EXPECT_EQ(takeMessages(), "QDialog::exec: Recursive call detected\n");
        EXPECT_TRUE(dialog.isVisible());
        dialog.done(5);
    });
    EXPECT_EQ(dialog.exec(), 5);
}

// Then the dialog stays on the screen and does not run any more.
TEST(DialogExec, MayBeEndedByTheProgramsOwnHand)
{
    const LoopDeadline deadline;
    Dialog dialog, other;
    dialog.soon([] { qApp->exit_loop(); });
    EXPECT_EQ(dialog.exec(), QDialog::Rejected);
    EXPECT_TRUE(dialog.isVisible());
    other.soon([&] {
        dialog.hide();
        other.soon([&] { other.done(3); });
    });
    EXPECT_EQ(other.exec(), 3) << "hiding the first one does not end the loop of another one";
    dialog.soon([&] { dialog.done(4); });
    EXPECT_EQ(dialog.exec(), 4);
    EXPECT_EQ(takeMessages(), "");
}

TEST(DialogModality, KeepsClicksFromOtherWindows)
{
    QWidget window;
    window.setGeometry(500, 100, 120, 60);
    QPushButton button("x", &window);
    button.setToggleButton(true);
    button.setGeometry(5, 5, 100, 40);
    showAndWait(&window);
    Dialog dialog(nullptr, true);
    dialog.setGeometry(100, 100, 80, 60);
    showAndWait(&dialog);
    xinput::click(&button, 20, 20);
    settle();
    EXPECT_FALSE(button.isOn());
    dialog.hide();
    xinput::click(&button, 20, 20);
    EXPECT_TRUE(waitFor([&] { return button.isOn(); }));
}

TEST(DialogKeys, EscapeRejects)
{
    Dialog dialog;
    dialog.setGeometry(100, 100, 150, 80);
    QLineEdit field(&dialog);
    showAndActivate(&dialog);
    xinput::typeKey(XK_Escape, XK_Shift_L);
    settle();
    EXPECT_TRUE(dialog.isVisible()) << "not with Shift";
    xinput::typeKey(XK_Escape);
    EXPECT_TRUE(waitFor([&] { return !dialog.isVisible(); }));
    EXPECT_EQ(dialog.log, "reject done hide ");
}

TEST(DialogKeys, ReturnPressesTheDefaultButton)
{
    Dialog dialog;
    dialog.setGeometry(100, 100, 150, 100);
    QLineEdit field(&dialog);
    QPushButton button("OK", &dialog);
    button.setGeometry(10, 50, 60, 30);
    button.setToggleButton(true);
    QObject::connect(&button, SIGNAL(clicked()), &dialog, SLOT(accept()));
    showAndActivate(&dialog);
    EXPECT_TRUE(button.isDefault()) << "the first one becomes it";
    EXPECT_TRUE(field.hasFocus()) << "the first widget of the Tab chain";
    xinput::typeKey(XK_Return);
    EXPECT_TRUE(waitFor([&] { return !dialog.isVisible(); }));
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST(DialogKeys, OthersAreLeftAlone)
{
    Dialog dialog;
    QKeyEvent letter(QEvent::KeyPress, Qt::Key_A, 'a', 0, "a");
    QApplication::sendEvent(&dialog, &letter);
    EXPECT_FALSE(letter.isAccepted());
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, 13, 0);
    QApplication::sendEvent(&dialog, &enter);
    EXPECT_TRUE(enter.isAccepted());
}

TEST(DialogPlaceUnmanaged, IsOverItsParentUnlessPlaced)
{
    QWidget window;
    window.setGeometry(200, 200, 300, 200);
    showAndWait(&window);
    Dialog centred(&window), placed(&window);
    centred.resize(100, 60);
    showAndWait(&centred);
    EXPECT_EQ(centred.pos() - window.pos(), QPoint(90, 30)) << "with room for a window manager's frame";
    placed.move(7, 9);
    placed.resize(50, 50);
    showAndWait(&placed);
    EXPECT_EQ(placed.pos(), QPoint(7, 9));
}

TEST(DialogPlace, IsInTheMiddleOfTheScreenWithoutAParent)
{
    Dialog dialog;
    dialog.resize(100, 60);
    showAndWait(&dialog);
    EXPECT_EQ(dialog.pos(), QPoint(452, 314));
}

TEST(DialogPlace, TakesTheSizeOfItsContents)
{
    Dialog dialog;
    QPushButton button("wide", &dialog);
    button.setGeometry(20, 30, 150, 40);
    showAndWait(&dialog);
    EXPECT_EQ(dialog.size(), QSize(190, 100));
}

TEST(DialogExtension, OpensBesideOrBelow)
{
    Dialog dialog;
    dialog.resize(100, 60);
    QWidget* extension = new QWidget(&dialog);
    extension->setMinimumSize(40, 30);
    dialog.setExtension(extension);
    showAndWait(&dialog);
    EXPECT_FALSE(extension->isVisible());
    dialog.setOrientation(Qt::Vertical);
    dialog.showExtension(true);
    EXPECT_EQ(dialog.size(), QSize(100, 90));
    EXPECT_EQ(extension->geometry(), QRect(0, 60, 100, 30));
    dialog.showExtension(false);
    EXPECT_EQ(dialog.size(), QSize(100, 60));
    EXPECT_FALSE(extension->isVisible());
}

TEST(DialogExtension, MayDieBeforeTheDialog)
{
    Dialog dialog;
    dialog.resize(100, 60);
    QWidget* extension = new QWidget(&dialog);
    dialog.setExtension(extension);
    delete extension;
    EXPECT_EQ(dialog.extension(), static_cast<QWidget*>(nullptr));
    dialog.showExtension(true);
    EXPECT_EQ(dialog.size(), QSize(100, 60));
    dialog.setExtension(new QWidget(&dialog));
}

TEST(DialogGrip, ResizesWithTheMouse)
{
    Dialog dialog;
    dialog.setGeometry(100, 100, 150, 80);
    dialog.setSizeGripEnabled(true);
    showAndWait(&dialog);
    xinput::moveTo(&dialog, 145, 75);
    xinput::pressButton();
    settle();
    const QPoint farther = dialog.mapToGlobal(QPoint(165, 105));
    xinput::moveToRoot(farther.x(), farther.y());
    EXPECT_TRUE(waitFor([&] { return dialog.size() == QSize(170, 110); }));
    xinput::releaseButton();
    settle();
    dialog.setSizeGripEnabled(false);
    EXPECT_FALSE(dialog.isSizeGripEnabled());
}
