#include "zelactivelabel2.h"
#include "hoverpress.h"

#include <qcolor.h>
#include <qdrawutil.h>
#include <qevent.h>
#include <qpainter.h>

ZelActiveLabel2::ZelActiveLabel2(QWidget* parent, const char* name) : QWidget(parent, name, 0), state(0)
{
    setPaletteBackgroundColor(parent->paletteBackgroundColor());
}

ZelActiveLabel2::~ZelActiveLabel2() {}

void ZelActiveLabel2::setText(const char* newText)
{
    text = newText;
    repaint(true);
}

// The text does not move, so its new colour covers the old one without an erase.
void ZelActiveLabel2::enterEvent(QEvent*)
{
    state |= HoverState;
    repaint(false);
}

void ZelActiveLabel2::leaveEvent(QEvent*)
{
    state &= ~HoverState;
    repaint(false);
}

void ZelActiveLabel2::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == LeftButton) {
        state |= PressState;
        emit pressed();
    }
}

// Any button's release ends the press.
void ZelActiveLabel2::mouseReleaseEvent(QMouseEvent* event)
{
    if (state & PressState) {
        state &= ~PressState;
        if (insideWidget(this, event->pos()))
            emit clicked();
    }
}

void ZelActiveLabel2::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    qDrawShadeRect(&painter, 0, 0, width(), height(), colorGroup(), true, 1, 0);
    painter.setPen(state & HoverState ? QColor(255, 255, 255) : QColor(0, 0, 220));
    const QRect rectangle(QPoint(2, 2), QPoint(width() - 3, height() - 3));
    painter.drawText(rectangle, AlignCenter, text, -1);
}
