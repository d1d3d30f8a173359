#include "zelframe.h"

#include <qevent.h>

ZelFrame::ZelFrame(QWidget* parent, const char* name, WFlags flags) : QFrame(parent, name, flags) {}

ZelFrame::~ZelFrame() {}

void ZelFrame::mousePressEvent(QMouseEvent* event)
{
    emit mousePress(event);
    emit mousePressEx(event, this);
    QWidget::mousePressEvent(event);
}

void ZelFrame::mouseReleaseEvent(QMouseEvent* event)
{
    emit mouseRelease(event);
    emit mouseReleaseEx(event, this);
    QWidget::mouseReleaseEvent(event);
}

void ZelFrame::mouseDoubleClickEvent(QMouseEvent* event)
{
    emit mouseDoubleClick(event);
    emit mouseDoubleClickEx(event, this);
    QWidget::mouseDoubleClickEvent(event);
}

void ZelFrame::mouseMoveEvent(QMouseEvent* event)
{
    emit mouseMove(event);
    emit mouseMoveEx(event, this);
    QWidget::mouseMoveEvent(event);
}
