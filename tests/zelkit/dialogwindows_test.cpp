// The three dialogs as windows: what a window manager is told of them, and several at once.
#include <colordlg.h>
#include <colorgroupdlg.h>
#include <fontdlg.h>

#include "dialogs.h"
#include "windowmanager.h"

#include <X11/Xutil.h>
#include <X11/keysym.h>

#include <functional>
#include <memory>

namespace
{

class DialogWindows : public testing::Test
{
protected:
    DialogWindows() : color(&parent, "color"), group(&parent, "group"), font(&parent, "font")
    {
        parent.setGeometry(600, 500, 200, 100);
        color.move(20, 20);
        group.move(20, 300);
        font.move(400, 20);
    }

    // Runs a dialog and does something meanwhile; its result.
    int run(QDialog& dialog, const std::function<void(QWidget*)>& work)
    {
        Hands hands(work);
        return dialog.exec();
    }

    QWidget parent;
    ZelColorDlg color;
    ZelColorGroupDlg group;
    ZelFontDlg font;
};

} // namespace

TEST_F(DialogWindows, AWindowManagerKnowsTheirSizeAndTheirParent)
{
    for (QWidget* dialog :
         {static_cast<QWidget*>(&color), static_cast<QWidget*>(&group), static_cast<QWidget*>(&font)}) {
        showAndWait(dialog);
        XSizeHints hints = {};
        long supplied = 0;
        ASSERT_TRUE(XGetWMNormalHints(xinput::display(), dialog->winId(), &hints, &supplied));
        EXPECT_TRUE(hints.flags & PMinSize && hints.flags & PMaxSize) << dialog->name();
        EXPECT_EQ(QSize(hints.min_width, hints.min_height), dialog->size()) << dialog->name();
        EXPECT_EQ(QSize(hints.max_width, hints.max_height), dialog->size()) << dialog->name();
        Window owner = 0;
        ASSERT_TRUE(XGetTransientForHint(xinput::display(), dialog->winId(), &owner)) << dialog->name();
        EXPECT_EQ(owner, parent.winId()) << dialog->name();
    }
}

TEST_F(DialogWindows, TheirUserClosesThemByTheFrame)
{
    WindowManager manager;
    for (QDialog* dialog :
         {static_cast<QDialog*>(&color), static_cast<QDialog*>(&group), static_cast<QDialog*>(&font)})
        EXPECT_EQ(run(*dialog, [&](QWidget* window) { manager.close(*window); }), QDialog::Rejected)
            << dialog->name();
}

TEST_F(DialogWindows, TheOneThatRunsBlocksTheOthers)
{
    showAndWait(&parent);
    showAndWait(&group);
    const int result = run(font, [&](QWidget*) {
        clickButton(&group, "Cancel");
        xinput::closeWindow(&group);
        settle();
        EXPECT_TRUE(group.isVisible());
        clickButton(&font, "OK");
    });
    EXPECT_EQ(result, QDialog::Accepted);
    clickButton(&group, "Cancel");
    EXPECT_TRUE(waitFor([&] { return !group.isVisible(); }));
}

TEST_F(DialogWindows, OneMayRunFromAnother)
{
    font.setFontParameters("Times", 12, 50, false, false, false);
    int inner = -1, innermost = -1;
    const int outer = run(group, [&](QWidget*) {
        inner = run(font, [&](QWidget*) {
            innermost = run(color, [](QWidget* window) { clickButton(window, "OK"); });
            EXPECT_EQ(QApplication::activeModalWidget(), &font);
            font.setActiveWindow();
            EXPECT_TRUE(waitFor([&] { return font.isActiveWindow(); }));
            xinput::typeKey(XK_Escape);
        });
        EXPECT_TRUE(group.isVisible());
        clickButton(&group, "OK");
    });
    EXPECT_EQ(innermost, QDialog::Accepted);
    EXPECT_EQ(inner, QDialog::Rejected);
    EXPECT_EQ(outer, QDialog::Accepted);
}
