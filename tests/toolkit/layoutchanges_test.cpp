// What a layout does when its children or its window change.
#include "eventlog.h"
#include "layoutkid.h"
#include "messages.h"
#include "printers.h"
#include "sentevents.h"
#include "waiting.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qdialog.h>
#include <qlabel.h>
#include <qlayout.h>

#include <cstddef>
#include <memory>
#include <vector>

namespace
{

// A row of three in a panel of 200 by 100.
class Row : public testing::Test
{
protected:
    void SetUp() override
    {
        panel->setGeometry(0, 0, 200, 100);
        for (Kid* kid : {a, b, c})
            row->addWidget(kid);
        showAndWait(&window);
    }
    std::string settled()
    {
        settle();
        return places(panel);
    }

    QWidget window;
    QWidget* panel = new QWidget(&window, "panel");
    QHBoxLayout* row = new QHBoxLayout(panel, 5, 4, "row");
    Kid* a = new Kid(panel, preferred, QSize(30, 20));
    Kid* b = new Kid(panel, expanding, QSize(20, 20));
    Kid* c = new Kid(panel, fixed, QSize(10, 40));
};

TEST_F(Row, HiddenChildTakesNoRoom)
{
    EXPECT_EQ(settled(), "5,5 30x90 | 39,5 142x90 | 185,30 10x40");
    b->hide();
    EXPECT_EQ(settled(), "5,5 176x90 | 39,5 142x90* | 185,30 10x40");
    EXPECT_EQ(row->sizeHint(), QSize(54, 50));
    b->show();
    EXPECT_EQ(settled(), "5,5 30x90 | 39,5 142x90 | 185,30 10x40");
}

TEST_F(Row, WaitsForTheEventLoop)
{
    b->hide();
    EXPECT_EQ(places(panel), "5,5 30x90 | 39,5 142x90* | 185,30 10x40");
    EXPECT_TRUE(row->activate());
    EXPECT_EQ(places(panel), "5,5 176x90 | 39,5 142x90* | 185,30 10x40");
}

TEST_F(Row, FollowsTheSizesOfItsChildren)
{
    a->setMinimumWidth(70);
    EXPECT_EQ(settled(), "5,5 70x90 | 79,5 102x90 | 185,30 10x40");
    c->setFixedSize(33, 22);
    EXPECT_EQ(settled(), "5,5 70x90 | 79,5 79x90 | 162,39 33x22");
    a->setHint(QSize(90, 50));
    EXPECT_EQ(settled(), "5,5 70x90 | 79,5 79x90 | 162,39 33x22") << "nobody has said so";
    a->updateGeometry();
    EXPECT_EQ(settled(), "5,5 90x90 | 99,5 59x90 | 162,39 33x22");
}

TEST_F(Row, FollowsItsOwnSettings)
{
    row->setSpacing(20);
    EXPECT_EQ(settled(), "5,5 30x90 | 55,5 110x90 | 185,30 10x40");
    row->setMargin(1);
    EXPECT_EQ(settled(), "1,1 30x98 | 51,1 118x98 | 189,30 10x40");
    row->setDirection(QBoxLayout::RightToLeft);
    EXPECT_EQ(settled(), "169,1 30x98 | 31,1 118x98 | 1,30 10x40");
    row->setDirection(QBoxLayout::TopToBottom);
    EXPECT_EQ(settled(), "1,1 198x9 | 1,30 198x9 | 1,59 10x40");
}

TEST_F(Row, DeletedChildLeavesNoGap)
{
    delete b;
    EXPECT_EQ(settled(), "5,5 176x90 | 185,30 10x40");
    delete a;
    EXPECT_EQ(settled(), "95,30 10x40");
}

TEST_F(Row, ChildThatWasAddedTwiceLeavesNothing)
{
    row->addWidget(b);
    row->addStretch();
    delete b;
    EXPECT_EQ(settled(), "5,5 30x90 | 39,30 10x40");
    row->remove(nullptr);
    EXPECT_EQ(settled(), "5,5 30x90 | 39,30 10x40") << "a stretch is no widget";
}

TEST_F(Row, ChildThatMovesToAnotherParentLeavesTheLayout)
{
    b->reparent(&window, QPoint(0, 0), true);
    EXPECT_EQ(settled(), "5,5 176x90 | 185,30 10x40");
    EXPECT_EQ(row->findWidget(b), -1);
}

TEST_F(Row, RemovedChildStaysWhereItIs)
{
    row->remove(b);
    EXPECT_EQ(settled(), "5,5 176x90 | 39,5 142x90 | 185,30 10x40");
}

TEST_F(Row, DisabledLayoutLeavesEverythingAlone)
{
    row->setEnabled(false);
    panel->resize(150, 80);
    EXPECT_EQ(settled(), "5,5 30x90 | 39,5 142x90 | 185,30 10x40");
    EXPECT_FALSE(row->activate());
    row->setEnabled(true);
    EXPECT_TRUE(row->activate());
    EXPECT_EQ(places(panel), "5,5 30x70 | 39,5 92x70 | 135,20 10x40");
}

TEST_F(Row, DeletedLayoutLeavesTheChildrenAlone)
{
    delete row;
    EXPECT_EQ(panel->layout(), nullptr);
    panel->resize(250, 140);
    EXPECT_EQ(settled(), "5,5 30x90 | 39,5 142x90 | 185,30 10x40");
    QVBoxLayout* const column = new QVBoxLayout(panel);
    column->addWidget(b);
    panel->resize(60, 30);
    EXPECT_EQ(b->geometry(), QRect(0, 0, 60, 30));
}

TEST_F(Row, LayoutThatIsTakenAwayIsTheWidgetsNoMore)
{
    panel->removeChild(row);
    EXPECT_EQ(panel->layout(), nullptr);
    EXPECT_EQ(row->mainWidget(), nullptr);
    EXPECT_FALSE(row->activate());
    delete row;
    EXPECT_FALSE(panel->sizeHint().isValid());
    QVBoxLayout* const next = new QVBoxLayout(panel);
    EXPECT_EQ(panel->layout(), next);
}

TEST_F(Row, SecondLayoutIsRefused)
{
    QVBoxLayout second(panel, 1, 1, "second");
    EXPECT_EQ(takeMessages(), "QLayout \"second\" added to QWidget \"panel\", which already has a layout\n");
    EXPECT_EQ(panel->layout(), row);
    EXPECT_EQ(second.mainWidget(), nullptr);
}

TEST_F(Row, WidgetIsNotItsOwnChild)
{
    row->addWidget(panel);
    row->addWidget(nullptr);
    EXPECT_EQ(row->findWidget(panel), -1);
    EXPECT_NE(takeMessages(), "");
}

TEST_F(Row, NothingIsNoChild)
{
    row->add(nullptr);
    row->addLayout(nullptr);
    EXPECT_EQ(takeMessages(), "QLayout::add: A null widget cannot be put into layout \"row\"\n"
                              "QBoxLayout::insertLayout: A null layout cannot be put into layout \"row\"\n");
    EXPECT_TRUE(row->activate());
}

TEST_F(Row, NewChildIsAddedByItselfIfWished)
{
    row->setAutoAdd(true);
    Kid* const d = new Kid(panel, fixed, QSize(15, 15));
    EXPECT_EQ(row->findWidget(d), -1) << "not before the event loop";
    d->show();
    EXPECT_EQ(settled(), "5,5 30x90 | 39,5 123x90 | 166,30 10x40 | 180,42 15x15");
}

TEST_F(Row, FontOfTheWindowReachesTheHints)
{
    QLabel* const label = new QLabel("Words", panel);
    row->addWidget(label);
    label->show();
    settle();
    const int before = label->width();
    QFont large = panel->font();
    large.setPointSize(30);
    window.setFont(large);
    settle();
    EXPECT_GT(label->width(), 2 * before);
    EXPECT_EQ(label->x() + label->width(), 195);
}

TEST_F(Row, KeepsItsMinimumInsideOfAWindowOnlyIfWished)
{
    panel->resize(1, 1);
    EXPECT_EQ(panel->size(), QSize(1, 1));
    row->setResizeMode(QLayout::Minimum);
    EXPECT_EQ(panel->minimumSize(), QSize(30, 50));
    EXPECT_EQ(panel->size(), QSize(30, 50));
}

TEST_F(Row, OneRequestIsEnoughForManyChanges)
{
    EventCount hints(panel, QEvent::LayoutHint);
    EventCount moves(c, QEvent::Move);
    a->setMinimumWidth(50);
    b->setMinimumWidth(120);
    c->setFixedSize(20, 20);
    settle();
    EXPECT_EQ(hints.take(), 1);
    EXPECT_EQ(moves.take(), 1);
    a->setMinimumWidth(50);
    settle();
    EXPECT_EQ(hints.take(), 0) << "nothing has changed";
}

TEST(LayoutEvents, WindowIsArrangedBeforeItIsSeen)
{
    EventLog log;
    LoggedWidget window(&log, nullptr, "window");
    window.setGeometry(10, 10, 20, 20);
    LoggedWidget child(&log, &window, "child");
    child.setMinimumSize(60, 40);
    QVBoxLayout column(&window, 3);
    column.addWidget(&child);
    window.show();
    const std::string events = log.take();
    const size_t arranged = events.find("child Resize");
    EXPECT_NE(events.find("window Resize 66x46 from 20x20"), std::string::npos) << events;
    EXPECT_NE(arranged, std::string::npos) << events;
    EXPECT_LT(arranged, events.find("window Show")) << events;
    EXPECT_EQ(child.geometry(), QRect(3, 3, 60, 40));
}

// A window with two children, one of which may not be made lower.
class Window : public testing::Test
{
protected:
    void SetUp() override
    {
        column->addWidget(new Kid(&window, preferred, QSize(50, 30), QSize(20, 10)));
        column->addWidget(
            new Kid(&window, policy(QSizePolicy::Minimum, QSizePolicy::Minimum), QSize(40, 25)));
    }
    Kid* addWide()
    {
        Kid* const wide = new Kid(&window, fixed, QSize(90, 20));
        column->addWidget(wide);
        wide->show();
        settle();
        return wide;
    }
    QSize resized(int w, int h)
    {
        window.resize(w, h);
        settle();
        return window.size();
    }

    QWidget window;
    QVBoxLayout* column = new QVBoxLayout(&window, 3, 2);
};

TEST_F(Window, StartsWithItsSizeHintAndKeepsItsMinimum)
{
    showAndWait(&window);
    EXPECT_EQ(window.size(), QSize(56, 63));
    EXPECT_EQ(resized(10, 10), QSize(46, 43));
    EXPECT_EQ(resized(200, 200), QSize(200, 200));
    delete addWide();
    settle();
    EXPECT_EQ(resized(1, 1), QSize(46, 43));
    addWide();
    EXPECT_EQ(window.size(), QSize(96, 65)) << "it grows when it must";
}

TEST_F(Window, SizeOfTheProgramCountsBeforeTheHint)
{
    window.resize(300, 200);
    showAndWait(&window);
    EXPECT_EQ(window.size(), QSize(300, 200));
}

TEST_F(Window, FreeResizeKeepsNothing)
{
    column->setResizeMode(QLayout::FreeResize);
    showAndWait(&window);
    EXPECT_EQ(resized(10, 10), QSize(10, 10));
    addWide();
    EXPECT_EQ(window.minimumSize(), QSize(0, 0));
}

TEST_F(Window, FixedWindowIsAlwaysItsSizeHint)
{
    column->setResizeMode(QLayout::Fixed);
    showAndWait(&window);
    EXPECT_EQ(resized(200, 200), QSize(56, 63));
    addWide();
    EXPECT_EQ(window.size(), QSize(96, 85));
    EXPECT_EQ(window.minimumSize(), window.maximumSize());
}

TEST_F(Window, FrozenToASize)
{
    column->freeze(77, 66);
    EXPECT_EQ(window.size(), QSize(77, 66));
    EXPECT_EQ(window.maximumSize(), QSize(77, 66));
}

TEST_F(Window, AdjustsToWhatTheLayoutWants)
{
    showAndWait(&window);
    resized(200, 200);
    window.adjustSize();
    EXPECT_EQ(window.size(), QSize(56, 63));
    EXPECT_EQ(window.sizeHint(), QSize(56, 63));
    EXPECT_EQ(window.minimumSizeHint(), QSize(46, 43));
}

TEST(LayoutWindow, OneThatWantsToExpandIsOfUsefulSize)
{
    QWidget window;
    QVBoxLayout column(&window, 8);
    column.addWidget(new Kid(&window, expanding, QSize(10, 10)));
    showAndWait(&window);
    EXPECT_EQ(window.size(), QSize(200, 150));
}

TEST(LayoutWindow, NoneCoversTheScreen)
{
    QWidget window;
    QVBoxLayout column(&window);
    column.addWidget(new Kid(&window, preferred, QSize(20000, 15000), QSize(10, 10)));
    showAndWait(&window);
    const QSize screen = QApplication::desktop()->size();
    EXPECT_EQ(window.size(), QSize(screen.width() * 2 / 3, screen.height() * 2 / 3));
}

TEST(LayoutWindow, DialogIsArrangedToo)
{
    QDialog dialog;
    QVBoxLayout column(&dialog, 11, 6);
    Kid kid(&dialog, preferred, QSize(123, 45));
    column.addWidget(&kid);
    showAndWait(&dialog);
    EXPECT_EQ(dialog.size(), QSize(145, 67));
    EXPECT_EQ(kid.geometry(), QRect(11, 11, 123, 45));
}

TEST(LayoutWindow, ChangeDeepInsideReachesTheWindow)
{
    QWidget window;
    QVBoxLayout outer(&window, 4, 3);
    QWidget* const inside = new QWidget(&window);
    outer.addWidget(new Kid(&window, expanding, QSize(40, 40)));
    outer.addWidget(inside);
    QHBoxLayout* const row = new QHBoxLayout(inside, 2, 1);
    row->addWidget(new Kid(inside, fixed, QSize(20, 30)));
    showAndWait(&window);
    EXPECT_EQ(window.minimumSize(), QSize(32, 46));
    Kid* const more = new Kid(inside, fixed, QSize(300, 200));
    row->addWidget(more);
    more->show();
    ASSERT_TRUE(waitFor([&] { return window.width() == 333; })) << window.width();
    EXPECT_EQ(window.minimumSize(), QSize(333, 216));
    delete more;
    EXPECT_TRUE(waitFor([&] { return window.minimumSize() == QSize(32, 46); }));
}

TEST(LayoutWindow, GoesWithItsLayoutsAndChildrenInAnyOrder)
{
    for (int order = 0; order < 4; ++order) {
        std::unique_ptr<QWidget> window(new QWidget);
        QVBoxLayout* const outer = new QVBoxLayout(window.get());
        QHBoxLayout* const inner = new QHBoxLayout(outer);
        Kid* const kid = new Kid(window.get(), preferred, QSize(10, 10));
        inner->addWidget(kid);
        showAndWait(window.get());
        if (order == 0)
            delete kid;
        else if (order == 1)
            delete inner;
        else if (order == 2)
            delete outer;
        settle();
        window->resize(77, 77);
        if (order == 1) {
            EXPECT_EQ(outer->iterator().current(), nullptr);
        }
        window.reset();
        settle();
    }
}

// Boxes, children and their layouts come, go and change in any order; the window stays as
// large as it must be. Meant above all for the sanitizers.
class Changes : public testing::TestWithParam<unsigned>
{
protected:
    unsigned pick(size_t count)
    {
        m_state = m_state * 1664525u + 1013904223u;
        return static_cast<unsigned>((m_state >> 8) % count);
    }
    QBoxLayout* anyBox() { return boxes[pick(boxes.size())]; }
    void add()
    {
        Kid* const kid = new Kid(&window, preferred, QSize(5 + pick(60), 5 + pick(40)));
        kids.push_back(kid);
        anyBox()->insertWidget(static_cast<int>(pick(3)) - 1, kid, static_cast<int>(pick(3)), pick(70));
        if (pick(4))
            kid->show();
    }
    void take(bool away)
    {
        if (kids.empty())
            return;
        const size_t index = pick(kids.size());
        if (away)
            kids[index]->reparent(&elsewhere, QPoint(0, 0), pick(2));
        else
            delete kids[index];
        kids.erase(kids.begin() + static_cast<std::ptrdiff_t>(index));
    }
    void nest() { boxes.push_back(new QVBoxLayout(anyBox(), static_cast<int>(pick(9)))); }
    // One without other boxes inside.
    void deleteBox()
    {
        if (boxes.size() > 1) {
            delete boxes.back();
            boxes.pop_back();
        }
    }
    void change()
    {
        QBoxLayout* const box = anyBox();
        box->setDirection(static_cast<QBoxLayout::Direction>(pick(4)));
        box->setSpacing(static_cast<int>(pick(10)));
        box->setMargin(static_cast<int>(pick(10)));
        if (pick(5) == 0)
            box->addStretch(static_cast<int>(pick(3)));
    }
    void hideOrShow()
    {
        if (kids.empty())
            return;
        Kid* const kid = kids[pick(kids.size())];
        if (kid->isHidden())
            kid->show();
        else
            kid->hide();
    }

    QWidget window;
    QWidget elsewhere;
    std::vector<QBoxLayout*> boxes;
    std::vector<Kid*> kids;

private:
    unsigned m_state = GetParam();
};

TEST_P(Changes, InAnyOrderDoNoHarm)
{
    boxes.push_back(new QHBoxLayout(&window, 4, 3));
    showAndWait(&window);
    for (int step = 0; step < 300; ++step) {
        switch (pick(9)) {
        case 0:
        case 1:
        case 2:
            add();
            break;
        case 3:
            take(pick(3) == 0);
            break;
        case 4:
            nest();
            break;
        case 5:
            deleteBox();
            break;
        case 6:
            change();
            break;
        case 7:
            hideOrShow();
            break;
        default:
            window.resize(static_cast<int>(pick(900)), static_cast<int>(pick(700)));
        }
        if (pick(3) == 0)
            qApp->processEvents();
    }
    settle();
    EXPECT_GE(window.width(), boxes[0]->minimumSize().width());
    EXPECT_GE(window.height(), boxes[0]->minimumSize().height());
}

INSTANTIATE_TEST_SUITE_P(Seeds, Changes, testing::Range(1u, 9u));

} // namespace
