#include "zelactivelabel.h"
#include "hoverpress.h"

#include <qevent.h>
#include <qcolor.h>
#include <qdrawutil.h>
#include <qpainter.h>

ZelActiveLabel::ZelActiveLabel(const char* firstText, QWidget* parent, const char* name)
    : QWidget(parent, name, 0), text(firstText)
{
    init(parent);
}

ZelActiveLabel::ZelActiveLabel(QWidget* parent, const char* name) : QWidget(parent, name, 0)
{
    init(parent);
}

void ZelActiveLabel::init(QWidget* parent)
{
    state = 0;
    alignment = AlignLeft | AlignVCenter;
    textTop = 0;
    setPaletteBackgroundColor(parent->paletteBackgroundColor());
}

ZelActiveLabel::~ZelActiveLabel() {}

void ZelActiveLabel::setText(const char* newText)
{
    text = newText;
    repaint(true);
}

void ZelActiveLabel::setAlignment(int flags)
{
    alignment = flags;
    repaint(true);
}

void ZelActiveLabel::setTextTop(int code)
{
    textTop = code;
    repaint(true);
}

void ZelActiveLabel::enterEvent(QEvent*)
{
    state |= HoverState;
    repaint(true);
}

// A held button stays armed: only the place where it is let go decides about the click.
void ZelActiveLabel::leaveEvent(QEvent*)
{
    state &= ~HoverState;
    repaint(true);
}

void ZelActiveLabel::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == LeftButton) {
        state |= PressState;
        repaint(true);
    }
}

// Any button's release ends the press.
void ZelActiveLabel::mouseReleaseEvent(QMouseEvent* event)
{
    if (state & PressState) {
        state &= ~PressState;
        repaint(true);
        if (insideWidget(this, event->pos()))
            emit clicked();
    }
}

void ZelActiveLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (state & HoverState) {
        drawPanel(painter);
        painter.setPen(QColor(255, 255, 255));
    } else {
        painter.setPen(QColor(0, 0, 220));
    }
    drawLabel(painter);
}

void ZelActiveLabel::drawPanel(QPainter& painter)
{
    const bool sunken = (state & PressState) != 0;
    qDrawShadePanel(&painter, 0, 0, width(), height(), colorGroup(), sunken, 2);
}

// The text keeps two pixels free at every edge. Turned sideways, width and height change places.
void ZelActiveLabel::drawLabel(QPainter& painter)
{
    int across = width();
    int down = height();
    switch (textTop) {
    case 1:
        painter.rotate(270.0);
        painter.translate(-height(), 0);
        across = height();
        down = width();
        break;
    case 2:
        painter.rotate(180.0);
        painter.translate(-width(), -height());
        break;
    case 3:
        painter.rotate(90.0);
        painter.translate(0, -width());
        across = height();
        down = width();
        break;
    }
    const QRect rectangle(QPoint(2, 2), QPoint(across - 3, down - 3));
    painter.drawText(rectangle, alignment, text);
}
