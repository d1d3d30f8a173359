// QListBox: mouse and keys.
#include "widgets/listboxdata.h"

#include <qevent.h>
#include <qguardedptr.h>

#include <algorithm>

namespace
{

constexpr int typingPause = 400; // milliseconds, after which a letter begins a new word

} // namespace

// When the list is deleted meanwhile, so is its viewport.
bool QListBox::eventFilter(QObject* watched, QEvent* event)
{
    const QGuardedPtr<QListBox> alive(this);
    if (!d || watched != viewport())
        return QScrollView::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        break;
    case QEvent::ContextMenu: {
        QContextMenuEvent* menu = static_cast<QContextMenuEvent*>(event);
        emit contextMenuRequested(itemAt(menu->pos()), menu->globalPos());
        return !alive;
    }
    default:
        return QScrollView::eventFilter(watched, event);
    }
    QMouseEvent* mouse = static_cast<QMouseEvent*>(event);
    if (event->type() == QEvent::MouseButtonPress)
        mousePressEvent(mouse);
    else if (event->type() == QEvent::MouseButtonRelease)
        mouseReleaseEvent(mouse);
    else if (event->type() == QEvent::MouseButtonDblClick)
        mouseDoubleClickEvent(mouse);
    else
        mouseMoveEvent(mouse);
    return !alive || mouse->isAccepted();
}

void QListBox::mousePressEvent(QMouseEvent* event)
{
    QListBoxItem* item = itemAt(event->pos());
    const QGuardedPtr<QListBox> alive(this);
    d->pressed = item;
    d->dragging = event->button() == LeftButton;
    if (item)
        setCurrentItem(item);
    if (alive && d->pressed && d->mode == Extended && !(event->state() & ControlButton))
        clearSelection();
    if (alive && d->pressed && isMultiSelection())
        setSelected(item, d->mode == Extended || !item->s);
    // An entry that was taken away meanwhile is not pressed any more.
    if (alive && event->button() == RightButton)
        emit rightButtonPressed(d->pressed, event->globalPos());
    if (alive)
        emit mouseButtonPressed(event->button(), d->pressed, event->globalPos());
    if (alive)
        emit pressed(d->pressed);
    if (alive)
        emit pressed(d->pressed, event->globalPos());
}

void QListBox::mouseMoveEvent(QMouseEvent* event)
{
    QListBoxItem* item = itemAt(event->pos());
    if (!(event->state() & LeftButton)) {
        if (item)
            emit onItem(item);
        else
            emit onViewport();
        return;
    }
    if (!d->dragging)
        return;
    if (event->y() < 0)
        item = this->item(std::max(0, currentItem() - 1));
    else if (event->y() >= visibleHeight())
        item = this->item(std::min(static_cast<int>(count()) - 1, currentItem() + 1));
    if (item)
        setCurrentItem(item);
}

void QListBox::mouseReleaseEvent(QMouseEvent* event)
{
    QListBoxItem* item = itemAt(event->pos());
    const bool click = item == d->pressed;
    const QGuardedPtr<QListBox> alive(this);
    d->dragging = false;
    d->pressed = 0;
    if (!click)
        return;
    emit clicked(item);
    const auto isThere = [&] { return alive && (!item || index(item) >= 0); };
    if (isThere())
        emit clicked(item, event->globalPos());
    if (isThere())
        emit mouseButtonClicked(event->button(), item, event->globalPos());
    if (isThere() && event->button() == RightButton)
        emit rightButtonClicked(item, event->globalPos());
}

void QListBox::mouseDoubleClickEvent(QMouseEvent* event)
{
    QListBoxItem* item = itemAt(event->pos());
    if (!item)
        return;
    const QGuardedPtr<QListBox> alive(this);
    setCurrentItem(item);
    if (alive && index(item) >= 0 && d->mode != NoSelection)
        tellSelected(item);
    if (alive && index(item) >= 0)
        emit doubleClicked(item);
}

void QListBox::keyPressEvent(QKeyEvent* event)
{
    if (count() == 0) {
        event->ignore();
        return;
    }
    const int last = static_cast<int>(count()) - 1;
    const int page = std::max(1, numItemsVisible());
    const int here = std::max(0, currentItem());
    switch (event->key()) {
    case Key_Up:
        setCurrentItem(std::max(0, here - 1));
        break;
    case Key_Down:
        setCurrentItem(std::min(last, here + 1));
        break;
    case Key_PageUp:
        setCurrentItem(std::max(0, here - page));
        break;
    case Key_PageDown:
        setCurrentItem(std::min(last, here + page));
        break;
    case Key_Home:
        setCurrentItem(0);
        break;
    case Key_End:
        setCurrentItem(last);
        break;
    case Key_Space:
        if (isMultiSelection() && d->current)
            setSelected(d->current, !d->current->s);
        break;
    case Key_Return:
    case Key_Enter:
        event->ignore();
        if (QListBoxItem* current = d->current)
            if (tellSelected(current))
                emit returnPressed(current);
        break;
    default:
        lookFor(event);
    }
}

// The next entry that begins with the letters that were typed in a row; a single letter again goes on.
void QListBox::lookFor(QKeyEvent* event)
{
    if (event->text().isEmpty() || event->ascii() < 32) {
        event->ignore();
        return;
    }
    if (d->typedAt.isNull() || d->typedAt.elapsed() > typingPause)
        clearInputString();
    d->typedAt.start();
    d->typed += event->text().lower();
    const int size = static_cast<int>(count());
    const int from = std::max(0, currentItem()) + (d->typed.length() == 1 ? 1 : 0);
    for (int i = 0; i < size; ++i) {
        QListBoxItem* candidate = item((from + i) % size);
        if (candidate->text().lower().startsWith(d->typed)) {
            setCurrentItem(candidate);
            return;
        }
    }
}

void QListBox::clearInputString()
{
    d->typed = QString();
}

void QListBox::focusInEvent(QFocusEvent*)
{
    if (d->current)
        updateItem(d->current);
}

void QListBox::focusOutEvent(QFocusEvent*)
{
    if (d->current)
        updateItem(d->current);
}
