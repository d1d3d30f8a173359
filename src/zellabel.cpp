#include "zellabel.h"
#include "hoverpress.h"

#include <qevent.h>
#include <qfont.h>
#include <qpainter.h>

ZelLabel::ZelLabel(const QString& text, QWidget* parent, const char* name, bool active, WFlags flags)
    : QLabel(text, parent, name, flags), active(active), on(false), hoverColor(0, 0, 240),
      normalColor(0, 0, 0), currentColor(&normalColor)
{
}

// The hover colour is a little darker than the other constructor's.
ZelLabel::ZelLabel(const char* text, QWidget* parent, const char* name, bool active, WFlags flags)
    : QLabel(QString(text), parent, name, flags), active(active), on(false), hoverColor(0, 0, 200),
      normalColor(0, 0, 0), currentColor(&normalColor)
{
}

ZelLabel::~ZelLabel() {}

void ZelLabel::setTextColors(QColor& hover, QColor& normal)
{
    hoverColor = hover;
    normalColor = normal;
}

void ZelLabel::setOn(bool newOn)
{
    on = newOn;
    emit clicked(this);
}

void ZelLabel::mousePressEvent(QMouseEvent* event)
{
    emit mousePress(event);
    QWidget::mousePressEvent(event);
}

void ZelLabel::mouseMoveEvent(QMouseEvent* event)
{
    emit mouseMove(event);
    QWidget::mouseMoveEvent(event);
}

void ZelLabel::mouseDoubleClickEvent(QMouseEvent* event)
{
    emit mouseDoubleClick(event);
    QWidget::mouseDoubleClickEvent(event);
}

// No press is needed before the release.
void ZelLabel::mouseReleaseEvent(QMouseEvent* event)
{
    emit mouseRelease(event);
    if (event->button() == LeftButton && insideWidget(this, event->pos())) {
        on = !on;
        emit clicked(this);
    }
    QWidget::mouseReleaseEvent(event);
}

void ZelLabel::enterEvent(QEvent* event)
{
    if (active)
        setLook(QFont::Bold, hoverColor);
    QWidget::enterEvent(event);
}

void ZelLabel::leaveEvent(QEvent* event)
{
    if (active)
        setLook(QFont::Normal, normalColor);
    QWidget::leaveEvent(event);
}

void ZelLabel::setLook(int weight, const QColor& color)
{
    QFont weighted = font();
    weighted.setWeight(weight);
    setFont(weighted);
    currentColor = &color;
    repaint(true);
}

void ZelLabel::drawContents(QPainter* painter)
{
    if (!active) {
        QLabel::drawContents(painter);
        return;
    }
    painter->setPen(*currentColor);
    painter->drawText(contentsRect(), AlignCenter, text(), -1);
}
