// Combo boxes that are deleted by who listens to their signals.
#include "controldeletion.h"

#include <qcombobox.h>
#include <qlineedit.h>
#include <qlistbox.h>
#include <qpixmap.h>

#include <X11/keysym.h>

#include <vector>

namespace
{

// Dies of the first event that it hears of by filtering its field's.
class MortalComboBox : public QComboBox
{
public:
    explicit MortalComboBox(QWidget* parent) : QComboBox(true, parent) {}

protected:
    void keyPressEvent(QKeyEvent*) override { delete this; }
    void focusInEvent(QFocusEvent*) override { delete this; }
    void focusOutEvent(QFocusEvent*) override { delete this; }
};

} // namespace

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
        SCOPED_TRACE(editable ? "editable" : "plain");
        checkAll<QComboBox>(cases, [&] {
            QComboBox* combo = new Perishable<QComboBox>(editable, &window, "combo");
            for (const char* text : {"One", "Two", "Three", "Four"})
                combo->insertItem(text);
            return combo;
        });
    }
}

TEST_F(ControlDeletion, OfAComboBoxThatIsEdited)
{
    const char* const changed = SIGNAL(textChanged(const QString&));
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
    checkAll<QComboBox>(cases, [this] {
        QComboBox* combo = new Perishable<QComboBox>(true, &window, "combo");
        for (const char* text : {"One", "Two", "Three"})
            combo->insertItem(text);
        return combo;
    });
}

TEST_F(ControlDeletion, OfAComboBoxStopsTheEventOfItsField)
{
    QKeyEvent key(QEvent::KeyPress, Qt::Key_A, 'a', 0, "a");
    QFocusEvent in(QEvent::FocusIn), out(QEvent::FocusOut);
    for (QEvent* event :
         {static_cast<QEvent*>(&key), static_cast<QEvent*>(&in), static_cast<QEvent*>(&out)}) {
        QComboBox* combo = new Perishable<MortalComboBox>(&window);
        EXPECT_TRUE(static_cast<QObject*>(combo)->eventFilter(combo->lineEdit(), event)) << event->type();
    }
}

TEST_F(ControlDeletion, OfAComboBoxThatCompletesStopsTheKeyOfItsField)
{
    QComboBox* combo = new Perishable<QComboBox>(true, &window);
    combo->insertItem("Apple");
    combo->clearEdit();
    combo->setAutoCompletion(true);
    sendKey(combo->lineEdit(), Qt::Key_A, 'a', 0, "a");
    ASSERT_EQ(combo->currentText(), "a");
    SignalRecorder recorder;
    recorder.watch(combo, SIGNAL(textChanged(const QString&)));
    recorder.whenever = [combo] { delete combo; };
    QKeyEvent up(QEvent::KeyRelease, Qt::Key_A, 'a', 0, "a");
    EXPECT_TRUE(static_cast<QObject*>(combo)->eventFilter(combo->lineEdit(), &up));
    EXPECT_EQ(recorder.take(), "textChanged(Apple)");
}

TEST_F(ControlDeletion, OfAComboBoxStopsTheEndOfItsList)
{
    QComboBox* combo = new Perishable<QComboBox>(false, &window);
    for (const char* text : {"One", "Two"})
        combo->insertItem(text);
    showAndActivate(&window);
    combo->show();
    combo->popup();
    combo->listBox()->setCurrentItem(1);
    SignalRecorder recorder;
    recorder.watch(combo, SIGNAL(highlighted(int)));
    recorder.whenever = [combo] { delete combo; };
    QHideEvent hidden;
    EXPECT_TRUE(static_cast<QObject*>(combo)->eventFilter(combo->listBox(), &hidden));
    EXPECT_EQ(recorder.take(), "highlighted(0)");
}

TEST_F(ControlDeletion, OfAComboBoxWhoseMarkedTextBecomesAnEntry)
{
    QComboBox* combo = new Perishable<QComboBox>(true, &window);
    combo->setInsertionPolicy(QComboBox::AtTop);
    combo->insertItem("One");
    combo->setEditText("new");
    combo->lineEdit()->selectAll();
    SignalRecorder recorder;
    recorder.watch(combo->lineEdit(), SIGNAL(selectionChanged()));
    recorder.whenever = [combo] { delete combo; };
    sendKey(combo->lineEdit(), Qt::Key_Return);
    EXPECT_EQ(recorder.take(), "selectionChanged");
}
