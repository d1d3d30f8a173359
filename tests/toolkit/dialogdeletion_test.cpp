// Dialogs that are deleted while they are shown, hidden or closed.
#include "perishable.h"
#include "sentevents.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qdialog.h>
#include <qguardedptr.h>

namespace
{

// Dies of the event, once it has been shown.
class MortalDialog : public QDialog
{
public:
    explicit MortalDialog(QEvent::Type last) : QDialog(nullptr, "dialog"), m_last(last) {}

protected:
    void showEvent(QShowEvent*) override { dieOf(QEvent::Show); }
    void hideEvent(QHideEvent*) override { dieOf(QEvent::Hide); }

private:
    void dieOf(QEvent::Type event)
    {
        if (event == m_last)
            delete this;
    }
    const QEvent::Type m_last;
};

} // namespace

class DialogDeletion : public testing::Test
{
protected:
    ~DialogDeletion() override { Graveyard::clear(); }

    // One that dies when it is hidden.
    QDialog* shown()
    {
        QDialog* dialog = new Perishable<MortalDialog>(QEvent::Hide);
        gone = dialog;
        showAndWait(dialog);
        return dialog;
    }
    QGuardedPtr<QDialog> gone;
};

TEST_F(DialogDeletion, WhileItIsHidden)
{
    shown()->hide();
    EXPECT_TRUE(gone.isNull());
}

TEST_F(DialogDeletion, WhileItIsRejected)
{
    sendKey(shown(), Qt::Key_Escape);
    EXPECT_TRUE(gone.isNull());
}

TEST_F(DialogDeletion, WhileItsWindowIsClosed)
{
    xinput::closeWindow(shown());
    EXPECT_TRUE(waitFor([this] { return gone.isNull(); }));
}

TEST_F(DialogDeletion, WhileItIsShownToAskSomething)
{
    gone = new Perishable<MortalDialog>(QEvent::Show);
    EXPECT_EQ(QDialog::Rejected, gone->exec());
    EXPECT_TRUE(gone.isNull());
}
