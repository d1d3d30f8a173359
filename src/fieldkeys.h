// The keys that the input fields keep from the dialog around them.
#ifndef FIELDKEYS_H
#define FIELDKEYS_H

#include <qevent.h>

// To be called after the field has handled the key. Accepts Return, Enter and Escape; true for Escape.
inline bool keepFieldKey(QKeyEvent* event)
{
    const int key = event->key();
    if (key != Qt::Key_Escape && key != Qt::Key_Return && key != Qt::Key_Enter)
        return false;
    event->accept();
    return key == Qt::Key_Escape;
}

#endif
