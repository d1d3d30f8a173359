#include "zelpushbutton2.h"

#include <qevent.h>
#include <qguardedptr.h>

ZelPushButton2::ZelPushButton2(QWidget* parent, const char* name) : QPushButton(parent, name) {}

ZelPushButton2::ZelPushButton2(const char* text, QWidget* parent, const char* name)
    : QPushButton(QString(text), parent, name)
{
}

ZelPushButton2::~ZelPushButton2() {}

void ZelPushButton2::keyPressEvent(QKeyEvent* event)
{
    const QGuardedPtr<QWidget> alive(this);
    if (event->key() == Key_Escape)
        emit escapePressed();
    if (alive)
        QButton::keyPressEvent(event);
}
