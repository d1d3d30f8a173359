#include "zelpushbutton2.h"

#include <qevent.h>

ZelPushButton2::ZelPushButton2(QWidget* parent, const char* name) : QPushButton(parent, name) {}

ZelPushButton2::ZelPushButton2(const char* text, QWidget* parent, const char* name)
    : QPushButton(QString(text), parent, name)
{
}

ZelPushButton2::~ZelPushButton2() {}

void ZelPushButton2::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Key_Escape)
        emit escapePressed();
    QButton::keyPressEvent(event);
}
