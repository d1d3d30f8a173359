// QWidget: events on their way to the handlers.
#include <qwidget.h>

#include "kernel/objectdata.h"
#include "kernel/widgetdata.h"

#include <qapplication.h>
#include <qevent.h>
#include <qguardedptr.h>

namespace
{

bool moveFocusByKey(QWidget* widget, bool next)
{
    QFocusEvent::setReason(next ? QFocusEvent::Tab : QFocusEvent::Backtab);
    const bool moved = zeltk::WidgetAccess::focusNextPrev(widget, next);
    QFocusEvent::resetReason();
    return moved;
}

// Tab and Shift+Tab do.
bool movesFocus(QWidget* widget, const QKeyEvent* key)
{
    if (key->state() & (Qt::ControlButton | Qt::AltButton))
        return false;
    const bool tab = key->key() == Qt::Key_Tab;
    if (key->key() == Qt::Key_Backtab || (tab && (key->state() & Qt::ShiftButton)))
        return moveFocusByKey(widget, false);
    return tab && moveFocusByKey(widget, true);
}

// What concerns a window or the program concerns all inside.
void tellChildren(QWidget* widget, QEvent::Type type, bool visibleOnly)
{
    for (const QGuardedPtr<QWidget>& child : zeltk::guardedChildren(widget))
        if (child && (!visibleOnly || (child->isVisible() && !child->isTopLevel()))) {
            QEvent news(type);
            QApplication::sendEvent(child, &news);
        }
}

bool isInput(const QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return true;
    default:
        return false;
    }
}

} // namespace

bool QWidget::event(QEvent* event)
{
    if (zeltk::ObjectAccess::filter(this, event))
        return true;
    if (!isEnabled() && isInput(event))
        return false;
    const QGuardedPtr<QWidget> alive(this);
    switch (event->type()) {
    case QEvent::MouseMove:
        mouseMoveEvent(static_cast<QMouseEvent*>(event));
        return static_cast<QMouseEvent*>(event)->isAccepted();
    case QEvent::MouseButtonPress:
        mousePressEvent(static_cast<QMouseEvent*>(event));
        return static_cast<QMouseEvent*>(event)->isAccepted();
    case QEvent::MouseButtonRelease:
        mouseReleaseEvent(static_cast<QMouseEvent*>(event));
        return static_cast<QMouseEvent*>(event)->isAccepted();
    case QEvent::MouseButtonDblClick:
        mouseDoubleClickEvent(static_cast<QMouseEvent*>(event));
        return static_cast<QMouseEvent*>(event)->isAccepted();
    case QEvent::Wheel:
        wheelEvent(static_cast<QWheelEvent*>(event));
        return static_cast<QWheelEvent*>(event)->isAccepted();
    case QEvent::KeyPress:
        if (movesFocus(this, static_cast<QKeyEvent*>(event)) || !alive)
            return true;
        keyPressEvent(static_cast<QKeyEvent*>(event));
        return static_cast<QKeyEvent*>(event)->isAccepted();
    case QEvent::KeyRelease:
        keyReleaseEvent(static_cast<QKeyEvent*>(event));
        return static_cast<QKeyEvent*>(event)->isAccepted();
    case QEvent::FocusIn:
        focusInEvent(static_cast<QFocusEvent*>(event));
        return true;
    case QEvent::FocusOut:
        focusOutEvent(static_cast<QFocusEvent*>(event));
        return true;
    case QEvent::Enter:
        w->state |= WState_HasMouse;
        enterEvent(event);
        return true;
    case QEvent::Leave:
        w->state &= ~static_cast<WState>(WState_HasMouse);
        leaveEvent(event);
        return true;
    case QEvent::Paint:
        paintEvent(static_cast<QPaintEvent*>(event));
        return true;
    case QEvent::Move:
        moveEvent(static_cast<QMoveEvent*>(event));
        return true;
    case QEvent::Resize:
        resizeEvent(static_cast<QResizeEvent*>(event));
        return true;
    case QEvent::Close:
        closeEvent(static_cast<QCloseEvent*>(event));
        return static_cast<QCloseEvent*>(event)->isAccepted();
    case QEvent::ContextMenu:
        contextMenuEvent(static_cast<QContextMenuEvent*>(event));
        return static_cast<QContextMenuEvent*>(event)->isAccepted();
    case QEvent::Show:
        showEvent(static_cast<QShowEvent*>(event));
        return true;
    case QEvent::Hide:
        hideEvent(static_cast<QHideEvent*>(event));
        return true;
    case QEvent::WindowActivate:
    case QEvent::WindowDeactivate:
        windowActivationChange(event->type() == QEvent::WindowDeactivate);
        if (alive)
            tellChildren(this, event->type(), true);
        return true;
    case QEvent::LanguageChange:
    case QEvent::LocaleChange:
        tellChildren(this, event->type(), false);
        if (alive)
            update();
        return true;
    default:
        // Filters have had their turn; QObject would ask them again.
        return zeltk::handlePlainEvent(this, event);
    }
}

void QWidget::mousePressEvent(QMouseEvent* event)
{
    if (!isPopup()) {
        event->ignore();
        return;
    }
    event->accept();
    if (!rect().contains(event->pos()))
        close();
}

void QWidget::mouseReleaseEvent(QMouseEvent* event)
{
    event->ignore();
}

void QWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event);
}

void QWidget::mouseMoveEvent(QMouseEvent* event)
{
    event->ignore();
}

void QWidget::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

void QWidget::keyPressEvent(QKeyEvent* event)
{
    if (isPopup() && event->key() == Key_Escape) {
        event->accept();
        close();
        return;
    }
    event->ignore();
}

void QWidget::keyReleaseEvent(QKeyEvent* event)
{
    event->ignore();
}

void QWidget::focusInEvent(QFocusEvent*)
{
    if (focusPolicy() != NoFocus || !isTopLevel())
        update();
}

void QWidget::focusOutEvent(QFocusEvent*)
{
    if (focusPolicy() != NoFocus || !isTopLevel())
        update();
}

void QWidget::enterEvent(QEvent*) {}

void QWidget::leaveEvent(QEvent*) {}

void QWidget::moveEvent(QMoveEvent*) {}

void QWidget::resizeEvent(QResizeEvent*) {}

void QWidget::closeEvent(QCloseEvent* event)
{
    event->accept();
}

void QWidget::contextMenuEvent(QContextMenuEvent* event)
{
    event->ignore();
}

void QWidget::showEvent(QShowEvent*) {}

void QWidget::hideEvent(QHideEvent*) {}

void QWidget::setMouseTracking(bool enable)
{
    if (enable)
        w->state |= WState_MouseTracking;
    else
        w->state &= ~WState_MouseTracking;
}
