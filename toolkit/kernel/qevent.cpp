// The events.
#include <qevent.h>

#include <vector>

namespace
{

// The last one counts; handlers may set another one for a while.
std::vector<QFocusEvent::Reason>& focusReasons()
{
    static auto* const reasons = new std::vector<QFocusEvent::Reason>;
    return *reasons;
}

// The state bit of a modifier key; 0 for other keys.
int modifierOf(int key)
{
    switch (key) {
    case Qt::Key_Shift:
        return Qt::ShiftButton;
    case Qt::Key_Control:
        return Qt::ControlButton;
    case Qt::Key_Alt:
        return Qt::AltButton;
    case Qt::Key_Meta:
        return Qt::MetaButton;
    default:
        return 0;
    }
}

} // namespace

QEvent::~QEvent() {}

QMouseEvent::QMouseEvent(Type type, const QPoint& pos, int button, int state)
    : QEvent(type), p(pos), b((ButtonState)button), s((ushort)state), accepted(true)
{
}

Qt::ButtonState QMouseEvent::stateAfter() const
{
    if (type() == MouseButtonRelease)
        return ButtonState(s & ~b);
    return ButtonState(s | b);
}

QWheelEvent::QWheelEvent(const QPoint& pos, int delta, int state, Orientation orientation)
    : QEvent(Wheel), p(pos), d(delta), s((ushort)state), accepted(true), o(orientation)
{
}

Qt::ButtonState QKeyEvent::stateAfter() const
{
    if (type() == KeyPress)
        return ButtonState(s | modifierOf(k));
    return ButtonState(s & ~modifierOf(k));
}

QFocusEvent::Reason QFocusEvent::reason()
{
    return focusReasons().empty() ? Other : focusReasons().back();
}

void QFocusEvent::setReason(Reason reason)
{
    focusReasons().push_back(reason);
}

void QFocusEvent::resetReason()
{
    if (!focusReasons().empty())
        focusReasons().pop_back();
}
