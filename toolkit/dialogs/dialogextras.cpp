// QDialog: extension and size grip.
#include "dialogs/dialogdata.h"
#include "dialogs/sizegrip.h"

#include <qcursor.h>
#include <qevent.h>
#include <qpainter.h>

namespace zeltk
{

constexpr int gripSize = 13;

SizeGrip::SizeGrip(QWidget* window) : QWidget(window)
{
    setCursor(QCursor(SizeFDiagCursor));
    resize(gripSize, gripSize);
    place();
}

void SizeGrip::place()
{
    move(parentWidget()->width() - width(), parentWidget()->height() - height());
    raise();
}

void SizeGrip::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    for (int i = 1; i < gripSize; i += 4) {
        p.setPen(colorGroup().light());
        p.drawLine(i, gripSize - 1, gripSize - 1, i);
        p.setPen(colorGroup().dark());
        p.drawLine(i + 1, gripSize - 1, gripSize - 1, i + 1);
    }
}

void SizeGrip::mousePressEvent(QMouseEvent* event)
{
    pressedAt = event->globalPos();
    sizeThen = topLevelWidget()->size();
}

void SizeGrip::mouseMoveEvent(QMouseEvent* event)
{
    if (!(event->state() & LeftButton))
        return;
    const QPoint moved = event->globalPos() - pressedAt;
    const QSize wanted(sizeThen.width() + moved.x(), sizeThen.height() + moved.y());
    QWidget* window = topLevelWidget();
    window->resize(wanted.expandedTo(window->minimumSize()).expandedTo(size()));
}

} // namespace zeltk

void QDialog::setExtension(QWidget* extension)
{
    if (d->extension && d->extension != extension)
        delete d->extension;
    d->extension = extension;
    if (!extension)
        return;
    if (extension->parentWidget() != this)
        extension->reparent(this, QPoint(0, 0));
    extension->hide();
}

QWidget* QDialog::extension() const
{
    return d->extension;
}

void QDialog::setOrientation(Orientation orientation)
{
    d->orientation = orientation;
}

Qt::Orientation QDialog::orientation() const
{
    return d->orientation;
}

// The dialog grows by what the extension likes best.
void QDialog::showExtension(bool show)
{
    if (!d->extension || show == !d->sizeBefore.isNull())
        return;
    if (!show) {
        d->extension->hide();
        const QSize before = d->sizeBefore;
        d->sizeBefore = QSize(0, 0);
        resize(before);
        return;
    }
    d->sizeBefore = size();
    const QSize wanted = d->extension->sizeHint().expandedTo(d->extension->minimumSize());
    const QSize extra = wanted.boundedTo(d->extension->maximumSize());
    if (d->orientation == Horizontal) {
        d->extension->setGeometry(width(), 0, extra.width(), height());
        resize(width() + extra.width(), height());
    } else {
        d->extension->setGeometry(0, height(), width(), extra.height());
        resize(width(), height() + extra.height());
    }
    d->extension->show();
}

void QDialog::setSizeGripEnabled(bool enable)
{
    if (enable == isSizeGripEnabled())
        return;
    if (!enable) {
        delete d->grip;
        d->grip = 0;
        return;
    }
    d->grip = new zeltk::SizeGrip(this);
    d->grip->show();
}

bool QDialog::isSizeGripEnabled() const
{
    return d->grip != 0;
}

void QDialog::resizeEvent(QResizeEvent*)
{
    if (d->grip)
        d->grip->place();
}
