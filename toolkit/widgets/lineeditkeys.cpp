// QLineEdit: keys.
#include "widgets/lineeditdata.h"

#include <qevent.h>
#include <qguardedptr.h>

using zeltk::EditBuffer;

namespace
{

bool isText(const QKeyEvent* event)
{
    const bool printable = event->ascii() == 0 || event->ascii() >= 32;
    return !event->text().isEmpty() && printable && event->key() != Qt::Key_Delete &&
           event->key() != Qt::Key_Backspace;
}

} // namespace

void QLineEdit::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Key_Return || event->key() == Key_Enter) {
        event->ignore();
        returnKey();
        return;
    }
    if (!d->readOnly && isText(event)) {
        insert(event->text());
        return;
    }
    const bool known = event->state() & ControlButton ? controlKey(event) : plainKey(event);
    if (!known)
        event->ignore();
}

// An unacceptable text may be repaired; if it remains so nothing is told.
void QLineEdit::returnKey()
{
    if (hasAcceptableInput()) {
        emit returnPressed();
        return;
    }
    if (!d->validator)
        return;
    QString text = d->value();
    int cursor = d->buffer.cursor();
    if (d->validator->validate(text, cursor) == QValidator::Acceptable)
        return;
    d->validator->fixup(text);
    if (text == d->value())
        return;
    const QGuardedPtr<QLineEdit> alive(this);
    d->setValue(text);
    d->finish(this);
    if (alive && hasAcceptableInput())
        emit returnPressed();
}

bool QLineEdit::plainKey(QKeyEvent* event)
{
    const bool mark = event->state() & ShiftButton;
    switch (event->key()) {
    case Key_Left:
        cursorBackward(mark);
        return true;
    case Key_Right:
        cursorForward(mark);
        return true;
    case Key_Home:
        home(mark);
        return true;
    case Key_End:
        end(mark);
        return true;
    case Key_Backspace:
        if (!d->readOnly)
            backspace();
        return true;
    case Key_Delete:
        if (!d->readOnly)
            del();
        return true;
    case Key_F14:
        if (!d->readOnly)
            undo();
        return true;
    case Key_F16:
        copy();
        return true;
    case Key_F18:
        if (!d->readOnly)
            paste();
        return true;
    case Key_F20:
        if (!d->readOnly)
            cut();
        return true;
    default:
        return event->key() == Key_Shift;
    }
}

bool QLineEdit::controlKey(QKeyEvent* event)
{
    const bool mark = event->state() & ShiftButton;
    switch (event->key()) {
    case Key_A:
        home(mark);
        return true;
    case Key_B:
        cursorBackward(mark);
        return true;
    case Key_C:
        copy();
        return true;
    case Key_E:
        end(mark);
        return true;
    case Key_F:
        cursorForward(mark);
        return true;
    case Key_Left:
        wordKey(false, mark);
        return true;
    case Key_Right:
        wordKey(true, mark);
        return true;
    default:
        return controlEditKey(event->key());
    }
}

// Words of hidden texts are not given away.
void QLineEdit::wordKey(bool forward, bool mark)
{
    if (echoMode() != Normal && forward)
        end(mark);
    else if (echoMode() != Normal)
        home(mark);
    else if (forward)
        cursorWordForward(mark);
    else
        cursorWordBackward(mark);
}

bool QLineEdit::controlEditKey(int key)
{
    static const struct {
        int key;
        void (QLineEdit::*edit)();
    } edits[] = {{Key_D, &QLineEdit::del},
                 {Key_H, &QLineEdit::backspace},
                 {Key_K, &QLineEdit::removeRest},
                 {Key_U, &QLineEdit::clear},
                 {Key_V, &QLineEdit::paste},
                 {Key_X, &QLineEdit::cut},
                 {Key_Y, &QLineEdit::redo},
                 {Key_Z, &QLineEdit::undo},
                 {Key_Backspace, &QLineEdit::removeWordBefore},
                 {Key_Delete, &QLineEdit::removeWordBehind}};
    for (const auto& each : edits) {
        if (each.key != key)
            continue;
        if (!d->readOnly)
            (this->*each.edit)();
        return true;
    }
    return false;
}

void QLineEdit::removeRest()
{
    const EditBuffer before = d->buffer;
    d->removeRest();
    d->finish(this, before);
}

void QLineEdit::removeWordBefore()
{
    removeWord(false);
}

void QLineEdit::removeWordBehind()
{
    removeWord(true);
}

// The word, or what is selected.
void QLineEdit::removeWord(bool forward)
{
    const QGuardedPtr<QLineEdit> alive(this);
    if (!hasSelectedText())
        wordKey(forward, true);
    if (alive)
        del();
}

// Letters and editing keys are not shortcuts of others while one types here.
bool QLineEdit::event(QEvent* event)
{
    if (event->type() == QEvent::AccelOverride && !d->readOnly) {
        QKeyEvent* key = static_cast<QKeyEvent*>(event);
        const int modifiers = key->state() & (ControlButton | AltButton | MetaButton);
        const int editing[] = {Key_Left, Key_Right, Key_Home, Key_End, Key_Backspace, Key_Delete};
        const int control[] = {Key_C, Key_V, Key_X, Key_Z, Key_Y, Key_Left, Key_Right, Key_U};
        bool taken = modifiers == 0 && key->key() < Key_Escape;
        for (int each : editing)
            taken = taken || (modifiers == 0 && key->key() == each);
        for (int each : control)
            taken = taken || (modifiers == ControlButton && key->key() == each);
        if (taken) {
            key->accept();
            return true;
        }
    } else if (event->type() == QEvent::Timer &&
               static_cast<QTimerEvent*>(event)->timerId() == d->blinkTimer) {
        d->cursorVisible = !d->cursorVisible;
        repaint(false);
    }
    return QFrame::event(event);
}
