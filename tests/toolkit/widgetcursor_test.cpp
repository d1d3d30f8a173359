// The shape of the pointer, and where it is.
#include "messages.h"
#include "printers.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qbitmap.h>
#include <qcursor.h>
#include <qwidget.h>

TEST(WidgetCursor, IsAnArrowUnlessOneIsSet)
{
    QWidget window;
    QWidget child(&window);
    EXPECT_EQ(Qt::ArrowCursor, child.cursor().shape());
    EXPECT_FALSE(child.ownCursor());
    window.setCursor(Qt::WaitCursor);
    EXPECT_EQ(Qt::WaitCursor, child.cursor().shape()) << "the parent's shows";
    child.setCursor(QCursor(Qt::IbeamCursor));
    EXPECT_TRUE(child.ownCursor());
    EXPECT_EQ(Qt::IbeamCursor, child.cursor().shape());
    EXPECT_EQ(Qt::WaitCursor, window.cursor().shape());
    child.unsetCursor();
    EXPECT_EQ(Qt::WaitCursor, child.cursor().shape());
}

TEST(WidgetCursor, EveryShapeHasACursorOfTheServer)
{
    for (int shape = 0; shape <= Qt::LastCursor; ++shape) {
        EXPECT_NE(0ul, QCursor(shape).handle());
        EXPECT_EQ(shape, QCursor(shape).shape());
    }
    EXPECT_NE(QCursor(Qt::ArrowCursor).handle(), QCursor(Qt::CrossCursor).handle());
    EXPECT_EQ(QCursor(Qt::CrossCursor).handle(), QCursor(Qt::CrossCursor).handle()) << "made once";
    EXPECT_EQ("", takeMessages());
}

TEST(WidgetCursor, MayBeDrawn)
{
    QBitmap bitmap(16, 16, true), mask(16, 16, true);
    const QCursor middle(bitmap, mask);
    EXPECT_EQ(Qt::BitmapCursor, middle.shape());
    EXPECT_EQ(QPoint(8, 8), middle.hotSpot());
    EXPECT_EQ(QPoint(1, 2), QCursor(bitmap, mask, 1, 2).hotSpot());
    QWidget window;
    window.setCursor(middle);
    EXPECT_EQ(Qt::BitmapCursor, window.cursor().shape());
    EXPECT_NE(0ul, window.cursor().handle());
}

TEST(WidgetCursor, TheProgramFindsAndMovesThePointer)
{
    xinput::moveToRoot(123, 45);
    EXPECT_EQ(QPoint(123, 45), QCursor::pos());
    QCursor::setPos(77, 88);
    EXPECT_EQ(QPoint(77, 88), QCursor::pos());
}
