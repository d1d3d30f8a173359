// The desktop.
#include "printers.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qdesktopwidget.h>

TEST(Desktop, IsAsLargeAsTheScreen)
{
    QDesktopWidget* desktop = QApplication::desktop();
    EXPECT_EQ(QRect(0, 0, 1024, 768), desktop->geometry());
    EXPECT_EQ(QRect(0, 0, 1024, 768), desktop->screenGeometry());
    EXPECT_EQ(desktop, QApplication::desktop());
}

TEST(Desktop, HasOneScreen)
{
    QDesktopWidget* desktop = QApplication::desktop();
    EXPECT_EQ(1, desktop->numScreens());
    EXPECT_EQ(0, desktop->primaryScreen());
    EXPECT_FALSE(desktop->isVirtualDesktop());
    EXPECT_EQ(desktop, desktop->screen());
    EXPECT_TRUE(desktop->isDesktop());
    EXPECT_TRUE(desktop->isTopLevel());
}
