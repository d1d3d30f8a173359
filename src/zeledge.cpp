#include "zeledge.h"

#include <qevent.h>

ZelEdge::ZelEdge(QWidget* parent, const char* name)
    : QWidget(parent, name, 0), normalColor(0, 0, 0), pressedColor(0, 240, 0)
{
    setPaletteBackgroundColor(normalColor);
}

ZelEdge::~ZelEdge() {}

void ZelEdge::setColor(const QColor& normal, const QColor& pressed)
{
    normalColor = normal;
    pressedColor = pressed;
    setPaletteBackgroundColor(normalColor);
}

void ZelEdge::mousePressEvent(QMouseEvent* event)
{
    setPaletteBackgroundColor(pressedColor);
    emit mousePress(event);
}

void ZelEdge::mouseReleaseEvent(QMouseEvent* event)
{
    setPaletteBackgroundColor(normalColor);
    emit mouseRelease(event);
}

void ZelEdge::mouseMoveEvent(QMouseEvent* event)
{
    emit mouseMove(event);
}
