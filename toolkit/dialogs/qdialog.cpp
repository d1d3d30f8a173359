// QDialog.
#include <qdialog.h>

#include "kernel/applicationprivate.h"
#include "dialogs/dialogdata.h"
#include "widgets/defaultbutton.h"
#include "widgets/focuskeys.h"

#include <qapplication.h>
#include <qdesktopwidget.h>
#include <qevent.h>
#include <qguardedptr.h>
#include <qpushbutton.h>
#include <qwidgetlist.h>

namespace
{

// The room that a window manager will take on the left and above; what its other frames take tells.
QSize expectedFrame()
{
    QSize frame(0, 0);
    QWidgetList* windows = QApplication::topLevelWidgets();
    for (QWidgetListIt it(*windows); it.current(); ++it) {
        const QWidget* window = it.current();
        if (window->isVisible() && !window->isPopup())
            frame = frame.expandedTo(
                QSize(window->geometry().x() - window->x(), window->geometry().y() - window->y()));
    }
    delete windows;
    return frame.isNull() ? QSize(10, 40) : frame;
}

QPoint keptInside(QPoint place, const QSize& size, const QRect& room)
{
    if (place.x() + size.width() > room.right())
        place.setX(room.right() - size.width());
    if (place.x() < room.x())
        place.setX(room.x());
    if (place.y() + size.height() > room.bottom())
        place.setY(room.bottom() - size.height());
    if (place.y() < room.y())
        place.setY(room.y());
    return place;
}

bool isPlainKey(const QKeyEvent* event)
{
    const bool enter = event->state() == Qt::Keypad && event->key() == Qt::Key_Enter;
    return event->state() == 0 || enter;
}

} // namespace

QDialog::QDialog(QWidget* parent, const char* name, bool modal, WFlags f)
    : QWidget(parent, name, f | (modal ? WShowModal : 0) | WType_Dialog), d(new zeltk::DialogData)
{
}

QDialog::~QDialog()
{
    if (isVisible() || d->executing)
        QDialog::hide();
    delete d;
}

int QDialog::result() const
{
    return d->result;
}

void QDialog::setResult(int result)
{
    d->result = result;
}

bool QDialog::isModal() const
{
    return testWFlags(WShowModal);
}

void QDialog::setModal(bool modal)
{
    if (modal)
        setWFlags(WShowModal);
    else
        clearWFlags(WShowModal);
}

void QDialog::show()
{
    if (isVisible())
        return;
    constPolish();
    if (!testWState(WState_Resized))
        adjustSize();
    if (!d->placed)
        adjustPosition(parentWidget());
    zeltk::ensureDefaultButton(this);
    if (!focusWidget() || focusWidget() == this)
        focusNextPrevChild(true);
    QWidget::show();
}

void QDialog::hide()
{
    const QGuardedPtr<QDialog> alive(this);
    QWidget::hide();
    if (alive && d->executing) {
        d->executing = false;
        qApp->exit_loop();
    }
}

int QDialog::exec()
{
    if (d->executing) {
        qWarning("QDialog::exec: Recursive call detected");
        return -1;
    }
    const bool deletes = testWFlags(WDestructiveClose);
    const bool wasModal = isModal();
    clearWFlags(WDestructiveClose);
    setModal(true);
    setResult(Rejected);
    const QGuardedPtr<QDialog> alive(this);
    show();
    if (!alive)
        return Rejected;
    d->executing = true;
    qApp->enter_loop();
    if (!alive)
        return Rejected;
    d->executing = false; // the program may have ended the loop by itself
    setModal(wasModal);
    const int code = result();
    if (deletes)
        delete this;
    return code;
}

void QDialog::done(int result)
{
    const bool wasMainWidget = qApp->mainWidget() == this;
    const QGuardedPtr<QDialog> alive(this);
    hide();
    if (!alive)
        return;
    setResult(result);
    zeltk::windowClosed(wasMainWidget);
    if (alive && !wasMainWidget && testWFlags(WDestructiveClose))
        deleteLater();
}

void QDialog::accept()
{
    done(Accepted);
}

void QDialog::reject()
{
    done(Rejected);
}

void QDialog::move(int x, int y)
{
    d->placed = true;
    QWidget::move(x, y);
}

void QDialog::move(const QPoint& p)
{
    move(p.x(), p.y());
}

void QDialog::setGeometry(int x, int y, int w, int h)
{
    d->placed = true;
    QWidget::setGeometry(x, y, w, h);
}

void QDialog::setGeometry(const QRect& rect)
{
    setGeometry(rect.x(), rect.y(), rect.width(), rect.height());
}

// Centred over the anchor's window, else on the screen.
void QDialog::adjustPosition(QWidget* anchor)
{
    const QRect room = QApplication::desktop()->geometry();
    QPoint centre(room.x() + room.width() / 2, room.y() + room.height() / 2);
    if (anchor) {
        const QWidget* window = anchor->topLevelWidget();
        centre = window->mapToGlobal(QPoint(window->width() / 2, window->height() / 2));
    }
    const QSize frame = expectedFrame();
    const QPoint place(centre.x() - width() / 2 - frame.width(), centre.y() - height() / 2 - frame.height());
    const QPoint kept = keptInside(place, size() + frame, room);
    QWidget::move(kept.x(), kept.y());
}

void QDialog::keyPressEvent(QKeyEvent* event)
{
    if (!isPlainKey(event)) {
        event->ignore();
        return;
    }
    switch (event->key()) {
    case Key_Return:
    case Key_Enter:
        if (QPushButton* button = zeltk::defaultButton(this)) {
            if (button->isEnabled())
                emit button->clicked();
        }
        break;
    case Key_Escape:
        reject();
        break;
    default:
        if (const int step = zeltk::focusStep(event->key()))
            focusNextPrevChild(step > 0);
        else
            event->ignore();
    }
}

// Closing rejects.
void QDialog::closeEvent(QCloseEvent* event)
{
    const QGuardedPtr<QDialog> alive(this);
    if (isShown())
        reject();
    if (alive && isHidden())
        event->accept();
}
