// Rows and columns: who gets how much room.
#include "layoutkid.h"
#include "printers.h"
#include "waiting.h"

#include <gtest/gtest.h>
#include <qlayout.h>

#include <climits>
#include <memory>
#include <vector>

namespace
{

using Policy = QSizePolicy::SizeType;
constexpr QBoxLayout::Direction right = QBoxLayout::LeftToRight;
constexpr QBoxLayout::Direction down = QBoxLayout::TopToBottom;

class Box : public testing::Test
{
protected:
    QBoxLayout* make(QBoxLayout::Direction direction, int margin = 0, int spacing = 0)
    {
        box = new QBoxLayout(&panel, direction, margin, spacing, "box");
        return box;
    }
    Kid* add(const QSizePolicy& policy, int w, int h, int stretch = 0, int alignment = 0)
    {
        Kid* const kid = new Kid(&panel, policy, QSize(w, h));
        box->addWidget(kid, stretch, alignment);
        return kid;
    }
    Kid* addAcross(Policy across, int w, int stretch = 0)
    {
        return add(policy(across, QSizePolicy::Preferred), w, 20, stretch);
    }
    // The places of the children when the panel has that size.
    std::string at(int w, int h)
    {
        if (!window.isVisible())
            showAndWait(&window);
        panel.resize(w, h);
        return places(&panel);
    }
    // The widths of the children of a row of that width.
    std::vector<int> widths(int w)
    {
        at(w, 20);
        std::vector<int> result;
        for (QLayoutIterator it = box->iterator(); it.current(); ++it)
            result.push_back(it.current()->geometry().width());
        return result;
    }

    struct Part {
        Policy policy;
        int hint;
        int stretch;
    };
    // How the children of a row share that width.
    std::vector<int> shares(int w, const std::vector<Part>& parts)
    {
        make(right);
        for (const Part& part : parts)
            addAcross(part.policy, part.hint, part.stretch);
        return widths(w);
    }

    QWidget window;
    QWidget panel{&window};
    QBoxLayout* box = nullptr;
};

using Widths = std::vector<int>;

TEST_F(Box, FirstChildIsFirst)
{
    make(right, 4, 3);
    add(fixed, 30, 20);
    add(fixed, 10, 10);
    EXPECT_EQ(at(51, 28), "4,4 30x20 | 37,9 10x10");
}

TEST_F(Box, BackwardsTheFirstChildIsLast)
{
    make(QBoxLayout::RightToLeft, 4, 3);
    add(fixed, 30, 20);
    add(fixed, 10, 10);
    EXPECT_EQ(at(51, 28), "17,4 30x20 | 4,9 10x10");
    box->setDirection(QBoxLayout::BottomToTop);
    EXPECT_EQ(at(38, 41), "4,17 30x20 | 4,4 10x10");
}

TEST_F(Box, AsksForTheSumOneWayAndTheMostTheOther)
{
    make(right, 4, 3);
    add(preferred, 30, 20);
    add(fixed, 10, 25);
    EXPECT_EQ(sizes(box), "51x33 22x33 32788x33");
    box->setDirection(down);
    EXPECT_EQ(sizes(box), "18x56 18x37 18x32803") << "no wider than its narrowest child may become";
}

TEST_F(Box, GrowsAndShrinksAsThePolicyAllows)
{
    struct Case {
        Policy policy;
        int narrow;
        int wide;
    };
    for (const Case& c : {Case{QSizePolicy::Fixed, 30, 30}, Case{QSizePolicy::Minimum, 30, 100},
                          Case{QSizePolicy::Maximum, 12, 30}, Case{QSizePolicy::Preferred, 12, 100},
                          Case{QSizePolicy::MinimumExpanding, 30, 100}, Case{QSizePolicy::Expanding, 12, 100},
                          Case{QSizePolicy::Ignored, 1, 100}}) {
        QWidget top;
        QHBoxLayout* const row = new QHBoxLayout(&top);
        row->setResizeMode(QLayout::FreeResize);
        Kid* const kid = new Kid(&top, policy(c.policy, QSizePolicy::Preferred), QSize(30, 20), QSize(12, 8));
        row->addWidget(kid);
        top.resize(1, 20);
        showAndWait(&top);
        EXPECT_EQ(kid->width(), c.narrow) << c.policy;
        top.resize(100, 20);
        EXPECT_EQ(kid->width(), c.wide) << c.policy;
    }
}

TEST_F(Box, ChildThatMayNotFillItsRoomIsInTheMiddle)
{
    make(right);
    add(fixed, 30, 20);
    EXPECT_EQ(at(100, 60), "35,20 30x20");
}

TEST_F(Box, AlignedChildKeepsItsSize)
{
    make(right);
    add(preferred, 30, 20, 0, Qt::AlignRight | Qt::AlignBottom);
    EXPECT_EQ(at(100, 60), "70,40 30x20");
    EXPECT_EQ(at(20, 10), "0,0 20x10");
    QLayoutItem* const item = box->iterator().current();
    item->setAlignment(Qt::AlignLeft);
    box->activate();
    EXPECT_EQ(at(101, 60), "0,0 30x60");
    item->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    box->activate();
    EXPECT_EQ(at(100, 60), "35,0 30x20");
}

TEST_F(Box, SurplusGoesToWhoWantsToExpand)
{
    EXPECT_EQ(shares(100, {{QSizePolicy::Preferred, 30, 0},
                           {QSizePolicy::Expanding, 20, 0},
                           {QSizePolicy::Minimum, 10, 0}}),
              (Widths{30, 60, 10}));
}

TEST_F(Box, SurplusGoesToAllIfNobodyWantsIt)
{
    EXPECT_EQ(
        shares(100,
               {{QSizePolicy::Preferred, 30, 0}, {QSizePolicy::Fixed, 20, 0}, {QSizePolicy::Minimum, 10, 0}}),
        (Widths{40, 20, 40}));
}

TEST_F(Box, StretchCountsMoreThanExpanding)
{
    EXPECT_EQ(shares(100, {{QSizePolicy::Preferred, 30, 1},
                           {QSizePolicy::Expanding, 20, 0},
                           {QSizePolicy::Preferred, 10, 3}}),
              (Widths{20, 20, 60}));
}

TEST_F(Box, WidgetMayBringItsStretch)
{
    make(right);
    for (uchar stretch : {1, 3})
        add(QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred, stretch, 0), 10, 20);
    EXPECT_EQ(widths(100), (Widths{25, 75}));
    box->setStretchFactor(box->iterator().current()->widget(), 9);
    EXPECT_EQ(widths(120), (Widths{90, 30})) << "what the box was told counts more";
    box->setDirection(down);
    EXPECT_EQ(at(50, 100), "0,0 50x80 | 0,80 50x20");
}

TEST_F(Box, WithStretchWantsToExpandItself)
{
    make(right);
    addAcross(QSizePolicy::Preferred, 30);
    EXPECT_EQ(box->expanding(), QSizePolicy::NoDirection);
    box->setStretchFactor(addAcross(QSizePolicy::Preferred, 30), 1);
    EXPECT_EQ(box->expanding(), QSizePolicy::Horizontally);
    box->setDirection(down);
    EXPECT_EQ(box->expanding(), QSizePolicy::Vertically);
}

TEST_F(Box, StretchSharesInProportionAndLeavesNoPixelOut)
{
    make(right);
    for (int stretch : {1, 2, 4})
        addAcross(QSizePolicy::Preferred, 5, stretch);
    for (int w = 21; w < 400; ++w) {
        const Widths all = widths(w);
        ASSERT_EQ(all[0] + all[1] + all[2], w);
        ASSERT_NEAR(all[0], w / 7.0, 1) << w;
        ASSERT_NEAR(all[1], 2 * w / 7.0, 1) << w;
    }
}

TEST_F(Box, LimitsOfTheProgramCountMoreThanHints)
{
    make(right);
    Kid* const a = addAcross(QSizePolicy::Expanding, 30);
    addAcross(QSizePolicy::Expanding, 30);
    a->setMaximumWidth(40);
    EXPECT_EQ(widths(200), (Widths{40, 160}));
    a->setMinimumWidth(35);
    box->activate();
    EXPECT_EQ(widths(30), (Widths{35, 1}));
    a->setFixedWidth(10);
    box->activate();
    EXPECT_EQ(widths(100), (Widths{10, 90}));
}

TEST_F(Box, TooLittleRoomIsTakenFromAllDownToTheirMinimum)
{
    EXPECT_EQ(shares(60, {{QSizePolicy::Preferred, 30, 0},
                          {QSizePolicy::Minimum, 30, 0},
                          {QSizePolicy::Preferred, 10, 0}}),
              (Widths{25, 30, 5}));
    EXPECT_EQ(widths(50), (Widths{19, 30, 1}));
    EXPECT_EQ(widths(2), (Widths{1, 30, 1})); // they reach out
}

TEST_F(Box, ChildBeyondTheEdgeStaysItsSize)
{
    make(right, 0, 5);
    add(fixed, 50, 10);
    add(fixed, 50, 10);
    EXPECT_EQ(at(20, 10), "0,0 50x10 | 55,0 50x10");
}

TEST_F(Box, SpacingsAndStretchesAreRoom)
{
    make(right, 0, 3);
    box->addStretch();
    add(fixed, 20, 10);
    box->addSpacing(7);
    add(fixed, 20, 10);
    EXPECT_EQ(at(100, 10), "50,0 20x10 | 80,0 20x10");
    EXPECT_EQ(box->sizeHint(), QSize(50, 10));
    box->insertStretch(-1, 3);
    EXPECT_EQ(at(101, 10), "0,0 20x10 | 30,0 20x10")
        << "an unweighted stretch gets nothing beside a weighted";
}

TEST_F(Box, SpacingsTurnWithTheBox)
{
    make(right);
    add(fixed, 20, 10);
    box->addSpacing(7);
    add(fixed, 20, 10);
    box->setDirection(down);
    EXPECT_EQ(box->sizeHint(), QSize(20, 27));
}

TEST_F(Box, StrutHoldsTheBoxOpenAcross)
{
    make(right, 2);
    add(fixed, 20, 10);
    box->addStrut(50);
    EXPECT_EQ(box->sizeHint(), QSize(24, 54));
    EXPECT_EQ(box->minimumSize(), QSize(24, 54));
    box->setDirection(down);
    EXPECT_EQ(box->sizeHint(), QSize(54, 14));
}

TEST_F(Box, SpacingOfMinusOneIsTheMarginOrTheOuterBoxsSpacing)
{
    make(down, 11, -1);
    EXPECT_EQ(box->spacing(), 11);
    QHBoxLayout* const inner = new QHBoxLayout(box);
    EXPECT_EQ(inner->spacing(), 11);
    EXPECT_EQ(inner->margin(), 0);
    QHBoxLayout* const later = new QHBoxLayout();
    EXPECT_EQ(later->spacing(), -1);
    box->addLayout(later);
    EXPECT_EQ(later->spacing(), 11);
    box->setSpacing(2);
    EXPECT_EQ(inner->spacing(), 11) << "only new ones take it over";
}

TEST_F(Box, BoxesInBoxes)
{
    make(down, 6, 4);
    QHBoxLayout* const row = new QHBoxLayout(box, 8);
    Kid* const below = add(expanding, 40, 20);
    row->addWidget(new Kid(&panel, preferred, QSize(30, 20)));
    row->addStretch(1);
    row->addWidget(new Kid(&panel, fixed, QSize(20, 30)));
    EXPECT_EQ(sizes(box), "70x66 41x47 524287x32813");
    EXPECT_EQ(at(300, 200), "6,40 288x154 | 6,6 30x30 | 274,6 20x30");
    EXPECT_EQ(row->geometry(), QRect(6, 6, 288, 30));
    EXPECT_TRUE(box->setStretchFactor(row, 1));
    EXPECT_TRUE(box->setStretchFactor(below, 1));
    EXPECT_FALSE(row->setStretchFactor(below, 1)) << "it is in the other one";
}

TEST_F(Box, MarginOfAnInnerBoxIsInsideIt)
{
    make(down);
    QHBoxLayout* const row = new QHBoxLayout(box);
    row->setMargin(5);
    row->addWidget(new Kid(&panel, fixed, QSize(20, 10)));
    EXPECT_EQ(box->sizeHint(), QSize(30, 20));
    EXPECT_EQ(at(30, 20), "5,5 20x10");
}

TEST_F(Box, ItemsAreFoundInsertedAndDropped)
{
    make(right);
    Kid* const a = add(fixed, 10, 10);
    Kid* const b = add(fixed, 20, 10);
    Kid* const c = new Kid(&panel, fixed, QSize(5, 10));
    Kid* const d = new Kid(&panel, fixed, QSize(5, 10));
    box->insertWidget(1, c);
    box->insertSpacing(0, 9);
    EXPECT_EQ(box->findWidget(a), 1);
    EXPECT_EQ(box->findWidget(c), 2);
    EXPECT_EQ(box->findWidget(b), 3);
    EXPECT_EQ(box->findWidget(&panel), -1);
    box->insertWidget(100, d);
    EXPECT_EQ(box->findWidget(d), -1) << "there is no such place";
    box->remove(c);
    EXPECT_EQ(box->findWidget(c), -1);
    EXPECT_EQ(c->parentWidget(), &panel);
    EXPECT_EQ(box->sizeHint(), QSize(39, 10));
}

TEST_F(Box, ColumnIsAsHighAsItsWidthMakesIt)
{
    class Text : public Kid
    {
    public:
        using Kid::Kid;
        int heightForWidth(int width) const override { return 600 / QMAX(1, width); }
    };
    make(down, 2, 3);
    Text* const flow =
        new Text(&panel, QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred, true), QSize(30, 20));
    box->addWidget(flow);
    add(fixed, 40, 10);
    EXPECT_TRUE(box->hasHeightForWidth());
    EXPECT_EQ(box->heightForWidth(104), 6 + 10 + 3 + 4);
    EXPECT_EQ(box->heightForWidth(34), 20 + 10 + 3 + 4);
    EXPECT_EQ(at(104, 23), "2,2 100x6 | 2,11 40x10");
}

TEST_F(Box, OwnSpacersFollowTheirPolicy)
{
    make(right);
    QSpacerItem* const spacer = new QSpacerItem(20, 10, QSizePolicy::Expanding, QSizePolicy::Fixed);
    box->addItem(spacer);
    add(fixed, 30, 10);
    EXPECT_EQ(widths(100), (Widths{70, 30}));
    spacer->changeSize(5, 5, QSizePolicy::Fixed, QSizePolicy::Fixed);
    box->activate();
    EXPECT_EQ(spacer->geometry().width(), 5);
    box->removeItem(spacer);
    delete spacer; // it is the caller's again
    EXPECT_EQ(widths(30), (Widths{30}));
}

TEST_F(Box, NumbersOutOfAllMeasureDoNoHarm)
{
    make(right);
    add(preferred, 10, 10, INT_MAX);
    add(preferred, 10, 10, INT_MAX);
    add(preferred, 10, 10, INT_MIN);
    box->addSpacing(INT_MAX);
    box->addSpacing(INT_MAX);
    box->addSpacing(INT_MIN);
    box->addStretch(INT_MAX);
    box->addStrut(INT_MAX);
    for (int size : {1, 100, 30000})
        at(size, size);
    EXPECT_LE(box->sizeHint().width(), QLAYOUTSIZE_MAX);
    EXPECT_GE(box->sizeHint().width(), 0);
}

TEST(SizePolicy, SaysWhatMayGrowAndShrink)
{
    const QSizePolicy most(QSizePolicy::Maximum, QSizePolicy::Ignored);
    EXPECT_TRUE(most.mayShrinkHorizontally());
    EXPECT_FALSE(most.mayGrowHorizontally());
    EXPECT_TRUE(most.mayShrinkVertically());
    EXPECT_TRUE(most.mayGrowVertically());
    EXPECT_EQ(most.expanding(), QSizePolicy::Vertically);
    EXPECT_EQ(QSizePolicy(QSizePolicy::Expanding, QSizePolicy::MinimumExpanding).expanding(),
              QSizePolicy::BothDirections);
    EXPECT_EQ(QSizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
}

TEST(SizePolicy, KeepsItsPartsApart)
{
    QSizePolicy policy(QSizePolicy::Fixed, QSizePolicy::Expanding, 3, 200, true);
    policy.transpose();
    EXPECT_EQ(policy.horData(), QSizePolicy::Expanding);
    EXPECT_EQ(policy.verData(), QSizePolicy::Fixed);
    EXPECT_EQ(policy.horStretch(), 200u);
    EXPECT_EQ(policy.verStretch(), 3u);
    EXPECT_TRUE(policy.hasHeightForWidth());
    policy.setHeightForWidth(false);
    policy.setVerStretch(0);
    policy.setHorData(QSizePolicy::Minimum);
    EXPECT_EQ(policy, QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed, 200, 0));
}

} // namespace
