// The corner of a dialog that resizes it.
#include "dialogs/sizegrip.h"

#include "dialogs/dialogdata.h"

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

void QDialog::setSizeGripEnabled(bool enable)
{
    if (enable == isSizeGripEnabled())
        return;
    if (!enable) {
        delete d->grip;
        return;
    }
    d->grip = new zeltk::SizeGrip(this);
    d->grip->show();
}

bool QDialog::isSizeGripEnabled() const
{
    return !d->grip.isNull();
}

void QDialog::resizeEvent(QResizeEvent*)
{
    if (d->grip)
        d->grip->place();
}
