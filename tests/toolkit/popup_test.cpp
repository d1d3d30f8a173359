// Popups close when the user clicks beside them.
#include "inputlog.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>

namespace
{

class Popup : public testing::Test
{
protected:
    Popup()
        : top(&log, nullptr, "top", 100, 100, 200, 150),
          popup(&log, nullptr, "popup", 150, 150, 50, 50, Qt::WType_Popup)
    {
        showAndActivate(&top);
        popup.show();
        waitFor([&] { return xinput::isViewable(popup.winId()); });
        settle();
        log.take();
    }
    std::string happened()
    {
        settle();
        return log.take();
    }

    EventLog log;
    InputWidget top, popup;
};

} // namespace

TEST_F(Popup, TheLastOneShownIsTheActiveOne)
{
    EXPECT_EQ(&popup, QApplication::activePopupWidget());
    QWidget second(nullptr, "second", Qt::WType_Popup);
    second.setGeometry(10, 10, 20, 20);
    second.show();
    EXPECT_EQ(&second, QApplication::activePopupWidget());
    second.hide();
    EXPECT_EQ(&popup, QApplication::activePopupWidget());
    popup.hide();
    EXPECT_EQ(nullptr, QApplication::activePopupWidget());
}

TEST_F(Popup, AClickInsideStaysInside)
{
    xinput::click(&popup, 10, 10);
    EXPECT_EQ("popup enter; popup press 10,10 button 1 state 0; popup release 10,10 button 1 state 1",
              happened());
    EXPECT_TRUE(popup.isVisible());
}

TEST_F(Popup, AClickBesideItClosesItAndGoesToTheWindowBeneath)
{
    xinput::click(&top, 10, 10);
    EXPECT_EQ("top enter; popup press -40,-40 button 1 state 0; top press 10,10 button 1 state 0; "
              "top release 10,10 button 1 state 1",
              happened());
    EXPECT_FALSE(popup.isVisible());
}

TEST_F(Popup, AClickOutsideOfAllWindowsClosesIt)
{
    xinput::moveToRoot(700, 600);
    xinput::pressButton();
    xinput::releaseButton();
    EXPECT_EQ("popup press 550,450 button 1 state 0", happened());
    EXPECT_FALSE(popup.isVisible());
}

TEST_F(Popup, KeysGoToThePopupAndEscapeClosesIt)
{
    xinput::typeKey('a');
    EXPECT_EQ("popup key A state 0; popup key up A state 0", happened());
    xinput::typeKey(0xff1b);
    settle();
    EXPECT_FALSE(popup.isVisible());
    log.take();
    xinput::typeKey('b');
    EXPECT_EQ("top key B state 0; top key up B state 0", happened());
}

TEST_F(Popup, ADeletedPopupLetsGoOfThePointer)
{
    InputWidget* second = new InputWidget(&log, nullptr, "second", 300, 300, 20, 20, Qt::WType_Popup);
    popup.hide();
    second->show();
    settle();
    delete second;
    log.take();
    EXPECT_EQ(nullptr, QApplication::activePopupWidget());
    xinput::click(&top, 20, 20);
    EXPECT_NE(std::string::npos, happened().find("top press 20,20"));
}
