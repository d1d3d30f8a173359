// Keys that trigger something.
#ifndef QKEYSEQUENCE_H
#define QKEYSEQUENCE_H

#include <qnamespace.h>

//! A key with its modifiers, as in Qt::CTRL + Qt::Key_O.
class Q_EXPORT QKeySequence : public Qt
{
public:
    QKeySequence() : code(0) {}
    QKeySequence(int key) : code(key) {}

    operator int() const { return code; }
    bool isEmpty() const { return code == 0; }
    bool operator==(const QKeySequence& other) const { return code == other.code; }
    bool operator!=(const QKeySequence& other) const { return code != other.code; }

private:
    int code;
};

#endif
