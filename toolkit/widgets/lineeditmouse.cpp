// QLineEdit: mouse and focus.
#include "widgets/lineeditdata.h"

#include <qapplication.h>
#include <qclipboard.h>
#include <qevent.h>
#include <qguardedptr.h>

namespace zeltk
{

// The place between two letters that is nearest.
int LineEditData::positionAt(const QLineEdit* edit, int x) const
{
    const QFontMetrics metrics(edit->font());
    const QString text = shown();
    const int wanted = x - textStart(edit);
    int first = 0;
    int last = static_cast<int>(text.length());
    while (first < last) {
        const int place = first + (last - first) / 2;
        if (wanted < (metrics.width(text, place) + metrics.width(text, place + 1) + 1) / 2)
            last = place;
        else
            first = place + 1;
    }
    return first;
}

void LineEditData::setBlinking(QLineEdit* edit, bool on)
{
    if (blinkTimer)
        edit->killTimer(blinkTimer);
    const int flashTime = QApplication::cursorFlashTime();
    blinkTimer = on && flashTime >= 2 ? edit->startTimer(flashTime / 2) : 0;
    cursorVisible = on;
    edit->update();
}

} // namespace zeltk

void QLineEdit::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == RightButton)
        return;
    const bool third =
        !d->doubleClicked.isNull() && d->doubleClicked.elapsed() < QApplication::doubleClickInterval();
    d->doubleClicked = QTime();
    if (third && event->button() == LeftButton) {
        selectAll();
        return;
    }
    const int place = d->positionAt(this, event->x());
    const bool mark = event->state() & ShiftButton;
    d->holding = d->dragEnabled && !mark && echoMode() == Normal && event->button() == LeftButton &&
                 hasSelectedText() && place > d->buffer.selectionStart() && place < d->buffer.selectionEnd();
    if (d->holding)
        return;
    d->marking = event->button() == LeftButton;
    d->buffer.moveCursor(place, mark);
    d->finish(this);
}

void QLineEdit::mouseMoveEvent(QMouseEvent* event)
{
    if (!(event->state() & LeftButton) || !d->marking)
        return;
    d->buffer.moveCursor(d->positionAt(this, event->x()), true);
    d->finish(this);
}

void QLineEdit::mouseReleaseEvent(QMouseEvent* event)
{
    const QGuardedPtr<QLineEdit> alive(this);
    const bool held = d->holding;
    d->holding = false;
    if (held && event->button() == LeftButton) {
        d->buffer.moveCursor(d->positionAt(this, event->x()), false);
        d->finish(this);
    }
    if (!alive)
        return;
    if (event->button() == LeftButton) {
        d->marking = false;
        d->copySelection(true);
    } else if (event->button() == MidButton && !d->readOnly) {
        deselect();
        if (alive)
            insert(QApplication::clipboard()->text(QClipboard::Selection));
    }
}

// The word without the blanks behind it.
void QLineEdit::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != LeftButton)
        return;
    d->holding = false;
    d->marking = true;
    if (echoMode() != Normal) {
        selectAll();
        return;
    }
    zeltk::EditBuffer& buffer = d->buffer;
    const int place = QMIN(d->positionAt(this, event->x()), QMAX(0, buffer.length() - 1));
    const int from = buffer.previousWord(QMIN(place + 1, buffer.length()));
    int to = buffer.nextWord(from);
    while (to > from && buffer.text().at(static_cast<uint>(to) - 1).isSpace())
        --to;
    buffer.moveCursor(from, false);
    buffer.moveCursor(to, true);
    d->doubleClicked.start();
    d->finish(this);
}

void QLineEdit::focusInEvent(QFocusEvent*)
{
    const QGuardedPtr<QLineEdit> alive(this);
    const QFocusEvent::Reason reason = QFocusEvent::reason();
    if (reason == QFocusEvent::Tab || reason == QFocusEvent::Backtab)
        selectAll();
    if (alive)
        d->setBlinking(this, true);
}

void QLineEdit::focusOutEvent(QFocusEvent*)
{
    const QGuardedPtr<QLineEdit> alive(this);
    const QFocusEvent::Reason reason = QFocusEvent::reason();
    if (reason != QFocusEvent::ActiveWindow && reason != QFocusEvent::Popup)
        deselect();
    if (!alive)
        return;
    d->setBlinking(this, false);
    d->marking = false;
    emit lostFocus();
}

void QLineEdit::windowActivationChange(bool)
{
    update();
}
