#include "zelcombobox.h"
#include "fieldkeys.h"

#include <qapplication.h>
#include <qlistbox.h>

ZelComboBox::ZelComboBox(bool rw, QWidget* parent, const char* name) : QComboBox(rw, parent, name) {}

ZelComboBox::ZelComboBox(QWidget* parent, const char* name) : QComboBox(parent, name) {}

ZelComboBox::~ZelComboBox() {}

void ZelComboBox::keyPressEvent(QKeyEvent* event)
{
    QComboBox::keyPressEvent(event);
    if (keepFieldKey(event))
        emit escapePressed();
}

// Opening the list moves the focus into it; that is no leaving.
void ZelComboBox::focusOutEvent(QFocusEvent* event)
{
    const QWidget* const list = listBox();
    if (qApp->focusWidget() != list)
        emit focusOut();
    QComboBox::focusOutEvent(event);
}

void ZelComboBox::leaveEvent(QEvent* event)
{
    emit leave();
    QWidget::leaveEvent(event);
}
