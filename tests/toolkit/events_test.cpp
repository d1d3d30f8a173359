// What events carry.
#include "printers.h"

#include <gtest/gtest.h>
#include <qevent.h>
#include <qobject.h>

TEST(Events, MouseEventsKnowTheButtonsBeforeAndAfter)
{
    const struct {
        QEvent::Type type;
        int button;
        int state;
        int after;
    } cases[] = {
        {QEvent::MouseButtonPress, Qt::LeftButton, 0, Qt::LeftButton},
        {QEvent::MouseButtonPress, Qt::RightButton, Qt::LeftButton, Qt::LeftButton | Qt::RightButton},
        {QEvent::MouseButtonRelease, Qt::RightButton, Qt::RightButton | Qt::ShiftButton, Qt::ShiftButton},
        {QEvent::MouseButtonDblClick, Qt::MidButton, Qt::LeftButton, Qt::LeftButton | Qt::MidButton},
        {QEvent::MouseMove, Qt::NoButton, Qt::LeftButton, Qt::LeftButton},
    };
    for (const auto& c : cases) {
        const QMouseEvent event(c.type, QPoint(3, 4), QPoint(13, 14), c.button, c.state);
        EXPECT_EQ(event.type(), c.type);
        EXPECT_EQ(event.button(), c.button);
        EXPECT_EQ(event.state(), c.state);
        EXPECT_EQ(event.stateAfter(), c.after);
        EXPECT_EQ(event.pos(), QPoint(3, 4));
        EXPECT_EQ(event.globalX(), 13);
        EXPECT_EQ(event.globalY(), 14);
    }
}

TEST(Events, KeysKnowTheModifiersAfterwards)
{
    const struct {
        QEvent::Type type;
        int key;
        int state;
        int after;
    } cases[] = {
        {QEvent::KeyPress, Qt::Key_Shift, 0, Qt::ShiftButton},
        {QEvent::KeyRelease, Qt::Key_Shift, Qt::ShiftButton, 0},
        {QEvent::KeyPress, Qt::Key_Control, Qt::AltButton, Qt::AltButton | Qt::ControlButton},
        {QEvent::KeyRelease, Qt::Key_Alt, Qt::AltButton, 0},
        {QEvent::KeyPress, Qt::Key_A, Qt::ControlButton, Qt::ControlButton},
    };
    for (const auto& c : cases)
        EXPECT_EQ(QKeyEvent(c.type, c.key, 0, c.state).stateAfter(), c.after) << c.key;
}

TEST(Events, KeysCarryTheirText)
{
    const QKeyEvent event(QEvent::KeyPress, Qt::Key_A, 'a', 0, "aaa", true, 3);
    EXPECT_EQ(event.key(), Qt::Key_A);
    EXPECT_EQ(event.ascii(), 'a');
    EXPECT_EQ(event.text(), QString("aaa"));
    EXPECT_TRUE(event.isAutoRepeat());
    EXPECT_EQ(event.count(), 3);
    EXPECT_TRUE(QKeyEvent(QEvent::KeyPress, Qt::Key_Up, 0, 0).text().isNull());
}

TEST(Events, AllButCloseStartAccepted)
{
    QMouseEvent mouse(QEvent::MouseButtonPress, QPoint(0, 0), 1, 0);
    EXPECT_TRUE(mouse.isAccepted());
    mouse.ignore();
    EXPECT_FALSE(mouse.isAccepted());
    mouse.accept();
    EXPECT_TRUE(mouse.isAccepted());
    EXPECT_TRUE(QKeyEvent(QEvent::KeyPress, Qt::Key_A, 0, 0).isAccepted());
    EXPECT_TRUE(QWheelEvent(QPoint(0, 0), 120, 0).isAccepted());
    EXPECT_TRUE(QContextMenuEvent(QContextMenuEvent::Mouse, QPoint(0, 0), QPoint(0, 0), 0).isAccepted());
    EXPECT_FALSE(QCloseEvent().isAccepted());
}

TEST(Events, WheelsTurnUprightUnlessSaid)
{
    const QWheelEvent event(QPoint(1, 2), QPoint(5, 6), -120, Qt::ShiftButton);
    EXPECT_EQ(event.delta(), -120);
    EXPECT_EQ(event.orientation(), Qt::Vertical);
    EXPECT_EQ(event.state(), Qt::ShiftButton);
    EXPECT_EQ(event.globalPos(), QPoint(5, 6));
    EXPECT_EQ(QWheelEvent(QPoint(), QPoint(), 120, 0, Qt::Horizontal).orientation(), Qt::Horizontal);
}

TEST(Events, PaintingHasARectangleAndARegion)
{
    const QPaintEvent event(QRegion(0, 0, 5, 5) + QRegion(10, 10, 5, 5), false);
    EXPECT_EQ(event.rect(), QRect(0, 0, 15, 15));
    EXPECT_EQ(event.region().rects().size(), 2u);
    EXPECT_FALSE(event.erased());
    EXPECT_TRUE(QPaintEvent(QRect(1, 2, 3, 4)).erased());
}

TEST(Events, PlacesAndSizesAreKeptWithTheOldOnes)
{
    const QMoveEvent move(QPoint(1, 2), QPoint(3, 4));
    EXPECT_EQ(move.pos(), QPoint(1, 2));
    EXPECT_EQ(move.oldPos(), QPoint(3, 4));
    const QResizeEvent resize(QSize(5, 6), QSize(7, 8));
    EXPECT_EQ(resize.size(), QSize(5, 6));
    EXPECT_EQ(resize.oldSize(), QSize(7, 8));
}

TEST(Events, FocusReasonsNest)
{
    EXPECT_EQ(QFocusEvent::reason(), QFocusEvent::Other);
    QFocusEvent::setReason(QFocusEvent::Tab);
    QFocusEvent::setReason(QFocusEvent::Popup);
    EXPECT_EQ(QFocusEvent::reason(), QFocusEvent::Popup);
    QFocusEvent::resetReason();
    EXPECT_EQ(QFocusEvent::reason(), QFocusEvent::Tab);
    QFocusEvent::resetReason();
    EXPECT_EQ(QFocusEvent::reason(), QFocusEvent::Other);
    EXPECT_TRUE(QFocusEvent(QEvent::FocusIn).gotFocus());
    EXPECT_TRUE(QFocusEvent(QEvent::FocusOut).lostFocus());
}

TEST(Events, OwnEventsCarryData)
{
    int data = 0;
    QCustomEvent event(QEvent::Type(QEvent::User + 5), &data);
    EXPECT_EQ(event.type(), QEvent::User + 5);
    EXPECT_EQ(event.data(), &data);
    event.setData(nullptr);
    EXPECT_EQ(event.data(), nullptr);
    EXPECT_EQ(QCustomEvent(QEvent::User).data(), nullptr);
    EXPECT_FALSE(event.spontaneous());
}

TEST(Events, ChildrenComeAndGo)
{
    QObject child;
    EXPECT_TRUE(QChildEvent(QEvent::ChildInserted, &child).inserted());
    EXPECT_TRUE(QChildEvent(QEvent::ChildRemoved, &child).removed());
    EXPECT_EQ(QChildEvent(QEvent::ChildRemoved, &child).child(), &child);
}
