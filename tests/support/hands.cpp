#include "hands.h"

#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qobjectlist.h>
#include <qpushbutton.h>

Hands::Hands(const std::function<void(QWidget*)>& work) : m_work(work), m_done(false)
{
    startTimer(20);
}

Hands::~Hands()
{
    EXPECT_TRUE(m_done) << "no modal window came";
}

void Hands::timerEvent(QTimerEvent*)
{
    QWidget* const window = QApplication::activeModalWidget();
    if (!window || m_done)
        return;
    m_done = true;
    killTimers();
    waitFor([window] { return xinput::isViewable(window->winId()); });
    window->setActiveWindow();
    waitFor([window] { return window->isActiveWindow(); });
    settle();
    m_work(window);
    // A window manager that is asked to close it takes its turn.
    const bool closed = waitFor([window] { return QApplication::activeModalWidget() != window; });
    settle();
    if (!closed) {
        ADD_FAILURE() << "the window stayed open";
        window->close();
    }
}

void clickButton(QWidget* window, const char* text)
{
    QObjectList* const buttons = window->queryList("QPushButton");
    QPushButton* found = nullptr;
    for (QObject* each = buttons->first(); each; each = buttons->next())
        if (static_cast<QPushButton*>(each)->text() == text)
            found = static_cast<QPushButton*>(each);
    delete buttons;
    ASSERT_NE(found, nullptr) << text;
    xinput::click(found, found->width() / 2, found->height() / 2);
}

QWidget* childNamed(QWidget* window, const char* name)
{
    QObject* const child = window->child(name, "QWidget");
    EXPECT_NE(child, nullptr) << name;
    return static_cast<QWidget*>(child);
}
