#include "zelcolorbutton.h"
#include "hoverpress.h"

#include <qbrush.h>
#include <qdrawutil.h>
#include <qevent.h>
#include <qpainter.h>

// Every pixel is painted, so none needs an erase before.
ZelColorButton::ZelColorButton(QWidget* parent, const char* name)
    : QWidget(parent, name, 0), color(200, 0, 0), state(0)
{
    setBackgroundMode(NoBackground);
}

ZelColorButton::~ZelColorButton() {}

void ZelColorButton::setColor(const QColor& newColor)
{
    color = newColor;
    repaint(true);
}

void ZelColorButton::enterEvent(QEvent*)
{
    state |= HoverState;
    repaint(true);
}

void ZelColorButton::leaveEvent(QEvent*)
{
    state &= ~HoverState;
    repaint(true);
}

void ZelColorButton::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == LeftButton)
        state |= PressState;
}

// Any button's release ends the press.
void ZelColorButton::mouseReleaseEvent(QMouseEvent* event)
{
    if (state & PressState) {
        state &= ~PressState;
        if (insideWidget(this, event->pos()))
            emit clicked();
    }
}

void ZelColorButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QBrush fill(color);
    if (state & HoverState) {
        painter.setPen(QColor(0, 0, 0));
        painter.setBrush(QBrush(QColor(255, 255, 255)));
        painter.drawRect(0, 0, width(), height());
        painter.setBrush(fill);
        painter.drawRect(2, 2, width() - 4, height() - 4);
    } else {
        qDrawShadePanel(&painter, 0, 0, width(), height(), colorGroup(), true, 2, &fill);
    }
}
