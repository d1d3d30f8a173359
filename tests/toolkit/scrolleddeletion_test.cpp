// Lists, scroll views and scroll bars that are deleted by who listens to their signals.
#include "controldeletion.h"

#include <qlistbox.h>
#include <qscrollbar.h>
#include <qscrollview.h>

namespace
{

// An entry that may become another one while nobody looks.
class Growing : public QListBoxItem
{
public:
    explicit Growing(QListBox* list) : QListBoxItem(list) {}
    int height(const QListBox*) const override { return tall ? 12 : 1; }
    static bool tall;

protected:
    void paint(QPainter*) override {}
};

bool Growing::tall = true;

// Dies of the first event that it hears of by filtering its viewport's.
class MortalListBox : public QListBox
{
public:
    explicit MortalListBox(QWidget* parent) : QListBox(parent) {}

protected:
    void mousePressEvent(QMouseEvent*) override { delete this; }
};

} // namespace

TEST_F(ControlDeletion, OfAListBox)
{
    const char* const moving = SIGNAL(contentsMoving(int, int));
    const auto quietly = [](QListBox* l, const std::function<void(QListBox*)>& doIt) {
        l->blockSignals(true);
        doIt(l);
        l->blockSignals(false);
    };
    const auto press = [](QListBox* l) { xinput::click(l->viewport(), 10, 20); };
    const auto right = [](QListBox* l) { xinput::click(l->viewport(), 10, 20, 3); };
    const auto twice = [](QListBox* l) { xinput::doubleClick(l->viewport(), 10, 5); };
    const auto down = [](QListBox* l) { sendKey(l, Qt::Key_Down); };
    const auto enter = [](QListBox* l) { sendKey(l, Qt::Key_Return); };
    const auto space = [=](QListBox* l) {
        quietly(l, [](QListBox* list) { list->setSelectionMode(QListBox::Multi); });
        sendKey(l, Qt::Key_Space);
    };
    const auto last = [](QListBox* l) {
        for (int i = 0; i < 20; ++i)
            l->insertItem("Another");
        l->setCurrentItem(22);
    };
    const Case<QListBox> cases[] = {
        {SIGNAL(highlighted(int)), down},
        {SIGNAL(highlighted(const QString&)), down},
        {SIGNAL(highlighted(QListBoxItem*)), down},
        {SIGNAL(selectionChanged()), down},
        {SIGNAL(selectionChanged(QListBoxItem*)), down},
        {SIGNAL(currentChanged(QListBoxItem*)), down},
        {SIGNAL(highlighted(int)), press},
        {SIGNAL(selectionChanged()), press},
        {SIGNAL(pressed(QListBoxItem*)), press},
        {SIGNAL(pressed(QListBoxItem*, const QPoint&)), press},
        {SIGNAL(mouseButtonPressed(int, QListBoxItem*, const QPoint&)), press},
        {SIGNAL(clicked(QListBoxItem*)), press},
        {SIGNAL(clicked(QListBoxItem*, const QPoint&)), press},
        {SIGNAL(mouseButtonClicked(int, QListBoxItem*, const QPoint&)), press},
        {SIGNAL(highlighted(int)), right},
        {SIGNAL(selectionChanged()), right},
        {SIGNAL(rightButtonPressed(QListBoxItem*, const QPoint&)), right},
        {SIGNAL(rightButtonClicked(QListBoxItem*, const QPoint&)), right},
        {SIGNAL(contextMenuRequested(QListBoxItem*, const QPoint&)), right},
        {SIGNAL(selected(int)), twice},
        {SIGNAL(selected(const QString&)), twice},
        {SIGNAL(selected(QListBoxItem*)), twice},
        {SIGNAL(doubleClicked(QListBoxItem*)), twice},
        {SIGNAL(selected(int)), enter},
        {SIGNAL(returnPressed(QListBoxItem*)), enter},
        {SIGNAL(selectionChanged()), space},
        {SIGNAL(selectionChanged()), [](QListBox* l) { l->setSelectionMode(QListBox::Multi); }},
        {SIGNAL(highlighted(int)), [](QListBox* l) { l->removeItem(0); }},
        {SIGNAL(highlighted(int)), [](QListBox* l) { l->changeItem("new", 0); }},
        {SIGNAL(highlighted(int)), [](QListBox* l) { doubleClick(l->viewport(), 10, 40); }},
        {moving, last},
        {moving, [=](QListBox* l) { quietly(l, last), l->clear(); }},
        {moving, [=](QListBox* l) { quietly(l, last), l->resize(100, 400); }},
        {SIGNAL(onItem(QListBoxItem*)),
         [](QListBox* l) { l->viewport()->setMouseTracking(true), xinput::moveTo(l->viewport(), 10, 20); }}};
    checkAll<QListBox>(cases, [this] {
        QListBox* list = new Perishable<QListBox>(&window, "list");
        for (const char* text : {"One", "Two", "Three"})
            list->insertItem(text);
        list->blockSignals(true);
        list->setCurrentItem(0);
        list->blockSignals(false);
        list->setMinimumHeight(80);
        return list;
    });
}

TEST_F(ControlDeletion, OfAListBoxThatIsShownWithLessInIt)
{
    Growing::tall = true;
    QListBox* list = new Perishable<QListBox>(&window, "list");
    for (int i = 0; i < 5; ++i)
        new Growing(list);
    check<QListBox>(list, {SIGNAL(contentsMoving(int, int)), [](QListBox* l) {
                               l->blockSignals(true);
                               l->setCurrentItem(4);
                               l->blockSignals(false);
                               l->hide();
                               Growing::tall = false;
                               l->show();
                           }});
}

TEST_F(ControlDeletion, OfAScrollBar)
{
    const char* const value = SIGNAL(valueChanged(int));
    const auto click = [](int x) { return [=](QScrollBar* b) { xinput::click(b, x, 8); }; };
    const auto hold = [](int x) {
        return [=](QScrollBar* b) {
            const QPoint at = b->mapToGlobal(QPoint(x, 8));
            xinput::moveToRoot(at.x(), at.y());
            xinput::pressButton();
            settle();
            xinput::moveToRoot(at.x() + 10, at.y());
            settle();
            xinput::releaseButton();
        };
    };
    const auto middle = [](QScrollBar* b) { xinput::click(b, 90, 8, 2); };
    const Case<QScrollBar> cases[] = {
        {value, click(5)},
        {SIGNAL(prevLine()), click(5)},
        {value, click(115)},
        {SIGNAL(nextLine()), click(115)},
        {value, click(20)},
        {SIGNAL(prevPage()), click(20)},
        {value, click(100)},
        {SIGNAL(nextPage()), click(100)},
        {SIGNAL(sliderPressed()), hold(60)},
        {SIGNAL(sliderMoved(int)), hold(60)},
        {value, hold(60)},
        {SIGNAL(sliderReleased()), hold(60)},
        {SIGNAL(sliderReleased()), [hold](QScrollBar* b) { b->setTracking(false), hold(60)(b); }},
        {value, [hold](QScrollBar* b) { b->setTracking(false), hold(60)(b); }},
        {value, middle},
        {SIGNAL(sliderPressed()), middle},
        {value, [](QScrollBar* b) { sendKey(b, Qt::Key_Right); }},
        {value, [](QScrollBar* b) { sendKey(b, Qt::Key_End); }},
        {value, [](QScrollBar* b) { b->setRange(60, 100); }},
        {value,
         [](QScrollBar* b) { xinput::moveTo(b, 60, 8), xinput::pressButton(5), xinput::releaseButton(5); }}};
    checkAll<QScrollBar>(cases, [this] {
        QScrollBar* bar = new Perishable<QScrollBar>(0, 100, 5, 20, 50, Qt::Horizontal, &window);
        bar->setFixedHeight(16);
        bar->setFocusPolicy(QWidget::StrongFocus);
        return bar;
    });
}

TEST_F(ControlDeletion, OfAScrollView)
{
    const char* const moving = SIGNAL(contentsMoving(int, int));
    const auto scrolled = [](QScrollView* v) {
        v->blockSignals(true);
        v->setContentsPos(50, 60);
        v->blockSignals(false);
    };
    const Case<QScrollView> cases[] = {
        {moving, [](QScrollView* v) { v->setContentsPos(50, 0); }},
        {moving, [](QScrollView* v) { v->setContentsPos(50, 60); }},
        {moving, [](QScrollView* v) { v->setContentsPos(0, 60); }},
        {moving, [](QScrollView* v) { v->ensureVisible(400, 300); }},
        {moving, [](QScrollView* v) { xinput::click(v->verticalScrollBar(), 8, 80); }},
        {moving, [=](QScrollView* v) { scrolled(v), v->resizeContents(10, 500); }},
        {moving, [=](QScrollView* v) { scrolled(v), v->resizeContents(500, 10); }},
        {moving, [=](QScrollView* v) { scrolled(v), v->resize(600, 60); }}};
    checkAll<QScrollView>(cases, [this] {
        QScrollView* view = new Perishable<QScrollView>(&window);
        view->resizeContents(500, 400);
        view->setMinimumHeight(100);
        return view;
    });
}

TEST_F(ControlDeletion, OfAListBoxStopsTheEventOfItsViewport)
{
    QListBox* list = new Perishable<MortalListBox>(&window);
    QMouseEvent press(QEvent::MouseButtonPress, QPoint(5, 5), Qt::LeftButton, 0);
    press.ignore();
    EXPECT_TRUE(static_cast<QObject*>(list)->eventFilter(list->viewport(), &press));
    QListBox* other = new Perishable<QListBox>(&window);
    SignalRecorder recorder;
    recorder.watch(other, SIGNAL(contextMenuRequested(QListBoxItem*, const QPoint&)));
    recorder.whenever = [other] { delete other; };
    QContextMenuEvent menu(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(5, 5), 0);
    EXPECT_TRUE(static_cast<QObject*>(other)->eventFilter(other->viewport(), &menu));
}

TEST_F(ControlDeletion, OfTheEntryThatTheListTellsOf)
{
    QListBox list(&window, "list");
    list.setGeometry(10, 10, 120, 90);
    SignalRecorder recorder;
    for (const char* signal : {SIGNAL(highlighted(QListBoxItem*)), SIGNAL(selected(QListBoxItem*)),
                               SIGNAL(selectionChanged()), SIGNAL(pressed(QListBoxItem*)),
                               SIGNAL(clicked(QListBoxItem*)), SIGNAL(doubleClicked(QListBoxItem*))})
        recorder.watch(&list, signal);
    recorder.whenever = [&] {
        list.blockSignals(true);
        list.removeItem(list.currentItem());
        list.blockSignals(false);
    };
    showAndActivate(&window);
    for (int i = 0; i < 30; ++i)
        list.insertItem("Entry");
    const unsigned before = list.count();
    xinput::click(list.viewport(), 10, 20);
    settle();
    xinput::doubleClick(list.viewport(), 10, 40);
    settle();
    sendKey(&list, Qt::Key_Down);
    sendKey(&list, Qt::Key_Return);
    EXPECT_EQ(list.count(), before - static_cast<unsigned>(recorder.count()));
    EXPECT_GT(recorder.count(), 3);
}
