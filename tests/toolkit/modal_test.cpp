// A modal window keeps the user from the others.
#include "inputlog.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>

namespace
{

class Modal : public testing::Test
{
protected:
    Modal()
        : top(&log, nullptr, "top", 100, 100, 200, 150),
          modal(&log, nullptr, "modal", 400, 100, 50, 50, Qt::WType_Dialog | Qt::WShowModal)
    {
        showAndActivate(&top);
    }
    std::string happened()
    {
        settle();
        return log.take();
    }

    EventLog log;
    InputWidget top, modal;
};

} // namespace

TEST_F(Modal, ClicksAndKeysForOtherWindowsAreDropped)
{
    showAndActivate(&modal);
    EXPECT_EQ(&modal, QApplication::activeModalWidget());
    log.take();
    xinput::click(&top, 20, 20);
    EXPECT_EQ("", happened());
    xinput::click(&modal, 20, 20);
    EXPECT_EQ("modal enter; modal press 20,20 button 1 state 0; modal release 20,20 button 1 state 1",
              happened());
    modal.hide();
    EXPECT_EQ(nullptr, QApplication::activeModalWidget());
    settle();
    log.take();
    xinput::click(&top, 30, 30);
    EXPECT_NE(std::string::npos, happened().find("top press 30,30 button 1 state 0"));
}

TEST_F(Modal, OtherWindowsAreNotScrolledNorClosedEither)
{
    showAndActivate(&modal);
    log.take();
    xinput::moveTo(&top, 20, 20);
    xinput::pressButton(4);
    xinput::releaseButton(4);
    EXPECT_EQ("", happened());
    xinput::closeWindow(&top);
    settle();
    EXPECT_TRUE(top.isVisible());
    xinput::closeWindow(&modal);
    EXPECT_TRUE(waitFor([&] { return !modal.isVisible(); }));
    xinput::closeWindow(&top);
    EXPECT_TRUE(waitFor([&] { return !top.isVisible(); }));
}

TEST_F(Modal, AnotherWindowThatBecomesActiveGetsNoKeysNevertheless)
{
    showAndActivate(&modal);
    top.setActiveWindow();
    EXPECT_TRUE(waitFor([&] { return top.isActiveWindow(); }));
    settle();
    log.take();
    xinput::typeKey('a');
    EXPECT_EQ("", happened());
    modal.setActiveWindow();
    EXPECT_TRUE(waitFor([&] { return modal.isActiveWindow(); }));
    xinput::typeKey('a');
    EXPECT_EQ("modal key A state 0; modal key up A state 0", happened());
}

TEST_F(Modal, ItsOwnWindowsStayOpen)
{
    showAndActivate(&modal);
    InputWidget tool(&log, &modal, "tool", 600, 100, 40, 40, Qt::WType_TopLevel);
    showAndWait(&tool);
    log.take();
    xinput::click(&tool, 5, 5);
    EXPECT_NE(std::string::npos, happened().find("tool press 5,5"));
}

TEST_F(Modal, TheLastOneCounts)
{
    showAndActivate(&modal);
    QWidget second(nullptr, "second", Qt::WType_Dialog | Qt::WShowModal);
    showAndWait(&second);
    EXPECT_EQ(&second, QApplication::activeModalWidget());
    xinput::click(&modal, 5, 5);
    settle();
    EXPECT_EQ(std::string::npos, log.take().find("modal press"));
    second.hide();
    EXPECT_EQ(&modal, QApplication::activeModalWidget());
}

// Deletes a window as soon as a widget is left.
class DeletesWhenLeft : public QObject
{
public:
    DeletesWhenLeft(QWidget* left, QWidget* window) : m_window(window) { left->installEventFilter(this); }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Leave) {
            delete m_window;
            m_window = nullptr;
        }
        return false;
    }

private:
    QWidget* m_window;
};

TEST_F(Modal, OneThatDiesAsItIsShownIsGone)
{
    QWidget* doomed = new QWidget(nullptr, "doomed", Qt::WType_Dialog | Qt::WShowModal);
    xinput::moveTo(&top, 5, 5);
    settle();
    DeletesWhenLeft watcher(&top, doomed);
    doomed->show();
    EXPECT_NE(doomed, QApplication::activeModalWidget());
    settle();
}
