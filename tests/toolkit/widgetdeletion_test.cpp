// Widgets that are deleted by who hears of what happens to them, at any event: nothing of them is used
// afterwards.
#include "messages.h"
#include "perishable.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qcombobox.h>
#include <qfont.h>
#include <qguardedptr.h>
#include <qlayout.h>
#include <qlineedit.h>
#include <qpalette.h>
#include <qpixmap.h>

#include <X11/keysym.h>

#include <functional>

namespace
{

// The event that will be somebody's last: the one that comes when `left` has become 0 ends the victim.
struct Death {
    int left = 0;
    QGuardedPtr<QWidget> victim;
};

// Counts what it hears, and takes all input.
class Hearer : public QWidget
{
public:
    Hearer(Death* death, QWidget* parent) : QWidget(parent), m_death(death) {}

    bool event(QEvent* event) override { return diesNow() || QWidget::event(event); }
    void mousePressEvent(QMouseEvent*) override {}
    void keyPressEvent(QKeyEvent*) override {}
    void paletteChange(const QPalette&) override { diesNow(); }
    void fontChange(const QFont&) override { diesNow(); }
    void enabledChange(bool) override { diesNow(); }

private:
    bool diesNow()
    {
        Death* const death = m_death;
        if (death->left == 0 || --death->left > 0)
            return false;
        delete static_cast<QWidget*>(death->victim);
        return true;
    }

    Death* m_death;
};

using Mortal = Perishable<Hearer>;

// A window with a widget that holds two others, and a second window.
struct Family {
    explicit Family(Death* death)
        : window(new Mortal(death, nullptr)), outer(new Mortal(death, window)),
          inner(new Mortal(death, outer)), other(new Mortal(death, outer)), second(new Mortal(death, nullptr))
    {
        window->setGeometry(100, 100, 200, 150);
        second->setGeometry(400, 100, 100, 100);
        outer->setGeometry(20, 20, 150, 100);
        inner->setGeometry(10, 10, 40, 40);
        other->setGeometry(70, 10, 40, 40);
        for (QWidget* each : {outer, inner, other})
            each->setFocusPolicy(QWidget::StrongFocus);
    }
    ~Family()
    {
        for (const QGuardedPtr<QWidget>* each : {&inner, &other, &outer, &window, &second})
            delete static_cast<QWidget*>(*each);
    }

    QGuardedPtr<QWidget> window, outer, inner, other, second;
};

using Action = std::function<void(Family&)>;

// Does it once for each event that comes of it and for each victim.
class WidgetDeletion : public testing::Test
{
protected:
    ~WidgetDeletion() override { Graveyard::clear(); }

    void check(const Action& prepare, const Action& doIt)
    {
        int events = 0;
        for (QGuardedPtr<QWidget> Family::*victim :
             {&Family::window, &Family::outer, &Family::inner, &Family::other, &Family::second})
            for (int last = 1; diesAt(last, victim, prepare, doIt); ++last)
                ++events;
        EXPECT_GT(events, 0) << "somebody hears of it";
    }

private:
    // False if there were not so many events.
    bool diesAt(int last, QGuardedPtr<QWidget> Family::*victim, const Action& prepare, const Action& doIt)
    {
        Death death;
        bool happened = false;
        {
            Family family(&death);
            prepare(family);
            death.victim = family.*victim;
            death.left = last;
            doIt(family);
            settle();
            happened = death.left == 0;
            EXPECT_TRUE(!happened || (family.*victim).isNull());
            death.left = 0;
            xinput::releaseAll();
        }
        return happened;
    }
};

const Action nothing = [](Family&) {};

const Action showAll = [](Family& family) {
    xinput::park();
    family.second->show();
    family.window->show();
    family.window->setActiveWindow();
    waitFor([&] { return family.window->isActiveWindow(); });
    settle();
};

} // namespace

TEST_F(WidgetDeletion, WhileItIsShown)
{
    check(nothing, [](Family& family) { family.window->show(); });
}

TEST_F(WidgetDeletion, WhileItIsPolished)
{
    struct Shy : QWidget {
        void polish() override { delete this; }
    };
    (new Perishable<Shy>)->adjustSize();
    (new Perishable<Shy>)->show();
    QPixmap::grabWidget(new Perishable<Shy>);
}

TEST_F(WidgetDeletion, WhileItIsHidden)
{
    check(showAll, [](Family& family) { family.window->hide(); });
    check(showAll, [](Family& family) { family.outer->hide(); });
}

// Those of its children that are not hidden yet go without a window; a field with the focus has nothing to
// paint.
TEST_F(WidgetDeletion, BetweenTwoOfItsChildrenThatAreHidden)
{
    Death death;
    QGuardedPtr<QWidget> window = new Perishable<QWidget>;
    new Mortal(&death, window);
    QComboBox* const combo = new QComboBox(true, window);
    combo->setGeometry(20, 20, 100, 30);
    combo->setEditText("selected");
    showAndWait(window);
    window->setActiveWindow();
    combo->setFocus();
    ASSERT_TRUE(waitFor([&] { return combo->lineEdit()->hasFocus(); }));
    combo->lineEdit()->selectAll();
    death.victim = window;
    death.left = 1;
    window->hide();
    EXPECT_TRUE(window.isNull());
    Graveyard::clear();
    QApplication::syncX();
    EXPECT_EQ("", takeMessages());
}

TEST_F(WidgetDeletion, WhileItIsClosed)
{
    check(showAll, [](Family& family) { family.window->close(); });
    check(showAll, [](Family& family) { family.window->close(true); });
    check(showAll, [](Family& family) { xinput::closeWindow(family.window); });
}

TEST_F(WidgetDeletion, WhileItMovesToAnotherParent)
{
    check(showAll, [](Family& family) { family.inner->reparent(family.second, QPoint(5, 5), true); });
    check(showAll, [](Family& family) { family.outer->reparent(nullptr, QPoint(300, 300), true); });
    check(
        [](Family& family) {
            family.second->setEnabled(false);
            family.second->setFont(QFont("Helvetica", 20));
            family.second->setPalette(QPalette(Qt::red));
            family.window->show();
        },
        [](Family& family) { family.outer->reparent(family.second, QPoint(0, 0), false); });
}

TEST_F(WidgetDeletion, WhileAnOpenPopupBecomesAWindow)
{
    check(
        [](Family& family) {
            showAll(family);
            family.inner->setFocus();
            family.second->reparent(nullptr, Qt::WType_Popup, QPoint(400, 100), true);
        },
        [](Family& family) { family.second->reparent(nullptr, 0, QPoint(400, 100), true); });
}

TEST_F(WidgetDeletion, WhileItsPlaceChanges)
{
    check(showAll, [](Family& family) { family.outer->setGeometry(5, 5, 80, 60); });
    check(showAll, [](Family& family) { family.window->setGeometry(150, 120, 250, 200); });
    check(showAll, [](Family& family) { family.outer->setFixedSize(33, 44); });
}

TEST_F(WidgetDeletion, WhileItsLookChanges)
{
    check(showAll, [](Family& family) { family.outer->setEnabled(false); });
    check(showAll, [](Family& family) { family.window->setFont(QFont("Helvetica", 20)); });
    check(showAll, [](Family& family) { family.window->setPalette(QPalette(Qt::red)); });
    check(showAll, [](Family& family) { family.outer->repaint(); });
}

TEST_F(WidgetDeletion, WhileItTakesItsFontBack)
{
    check(
        [](Family& family) {
            family.outer->setFont(QFont("Helvetica", 20));
            showAll(family);
        },
        [](Family& family) { family.outer->unsetFont(); });
}

TEST_F(WidgetDeletion, WhileAnotherTakesItsPalette)
{
    check(
        [](Family& family) {
            family.second->setPalette(QPalette(Qt::red));
            showAll(family);
        },
        [](Family& family) { family.window->setPalette(family.second->palette()); });
}

TEST_F(WidgetDeletion, WhileItsContentsAreScrolled)
{
    check(showAll, [](Family& family) { family.outer->scroll(3, 4); });
}

TEST_F(WidgetDeletion, WhileItBecomesLarge)
{
    check(showAll, [](Family& family) { family.window->showMaximized(); });
    check(nothing, [](Family& family) { family.window->showFullScreen(); });
}

TEST_F(WidgetDeletion, WhileItsPictureIsTaken)
{
    check(nothing, [](Family& family) { QPixmap::grabWidget(family.window); });
    check(showAll, [](Family& family) { QPixmap::grabWidget(family.window); });
    EXPECT_EQ(takeMessages(), "");
}

TEST_F(WidgetDeletion, WhileALayoutPlacesIt)
{
    const Action inColumn = [](Family& family) {
        QVBoxLayout* const column = new QVBoxLayout(family.outer);
        column->add(family.inner);
        column->add(family.other);
        showAll(family);
    };
    check(inColumn, [](Family& family) { family.outer->resize(120, 80); });
    check(inColumn, [](Family& family) {
        family.outer->layout()->setMargin(7);
        family.outer->layout()->activate();
    });
    check(inColumn, [](Family& family) { family.outer->layout()->freeze(60, 50); });
}

TEST_F(WidgetDeletion, WhileTheFocusMoves)
{
    check(
        [](Family& family) {
            showAll(family);
            family.inner->setFocus();
        },
        [](Family& family) { family.other->setFocus(); });
    check(
        [](Family& family) {
            showAll(family);
            family.inner->setFocus();
        },
        [](Family&) { xinput::typeKey(XK_Tab); });
    check(showAll, [](Family& family) { family.second->setActiveWindow(); });
}

TEST_F(WidgetDeletion, WhileThePointerWorks)
{
    check(showAll, [](Family& family) { xinput::moveTo(family.inner, 5, 5); });
    check(
        [](Family& family) {
            showAll(family);
            xinput::moveTo(family.inner, 5, 5);
        },
        [](Family&) {
            xinput::pressButton(3);
            xinput::releaseButton(3);
        });
    check(
        [](Family& family) {
            showAll(family);
            xinput::moveTo(family.inner, 5, 5);
        },
        [](Family&) { xinput::pressButton(4); });
    check(
        [](Family& family) {
            showAll(family);
            xinput::moveTo(family.inner, 5, 5);
        },
        [](Family&) { xinput::park(); });
}

TEST_F(WidgetDeletion, WhileKeysArePressed)
{
    check(
        [](Family& family) {
            showAll(family);
            family.inner->setFocus();
        },
        [](Family&) { xinput::typeKey(XK_F1); });
}
