// QComboBox: mouse, keys, choices.
#include "widgets/comboboxdata.h"

#include <qapplication.h>
#include <qevent.h>
#include <qguardedptr.h>

#include <algorithm>

void QComboBox::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == LeftButton)
        popup();
}

void QComboBox::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event);
}

// These do not go on to the parent.
void QComboBox::mouseMoveEvent(QMouseEvent*) {}

void QComboBox::mouseReleaseEvent(QMouseEvent*) {}

void QComboBox::wheelEvent(QWheelEvent* event)
{
    event->accept();
    const int next = std::max(0, std::min(d->current + (event->delta() > 0 ? -1 : 1), count() - 1));
    if (d->open || next == d->current || count() == 0)
        return;
    const QGuardedPtr<QComboBox> alive(this);
    setCurrentItem(next);
    if (alive)
        emit activated(next);
    if (alive)
        emit activated(text(next));
}

void QComboBox::focusInEvent(QFocusEvent*)
{
    repaint(false);
}

void QComboBox::focusOutEvent(QFocusEvent*)
{
    repaint(false);
}

// Keys that choose tell of it even when nothing changes.
void QComboBox::keyPressEvent(QKeyEvent* event)
{
    const bool editing = d->edit && d->edit->hasFocus();
    const int key = event->key();
    if (key == Key_F4 || (key == Key_Down && (event->state() & AltButton)) ||
        (!d->edit && key == Key_Space)) {
        popup();
        return;
    }
    int chosen;
    if (key == Key_Up)
        chosen = std::max(0, d->current - 1);
    else if (key == Key_Down)
        chosen = std::min(count() - 1, d->current + 1);
    else if (key == Key_Home && !editing)
        chosen = 0;
    else if (key == Key_End && !editing)
        chosen = count() - 1;
    else if (!d->edit && event->ascii() >= 32 && !event->text().isEmpty())
        chosen = entryForLetter(event);
    else {
        event->ignore();
        return;
    }
    if (count() == 0)
        return;
    const QGuardedPtr<QComboBox> alive(this);
    if (chosen != d->current)
        setCurrentItem(chosen);
    if (alive)
        emit activated(text(d->current));
    if (alive)
        emit activated(d->current);
}

// The list box knows how to look for it.
int QComboBox::entryForLetter(QKeyEvent* event)
{
    d->list->blockSignals(true);
    d->list->setCurrentItem(d->current);
    QKeyEvent copy(QEvent::KeyPress, event->key(), event->ascii(), event->state(), event->text());
    QApplication::sendEvent(d->list, &copy);
    const int found = d->list->currentItem();
    d->list->setCurrentItem(d->current);
    d->list->blockSignals(false);
    return found;
}

void QComboBox::internalHighlight(int index)
{
    const QGuardedPtr<QComboBox> alive(this);
    emit highlighted(index);
    if (alive && !d->list->text(index).isNull())
        emit highlighted(d->list->text(index));
}

// An entry of the list was chosen.
void QComboBox::internalActivate(int index)
{
    if (index < 0 || index >= count())
        return;
    const QGuardedPtr<QComboBox> alive(this);
    d->current = index;
    if (d->open) {
        d->open = false;
        d->list->hide();
    }
    if (alive)
        currentChanged();
    if (alive)
        emit activated(index);
    if (alive)
        emit activated(text(index));
}

void QComboBox::returnPressed()
{
    const QString typed = d->edit->text();
    if (typed.isEmpty())
        return;
    if (!d->duplicates) {
        for (int i = 0; i < count(); ++i) {
            if (text(i) == typed) {
                chooseTyped(i, typed);
                return;
            }
        }
    }
    if (d->policy == NoInsertion) {
        emit activated(typed);
        return;
    }
    const QGuardedPtr<QComboBox> alive(this);
    if (d->policy == AtCurrent) {
        changeItem(typed, d->current);
        if (alive)
            emit activated(d->current);
        if (alive)
            emit activated(typed);
        return;
    }
    while (alive && count() > 0 && count() >= d->maxCount)
        d->list->removeItem(count() - 1);
    if (!alive)
        return;
    int place = 0;
    if (d->policy == AtBottom)
        place = count();
    else if (d->policy == AfterCurrent)
        place = std::min(d->current + 1, count());
    else if (d->policy == BeforeCurrent)
        place = std::min(d->current, count());
    insertItem(typed, place);
    if (alive)
        chooseTyped(place, typed);
}

void QComboBox::chooseTyped(int index, const QString& typed)
{
    const QGuardedPtr<QComboBox> alive(this);
    setCurrentItem(index);
    if (alive)
        emit activated(index);
    if (alive)
        emit activated(typed);
}

int QComboBox::completionIndex(const QString& prefix, int from) const
{
    const QString wanted = prefix.lower();
    const int start = from < 0 || from >= count() ? 0 : from;
    for (int i = 0; i < count() && !wanted.isEmpty(); ++i) {
        const int candidate = (start + i) % count();
        if (text(candidate).lower().startsWith(wanted))
            return candidate;
    }
    return -1;
}

bool QComboBox::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == d->edit)
        return editEvent(event);
    if (watched == d->list || (d->list && watched == d->list->viewport()))
        return listEvent(watched, event);
    return QWidget::eventFilter(watched, event);
}

// The combo box hears of keys and the focus first. When it is deleted meanwhile, so is the field.
bool QComboBox::editEvent(QEvent* event)
{
    const QGuardedPtr<QComboBox> alive(this);
    switch (event->type()) {
    case QEvent::KeyPress: {
        QKeyEvent* key = static_cast<QKeyEvent*>(event);
        keyPressEvent(key);
        if (!alive)
            return true;
        if (key->isAccepted()) {
            d->completeNow = false;
            return true;
        }
        key->accept();
        d->completeNow = key->key() != Key_End;
        d->completeAt = d->edit->cursorPosition();
        return false;
    }
    case QEvent::KeyRelease:
        complete();
        return !alive;
    case QEvent::FocusIn:
        focusInEvent(static_cast<QFocusEvent*>(event));
        return !alive;
    case QEvent::FocusOut:
        focusOutEvent(static_cast<QFocusEvent*>(event));
        return !alive;
    default:
        return false;
    }
}

// What was typed at the end is completed to an entry; the rest of it is marked.
void QComboBox::complete()
{
    if (!d->completes || !d->completeNow)
        return;
    d->completeNow = false;
    const QString typed = d->edit->text();
    const int length = static_cast<int>(typed.length());
    if (d->edit->cursorPosition() <= d->completeAt || d->edit->cursorPosition() != length)
        return;
    const int found = completionIndex(typed, d->current);
    if (found < 0)
        return;
    const QString text = this->text(found);
    d->edit->validateAndSet(text, length, length, static_cast<int>(text.length()));
}

bool QComboBox::listEvent(QObject* watched, QEvent* event)
{
    const QGuardedPtr<QComboBox> alive(this);
    switch (event->type()) {
    case QEvent::KeyPress:
        return listKey(static_cast<QKeyEvent*>(event));
    case QEvent::Hide:
        if (watched == d->list && d->open)
            popDownListBox();
        return !alive;
    case QEvent::MouseMove:
        if (watched == d->list)
            return listMouseOutside(static_cast<QMouseEvent*>(event));
        return listMouseInside(static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        if (watched == d->list)
            return listMouseOutside(static_cast<QMouseEvent*>(event));
        return listMouseInside(static_cast<QMouseEvent*>(event));
    default:
        return false;
    }
}

bool QComboBox::listKey(QKeyEvent* event)
{
    switch (event->key()) {
    case Key_Escape:
    case Key_F4:
        popDownListBox();
        return true;
    case Key_Up:
    case Key_Down:
        if (event->state() & AltButton) {
            popDownListBox();
            return true;
        }
        return false;
    case Key_Return:
    case Key_Enter:
        internalActivate(d->list->currentItem());
        return true;
    default:
        return false;
    }
}

// The button goes up on the chosen entry.
bool QComboBox::listMouseInside(QMouseEvent* event)
{
    if (event->type() == QEvent::MouseButtonDblClick)
        return true;
    if (event->type() != QEvent::MouseButtonRelease)
        return false;
    const QWidget* viewport = d->list->viewport();
    if (!viewport->rect().contains(event->pos())) {
        popDownListBox();
        return true;
    }
    if (QListBoxItem* item = d->list->itemAt(event->pos()))
        internalActivate(d->list->index(item));
    return true;
}

// While the list is open it has the mouse: a button that went down on the combo box may be dragged into it,
// and a press beside it closes it.
bool QComboBox::listMouseOutside(QMouseEvent* event)
{
    QWidget* viewport = d->list->viewport();
    const QPoint inside = viewport->mapFromGlobal(event->globalPos());
    const bool onEntries = viewport->rect().contains(inside);
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick) {
        if (!d->list->rect().contains(event->pos()))
            popDownListBox();
        return true;
    }
    if (event->type() == QEvent::MouseButtonRelease) {
        if (onEntries && d->visited)
            internalActivate(d->list->currentItem());
        else if (d->visited)
            popDownListBox();
        return true;
    }
    if (event->state() & LeftButton) {
        QListBoxItem* item = onEntries ? d->list->itemAt(inside) : 0;
        d->visited = d->visited || item;
        if (item)
            d->list->setCurrentItem(item);
    }
    return true;
}
