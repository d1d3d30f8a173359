#include "zelframe.h"

#include <qevent.h>
#include <qguardedptr.h>

ZelFrame::ZelFrame(QWidget* parent, const char* name, WFlags flags) : QFrame(parent, name, flags) {}

ZelFrame::~ZelFrame() {}

void ZelFrame::mousePressEvent(QMouseEvent* event)
{
    const QGuardedPtr<QWidget> alive(this);
    emit mousePress(event);
    if (alive)
        emit mousePressEx(event, this);
    if (alive)
        QWidget::mousePressEvent(event);
}

void ZelFrame::mouseReleaseEvent(QMouseEvent* event)
{
    const QGuardedPtr<QWidget> alive(this);
    emit mouseRelease(event);
    if (alive)
        emit mouseReleaseEx(event, this);
    if (alive)
        QWidget::mouseReleaseEvent(event);
}

void ZelFrame::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QGuardedPtr<QWidget> alive(this);
    emit mouseDoubleClick(event);
    if (alive)
        emit mouseDoubleClickEx(event, this);
    if (alive)
        QWidget::mouseDoubleClickEvent(event);
}

void ZelFrame::mouseMoveEvent(QMouseEvent* event)
{
    const QGuardedPtr<QWidget> alive(this);
    emit mouseMove(event);
    if (alive)
        emit mouseMoveEx(event, this);
    if (alive)
        QWidget::mouseMoveEvent(event);
}
