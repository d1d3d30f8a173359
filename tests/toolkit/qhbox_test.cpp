// QHBox and QVBox: children put in a row or a column by themselves.
#include "layoutkid.h"
#include "printers.h"
#include "waiting.h"

#include <gtest/gtest.h>
#include <qhbox.h>
#include <qvbox.h>

namespace
{

TEST(BoxWidget, PutsChildrenInARow)
{
    QHBox box;
    new Kid(&box, preferred, QSize(30, 20));
    new Kid(&box, expanding, QSize(20, 20), QSize(5, 5));
    EXPECT_EQ(box.sizeHint(), QSize(50, 20)) << "before the event loop knows of them";
    showAndWait(&box);
    box.resize(200, 50);
    EXPECT_EQ(places(&box), "0,0 30x50 | 30,0 170x50");
    box.setSpacing(7);
    settle();
    EXPECT_EQ(places(&box), "0,0 30x50 | 37,0 163x50");
}

TEST(BoxWidget, PutsChildrenInAColumn)
{
    QVBox box;
    box.setSpacing(4);
    new Kid(&box, preferred, QSize(30, 20));
    new Kid(&box, fixed, QSize(20, 20));
    showAndWait(&box);
    box.resize(50, 100);
    EXPECT_EQ(places(&box), "0,0 50x76 | 0,80 20x20");
    EXPECT_STREQ(box.className(), "QVBox");
    EXPECT_TRUE(box.inherits("QHBox"));
}

TEST(BoxWidget, LeavesItsFrameAndMarginFree)
{
    QHBox box;
    new Kid(&box, preferred, QSize(30, 20));
    box.setMargin(9);
    box.setFrameStyle(QFrame::Box | QFrame::Raised);
    box.setLineWidth(3);
    EXPECT_EQ(box.frameWidth(), 15);
    EXPECT_EQ(box.sizeHint(), QSize(60, 50));
    showAndWait(&box);
    box.resize(100, 50);
    EXPECT_EQ(places(&box), "15,15 70x20");
}

TEST(BoxWidget, HasRoomOnlyForChildrenThatAreThere)
{
    QHBox box;
    box.setSpacing(5);
    Kid* const a = new Kid(&box, preferred, QSize(30, 20));
    Kid* const b = new Kid(&box, preferred, QSize(30, 20));
    showAndWait(&box);
    box.resize(105, 20);
    Kid* const late = new Kid(&box, preferred, QSize(30, 20));
    late->show();
    a->hide();
    settle();
    EXPECT_EQ(places(&box), "0,0 50x20* | 0,0 50x20 | 55,0 50x20");
    delete b;
    settle();
    EXPECT_EQ(late->geometry(), QRect(0, 0, 105, 20));
}

TEST(BoxWidget, StretchesItsChildren)
{
    QHBox box;
    Kid* const a = new Kid(&box, preferred, QSize(10, 20));
    Kid* const b = new Kid(&box, preferred, QSize(10, 20));
    QWidget stranger;
    EXPECT_TRUE(box.setStretchFactor(a, 1));
    EXPECT_TRUE(box.setStretchFactor(b, 3));
    EXPECT_FALSE(box.setStretchFactor(&stranger, 1));
    showAndWait(&box);
    box.resize(200, 20);
    EXPECT_EQ(places(&box), "0,0 50x20 | 50,0 150x20");
}

TEST(BoxWidget, IsAFrameWhenItsLayoutIsGone)
{
    QHBox box;
    Kid* const a = new Kid(&box, preferred, QSize(10, 20));
    delete box.layout();
    box.setSpacing(3);
    box.setMargin(2);
    EXPECT_FALSE(box.setStretchFactor(a, 1));
    EXPECT_EQ(box.sizeHint(), QFrame(nullptr).sizeHint());
}

} // namespace
