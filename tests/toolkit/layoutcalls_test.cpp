// Layouts and their items in the hands of their program.
#include "printers.h"
#include "waiting.h"

#include <gtest/gtest.h>
#include <qhbox.h>
#include <qlayout.h>
#include <qptrlist.h>

namespace
{

QWidget* child(QWidget* parent, int width, int height)
{
    QWidget* widget = new QWidget(parent);
    widget->setFixedSize(width, height);
    return widget;
}

class Box : public QHBox
{
public:
    explicit Box(bool horizontal) : QHBox(horizontal, nullptr, "box", 0) {}
};

// A layout of a program's own, which puts all its items on top of each other.
class Pile : public QLayout
{
public:
    explicit Pile(QWidget* parent) : QLayout(parent, 2, 3, "pile") {}
    explicit Pile(QLayout* parent) : QLayout(parent, 4, "inner pile") {}
    Pile() : QLayout(5, "free pile") {}
    ~Pile() override { deleteAllItems(); }

    void addItem(QLayoutItem* item) override { items.append(item); }
    QSize sizeHint() const override { return QSize(20, 10); }
    void setGeometry(const QRect& rect) override
    {
        QLayout::setGeometry(rect);
        for (QPtrListIterator<QLayoutItem> each(items); each.current(); ++each)
            each.current()->setGeometry(rect);
    }
    QLayoutIterator iterator() override { return QLayoutIterator(new Items(&items)); }

private:
    class Items : public QGLayoutIterator
    {
    public:
        explicit Items(QPtrList<QLayoutItem>* of) : list(of) {}
        QLayoutItem* current() override { return list->at(place); }
        QLayoutItem* next() override { return list->at(++place); }
        QLayoutItem* takeCurrent() override { return place < list->count() ? list->take(place) : nullptr; }

    private:
        QPtrList<QLayoutItem>* list;
        uint place = 0;
    };

    QPtrList<QLayoutItem> items;
};

} // namespace

TEST(LayoutCalls, ProgramsMayHaveTheirOwn)
{
    QWidget window(nullptr, "window");
    Pile* pile = new Pile(&window);
    EXPECT_EQ(2, pile->margin());
    EXPECT_EQ(3, pile->spacing());
    Pile* inner = new Pile(pile);
    EXPECT_EQ(4, inner->spacing());
    Pile lonely;
    EXPECT_EQ(5, lonely.spacing());
    QWidget* all = new QWidget(&window);
    inner->add(all);
    window.resize(100, 50);
    pile->activate();
    EXPECT_EQ(QRect(0, 0, 100, 50), all->geometry());
    int count = 0;
    for (QLayoutIterator each = pile->iterator(); each.current(); ++each)
        ++count;
    EXPECT_EQ(1, count);
}

TEST(LayoutCalls, TellWhatTheyAre)
{
    QWidget window(nullptr, "window");
    QBoxLayout* layout = new QBoxLayout(&window, QBoxLayout::TopToBottom, 4, 3);
    EXPECT_EQ(QBoxLayout::TopToBottom, layout->direction());
    EXPECT_TRUE(layout->isTopLevel());
    EXPECT_TRUE(layout->supportsMargin());
    EXPECT_EQ(3, layout->defaultBorder());
    EXPECT_EQ(QLayout::Auto, layout->resizeMode());
    EXPECT_TRUE(layout->isEnabled());
    layout->setEnabled(false);
    EXPECT_FALSE(layout->isEnabled());
    EXPECT_FALSE(layout->autoAdd());
    layout->setAutoAdd(true);
    EXPECT_TRUE(layout->autoAdd());
    QBoxLayout* inner = new QBoxLayout(layout, QBoxLayout::LeftToRight, 7, "inner");
    EXPECT_FALSE(inner->isTopLevel());
    EXPECT_EQ(7, inner->spacing());
    const QBoxLayout lonely(QBoxLayout::RightToLeft, 6, "lonely");
    EXPECT_EQ(QBoxLayout::RightToLeft, lonely.direction());
    EXPECT_EQ(6, lonely.spacing());
}

TEST(LayoutCalls, AddUpSizes)
{
    QWidget window(nullptr, "window");
    QVBoxLayout* layout = new QVBoxLayout(&window, 5, 2);
    layout->add(child(&window, 30, 10));
    layout->add(child(&window, 20, 10));
    EXPECT_EQ(QSize(40, 32), layout->totalSizeHint());
    EXPECT_EQ(QSize(40, 32), layout->totalMinimumSize());
    EXPECT_EQ(32, layout->totalMaximumSize().height());
    EXPECT_EQ(-1, layout->totalHeightForWidth(100)) << "no child's height depends on its width";
    EXPECT_EQ(32, layout->minimumHeightForWidth(100));
    layout->freeze();
    EXPECT_EQ(QLayout::Fixed, layout->resizeMode());
    layout->activate();
    EXPECT_EQ(QSize(40, 32), window.minimumSize());
    EXPECT_EQ(QSize(40, 32), window.maximumSize());
}

TEST(LayoutCalls, TakeLayoutsAnywhereAndGiveItemsAway)
{
    QWidget window(nullptr, "window");
    QVBoxLayout* layout = new QVBoxLayout(&window);
    QWidget* last = child(&window, 30, 10);
    layout->addWidget(last, 0, Qt::AlignRight);
    QVBoxLayout* inner = new QVBoxLayout(4, "inner");
    layout->insertLayout(0, inner);
    QWidget* first = child(&window, 30, 10);
    inner->addWidget(first);
    window.resize(100, 100);
    layout->activate();
    EXPECT_LT(first->y(), last->y());

    layout->addSpacing(12);
    QLayoutIterator items = layout->iterator();
    EXPECT_EQ(inner, items.current()->layout());
    EXPECT_FALSE(items.current()->spacerItem());
    ++items;
    EXPECT_EQ(Qt::AlignRight, items.current()->alignment());
    QLayoutIterator same(items);
    QLayoutIterator assigned = layout->iterator();
    assigned = same;
    EXPECT_EQ(items.current(), assigned.current());
    ++items;
    EXPECT_TRUE(items.current()->spacerItem());
    items.deleteCurrent();
    EXPECT_FALSE(items.current());
    QLayoutIterator fresh = layout->iterator();
    ++fresh;
    QLayoutItem* taken = fresh.takeCurrent();
    ASSERT_TRUE(taken);
    EXPECT_EQ(last, taken->widget());
    delete taken;
}

TEST(LayoutCalls, RememberSizesUntilInvalidated)
{
    QWidget window(nullptr, "window");
    QVBoxLayout* layout = new QVBoxLayout(&window);
    QWidget* widget = child(&window, 30, 10);
    QWidgetItem item(widget);
    EXPECT_EQ(QSize(30, 10), item.minimumSize());
    item.invalidate();
    layout->addWidget(widget);
    EXPECT_EQ(QSize(30, 10), layout->minimumSize());
    widget->setFixedSize(50, 60);
    layout->invalidate();
    EXPECT_EQ(QSize(50, 60), layout->minimumSize());
}

TEST(LayoutCalls, BoxesMayBeUpright)
{
    Box across(true);
    Box upright(false);
    for (Box* box : {&across, &upright}) {
        child(box, 30, 10);
        child(box, 30, 10);
    }
    EXPECT_EQ(QSize(60, 10), across.sizeHint());
    EXPECT_EQ(QSize(30, 20), upright.sizeHint());
}
