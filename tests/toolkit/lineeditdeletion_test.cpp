// Line edits that are deleted by who listens to their signals.
#include "controldeletion.h"

#include <qapplication.h>
#include <qclipboard.h>
#include <qlineedit.h>
#include <qvalidator.h>

#include <X11/keysym.h>

namespace
{

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

QLineEdit* newLineEdit(QWidget* parent)
{
    return new Perishable<QLineEdit>("text of it", parent);
}

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
    checkAll<QLineEdit>(cases, [this] {
        QApplication::clipboard()->setText("paste", QClipboard::Clipboard);
        return newLineEdit(&window);
    });
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
    checkAll<QLineEdit>(cases, [this] { return newLineEdit(&window); });
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
        {marked,
         [](QLineEdit* e) {
             xinput::moveTo(e, 100, 10), xinput::pressButton(2), settle();
             e->blockSignals(true), e->selectAll(), e->blockSignals(false);
             xinput::releaseButton(2);
         }},
        {changed, afterMarking([](QLineEdit* e) { xinput::click(e, 100, 10, 2); })}};
    checkAll<QLineEdit>(cases, [this] {
        QApplication::clipboard()->setText("paste", QClipboard::Selection);
        return newLineEdit(&window);
    });
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
    checkAll<QLineEdit>(cases, [this] { return newLineEdit(&window); });
}

TEST_F(ControlDeletion, OfALineEditWhoseTextIsTakenByTheClipboard)
{
    QLineEdit* edit = newLineEdit(&window);
    edit->selectAll();
    SignalRecorder recorder;
    recorder.watch(QApplication::clipboard(), SIGNAL(dataChanged()));
    recorder.whenever = [edit] { delete edit; };
    edit->cut();
    EXPECT_EQ(recorder.take(), "dataChanged");
}
