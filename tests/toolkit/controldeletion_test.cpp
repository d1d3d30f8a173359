// Controls that are deleted by who listens to their signals: nothing of them is used afterwards.
#include "perishable.h"
#include "sentevents.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qclipboard.h>
#include <qcombobox.h>
#include <qlineedit.h>
#include <qlistbox.h>
#include <qpixmap.h>
#include <qscrollbar.h>
#include <qscrollview.h>
#include <qvalidator.h>

#include <X11/keysym.h>

#include <functional>
#include <vector>

namespace
{

template <typename Class>
struct Case {
    const char* signal;
    std::function<void(Class*)> doIt;
};

class ControlDeletion : public testing::Test
{
protected:
    ControlDeletion() : window(nullptr, "window") { window.setGeometry(200, 150, 240, 200); }
    ~ControlDeletion() override { Graveyard::clear(); }

    // Does it to the widget, which is deleted at the signal's first emission. It must be emitted but once.
    template <typename Class>
    void check(Class* widget, const Case<Class>& each)
    {
        SignalRecorder recorder;
        Class* victim = widget;
        recorder.watch(widget, each.signal);
        widget->setGeometry(20, 20, 120, 28);
        widget->show();
        showAndActivate(&window);
        widget->setFocus();
        settle();
        ASSERT_EQ(recorder.take(), "");
        recorder.whenever = [&victim] {
            delete victim;
            victim = nullptr;
        };
        each.doIt(widget);
        settle();
        EXPECT_EQ(recorder.count(), 1);
        EXPECT_FALSE(victim);
        delete victim;
        xinput::releaseAll();
        settle();
    }

    QWidget window;
};

// What a validator that repairs everything makes of it.
class Repairing : public QValidator
{
public:
    Repairing() : QValidator(nullptr) {}
    State validate(QString& text, int&) const override { return text == "good" ? Acceptable : Intermediate; }
    void fixup(QString& text) const override { text = "good"; }
};

const Repairing repairing;

const char* const changed = SIGNAL(textChanged(const QString&));
const char* const marked = SIGNAL(selectionChanged());

std::function<void(QLineEdit*)> key(int code, int state = 0)
{
    return [=](QLineEdit* edit) { sendKey(edit, code, 0, state); };
}

std::function<void(QLineEdit*)> afterMarking(const std::function<void(QLineEdit*)>& doIt)
{
    return [=](QLineEdit* edit) {
        edit->setSelection(1, 2);
        doIt(edit);
    };
}

std::function<void(QLineEdit*)> afterEditing(const std::function<void(QLineEdit*)>& doIt)
{
    return [=](QLineEdit* edit) {
        edit->blockSignals(true);
        edit->insert("x");
        edit->blockSignals(false);
        doIt(edit);
    };
}

} // namespace

TEST_F(ControlDeletion, OfALineEditThatIsTypedIn)
{
    const Case<QLineEdit> cases[] = {
        {changed, [](QLineEdit* e) { sendKey(e, Qt::Key_A, 'a', 0, "a"); }},
        {changed, key(Qt::Key_Backspace)},
        {changed, [](QLineEdit* e) { e->home(false), sendKey(e, Qt::Key_Delete); }},
        {changed, key(Qt::Key_U, Qt::ControlButton)},
        {changed, key(Qt::Key_Backspace, Qt::ControlButton)},
        {marked, key(Qt::Key_Backspace, Qt::ControlButton)},
        {changed, [](QLineEdit* e) { e->home(false), sendKey(e, Qt::Key_K, 0, Qt::ControlButton); }},
        {changed, key(Qt::Key_V, Qt::ControlButton)},
        {changed, afterMarking(key(Qt::Key_X, Qt::ControlButton))},
        {marked, afterMarking(key(Qt::Key_X, Qt::ControlButton))},
        {changed, afterMarking(key(Qt::Key_V, Qt::ControlButton))},
        {changed, afterEditing(key(Qt::Key_Z, Qt::ControlButton))},
        {changed, afterEditing([](QLineEdit* e) {
             e->blockSignals(true), e->undo(), e->blockSignals(false), e->redo();
         })},
        {marked, key(Qt::Key_Left, Qt::ShiftButton)},
        {marked, key(Qt::Key_Home, Qt::ShiftButton)},
        {marked, afterMarking(key(Qt::Key_End))},
        {SIGNAL(returnPressed()), key(Qt::Key_Return)},
        {changed, [](QLineEdit* e) { e->setValidator(&repairing), sendKey(e, Qt::Key_Return); }},
        {SIGNAL(returnPressed()),
         [](QLineEdit* e) { e->setValidator(&repairing), sendKey(e, Qt::Key_Return); }}};
    int number = 0;
    for (const auto& each : cases) {
        SCOPED_TRACE(number++);
        QApplication::clipboard()->setText("paste", QClipboard::Clipboard);
        check<QLineEdit>(new Perishable<QLineEdit>("text of it", &window), each);
    }
}

TEST_F(ControlDeletion, OfALineEditThatIsChangedByCalls)
{
    const Case<QLineEdit> cases[] = {{changed, [](QLineEdit* e) { e->setText("new"); }},
                                     {changed, [](QLineEdit* e) { e->clear(); }},
                                     {marked, afterMarking([](QLineEdit* e) { e->clear(); })},
                                     {changed, [](QLineEdit* e) { e->setMaxLength(2); }},
                                     {changed, [](QLineEdit* e) { e->setInputMask("99"); }},
                                     {changed, [](QLineEdit* e) { e->validateAndSet("new", 0, 0, 0); }},
                                     {marked, [](QLineEdit* e) { e->selectAll(); }},
                                     {marked, afterMarking([](QLineEdit* e) { e->deselect(); })},
                                     {changed, afterMarking([](QLineEdit* e) { e->insert("new"); })},
                                     {marked, afterMarking([](QLineEdit* e) { e->cut(); })}};
    int number = 0;
    for (const auto& each : cases) {
        SCOPED_TRACE(number++);
        check<QLineEdit>(new Perishable<QLineEdit>("text of it", &window), each);
    }
}

TEST_F(ControlDeletion, OfALineEditUnderThePointer)
{
    const Case<QLineEdit> cases[] = {
        {marked, [](QLineEdit* e) { xinput::doubleClick(e, 10, 10); }},
        {marked, afterMarking([](QLineEdit* e) { xinput::click(e, 100, 10); })},
        {marked,
         [](QLineEdit* e) {
             xinput::moveTo(e, 8, 10), xinput::pressButton(), settle(), xinput::moveTo(e, 40, 10), settle();
             xinput::releaseButton();
         }},
        {marked, [](QLineEdit* e) { e->setSelection(0, 10), xinput::click(e, 15, 10); }},
        {marked, afterMarking([](QLineEdit* e) { xinput::click(e, 100, 10, 2); })},
        {changed, afterMarking([](QLineEdit* e) { xinput::click(e, 100, 10, 2); })}};
    int number = 0;
    for (const auto& each : cases) {
        SCOPED_TRACE(number++);
        QApplication::clipboard()->setText("paste", QClipboard::Selection);
        check<QLineEdit>(new Perishable<QLineEdit>("text of it", &window), each);
    }
}

TEST_F(ControlDeletion, OfALineEditThatLosesTheFocus)
{
    QWidget* other = new QWidget(&window);
    other->setFocusPolicy(QWidget::StrongFocus);
    const Case<QLineEdit> cases[] = {
        {SIGNAL(lostFocus()), [other](QLineEdit*) { other->setFocus(); }},
        {SIGNAL(lostFocus()), [](QLineEdit* e) { e->hide(); }},
        {SIGNAL(lostFocus()), [](QLineEdit* e) { e->setEnabled(false); }},
        {SIGNAL(lostFocus()), [](QLineEdit*) { xinput::typeKey(XK_Tab); }},
        {marked, afterMarking([other](QLineEdit*) { other->setFocus(); })},
        {marked, [other](QLineEdit*) { other->setFocus(), settle(), xinput::typeKey(XK_Tab); }}};
    int number = 0;
    for (const auto& each : cases) {
        SCOPED_TRACE(number++);
        check<QLineEdit>(new Perishable<QLineEdit>("text of it", &window), each);
    }
}

TEST_F(ControlDeletion, OfAComboBox)
{
    const char* const chosen = SIGNAL(activated(int));
    const char* const chosenText = SIGNAL(activated(const QString&));
    const char* const lit = SIGNAL(highlighted(int));
    const char* const litText = SIGNAL(highlighted(const QString&));
    const auto target = [](QComboBox* c) {
        return c->lineEdit() ? static_cast<QWidget*>(c->lineEdit()) : static_cast<QWidget*>(c);
    };
    const auto down = [target](QComboBox* c) { sendKey(target(c), Qt::Key_Down); };
    const auto wheel = [](QComboBox* c) {
        xinput::moveTo(c, 110, 14), xinput::pressButton(5), xinput::releaseButton(5);
    };
    const auto listKeys = [](QComboBox* c) {
        c->popup(), settle(), xinput::typeKey(XK_Down), xinput::typeKey(XK_Return);
    };
    const auto escape = [](QComboBox* c) {
        c->popup(), settle(), c->blockSignals(true), xinput::typeKey(XK_Down), settle(),
            c->blockSignals(false), xinput::typeKey(XK_Escape);
    };
    const auto listClick = [](QComboBox* c) {
        xinput::click(c, 110, 14), settle(), xinput::click(c->listBox()->viewport(), 20, 50);
    };
    const auto dragged = [](QComboBox* c) {
        xinput::moveTo(c, 110, 14), xinput::pressButton(), settle(),
            xinput::moveTo(c->listBox()->viewport(), 20, 50), settle(), xinput::releaseButton();
    };
    std::vector<Case<QComboBox>> cases;
    for (const char* signal : {chosen, chosenText, lit, litText})
        for (const std::function<void(QComboBox*)>& doIt :
             std::vector<std::function<void(QComboBox*)>>{down, wheel, listKeys, listClick, dragged})
            cases.push_back({signal, doIt});
    cases.push_back({lit, escape});
    QPixmap picture(4, 4);
    picture.fill(Qt::red);
    cases.push_back({lit, [](QComboBox* c) {
                         c->blockSignals(true), c->setCurrentItem(3), c->blockSignals(false),
                             c->setMaxCount(0);
                     }});
    cases.push_back({lit, [](QComboBox* c) { c->changeItem("new", 0); }});
    cases.push_back({lit, [=](QComboBox* c) { c->changeItem(picture, 0); }});
    cases.push_back({lit, [=](QComboBox* c) { c->changeItem(picture, "new", 0); }});
    cases.push_back({lit, [](QComboBox* c) { c->setCurrentItem(2); }});
    cases.push_back({lit, [](QComboBox* c) {
                         c->blockSignals(true), c->setCurrentItem(2), c->blockSignals(false),
                             c->removeItem(2);
                     }});
    for (const bool editable : {false, true}) {
        int number = 0;
        for (const auto& each : cases) {
            SCOPED_TRACE(std::string(editable ? "editable " : "plain ") + std::to_string(number++));
            QComboBox* combo = new Perishable<QComboBox>(editable, &window, "combo");
            for (const char* text : {"One", "Two", "Three", "Four"})
                combo->insertItem(text);
            check<QComboBox>(combo, each);
        }
    }
}

TEST_F(ControlDeletion, OfAComboBoxThatIsEdited)
{
    const auto typeAndReturn = [](QComboBox* c) {
        c->blockSignals(true);
        c->setEditText("new");
        c->blockSignals(false);
        sendKey(c->lineEdit(), Qt::Key_Return);
    };
    std::vector<Case<QComboBox>> cases = {
        {changed, [](QComboBox* c) { xinput::click(c->lineEdit(), 10, 10), xinput::typeText("x"); }},
        {changed, [](QComboBox* c) { c->setEditText("new"); }},
        {changed, [](QComboBox* c) { c->clear(); }},
        {changed, [](QComboBox* c) { c->setCurrentItem(2); }},
        {changed, [](QComboBox* c) { c->removeItem(0); }},
        {changed, [](QComboBox* c) { c->changeItem("new", 0); }},
        {changed,
         [](QComboBox* c) {
             c->popup(), settle(), sendKey(c->listBox(), Qt::Key_Down), sendKey(c->listBox(), Qt::Key_Return);
         }},
        {changed, [](QComboBox* c) { c->insertItem("new", 0); }},
        {changed, [](QComboBox* c) { sendKey(c->lineEdit(), Qt::Key_Down); }}};
    const auto withPolicy = [=](QComboBox::Policy policy) {
        return [=](QComboBox* c) { c->setInsertionPolicy(policy), typeAndReturn(c); };
    };
    cases.push_back({SIGNAL(activated(const QString&)), withPolicy(QComboBox::NoInsertion)});
    cases.push_back({SIGNAL(highlighted(int)), [=](QComboBox* c) { // the last one makes room
                         c->blockSignals(true), c->setCurrentItem(2), c->setMaxCount(3),
                             c->blockSignals(false), typeAndReturn(c);
                     }});
    for (const QComboBox::Policy policy : {QComboBox::AtTop, QComboBox::AtCurrent, QComboBox::AtBottom,
                                           QComboBox::AfterCurrent, QComboBox::BeforeCurrent})
        for (const char* signal :
             {SIGNAL(activated(int)), SIGNAL(activated(const QString&)), SIGNAL(highlighted(int))})
            cases.push_back({signal, withPolicy(policy)});
    int number = 0;
    for (const auto& each : cases) {
        SCOPED_TRACE(number++);
        QComboBox* combo = new Perishable<QComboBox>(true, &window, "combo");
        for (const char* text : {"One", "Two", "Three"})
            combo->insertItem(text);
        check<QComboBox>(combo, each);
    }
}

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
    int number = 0;
    for (const auto& each : cases) {
        SCOPED_TRACE(std::to_string(number++) + each.signal);
        QListBox* list = new Perishable<QListBox>(&window, "list");
        for (const char* text : {"One", "Two", "Three"})
            list->insertItem(text);
        list->blockSignals(true);
        list->setCurrentItem(0);
        list->blockSignals(false);
        list->setMinimumHeight(80);
        check<QListBox>(list, each);
    }
}

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
    int number = 0;
    for (const auto& each : cases) {
        SCOPED_TRACE(number++);
        QScrollBar* bar = new Perishable<QScrollBar>(0, 100, 5, 20, 50, Qt::Horizontal, &window);
        bar->setFixedHeight(16);
        bar->setFocusPolicy(QWidget::StrongFocus);
        check<QScrollBar>(bar, each);
    }
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
    int number = 0;
    for (const auto& each : cases) {
        SCOPED_TRACE(number++);
        QScrollView* view = new Perishable<QScrollView>(&window);
        view->resizeContents(500, 400);
        view->setMinimumHeight(100);
        check<QScrollView>(view, each);
    }
}

// Both die of the first event that they hear of by filtering a child's.
class MortalComboBox : public QComboBox
{
public:
    explicit MortalComboBox(QWidget* parent) : QComboBox(true, parent) {}

protected:
    void keyPressEvent(QKeyEvent*) override { delete this; }
    void focusInEvent(QFocusEvent*) override { delete this; }
    void focusOutEvent(QFocusEvent*) override { delete this; }
};

class MortalListBox : public QListBox
{
public:
    explicit MortalListBox(QWidget* parent) : QListBox(parent) {}

protected:
    void mousePressEvent(QMouseEvent*) override { delete this; }
};

TEST_F(ControlDeletion, StopsTheEventOfAChildThatIsGoneToo)
{
    QKeyEvent key(QEvent::KeyPress, Qt::Key_A, 'a', 0, "a");
    QFocusEvent in(QEvent::FocusIn), out(QEvent::FocusOut);
    for (QEvent* event :
         {static_cast<QEvent*>(&key), static_cast<QEvent*>(&in), static_cast<QEvent*>(&out)}) {
        QComboBox* combo = new Perishable<MortalComboBox>(&window);
        EXPECT_TRUE(static_cast<QObject*>(combo)->eventFilter(combo->lineEdit(), event)) << event->type();
    }
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
