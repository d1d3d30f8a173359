#include "zellineedit.h"
#include "fieldkeys.h"

#include <qguardedptr.h>

ZelLineEdit::ZelLineEdit(QWidget* parent, const char* name) : QLineEdit(parent, name) {}

ZelLineEdit::~ZelLineEdit() {}

void ZelLineEdit::keyPressEvent(QKeyEvent* event)
{
    const QGuardedPtr<QWidget> alive(this);
    QLineEdit::keyPressEvent(event);
    if (keepFieldKey(event) && alive)
        emit escapePressed();
}

void ZelLineEdit::focusOutEvent(QFocusEvent* event)
{
    const QGuardedPtr<QWidget> alive(this);
    emit focusOut();
    if (alive)
        QLineEdit::focusOutEvent(event);
}

void ZelLineEdit::leaveEvent(QEvent* event)
{
    const QGuardedPtr<QWidget> alive(this);
    emit leave(event);
    if (alive)
        QWidget::leaveEvent(event);
}
