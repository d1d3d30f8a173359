#include "zellineedit.h"
#include "fieldkeys.h"

ZelLineEdit::ZelLineEdit(QWidget* parent, const char* name) : QLineEdit(parent, name) {}

ZelLineEdit::~ZelLineEdit() {}

void ZelLineEdit::keyPressEvent(QKeyEvent* event)
{
    QLineEdit::keyPressEvent(event);
    if (keepFieldKey(event))
        emit escapePressed();
}

void ZelLineEdit::focusOutEvent(QFocusEvent* event)
{
    emit focusOut();
    QLineEdit::focusOutEvent(event);
}

void ZelLineEdit::leaveEvent(QEvent* event)
{
    emit leave(event);
    QWidget::leaveEvent(event);
}
