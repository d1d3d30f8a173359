#include "zelpushbutton.h"

#include <qbrush.h>
#include <qpainter.h>

ZelPushButton::ZelPushButton(const QColor& shown, QWidget* parent, const char* name)
    : QPushButton(parent, name), color(shown)
{
}

ZelPushButton::~ZelPushButton() {}

void ZelPushButton::drawButtonLabel(QPainter* painter)
{
    painter->setPen(black);
    painter->setBrush(QBrush(color));
    painter->drawRect(5, 5, width() - 10, height() - 10);
}
