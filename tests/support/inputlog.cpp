// A widget that writes down what the user does to it.
#include "inputlog.h"

#include <sstream>

void InputWidget::writeMouse(const char* what, const QMouseEvent* event)
{
    std::ostringstream text;
    text << what << ' ' << event->x() << ',' << event->y() << " button " << event->button() << " state "
         << event->state();
    write(text.str());
}

// Printable texts are shown, other keys by their code.
void InputWidget::writeKey(const char* what, const QKeyEvent* event)
{
    std::ostringstream text;
    text << what << ' ';
    if (event->key() > 32 && event->key() < 127)
        text << static_cast<char>(event->key());
    else
        text << "0x" << std::hex << event->key() << std::dec;
    text << " state " << event->state();
    if (event->isAutoRepeat())
        text << " repeated";
    write(text.str());
}

void InputWidget::mousePressEvent(QMouseEvent* event)
{
    writeMouse("press", event);
    if (!acceptsMouse)
        QWidget::mousePressEvent(event);
}

void InputWidget::mouseReleaseEvent(QMouseEvent* event)
{
    writeMouse("release", event);
    if (!acceptsMouse)
        QWidget::mouseReleaseEvent(event);
}

void InputWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (logsMoves)
        writeMouse("move", event);
    if (!acceptsMouse)
        QWidget::mouseMoveEvent(event);
}

void InputWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    writeMouse("double", event);
    if (!acceptsMouse)
        QWidget::mouseDoubleClickEvent(event);
}

void InputWidget::wheelEvent(QWheelEvent* event)
{
    std::ostringstream text;
    text << "wheel " << event->delta() << " at " << event->x() << ',' << event->y() << " state "
         << event->state() << (event->orientation() == Vertical ? " vertical" : " horizontal");
    write(text.str());
    if (!acceptsMouse)
        QWidget::wheelEvent(event);
}

void InputWidget::enterEvent(QEvent*)
{
    write(hasMouse() ? "enter" : "enter without having the mouse");
}

void InputWidget::leaveEvent(QEvent*)
{
    write(hasMouse() ? "leave but has the mouse" : "leave");
}

void InputWidget::keyPressEvent(QKeyEvent* event)
{
    writeKey("key", event);
    if (!acceptsKeys)
        QWidget::keyPressEvent(event);
}

void InputWidget::keyReleaseEvent(QKeyEvent* event)
{
    writeKey("key up", event);
    if (!acceptsKeys)
        QWidget::keyReleaseEvent(event);
}

void InputWidget::focusInEvent(QFocusEvent*)
{
    write("focus in reason " + std::to_string(QFocusEvent::reason()));
}

void InputWidget::focusOutEvent(QFocusEvent*)
{
    write("focus out reason " + std::to_string(QFocusEvent::reason()));
}

void InputWidget::contextMenuEvent(QContextMenuEvent* event)
{
    std::ostringstream text;
    text << "menu at " << event->x() << ',' << event->y();
    write(text.str());
    if (!acceptsMouse)
        QWidget::contextMenuEvent(event);
}
