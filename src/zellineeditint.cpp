#include "zellineeditint.h"

#include <qevent.h>

#include <limits.h>
#include <stdlib.h>

namespace
{

const int freeKeys[] = {Qt::Key_Left, Qt::Key_Right,     Qt::Key_Home,
                        Qt::Key_End,  Qt::Key_Backspace, Qt::Key_Delete};

bool reachesTheField(const QKeyEvent* event)
{
    for (unsigned int i = 0; i < sizeof freeKeys / sizeof freeKeys[0]; ++i)
        if (event->key() == freeKeys[i])
            return true;
    if (event->state() == Qt::ControlButton)
        return true;
    return event->ascii() >= '0' && event->ascii() <= '9';
}

} // namespace

ZelLineEditInt::ZelLineEditInt(QWidget* parent, const char* name, int min, int max)
    : QLineEdit(parent, name), minimum(min), maximum(max)
{
}

ZelLineEditInt::~ZelLineEditInt() {}

// The number that the text begins with. What is too long is the largest or smallest int.
int ZelLineEditInt::number() const
{
    const QString whole = text();
    const char* const digits = whole.ascii();
    const long value = digits ? strtol(digits, 0, 10) : 0;
    return value > INT_MAX ? INT_MAX : value < INT_MIN ? INT_MIN : (int)value;
}

void ZelLineEditInt::keyPressEvent(QKeyEvent* event)
{
    if (!reachesTheField(event))
        return;
    const int before = number();
    QLineEdit::keyPressEvent(event);
    const int after = number();
    if (after < minimum || after > maximum)
        setText(QString::number(before));
    else if (after != before)
        emit valueChanged(after);
}
