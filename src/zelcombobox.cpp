#include "zelcombobox.h"
#include "fieldkeys.h"

#include <qapplication.h>
#include <qguardedptr.h>
#include <qlistbox.h>

ZelComboBox::ZelComboBox(bool rw, QWidget* parent, const char* name) : QComboBox(rw, parent, name) {}

ZelComboBox::ZelComboBox(QWidget* parent, const char* name) : QComboBox(parent, name) {}

ZelComboBox::~ZelComboBox() {}

void ZelComboBox::keyPressEvent(QKeyEvent* event)
{
    const QGuardedPtr<QWidget> alive(this);
    QComboBox::keyPressEvent(event);
    if (keepFieldKey(event) && alive)
        emit escapePressed();
}

// Opening the list moves the focus into it; that is no leaving.
void ZelComboBox::focusOutEvent(QFocusEvent* event)
{
    const QGuardedPtr<QWidget> alive(this);
    const QWidget* const list = listBox();
    if (qApp->focusWidget() != list)
        emit focusOut();
    if (alive)
        QComboBox::focusOutEvent(event);
}

void ZelComboBox::leaveEvent(QEvent* event)
{
    const QGuardedPtr<QWidget> alive(this);
    emit leave();
    if (alive)
        QWidget::leaveEvent(event);
}
