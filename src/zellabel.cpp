#include "zellabel.h"
#include "hoverpress.h"

#include <qevent.h>
#include <qfont.h>
#include <qguardedptr.h>
#include <qpainter.h>

ZelLabel::ZelLabel(const QString& text, QWidget* parent, const char* name, bool reacts, WFlags flags)
    : QLabel(text, parent, name, flags), active(reacts), on(false), hoverColor(0, 0, 240),
      normalColor(0, 0, 0), currentColor(&normalColor)
{
}

// The hover colour is a little darker than the other constructor's.
ZelLabel::ZelLabel(const char* text, QWidget* parent, const char* name, bool reacts, WFlags flags)
    : QLabel(QString(text), parent, name, flags), active(reacts), on(false), hoverColor(0, 0, 200),
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
    const QGuardedPtr<QWidget> alive(this);
    emit mousePress(event);
    if (alive)
        QWidget::mousePressEvent(event);
}

void ZelLabel::mouseMoveEvent(QMouseEvent* event)
{
    const QGuardedPtr<QWidget> alive(this);
    emit mouseMove(event);
    if (alive)
        QWidget::mouseMoveEvent(event);
}

void ZelLabel::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QGuardedPtr<QWidget> alive(this);
    emit mouseDoubleClick(event);
    if (alive)
        QWidget::mouseDoubleClickEvent(event);
}

// No press is needed before the release.
void ZelLabel::mouseReleaseEvent(QMouseEvent* event)
{
    const QGuardedPtr<QWidget> alive(this);
    emit mouseRelease(event);
    if (alive && event->button() == LeftButton && insideWidget(this, event->pos())) {
        on = !on;
        emit clicked(this);
    }
    if (alive)
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
    painter->drawText(contentsRect(), AlignCenter, text());
}
