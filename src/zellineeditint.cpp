#include "zellineeditint.h"

#include <qevent.h>
#include <qguardedptr.h>

#include "textnumber.h"

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

int ZelLineEditInt::number() const
{
    return leadingNumber(text());
}

void ZelLineEditInt::keyPressEvent(QKeyEvent* event)
{
    if (!reachesTheField(event))
        return;
    const int before = number();
    const QGuardedPtr<QWidget> alive(this);
    QLineEdit::keyPressEvent(event);
    if (!alive)
        return;
    const int after = number();
    if (after < minimum || after > maximum)
        setText(QString::number(before));
    else if (after != before)
        emit valueChanged(after);
}
