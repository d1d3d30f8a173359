// Dialogs under a window manager: what it is told, what it does to them.
#include "hands.h"
#include "printers.h"
#include "waiting.h"
#include "windowmanager.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qdialog.h>
#include <qlineedit.h>
#include <qpushbutton.h>

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/keysym.h>
#undef Bool
#undef None

#include <cstdlib>

namespace
{

class ManagedDialog : public testing::Test
{
protected:
    ManagedDialog() : window(nullptr, "window"), button("outside", &window)
    {
        window.setGeometry(300, 250, 300, 200);
        button.setGeometry(10, 10, 100, 30);
        button.setToggleButton(true);
        showAndActivate(&window);
    }

    // The frame of a dialog that has gone may cover it for a moment.
    void clickOnceUncovered()
    {
        const QPoint place = button.mapToGlobal(QPoint(50, 15));
        EXPECT_TRUE(waitFor([&] { return QApplication::widgetAt(place, true) == &button; }));
        xinput::click(&button, 50, 15);
    }

    WindowManager manager;
    QWidget window;
    QPushButton button;
};

QPoint middleOf(const QWidget& widget)
{
    return widget.mapToGlobal(QPoint(widget.width() / 2, widget.height() / 2));
}

} // namespace

TEST_F(ManagedDialog, OpensOverTheMiddleOfItsWindow)
{
    QDialog dialog(&window, "dialog");
    dialog.resize(120, 80);
    showAndActivate(&dialog);
    EXPECT_TRUE(waitFor([&] { return dialog.frameGeometry().height() > dialog.height(); }))
        << "it has a frame";
    const QPoint away = middleOf(dialog) - middleOf(window);
    EXPECT_LE(std::abs(away.x()), 20);
    EXPECT_LE(std::abs(away.y()), 20);
}

TEST_F(ManagedDialog, ClosedInItsFrameItIsRejected)
{
    QDialog dialog(&window, "dialog");
    Hands hands([this](QWidget* modal) { manager.close(*modal); });
    EXPECT_EQ(dialog.exec(), QDialog::Rejected);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(waitFor([this] { return window.isActiveWindow(); }));
}

TEST_F(ManagedDialog, KeepsItsSizeWhenThatIsFixed)
{
    QDialog dialog(&window, "dialog");
    dialog.setFixedSize(150, 90);
    showAndActivate(&dialog);
    XSizeHints hints;
    long supplied;
    XGetWMNormalHints(xinput::display(), dialog.winId(), &hints, &supplied);
    EXPECT_TRUE((hints.flags & PMinSize) && (hints.flags & PMaxSize));
    EXPECT_EQ(QSize(hints.min_width, hints.min_height), QSize(150, 90));
    EXPECT_EQ(QSize(hints.max_width, hints.max_height), QSize(150, 90));
    EXPECT_EQ(dialog.size(), QSize(150, 90));
    dialog.showMaximized();
    settle();
    EXPECT_EQ(dialog.size(), QSize(150, 90));
}

TEST_F(ManagedDialog, WhileItIsModalTheWindowIsDeaf)
{
    QDialog dialog(&window, "dialog", true);
    dialog.setGeometry(20, 20, 120, 60);
    showAndActivate(&dialog);
    xinput::click(&button, 50, 15);
    settle();
    EXPECT_FALSE(button.isOn());
    manager.close(window);
    settle();
    EXPECT_TRUE(window.isVisible()) << "it cannot be closed either";
    dialog.hide();
    clickOnceUncovered();
    EXPECT_TRUE(waitFor([this] { return button.isOn(); }));
}

TEST_F(ManagedDialog, ReturnAcceptsAndEscapeRejects)
{
    const struct {
        unsigned long key;
        int result;
    } keys[] = {
        {XK_Return, QDialog::Accepted}, {XK_KP_Enter, QDialog::Accepted}, {XK_Escape, QDialog::Rejected}};
    for (const auto& each : keys) {
        QDialog dialog(&window, "dialog");
        QLineEdit edit(&dialog);
        QPushButton ok("OK", &dialog), cancel("Cancel", &dialog);
        ok.move(0, 40);
        cancel.move(0, 80);
        QObject::connect(&ok, SIGNAL(clicked()), &dialog, SLOT(accept()));
        QObject::connect(&cancel, SIGNAL(clicked()), &dialog, SLOT(reject()));
        Hands hands([&](QWidget*) {
            EXPECT_TRUE(edit.hasFocus());
            xinput::typeKey(each.key);
        });
        EXPECT_EQ(dialog.exec(), each.result);
    }
}

TEST_F(ManagedDialog, TheWindowBehindComesBackInOrder)
{
    QDialog first(&window, "first");
    int inner = -1;
    Hands outerHands([&](QWidget*) {
        QDialog second(&first, "second");
        Hands innerHands([&](QWidget*) { xinput::typeKey(XK_Escape); });
        inner = second.exec();
        EXPECT_TRUE(waitFor([&] { return first.isActiveWindow(); }));
        xinput::typeKey(XK_Escape);
    });
    EXPECT_EQ(first.exec(), QDialog::Rejected);
    EXPECT_EQ(inner, QDialog::Rejected);
    EXPECT_TRUE(waitFor([this] { return window.isActiveWindow(); }));
}

TEST_F(ManagedDialog, DeletedWhileItRunsItEndsTheLoop)
{
    QDialog* dialog = new QDialog(&window, "dialog");
    Hands hands([&](QWidget*) { delete dialog; });
    EXPECT_EQ(dialog->exec(), QDialog::Rejected);
    clickOnceUncovered();
    EXPECT_TRUE(waitFor([this] { return button.isOn(); })) << "the window can be used again";
}
