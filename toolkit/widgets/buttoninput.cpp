// QButton: mouse and keys.
#include "widgets/buttondata.h"
#include "widgets/focuskeys.h"

#include <qevent.h>
#include <qguardedptr.h>
#include <qpushbutton.h>

namespace
{

constexpr int repeatDelay = 300; // milliseconds
constexpr int repeatPeriod = 100;

QPushButton* asPushButton(QButton* button)
{
    return button->inherits("QPushButton") ? static_cast<QPushButton*>(button) : nullptr;
}

} // namespace

void QButton::press()
{
    showDown(true);
    emit pressed();
}

void QButton::finishClick()
{
    const QGuardedPtr<QButton> alive(this);
    showDown(false);
    nextState();
    if (alive)
        emit released();
    if (alive)
        emit clicked();
}

void QButton::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != LeftButton) {
        event->ignore();
        return;
    }
    if (!hitButton(event->pos()))
        return;
    d->mouseHeld = true;
    if (d->autoRepeat)
        d->repeat.start(repeatDelay, true);
    press();
}

// The pointer may leave the button and come back before the mouse button goes up.
void QButton::mouseMoveEvent(QMouseEvent* event)
{
    if (!(event->state() & LeftButton) || !d->mouseHeld) {
        event->ignore();
        return;
    }
    const bool inside = hitButton(event->pos());
    if (inside == d->down)
        return;
    if (inside) {
        press();
    } else {
        showDown(false);
        emit released();
    }
}

void QButton::mouseReleaseEvent(QMouseEvent* event)
{
    const bool wasDown = d->down;
    const bool wasHeld = d->mouseHeld;
    if (event->button() != LeftButton) {
        event->ignore();
        if (wasHeld)
            setDown(false); // another button ends the click
        return;
    }
    d->mouseHeld = false;
    d->repeat.stop();
    if (!wasHeld || !wasDown)
        return;
    if (hitButton(event->pos())) {
        finishClick();
    } else {
        showDown(false);
        emit released();
    }
}

void QButton::autoRepeatTimeout()
{
    if (!d->mouseHeld || !d->autoRepeat || !isEnabled())
        return;
    d->repeat.start(repeatPeriod, true);
    if (!d->down)
        return; // the pointer is outside
    const QGuardedPtr<QButton> alive(this);
    emit released();
    if (alive)
        emit clicked();
    if (alive)
        emit pressed();
}

void QButton::keyPressEvent(QKeyEvent* event)
{
    QPushButton* push = asPushButton(this);
    switch (event->key()) {
    case Key_Space:
        if (event->isAutoRepeat())
            break;
        showDown(true);
        if (push)
            emit pressed();
        break;
    case Key_Return:
    case Key_Enter:
        if (push && (push->autoDefault() || push->isDefault()))
            emit clicked();
        else
            event->ignore();
        break;
    case Key_Escape:
        if (d->down)
            setDown(false);
        else
            event->ignore();
        break;
    default:
        if (const int step = zeltk::focusStep(event->key()))
            focusNextPrevChild(step > 0);
        else
            event->ignore();
    }
}

void QButton::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() != Key_Space) {
        event->ignore();
        return;
    }
    if (d->down && !event->isAutoRepeat())
        finishClick();
}

void QButton::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
}

// Who loses the focus is not clicked any more.
void QButton::focusOutEvent(QFocusEvent* event)
{
    if (d->down)
        setDown(false);
    QWidget::focusOutEvent(event);
}
